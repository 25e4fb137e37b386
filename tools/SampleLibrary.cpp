#include "SampleLibrary.h"

#include "QsError.h"
#include "SampleComponent.h"
#include "cAuthor.h"
#include "cLibraryService.h"
#include "cSourceCode.h"
#include "cSourceFile.h"
#include "cUser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <vector>

// The sample's texts are resources of this library, which the linker keeps only when asked.
static void initSampleResources() {
    Q_INIT_RESOURCE(sample);
}

namespace qs::sample {

namespace {

const QString kSource = QStringLiteral("make_sample_library");

struct Revision {
    const char* version;
    const char* comment;
    int author; // 0 the administrator, 1 the second author
};

// One text item: where it goes, what it holds, and its history, oldest first.
struct CodeItem {
    const char* category;
    int typeId;
    int tested;
    const char* folders; // "A/B": folder B inside folder A; empty at the top level
    const char* description;
    const char* file; // under :/sample/code/
    const char* notes;
    const char* example;
    std::vector<Revision> history;
};

const char* const kCategories[] = {"Windows API", "Database Access", "Strings and Text"};

const std::vector<CodeItem>& codeItems() {
    static const std::vector<CodeItem> items = {
        {"Visual Basic",
         203,
         1,
         "",
         "cStopwatch - high resolution timer",
         "cStopwatch.cls",
         "Times code to the microsecond with the performance counter.",
         "Dim sw As New cStopwatch\nsw.StartTimer\nDoTheWork\nDebug.Print sw.ElapsedMs; \" ms\"",
         {{"1.0.0", "First version.", 0},
          {"1.0.1", "Falls back on GetTickCount where there is no performance counter.", 1},
          {"1.1.0", "PauseTimer keeps the time so far.", 0},
          {"2.0.0", "The State property replaces IsRunning.", 0}}},
        {"Visual Basic",
         203,
         1,
         "Collections/Typed",
         "cStack - last in, first out",
         "cStack.cls",
         "A stack of Variants; objects come back with Set.",
         "Dim stk As New cStack\nstk.Push \"first\"\nstk.Push \"second\"\nDebug.Print stk.Pop",
         {{"1.0.0", "First version.", 1},
          {"1.0.1", "Pop and Peek return objects with Set.", 1},
          {"1.1.0", "Limit property and the stkErrFull error.", 0}}},
        {"Visual Basic",
         204,
         1,
         "",
         "mIniFile - INI file access",
         "mIniFile.bas",
         "Wraps GetPrivateProfileString and WritePrivateProfileString.",
         "strServer = ReadIniString(App.Path & \"\\app.ini\", \"Database\", \"Server\")",
         {{"1.0.0", "First version.", 0},
          {"1.1.0", "ReadIniLong and DeleteIniSection.", 0},
          {"1.1.1", "A buffer of 2048 characters for long values.", 1}}},
        {"Visual Basic",
         204,
         1,
         "Utilities",
         "mStringUtils - string helpers",
         "mStringUtils.bas",
         "Padding, counting, proper case and path splitting.",
         "Debug.Print PadText(\"42\", 6, padLeft, \"0\")",
         {{"1.0.0", "First version.", 0},
          {"1.0.1", "ProperCase starts a word after a hyphen.", 1},
          {"1.1.0", "SplitPath and the tPathParts type.", 0}}},
        {"Visual Basic",
         201,
         1,
         "",
         "Center a form on the screen",
         "CenterForm.txt",
         "Call it from Form_Load, before the form shows.",
         "CenterForm Me",
         {{"1.0.0", "First version.", 0}, {"1.0.1", "Integer division for the position.", 0}}},
        {"Visual Basic",
         201,
         1,
         "Files",
         "Check that a file exists",
         "FileExists.txt",
         "Uses GetAttr, so it works for hidden and system files too.",
         "If Not FileExists(strPath) Then Exit Sub",
         {{"1.0.0", "First version, with Dir$.", 1},
          {"1.1.0", "GetAttr instead of Dir$; folders no longer count.", 0}}},
        {"Visual Basic",
         201,
         1,
         "Files",
         "Read a whole text file",
         "ReadTextFile.txt",
         "Reads the file in one Get, which is much faster than Line Input.",
         "txtLog.Text = ReadTextFile(App.Path & \"\\today.log\")",
         {{"1.0.0", "First version.", 0},
          {"1.0.1", "Binary access, so a Ctrl+Z in the file does not end the read.", 1}}},
        {"Visual Basic",
         201,
         2,
         "",
         "Play a wave file",
         "PlayWave.txt",
         "Not tried on machines without a sound card.",
         "PlayWave \"C:\\Windows\\Media\\chimes.wav\"",
         {{"1.0.0", "First version.", 1},
          {"1.0.1", "SND_NODEFAULT: no beep for a missing file.", 1}}},
        {"Visual Basic",
         202,
         1,
         "",
         "Pass vbNullString for an empty API string",
         "TipNullString.txt",
         "",
         "",
         {{"1.0.0", "First version.", 0}, {"1.0.1", "FindWindow example.", 0}}},
        {"Windows API",
         204,
         1,
         "Windows",
         "mWindowPos - always on top",
         "mWindowPos.bas",
         "SetWindowPos without moving or sizing the form.",
         "SetAlwaysOnTop frmTools, True",
         {{"1.0.0", "First version.", 0},
          {"1.1.0", "CenterOverOwner.", 1},
          {"1.1.1", "No activation when the form goes on top.", 0}}},
        {"Windows API",
         201,
         1,
         "Registry/Reading",
         "Read a registry string",
         "RegistryString.txt",
         "Reads REG_SZ values under HKEY_CURRENT_USER only.",
         "strLast = ReadRegString(\"Software\\Tarnwick\\Sample\", \"LastFile\")",
         {{"1.0.0", "First version.", 1},
          {"1.0.1", "Closes the key on every way out.", 1},
          {"1.0.2", "Cuts the value at its first null character.", 0}}},
        {"Windows API",
         202,
         2,
         "",
         "Declare strings ByVal for API calls",
         "TipByValStrings.txt",
         "",
         "",
         {{"1.0.0", "First version.", 1}, {"1.0.1", "GetWindowsDirectory example.", 1}}},
        {"Database Access",
         203,
         2,
         "ADO",
         "cConnection - ADO connection on demand",
         "cConnection.cls",
         "Opens the connection on first use and closes it with the object.",
         "Dim db As New cConnection\ndb.Database = App.Path & \"\\orders.mdb\"\n"
         "Set rs = db.ReadOnlyRecordset(\"SELECT * FROM Orders\")",
         {{"1.0.0", "First version.", 0},
          {"1.1.0", "Execute returns the number of rows affected.", 0},
          {"1.2.0", "Disconnected recordsets; the Opened event.", 1}}},
        {"Database Access",
         201,
         1,
         "ADO",
         "Open a recordset read-only",
         "OpenRecordset.txt",
         "Forward-only and read-only: the fastest way through a result.",
         "Set rs = OpenForReading(cn, \"SELECT Name FROM Customers\")",
         {{"1.0.0", "First version.", 0}, {"1.0.1", "adCmdText spares ADO a guess.", 0}}},
        {"Strings and Text",
         201,
         1,
         "",
         "Replace every occurrence (VB5)",
         "ReplaceAll.txt",
         "For VB5 projects; VB6 has Replace.",
         "strSql = ReplaceAll(strSql, \"'\", \"''\")",
         {{"1.0.0", "First version.", 1},
          {"1.0.1", "An empty search text returns the text unchanged.", 1},
          {"1.0.2", "The search goes on after the replacement, not inside it.", 0}}},
        {"Strings and Text",
         202,
         1,
         "",
         "Use the $ string functions",
         "TipDollarFunctions.txt",
         "",
         "",
         {{"1.0.0", "First version.", 0}, {"1.0.1", "Example with Trim$ and Left$.", 1}}},
    };
    return items;
}

QString crlf(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
}

QByteArray resource(const QString& name) {
    QFile file(QStringLiteral(":/sample/") + name);
    if (!file.open(QIODevice::ReadOnly))
        throw QsError(53, kSource, QStringLiteral("File not found: ") + name);
    return file.readAll();
}

QDateTime day(int offset) {
    return QDateTime(QDate(2004, 3, 1).addDays(offset), QTime(9, 30));
}

void addHistory(cRevisions& revisions, const std::vector<Revision>& history, size_t index,
                const int (&authors)[2], int firstDay) {
    cRevision& line = revisions.Add(0);
    line.Version(QString::fromLatin1(history[index].version));
    line.Comment(QString::fromLatin1(history[index].comment));
    line.AuthorId(authors[history[index].author]);
    line.DateRevised(day(firstDay + 45 * int(index)));
}

class Builder {
public:
    explicit Builder(const QString& path) : mPath(path), mLibrary(path) {}

    SampleReport build() {
        mLibrary.CreateDatabase(mPath, QString());
        SampleReport report;
        report.path = mPath;
        addUsers(report);
        mCategories.insert(QStringLiteral("Visual Basic"), 1);
        for (const char* name : kCategories)
            mCategories.insert(QString::fromLatin1(name),
                               mLibrary.AddCategory(QString::fromLatin1(name)));
        report.categories = mCategories.size();
        int firstDay = 0;
        for (const CodeItem& item : codeItems()) {
            addCode(item, firstDay);
            firstDay += 11;
            ++report.codeItems;
            report.revisions += int(item.history.size());
        }
        report.revisions += addFiles();
        report.storedFiles = 2;
        report.folders = mFolders.size();
        return report;
    }

private:
    void addUsers(SampleReport& report) {
        cUser admin(mPath);
        admin.UserId(QString::fromLatin1(SampleLibrary::kUserId));
        admin.Password(QString::fromLatin1(SampleLibrary::kPassword));
        admin.FirstName(QStringLiteral("Sample"));
        admin.LastName(QStringLiteral("Administrator"));
        admin.AccessLevel(1);
        admin.Question(QStringLiteral("Which program is this library for?"));
        admin.Answer(QStringLiteral("Quillstone"));
        admin.BeginEdit(0);
        admin.Save(admin.UserId());
        report.userId = admin.UserId();
        report.password = admin.Password();
        // The first user is credited as an author too, beside a second author.
        const QPair<const char*, const char*> names[] = {{"Sample", "Administrator"},
                                                         {"Morgan", "Ellery"}};
        for (int i = 0; i < 2; ++i) {
            cAuthor author(mPath);
            author.BeginEdit(0);
            author.FirstName(QString::fromLatin1(names[i].first));
            author.LastName(QString::fromLatin1(names[i].second));
            author.Save();
            mAuthors[i] = author.AuthorId();
        }
    }

    // The innermost folder of the path in that type node, made with its parents when missing.
    int codeFolder(int category, int typeId, int tested, const QString& path) {
        int parent = 0;
        QString sofar;
        for (const QString& name : path.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
            sofar += QLatin1Char('/') + name;
            const QString key =
                QStringLiteral("SC%1/%2/%3%4").arg(category).arg(typeId).arg(tested).arg(sofar);
            if (!mFolders.contains(key)) {
                cSourceCode folder(mPath);
                folder.BeginEdit(0);
                folder.IsFolder(true);
                folder.CategoryId(category);
                folder.CodeTypeId(typeId);
                folder.Tested(tested);
                folder.ParentId(parent);
                folder.AuthorId(mAuthors[0]);
                folder.Description(name);
                mFolders.insert(key, folder.Save());
            }
            parent = mFolders.value(key);
        }
        return parent;
    }

    void addCode(const CodeItem& item, int firstDay) {
        const int category = mCategories.value(QString::fromLatin1(item.category));
        cSourceCode code(mPath);
        code.BeginEdit(0);
        code.CategoryId(category);
        code.CodeTypeId(item.typeId);
        code.Tested(item.tested);
        code.ParentId(
            codeFolder(category, item.typeId, item.tested, QString::fromLatin1(item.folders)));
        code.AuthorId(mAuthors[item.history.front().author]);
        code.Description(QString::fromLatin1(item.description));
        code.Notes(crlf(QString::fromLatin1(item.notes)));
        code.Example(crlf(QString::fromLatin1(item.example)));
        code.Code(crlf(
            QString::fromUtf8(resource(QStringLiteral("code/") + QString::fromLatin1(item.file)))));
        code.DateWritten(day(firstDay));
        code.DateEntered(day(firstDay));
        addHistory(code.Revisions(), item.history, 0, mAuthors, firstDay);
        const int id = code.Save();
        // Each later version is an update of the stored item, as the program makes one.
        for (size_t i = 1; i < item.history.size(); ++i) {
            cSourceCode stored = cLibraryService(mPath).GetSourceCode(id);
            stored.BeginEdit(0);
            addHistory(stored.Revisions(), item.history, i, mAuthors, firstDay);
            stored.Save();
        }
    }

    // The article and the component, written to "Sample Files" beside the library and stored
    // from there.  Returns the number of revision lines.
    int addFiles() {
        const QDir files(QFileInfo(mPath).absoluteDir().filePath(QStringLiteral("Sample Files")));
        QDir().mkpath(files.path());
        const quint16 version[4] = {1, 2, 0, 14};
        const QByteArray component = ComponentImage(
            version, {{QStringLiteral("CompanyName"), QStringLiteral("Tarnwick Sample Code")},
                      {QStringLiteral("FileDescription"),
                       QStringLiteral("Stopwatch component for the sample library")},
                      {QStringLiteral("FileVersion"), QStringLiteral("1.2.0.14")},
                      {QStringLiteral("InternalName"), QStringLiteral("QSWatch")},
                      {QStringLiteral("LegalCopyright"),
                       QStringLiteral("Copyright (C) 2004 Tarnwick Sample Code")},
                      {QStringLiteral("OriginalFilename"), QStringLiteral("QSWatch.dll")},
                      {QStringLiteral("ProductName"), QStringLiteral("Quillstone Samples")},
                      {QStringLiteral("ProductVersion"), QStringLiteral("1.2")}});
        struct StoredFile {
            int category;
            int typeId;
            const char* folder;
            QString fileName;
            QByteArray bytes;
            const char* description;
            const char* notes;
            std::vector<Revision> history;
        };
        const StoredFile stored[] = {
            {1,
             101,
             "Guides",
             QStringLiteral("Error Handling in Visual Basic.html"),
             resource(QStringLiteral("ErrorHandling.html")),
             "Error handling in Visual Basic procedures",
             "The three parts every procedure that can fail should have.",
             {{"1.0.0", "First version.", 0}, {"1.1.0", "Rules of thumb.", 1}}},
            {mCategories.value(QStringLiteral("Windows API")),
             102,
             "",
             QStringLiteral("QSWatch.dll"),
             component,
             "QSWatch.dll - stopwatch component",
             "The cStopwatch class compiled as an ActiveX DLL.",
             {{"1.0.0", "First build.", 0}, {"1.2.0", "Built from cStopwatch 2.0.0.", 0}}},
        };
        int revisions = 0;
        int firstDay = 200;
        for (const StoredFile& file : stored) {
            const QString diskPath = files.filePath(file.fileName);
            QFile out(diskPath);
            if (!out.open(QIODevice::WriteOnly) || out.write(file.bytes) != file.bytes.size())
                throw QsError(75, kSource, QStringLiteral("Path/File access error: ") + diskPath);
            out.close();
            cSourceFile item(mPath);
            item.LoadFile(diskPath, mAuthors[0], file.category, file.typeId);
            item.BeginEdit(0);
            item.ParentId(fileFolder(file.category, file.typeId, QString::fromLatin1(file.folder)));
            item.Description(QString::fromLatin1(file.description));
            item.Notes(QString::fromLatin1(file.notes));
            for (size_t i = 0; i < file.history.size(); ++i)
                addHistory(item.Revisions(), file.history, i, mAuthors, firstDay);
            item.Save();
            revisions += int(file.history.size());
            firstDay += 30;
        }
        return revisions;
    }

    int fileFolder(int category, int typeId, const QString& name) {
        if (name.isEmpty())
            return 0;
        cSourceFile folder(mPath);
        folder.BeginEdit(0);
        folder.IsFolder(true);
        folder.CategoryId(category);
        folder.FileTypeId(typeId);
        folder.AuthorId(mAuthors[0]);
        folder.Description(name);
        const int id = folder.Save();
        mFolders.insert(QStringLiteral("SF%1/%2/%3").arg(category).arg(typeId).arg(name), id);
        return id;
    }

    QString mPath;
    cLibraryService mLibrary;
    QHash<QString, int> mCategories;
    QHash<QString, int> mFolders;
    int mAuthors[2] = {0, 0};
};

} // namespace

SampleReport SampleLibrary::Build(const QString& path, bool replace) {
    initSampleResources();
    const QString target = QFileInfo(path).absoluteFilePath();
    if (QFileInfo::exists(target)) {
        if (!replace)
            throw QsError(58, kSource, QStringLiteral("File already exists: ") + target);
        for (const char* suffix : {"", "-wal", "-shm"})
            QFile::remove(target + QLatin1String(suffix));
    }
    return Builder(target).build();
}

} // namespace qs::sample
