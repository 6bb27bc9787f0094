#include "families/matrix/matrix_page.h"

#include "shell/catalogue.h"

namespace qb::pages {
namespace {

constexpr const char* kProfileButton = "PROFILE";
constexpr std::string_view kCommandEntryPrefix = "C*";

}  // namespace

shell::PageDecl MatrixDecl(const std::string& key, shell::PageSize size, const std::string& list,
                           int listWidth) {
    using namespace shell::decl;
    return {.key = key,
            .caption = shell::CaptionOfKey(key),
            .size = size,
            .controls = {Toolbar("tlbListview"), List(list, listWidth)},
            .noRestore = true,
            // A discard reloads the files and leaves nothing to save.
            .discardClears = true};
}

store::FatalError TwoProfilesNamed(const store::TableFiles& files, const std::string& name) {
    return store::FatalError(files.HubFolder() + "\\cfg\\Profiles.xml",
                             "two profiles are named \"" + name +
                                 "\", and the permission pages tell profiles apart by their names");
}

MatrixPage::MatrixPage(shell::PageContext& context, const shell::PageDecl& decl,
                       const std::string& list, int settingColumn, std::string yes, std::string no)
    : Page(context, decl),
      tlbListview(Get<shell::Toolbar>("tlbListview")),
      lvwMatrix(Get<shell::ListControl>(list)),
      settingColumn_(settingColumn),
      yes_(std::move(yes)),
      no_(std::move(no)) {
    tlbListview.onButtonClick = [this](const std::string& button) {
        if (button == "EDIT") {
            Flip();
        } else if (!commandButton_.empty() &&
                   (button == commandButton_ || button == kProfileButton)) {
            FilterButton(button);
        } else {
            ListButtonClick(button);
        }
    };
    tlbListview.onMenuClick = [this](const std::string& button, const std::string& entry) {
        FilterEntry(button, entry);
    };
    lvwMatrix.onDoubleClick = [this](int) { Flip(); };
    lvwMatrix.onRightClick = [this](int row) { RightClick(row); };
    // The menu shows one entry, the flip the cell allows, so both entries do the same.
    PublishMenuMethod("gMenuTrueFalseTrueClick", [this] { Flip(); });
    PublishMenuMethod("gMenuTrueFalseFalseClick", [this] { Flip(); });
}

void MatrixPage::Flip() {
    if (lvwMatrix.Count() == 0) return;
    const int row = lvwMatrix.Selected() != 0 ? lvwMatrix.Selected() : 1;
    lvwMatrix.SetCell(row, settingColumn_, Flipped(lvwMatrix.Cell(row, settingColumn_), yes_, no_));
    CellFlipped(row);
    MarkDirty();
}

void MatrixPage::RightClick(int row) {
    const bool yes = lvwMatrix.Cell(row, settingColumn_) == yes_;
    SetPopupEntryVisible("mnuTrueFalseTrue", !yes);
    SetPopupEntryVisible("mnuTrueFalseFalse", yes);
    ShowPopupMenu("mnuTrueFalse");
}

void MatrixPage::AddFilterButtons(const std::string& commandButton, const std::string& commandTip,
                                  const std::vector<std::string>& commands) {
    commandButton_ = commandButton;
    tlbListview.AddButton(commandButton, commandTip, commandButton);
    for (const std::string& command : commands) {
        tlbListview.AddMenuEntry(commandButton, std::string(kCommandEntryPrefix) + command,
                                 command);
    }
    tlbListview.AddButton(kProfileButton, "View By Profile", kProfileButton);
    for (const std::string& name : context_.profiles.Names())
        tlbListview.AddMenuEntry(kProfileButton, name, name);
}

bool MatrixPage::Passes(const std::string& command, const std::string& profile) const {
    return (commandFilter_.empty() || command == commandFilter_) &&
           (profileFilter_.empty() || profile == profileFilter_);
}

std::pair<std::string, std::string> MatrixPage::NamesAt(int row, int commandColumn,
                                                        int profileColumn) const {
    const auto cell = [&](int at, int column) -> const std::string& {
        return column == 1 ? lvwMatrix.Row(at).text : lvwMatrix.Cell(at, column);
    };
    std::pair<std::string, std::string> names;
    for (int above = row; above >= 1 && (names.first.empty() || names.second.empty()); --above) {
        if (names.first.empty()) names.first = cell(above, commandColumn);
        if (names.second.empty()) names.second = cell(above, profileColumn);
    }
    return names;
}

void MatrixPage::FilterEntry(const std::string& button, const std::string& entry) {
    if (commandButton_.empty()) return;
    if (button == commandButton_) {
        commandFilter_ = entry.starts_with(kCommandEntryPrefix)
                             ? entry.substr(kCommandEntryPrefix.size())
                             : entry;
    } else if (button == kProfileButton) {
        profileFilter_ = entry;
    } else {
        return;
    }
    tlbListview.SetButtonPressed(button, true);
    Show();
}

// A click on a pressed filter button lifts it and clears its filter alone.
void MatrixPage::FilterButton(const std::string& button) {
    const shell::ToolButton* pressed = tlbListview.Find(button);
    if (pressed == nullptr || !pressed->pressed) return;
    (button == commandButton_ ? commandFilter_ : profileFilter_).clear();
    Show();
    tlbListview.SetButtonPressed(button, false);
}

std::string Flipped(const std::string& cell, const std::string& yes, const std::string& no) {
    return cell == yes ? no : yes;
}

}  // namespace qb::pages
