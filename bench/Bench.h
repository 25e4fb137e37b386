#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QVector>
#include <algorithm>

namespace qs::bench {

// What every figure needs: the library, its size, how often to repeat.
struct BenchContext {
    QString path;
    int items = 0;
    int runs = 7;         // timed runs of the operation
    int baselineRuns = 3; // timed runs of the plain scan
};

// Prints {"figure":name,"ms":..,"baseline_ms":..,"rows":..,"items":..,"agree":..} and any
// further "key":value pairs (already formatted as JSON values) on one line.
void PrintFigure(const BenchContext& context, const QString& figure, double ms, double baselineMs,
                 qint64 rows, bool agree, const QVector<QPair<QString, QString>>& extra = {});

// The median time in milliseconds of runs calls of f.
template <class F> double MedianMs(int runs, F&& f) {
    QVector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        f();
        times << timer.nsecsElapsed() / 1e6;
    }
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}

// The same, with setup() run before each call and left out of the time.
template <class S, class F> double MedianMs(int runs, S&& setup, F&& f) {
    QVector<double> times;
    for (int i = 0; i < runs; ++i) {
        setup();
        QElapsedTimer timer;
        timer.start();
        f();
        times << timer.nsecsElapsed() / 1e6;
    }
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}

} // namespace qs::bench
