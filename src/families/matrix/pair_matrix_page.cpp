// The pair shape's pages: a row per cell of the matrix, By profile against On profile, for each
// command of the member.

#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>
#include <unordered_map>

#include "families/matrix/matrix_page.h"
#include "families/matrix/pair_matrix.h"
#include "shell/page_frame.h"
#include "shell/profile_checks.h"
#include "store/table_text.h"
#include "store/text_rules.h"

namespace qb::pages {
namespace {

using shell::ListControl;
using shell::PageContext;

constexpr shell::PageSize kPairSize{6000, 6075};
constexpr shell::PageSize kPassiveSize{9000, 6075};

// iProfileOn holds a profile number or a word row's word; the save tells them apart so.
bool IsProfileNumber(std::string_view text) {
    if (!text.empty() && text.front() == '-') text.remove_prefix(1);
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
        return std::isdigit(static_cast<unsigned char>(c)) != 0;
    });
}

shell::PageDecl DeclOf(const PairMatrix& matrix) {
    if (matrix.page != nullptr) return *matrix.page;
    return MatrixDecl(matrix.key, matrix.passive ? kPassiveSize : kPairSize, matrix.list,
                      shell::FillWidth(kPairSize.width));
}

// The profile numbers of one axis.
std::vector<std::string> Numbers(int first, int last) {
    std::vector<std::string> numbers;
    for (int number = first; number <= last; ++number)
        numbers.push_back(std::to_string(number));
    return numbers;
}

// A row's key, "<n>ID", made without a temporary: a matrix page makes hundreds of thousands.
std::string RowKey(int n) {
    char buffer[16];
    char* end = std::to_chars(buffer, buffer + sizeof buffer - 2, n).ptr;
    *end++ = 'I';
    *end++ = 'D';
    return std::string(buffer, end);
}

// A row per cell, straight from the files; the list is the data.
class PairListPage : public MatrixPage {
  public:
    PairListPage(PageContext& context, const PairMatrix& matrix)
        : MatrixPage(context, DeclOf(matrix), matrix.list, kAllowColumn, matrix.yes, matrix.no),
          matrix_(matrix) {
        if (matrix_.passive == nullptr) return;
        lblPassive_ = &Add<shell::Label>("lblLabel(0)", matrix_.passive->label);
        lvwEnabledProfiles_ = &Add<ListControl>("lvwEnabledProfiles", true);
        lvwEnabledProfiles_->SetWidth(kPassiveSize.width - kPairSize.width - 120);
        lvwEnabledProfiles_->onItemCheck = [this](int) { MarkDirty(); };
        // The matrix takes the room; the check list needs only its names.
        SetBody(shell::Row(
            {shell::Weighted(shell::Column({shell::Item(tlbListview), shell::Item(lvwMatrix)}), 2),
             shell::Weighted(
                 shell::Column({shell::Item(*lblPassive_), shell::Item(*lvwEnabledProfiles_)}),
                 1)}));
    }

  private:
    void Setup() override {
        lvwMatrix.AddColumn("column1", "Command", matrix_.commandWidth);
        lvwMatrix.AddColumn("column2", "By Profile", 1500);
        lvwMatrix.AddColumn("column3", "On Profile", 1500);
        lvwMatrix.AddColumn("column4", matrix_.allowColumn, 900);
        // Work columns: the two profile numbers that the save writes.
        lvwMatrix.AddColumn("column5", "iProfileBy", 0);
        lvwMatrix.AddColumn("column6", "iProfileOn", 0);
        shell::SetupEditToolbar(tlbListview);
        if (matrix_.passive == nullptr) return;
        shell::SetupAmendToolbar(tlbListview);
        tlbListview.SetButtonTip("AMEND", matrix_.passive->amendTip);
        lvwEnabledProfiles_->AddColumn("column1", "", lvwEnabledProfiles_->Width() - 350);
    }

    void ListButtonClick(const std::string& key) override {
        if (key == "AMEND" && matrix_.passive != nullptr) {
            context_.host.OpenTextEditor(matrix_.passive->amendFile, "E");
        }
    }

    // Rows come straight from the profile list, each cell read by its two numbers. Only the
    // first row of a command names the command, and only the first row of a By group the By
    // profile: the save finds the groups by that.
    void LoadSettings() override {
        Page::LoadSettings();  // the member's own settings, where it has any
        lvwMatrix.Clear();
        const store::ProfileList& profiles = context_.profiles;
        const int first = matrix_.firstProfile;
        const std::vector<std::string> numbers = Numbers(first, profiles.LastNumber());
        const size_t words = matrix_.passive != nullptr ? matrix_.passive->pageWords.size() : 0;
        lvwMatrix.Reserve(
            static_cast<int>(matrix_.commands.size() * numbers.size() * (numbers.size() + words)));
        int n = 0;
        for (const PairCommand& command : matrix_.commands) {
            const int commandRow = n + 1;
            auto addRow = [&](size_t by, bool groupStart, const std::string& onText,
                              const std::string& onKey) {
                ++n;
                const std::string& byKey = numbers[by];
                const std::string value =
                    context_.files.ReadTableValue(command.file.file, onKey, byKey, false);
                shell::ListRow& row =
                    lvwMatrix.Append(RowKey(n), n == commandRow ? command.text : std::string());
                // Built in place: a braced list would copy each of the five texts once more.
                row.cells.reserve(5);
                row.cells.emplace_back(groupStart ? profiles.Text(first + static_cast<int>(by) + 2)
                                                  : std::string());
                row.cells.emplace_back(onText);
                row.cells.emplace_back(store::IsNumericallyOne(value) ? Yes() : No());
                row.cells.emplace_back(byKey);
                row.cells.emplace_back(onKey);
            };
            for (size_t by = 0; by < numbers.size(); ++by) {
                for (size_t on = 0; on < numbers.size(); ++on) {
                    addRow(by, on == 0, profiles.Text(first + static_cast<int>(on) + 2),
                           numbers[on]);
                }
                if (matrix_.passive == nullptr) continue;
                for (const std::string& word : matrix_.passive->pageWords)
                    addRow(by, false, word, word);
            }
        }
        if (lvwEnabledProfiles_ != nullptr) {
            shell::LoadProfileChecks(*lvwEnabledProfiles_, context_,
                                     matrix_.commands.front().file.file, matrix_.passive->subTable);
        }
    }

    // For each command, the rows are taken from the top, as many as the load made for today's
    // profiles; each one that names a By profile opens that profile's group. The list is empty
    // then, and loads again.
    void SaveSettings() override {
        Page::SaveSettings();  // the member's own settings file first
        const store::ProfileList& profiles = context_.profiles;
        const int side = profiles.LastNumber() - matrix_.firstProfile + 1;
        int index = 1;
        for (const PairCommand& command : matrix_.commands) {
            store::TableText text(command.file.table + " = {");
            int consumed = side * side;
            if (matrix_.passive != nullptr) {
                text.Open(1, matrix_.passive->subTable);
                for (int number = -1; number <= profiles.LastNumber(); ++number) {
                    text.Row(2, number, shell::ProfileCheckValue(*lvwEnabledProfiles_, number));
                }
                text.Close(1);
                consumed += side * static_cast<int>(matrix_.passive->pageWords.size());
            }
            const int last = std::min(index + consumed - 1, lvwMatrix.Count());
            bool groupOpen = false;
            for (; index <= last; ++index) {
                const shell::ListRow& row = lvwMatrix.Row(index);
                const std::string& on = row.cells[kOnNumberColumn - 2];
                if (!row.cells[kByProfileColumn - 2].empty()) {
                    if (groupOpen) text.Close(1);
                    text.Open(1, "[" + row.cells[kByNumberColumn - 2] + "]");
                    groupOpen = true;
                }
                const char* allow = row.cells[kAllowColumn - 2] == Yes() ? "1" : "0";
                if (IsProfileNumber(on)) {
                    text.Row(2, on, allow);
                } else {
                    text.Bare(2, "[\"" + on + "\"]", allow);
                }
            }
            if (groupOpen) text.Close(1);
            context_.files.WriteTextFile(command.file.file, text.End());
        }
        // Every row the load made is consumed: the profiles can't change while the page is open.
        lvwMatrix.Clear();
        Reload();
    }

    const PairMatrix& matrix_;
    shell::Label* lblPassive_ = nullptr;
    ListControl* lvwEnabledProfiles_ = nullptr;
};

// The cells held apart from the list, shown by command and By profile.
class PairFilteredPage : public MatrixPage {
  public:
    PairFilteredPage(PageContext& context, const PairMatrix& matrix)
        : MatrixPage(context, DeclOf(matrix), matrix.list, kFilteredAllow, matrix.yes, matrix.no),
          matrix_(matrix) {}

  private:
    static constexpr int kFilteredAllow = 4;

    void Setup() override {
        lvwMatrix.AddColumn("column1", "Command", matrix_.commandWidth);
        lvwMatrix.AddColumn("column2", "By Profile", 1500);
        lvwMatrix.AddColumn("column3", "On Profile", 1500);
        lvwMatrix.AddColumn("column4", matrix_.allowColumn, 900);
        shell::SetupEditToolbar(tlbListview);
        std::vector<std::string> commands;
        for (const PairCommand& command : matrix_.commands)
            commands.push_back(command.text);
        AddFilterButtons("COMMAND", "View By Command", commands);
    }

    int Side() const { return context_.profiles.LastNumber() - matrix_.firstProfile + 1; }
    const std::string& Name(int place) const {
        return context_.profiles.Text(place + matrix_.firstProfile + 2);
    }
    size_t Cell(size_t command, int by, int on) const {
        const auto side = static_cast<size_t>(Side());
        return (command * side + static_cast<size_t>(by)) * side + static_cast<size_t>(on);
    }

    // Every cell of every command, read by its two numbers. A cell is found again by the names
    // its row shows, so two profiles of one name can't be told apart.
    void LoadSettings() override {
        Page::LoadSettings();
        const int side = Side();
        places_.clear();
        for (int place = 0; place < side; ++place) {
            if (!places_.emplace(Name(place), place).second) {
                throw TwoProfilesNamed(context_.files, Name(place));
            }
        }
        const std::vector<std::string> numbers =
            Numbers(matrix_.firstProfile, context_.profiles.LastNumber());
        cells_.assign(matrix_.commands.size() * static_cast<size_t>(side * side), 0);
        for (size_t command = 0; command < matrix_.commands.size(); ++command) {
            const std::string& file = matrix_.commands[command].file.file;
            for (int by = 0; by < side; ++by) {
                for (int on = 0; on < side; ++on) {
                    const std::string value =
                        context_.files.ReadTableValue(file, numbers[static_cast<size_t>(on)],
                                                      numbers[static_cast<size_t>(by)], false);
                    cells_[Cell(command, by, on)] = store::IsNumericallyOne(value) ? 1 : 0;
                }
            }
        }
        Show();
    }

    // The cells that pass both filters, the PROFILE filter on the By axis. A Command or By
    // Profile cell that repeats the last row shown stays blank, so the list reads like a tree.
    void Show() override {
        lvwMatrix.Clear();
        const int side = Side();
        lvwMatrix.Reserve(static_cast<int>(cells_.size()));
        const std::string* lastCommand = nullptr;
        const std::string* lastBy = nullptr;
        int n = 0;
        for (size_t command = 0; command < matrix_.commands.size(); ++command) {
            const std::string& text = matrix_.commands[command].text;
            for (int by = 0; by < side; ++by) {
                const std::string& byName = Name(by);
                if (!Passes(text, byName)) continue;
                // Only a group's first row can differ from the row above it in these two.
                bool newCommand = lastCommand == nullptr || *lastCommand != text;
                bool newBy = lastBy == nullptr || *lastBy != byName;
                for (int on = 0; on < side; ++on) {
                    shell::ListRow& row =
                        lvwMatrix.Append(RowKey(++n), newCommand ? text : std::string());
                    row.cells.reserve(3);
                    row.cells.emplace_back(newBy ? byName : std::string());
                    row.cells.emplace_back(Name(on));
                    row.cells.emplace_back(cells_[Cell(command, by, on)] != 0 ? Yes() : No());
                    lastCommand = &text;
                    lastBy = &byName;
                    newCommand = false;
                    newBy = false;
                }
            }
        }
    }

    // The cell of a row is found by the nearest command and By profile at or above it, and the
    // row's own On profile.
    void CellFlipped(int row) override {
        const auto [command, by] = NamesAt(row, 1, 2);
        const auto byPlace = places_.find(by);
        const auto onPlace = places_.find(lvwMatrix.Cell(row, 3));
        if (byPlace == places_.end() || onPlace == places_.end()) return;
        for (size_t index = 0; index < matrix_.commands.size(); ++index) {
            if (matrix_.commands[index].text != command) continue;
            cells_[Cell(index, byPlace->second, onPlace->second)] =
                lvwMatrix.Cell(row, kFilteredAllow) == Yes() ? 1 : 0;
            return;
        }
    }

    // Every command's file from the cells, whatever was flipped, in one walk over the cells: a
    // command begins its text, and a By profile other than the last cell's opens its group. The
    // last cell's By profile is compared across commands too, so on a hub of Unregistered alone
    // the commands after the first get no group, as the files have always had it. The view stays
    // as it is: nothing loads again.
    void SaveSettings() override {
        Page::SaveSettings();
        const int side = Side();
        // Each On number made into text once, not once per cell.
        const std::vector<std::string> numbers =
            Numbers(matrix_.firstProfile, context_.profiles.LastNumber());
        std::optional<store::TableText> text;
        const std::string* lastBy = nullptr;
        const auto write = [&](size_t command) {
            text->Line(1, "},");
            context_.files.WriteTextFile(matrix_.commands[command].file.file, text->End());
        };
        for (size_t command = 0; command < matrix_.commands.size(); ++command) {
            if (text) write(command - 1);
            text.emplace(matrix_.commands[command].file.table + " = {");
            bool groupOpen = false;
            for (int by = 0; by < side; ++by) {
                const std::string& byName = Name(by);
                if (lastBy == nullptr || *lastBy != byName) {
                    if (groupOpen) text->Close(1);
                    text->Open(1, "[" + std::to_string(by + matrix_.firstProfile) + "]");
                    groupOpen = true;
                }
                lastBy = &byName;
                for (int on = 0; on < side; ++on) {
                    text->Row(2, numbers[static_cast<size_t>(on)],
                              cells_[Cell(command, by, on)] != 0 ? "1" : "0");
                }
            }
        }
        if (text) write(matrix_.commands.size() - 1);
    }

    const PairMatrix& matrix_;
    std::vector<char> cells_;                      // command, By, On
    std::unordered_map<std::string, int> places_;  // a profile's name, its place on an axis
};

}  // namespace

shell::PageEntry PairMatrixPageOf(const PairMatrix& matrix) {
    const auto make = [&matrix](PageContext& context) -> std::unique_ptr<shell::Page> {
        if (matrix.view == PairView::ByCommandAndProfile) {
            return std::make_unique<PairFilteredPage>(context, matrix);
        }
        return std::make_unique<PairListPage>(context, matrix);
    };
    if (matrix.page != nullptr) return {*matrix.page, make};
    return {matrix.key, make};
}

}  // namespace qb::pages
