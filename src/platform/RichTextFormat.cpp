#include "RichTextFormat.h"

#include "Cp1252.h"

#include <QColor>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>
#include <QVector>

namespace qs {

namespace {

const char* const kHeader = "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}"
                            "{\\f1\\froman\\fcharset2 Symbol;}{\\f2\\fswiss Arial;}"
                            "{\\f3\\fswiss Arial;}}";
const char* const kPlain = "\\plain\\f3\\fs17";

// The look of one run: an index into the colour table (0 = black, the default) and bold.
struct RunFormat {
    int colour = 0;
    bool bold = false;
    bool operator!=(const RunFormat& o) const { return colour != o.colour || bold != o.bold; }
};

// Colour 0 is black; a run without a colour of its own is black too.
int colourIndex(const QTextCharFormat& format, QVector<QColor>& table) {
    const QBrush brush = format.foreground();
    if (brush.style() == Qt::NoBrush)
        return 0;
    const QColor c = brush.color().toRgb();
    const QColor plain(c.red(), c.green(), c.blue());
    const int at = table.indexOf(plain);
    if (at >= 0)
        return at;
    table.append(plain);
    return table.size() - 1;
}

RunFormat runFormat(const QTextCharFormat& format, QVector<QColor>& table) {
    return {colourIndex(format, table), format.fontWeight() >= QFont::DemiBold};
}

QString hexByte(int value) {
    return QStringLiteral("\\'") + QString::number(value, 16).rightJustified(2, QLatin1Char('0'));
}

void appendEscaped(QString& out, const QString& text) {
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u == '\\' || u == '{' || u == '}') {
            out += QLatin1Char('\\');
            out += c;
        } else if (u == '\t') {
            out += QLatin1String("\\tab ");
        } else if (u >= 0x20 && u < 0x7F) {
            out += c;
        } else if (u == 0xFFFC) {
            // An embedded object has no text.
        } else {
            // A half of a surrogate pair has no byte: RTF spells the pair as two \u units.
            const int code = c.isSurrogate() ? -1 : Cp1252Byte(u);
            if (code >= 0)
                out += hexByte(code);
            else
                out += QStringLiteral("\\u%1").arg(static_cast<qint16>(u)) + hexByte('?');
        }
    }
}

// The switch from one run format to the next restates the whole format after \plain, so that a
// reader without a group stack closes what was open.  `plainDone` is true right behind the
// first line's "\plain\f3\fs17".
void appendSwitch(QString& out, const RunFormat& from, const RunFormat& to, bool plainDone) {
    if (!plainDone) {
        if (from.bold && !to.bold)
            out += QLatin1String("\\b0");
        out += QLatin1String(kPlain);
    }
    if (to.colour)
        out += QStringLiteral("\\cf%1").arg(to.colour);
    if (to.bold)
        out += QLatin1String("\\b");
}

} // namespace

QString WriteBoxRtf(const QTextDocument& document) {
    QVector<QColor> colours{QColor(0, 0, 0)};
    // The colour table comes first in the output, so the runs are read once to fill it.
    for (QTextBlock b = document.begin(); b != document.end(); b = b.next())
        for (auto it = b.begin(); !it.atEnd(); ++it)
            colourIndex(it.fragment().charFormat(), colours);

    QString out = QLatin1String(kHeader) + QLatin1String("\r\n{\\colortbl");
    for (const QColor& c : colours)
        out +=
            QStringLiteral("\\red%1\\green%2\\blue%3;").arg(c.red()).arg(c.green()).arg(c.blue());
    out += QLatin1String("}\r\n");

    RunFormat current;
    bool first = true;
    bool plainDone = false;
    for (QTextBlock b = document.begin(); b != document.end(); b = b.next()) {
        // The first line's control words still want their delimiting blank; "\\par " has it.
        out += first ? QLatin1String("\\deflang1033\\pard") + QLatin1String(kPlain)
                     : QStringLiteral("\\par ");
        bool delimited = !first;
        plainDone = first;
        first = false;
        for (auto it = b.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const RunFormat format = runFormat(fragment.charFormat(), colours);
            if (format != current) {
                appendSwitch(out, current, format, plainDone);
                current = format;
                delimited = false;
            }
            plainDone = false;
            if (!delimited) {
                out += QLatin1Char(' ');
                delimited = true;
            }
            const QStringList pieces = fragment.text().split(QChar(0x2028));
            for (int i = 0; i < pieces.size(); ++i) {
                if (i > 0)
                    out += QLatin1String("\r\n\\par ");
                appendEscaped(out, pieces.at(i));
            }
        }
        if (!delimited)
            out += QLatin1Char(' ');
        out += QLatin1String("\r\n");
    }
    out += QLatin1String("\\par }\r\n");
    return out;
}

namespace {

struct ReadState {
    int colour = 0;
    bool bold = false;
    int unicodeSkip = 1;
    bool skip = false;        // inside a destination that holds no text
    bool colourTable = false; // inside \colortbl
};

struct Run {
    QString text;
    int colour;
    bool bold;
};

const QSet<QString>& skippedDestinations() {
    static const QSet<QString> words{"fonttbl",
                                     "stylesheet",
                                     "info",
                                     "pict",
                                     "object",
                                     "header",
                                     "headerl",
                                     "headerr",
                                     "headerf",
                                     "footer",
                                     "footerl",
                                     "footerr",
                                     "footerf",
                                     "footnote",
                                     "annotation",
                                     "xe",
                                     "tc",
                                     "listtable",
                                     "listoverridetable",
                                     "rsidtbl",
                                     "generator",
                                     "themedata",
                                     "colorschememapping",
                                     "datastore",
                                     "latentstyles",
                                     "fldinst",
                                     "filetbl",
                                     "revtbl",
                                     "bkmkstart",
                                     "bkmkend",
                                     "field"};
    return words;
}

class Reader {
public:
    explicit Reader(const QString& rtf) : mRtf(rtf) {}

    void run() {
        const int n = mRtf.size();
        int i = 0;
        while (i < n) {
            const QChar c = mRtf.at(i);
            if (c == QLatin1Char('{')) {
                mStack.append(mState);
                ++i;
                if (i + 1 < n && mRtf.at(i) == QLatin1Char('\\') &&
                    mRtf.at(i + 1) == QLatin1Char('*')) {
                    mState.skip = true;
                    i += 2;
                }
            } else if (c == QLatin1Char('}')) {
                if (mState.colourTable && mHaveColour)
                    endColour();
                if (!mStack.isEmpty()) {
                    mState = mStack.takeLast();
                }
                mPendingSkip = 0;
                ++i;
            } else if (c == QLatin1Char('\\')) {
                i = control(i + 1);
            } else if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
                ++i;
            } else {
                literal(c);
                ++i;
            }
        }
    }

    QVector<QColor> colours;
    QVector<bool> autoColour;
    QVector<Run> runs;

private:
    int control(int i) {
        const int n = mRtf.size();
        if (i >= n)
            return i;
        const QChar c = mRtf.at(i);
        if (!c.isLetter() || c.unicode() > 0x7F) {
            // A control symbol.
            if (c == QLatin1Char('\'')) {
                bool ok = false;
                const int code = mRtf.mid(i + 1, 2).toInt(&ok, 16);
                if (ok)
                    literal(FromCp1252(QByteArray(1, static_cast<char>(code))).at(0), true);
                return i + 3;
            }
            mPendingSkip = 0;
            if (c == QLatin1Char('\\') || c == QLatin1Char('{') || c == QLatin1Char('}'))
                literal(c);
            else if (c == QLatin1Char('~'))
                literal(QChar(0x00A0));
            else if (c == QLatin1Char('_'))
                literal(QLatin1Char('-'));
            else if (c == QLatin1Char('*'))
                mState.skip = true;
            else if (c == QLatin1Char('\r') || c == QLatin1Char('\n'))
                literal(QLatin1Char('\n'));
            return i + 1;
        }
        int j = i;
        while (j < n && mRtf.at(j).isLetter() && mRtf.at(j).unicode() <= 0x7F)
            ++j;
        const QString word = mRtf.mid(i, j - i);
        bool hasParam = false;
        int param = 0;
        int k = j;
        if (k < n && (mRtf.at(k) == QLatin1Char('-') || mRtf.at(k).isDigit())) {
            int m = k + 1;
            while (m < n && mRtf.at(m).isDigit())
                ++m;
            param = mRtf.mid(k, m - k).toInt(&hasParam);
            k = m;
        }
        if (k < n && mRtf.at(k) == QLatin1Char(' '))
            ++k;
        apply(word, hasParam, param);
        return k;
    }

    void apply(const QString& word, bool hasParam, int param) {
        if (word == QLatin1String("u")) {
            literal(QChar(static_cast<char16_t>(param < 0 ? param + 65536 : param)));
            mPendingSkip = mState.unicodeSkip;
            return;
        }
        mPendingSkip = 0;
        if (mState.colourTable) {
            if (word == QLatin1String("red"))
                mRed = param, mHaveColour = true;
            else if (word == QLatin1String("green"))
                mGreen = param, mHaveColour = true;
            else if (word == QLatin1String("blue"))
                mBlue = param, mHaveColour = true;
            return;
        }
        if (skippedDestinations().contains(word)) {
            mState.skip = true;
            return;
        }
        if (word == QLatin1String("colortbl")) {
            mState.colourTable = true;
            mState.skip = true;
            colours.clear();
            autoColour.clear();
        } else if (word == QLatin1String("par") || word == QLatin1String("line") ||
                   word == QLatin1String("sect") || word == QLatin1String("page")) {
            literal(QLatin1Char('\n'));
        } else if (word == QLatin1String("tab")) {
            literal(QLatin1Char('\t'));
        } else if (word == QLatin1String("plain")) {
            mState.colour = 0;
            mState.bold = false;
        } else if (word == QLatin1String("b")) {
            mState.bold = !hasParam || param != 0;
        } else if (word == QLatin1String("cf")) {
            mState.colour = hasParam ? param : 0;
        } else if (word == QLatin1String("uc")) {
            mState.unicodeSkip = hasParam && param >= 0 ? param : 1;
        } else if (word == QLatin1String("emdash")) {
            literal(QChar(0x2014));
        } else if (word == QLatin1String("endash")) {
            literal(QChar(0x2013));
        } else if (word == QLatin1String("lquote")) {
            literal(QChar(0x2018));
        } else if (word == QLatin1String("rquote")) {
            literal(QChar(0x2019));
        } else if (word == QLatin1String("ldblquote")) {
            literal(QChar(0x201C));
        } else if (word == QLatin1String("rdblquote")) {
            literal(QChar(0x201D));
        } else if (word == QLatin1String("bullet")) {
            literal(QChar(0x2022));
        } else if (word == QLatin1String("emspace") || word == QLatin1String("enspace")) {
            literal(QLatin1Char(' '));
        }
    }

    // A character of text, or the end of a colour-table entry.
    void literal(QChar c, bool fromEscape = false) {
        if (mState.colourTable) {
            if (c == QLatin1Char(';'))
                endColour();
            return;
        }
        if (mPendingSkip > 0 && (fromEscape || c != QLatin1Char('\n'))) {
            --mPendingSkip;
            return;
        }
        if (mState.skip)
            return;
        if (!runs.isEmpty() && runs.last().colour == mState.colour &&
            runs.last().bold == mState.bold)
            runs.last().text += c;
        else
            runs.append({QString(c), mState.colour, mState.bold});
    }

    void endColour() {
        colours.append(QColor(mRed, mGreen, mBlue));
        autoColour.append(!mHaveColour);
        mRed = mGreen = mBlue = 0;
        mHaveColour = false;
    }

    const QString& mRtf;
    ReadState mState;
    QVector<ReadState> mStack;
    int mPendingSkip = 0;
    int mRed = 0, mGreen = 0, mBlue = 0;
    bool mHaveColour = false;
};

} // namespace

void ReadBoxRtf(const QString& rtf, QTextDocument& document) {
    Reader reader(rtf);
    reader.run();
    // The closing paragraph mark ends the last line; it is no line of its own.
    if (!reader.runs.isEmpty() && reader.runs.last().text.endsWith(QLatin1Char('\n'))) {
        reader.runs.last().text.chop(1);
        if (reader.runs.last().text.isEmpty())
            reader.runs.removeLast();
    }
    document.clear();
    QTextCursor cursor(&document);
    for (const Run& run : reader.runs) {
        QTextCharFormat format;
        if (run.colour > 0 && run.colour < reader.colours.size() &&
            !reader.autoColour.at(run.colour))
            format.setForeground(reader.colours.at(run.colour));
        if (run.bold)
            format.setFontWeight(QFont::Bold);
        cursor.insertText(run.text, format);
    }
}

} // namespace qs
