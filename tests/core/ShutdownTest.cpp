#include "CoreFixture.h"

#include "Globals.h"
#include "QtHost.h"
#include "cLibraryService.h"
#include "cSourceCode.h"
#include "quillstone_private.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/wait.h>
#include <unistd.h>

using namespace qs;
using namespace qs::test;

namespace {

class Shutdown : public CoreFixture {};

// A running program through the real host: Main, the open library, the user's last save, then
// End.  Returns how the process ended.
int runThenEnd(const QString& lastSave) {
    const pid_t child = fork();
    if (child == 0) {
        alarm(60); // a prompt nobody answers must not hang the suite
        try {
            QtHost real;
            setHost(&real);
            Main();
            gobjLibrary->GetLookup(QStringLiteral("Category"));
            cSourceCode item;
            item.BeginEdit(0);
            item.CategoryId(1);
            item.CodeTypeId(201);
            item.Tested(1);
            item.Description(lastSave);
            item.Code(QStringLiteral("Sub Main()\r\nEnd Sub"));
            item.Revisions().Add(0).Version(QStringLiteral("1.0.0"));
            item.Save();
            real.endProcess();
        } catch (...) {
        }
        _exit(3);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

TEST_F(Shutdown, AfterEndTheLibraryFileAloneHoldsTheLastSave) {
    const QString library = makeLibrary();
    addUser(QStringLiteral("ada"), QStringLiteral("secret"));

    ASSERT_EQ(runThenEnd(QStringLiteral("The last save")), 0);

    // Only the .mdb is carried away, as a user copies a library.
    const QString copy = home->file(QStringLiteral("Elsewhere/Quillstone.mdb"));
    QDir().mkpath(QFileInfo(copy).absolutePath());
    ASSERT_TRUE(QFile::copy(library, copy));
    const auto items =
        cLibraryService(copy).GetItems(QStringLiteral("SourceCode"), 0, 0, 0, 0, 0, 0, 0);
    ASSERT_EQ(items.UBound(), 1);
    EXPECT_EQ(items(1).Description, QStringLiteral("The last save"));
}

} // namespace
