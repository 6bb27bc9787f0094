#include "families/matrix/matrix_page.h"

#include "shell/catalogue.h"

namespace qb::pages {

MatrixPage::MatrixPage(shell::PageContext& context, const std::string& key, shell::PageSize size,
                       int settingColumn)
    // A discard reloads the files and leaves nothing to save.
    : Page(context, {.key = key,
                     .caption = shell::CaptionOfKey(key),
                     .size = size,
                     .noRestore = true,
                     .discardClears = true}),
      tlbListview(Add<shell::Toolbar>("tlbListview")),
      lvwPermissions(Add<shell::ListControl>("lvwPermissions")),
      settingColumn_(settingColumn) {
    tlbListview.onButtonClick = [this](const std::string& button) {
        if (button == "EDIT") {
            Flip();
        } else {
            ListButtonClick(button);
        }
    };
    tlbListview.onMenuClick = [this](const std::string& button, const std::string& entry) {
        ListMenuClick(button, entry);
    };
    lvwPermissions.onDoubleClick = [this](int) { Flip(); };
    lvwPermissions.onRightClick = [this](int row) { RightClick(row); };
    // The menu shows one entry, the flip the cell allows, so both entries do the same.
    PublishMenuMethod("gMenuTrueFalseTrueClick", [this] { Flip(); });
    PublishMenuMethod("gMenuTrueFalseFalseClick", [this] { Flip(); });
}

void MatrixPage::Flip() {
    if (lvwPermissions.Count() == 0) return;
    const int row = lvwPermissions.Selected() != 0 ? lvwPermissions.Selected() : 1;
    lvwPermissions.SetCell(row, settingColumn_, Flipped(lvwPermissions.Cell(row, settingColumn_)));
    CellFlipped(row);
    MarkDirty();
}

void MatrixPage::RightClick(int row) {
    const bool yes = lvwPermissions.Cell(row, settingColumn_) == "Yes";
    SetPopupEntryVisible("mnuTrueFalseTrue", !yes);
    SetPopupEntryVisible("mnuTrueFalseFalse", yes);
    ShowPopupMenu("mnuTrueFalse");
}

std::string Flipped(const std::string& cell) {
    return cell == "Yes" ? "No" : "Yes";
}

}  // namespace qb::pages
