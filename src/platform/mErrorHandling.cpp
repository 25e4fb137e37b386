#include "mErrorHandling.h"

#include "Host.h"
#include "QsError.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <exception>
#include <memory>
#include <new>
#include <stdexcept>

namespace qs {

QString gstrLogFile;
int gintLogFileNo = 0;
long glngLogMode = 0;

namespace {

const QString kAppTitle = QStringLiteral("Quillstone");
const QString kCrLf = QStringLiteral("\r\n");

// The one file the log opens; its number is gintLogFileNo while open.
std::unique_ptr<QFile>& logFile() {
    static std::unique_ptr<QFile> file;
    return file;
}

QString kindWord(long kind) {
    switch (kind) {
    case vbLogError:
        return QStringLiteral("Error Message");
    case vbLogWarning:
        return QStringLiteral("Warning Message");
    case vbLogInformation:
        return QStringLiteral("Information Message");
    default:
        return QString();
    }
}

// Print #: writes the text as one record, closed by a line end.
void writeRecord(int fileNumber, const QString& text) {
    QFile* file = logFile().get();
    if (fileNumber == 0 || !file || !file->isOpen())
        throw QsError(52, kAppTitle, QStringLiteral("Bad file number"));
    const QByteArray bytes = (text + kCrLf).toLocal8Bit();
    if (file->write(bytes) != bytes.size())
        throw QsError(57, kAppTitle, QStringLiteral("Device I/O error"));
}

// Re-raises the error in flight with `literal` added to its source.
[[noreturn]] void raiseAgain(const QString& literal) {
    try {
        throw;
    } catch (QsError& e) {
        e.appendSource(literal);
        throw;
    } catch (const ProcessEnded&) {
        throw;
    } catch (const std::exception& e) {
        throw QsError(51, kAppTitle + literal, QString::fromLocal8Bit(e.what()));
    } catch (...) {
        throw QsError(51, kAppTitle + literal, QStringLiteral("Internal error"));
    }
}

} // namespace

QString LogEntryText(long lngNumber, const QString& strSource, const QString& strDescription,
                     long lngKind, const QDateTime& when) {
    QString text;
    if (glngLogMode == 2)
        text += kAppTitle + QStringLiteral(" Error Log File") + kCrLf +
                QString(80, QLatin1Char('=')) + kCrLf + kCrLf;
    const QString hex =
        QString::number(static_cast<quint32>(static_cast<qint32>(lngNumber)), 16).toUpper();
    // One fixed general date form (month first, 24-hour clock), so logs read alike everywhere.
    text += QStringLiteral("DateTime: ") + when.toString(QStringLiteral("MM/dd/yyyy HH:mm:ss")) +
            QStringLiteral("  (") + kindWord(lngKind) + QStringLiteral(")") + kCrLf;
    text += QStringLiteral("Err:") + QString::number(lngNumber) + QStringLiteral("(") + hex +
            QStringLiteral(")") + kCrLf;
    text += QStringLiteral("Src:") + strSource + kCrLf;
    text += QStringLiteral("Des:") + strDescription + kCrLf;
    text += QString(80, QLatin1Char('-'));
    return text;
}

void DisplayErrInfo(const QString& strSource, long lngNumber, const QString& strDescription) {
    try {
        const QString title = kAppTitle + QStringLiteral(" - ") + strSource;
        const QString text = QStringLiteral("An Error occurred in Module:  ") + strSource + kCrLf +
                             kCrLf + QStringLiteral("Error Number: ") + QString::number(lngNumber) +
                             kCrLf + QStringLiteral("Error Description: ") + strDescription;
        // The box comes first, so a failing log cannot hide the report.
        host().msgBox(text, vbCritical | vbOKOnly, title);
        ErrWriteToLog(lngNumber, strSource, strDescription, vbLogError);
    } catch (...) {
        raiseAgain(QStringLiteral("mErrorHandling:DisplayErrInfo;"));
    }
}

void ErrWriteToLog(long lngNumber, const QString& strSource, const QString& strDescription,
                   long lngKind) {
    try {
        const QString text = LogEntryText(lngNumber, strSource, strDescription, lngKind,
                                          QDateTime::currentDateTime());
        if (gstrLogFile.isEmpty())
            return;
        try {
            OpenLogFile();
            writeRecord(gintLogFileNo, text);
        } catch (...) {
            CloseLogFile();
            throw;
        }
        CloseLogFile();
        glngLogMode = 1;
    } catch (...) {
        raiseAgain(QStringLiteral("mErrorHandling:ErrWriteToLog;"));
    }
}

void OpenLogFile() {
    // FreeFile: the log is the only file this module opens.
    gintLogFileNo = 1;
    if (gstrLogFile.isEmpty())
        return;
    QIODevice::OpenMode mode;
    if (glngLogMode == 1)
        mode = QIODevice::WriteOnly | QIODevice::Append;
    else if (glngLogMode == 2)
        mode = QIODevice::WriteOnly | QIODevice::Truncate;
    else
        return; // left unopened: the write meets a bad file number
    auto file = std::make_unique<QFile>(gstrLogFile);
    if (!file->open(mode)) {
        if (!QFileInfo(gstrLogFile).absoluteDir().exists())
            throw QsError(76, kAppTitle, QStringLiteral("Path not found"));
        throw QsError(75, kAppTitle, QStringLiteral("Path/File access error"));
    }
    logFile() = std::move(file);
}

void CloseLogFile() {
    if (logFile()) {
        logFile()->close();
        logFile().reset();
    }
    gintLogFileNo = 0;
}

void HandleFailure(const char* literal, FailureTail tail) {
    const std::exception_ptr error = std::current_exception();
    if (!error)
        return;
    long number = 0;
    QString source;
    QString description;
    try {
        std::rethrow_exception(error);
    } catch (const ProcessEnded&) {
        throw;
    } catch (const QsError& e) {
        number = e.number();
        source = e.source();
        description = e.description();
    } catch (const std::bad_alloc&) {
        number = 7;
        source = kAppTitle;
        description = QStringLiteral("Out of memory");
    } catch (const std::out_of_range& e) {
        number = 9;
        source = kAppTitle;
        description = QString::fromLocal8Bit(e.what());
    } catch (const std::exception& e) {
        number = 5;
        source = kAppTitle;
        description = QString::fromLocal8Bit(e.what());
    } catch (...) {
        number = 51;
        source = kAppTitle;
        description = QStringLiteral("Internal error");
    }
    DisplayErrInfo(source + QString::fromLatin1(literal), number, description);
    if (tail != FailureTail::KeepPointer)
        host().setMousePointer(vbDefault);
}

} // namespace qs
