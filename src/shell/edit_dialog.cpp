#include "shell/edit_dialog.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <stdexcept>

namespace qb::shell {
namespace {

struct Rule {
    int code;  // kOther for any code without its own rule
    const char* paint;
};

constexpr int kOther = -1000;

// Which fields each requirement code paints, and where it bars Add, in the words of the dialogs'
// own table: T for a text box (the one beside an up-down too), C for a combo, "C" alone for the
// single combo. A text box the dialog doesn't have is painted nowhere.
const std::map<DialogKind, std::vector<Rule>>& Rules() {
    using K = DialogKind;
    static const std::map<DialogKind, std::vector<Rule>> rules = {
        {K::OneFields, {{0, "T0, no Add"}, {1, "T0"}}},
        {K::OneUpDown, {{0, "T0, no Add"}, {1, "T0"}}},
        {K::TwoFields,
         {{0, "nothing"}, {1, "T0, T1"}, {2, "T0, T1, no Add"}, {3, "T1, T2"}, {4, "T0, T1, T2"}}},
        {K::ThreeFields,
         {{0, "T0, no Add"},
          {1, "T1"},
          {2, "T0"},
          {3, "T1"},
          {4, "T0, T1, T2"},
          {5, "T0, T1, T2, no Add"},
          {kOther, "T2"}}},
        {K::FourFields,
         {{0, "T0, no Add"},
          {1, "T1"},
          {2, "T0"},
          {3, "T1"},
          {4, "T0, T1"},
          {5, "T0 to T3, no Add"},
          {6, "T0 to T3"},
          {kOther, "T2"}}},
        {K::TwoUpDowns, {{0, "T0, no Add"}, {1, "T0, T1, no Add"}, {2, "T1"}}},
        {K::UpDownCombo, {{0, "T0, no Add"}, {1, "T0, C, no Add"}, {2, "T1"}, {3, "T1, C"}}},
        {K::TextCombo, {{0, "no Add"}, {1, "T0"}, {2, "C"}, {3, "T1, C"}}},
        {K::OneTextTwoCombo,
         {{0, "no Add"}, {1, "T0"}, {2, "C0"}, {3, "T0, C0"}, {4, "T0, C0, C1"}}},
        {K::TwoTextCombo, {{0, "no Add"}, {1, "T0"}, {2, "C"}, {3, "T0, C"}, {4, "T0, T1, C"}}},
        {K::ThreeCombos,
         {{0, "C0, no Add"},
          {1, "C1"},
          {2, "C0"},
          {3, "C1"},
          {4, "C0, C1, C2"},
          {5, "C0, C1, C2, no Add"},
          {kOther, "C2"}}},
        {K::FourCombos,
         {{0, "C0, no Add"},
          {1, "C1"},
          {2, "C0"},
          {3, "C1"},
          {4, "C0, C1"},
          {5, "C0 to C3, no Add"},
          {6, "C0 to C3"},
          {kOther, "C2"}}},
    };
    return rules;
}

const char* PaintFor(DialogKind kind, int code) {
    const auto& rules = Rules().at(kind);
    for (const auto& rule : rules) {
        if (rule.code == code) return rule.paint;
    }
    for (const auto& rule : rules) {
        if (rule.code == kOther) return rule.paint;
    }
    return "nothing";
}

std::vector<std::string> SplitAtCommas(const std::string& text) {
    std::vector<std::string> parts;
    size_t start = 0;
    while (start <= text.size()) {
        const size_t comma = text.find(", ", start);
        parts.push_back(text.substr(start, comma == std::string::npos ? comma : comma - start));
        if (comma == std::string::npos) break;
        start = comma + 2;
    }
    return parts;
}

bool ParseInt(const std::string& text, int& value) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

}  // namespace

std::string DialogFormName(DialogKind kind) {
    static const std::map<DialogKind, const char*> names = {
        {DialogKind::OneFields, "OneFields"},
        {DialogKind::TwoFields, "TwoFields"},
        {DialogKind::ThreeFields, "ThreeFields"},
        {DialogKind::FourFields, "FourFields"},
        {DialogKind::OneUpDown, "OneUpDown"},
        {DialogKind::TwoUpDowns, "TwoUpDowns"},
        {DialogKind::TextCombo, "TextCombo"},
        {DialogKind::OneTextTwoCombo, "OneTextTwoCombo"},
        {DialogKind::TwoTextCombo, "TwoTextCombo"},
        {DialogKind::ThreeCombos, "ThreeCombos"},
        {DialogKind::FourCombos, "FourCombos"},
        {DialogKind::UpDownCombo, "UpDownCombo"},
    };
    return std::string("frmGlobalEdit") + names.at(kind);
}

std::vector<FieldKind> FieldKindsOf(DialogKind kind) {
    using F = FieldKind;
    switch (kind) {
        case DialogKind::OneFields:
            return {F::Text};
        case DialogKind::TwoFields:
            return {F::Text, F::Text};
        case DialogKind::ThreeFields:
            return {F::Text, F::Text, F::Text};
        case DialogKind::FourFields:
            return {F::Text, F::Text, F::Text, F::Text};
        case DialogKind::OneUpDown:
            return {F::UpDown};
        case DialogKind::TwoUpDowns:
            return {F::UpDown, F::UpDown};
        case DialogKind::TextCombo:
            return {F::Text, F::Combo};
        case DialogKind::OneTextTwoCombo:
            return {F::Text, F::Combo, F::Combo};
        case DialogKind::TwoTextCombo:
            return {F::Text, F::Text, F::Combo};
        case DialogKind::ThreeCombos:
            return {F::Combo, F::Combo, F::Combo};
        case DialogKind::FourCombos:
            return {F::Combo, F::Combo, F::Combo, F::Combo};
        case DialogKind::UpDownCombo:
            return {F::UpDown, F::Combo};
    }
    return {};
}

EditDialog::EditDialog(const DialogRequest& request) : request_(request) {
    int texts = 0;
    int combos = 0;
    int updowns = 0;
    const auto kinds = FieldKindsOf(request.kind);
    for (size_t i = 0; i < kinds.size(); ++i) {
        DialogField field{kinds[i], 0, {}, request.values[i], {}, {}, false};
        if (i < request.labels.size()) field.label = request.labels[i];
        if (field.kind == FieldKind::Combo) {
            field.index = combos;
            if (static_cast<size_t>(combos) < request.comboItems.size()) {
                field.items = request.comboItems[static_cast<size_t>(combos)];
            }
            ++combos;
        } else {
            field.index = texts++;
            if (field.kind == FieldKind::UpDown) {
                if (static_cast<size_t>(updowns) < request.bounds.size()) {
                    field.bounds = request.bounds[static_cast<size_t>(updowns)];
                }
                ++updowns;
            }
        }
        fields_.push_back(std::move(field));
    }
    Activate();
}

void EditDialog::Activate() {
    okEnabled_ = false;
    addEnabled_ = false;
    noAdd_ = false;
    for (const auto& part : SplitAtCommas(PaintFor(request_.kind, request_.required))) {
        if (part == "nothing") continue;
        if (part == "no Add") {
            noAdd_ = true;
            continue;
        }
        const bool combo = part[0] == 'C';
        const int first = part.size() > 1 ? part[1] - '0' : 0;
        const int last = part.find(" to ") != std::string::npos ? part.back() - '0' : first;
        for (auto& field : fields_) {
            const bool isCombo = field.kind == FieldKind::Combo;
            if (isCombo == combo && field.index >= first && field.index <= last) {
                field.painted = true;
            }
        }
    }
}

bool EditDialog::UserSetField(int index, const std::string& value) {
    if (index < 0 || index >= static_cast<int>(fields_.size())) return false;
    DialogField& field = fields_[static_cast<size_t>(index)];
    switch (field.kind) {
        case FieldKind::Text:
            field.value = value;
            break;
        case FieldKind::UpDown: {
            int number = 0;
            if (!ParseInt(value, number)) return false;
            number = std::clamp(number, field.bounds.min, field.bounds.max);
            field.value = std::to_string(number);
            break;
        }
        case FieldKind::Combo:
            if (!request_.editableCombos &&
                std::find(field.items.begin(), field.items.end(), value) == field.items.end()) {
                return false;
            }
            field.value = value;
            break;
    }
    if (index == 0) {
        okEnabled_ = !field.value.empty();
        addEnabled_ = okEnabled_ && !noAdd_ && request_.addButton;
    }
    return true;
}

DialogResult EditDialog::Result(std::string mode) const {
    DialogResult result;
    result.mode = std::move(mode);
    for (size_t i = 0; i < fields_.size(); ++i)
        result.fields[i] = fields_[i].value;
    return result;
}

std::optional<DialogResult> EditDialog::ClickOK() const {
    if (!okEnabled_) return std::nullopt;
    return Result("1");
}

std::optional<DialogResult> EditDialog::ClickAdd() const {
    if (!addEnabled_) return std::nullopt;
    const bool anyEmpty = std::any_of(fields_.begin(), fields_.end(),
                                      [](const DialogField& field) { return field.value.empty(); });
    if (anyEmpty) return std::nullopt;
    return Result("A");
}

}  // namespace qb::shell
