// The pair shape's page: a row per cell of the matrix, By profile against On profile.

#include <algorithm>
#include <cctype>

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

class PairMatrixPage : public MatrixPage {
  public:
    PairMatrixPage(PageContext& context, const PairMatrix& matrix)
        : MatrixPage(context, matrix.key, matrix.passive ? kPassiveSize : kPairSize, kAllowColumn),
          matrix_(matrix) {
        lvwPermissions.SetWidth(kPairSize.width - 180 - 2 * 120);
        if (matrix_.passive == nullptr) {
            SetBody(shell::Column({shell::Item(tlbListview), shell::Item(lvwPermissions)}));
            return;
        }
        lblPassive_ = &Add<shell::Label>("lblLabel(0)", matrix_.passive->label);
        lvwEnabledProfiles_ = &Add<ListControl>("lvwEnabledProfiles", true);
        lvwEnabledProfiles_->SetWidth(kPassiveSize.width - kPairSize.width - 120);
        lvwEnabledProfiles_->onItemCheck = [this](int) { MarkDirty(); };
        // The matrix takes the room; the check list needs only its names.
        SetBody(shell::Row(
            {shell::Weighted(shell::Column({shell::Item(tlbListview), shell::Item(lvwPermissions)}),
                             2),
             shell::Weighted(
                 shell::Column({shell::Item(*lblPassive_), shell::Item(*lvwEnabledProfiles_)}),
                 1)}));
    }

  private:
    void Setup() override {
        lvwPermissions.AddColumn("column1", "Command", 1100);
        lvwPermissions.AddColumn("column2", "By Profile", 1500);
        lvwPermissions.AddColumn("column3", "On Profile", 1500);
        lvwPermissions.AddColumn("column4", "Allow To", 900);
        // Work columns: the two profile numbers that the save writes.
        lvwPermissions.AddColumn("column5", "iProfileBy", 0);
        lvwPermissions.AddColumn("column6", "iProfileOn", 0);
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
    // first row of a By group names the By profile: the save finds the groups by that.
    void LoadSettings() override {
        lvwPermissions.Clear();
        const store::ProfileList& profiles = context_.profiles;
        int n = 0;
        auto addRow = [&](int by, bool groupStart, std::string onText, std::string onKey) {
            ++n;
            const std::string byKey = std::to_string(by);
            const std::string value =
                context_.files.ReadTableValue(matrix_.file, onKey, byKey, false);
            ListControl& list = lvwPermissions;
            shell::ListRow& row =
                list.Append(std::to_string(n) + "ID", n == 1 ? matrix_.command : std::string());
            row.cells = {groupStart ? profiles.Text(by + 2) : std::string(), std::move(onText),
                         store::IsNumericallyOne(value) ? "Yes" : "No", byKey, std::move(onKey)};
        };
        for (int by = -1; by <= profiles.LastNumber(); ++by) {
            for (int on = -1; on <= profiles.LastNumber(); ++on) {
                addRow(by, on == -1, profiles.Text(on + 2), std::to_string(on));
            }
            if (matrix_.passive == nullptr) continue;
            for (const std::string& word : matrix_.passive->pageWords) {
                addRow(by, false, word, word);
            }
        }
        if (lvwEnabledProfiles_ != nullptr) {
            shell::LoadProfileChecks(*lvwEnabledProfiles_, context_, matrix_.file,
                                     matrix_.passive->subTable);
        }
    }

    void RestoreDefaults() override {}  // the page has no RESTORE

    // The rows are taken from the top, as many as the load made for today's profiles; each one
    // that names a By profile opens that profile's group. The list is empty then, and loads again.
    void SaveSettings() override {
        const store::ProfileList& profiles = context_.profiles;
        store::TableText text(matrix_.table + " = {");
        int consumed = profiles.Count() * profiles.Count();
        if (matrix_.passive != nullptr) {
            text.Open(1, matrix_.passive->subTable);
            for (int number = -1; number <= profiles.LastNumber(); ++number) {
                text.Row(2, number, shell::ProfileCheckValue(*lvwEnabledProfiles_, number));
            }
            text.Close(1);
            consumed += profiles.Count() * static_cast<int>(matrix_.passive->pageWords.size());
        }
        consumed = std::min(consumed, lvwPermissions.Count());
        bool groupOpen = false;
        for (int index = 1; index <= consumed; ++index) {
            const shell::ListRow& row = lvwPermissions.Row(index);
            const std::string& on = row.cells[kOnNumberColumn - 2];
            if (!row.cells[kByProfileColumn - 2].empty()) {
                if (groupOpen) text.Close(1);
                text.Open(1, "[" + row.cells[kByNumberColumn - 2] + "]");
                groupOpen = true;
            }
            const std::string key = IsProfileNumber(on) ? "[" + on + "]" : "[\"" + on + "\"]";
            text.Bare(2, key, row.cells[kAllowColumn - 2] == "Yes" ? "1" : "0");
        }
        if (groupOpen) text.Close(1);
        // Every row the load made is consumed: the profiles can't change while the page is open.
        lvwPermissions.Clear();
        context_.files.WriteTextFile(matrix_.file, text.End());
        Reload();
    }

    const PairMatrix& matrix_;
    shell::Label* lblPassive_ = nullptr;
    ListControl* lvwEnabledProfiles_ = nullptr;
};

}  // namespace

shell::PageEntry PairMatrixPageOf(const PairMatrix& matrix) {
    return {matrix.key, [&matrix](PageContext& context) {
                return std::make_unique<PairMatrixPage>(context, matrix);
            }};
}

}  // namespace qb::pages
