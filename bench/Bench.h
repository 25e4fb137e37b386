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

// Median wall-clock and processor times of some runs, in milliseconds.  On a machine busy with
// other work the processor time of this thread is the steadier of the two.
struct Times {
    double ms = -1;
    double cpuMs = -1;
};

// The processor time this thread has used, in milliseconds.
double ThreadCpuMs();

template <class S, class F> Times MedianTimes(int runs, S&& setup, F&& f) {
    QVector<double> wall;
    QVector<double> cpu;
    for (int i = 0; i < runs; ++i) {
        setup();
        const double cpuStart = ThreadCpuMs();
        QElapsedTimer timer;
        timer.start();
        f();
        wall << timer.nsecsElapsed() / 1e6;
        cpu << ThreadCpuMs() - cpuStart;
    }
    std::sort(wall.begin(), wall.end());
    std::sort(cpu.begin(), cpu.end());
    return {wall.at(wall.size() / 2), cpu.at(cpu.size() / 2)};
}

template <class F> Times MedianTimes(int runs, F&& f) {
    return MedianTimes(
        runs, [] {}, f);
}

// The extra pairs "cpu_ms" (and "baseline_cpu_ms" when the baseline has one).
QVector<QPair<QString, QString>> CpuPairs(const Times& times, const Times& baseline = {});

} // namespace qs::bench
