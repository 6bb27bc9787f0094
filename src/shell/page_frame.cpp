#include "shell/page_frame.h"

#include <initializer_list>
#include <utility>

namespace qb::shell {
namespace {

using ButtonList = std::initializer_list<std::pair<const char*, const char*>>;

// Flat buttons of one size, 329.95 by 345.26 twips, as all page toolbars have them.
void Look(Toolbar& toolbar, const char* imageList, bool border) {
    toolbar.imageList = imageList;
    toolbar.border = border;
    toolbar.buttonHeight = 330;
    toolbar.buttonWidth = 345;
}

void AddListButtons(Toolbar& toolbar, ButtonList buttons) {
    Look(toolbar, "imlToolbarListview", false);
    for (const auto& [key, tip] : buttons)
        toolbar.AddButton(key, tip, key);
}

}  // namespace

void SetupPageToolbar(Toolbar& toolbar, bool noRestore) {
    Look(toolbar, "imlToolbar", true);
    toolbar.AddSeparator();
    toolbar.AddButton("SAVE", "Save changes", "SAVE");
    toolbar.SetButtonEnabled(2, false);
    toolbar.AddSeparator();
    toolbar.AddButton("DISCARD", "Discard changes", "DISCARD");
    if (!noRestore) toolbar.AddButton("RESTORE", "Restore defaults", "RESTORE");
    toolbar.AddSeparator();
}

void SetupDeleteToolbar(Toolbar& toolbar) {
    AddListButtons(toolbar, {{"DELETE", "Delete"}});
}
void SetupEditToolbar(Toolbar& toolbar) {
    AddListButtons(toolbar, {{"EDIT", "Edit"}});
}
void SetupEditAllToolbar(Toolbar& toolbar) {
    AddListButtons(toolbar, {{"EDITALL", "Edit All"}});
}
void SetupAmendToolbar(Toolbar& toolbar) {
    AddListButtons(toolbar, {{"AMEND", "Amend"}});
}

void SetupListToolbar(Toolbar& toolbar) {
    AddListButtons(toolbar, {{"NEW", "Add"}, {"DELETE", "Delete"}, {"EDIT", "Edit"}});
}

void SetupFileListToolbar(Toolbar& toolbar) {
    AddListButtons(toolbar, {{"NEW", "Create new file"},
                             {"OPEN", "Add existing file"},
                             {"DELETE", "Delete file"},
                             {"EDIT", "Edit file"}});
}

void SetupQuestionToolbar(Toolbar& toolbar) {
    AddListButtons(toolbar, {{"SAVE", "Save changes"},
                             {"CLOSE", "Discard changes"},
                             {"NEW", "Add new question"},
                             {"EDIT", "Edit question"},
                             {"DELETE", "Delete question"}});
}

void SetupWordListToolbar(Toolbar& toolbar) {
    AddListButtons(toolbar, {{"OPEN", "Open Words file"},
                             {"SAVE", "Save Words file"},
                             {"CLOSE", "Close Words file"},
                             {"NEW", "Add new Word"},
                             {"DELETE", "Delete Word"},
                             {"EDIT", "Edit Word"}});
    // A list is opened only on request: until then only OPEN can be clicked.
    for (const char* key : {"SAVE", "CLOSE", "NEW", "DELETE", "EDIT"})
        toolbar.SetButtonEnabled(key, false);
}

bool ResetFileEditor(Host& host, Toolbar& toolbar, ListControl& list, bool force) {
    if (!force) {
        force =
            host.ShowMessage({"Are you sure you want to discard unsaved changes?",
                              "Discard changes?", Buttons::OKCancel, Icon::Question}) == Answer::OK;
    }
    if (!force) return false;
    list.Clear();
    list.SetTag("");
    toolbar.SetButtonEnabled(1, true);
    for (int button = 2; button <= 5 && button <= toolbar.Count(); ++button)
        toolbar.SetButtonEnabled(button, false);
    return true;
}

bool MarkSaveRequired(Toolbar& toolbar, StatusBar& statusBar) {
    toolbar.SetButtonEnabled(2, true);
    toolbar.SetButtonEnabled(3, false);
    statusBar.SetText(1, "Save Required");
    return true;
}

bool ClearSaveRequired(Toolbar& toolbar, StatusBar& statusBar) {
    toolbar.SetButtonEnabled(2, false);
    toolbar.SetButtonEnabled(3, false);
    statusBar.SetText(1, "");
    return false;
}

void SetupStatusBar(StatusBar& statusBar, int pageWidth) {
    statusBar.SetText(1, "");
    statusBar.SetWidth(1, 1500);
    statusBar.SetWidth(2, pageWidth - statusBar.Left(2) - 360);
}

}  // namespace qb::shell
