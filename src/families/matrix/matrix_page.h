#pragma once
// What both shapes of the permission matrices share: a list of "Yes" and "No" cells that the user
// flips one at a time, by a double click, the EDIT button of tlbListview or the pop-up menu, which
// offers only the flip the cell allows. The pages have no RESTORE: a matrix has no defaults to
// show but all "No".

#include <string>

#include "shell/page.h"

namespace qb::pages {

class MatrixPage : public shell::Page {
  protected:
    // `settingColumn` is the list's column that holds "Yes" or "No".
    MatrixPage(shell::PageContext& context, const std::string& key, shell::PageSize size,
               int settingColumn);

    // After the cell of `row` was flipped on the list.
    virtual void CellFlipped(int /*row*/) {}
    // tlbListview's buttons other than EDIT, and the entries of their drop-down menus.
    virtual void ListButtonClick(const std::string& /*key*/) {}
    virtual void ListMenuClick(const std::string& /*key*/, const std::string& /*menuKey*/) {}

    // Flips the selected row's cell, or the first row's when none is selected: the row the list
    // has current.
    void Flip();

    shell::Toolbar& tlbListview;
    shell::ListControl& lvwPermissions;

  private:
    void RightClick(int row);

    int settingColumn_;
};

// "Yes" turns into "No", and anything else into "Yes".
std::string Flipped(const std::string& cell);

}  // namespace qb::pages
