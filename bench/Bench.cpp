#include "Bench.h"

#include <cstdio>

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

} // namespace qs::bench
