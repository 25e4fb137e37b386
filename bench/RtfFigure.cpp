#include "Figures.h"

#include "RtfHtmlScanner.h"

namespace qs::bench {

namespace {

// Rich text of about `chars` characters in the layout the code pane writes: keywords blue and
// bold, comments green, every run switch restated after \plain, escapes and indentation.
QString syntheticPaneRtf(qsizetype chars) {
    QString rtf = QStringLiteral(
        "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}"
        "{\\f1\\froman\\fcharset2 Symbol;}{\\f2\\fswiss Arial;}{\\f3\\fswiss Arial;}}\r\n"
        "{\\colortbl\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red0\\green128\\blue0;}\r\n"
        "\\deflang1033\\pard\\plain\\f3\\fs17 ");
    rtf.reserve(chars + 256);
    const QString lines[] = {
        QStringLiteral("\\plain\\f3\\fs17\\cf1\\b Public Function\\b0\\plain\\f3\\fs17  Item%1("
                       "ByVal lngValue As Long) As String"),
        QStringLiteral("    Dim strText As String: strText = \"a\\\\b\\{c\\} \\'e9\" & lngValue"),
        QStringLiteral("\\plain\\f3\\fs17\\cf2     ' <tag> & \"quoted\" text of line %1"
                       "\\plain\\f3\\fs17 "),
        QStringLiteral("\\tab If lngValue > 0 Then Item%1 = strText"),
        QStringLiteral("\\plain\\f3\\fs17\\cf1\\b End Function\\b0\\plain\\f3\\fs17 "),
    };
    for (int i = 0; rtf.size() < chars; ++i) {
        if (i > 0)
            rtf += QLatin1String("\\par ");
        const QString& line = lines[i % 5];
        rtf += line.contains(QLatin1String("%1")) ? line.arg(i) : line;
        rtf += QLatin1String("\r\n");
    }
    rtf += QLatin1String("\\par }\r\n");
    return rtf;
}

// The baseline: one pass that keeps the text and drops the control words, counting \par.
qsizetype plainScan(const QString& rtf, QString& text) {
    text.clear();
    text.reserve(rtf.size());
    qsizetype pars = 0;
    const qsizetype n = rtf.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = rtf.at(i);
        if (c == QLatin1Char('{') || c == QLatin1Char('}') || c == QLatin1Char('\r') ||
            c == QLatin1Char('\n'))
            continue;
        if (c != QLatin1Char('\\')) {
            text += c;
            continue;
        }
        if (++i >= n)
            break;
        const QChar w = rtf.at(i);
        if (w == QLatin1Char('\'')) {
            text += QChar(rtf.mid(i + 1, 2).toInt(nullptr, 16));
            i += 2;
        } else if (!w.isLetter()) {
            text += w;
        } else {
            const qsizetype start = i;
            while (i < n && rtf.at(i).isLetterOrNumber())
                ++i;
            if (QStringView(rtf).sliced(start, i - start) == u"par")
                ++pars;
            if (i >= n || rtf.at(i) != QLatin1Char(' '))
                --i;
        }
    }
    return pars;
}

} // namespace

void FigureRtfToHtml(const BenchContext& context, int megabytes) {
    const QString rtf = syntheticPaneRtf(qsizetype(megabytes) * 1024 * 1024);
    QString html;
    const double ms = MedianMs(context.runs, [&] { html = RtfHtmlScanner::Convert(rtf, {}); });
    QString text;
    qsizetype pars = 0;
    const double baseline = MedianMs(context.runs, [&] { pars = plainScan(rtf, text); });
    // Every line but the last ends in a line break tag; the closing \par holds no line.
    const qsizetype breaks = html.count(QLatin1String("<BR>"));
    PrintFigure(context, QStringLiteral("rtf_to_html"), ms, baseline, breaks + 1,
                breaks == pars - 1,
                {{QStringLiteral("rtf_chars"), QString::number(rtf.size())},
                 {QStringLiteral("html_chars"), QString::number(html.size())},
                 {QStringLiteral("baseline"), QStringLiteral("\"plain scan dropping control "
                                                             "words\"")}});
}

} // namespace qs::bench
