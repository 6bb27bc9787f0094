// The command shape's page: a collection of permissions, shown as a tree-like list filtered by
// command and by profile.

#include <optional>

#include "families/matrix/command_matrix.h"
#include "families/matrix/matrix_page.h"
#include "families/matrix/permission_collection.h"
#include "shell/page_frame.h"
#include "store/table_text.h"
#include "store/text_rules.h"

namespace qb::pages {
namespace {

using shell::PageContext;

constexpr shell::PageSize kSize{5400, 6075};
constexpr int kCommandColumn = 1;
constexpr int kProfileColumn = 2;
constexpr int kSettingColumn = 3;

class CommandMatrixPage : public MatrixPage {
  public:
    CommandMatrixPage(PageContext& context, const CommandMatrix& matrix)
        : MatrixPage(context,
                     MatrixDecl(matrix.key, kSize, "lvwPermissions", shell::FillWidth(kSize.width)),
                     "lvwPermissions", kSettingColumn),
          matrix_(matrix) {}

  private:
    void Setup() override {
        lvwMatrix.AddColumn("column1", "Command", 1700);
        lvwMatrix.AddColumn("column2", "Profile", 1700);
        lvwMatrix.AddColumn("column3", "Setting", 900);
        shell::SetupEditToolbar(tlbListview);
        AddFilterButtons(matrix_.commandButton, matrix_.commandTip, matrix_.commands);
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
                    throw TwoProfilesNamed(context_.files, name);
                }
            }
        }
        Show();
    }

    void RestoreDefaults() override {}  // the page has no RESTORE

    // The objects that pass both filters. A cell that repeats the row above stays blank, so
    // that a command's or a profile's rows read like a branch.
    void Show() override {
        lvwMatrix.Clear();
        const std::string* lastCommand = nullptr;
        const std::string* lastProfile = nullptr;
        int n = 0;
        for (const Permission& object : permissions_) {
            if (!Passes(object.command, object.profile)) continue;
            const bool newCommand = lastCommand == nullptr || *lastCommand != object.command;
            const bool newProfile = lastProfile == nullptr || *lastProfile != object.profile;
            shell::ListRow& row =
                lvwMatrix.Append(std::to_string(++n) + "ID", newCommand ? object.command : "");
            row.cells = {newProfile ? object.profile : "", object.permission ? "Yes" : "No"};
            lastCommand = &object.command;
            lastProfile = &object.profile;
        }
    }

    void CellFlipped(int row) override {
        const auto [command, profile] = NamesAt(row, kCommandColumn, kProfileColumn);
        if (Permission* object = permissions_.Find(PermissionKey(command, profile))) {
            object->permission = lvwMatrix.Cell(row, kSettingColumn) == "Yes";
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
};

}  // namespace

shell::PageEntry CommandMatrixPageOf(const CommandMatrix& matrix) {
    return {matrix.key, [&matrix](PageContext& context) {
                return std::make_unique<CommandMatrixPage>(context, matrix);
            }};
}

}  // namespace qb::pages
