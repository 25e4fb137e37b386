#include "Bench.h"

#include <cstdio>
#include <ctime>

namespace qs::bench {

void PrintFigure(const BenchContext& context, const QString& figure, double ms, double baselineMs,
                 qint64 rows, bool agree, const QVector<QPair<QString, QString>>& extra) {
    QString line = QStringLiteral("{\"figure\":\"%1\",\"ms\":%2").arg(figure).arg(ms, 0, 'f', 3);
    if (baselineMs >= 0)
        line += QStringLiteral(",\"baseline_ms\":%1").arg(baselineMs, 0, 'f', 3);
    line += QStringLiteral(",\"rows\":%1,\"items\":%2,\"agree\":%3")
                .arg(rows)
                .arg(context.items)
                .arg(agree ? QStringLiteral("true") : QStringLiteral("false"));
    for (const auto& pair : extra)
        line += QStringLiteral(",\"%1\":%2").arg(pair.first, pair.second);
    line += QLatin1Char('}');
    std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

double ThreadCpuMs() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

QVector<QPair<QString, QString>> CpuPairs(const Times& times, const Times& baseline) {
    QVector<QPair<QString, QString>> pairs{
        {QStringLiteral("cpu_ms"), QString::number(times.cpuMs, 'f', 3)}};
    if (baseline.cpuMs >= 0)
        pairs.append({QStringLiteral("baseline_cpu_ms"), QString::number(baseline.cpuMs, 'f', 3)});
    return pairs;
}

} // namespace qs::bench
