#pragma once

#include "TestHome.h"
#include "cLibraryService.h"

#include <QSqlDatabase>
#include <QString>
#include <QVariant>
#include <gtest/gtest.h>
#include <memory>

namespace qs::test {

// A fresh private home per test, with a new library made through the service at the path the
// settings name by default.
class DataServiceTest : public ::testing::Test {
protected:
    void SetUp() override;

    // A text item saved through a record; returns its id.
    int addCode(const QString& description, int categoryId = 1, int codeTypeId = 201,
                int tested = 1, int parentId = 0, bool isFolder = false, int authorId = 0);
    // A stored-file catalogue row (a folder or an item without bytes); returns its id.
    int addFile(const QString& description, int categoryId = 1, int fileTypeId = 101,
                int parentId = 0, bool isFolder = false);
    // A user saved as the first administrator would be; returns nothing.
    void addUser(const QString& userId, const QString& password = QStringLiteral("pw"),
                 short level = 1);
    int addAuthor(const QString& first, const QString& last);
    // A new text item of the first category, open for editing.
    cSourceCode newCode(int codeTypeId = 201) const;
    // Rows of a table, counted from outside the service.
    int rows(const QString& table) const;

    std::unique_ptr<TestHome> home;
    QString dbPath;
};

// A plain connection for looking at a file from outside the service.
class RawDb {
public:
    explicit RawDb(const QString& path);
    ~RawDb();
    QVariant value(const QString& sql);
    bool exec(const QString& sql);

private:
    QString mName;
};

QByteArray FileHash(const QString& path);
QByteArray ReadFile(const QString& path);
// Writes the bytes to the path and returns the path; a failure fails the test.
QString WriteFile(const QString& path, const QByteArray& bytes);

// Marks a stored record deleted and saves it.
template <class R> void DeleteRecord(R& record) {
    record.BeginEdit(0);
    record.Deleted(true);
    record.Save();
}

// Runs f and returns the QsError it raised; fails the test when nothing was raised.
template <class F> QsError Raised(F&& f) {
    try {
        f();
    } catch (const QsError& e) {
        return e;
    }
    ADD_FAILURE() << "no error was raised";
    return QsError(0, QString(), QString());
}

} // namespace qs::test
