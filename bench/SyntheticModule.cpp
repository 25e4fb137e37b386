#include "SyntheticModule.h"

#include <QStringList>

namespace qs::bench {

namespace {

class Writer {
public:
    explicit Writer(SyntheticModule& module) : mModule(module) {}

    // A line outside any member: header, comment above a member, blank between members.
    void outside(const QString& line) { add(line); }
    // The lines of one member.
    void member(const QStringList& lines) {
        ++mModule.members;
        mModule.memberLines += lines.size();
        for (const QString& line : lines)
            add(line);
    }

private:
    void add(const QString& line) {
        if (mModule.lines > 0)
            mModule.text += QLatin1String("\r\n");
        mModule.text += line;
        ++mModule.lines;
    }
    SyntheticModule& mModule;
};

void writeBlock(Writer& w, int n) {
    const QString k = QString::number(n);
    w.outside(QStringLiteral("' Block ") + k + QStringLiteral(": window calls and helpers"));
    w.member({QStringLiteral("Private Declare Function SendMessage") + k +
                  QStringLiteral(" Lib \"user32\" Alias \"SendMessageA\" _"),
              QStringLiteral("    (ByVal hWnd As Long, ByVal wMsg As Long, _"),
              QStringLiteral("    ByVal wParam As Long, lParam As Any) As Long")});
    w.member({QStringLiteral("Public Const WM_USER_") + k + QStringLiteral(" As Long = &H400 + ") +
              k + QStringLiteral(" ' private message")});
    w.member({QStringLiteral("Private Const CAPTION_") + k + QStringLiteral(" = \"Block \" & _"),
              QStringLiteral("    \"") + k + QStringLiteral("\"")});
    w.outside(QStringLiteral("Dim mlngCount") + k + QStringLiteral(" As Long"));
    w.outside(QString());
    w.member({QStringLiteral("Private Type RECT") + k, QStringLiteral("    Left As Long"),
              QStringLiteral("    Top As Long"), QStringLiteral("    Right As Long"),
              QStringLiteral("    Bottom As Long"), QStringLiteral("End Type")});
    w.outside(QString());
    w.member({QStringLiteral("Public Enum Mode") + k, QStringLiteral("    mdNone = 0"),
              QStringLiteral("    mdRead = 1"), QStringLiteral("    mdWrite = 2"),
              QStringLiteral("End Enum")});
    w.outside(QString());
    w.member({QStringLiteral("Public Property Get Count") + k + QStringLiteral("() As Long"),
              QStringLiteral("    Count") + k + QStringLiteral(" = mlngCount") + k,
              QStringLiteral("End Property")});
    w.outside(QString());
    w.member(
        {QStringLiteral("Public Property Let Count") + k + QStringLiteral("(ByVal lngNew As Long)"),
         QStringLiteral("    mlngCount") + k + QStringLiteral(" = lngNew"),
         QStringLiteral("End Property")});
    w.outside(QString());
    w.outside(QStringLiteral("' Sums the rows of a recordset."));
    w.member({QStringLiteral("Public Function Total") + k +
                  QStringLiteral("(ByVal rs As Object) As Double ' no checks"),
              QStringLiteral("    Dim dblSum As Double"),
              QStringLiteral("    Const FIELD_NAME = \"Amount\""), QString(),
              QStringLiteral("    Do While Not rs.EOF"),
              QStringLiteral("        dblSum = dblSum + rs.Fields(FIELD_NAME).Value"),
              QStringLiteral("        rs.MoveNext"), QStringLiteral("    Loop"),
              QStringLiteral("    Total") + k + QStringLiteral(" = dblSum"),
              QStringLiteral("End Function")});
    w.outside(QString());
    w.member({QStringLiteral("Private Sub Reset") + k + QStringLiteral("()"),
              QStringLiteral("    mlngCount") + k + QStringLiteral(" = 0"),
              QStringLiteral("    Call SendMessage") + k + QStringLiteral("(0, WM_USER_") + k +
                  QStringLiteral(", 0, ByVal 0&)"),
              QStringLiteral("End Sub")});
    w.outside(QString());
}

} // namespace

SyntheticModule SyntheticModule::build(qsizetype minChars) {
    SyntheticModule module;
    module.text.reserve(minChars + 4096);
    Writer w(module);
    w.outside(QStringLiteral("Attribute VB_Name = \"mSynthetic\""));
    w.outside(QStringLiteral("Option Explicit"));
    w.outside(QString());
    for (int n = 1; module.text.size() < minChars; ++n)
        writeBlock(w, n);
    return module;
}

} // namespace qs::bench
