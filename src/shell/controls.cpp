#include "shell/controls.h"

#include <algorithm>
#include <stdexcept>

namespace qb::shell {

void Control::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    Changed();
}

void Control::SetVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    Changed();
}

void Control::SetCaption(std::string caption) {
    caption_ = std::move(caption);
    Changed();
}

void Control::SetTip(std::string tip) {
    tip_ = std::move(tip);
    Changed();
}

// ---- ListControl ----------------------------------------------------------------------------

void ListControl::CheckIndex(int index) const {
    if (index < 1 || index > Count()) {
        throw std::out_of_range(Name() + ": no row " + std::to_string(index));
    }
}

void ListControl::RowsChanged(int first, int last) const {
    if (rowListener_) {
        rowListener_(first, last);
    } else {
        Changed();
    }
}

void ListControl::AddColumn(std::string key, std::string text, int width) {
    columns_.push_back({std::move(key), std::move(text), width});
    Changed();
}

void ListControl::SetColumnWidth(int column, int width) {
    columns_.at(static_cast<size_t>(column - 1)).width = width;
    Changed();
}

void ListControl::Clear() {
    rows_.clear();
    selected_ = 0;
    Changed();
}

ListRow& ListControl::Add(int index, std::string key, std::string text) {
    if (index < 1 || index > Count() + 1) {
        throw std::out_of_range(Name() + ": can't add row " + std::to_string(index));
    }
    // A list being filled appends row after row, hundreds of thousands for a matrix: the row is
    // made in its place rather than made aside and moved in.
    ListRow& row =
        index == Count() + 1 ? rows_.emplace_back() : *rows_.emplace(rows_.begin() + (index - 1));
    row.key = std::move(key);
    row.text = std::move(text);
    if (selected_ >= index) ++selected_;
    Changed();
    return row;
}

void ListControl::Remove(int index) {
    CheckIndex(index);
    rows_.erase(rows_.begin() + (index - 1));
    if (selected_ == index) {
        // The list moves its selection to the row that took the removed one's place.
        selected_ = std::min(index, Count());
    } else if (selected_ > index) {
        --selected_;
    }
    Changed();
}

void ListControl::SetText(int index, std::string text) {
    CheckIndex(index);
    rows_[static_cast<size_t>(index - 1)].text = std::move(text);
    RowsChanged(index, index);
}

const std::string& ListControl::Cell(int index, int column) const {
    static const std::string empty;
    CheckIndex(index);
    if (column == 1) return rows_[static_cast<size_t>(index - 1)].text;
    const auto& cells = rows_[static_cast<size_t>(index - 1)].cells;
    const auto at = static_cast<size_t>(column - 2);
    return at < cells.size() ? cells[at] : empty;
}

void ListControl::SetCell(int index, int column, std::string text) {
    CheckIndex(index);
    if (column == 1) {
        SetText(index, std::move(text));
        return;
    }
    auto& cells = rows_[static_cast<size_t>(index - 1)].cells;
    const auto at = static_cast<size_t>(column - 2);
    if (cells.size() <= at) cells.resize(at + 1);
    cells[at] = std::move(text);
    RowsChanged(index, index);
}

void ListControl::SetChecked(int index, bool checked) {
    CheckIndex(index);
    rows_[static_cast<size_t>(index - 1)].checked = checked;
    RowsChanged(index, index);
}

void ListControl::SetRowTag(int index, std::string tag) {
    CheckIndex(index);
    rows_[static_cast<size_t>(index - 1)].tag = std::move(tag);
}

void ListControl::Select(int index) {
    if (index != 0) CheckIndex(index);
    const int old = selected_;
    selected_ = index;
    if (old != 0) RowsChanged(old, old);
    if (index != 0) RowsChanged(index, index);
}

bool ListControl::UserCheck(int index, bool checked) {
    if (!Enabled() || !checkBoxes_ || index < 1 || index > Count()) return false;
    SetChecked(index, checked);
    if (onItemCheck) onItemCheck(index);
    return true;
}

bool ListControl::UserSelect(int index) {
    if (!Enabled() || index < 1 || index > Count()) return false;
    Select(index);
    if (onItemClick) onItemClick(index);
    return true;
}

bool ListControl::UserDoubleClick(int index) {
    if (!UserSelect(index)) return false;
    if (onDoubleClick) onDoubleClick(index);
    return true;
}

bool ListControl::UserRightClick(int index) {
    if (!Enabled() || index < 1 || index > Count()) return false;
    Select(index);
    if (onRightClick) onRightClick(index);
    return true;
}

bool ListControl::UserKeyDown(int keyCode) {
    if (!Enabled()) return false;
    if (onKeyDown) onKeyDown(keyCode);
    return true;
}

// ---- Toolbar --------------------------------------------------------------------------------

void Toolbar::AddButton(std::string key, std::string tip, std::string image) {
    ToolButton button;
    button.key = std::move(key);
    button.tip = std::move(tip);
    button.image = std::move(image);
    buttons_.push_back(std::move(button));
    Changed();
}

void Toolbar::AddSeparator() {
    ToolButton button;
    button.separator = true;
    buttons_.push_back(std::move(button));
    Changed();
}

void Toolbar::AddMenuEntry(const std::string& buttonKey, std::string key, std::string text) {
    for (auto& button : buttons_) {
        if (!button.separator && button.key == buttonKey) {
            button.menu.push_back({std::move(key), std::move(text)});
            Changed();
            return;
        }
    }
    throw std::out_of_range(Name() + ": no button " + buttonKey);
}

void Toolbar::RemoveButton(const std::string& key) {
    const auto at = std::find_if(buttons_.begin(), buttons_.end(), [&](const ToolButton& button) {
        return !button.separator && button.key == key;
    });
    if (at == buttons_.end()) throw std::out_of_range(Name() + ": no button " + key);
    buttons_.erase(at);
    Changed();
}

void Toolbar::Clear() {
    buttons_.clear();
    Changed();
}

ToolButton& Toolbar::At(int index) {
    if (index < 1 || index > Count()) {
        throw std::out_of_range(Name() + ": no button " + std::to_string(index));
    }
    return buttons_[static_cast<size_t>(index - 1)];
}

const ToolButton* Toolbar::Find(const std::string& key) const {
    for (const auto& button : buttons_) {
        if (!button.separator && button.key == key) return &button;
    }
    return nullptr;
}

void Toolbar::SetButtonEnabled(int index, bool enabled) {
    At(index).enabled = enabled;
    Changed();
}

void Toolbar::SetButtonEnabled(const std::string& key, bool enabled) {
    for (int i = 1; i <= Count(); ++i) {
        if (!Button(i).separator && Button(i).key == key) return SetButtonEnabled(i, enabled);
    }
    throw std::out_of_range(Name() + ": no button " + key);
}

void Toolbar::SetButtonPressed(const std::string& key, bool pressed) {
    for (auto& button : buttons_) {
        if (!button.separator && button.key == key) {
            button.pressed = pressed;
            Changed();
            return;
        }
    }
    throw std::out_of_range(Name() + ": no button " + key);
}

void Toolbar::SetButtonTip(const std::string& key, std::string tip) {
    for (auto& button : buttons_) {
        if (!button.separator && button.key == key) {
            button.tip = std::move(tip);
            Changed();
            return;
        }
    }
    throw std::out_of_range(Name() + ": no button " + key);
}

bool Toolbar::UserClick(const std::string& key) {
    const ToolButton* button = Find(key);
    if (!Enabled() || button == nullptr || !button->enabled) return false;
    if (onButtonClick) onButtonClick(key);
    return true;
}

bool Toolbar::UserMenuClick(const std::string& key, const std::string& menuKey) {
    const ToolButton* button = Find(key);
    if (!Enabled() || button == nullptr || !button->enabled) return false;
    const bool known = std::any_of(button->menu.begin(), button->menu.end(),
                                   [&](const MenuEntry& entry) { return entry.key == menuKey; });
    if (!known) return false;
    if (onMenuClick) onMenuClick(key, menuKey);
    return true;
}

// ---- StatusBar ------------------------------------------------------------------------------

StatusBar::StatusBar(std::string name, int panels)
    : Control(ControlKind::StatusBar, std::move(name)), panels_(static_cast<size_t>(panels)) {}

StatusPanel& StatusBar::At(int index) {
    if (index < 1 || index > Count()) {
        throw std::out_of_range(Name() + ": no panel " + std::to_string(index));
    }
    return panels_[static_cast<size_t>(index - 1)];
}

void StatusBar::SetText(int index, std::string text) {
    At(index).text = std::move(text);
    Changed();
}

void StatusBar::SetTip(int index, std::string tip) {
    At(index).tip = std::move(tip);
    Changed();
}

void StatusBar::SetWidth(int index, int width) {
    At(index).width = width;
    Changed();
}

void StatusBar::SetKey(int index, std::string key) {
    At(index).key = std::move(key);
}

int StatusBar::Left(int index) const {
    int left = 0;
    for (int i = 1; i < index; ++i)
        left += Panel(i).width;
    return left;
}

// ---- Simple controls ------------------------------------------------------------------------

void TextBox::SetText(std::string text) {
    text_ = std::move(text);
    Changed();
}

void TextBox::SetReadOnly(bool readOnly) {
    readOnly_ = readOnly;
    Changed();
}

bool TextBox::UserSetText(std::string text) {
    if (!Enabled() || readOnly_) return false;
    if (text == text_) return true;
    SetText(std::move(text));
    if (onChange) onChange();
    return true;
}

void CheckBox::SetValue(int value) {
    value_ = value;
    Changed();
}

bool CheckBox::UserSetValue(int value) {
    if (!Enabled() || (value != 0 && value != 1)) return false;
    SetValue(value);
    if (onClick) onClick();
    return true;
}

void OptionButton::SetValue(int value) {
    value_ = value == 1 ? 1 : 0;
    if (value_ == 1) {
        for (OptionButton* other : group_) {
            if (other->value_ == 0) continue;
            other->value_ = 0;
            other->Changed();
        }
    }
    Changed();
}

void OptionButton::Join(OptionButton& other) {
    for (OptionButton* member : group_) {
        member->group_.push_back(&other);
        other.group_.push_back(member);
    }
    group_.push_back(&other);
    other.group_.push_back(this);
}

bool OptionButton::UserClick() {
    if (!Enabled()) return false;
    SetValue(1);
    if (onClick) onClick();
    return true;
}

void ComboBox::AddItem(std::string item) {
    items_.push_back(std::move(item));
    Changed();
}

void ComboBox::ClearItems() {
    items_.clear();
    text_.clear();
    Changed();
}

bool ComboBox::SetText(std::string text) {
    if (listOnly_ && std::find(items_.begin(), items_.end(), text) == items_.end()) return false;
    text_ = std::move(text);
    Changed();
    return true;
}

bool ComboBox::UserSetText(std::string text) {
    if (!Enabled() || !SetText(std::move(text))) return false;
    if (onClick) onClick();
    return true;
}

void UpDown::SetValue(int value) {
    value_ = value;
    Changed();
}

void UpDown::SetRange(int min, int max) {
    min_ = min;
    max_ = max;
    Changed();
}

bool UpDown::UserSetValue(int value) {
    if (!Enabled()) return false;
    SetValue(std::min(std::max(value, min_), max_));
    if (onChange) onChange();
    return true;
}

void Slider::SetValue(int value) {
    value_ = value;
    Changed();
}

bool Slider::UserSetValue(int value) {
    if (!Enabled() || value < min_ || value > max_) return false;
    SetValue(value);
    if (onChange) onChange();
    return true;
}

bool Button::UserClick() {
    if (!Enabled()) return false;
    if (onClick) onClick();
    return true;
}

// ---- Tooltip --------------------------------------------------------------------------------

void Tooltip::Create(const Control& parent) {
    parent_ = parent.Name();
    SetVisible(true);
    Changed();
}

void Tooltip::Destroy() {
    SetVisible(false);
}

void Tooltip::SetTitle(std::string title) {
    title_ = std::move(title);
    Changed();
}

void Tooltip::SetTipText(std::string text) {
    text_ = std::move(text);
    Changed();
}

}  // namespace qb::shell
