#pragma once

#include <QList>
#include <QString>

namespace qs::bench {

// The baselines: the same answers as the service's, found by reading every row of SourceCode
// through a plain connection of its own, forward only, with no index.
class PlainScan {
public:
    explicit PlainScan(const QString& path);
    ~PlainScan();
    PlainScan(const PlainScan&) = delete;
    PlainScan& operator=(const PlainScan&) = delete;

    // Ids of the rows (items and folders) of that type node, ascending.
    QList<int> items(int categoryId, int codeTypeId, int status);
    // The code of the row with that id.
    QString code(int id);
    // Ids of the rows the search rule finds, ascending (filters as Search, 0 none); with
    // itemsOnly the folders are left out.
    QList<int> search(int mode, const QString& text, int categoryId, int status, int codeTypeId,
                      bool itemsOnly = false);
    // Number of item rows (folders not counted) of the file at path.
    static qint64 itemCount(const QString& path);

private:
    QString mConnectionName;
};

} // namespace qs::bench
