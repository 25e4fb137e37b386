#include "QtHost.h"

#include "FormBase.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLockFile>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <cstdio>
#include <cstdlib>

namespace qs {

namespace {

const char* const kAppTitle = "Quillstone";

QString displayText(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text;
}

QString titleOrApp(const QString& title) {
    return title.isEmpty() ? QString::fromLatin1(kAppTitle) : title;
}

// Quits a local event loop when the watched form hides or goes away.
class HideWatcher : public QObject {
public:
    HideWatcher(QWidget* form, QEventLoop* loop) : mLoop(loop) { form->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Hide || event->type() == QEvent::Close)
            if (auto* w = qobject_cast<QWidget*>(watched); w && !w->isVisible())
                mLoop->quit();
        return false;
    }

private:
    QEventLoop* mLoop;
};

Qt::CursorShape cursorShape(int pointer) {
    switch (pointer) {
    case 2:
        return Qt::CrossCursor;
    case 3:
        return Qt::IBeamCursor;
    case 5:
        return Qt::SizeAllCursor;
    case 11:
        return Qt::WaitCursor;
    case 12:
        return Qt::ForbiddenCursor;
    case 13:
        return Qt::BusyCursor;
    default:
        return Qt::ArrowCursor;
    }
}

bool looksLikeUrl(const QString& target) {
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]+:"));
    return scheme.match(target).hasMatch() && !QFileInfo::exists(target);
}

} // namespace

QtHost::QtHost() = default;

QtHost::~QtHost() {
    if (mCursorPushed)
        QApplication::restoreOverrideCursor();
    if (mHelpWindow)
        delete mHelpWindow.data();
}

int QtHost::msgBox(const QString& prompt, int flags, const QString& title) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(titleOrApp(title));
    box.setText(displayText(prompt));
    switch (flags & 0x70) {
    case vbCritical:
        box.setIcon(QMessageBox::Critical);
        break;
    case vbQuestion:
        box.setIcon(QMessageBox::Question);
        break;
    case vbExclamation:
        box.setIcon(QMessageBox::Warning);
        break;
    case vbInformation:
        box.setIcon(QMessageBox::Information);
        break;
    default:
        box.setIcon(QMessageBox::NoIcon);
    }

    struct Choice {
        const char* label;
        QMessageBox::ButtonRole role;
        int result;
    };
    static const QList<QList<Choice>> sets = {
        {{"OK", QMessageBox::AcceptRole, vbOK}},
        {{"OK", QMessageBox::AcceptRole, vbOK}, {"Cancel", QMessageBox::RejectRole, vbCancel}},
        {{"&Abort", QMessageBox::RejectRole, vbAbort},
         {"&Retry", QMessageBox::AcceptRole, vbRetry},
         {"&Ignore", QMessageBox::AcceptRole, vbIgnore}},
        {{"&Yes", QMessageBox::YesRole, vbYes},
         {"&No", QMessageBox::NoRole, vbNo},
         {"Cancel", QMessageBox::RejectRole, vbCancel}},
        {{"&Yes", QMessageBox::YesRole, vbYes}, {"&No", QMessageBox::NoRole, vbNo}},
        {{"&Retry", QMessageBox::AcceptRole, vbRetry},
         {"Cancel", QMessageBox::RejectRole, vbCancel}},
    };
    const int set = (flags & 0x7) <= 5 ? (flags & 0x7) : 0;
    QList<QPair<QAbstractButton*, int>> buttons;
    for (const Choice& c : sets[set]) {
        QPushButton* b = box.addButton(QString::fromLatin1(c.label), c.role);
        buttons.append({b, c.result});
        if (c.result == vbCancel || (set == vbOKOnly && c.result == vbOK))
            box.setEscapeButton(b);
    }
    const int defaultIndex = (flags & vbDefaultButton3) ? 2 : (flags & vbDefaultButton2) ? 1 : 0;
    if (defaultIndex < buttons.size())
        box.setDefaultButton(qobject_cast<QPushButton*>(buttons[defaultIndex].first));

    box.exec();
    for (const auto& b : buttons)
        if (box.clickedButton() == b.first)
            return b.second;
    // Closed without a button: the escape answer, as the platform's box gives.
    return set == vbOKOnly ? vbOK : vbCancel;
}

QString QtHost::inputBox(const QString& prompt, const QString& title, const QString& defaultText) {
    bool ok = false;
    const QString text =
        QInputDialog::getText(QApplication::activeWindow(), titleOrApp(title), displayText(prompt),
                              QLineEdit::Normal, defaultText, &ok);
    return ok ? text : QString();
}

QStringList QtHost::nameFilters(const QString& filter) {
    static const QRegularExpression separators(QStringLiteral("[|:]"));
    const QStringList parts = filter.split(separators);
    QStringList result;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const QString description = parts[i].trimmed();
        QString patterns = parts[i + 1].trimmed();
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
        if (description.isEmpty() && patterns.isEmpty())
            continue;
        result.append(QStringLiteral("%1 (%2)").arg(description, patterns));
    }
    return result;
}

QString QtHost::fileDialog(const FileDialogRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), request.title);
    dialog.setOption(QFileDialog::HideNameFilterDetails, true);
    dialog.setAcceptMode(request.forSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(!request.forSave && request.mustExist ? QFileDialog::ExistingFile
                                                             : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.overwritePrompt);
    const QStringList filters = nameFilters(request.filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        const int index = qBound(1, request.filterIndex, int(filters.size())) - 1;
        dialog.selectNameFilter(filters[index]);
    }
    if (!request.initDir.isEmpty())
        dialog.setDirectory(request.initDir);
    if (!request.defaultExt.isEmpty())
        dialog.setDefaultSuffix(request.defaultExt);
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    const QStringList chosen = dialog.selectedFiles();
    if (chosen.isEmpty())
        return QString();
    QString path = QDir::toNativeSeparators(chosen.first());
    if (!request.defaultExt.isEmpty() && QFileInfo(path).suffix().isEmpty())
        path += QLatin1Char('.') + request.defaultExt;
    return path;
}

void QtHost::showModal(FormBase& form) {
    QPointer<FormBase> guard(&form);
    const Qt::WindowModality before = form.windowModality();
    if (!form.isVisible())
        form.setWindowModality(Qt::ApplicationModal);
    form.show();
    form.raise();
    form.activateWindow();
    if (guard && guard->isVisible()) {
        const Forms::YieldScope yielding;
        QEventLoop loop;
        HideWatcher watcher(&form, &loop);
        QObject::connect(&form, &QObject::destroyed, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::DialogExec);
    }
    if (guard && !guard->isVisible())
        guard->setWindowModality(before);
}

void QtHost::popupMenu(QMenu& menu) {
    const Forms::YieldScope yielding;
    menu.exec(QCursor::pos());
}

void QtHost::clipboardClear() {
    QGuiApplication::clipboard()->clear();
}

void QtHost::clipboardSetText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

QString QtHost::clipboardGetText() {
    return QGuiApplication::clipboard()->text();
}

int QtHost::shellExecute(const QString& verb, const QString& file, const QString& parameters,
                         const QString& folder, int show) {
    (void)show;
    constexpr int kDone = 42;
    if (file.isEmpty())
        return 2;
    const bool print = verb.compare(QLatin1String("print"), Qt::CaseInsensitive) == 0;
    if (!print && looksLikeUrl(file))
        return QDesktopServices::openUrl(QUrl(file)) ? kDone : 31;

    QString path = file;
    if (QFileInfo(path).isRelative() && !path.contains(QLatin1Char('/'))) {
        // A bare program name runs from the search path, as the desktop's shell finds it.
        const QString local = folder.isEmpty() ? QString() : QDir(folder).filePath(path);
        if (local.isEmpty() || !QFileInfo::exists(local)) {
            const QString found = QStandardPaths::findExecutable(path);
            if (!found.isEmpty())
                path = found;
            else if (!local.isEmpty())
                path = local;
        } else {
            path = local;
        }
    } else if (QFileInfo(path).isRelative() && !folder.isEmpty()) {
        path = QDir(folder).filePath(path);
    }
    const QFileInfo info(path);
    if (!info.absoluteDir().exists() || (!folder.isEmpty() && !QFileInfo(folder).isDir()))
        return 3;
    if (!info.exists())
        return 2;

    if (print)
        return QProcess::startDetached(QStringLiteral("lp"), {info.absoluteFilePath()}) ? kDone
                                                                                        : 31;
    if (info.isFile() && info.isExecutable()) {
        const QString workDir = folder.isEmpty() ? info.absolutePath() : folder;
        return QProcess::startDetached(info.absoluteFilePath(), QProcess::splitCommand(parameters),
                                       workDir)
                   ? kDone
                   : 11;
    }
    return QDesktopServices::openUrl(QUrl::fromLocalFile(info.absoluteFilePath())) ? kDone : 31;
}

QString QtHost::helpPage(const QString& helpFile, int command, long context) {
    if (helpFile.isEmpty())
        return QString();
    const QDir folder = QFileInfo(helpFile).absoluteDir();
    QStringList candidates;
    switch (command) {
    case 1: // a context in the main window
    case 8: // a context in a pop-up
        candidates << QStringLiteral("%1.html").arg(context);
        break;
    case 261: // keyword search
        candidates << QStringLiteral("search.html") << QStringLiteral("index.html");
        break;
    default: // contents and the finder
        candidates << QStringLiteral("index.html");
    }
    for (const QString& c : candidates)
        if (QFileInfo(folder.filePath(c)).isFile())
            return folder.filePath(c);
    return QString();
}

bool QtHost::showHelp(const QString& helpFile, int command, long context) {
    if (command == 4) { // quit
        if (mHelpWindow)
            mHelpWindow->close();
        return true;
    }
    const QString page = helpPage(helpFile, command, context);
    if (page.isEmpty())
        return false;
    if (!mHelpWindow) {
        mHelpWindow = new QTextBrowser();
        mHelpWindow->setAttribute(Qt::WA_DeleteOnClose, false);
        mHelpWindow->setObjectName(QStringLiteral("HelpWindow"));
        mHelpWindow->setOpenExternalLinks(true);
        mHelpWindow->resize(640, 480);
    }
    mHelpWindow->setWindowTitle(QString::fromLatin1(kAppTitle) + QStringLiteral(" Help"));
    mHelpWindow->setSearchPaths({QFileInfo(page).absolutePath()});
    mHelpWindow->setSource(QUrl::fromLocalFile(page));
    mHelpWindow->show();
    mHelpWindow->raise();
    return true;
}

PrinterChoice QtHost::printerDialog(int copies) {
    QPrinter printer;
    printer.setCopyCount(qMax(1, copies));
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    PrinterChoice choice;
    if (dialog.exec() != QDialog::Accepted)
        return choice;
    choice.accepted = true;
    choice.printerName = printer.printerName();
    choice.copies = printer.copyCount();
    return choice;
}

bool QtHost::printText(const PrinterChoice& printer, const QString& documentName,
                       const QString& text) {
    QPrinter device;
    if (!printer.printerName.isEmpty())
        device.setPrinterName(printer.printerName);
    device.setCopyCount(qMax(1, printer.copies));
    device.setDocName(documentName);
    if (!device.isValid())
        return false;
    QTextDocument document;
    document.setPlainText(displayText(text));
    document.print(&device);
    return true;
}

void QtHost::setMousePointer(int pointer) {
    mPointer = pointer;
    if (pointer == vbDefault) {
        if (mCursorPushed)
            QApplication::restoreOverrideCursor();
        mCursorPushed = false;
        return;
    }
    if (mCursorPushed) {
        QApplication::changeOverrideCursor(QCursor(cursorShape(pointer)));
    } else {
        QApplication::setOverrideCursor(QCursor(cursorShape(pointer)));
        mCursorPushed = true;
    }
}

int QtHost::mousePointer() const {
    return mPointer;
}

bool QtHost::previousInstance() {
    if (mPreviousInstance >= 0)
        return mPreviousInstance == 1;
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    QDir().mkpath(folder);
    mInstanceLock = std::make_unique<QLockFile>(
        QDir(folder).filePath(QCoreApplication::applicationName().isEmpty()
                                  ? QStringLiteral("Quillstone.lock")
                                  : QCoreApplication::applicationName() + QStringLiteral(".lock")));
    // No stale time: a lock counts as stale only when its process is gone.
    mInstanceLock->setStaleLockTime(0);
    const bool mine = mInstanceLock->tryLock(0);
    const bool other = !mine && mInstanceLock->error() == QLockFile::LockFailedError;
    if (!mine)
        mInstanceLock.reset();
    mPreviousInstance = other ? 1 : 0;
    return other;
}

void QtHost::doEvents() {
    const Forms::YieldScope yielding;
    QCoreApplication::processEvents();
}

void QtHost::endProcess() {
    if (mInstanceLock)
        mInstanceLock->unlock();
    if (mCursorPushed)
        QApplication::restoreOverrideCursor();
    mCursorPushed = false;
    std::fflush(stdout);
    std::fflush(stderr);
    // Static destructors would run after Qt's own globals are gone (an open service object's
    // database connection among them); every save is already committed, so nothing is lost.
    std::_Exit(0);
}

} // namespace qs
