// The API viewer's figures: loading a large API file into the window, and the search as you type
// over its longest list, each key timed from its press to the list repainted.

#include "BenchHost.h"
#include "Figures.h"
#include "SyntheticApiFile.h"

#include "ComboBox.h"
#include "FormBase.h"
#include "ListBox.h"
#include "TextBox.h"
#include "frmApiViewer.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <ctime>

namespace qs::bench {

namespace {

QString number(double value) {
    return QString::number(value, 'f', 3);
}

// The processor time of the process in milliseconds: on a busy machine the wall time also holds
// the waits for a processor, this one does not.
double cpuMs() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return now.tv_sec * 1e3 + now.tv_nsec / 1e6;
}

// Wall and processor time of one call.
struct Timed {
    double wall = 0;
    double cpu = 0;
};
template <class F> Timed timed(F&& f) {
    const double cpuStart = cpuMs();
    QElapsedTimer timer;
    timer.start();
    f();
    return {timer.nsecsElapsed() / 1e6, cpuMs() - cpuStart};
}

// The viewer with the file as the one last opened, so that it loads without a dialog.
frmApiViewer& openViewer(const QString& file) {
    const QString key = QString::fromLatin1(REG_KEY_APISETTING);
    SaveRegSetting(key, QString::fromLatin1(REG_VAL_API_PATH), QFileInfo(file).absolutePath());
    SaveRegSetting(key, QString::fromLatin1(REG_VAL_API_PATHFILENAME), QFileInfo(file).fileName());
    frmApiViewer& viewer = Forms::get<frmApiViewer>();
    viewer.show();
    QApplication::processEvents();
    return viewer;
}

void closeViewer() {
    Forms::destroyAll();
    QApplication::processEvents();
}

// One key typed into the box: press and release, then the repaint they cause.
Timed typeKey(TextBox* box, int key, const QString& text) {
    return timed([&] {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(box, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
        QApplication::sendEvent(box, &release);
        QApplication::processEvents();
    });
}

// The plain way: the first entry that starts with the text, case ignored.
int plainFirstMatch(const QStringList& names, const QString& text) {
    for (int i = 0; i < names.size(); ++i)
        if (names.at(i).startsWith(text, Qt::CaseInsensitive))
            return i;
    return -1;
}

double median(QVector<double> values) {
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values.at(values.size() / 2);
}

} // namespace

void FigureApiLoad(const BenchContext& context, const QString& folder, int entries) {
    const QString file = QDir(folder).filePath(QStringLiteral("api-load-%1.txt").arg(entries));
    const int constants = entries * 70 / 100;
    const int declares = entries / 4;
    const SyntheticApiFile made =
        SyntheticApiFile::write(file, constants, declares, entries - constants - declares);
    BenchHost host;
    setHost(&host);
    frmApiViewer& viewer = openViewer(file);
    int listed = 0;
    QVector<double> wall;
    QVector<double> cpu;
    for (int run = 0; run < context.runs; ++run) {
        const Timed t = timed([&] {
            host.nextFile = file;
            viewer.mnuLoad->trigger();
            QApplication::processEvents();
            listed = viewer.lstAvailItems->ListCount();
        });
        wall << t.wall;
        cpu << t.cpu;
    }
    qint64 lines = 0;
    const double baseline = MedianMs(context.runs, [&] {
        QFile in(file);
        in.open(QIODevice::ReadOnly);
        lines = QString::fromLatin1(in.readAll()).split(QStringLiteral("\r\n")).size();
    });
    const bool agree = listed == made.declares && host.messages.isEmpty();
    closeViewer();
    setHost(nullptr);
    QFile::remove(file);
    PrintFigure(
        context, QStringLiteral("api_load_50k"), median(wall), baseline, listed, agree,
        {{QStringLiteral("cpu_ms"), number(median(cpu))},
         {QStringLiteral("max_ms"), number(*std::max_element(wall.begin(), wall.end()))},
         {QStringLiteral("entries"), QString::number(made.entries())},
         {QStringLiteral("bytes"), QString::number(made.bytes)},
         {QStringLiteral("lines"), QString::number(lines)},
         {QStringLiteral("baseline"), QStringLiteral("\"file read and split into lines\"")}});
}

void FigureApiTypeAhead(const BenchContext& context, const QString& folder, int entries) {
    // Every entry a constant: one list of them all, the longest the search can walk.
    const QString file = QDir(folder).filePath(QStringLiteral("api-typeahead-%1.txt").arg(entries));
    const SyntheticApiFile made = SyntheticApiFile::write(file, entries, 0, 0);
    BenchHost host;
    setHost(&host);
    frmApiViewer& viewer = openViewer(file);
    viewer.cboTypes->setText(QStringLiteral("Constants"));
    QApplication::processEvents();
    QStringList names;
    for (int i = 0; i < viewer.lstAvailItems->ListCount(); ++i)
        names << viewer.lstAvailItems->List(i);

    // The last name is found only at the end of the walk; "~" matches nothing and walks it all.
    const QString target = names.isEmpty() ? QString() : names.last() + QStringLiteral("~");
    QVector<double> keys;
    QVector<double> keysCpu;
    QVector<double> plain;
    bool agree = names.size() == made.constants;
    for (int run = 0; run < context.runs; ++run) {
        viewer.txtSearch->setText(QString());
        for (int i = 0; i < target.size(); ++i) {
            const QChar c = target.at(i);
            const Timed key = typeKey(viewer.txtSearch, c.toUpper().unicode(), QString(c));
            keys << key.wall;
            keysCpu << key.cpu;
            const QString typed = target.left(i + 1);
            QElapsedTimer timer;
            timer.start();
            const int expected = plainFirstMatch(names, typed);
            plain << timer.nsecsElapsed() / 1e6;
            // No match leaves the selection where the last match put it.
            if (expected >= 0)
                agree = agree && viewer.lstAvailItems->ListIndex() == expected;
        }
        agree = agree && viewer.lstAvailItems->Text() == names.last();
    }
    const double worst = keys.isEmpty() ? 0 : *std::max_element(keys.begin(), keys.end());
    closeViewer();
    setHost(nullptr);
    QFile::remove(file);
    PrintFigure(
        context, QStringLiteral("api_typeahead_50k"), median(keys), median(plain), names.size(),
        agree,
        {{QStringLiteral("max_ms"), number(worst)},
         {QStringLiteral("cpu_ms"), number(median(keysCpu))},
         {QStringLiteral("cpu_max_ms"), number(*std::max_element(keysCpu.begin(), keysCpu.end()))},
         {QStringLiteral("keys"), QString::number(keys.size())},
         {QStringLiteral("baseline"),
          QStringLiteral("\"first prefix match in a plain list of the names\"")}});
}

} // namespace qs::bench
