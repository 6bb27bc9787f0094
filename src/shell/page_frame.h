#pragma once
// The frame every page shares: its toolbars, its dirty mark and its status bar. Sizes are in twips
// (1440 to the inch, 15 to a pixel on a common screen), the unit the pages were laid out in.

#include "shell/controls.h"
#include "shell/host.h"

namespace qb::shell {

inline constexpr int kTwipsPerPixel = 15;

// Separator, SAVE (disabled), separator, DISCARD, RESTORE unless `noRestore`, separator.
void SetupPageToolbar(Toolbar& toolbar, bool noRestore);

// The list toolbars: each appends its buttons, so that a page may set up two in a row.
void SetupDeleteToolbar(Toolbar& toolbar);    // DELETE
void SetupEditToolbar(Toolbar& toolbar);      // EDIT
void SetupEditAllToolbar(Toolbar& toolbar);   // EDITALL
void SetupAmendToolbar(Toolbar& toolbar);     // AMEND
void SetupListToolbar(Toolbar& toolbar);      // NEW, DELETE, EDIT
void SetupFileListToolbar(Toolbar& toolbar);  // NEW, OPEN, DELETE, EDIT on files
void SetupQuestionToolbar(Toolbar& toolbar);  // SAVE, CLOSE, NEW, EDIT, DELETE on questions
// OPEN, SAVE, CLOSE, NEW, DELETE, EDIT on a word or question file opened in place; OPEN alone on.
void SetupWordListToolbar(Toolbar& toolbar);

// SAVE (button 2) enabled, the separator behind it disabled, panel 1 "Save Required". Only SAVE
// follows the dirty state: DISCARD stays enabled whether or not there is anything to discard.
bool MarkSaveRequired(Toolbar& toolbar, StatusBar& statusBar);
// Buttons 2 and 3 disabled, panel 1 empty.
bool ClearSaveRequired(Toolbar& toolbar, StatusBar& statusBar);

// Empties a list opened for editing in place, asking "Discard changes?" first unless `force`:
// the list and its tag are cleared, the toolbar's button 1 is on and buttons 2 to 5 are off.
// False when the user keeps the list.
bool ResetFileEditor(Host& host, Toolbar& toolbar, ListControl& list, bool force);

// Panel 1 empty and 1500 wide; panel 2 takes the page width that remains, less 360.
void SetupStatusBar(StatusBar& statusBar, int pageWidth);

}  // namespace qb::shell
