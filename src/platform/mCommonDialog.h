#pragma once

#include "CommonDialog.h"

#include <QString>

namespace qs {

// File filters, description "|" pattern.
inline constexpr const char kFilterAllFiles[] = "All Files (*.*)|*.*";
inline constexpr const char kFilterJpg[] = "JPG Files (*.jpg)|*.jpg";
inline constexpr const char kFilterVbMod[] = "VB Mod Files (*.bas)|*.bas";
inline constexpr const char kFilterBitmaps[] = "Bitmaps (*.bmp)|*.bmp";
inline constexpr const char kFilterVbClass[] = "VB Class Files (*.cls)|*.cls";
inline constexpr const char kFilterDll[] = "DLL Files (*.*)|*.*";
inline constexpr const char kFilterExe[] = "EXE Files (*.*)|*.*";
inline constexpr const char kFilterHtm[] = "HTM Files (*.htm)|*.htm";
inline constexpr const char kFilterHtml[] = "HTML Files (*.html)|*.html";
inline constexpr const char kFilterIcon[] = "Icon Files (*.ico)|*.ico";
inline constexpr const char kFilterMsAccess[] = "MsAccess Files (*.mdb)|*.mdb";
inline constexpr const char kFilterOcx[] = "OCX Files (*.*)|*.*";
inline constexpr const char kFilterPdf[] = "PDF Files (*.pdf)|*.pdf";
inline constexpr const char kFilterRtf[] = "RTF Files (*.rtf)|*.rtf";
inline constexpr const char kFilterText[] = "Text Files (*.txt)|*.txt";
inline constexpr const char kFilterTif[] = "TIF Images (*.tif)|*.tif";
inline constexpr const char kFilterWord[] = "Word Files (*.doc)|*.doc";
inline constexpr const char kFilterXml[] = "XML Files (*.xml)|*.xml";
inline constexpr const char kFilterAll[] = "All (*.*)| *.*";

// What the file dialog procedures are given and give back.  `fileName` proposes a name and
// returns the choice; `fileTitle` returns its name without the folder; `flags` goes in with the
// caller's flags and returns what the dialog used.
struct FileNameDialog {
    QString fileName;
    QString fileTitle;
    long flags = 0;
    QString filter = QString::fromLatin1(kFilterAll);
    int filterIndex = 1;
    QString initDir;
    QString dlgTitle;
    QString defaultExt;
    bool fileMustExist = true;   // open only
    bool overwritePrompt = true; // save only
    bool hideReadOnly = false;
};

// The open and save dialogs: true and the file name, its title and the flags, false on Cancel.
// The filter may separate its entries with "|" or ":".
bool VBGetOpenFileName(FileNameDialog& dialog);
bool VBGetSaveFileName(FileNameDialog& dialog);

// Cuts at the first null character.
QString StrZToStr(const QString& strText);

// The pattern of the `intIndex`-th (from 1) description-pattern pair of a "|" filter; empty when
// there is no such pair.
QString FilterLookup(const QString& strFilter, int intIndex);

// Fills `dialog` and shows it (save with the overwrite prompt when `blnForSave`, open with the
// file required to exist otherwise), with CancelError on; the chosen path, empty on Cancel.
// The folder defaults to the home folder.
QString GetFileName(CommonDialog& dialog, const QString& strFilter,
                    const QString& strTitle = QString(), const QString& strFile = QString(),
                    const QString& strFolder = QString(), bool blnForSave = false);

} // namespace qs
