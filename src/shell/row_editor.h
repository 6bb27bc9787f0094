#pragma once
// One editor for every list whose rows are edited through the edit dialogs: NEW opens the add
// dialog and goes on while the user clicks Add, EDIT opens the edit dialog on a row, DELETE asks
// and removes one, each within the list's floor and limit, and the toolbar's buttons follow. The
// page's declaration gives the words and rules; a page with more to do hooks in.

#include <functional>
#include <string>

#include "shell/controls.h"
#include "shell/host.h"
#include "shell/page_decl.h"
#include "store/table_files.h"

namespace qb::shell {

class RowEditor {
  public:
    RowEditor(const RowEditorDecl& decl, ListControl& list, Toolbar& toolbar, Host& host,
              store::TableFiles& files, std::function<void()> markDirty);

    const RowEditorDecl& Decl() const { return decl_; }
    ListControl& List() const { return list_; }

    void Add();
    void Edit();
    void Delete();
    // After the list was filled by a load: the buttons as the rule has them for its rows.
    void Loaded();
    // The row the buttons act on, or 0 for none.
    int Target() const;

    // Hooks of a page with more to do.
    // EDIT's own action, where the declaration says the page has one.
    std::function<void(int row)> onEdit;
    // NEW's own action, where the declaration says the page has one.
    std::function<void()> onAdd;
    // Told when the user has confirmed a delete, before the row goes.
    std::function<void(int row)> onRemoving;
    // Told after a dialog's fields went into a row, added or edited.
    std::function<void(int row, bool added)> onStored;
    // Told after a row went.
    std::function<void()> onDeleted;
    // Told before a dialog shows, for a row (0 for a new one): what the page knows only when the
    // dialog opens, such as the choices of a combo.
    std::function<void(DialogRequest& request, int row)> onRequest;

  private:
    DialogRequest Request(const RowDialogDecl& dialog, int row) const;
    void Store(int row, const RowDialogDecl& dialog, const DialogResult& result);
    void EnableRowButtons(bool enabled);
    bool IsDuplicate(const std::string& text) const;

    RowEditorDecl decl_;
    ListControl& list_;
    Toolbar& toolbar_;
    Host& host_;
    store::TableFiles& files_;
    std::function<void()> markDirty_;
};

}  // namespace qb::shell
