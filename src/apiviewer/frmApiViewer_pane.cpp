// The Selected Items pane of the API viewer: add, the two view modes, copy, remove, clear.

#include "frmApiViewer.h"

#include "Host.h"
#include "ListBox.h"
#include "RichTextBox.h"
#include "mEditCommands.h"
#include "mErrorHandling.h"
#include "mRegConstants.h"
#include "mRegistry.h"

#include <QAction>
#include <QPushButton>
#include <QRadioButton>

namespace qs {

namespace {

const QString kCrLf = QStringLiteral("\r\n");

QString Scope(const QRadioButton* optPublic) {
    return optPublic->isChecked() ? QStringLiteral("Public ") : QStringLiteral("Private ");
}

void SaveLastClicked(const QString& mode) {
    SaveRegSetting(QString::fromLatin1(REG_KEY_APISETTING),
                   QString::fromLatin1(REG_VAL_API_LASTCLICKED), mode);
}

void Append(RichTextBox& pane, const QString& text) {
    pane.setText(pane.Text() + text);
}

// Selects `length` characters of the pane from `start` and types `text` over them.
void ReplaceAt(RichTextBox& pane, int start, int length, const QString& text) {
    pane.setSelStart(start);
    pane.setSelLength(length);
    pane.setSelText(text);
}

} // namespace

void frmApiViewer::StoreSelectedName(const QString& strName) {
    marrSelectedNames.last() = strName;
    marrSelectedNames.append(QString());
}

void frmApiViewer::ResetSelectedNames() {
    marrSelectedNames = QStringList{QString()};
}

void frmApiViewer::EnablePaneButtons(bool blnOn) {
    cmdCopy->setEnabled(blnOn);
    cmdRemove->setEnabled(blnOn);
    cmdClear->setEnabled(blnOn);
}

void frmApiViewer::CheckViewMenus() {
    const bool full = mstrViewMode == QLatin1String("Full");
    mnuFullText->setChecked(full);
    mnuLineItem->setChecked(!full);
}

void frmApiViewer::cmdAdd_Click() {
    try {
        host().setMousePointer(vbHourglass);
        const QString name = lstAvailItems->Text();
        if (mstrViewMode == QLatin1String("Full"))
            AddFullText(name);
        else
            AddLineItem(name);
        EnablePaneButtons(true);
        host().setMousePointer(vbDefault);
    } catch (...) {
        HandleFailure("frmApiViewer:cmdAdd_Click;");
    }
}

void frmApiViewer::AddFullText(const QString& strName) {
    const QString scope = Scope(optPublic);
    const QString other =
        optPublic->isChecked() ? QStringLiteral("Private ") : QStringLiteral("Public ");
    const QString text = ChosenText(strName);
    const QString wanted = scope + text;
    const QString unwanted = other + text;
    const QString pane = RTBoxSelItems->Text();
    if (pane.isEmpty()) {
        RTBoxSelItems->setText(wanted + kCrLf);
        StoreSelectedName(strName);
    } else if (pane.indexOf(wanted, 0, Qt::CaseInsensitive) < 0) {
        const int at = pane.indexOf(unwanted, 0, Qt::CaseInsensitive);
        if (at >= 0) {
            ReplaceAt(*RTBoxSelItems, at, unwanted.size(), wanted);
        } else {
            Append(*RTBoxSelItems, kCrLf);
            host().doEvents();
            Append(*RTBoxSelItems, wanted + kCrLf);
            StoreSelectedName(strName);
        }
    }
    // One scope for every item in the pane, the word inside an item's text included.  A
    // replacement never makes a new match before its end, so the search goes on from there.
    int from = 0;
    for (;;) {
        const int at = RTBoxSelItems->Text().indexOf(other, from, Qt::CaseInsensitive);
        if (at < 0)
            break;
        ReplaceAt(*RTBoxSelItems, at, other.size(), scope);
        from = at + scope.size();
    }
}

void frmApiViewer::AddLineItem(const QString& strName) {
    const QString pane = RTBoxSelItems->Text();
    const int at = pane.indexOf(strName, 0, Qt::CaseInsensitive);
    if (at >= 0) {
        // A name already in the pane goes in again unless nothing stands behind it.
        const int behind = at + strName.size();
        if (behind >= pane.size())
            return;
        RTBoxSelItems->setSelStart(behind);
        RTBoxSelItems->setSelLength(1);
    }
    StoreSelectedName(strName);
    if (pane.isEmpty())
        RTBoxSelItems->setText(strName + kCrLf);
    else
        Append(*RTBoxSelItems, strName + kCrLf);
}

void frmApiViewer::mnuLineItem_Click() {
    try {
        mstrViewMode = QStringLiteral("Line");
        SaveLastClicked(mstrViewMode);
        CheckViewMenus();
        if (marrSelectedNames.first().isEmpty())
            return;
        const QString copy = RTBoxSelItems->Text();
        QString lines;
        for (int i = 0; i < marrSelectedNames.size() - 1; ++i)
            if (copy.contains(marrSelectedNames.at(i)))
                lines += marrSelectedNames.at(i) + kCrLf;
        RTBoxSelItems->setText(lines + kCrLf);
    } catch (...) {
        HandleFailure("frmApiViewer:mnuLineItem_Click;");
    }
}

void frmApiViewer::mnuFullText_Click() {
    try {
        mstrViewMode = QStringLiteral("Full");
        SaveLastClicked(mstrViewMode);
        CheckViewMenus();
        if (marrSelectedNames.first().isEmpty())
            return;
        const QString copy = RTBoxSelItems->Text();
        RTBoxSelItems->setText(QString());
        const QString scope = Scope(optPublic);
        for (int i = 0; i < marrSelectedNames.size() - 1; ++i) {
            const QString& name = marrSelectedNames.at(i);
            if (!copy.contains(name))
                continue;
            // A name collected from another type than the one chosen now is not found: that
            // ends in the failure report, with the pane as far as it got.
            const QString wanted = scope + ChosenText(name);
            if (RTBoxSelItems->Text().isEmpty())
                RTBoxSelItems->setText(wanted + kCrLf);
            else
                Append(*RTBoxSelItems, kCrLf + wanted + kCrLf);
        }
    } catch (...) {
        HandleFailure("frmApiViewer:mnuFullText_Click;");
    }
}

void frmApiViewer::cmdCopy_Click() {
    try {
        RTBoxSelItems->SetFocus();
        mnucopy_Click();
    } catch (...) {
        HandleFailure("frmApiViewer:cmdCopy_Click;");
    }
}

void frmApiViewer::mnucopy_Click() {
    try {
        Copy();
    } catch (...) {
        HandleFailure("frmApiViewer:mnucopy_Click;");
    }
}

void frmApiViewer::cmdClear_Click() {
    try {
        RTBoxSelItems->setText(QString());
        EnablePaneButtons(false);
        ResetSelectedNames();
    } catch (...) {
        HandleFailure("frmApiViewer:cmdClear_Click;");
    }
}

void frmApiViewer::cmdRemove_Click() {
    try {
        if (RTBoxSelItems->SelText().isEmpty()) {
            host().msgBox(QStringLiteral("Please select which area of text you would like to "
                                         "remove"),
                          vbInformation, QStringLiteral("Select Text"));
            return;
        }
        RTBoxSelItems->setSelText(QString());
        if (RTBoxSelItems->Text().isEmpty()) {
            EnablePaneButtons(false);
            ResetSelectedNames();
        }
    } catch (...) {
        HandleFailure("frmApiViewer:cmdRemove_Click;");
    }
}

} // namespace qs
