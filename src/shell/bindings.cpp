#include "shell/bindings.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "shell/profile_checks.h"
#include "shell/table_lists.h"
#include "store/text_rules.h"

namespace qb::shell {
namespace {

using store::FieldKind;

// A value the file holds for one key of the bound table; a row of named flags is read in its
// sub-table.
std::string ReadBound(store::TableFiles& files, const Binding& binding) {
    const std::string& key = binding.Key();
    const size_t dot = key.find('.');
    if (dot == std::string::npos) {
        return files.ReadTableValue(binding.File().file, key, binding.File().table,
                                    binding.File().inAppFolder);
    }
    return files.ReadTableValue(binding.File().file, key.substr(dot + 1), key.substr(0, dot),
                                binding.File().inAppFolder);
}

std::string DefaultOfBound(const Binding& binding) {
    return binding.Field().defaultValue;
}

// An empty value is no value: a number the file lacks takes its default, so that the page never
// writes a key without one.
std::string NumberOrDefault(std::string value, const Binding& binding) {
    if (value.empty() && binding.Field().kind == FieldKind::Number) return DefaultOfBound(binding);
    return value;
}

int CheckValue(std::string_view value) {
    return store::IsNumericallyOne(value) ? 1 : 0;
}

// The choice a stored value stands for, or null for a value no choice has.
const store::Choice* ChoiceOf(const std::vector<store::Choice>& choices, std::string_view stored) {
    for (const store::Choice& choice : choices) {
        if (choice.stored == stored) return &choice;
    }
    return nullptr;
}

// The stored form of a name shown; a name no choice has is stored as it stands.
std::string StoredOf(const std::vector<store::Choice>& choices, const std::string& shown) {
    for (const store::Choice& choice : choices) {
        if (choice.shown == shown) return choice.stored;
    }
    return shown;
}

// ---- Scalars
// -------------------------------------------------------------------------------------

// Any number above 0, in the numeric reading of the scripts' home system.
int AboveZero(std::string_view value) {
    double number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    return error == std::errc() && end == value.data() + value.size() && number > 0 ? 1 : 0;
}

class CheckBinding : public Binding {
  public:
    CheckBinding(const store::FileSchema& file, const store::Field& field, std::string key,
                 CheckBox& box, bool aboveZero)
        : Binding(file, field, std::move(key)), box_(box), aboveZero_(aboveZero) {}
    void Load(store::TableFiles& files, const store::ProfileList&) override {
        const std::string value = ReadBound(files, *this);
        box_.SetValue(aboveZero_ ? AboveZero(value) : CheckValue(value));
    }
    void Restore(const store::ProfileList&) override {
        box_.SetValue(CheckValue(DefaultOfBound(*this)));
    }
    std::string Value(int) const override { return std::to_string(box_.Value()); }

  private:
    CheckBox& box_;
    bool aboveZero_;
};

class TextBinding : public Binding {
  public:
    TextBinding(const store::FileSchema& file, const store::Field& field, std::string key,
                TextBox& box, Quirks quirks)
        : Binding(file, field, std::move(key)), box_(box), quirks_(std::move(quirks)) {}
    void Load(store::TableFiles& files, const store::ProfileList&) override {
        if (quirks_.initial) box_.SetText(*quirks_.initial);
        std::string value = ReadBound(files, *this);
        if (quirks_.initial && value.empty()) return;
        box_.SetText(NumberOrDefault(std::move(value), *this));
    }
    void Restore(const store::ProfileList&) override {
        box_.SetText(quirks_.restoreValue.value_or(DefaultOfBound(*this)));
    }
    std::string Value(int) const override { return box_.Text(); }

  private:
    TextBox& box_;
    Quirks quirks_;
};

// A group of option buttons that stand for the values of one field: the one of the file's value
// is on. A value no option stands for turns none on and is saved as it stands until the user
// picks one.
class OptionsBinding : public Binding {
  public:
    OptionsBinding(const store::FileSchema& file, const store::Field& field, std::string key,
                   OptionButton& button, std::string value)
        : Binding(file, field, std::move(key)) {
        options_.push_back({&button, std::move(value)});
    }
    bool Join(Control& control, const ControlDecl& decl) override {
        if (control.Kind() != ControlKind::Option || decl.key != Key()) return false;
        auto& button = static_cast<OptionButton&>(control);
        options_.front().button->Join(button);
        options_.push_back({&button, decl.value});
        return true;
    }
    void Load(store::TableFiles& files, const store::ProfileList&) override {
        Show(NumberOrDefault(ReadBound(files, *this), *this));
    }
    void Restore(const store::ProfileList&) override { Show(DefaultOfBound(*this)); }
    std::string Value(int) const override {
        for (const Choice& option : options_) {
            if (option.button->Value() == 1) return option.value;
        }
        return held_;
    }

  private:
    struct Choice {
        OptionButton* button;
        std::string value;
    };
    void Show(const std::string& value) {
        held_ = value;
        bool shown = false;
        for (const Choice& option : options_) {
            if (option.value != value) continue;
            option.button->SetValue(1);
            shown = true;
        }
        if (shown) return;
        for (const Choice& option : options_)
            option.button->SetValue(0);
    }

    std::vector<Choice> options_;
    std::string held_;
};

// A combo shows a choice by name and the file holds it in its own form.
class ComboBinding : public Binding {
  public:
    ComboBinding(const store::FileSchema& file, const store::Field& field, std::string key,
                 ComboBox& combo, Quirks quirks)
        : Binding(file, field, std::move(key)), combo_(combo), quirks_(std::move(quirks)) {}

    // The items are filled again at each load, as the page has always done.
    void Load(store::TableFiles& files, const store::ProfileList&) override {
        const std::string shown = combo_.Text();
        combo_.ClearItems();
        for (const store::Choice& choice : Field().choices)
            combo_.AddItem(choice.shown);
        combo_.SetText(quirks_.initial.value_or(shown));
        const std::string value = ReadBound(files, *this);
        if (quirks_.initial && value.empty()) return;
        Show(value);
    }
    void Restore(const store::ProfileList&) override { Show(DefaultOfBound(*this)); }
    std::string Value(int) const override { return StoredOf(Field().choices, combo_.Text()); }

  private:
    void Show(const std::string& stored) {
        if (const store::Choice* choice = ChoiceOf(Field().choices, stored)) {
            combo_.SetText(choice->shown);
            return;
        }
        // A value the combo doesn't list: shown as it stands, or passed over.
        if (!quirks_.showsUnlisted) return;
        combo_.SetListOnly(false);
        combo_.SetText(stored);
        combo_.SetListOnly(true);
    }

    ComboBox& combo_;
    Quirks quirks_;
};

// The hub's profiles past Unregistered, at the place of their number. The page has always added
// them at each load over those it had, and looks a name up by the first profile of that name.
class ProfileComboBinding : public Binding {
  public:
    ProfileComboBinding(const store::FileSchema& file, const store::Field& field, std::string key,
                        ComboBox& combo)
        : Binding(file, field, std::move(key)), combo_(combo) {}

    void Load(store::TableFiles& files, const store::ProfileList& profiles) override {
        profiles_ = &profiles;
        for (int row = 2; row <= profiles.Count(); ++row)
            combo_.AddItem(profiles.Text(row));
        // A missing number is the list's first place.
        std::string number = ReadBound(files, *this);
        if (number.empty()) number = "0";
        int place = -1;
        const auto [end, error] =
            std::from_chars(number.data(), number.data() + number.size(), place);
        const auto& items = combo_.Items();
        if (error == std::errc() && end == number.data() + number.size() && place >= 0 &&
            place < static_cast<int>(items.size())) {
            combo_.SetText(items[static_cast<size_t>(place)]);
            return;
        }
        combo_.SetListOnly(false);
        combo_.SetText(number);
        combo_.SetListOnly(true);
    }
    // RESTORE leaves the choice as it stands.
    void Restore(const store::ProfileList&) override {}
    std::string Value(int) const override {
        if (profiles_ != nullptr) {
            for (int row = 1; row <= profiles_->Count(); ++row) {
                if (profiles_->Text(row) == combo_.Text()) return std::to_string(row - 2);
            }
        }
        return combo_.Text();
    }

  private:
    ComboBox& combo_;
    const store::ProfileList* profiles_ = nullptr;
};

// The text box shows the number as the file has it; the up-down follows where it can. Only the
// up-down is held to the range, so a file's value outside it shows and saves as it stands.
class SpinBinding : public Binding {
  public:
    SpinBinding(const store::FileSchema& file, const store::Field& field, std::string key,
                UpDown& upDown, TextBox& box, Quirks quirks)
        : Binding(file, field, std::move(key)),
          upDown_(upDown),
          box_(box),
          quirks_(std::move(quirks)) {
        if (quirks_.upDownStart) upDown_.SetValue(*quirks_.upDownStart);
    }
    void Load(store::TableFiles& files, const store::ProfileList&) override {
        if (quirks_.initial) Show(*quirks_.initial);
        std::string value = ReadBound(files, *this);
        if (quirks_.initial && value.empty()) return;
        Show(NumberOrDefault(std::move(value), *this));
    }
    void Restore(const store::ProfileList&) override { Show(DefaultOfBound(*this)); }
    std::string Value(int) const override { return box_.Text(); }

  private:
    void Show(std::string text) {
        int value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (error == std::errc() && end == text.data() + text.size()) {
            upDown_.SetValue(std::clamp(value, upDown_.Min(), upDown_.Max()));
        }
        box_.SetText(std::move(text));
    }

    UpDown& upDown_;
    TextBox& box_;
    Quirks quirks_;
};

// ---- Lists
// ---------------------------------------------------------------------------------------

class ProfileChecksBinding : public Binding {
  public:
    ProfileChecksBinding(const store::FileSchema& file, const store::Field& field,
                         ListControl& list)
        : Binding(file, field, field.key), list_(list) {}
    void Load(store::TableFiles& files, const store::ProfileList& profiles) override {
        LoadProfileChecks(list_, files, profiles, File().file, Key(), Field().firstProfile);
    }
    void Restore(const store::ProfileList& profiles) override {
        ResetProfileChecks(list_, profiles, Field().firstProfile);
    }
    std::string Value(int profile) const override {
        return ProfileCheckValue(list_, profile, Field().firstProfile);
    }

  private:
    ListControl& list_;
};

// A check list of named flags as the file has them: a row per key of the sub-table (or of the
// whole file), shown from its second letter; the save writes the rows the list holds.
class FlagRowsBinding : public Binding {
  public:
    FlagRowsBinding(const store::FileSchema& file, const store::Field& field, std::string key,
                    ListControl& list, Quirks quirks)
        : Binding(file, field, std::move(key)), list_(list), quirks_(std::move(quirks)) {}
    void Load(store::TableFiles& files, const store::ProfileList&) override {
        list_.Clear();
        LoadTableRows(files, File().file, list_, "=", Key(), true, File().inAppFolder, false);
        for (int row = 1; row <= list_.Count(); ++row) {
            const std::string& text = list_.Row(row).text;
            if (quirks_.onlyLeadingB && !text.starts_with('b')) {
                list_.SetText(row, text.substr(0, quirks_.keepLetters));
                continue;
            }
            list_.SetText(row, text.size() > 1 ? text.substr(1, quirks_.keepLetters) : "");
        }
    }
    // The rows stay as they are, each ticked or not as the field's default has it.
    void Restore(const store::ProfileList&) override {
        if (quirks_.restoreKeepsTicks) return;
        const bool ticked =
            quirks_.restoreTicksAll || store::IsNumericallyOne(Field().defaultValue);
        for (int row = 1; row <= list_.Count(); ++row)
            list_.SetChecked(row, ticked);
    }
    std::string Value(int row) const override { return list_.Row(row + 1).checked ? "1" : "0"; }
    std::string ValueOf(const store::Field& field, int row) const override {
        return WholeFile() ? field.defaultValue : Value(row);
    }
    void Shape(store::FileSchema& schema) const override {
        if (!WholeFile()) {
            for (store::Field& field : schema.fields) {
                if (field.key != Key()) continue;
                field.rows.clear();
                for (const ListRow& row : list_.Rows())
                    field.rows.push_back("b" + row.text);
            }
            return;
        }
        // A file of flags: a line per row, in the list's order. The shaped field carries the
        // row's value, so that a key the file holds twice keeps each row's own.
        schema.fields.clear();
        schema.pageForm.order.clear();
        for (const ListRow& row : list_.Rows()) {
            schema.fields.push_back(
                {store::FieldKind::Flag, "b" + row.text, row.checked ? "1" : "0"});
        }
    }
    bool WholeFile() const { return Key() == File().table; }

  private:
    ListControl& list_;
    Quirks quirks_;
};

// The rows of a list the user keeps, one list row each: a bare row's text; a named row's key
// as text and value in column 2; a numbered row's value in column 2 under a running number.
class RowsBinding : public Binding {
  public:
    RowsBinding(const store::FileSchema& file, const store::Field& field, ListControl& list,
                Quirks quirks)
        : Binding(file, field, field.key), list_(list), quirks_(std::move(quirks)) {}
    void Load(store::TableFiles& files, const store::ProfileList&) override {
        list_.Clear();
        const bool keyed = Field().rowForm != store::RowForm::Bare;
        LoadTableRows(files, File().file, list_, keyed ? "=" : "", Key(), false, File().inAppFolder,
                      false);
        // A value no choice has shows as it stands, and is saved so.
        if (!keyed || Field().choices.empty()) return;
        for (int row = 1; row <= list_.Count(); ++row) {
            if (const store::Choice* choice = ChoiceOf(Field().choices, list_.Cell(row, 2))) {
                list_.SetCell(row, 2, choice->shown);
            }
        }
    }
    void Restore(const store::ProfileList&) override {
        if (quirks_.restoreRows == Quirks::RestoreRows::Keep) return;
        list_.Clear();
        if (quirks_.restoreRows == Quirks::RestoreRows::Empty) return;
        for (const store::ListEntry& entry : Field().defaultRows) {
            const int row = list_.Count() + 1;
            const std::string key =
                quirks_.restoreKeysNumbered ? "id" + std::to_string(row) : std::string("id");
            if (Field().rowForm == store::RowForm::Bare) {
                list_.Append(key, entry.value);
            } else {
                list_.Append(key, entry.key);
                list_.SetCell(row, 2, entry.value);
            }
        }
    }
    std::string Value(int) const override { return {}; }
    std::vector<store::ListEntry> Rows() const override {
        std::vector<store::ListEntry> rows;
        for (int row = 1; row <= list_.Count(); ++row) {
            if (Field().rowForm == store::RowForm::Bare) {
                rows.push_back({{}, list_.Row(row).text});
            } else {
                rows.push_back(
                    {list_.Row(row).text, StoredOf(Field().choices, list_.Cell(row, 2))});
            }
        }
        return rows;
    }

  private:
    ListControl& list_;
    Quirks quirks_;
};

const store::Field& FieldOf(const store::FileSchema& file, const std::string& key) {
    if (const store::Field* field = store::FindField(file, key)) return *field;
    if (key == file.table && !file.fields.empty()) return file.fields.front();
    throw std::logic_error(file.file + " has no key " + key);
}

}  // namespace

std::unique_ptr<Control> MakeControl(const ControlDecl& decl) {
    switch (decl.kind) {
        case ControlKind::List: {
            auto list = std::make_unique<ListControl>(decl.name, decl.checkBoxes);
            list->SetWidth(decl.width);
            return list;
        }
        case ControlKind::Toolbar:
            return std::make_unique<Toolbar>(decl.name);
        case ControlKind::Text: {
            auto box = std::make_unique<TextBox>(decl.name, decl.multiLine);
            box->SetCaption(decl.caption);
            return box;
        }
        case ControlKind::Check:
            return std::make_unique<CheckBox>(decl.name, decl.caption);
        case ControlKind::Combo: {
            auto combo = std::make_unique<ComboBox>(decl.name);
            combo->SetCaption(decl.caption);
            return combo;
        }
        case ControlKind::Label:
            return std::make_unique<Label>(decl.name, decl.caption);
        case ControlKind::Frame: {
            auto frame = std::make_unique<Frame>(decl.name);
            frame->SetCaption(decl.caption);
            return frame;
        }
        case ControlKind::Button:
            return std::make_unique<Button>(decl.name, decl.caption);
        case ControlKind::Tooltip:
            return std::make_unique<Tooltip>(decl.name);
        case ControlKind::Option:
            return std::make_unique<OptionButton>(decl.name, decl.caption);
        case ControlKind::Slider: {
            auto slider = std::make_unique<Slider>(decl.name, decl.range->min, decl.range->max,
                                                   decl.range->step, decl.largeChange);
            slider->SetCaption(decl.caption);
            return slider;
        }
        case ControlKind::UpDown:
        case ControlKind::StatusBar:
            break;
    }
    throw std::logic_error("no maker of " + decl.name);
}

std::unique_ptr<Binding> Bind(const ControlDecl& decl, const store::FileSchema* file,
                              Control& control, Control* textBox,
                              const std::function<void()>& markDirty) {
    // Every change of a control that feeds a file marks the page, the bound ones and the few that
    // only mark it; a control that has never marked the page still doesn't.
    const std::function<void()> marks =
        decl.quirks.unmarked ? std::function<void()>([] {}) : markDirty;
    switch (control.Kind()) {
        case ControlKind::Check:
            static_cast<CheckBox&>(control).onClick = marks;
            break;
        case ControlKind::Option:
            static_cast<OptionButton&>(control).onClick = marks;
            break;
        case ControlKind::Text: {
            auto& box = static_cast<TextBox&>(control);
            if (!decl.quirks.oneCharacter) {
                box.onChange = marks;
                break;
            }
            // The box keeps one character: the key that made it longer is cut away again.
            box.onChange = [&box, marks] {
                if (box.Text().size() > 1) box.SetText(box.Text().substr(0, 1));
                marks();
            };
            break;
        }
        case ControlKind::Combo:
            static_cast<ComboBox&>(control).onClick = marks;
            break;
        case ControlKind::UpDown: {
            auto& upDown = static_cast<UpDown&>(control);
            auto* box = static_cast<TextBox*>(textBox);
            upDown.onChange = [&upDown, box, marks] {
                box->SetText(std::to_string(upDown.Value()));
                marks();
            };
            break;
        }
        case ControlKind::List:
            if (decl.checkBoxes)
                static_cast<ListControl&>(control).onItemCheck = [marks](int) { marks(); };
            break;
        default:
            break;
    }
    if (decl.key.empty()) return nullptr;

    const store::Field& field = FieldOf(*file, decl.key);
    switch (control.Kind()) {
        case ControlKind::Check:
            return std::make_unique<CheckBinding>(*file, field, decl.key,
                                                  static_cast<CheckBox&>(control),
                                                  decl.quirks.ticksAboveZero);
        case ControlKind::Text:
            return std::make_unique<TextBinding>(*file, field, decl.key,
                                                 static_cast<TextBox&>(control), decl.quirks);
        case ControlKind::Combo:
            if (decl.quirks.profileCombo) {
                return std::make_unique<ProfileComboBinding>(*file, field, decl.key,
                                                             static_cast<ComboBox&>(control));
            }
            return std::make_unique<ComboBinding>(*file, field, decl.key,
                                                  static_cast<ComboBox&>(control), decl.quirks);
        case ControlKind::Option:
            return std::make_unique<OptionsBinding>(
                *file, field, decl.key, static_cast<OptionButton&>(control), decl.value);
        case ControlKind::UpDown:
            return std::make_unique<SpinBinding>(*file, field, decl.key,
                                                 static_cast<UpDown&>(control),
                                                 static_cast<TextBox&>(*textBox), decl.quirks);
        case ControlKind::List: {
            auto& list = static_cast<ListControl&>(control);
            if (field.kind == FieldKind::ProfileChecks) {
                return std::make_unique<ProfileChecksBinding>(*file, field, list);
            }
            if (field.kind == FieldKind::Rows) {
                return std::make_unique<RowsBinding>(*file, field, list, decl.quirks);
            }
            return std::make_unique<FlagRowsBinding>(*file, field, decl.key, list, decl.quirks);
        }
        default:
            break;
    }
    throw std::logic_error(decl.name + " can't be bound");
}

}  // namespace qb::shell
