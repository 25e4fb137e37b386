// The exports of cSourceCode: XML of the record, text and PDF of a text the caller made.
#include "cSourceCode.h"

#include "ExportWriters.h"
#include "cRevision.h"

namespace qs {

namespace {

QString dateText(const QDateTime& value) {
    return value.isValid() ? value.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")) : QString();
}

} // namespace

void cSourceCode::ExportXml(const QString& strFile, bool blnAppend, bool blnIncludeHistory) const {
    // A cancelled save dialog gives no path; the caller tells the user so after the call.
    if (strFile.isEmpty())
        return;
    XmlExportItem item;
    item.id = mId;
    item.fields = {
        {QStringLiteral("Description"), mDescription},
        {QStringLiteral("CodeTypeId"), QString::number(mCodeTypeId)},
        {QStringLiteral("CategoryId"), QString::number(mCategoryId)},
        {QStringLiteral("ParentId"), QString::number(mParentId)},
        {QStringLiteral("IsFolder"), mIsFolder ? QStringLiteral("True") : QStringLiteral("False")},
        {QStringLiteral("Tested"), QString::number(mTested)},
        {QStringLiteral("AuthorFirstName"), mAuthorFirstName},
        {QStringLiteral("AuthorLastName"), mAuthorLastName},
        {QStringLiteral("DateWritten"), dateText(mDateWritten)},
        {QStringLiteral("DateEntered"), dateText(mDateEntered)},
        {QStringLiteral("Notes"), mNotes},
        {QStringLiteral("Example"), mExample},
        {QStringLiteral("Code"), mCode}};
    if (blnIncludeHistory) {
        for (int i = 1; i <= mRevisions.Count(); ++i) {
            const cRevision& r = mRevisions.Item(i);
            item.revisions.append({{QStringLiteral("Version"), r.Version()},
                                   {QStringLiteral("DateRevised"), dateText(r.DateRevised())},
                                   {QStringLiteral("AuthorFirstName"), r.AuthorFirstName()},
                                   {QStringLiteral("AuthorLastName"), r.AuthorLastName()},
                                   {QStringLiteral("Comment"), r.Comment()}});
        }
    }
    WriteXmlExport(strFile, item, blnAppend, blnIncludeHistory,
                   QStringLiteral("cSourceCode:ExportXml;"));
}

void cSourceCode::ExportPdf(const QString& strFile, const QString& strText) const {
    WritePdfExport(strFile, strText, mDescription, QStringLiteral("cSourceCode:ExportPdf;"));
}

void cSourceCode::ExportText(const QString& strFile, const QString& strText) const {
    WriteTextExport(strFile, strText, QStringLiteral("cSourceCode:ExportText;"));
}

} // namespace qs
