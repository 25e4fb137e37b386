#pragma once

#include <QString>

namespace qs {

class CommonDialog;

// Printing of plain text.  Failures report under the name "mPrinter".

// Shows `dialog` as the printer dialog (a Cancel there raises and is reported), then prints
// `strText` once per copy chosen, one pass of the whole text after the other in one document,
// without pagination of its own.
void prntTextWithNumberOfPagesDialog(CommonDialog& dialog, const QString& strText);

} // namespace qs
