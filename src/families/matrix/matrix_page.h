#pragma once
// What both shapes of the permission matrices share: a list of cells that the user flips one at a
// time, by a double click, the EDIT button of tlbListview or the pop-up menu, which offers only
// the flip the cell allows; and, where a page shows its cells by command and by profile, the two
// filter buttons of tlbListview. A matrix has no defaults to show but all "No", so the pages have
// no RESTORE unless a member's own settings bring one.

#include <string>
#include <utility>
#include <vector>

#include "shell/page.h"
#include "store/fatal_error.h"

namespace qb::pages {

// The page of a member that has no settings of its own: the matrix's list and its toolbar alone,
// without RESTORE, and a discard that leaves nothing to save, as the load does.
shell::PageDecl MatrixDecl(const std::string& key, shell::PageSize size, const std::string& list,
                           int listWidth);

// The pages that find a cell by the names its row shows can't tell two profiles of one name
// apart: the error that ends the program when the hub has such a pair.
store::FatalError TwoProfilesNamed(const store::TableFiles& files, const std::string& name);

class MatrixPage : public shell::Page {
  protected:
    // `decl` declares tlbListview and `list`; `settingColumn` is the list's column that holds
    // the cell, `yes` or `no`.
    MatrixPage(shell::PageContext& context, const shell::PageDecl& decl, const std::string& list,
               int settingColumn, std::string yes = "Yes", std::string no = "No");

    // After the cell of `row` was flipped on the list.
    virtual void CellFlipped(int /*row*/) {}
    // tlbListview's buttons other than EDIT and the filters.
    virtual void ListButtonClick(const std::string& /*key*/) {}
    // Shows the list again for the filters as they stand.
    virtual void Show() {}

    // Flips the selected row's cell, or the first row's when none is selected: the row the list
    // has current.
    void Flip();
    const std::string& Yes() const { return yes_; }
    const std::string& No() const { return no_; }

    // The two filter buttons with their drop-down menus: `commandButton` lists the commands
    // under the keys "C*" and the command, PROFILE the hub's profiles by name. An entry sets its
    // filter and keeps the other; a click on a pressed button clears its own filter alone. Both
    // filters live as long as the page: a save or a discard shows the same view again.
    void AddFilterButtons(const std::string& commandButton, const std::string& commandTip,
                          const std::vector<std::string>& commands);
    // Whether a cell passes both filters; an empty filter passes all.
    bool Passes(const std::string& command, const std::string& profile) const;
    // A row shows its command and profile only where they change: the nearest of each at or
    // above the row.
    std::pair<std::string, std::string> NamesAt(int row, int commandColumn,
                                                int profileColumn) const;

    shell::Toolbar& tlbListview;
    // The matrix's list: lvwPermissions, or the member's own name for it.
    shell::ListControl& lvwMatrix;

  private:
    void RightClick(int row);
    void FilterEntry(const std::string& button, const std::string& entry);
    void FilterButton(const std::string& button);

    int settingColumn_;
    std::string yes_;
    std::string no_;
    std::string commandButton_;  // empty: the page has no filters
    std::string commandFilter_;
    std::string profileFilter_;
};

// `yes` turns into `no`, and anything else into `yes`.
std::string Flipped(const std::string& cell, const std::string& yes = "Yes",
                    const std::string& no = "No");

}  // namespace qb::pages
