#pragma once

namespace qs {

// Help commands.
enum HelpCommand : int {
    HELP_CONTEXT = 1,
    HELP_QUIT = 4,
    HELP_CONTEXTPOPUP = 8,
    HELP_TAB = 15,
    HELP_PARTIALKEY = 261,
};

// The help file is FormatPath(HelpFiles\FilePath) & HelpFiles\FileName ("Quillstone.hlp" by
// default); nothing is shown while the folder value is empty.  A help call that fails shows the
// system's error text with the critical icon.  Each returns true when the help was shown.
bool ShowHelpTopic(long lngContext, bool blnPopup = false);
bool ShowHelpContents();
bool ShowHelpSearch();
// Closes the help window.
void QuitHelp();

} // namespace qs
