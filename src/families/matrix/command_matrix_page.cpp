// The command shape's page: a collection of permissions, shown as a tree-like list filtered by
// command and by profile.

#include <optional>

#include "families/matrix/command_matrix.h"
#include "families/matrix/matrix_page.h"
#include "families/matrix/permission_collection.h"
#include "shell/page_frame.h"
#include "store/fatal_error.h"
#include "store/table_text.h"
#include "store/text_rules.h"

namespace qb::pages {
namespace {

using shell::PageContext;

constexpr shell::PageSize kSize{5400, 6075};
constexpr int kCommandColumn = 1;
constexpr int kProfileColumn = 2;
constexpr int kSettingColumn = 3;
constexpr const char* kProfileButton = "PROFILE";
constexpr std::string_view kCommandEntryPrefix = "C*";

class CommandMatrixPage : public MatrixPage {
  public:
    CommandMatrixPage(PageContext& context, const CommandMatrix& matrix)
        : MatrixPage(context, matrix.key, kSize, kSettingColumn), matrix_(matrix) {
        lvwPermissions.SetWidth(kSize.width - 180 - 2 * 120);
        SetBody(shell::Column({shell::Item(tlbListview), shell::Item(lvwPermissions)}));
    }

  private:
    void Setup() override {
        lvwPermissions.AddColumn("column1", "Command", 1700);
        lvwPermissions.AddColumn("column2", "Profile", 1700);
        lvwPermissions.AddColumn("column3", "Setting", 900);
        shell::SetupEditToolbar(tlbListview);
        tlbListview.AddButton(matrix_.commandButton, matrix_.commandTip, matrix_.commandButton);
        for (const std::string& command : matrix_.commands) {
            tlbListview.AddMenuEntry(matrix_.commandButton,
                                     std::string(kCommandEntryPrefix) + command, command);
        }
        tlbListview.AddButton(kProfileButton, "View By Profile", kProfileButton);
        for (const std::string& name : context_.profiles.Names()) {
            tlbListview.AddMenuEntry(kProfileButton, name, name);
        }
    }

    void LoadSettings() override {
        permissions_.Clear();
        const store::ProfileList& profiles = context_.profiles;
        for (const std::string& command : matrix_.commands) {
            // Read by key over the whole file: the writers don't agree on every table's name.
            const std::string file = matrix_.filePrefix + command + ".tbl";
            for (int number = -1; number <= profiles.LastNumber(); ++number) {
                const std::string& name = profiles.Text(number + 2);
                const std::string value =
                    context_.files.ReadTableValue(file, std::to_string(number), "", false);
                const std::string key = PermissionKey(command, name);
                try {
                    permissions_.Add(key, command, name, store::IsNumericallyOne(value),
                                     std::to_string(number), key);
                } catch (const std::invalid_argument&) {
                    // The page finds a cell's object by the names a row shows, so two profiles
                    // of one name can't be told apart.
                    throw store::FatalError(
                        context_.files.HubFolder() + "\\cfg\\Profiles.xml",
                        "two profiles are named \"" + name +
                            "\", and the permission pages tell profiles apart by their names");
                }
            }
        }
        Show();
    }

    void RestoreDefaults() override {}  // the page has no RESTORE

    // The objects that pass both filters (an empty filter passes all). A cell that repeats the
    // row above stays blank, so that a command's or a profile's rows read like a branch.
    void Show() {
        lvwPermissions.Clear();
        const std::string* lastCommand = nullptr;
        const std::string* lastProfile = nullptr;
        int n = 0;
        for (const Permission& object : permissions_) {
            if (!commandFilter_.empty() && object.command != commandFilter_) continue;
            if (!profileFilter_.empty() && object.profile != profileFilter_) continue;
            const bool newCommand = lastCommand == nullptr || *lastCommand != object.command;
            const bool newProfile = lastProfile == nullptr || *lastProfile != object.profile;
            shell::ListRow& row =
                lvwPermissions.Append(std::to_string(++n) + "ID", newCommand ? object.command : "");
            row.cells = {newProfile ? object.profile : "", object.permission ? "Yes" : "No"};
            lastCommand = &object.command;
            lastProfile = &object.profile;
        }
    }

    void ListMenuClick(const std::string& button, const std::string& entry) override {
        if (button == matrix_.commandButton) {
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
    void ListButtonClick(const std::string& button) override {
        std::string* filter = button == matrix_.commandButton ? &commandFilter_
                              : button == kProfileButton      ? &profileFilter_
                                                              : nullptr;
        const shell::ToolButton* pressed = tlbListview.Find(button);
        if (filter == nullptr || pressed == nullptr || !pressed->pressed) return;
        filter->clear();
        Show();
        tlbListview.SetButtonPressed(button, false);
    }

    // A row shows its command and profile only where they change, so the object is found by
    // the nearest of each at or above the row.
    void CellFlipped(int row) override {
        std::string command;
        std::string profile;
        for (int above = row; above >= 1 && (command.empty() || profile.empty()); --above) {
            if (command.empty()) command = lvwPermissions.Cell(above, kCommandColumn);
            if (profile.empty()) profile = lvwPermissions.Cell(above, kProfileColumn);
        }
        if (Permission* object = permissions_.Find(PermissionKey(command, profile))) {
            object->permission = lvwPermissions.Cell(row, kSettingColumn) == "Yes";
        }
    }

    // A command's text is written when the walk meets the next command, so the last command's
    // text is never written: its cells keep what its file held. Each text closes with a
    // sub-table's close and the end line, one brace too many for Lua; the manager's own readers
    // take the file as it stands, and the files have always been so.
    void SaveSettings() override {
        std::optional<store::TableText> text;
        const std::string* previous = nullptr;
        for (const Permission& object : permissions_) {
            if (previous == nullptr || *previous != object.command) {
                if (text) {
                    text->Line(1, "},");
                    context_.files.WriteTextFile(matrix_.filePrefix + *previous + ".tbl",
                                                 text->End());
                }
                text.emplace(matrix_.tablePrefix + object.command + " = {");
            }
            text->Bare(2, "[" + object.ProfileKey() + "]", object.permission ? "1" : "0");
            previous = &object.command;
        }
        Reload();
    }

    const CommandMatrix& matrix_;
    Permissions permissions_;
    // Both filters live as long as the page: a save or a discard shows the same view again.
    std::string commandFilter_;
    std::string profileFilter_;
};

}  // namespace

shell::PageEntry CommandMatrixPageOf(const CommandMatrix& matrix) {
    return {matrix.key, [&matrix](PageContext& context) {
                return std::make_unique<CommandMatrixPage>(context, matrix);
            }};
}

}  // namespace qb::pages
