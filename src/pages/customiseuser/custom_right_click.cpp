// The hub owner's own right click entries: the text of each, who sees it, the menu it stands in
// and whether it is on. The menus show the entries in the list's order, so rows can be moved.

#include <charconv>

#include "pages/customiseuser/customiseuser.h"
#include "shell/page_frame.h"
#include "shell/table_lists.h"
#include "store/table_text.h"
#include "store/text_rules.h"

namespace qb::pages {

// No rebuild touches the entries: an existing file keeps its bare profile numbers, even a number
// the hub no longer has.
const store::FileSchema& CustomRightClickSchema() {
    static const store::FileSchema schema{"CustomiseUser\\CustomRightClick\\CustomRightClick.tbl",
                                          "tCustomRightClick",
                                          {},
                                          store::FileKind::Data};
    return schema;
}

namespace {

using shell::ListControl;
using shell::Toolbar;

// The menus an entry may stand in, by the number the scripts know them by, from 1.
const std::vector<std::string>& Locations() {
    static const std::vector<std::string> locations = {"Hub", "Users", "Hub & Users", "Search"};
    return locations;
}

constexpr const char* kOperators = "Operators Only";
constexpr const char* kEveryone = "All Profiles";
constexpr int kProfile = 2;   // lvwCustomRightClicks: who sees the entry
constexpr int kLocation = 3;  // and where

// A whole number, as the file holds a count or a profile number.
std::optional<int> WholeNumber(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

void SetupMoveToolbar(Toolbar& toolbar) {
    toolbar.imageList = "imlToolbarListview";
    toolbar.buttonHeight = 330;
    toolbar.buttonWidth = 345;
    toolbar.AddButton("MoveTop", "Move to top", "MoveTop");
    toolbar.AddButton("MoveUp", "Move up", "MoveUp");
    toolbar.AddSeparator();
    toolbar.AddButton("MoveDown", "Move down", "MoveDown");
    toolbar.AddButton("MoveBottom", "Move to bottom", "MoveBottom");
}

shell::RowDialogDecl EntryDialog(std::string caption) {
    return {.kind = shell::DialogKind::OneTextTwoCombo,
            .caption = std::move(caption),
            .labels = {"Right Click", "Profile", "Location"},
            .required = 4};  // the text and both choices
}

class frmCustomiseUserCustomRightClick : public shell::Page {
  public:
    static const shell::PageDecl& Decl() {
        using namespace shell::decl;
        constexpr int kWidth = 6000;
        static const shell::PageDecl page{
            .key = "CustomiseUser~CustomRightClick",
            .caption = "CustomiseUser ~ CustomRightClick",
            .size = {6600, 6075},
            .controls = {Label("lblLabel(0)", "Hub Settings"),
                         shell::decl::Toolbar("tlbHubs", {shell::SetupListToolbar}),
                         shell::decl::Toolbar("tlbListviewMovement", {SetupMoveToolbar}),
                         List("lvwCustomRightClicks", kWidth,
                              {{"RightClick", "Right Click", 2800},
                               {"Profile", "Profile", 1500},
                               {"Location", "Location", kWidth - 2800 - 1500 - 350}},
                              true)},
            .editors = {{.list = "lvwCustomRightClicks",
                         .toolbar = "tlbHubs",
                         .popup = "mnuFirst",
                         .methods = "gMenuFirst",
                         .columns = {1, kProfile, kLocation},
                         .add = EntryDialog("Add Right Click"),
                         .edit = EntryDialog("Edit Right Click"),
                         .confirmDelete =
                             shell::Prompt{"Do you really want to delete this right click?",
                                           "Delete right click?"}}},
            .layout =
                shell::Column({shell::Item("lblLabel(0)"),
                               shell::Row({shell::Item("tlbHubs"),
                                           shell::Item("tlbListviewMovement"), shell::Stretch()}),
                               shell::Item("lvwCustomRightClicks")}),
            .noRestore = true,
        };
        return page;
    }

    explicit frmCustomiseUserCustomRightClick(shell::PageContext& context)
        : Page(context, Decl()),
          lvwCustomRightClicks(Get<ListControl>("lvwCustomRightClicks")),
          tlbListviewMovement(Get<Toolbar>("tlbListviewMovement")) {
        shell::RowEditor& editor = Editor("lvwCustomRightClicks");
        editor.onRequest = [this](shell::DialogRequest& request, int) {
            std::vector<std::string> profiles = context_.profiles.Names();
            profiles.push_back(kOperators);
            profiles.push_back(kEveryone);
            request.comboItems = {std::move(profiles), Locations()};
        };
        editor.onStored = [this](int, bool) { SetMoveButtons(); };
        editor.onDeleted = [this] {
            if (lvwCustomRightClicks.Count() >= 2) lvwCustomRightClicks.Select(1);
            SetMoveButtons();
        };
        lvwCustomRightClicks.onItemClick = [this](int) { SetMoveButtons(); };
        // A tick shows on the toolbar, but leaves the page's own flag down: closing the page
        // after ticks alone asks nothing.
        lvwCustomRightClicks.onItemCheck = [this](int) {
            shell::MarkSaveRequired(tlbFormToolbar, stsStatusBar);
        };
        tlbListviewMovement.onButtonClick = [this](const std::string& key) { Move(key); };
    }

  private:
    void LoadSettings() override {
        auto& files = context_.files;
        const store::FileSchema& file = CustomRightClickSchema();
        const auto read = [&](std::string_view key, const std::string& table) {
            return files.ReadTableValue(file.file, key, table);
        };
        lvwCustomRightClicks.Clear();
        const int count = WholeNumber(read("iCommands", file.table)).value_or(0);
        for (int entry = 1; entry <= count; ++entry) {
            // A sub-table is named by its number; a key it lacks is read from the ones behind
            // it, as the scripts' readers have always done.
            const std::string table = std::to_string(entry);
            lvwCustomRightClicks.Append(table + "ID", read("sRightClick", table));
            lvwCustomRightClicks.SetChecked(entry,
                                            store::IsNumericallyOne(read("bEnabled", table)));
            lvwCustomRightClicks.SetCell(entry, kProfile, ProfileShown(read("sProfile", table)));
            lvwCustomRightClicks.SetCell(entry, kLocation, LocationShown(read("iWhere", table)));
        }
        SetMoveButtons();
    }

    void SaveSettings() override {
        const store::FileSchema& file = CustomRightClickSchema();
        store::TableText text(file.table + " = {");
        text.Bare(1, "iCommands", std::to_string(lvwCustomRightClicks.Count()));
        for (int entry = 1; entry <= lvwCustomRightClicks.Count(); ++entry) {
            const shell::ListRow& row = lvwCustomRightClicks.Row(entry);
            text.Open(1, "[" + std::to_string(entry) + "]");
            text.Bare(2, "bEnabled", row.checked ? "1" : "0");
            text.Bare(2, "iWhere", LocationNumber(lvwCustomRightClicks.Cell(entry, kLocation)));
            text.Bare(2, "sProfile", ProfileStored(lvwCustomRightClicks.Cell(entry, kProfile)));
            text.Quoted(2, "sRightClick", row.text);
            text.Close(1);
        }
        context_.files.WriteTextFile(file.file, text.End());
    }

    // A profile by its name, the two groups by theirs; a number the hub doesn't have shows as
    // it stands.
    std::string ProfileShown(const std::string& stored) const {
        if (stored == "ops") return kOperators;
        if (stored == "all") return kEveryone;
        const std::optional<int> number = WholeNumber(stored);
        if (number && *number >= -1 && *number <= context_.profiles.LastNumber()) {
            return context_.profiles.Text(*number + 2);
        }
        return stored;
    }

    // A number that matches no profile's name, one the hub no longer has, is written as it
    // stands; any other text, a hand-edited name or nothing at all, is written as text, so that
    // the scripts can still load the file.
    std::string ProfileStored(const std::string& shown) const {
        if (shown == kOperators) return "\"ops\"";
        if (shown == kEveryone) return "\"all\"";
        const auto& names = context_.profiles.Names();
        for (size_t row = 0; row < names.size(); ++row) {
            if (names[row] == shown) return std::to_string(static_cast<int>(row) - 1);
        }
        return WholeNumber(shown) ? shown : "\"" + shown + "\"";
    }

    static std::string LocationShown(const std::string& stored) {
        const std::optional<int> place = WholeNumber(stored);
        if (!place || *place < 1 || *place > static_cast<int>(Locations().size())) return {};
        return Locations()[static_cast<size_t>(*place - 1)];
    }

    static std::string LocationNumber(const std::string& shown) {
        for (size_t place = 0; place < Locations().size(); ++place) {
            if (Locations()[place] == shown) return std::to_string(place + 1);
        }
        return "0";
    }

    // The selected row, or the first, which the list has current until the user picks another.
    int CurrentRow() const {
        if (lvwCustomRightClicks.Selected() != 0) return lvwCustomRightClicks.Selected();
        return lvwCustomRightClicks.Count() > 0 ? 1 : 0;
    }

    // Up and top are off on the first row, down and bottom on the last; all four with no row.
    void SetMoveButtons() {
        const int row = CurrentRow();
        const bool up = row > 1;
        const bool down = row != 0 && row < lvwCustomRightClicks.Count();
        tlbListviewMovement.SetButtonEnabled("MoveTop", up);
        tlbListviewMovement.SetButtonEnabled("MoveUp", up);
        tlbListviewMovement.SetButtonEnabled("MoveDown", down);
        tlbListviewMovement.SetButtonEnabled("MoveBottom", down);
    }

    // The row is copied whole to its new place under a new key, and the old one removed.
    void Move(const std::string& button) {
        const int row = CurrentRow();
        const int count = lvwCustomRightClicks.Count();
        if (row == 0) return;
        int target = row;
        if (button == "MoveTop") target = 1;
        if (button == "MoveUp") target = row - 1;
        if (button == "MoveDown") target = row + 1;
        if (button == "MoveBottom") target = count;
        if (target < 1 || target > count || target == row) return;
        const shell::ListRow moved = lvwCustomRightClicks.Row(row);
        const std::string key = shell::NewRowKey(context_.files, count + 1);
        lvwCustomRightClicks.Remove(row);
        lvwCustomRightClicks.Add(target, key, moved.text);
        lvwCustomRightClicks.SetChecked(target, moved.checked);
        for (size_t cell = 0; cell < moved.cells.size(); ++cell)
            lvwCustomRightClicks.SetCell(target, static_cast<int>(cell) + 2, moved.cells[cell]);
        lvwCustomRightClicks.Select(target);
        MarkDirty();
        SetMoveButtons();
    }

    ListControl& lvwCustomRightClicks;
    Toolbar& tlbListviewMovement;
};

}  // namespace

shell::PageEntry CustomRightClickPage() {
    return shell::PageOf<frmCustomiseUserCustomRightClick>();
}

}  // namespace qb::pages
