// ParentId at Save: a folder of the same table and category, never one inside the item itself.
#include "DataServiceFixture.h"
#include "ServiceErrors.h"

using namespace qs;
using namespace qs::test;

namespace {

class ParentFolder : public DataServiceTest, public ::testing::WithParamInterface<const char*> {
protected:
    bool code() const { return QLatin1String(GetParam()) == QLatin1String("SourceCode"); }
    int add(const QString& name, int parent, bool folder, int category = 1) {
        return code() ? addCode(name, category, 201, 1, parent, folder)
                      : addFile(name, category, 101, parent, folder);
    }
    // Moves the stored row under parent, as a drop does.
    void move(int id, int parent) {
        cLibraryService library(dbPath);
        if (code()) {
            cSourceCode record = library.GetSourceCode(id);
            record.BeginEdit(0);
            record.ParentId(parent);
            record.Save();
        } else {
            cSourceFile record = library.GetSourceFile(id);
            record.BeginEdit(0);
            record.ParentId(parent);
            record.Save();
        }
    }
    int parentOf(int id) {
        cLibraryService library(dbPath);
        return code() ? library.GetSourceCode(id).ParentId() : library.GetSourceFile(id).ParentId();
    }
};

TEST_P(ParentFolder, AnythingButAFolderOfTheSameCategoryIsRefusedAndNothingWritten) {
    const int other = cLibraryService(dbPath).AddCategory(QStringLiteral("Other"));
    const int folder = add(QStringLiteral("folder"), 0, true);
    const int item = add(QStringLiteral("item"), folder, false);
    const int plain = add(QStringLiteral("plain"), 0, false);
    const int foreign = add(QStringLiteral("foreign"), 0, true, other);
    const struct {
        const char* what;
        int parent;
    } cases[] = {{"an item", plain}, {"a folder of another category", foreign}, {"no row", 9999}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const QsError e = Raised([&] { move(item, c.parent); });
        EXPECT_EQ(e.number(), kErrInvalidParent);
        EXPECT_TRUE(e.description().startsWith(QLatin1String(kTextInvalidParent)))
            << e.description().toStdString();
        EXPECT_EQ(parentOf(item), folder);
    }
    const int before = rows(QLatin1String(GetParam()));
    EXPECT_EQ(Raised([&] { add(QStringLiteral("new"), plain, false); }).number(),
              kErrInvalidParent);
    EXPECT_EQ(rows(QLatin1String(GetParam())), before);
}

TEST_P(ParentFolder, FolderCannotMoveIntoItsOwnSubtreeButAnywhereElse) {
    const int top = add(QStringLiteral("top"), 0, true);
    const int middle = add(QStringLiteral("middle"), top, true);
    const int low = add(QStringLiteral("low"), middle, true);
    const int aside = add(QStringLiteral("aside"), 0, true);
    for (const int under : {middle, low}) {
        EXPECT_EQ(Raised([&] { move(top, under); }).number(), kErrInvalidParent);
        EXPECT_EQ(parentOf(top), 0);
    }
    move(low, top);
    EXPECT_EQ(parentOf(low), top);
    move(top, aside);
    EXPECT_EQ(parentOf(top), aside);
    move(top, 0);
    EXPECT_EQ(parentOf(top), 0);
}

INSTANTIATE_TEST_SUITE_P(Tables, ParentFolder, ::testing::Values("SourceCode", "SourceFile"));

} // namespace
