#include "SyntheticApiFile.h"

#include <QFile>
#include <QRandomGenerator>
#include <QStringList>

namespace qs::bench {

namespace {

const char* const kPrefixes[] = {"WM_", "SW_", "HKEY_", "ERROR_", "FILE_", "GENERIC_",
                                 "LB_", "CB_", "EM_",   "TVM_",   "LVM_",  "SM_",
                                 "VK_", "MB_", "WS_",   "CS_",    "DT_",   "PS_"};
const char* const kWords[] = {"Get",    "Set",     "Create", "Delete",  "Open",   "Close",
                              "Window", "Text",    "Item",   "Message", "Handle", "Buffer",
                              "Device", "Context", "Module", "Process", "Thread", "Key",
                              "Value",  "Index",   "Color",  "Font",    "Rect",   "Point"};
const char* const kLibs[] = {"user32", "kernel32", "gdi32", "advapi32", "shell32", "comctl32"};

template <class T, int N> const char* pick(QRandomGenerator& random, T (&list)[N]) {
    return list[random.bounded(N)];
}

// Two or three words and a serial, so that names spread over the alphabet and never repeat.
QString camelName(QRandomGenerator& random, int serial) {
    QString name =
        QString::fromLatin1(pick(random, kWords)) + QString::fromLatin1(pick(random, kWords));
    if (random.bounded(2))
        name += QString::fromLatin1(pick(random, kWords));
    return name + QString::number(serial, 36).toUpper();
}

} // namespace

SyntheticApiFile SyntheticApiFile::write(const QString& path, int constants, int declares,
                                         int types) {
    QRandomGenerator random(20240501);
    QStringList lines{QStringLiteral("' Synthetic API declarations for the benchmark."),
                      QStringLiteral("' Constants, Declare statements and types."), QString()};
    int serial = 0;
    lines << QStringLiteral("' ---- Constants");
    for (int i = 0; i < constants; ++i) {
        if (i % 40 == 0)
            lines << QString() << QStringLiteral("' group %1").arg(i / 40);
        lines << QStringLiteral("Public Const %1%2 = &H%3")
                     .arg(QString::fromLatin1(pick(random, kPrefixes)))
                     .arg(camelName(random, ++serial).toUpper())
                     .arg(random.bounded(0x7FFFFFFF), 0, 16);
    }
    lines << QString() << QStringLiteral("' ---- Declares");
    for (int i = 0; i < declares; ++i) {
        const QString name = camelName(random, ++serial);
        const QString lib = QString::fromLatin1(pick(random, kLibs));
        const bool function = random.bounded(4) != 0;
        const QString head = QStringLiteral("Public Declare %1 %2 Lib \"%3\"")
                                 .arg(function ? QStringLiteral("Function") : QStringLiteral("Sub"))
                                 .arg(name, lib);
        const QString alias =
            random.bounded(2) ? QStringLiteral(" Alias \"%1A\"").arg(name) : QString();
        const QString args =
            QStringLiteral("(ByVal hWnd As Long, ByVal wParam As Long, lParam As Any)");
        const QString tail = function ? QStringLiteral(" As Long") : QString();
        if (i % 5 == 0)
            lines << head + alias + QStringLiteral(" _") << QStringLiteral("    ") + args + tail;
        else
            lines << head + alias + QLatin1Char(' ') + args + tail;
    }
    lines << QString() << QStringLiteral("' ---- Types");
    for (int i = 0; i < types; ++i) {
        lines << QStringLiteral("Public Type %1").arg(camelName(random, ++serial).toUpper());
        const int members = 2 + random.bounded(6);
        for (int m = 0; m < members; ++m)
            lines << QStringLiteral("    %1%2 As Long")
                         .arg(QString::fromLatin1(pick(random, kWords)).toLower())
                         .arg(m);
        lines << QStringLiteral("End Type") << QString();
    }
    const QByteArray bytes = lines.join(QStringLiteral("\r\n")).toLatin1() + "\r\n";
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        return {};
    return {constants, declares, types, bytes.size()};
}

} // namespace qs::bench
