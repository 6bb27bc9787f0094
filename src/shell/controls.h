#pragma once
// The controls of a page, as plain objects. A page reads and writes its values only through them,
// so that the desktop window, the command line and the tests drive the same page: a front end shows
// a control and is told of its changes, and turns the user's actions into the User... calls, which
// run the page's event handlers. Changes made in code run no handler, so pages need no guards while
// they fill their controls.

#include <functional>
#include <string>
#include <vector>

namespace qb::shell {

enum class ControlKind {
    List,
    Toolbar,
    StatusBar,
    Text,
    Check,
    Combo,
    UpDown,
    Label,
    Frame,
    Button,
    Tooltip,
    Option,
    Slider
};

class Control {
  public:
    Control(ControlKind kind, std::string name) : kind_(kind), name_(std::move(name)) {}
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    ControlKind Kind() const { return kind_; }
    const std::string& Name() const { return name_; }

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    // The text beside or on the control: a label's or frame's caption, a check box's text.
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
    // The tip the window shows while the pointer rests on the control.
    const std::string& Tip() const { return tip_; }
    void SetTip(std::string tip);

    // The front end showing the control; told after every change made in code or by the user.
    void SetListener(std::function<void()> listener) { listener_ = std::move(listener); }

  protected:
    void Changed() const {
        if (listener_) listener_();
    }

  private:
    ControlKind kind_;
    std::string name_;
    std::string caption_;
    std::string tip_;
    bool enabled_ = true;
    bool visible_ = true;
    std::function<void()> listener_;
};

struct ListColumn {
    std::string key;
    std::string text;
    int width = 0;  // twips
};

struct ListRow {
    std::string key;
    std::string text;
    std::vector<std::string> cells;  // the second and later columns
    bool checked = false;
    std::string tag;
};

// A report-style list; rows and columns are numbered from 1.
class ListControl : public Control {
  public:
    explicit ListControl(std::string name, bool checkBoxes = false)
        : Control(ControlKind::List, std::move(name)), checkBoxes_(checkBoxes) {}

    bool CheckBoxes() const { return checkBoxes_; }
    int Width() const { return width_; }
    void SetWidth(int twips) { width_ = twips; }

    void AddColumn(std::string key, std::string text, int width);
    int ColumnCount() const { return static_cast<int>(columns_.size()); }
    const std::vector<ListColumn>& Columns() const { return columns_; }
    void SetColumnWidth(int column, int width);

    void Clear();
    // Room for this many rows, for a list about to be filled with a great many.
    void Reserve(int rows) { rows_.reserve(static_cast<size_t>(rows)); }
    int Count() const { return static_cast<int>(rows_.size()); }
    // Inserts a row at `index` (1 to Count()+1) and returns it.
    ListRow& Add(int index, std::string key, std::string text);
    ListRow& Append(std::string key, std::string text) {
        return Add(Count() + 1, std::move(key), std::move(text));
    }
    void Remove(int index);
    const ListRow& Row(int index) const { return rows_.at(static_cast<size_t>(index - 1)); }
    const std::vector<ListRow>& Rows() const { return rows_; }

    void SetText(int index, std::string text);
    // Column 2 and later; the cells grow as needed.
    const std::string& Cell(int index, int column) const;
    void SetCell(int index, int column, std::string text);
    void SetChecked(int index, bool checked);
    void SetRowTag(int index, std::string tag);

    int Selected() const { return selected_; }  // 0 when no row is selected
    void Select(int index);

    const std::string& Tag() const { return tag_; }
    void SetTag(std::string tag) { tag_ = std::move(tag); }

    // Handlers the page sets.
    std::function<void(int row)> onItemCheck;
    std::function<void(int row)> onItemClick;
    std::function<void(int row)> onDoubleClick;
    std::function<void(int row)> onRightClick;
    // A key pressed while the list has the focus, by its key code (46 is Delete).
    std::function<void(int keyCode)> onKeyDown;

    // What the user does. False when the user can't: the list is disabled or has no such row.
    bool UserCheck(int index, bool checked);
    bool UserSelect(int index);
    bool UserDoubleClick(int index);
    bool UserRightClick(int index);
    bool UserKeyDown(int keyCode);

    // Fine-grained notice for front ends that show thousands of rows: rows first to last changed
    // in place. Any other change (rows added, removed, columns) goes through the plain listener.
    void SetRowListener(std::function<void(int first, int last)> listener) {
        rowListener_ = std::move(listener);
    }

  private:
    void RowsChanged(int first, int last) const;
    void CheckIndex(int index) const;

    bool checkBoxes_;
    int width_ = 0;
    std::vector<ListColumn> columns_;
    std::vector<ListRow> rows_;
    int selected_ = 0;
    std::string tag_;
    std::function<void(int, int)> rowListener_;
};

struct MenuEntry {
    std::string key;
    std::string text;
};

struct ToolButton {
    std::string key;  // empty for a separator
    std::string tip;
    std::string image;
    bool separator = false;
    bool enabled = true;
    bool pressed = false;
    std::vector<MenuEntry> menu;  // a drop-down button's entries
};

// Buttons are numbered from 1, separators included, as the page frame addresses them.
class Toolbar : public Control {
  public:
    explicit Toolbar(std::string name) : Control(ControlKind::Toolbar, std::move(name)) {}

    void AddButton(std::string key, std::string tip, std::string image);
    void AddSeparator();
    void AddMenuEntry(const std::string& buttonKey, std::string key, std::string text);
    // Takes a button out; the buttons behind it move up one number.
    void RemoveButton(const std::string& key);
    void Clear();
    int Count() const { return static_cast<int>(buttons_.size()); }
    const ToolButton& Button(int index) const {
        return buttons_.at(static_cast<size_t>(index - 1));
    }
    const std::vector<ToolButton>& Buttons() const { return buttons_; }
    const ToolButton* Find(const std::string& key) const;
    void SetButtonEnabled(int index, bool enabled);
    void SetButtonEnabled(const std::string& key, bool enabled);
    void SetButtonPressed(const std::string& key, bool pressed);
    void SetButtonTip(const std::string& key, std::string tip);

    // Looks shared by the toolbars of one kind.
    std::string imageList;
    bool border = false;
    int buttonWidth = 0;  // twips
    int buttonHeight = 0;

    std::function<void(const std::string& key)> onButtonClick;
    std::function<void(const std::string& key, const std::string& menuKey)> onMenuClick;

    // A click on an enabled button, or on an entry of its drop-down menu. False when the button
    // is missing, a separator or disabled: the user can't click it.
    bool UserClick(const std::string& key);
    bool UserMenuClick(const std::string& key, const std::string& menuKey);

  private:
    ToolButton& At(int index);
    std::vector<ToolButton> buttons_;
};

struct StatusPanel {
    std::string key;
    std::string text;
    std::string tip;
    int width = 0;  // twips
};

class StatusBar : public Control {
  public:
    explicit StatusBar(std::string name, int panels = 2);
    int Count() const { return static_cast<int>(panels_.size()); }
    const StatusPanel& Panel(int index) const { return panels_.at(static_cast<size_t>(index - 1)); }
    const std::vector<StatusPanel>& Panels() const { return panels_; }
    void SetText(int index, std::string text);
    void SetTip(int index, std::string tip);
    void SetWidth(int index, int width);
    void SetKey(int index, std::string key);
    int Left(int index) const;  // the sum of the widths before the panel

    std::function<void(int panel)> onPanelClick;

  private:
    StatusPanel& At(int index);
    std::vector<StatusPanel> panels_;
};

class TextBox : public Control {
  public:
    explicit TextBox(std::string name, bool multiLine = false)
        : Control(ControlKind::Text, std::move(name)), multiLine_(multiLine) {}
    const std::string& Text() const { return text_; }
    void SetText(std::string text);
    bool ReadOnly() const { return readOnly_; }
    void SetReadOnly(bool readOnly);
    bool MultiLine() const { return multiLine_; }

    std::function<void()> onChange;
    bool UserSetText(std::string text);

  private:
    std::string text_;
    bool readOnly_ = false;
    bool multiLine_;
};

class CheckBox : public Control {
  public:
    CheckBox(std::string name, std::string caption) : Control(ControlKind::Check, std::move(name)) {
        SetCaption(std::move(caption));
    }
    int Value() const { return value_; }
    void SetValue(int value);

    std::function<void()> onClick;
    bool UserSetValue(int value);

  private:
    int value_ = 0;
};

class ComboBox : public Control {
  public:
    explicit ComboBox(std::string name) : Control(ControlKind::Combo, std::move(name)) {}
    const std::vector<std::string>& Items() const { return items_; }
    void AddItem(std::string item);
    void ClearItems();
    const std::string& Text() const { return text_; }
    // Sets the text; false and no change when a list-only combo holds no such item.
    bool SetText(std::string text);
    bool ListOnly() const { return listOnly_; }
    void SetListOnly(bool listOnly) { listOnly_ = listOnly; }

    std::function<void()> onClick;
    bool UserSetText(std::string text);

  private:
    std::vector<std::string> items_;
    std::string text_;
    bool listOnly_ = true;
};

class UpDown : public Control {
  public:
    UpDown(std::string name, int min, int max, int step = 1)
        : Control(ControlKind::UpDown, std::move(name)), min_(min), max_(max), step_(step) {}
    int Value() const { return value_; }
    void SetValue(int value);
    int Min() const { return min_; }
    int Max() const { return max_; }
    int Step() const { return step_; }
    void SetRange(int min, int max);
    // The read-only text box that shows the value, where the up-down has one: to the user the
    // two are one control.
    const std::string& Buddy() const { return buddy_; }
    void SetBuddy(std::string textBox) { buddy_ = std::move(textBox); }

    std::function<void()> onChange;
    // The up-down keeps its value inside its range, as the control does.
    bool UserSetValue(int value);

  private:
    int value_ = 0;
    int min_;
    int max_;
    int step_;
    std::string buddy_;
};

// A slider: a thumb on a scale from its minimum to its maximum, moved a small change by the
// arrow keys and a large change by a click beside the thumb.
class Slider : public Control {
  public:
    Slider(std::string name, int min, int max, int smallChange, int largeChange)
        : Control(ControlKind::Slider, std::move(name)),
          min_(min),
          max_(max),
          smallChange_(smallChange),
          largeChange_(largeChange) {}
    int Value() const { return value_; }
    void SetValue(int value);
    int Min() const { return min_; }
    int Max() const { return max_; }
    int SmallChange() const { return smallChange_; }
    int LargeChange() const { return largeChange_; }

    std::function<void()> onChange;
    // False for a value past either end: the thumb can't be put there.
    bool UserSetValue(int value);

  private:
    int value_ = 0;
    int min_;
    int max_;
    int smallChange_;
    int largeChange_;
};

// An option button: one of a group of which at most one is on. Turning one on, in code or by the
// user, turns the others of its group off.
class OptionButton : public Control {
  public:
    OptionButton(std::string name, std::string caption)
        : Control(ControlKind::Option, std::move(name)) {
        SetCaption(std::move(caption));
    }
    int Value() const { return value_; }
    void SetValue(int value);
    // Puts `other` in this button's group, and this one in its.
    void Join(OptionButton& other);

    std::function<void()> onClick;
    // A click turns the button on; the user can't turn one off but by picking another.
    bool UserClick();

  private:
    int value_ = 0;
    std::vector<OptionButton*> group_;
};

class Label : public Control {
  public:
    Label(std::string name, std::string caption) : Control(ControlKind::Label, std::move(name)) {
        SetCaption(std::move(caption));
    }
};

class Frame : public Control {
  public:
    explicit Frame(std::string name) : Control(ControlKind::Frame, std::move(name)) {}
};

class Button : public Control {
  public:
    Button(std::string name, std::string caption) : Control(ControlKind::Button, std::move(name)) {
        SetCaption(std::move(caption));
    }
    std::function<void()> onClick;
    bool UserClick();
};

// CTooltip: a balloon that a page shows on one of its controls, with a title and a text. It is
// no part of the page's layout; it stands over its parent control while it exists.
class Tooltip : public Control {
  public:
    explicit Tooltip(std::string name) : Control(ControlKind::Tooltip, std::move(name)) {
        SetVisible(false);
    }

    // The balloon over `parent`, with the look set so far; Destroy takes it away.
    void Create(const Control& parent);
    void Destroy();
    const std::string& Parent() const { return parent_; }

    bool Style() const { return balloon_; }  // true: a balloon, else a plain tip
    void SetStyle(bool balloon) { balloon_ = balloon; }
    bool Centered() const { return centered_; }
    void SetCentered(bool centered) { centered_ = centered; }
    const std::string& Title() const { return title_; }
    void SetTitle(std::string title);
    const std::string& TipText() const { return text_; }
    void SetTipText(std::string text);
    int Icon() const { return icon_; }  // 0 none, 1 information, 2 warning, 3 error
    void SetIcon(int icon) { icon_ = icon; }
    int VisibleTime() const { return visibleTime_; }  // milliseconds
    void SetVisibleTime(int milliseconds) { visibleTime_ = milliseconds; }
    int DelayTime() const { return delayTime_; }
    void SetDelayTime(int milliseconds) { delayTime_ = milliseconds; }

  private:
    std::string parent_;
    std::string title_;
    std::string text_;
    bool balloon_ = true;
    bool centered_ = false;
    int icon_ = 1;
    int visibleTime_ = 8000;
    int delayTime_ = 500;
};

}  // namespace qb::shell
