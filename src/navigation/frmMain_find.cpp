// The text search of the code pane: every occurrence of a word painted, then a step through
// them with Enter or F3.

#include "frmMain.h"

#include "Host.h"
#include "RichTextBox.h"
#include "SSTab.h"
#include "mConstants.h"
#include "mErrorHandling.h"

namespace qs {

namespace {

constexpr long kFindColour = 16711680; // blue, in blue-green-red order
constexpr int kKeyEnter = 13;
constexpr int kKeyF3 = 114;

} // namespace

void frmMain::mnuFind_Click() {
    try {
        SearchForText();
    } catch (...) {
        HandleFailure("frmMain:mnuFind_Click;");
    }
}

void frmMain::SearchForText() {
    try {
        // One command for both searches: outside the code pane it is the library search.
        if (focusWidget() != RichTextBoxCode) {
            SSTabNavigate->setTab(2);
            return;
        }
        RichTextBox& pane = *RichTextBoxCode;
        pane.setSelStart(0);
        pane.setSelLength(pane.Text().size());
        pane.setSelColor(0);
        pane.setSelBold(false);
        pane.setSelStart(0);
        if (pane.Text().isEmpty()) {
            host().msgBox(QStringLiteral("No text in the code window to search through."),
                          vbExclamation, QStringLiteral("Search Text?"));
            host().setMousePointer(vbDefault);
            return;
        }
        mstrFindText =
            host().inputBox(QStringLiteral("Please enter a ''Word'' or ''Phrase'' to search by."),
                            QStringLiteral("Search"), QString());
        if (mstrFindText.isEmpty()) {
            host().msgBox(QStringLiteral("No text was entered to search by."), vbExclamation,
                          QStringLiteral("Search Text?"));
            host().setMousePointer(vbDefault);
            return;
        }
        FindAndColor(kFindColour, mstrFindText, false);
    } catch (...) {
        HandleFailure("frmMain:SearchForText;");
    }
}

void frmMain::FindAndColor(long lngColor, const QString& strWord, bool blnNextOnly) {
    try {
        RichTextBox& pane = *RichTextBoxCode;
        const QString text = pane.Text();
        // Positions count from 0; a first search starts at 1.
        int start = 1;
        if (blnNextOnly)
            start = pane.SelLength() > 0 ? pane.SelStart() + 2 : pane.SelStart();
        mblnFindHit = false;
        int firstHit = -1;
        int firstLength = 0;
        while (start <= text.size()) {
            const int hit = text.indexOf(strWord, start, Qt::CaseInsensitive);
            if (hit < 0) {
                if (blnNextOnly) {
                    host().msgBox(QStringLiteral("End of Search."), vbInformation,
                                  QStringLiteral("Search"));
                    return;
                }
                if (firstHit < 0)
                    host().msgBox(QStringLiteral("The text you entered was not found."),
                                  vbInformation, QStringLiteral("Search"));
                break;
            }
            mblnFindHit = true;
            if (firstHit < 0) {
                firstHit = hit;
                firstLength = strWord.size();
            }
            pane.setSelStart(hit);
            pane.setSelLength(strWord.size());
            pane.setSelColor(lngColor);
            pane.setSelBold(true);
            start = hit + strWord.size();
            if (blnNextOnly)
                return;
        }
        if (firstHit >= 0) {
            pane.setSelStart(firstHit);
            pane.setSelLength(firstLength);
            pane.setSelColor(lngColor);
            pane.setSelBold(true);
        }
        pane.SetFocus();
    } catch (...) {
        HandleFailure("frmMain:FindAndColor;");
    }
}

void frmMain::RichTextBoxCode_KeyDown(int& KeyCode, int Shift) {
    (void)Shift;
    try {
        if ((KeyCode == kKeyEnter || KeyCode == kKeyF3) && mblnFindHit) {
            // The key steps to the next hit; it does not reach the text as well.
            KeyCode = 0;
            FindAndColor(kFindColour, mstrFindText, true);
        }
    } catch (...) {
        HandleFailure("frmMain:RichTextBoxCode_KeyDown;");
    }
}

} // namespace qs
