#pragma once
// A page as data: its key, caption and size, the files its SAVE writes, its controls in the order
// they stand, and for each control that feeds a file the key it is bound to. From that the page
// loads, restores, saves and marks itself dirty with no code of its own; the quirks a control has
// always had are properties of its binding. A page that needs behaviour of its own is a class over
// the same declaration, and keeps only the code that is truly its own.

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "shell/controls.h"
#include "shell/host.h"
#include "shell/layout.h"
#include "store/schema.h"

namespace qb::shell {

struct PageSize {
    int width;   // twips
    int height;  // twips
};

// How a bound control has always read, shown or kept its value, where that isn't the plain way.
struct Quirks {
    // Shown before the file is read at every load; an empty value in the file leaves it shown.
    std::optional<std::string> initial{};
    // A combo shows a stored value it doesn't list as it stands; without this, the combo keeps
    // what it showed before the read.
    bool showsUnlisted = false;
    // A check list of named flags shows each key from its second letter ("bPassive" as
    // "Passive"), at most this many letters.
    size_t keepLetters = std::string::npos;
    // RESTORE on a check list of named flags ticks every row, whatever its default.
    bool restoreTicksAll = false;
    // A check list of named flags whose keys may lack their leading "b": only a "b" in front is
    // left out of the row, any other key shows as it stands. The save puts a "b" in front of
    // every row all the same.
    bool onlyLeadingB = false;
    // RESTORE leaves a check list of named flags ticked as it was.
    bool restoreKeepsTicks = false;
    // What RESTORE does to a list of rows: leaves it, empties it, or puts the field's default
    // rows in.
    enum class RestoreRows { Keep, Empty, Defaults } restoreRows = RestoreRows::Keep;
    // The rows RESTORE puts in are keyed "id" and their number ("id1", "id2"...); off, each is
    // keyed "id" alone.
    bool restoreKeysNumbered = true;
    // The up-down's value when the page is made, before any read; the text box beside it shows
    // only what the file holds, an empty value too.
    std::optional<int> upDownStart{};
    // A check box ticked by any value above 0, not by the numeral 1 alone.
    bool ticksAboveZero = false;
    // A combo of the hub's profiles past Unregistered, whose place in its list is the profile
    // number the file holds. Each load adds the names again without clearing the list, so that
    // after a save or a discard every name stands twice; the save takes the first profile of the
    // name shown. A number the list can't show is shown and saved as it stands.
    bool profileCombo = false;
    // RESTORE puts this value in, not the field's default: the value a default lookup gives for
    // another key than the field's own.
    std::optional<std::string> restoreValue{};
    // A text the user types is cut to its first character.
    bool oneCharacter = false;
    // A change the user makes doesn't mark the page: the value is saved only with another change.
    bool unmarked = false;
};

// One control of a page.
struct ControlDecl {
    ControlKind kind;
    std::string name;
    std::string caption{};
    // The field the control is bound to, in `file` (null: the page's first file). A profile check
    // list names its sub-table; a check list of named flags its sub-table, or the file's own
    // table for a file of flags; a check box of a named flag "tSub.bRow".
    std::string key{};
    const store::FileSchema* file = nullptr;
    Quirks quirks{};
    bool marksOnly = false;  // unbound, yet a change of it marks the page
    std::string tip{};       // shown while the pointer rests on the control
    // A list's look: check boxes, width in twips, columns.
    bool checkBoxes = false;
    int width = 0;
    std::vector<ListColumn> columns{};
    // An up-down shows its value in a read-only text box of this name, made just before it.
    std::string textBox{};
    // The range of an up-down bound to nothing (a bound one takes its field's), or a slider's,
    // whose step is its small change.
    std::optional<store::Range> range{};
    int largeChange = 0;  // a slider's
    // The value an option button stands for in its field.
    std::string value{};
    bool multiLine = false;
    // A toolbar's buttons, set up when the page loads: SetupListToolbar and its like, in order.
    std::vector<void (*)(shell::Toolbar&)> setups{};
    // A toolbar whose button opens the text editor on this file, to edit what it holds.
    std::string editsFile{};
    // A list of the hub's profiles, a row each, filled at every load and bound to no file.
    bool profileRows = false;
};

// The width of a list that fills a page of this width.
constexpr int FillWidth(int pageWidth) {
    return pageWidth - 180 - 2 * 120;
}

// The control makers, as a page's declaration lists them.
namespace decl {

ControlDecl Label(std::string name, std::string caption);
ControlDecl Toolbar(std::string name, std::vector<void (*)(shell::Toolbar&)> setups = {});
ControlDecl Button(std::string name, std::string caption);
ControlDecl Tooltip(std::string name);
// A list bound to nothing: the page fills it.
ControlDecl List(std::string name, int width, std::vector<ListColumn> columns = {},
                 bool checkBoxes = false);
// A check box bound to a flag.
ControlDecl Check(std::string name, std::string key, std::string caption);
// A text box bound to a value.
ControlDecl Text(std::string name, std::string key, std::string caption = {});
// A combo bound to a value picked from the field's choices.
ControlDecl Combo(std::string name, std::string key, std::string caption = {});
// An up-down bound to a number in the field's range, shown in the read-only box `textBox`.
ControlDecl Spin(std::string textBox, std::string name, std::string key);
// An up-down bound to nothing, in `range`, shown in the read-only box `textBox`.
ControlDecl SpinOnly(std::string textBox, std::string name, store::Range range);
// An option button that stands for `value` of the field `key`. The options of one key, declared
// one after the other, are one group: one of them is on, the one of the value the file holds.
ControlDecl Option(std::string name, std::string key, std::string caption, std::string value);
// A slider bound to nothing, over `range` (its step the small change), with a caption.
ControlDecl Slider(std::string name, std::string caption, store::Range range, int largeChange);
// A frame with a caption; the layout puts controls in it (InFrame).
ControlDecl Frame(std::string name, std::string caption);
// A profile check list: a row per profile, ticked from the sub-table `key`, one column of this
// text as wide as the list less 350.
ControlDecl ProfileChecks(std::string name, std::string key, std::string columnText, int width);
// A check list of the named flags the file holds under `key`, as the file has them.
ControlDecl FlagRows(std::string name, std::string key, int width, std::vector<ListColumn> columns);
// A list of the rows of the list field `key`, with these columns: the row's text, then cells.
ControlDecl Rows(std::string name, std::string key, int width, std::vector<ListColumn> columns);
// A list of the hub's profiles, a row each, under one column of this text as wide as the list
// less 350: a page's rows that stand for the profiles, bound to no file.
ControlDecl ProfileRows(std::string name, std::string columnText, int width);
// A control bound to nothing whose change marks the page all the same.
ControlDecl Marks(ControlDecl control);
// The same control bound in another file of the page.
ControlDecl In(const store::FileSchema& file, ControlDecl control);
ControlDecl With(Quirks quirks, ControlDecl control);
// The same control with a tip the window shows over it.
ControlDecl Tipped(std::string tip, ControlDecl control);
// A toolbar whose button opens the text editor on `file`, below the settings folder.
ControlDecl Edits(std::string file, ControlDecl toolbar);

}  // namespace decl

// ---- The row editor
// ------------------------------------------------------------------------------

// A message box the editor shows.
struct Prompt {
    std::string text;
    std::string title;
    Icon icon = Icon::Question;
};

// One use of an edit dialog. In captions, labels and the frame caption "{row}" stands for the
// text of the row the dialog edits.
struct RowDialogDecl {
    DialogKind kind;
    std::string caption;
    std::vector<std::string> labels;
    std::string frameCaption{};
    int required = 0;
    // The dialog's Add button. Off, the button can't be clicked, whatever the requirement code.
    bool addButton = true;
    std::vector<std::vector<std::string>> comboItems{};
    std::vector<UpDownBounds> bounds{};
    // Fields (from 0) the dialog shows but whose answer the row doesn't take: an edit that names
    // its row in a field and never renames it.
    std::vector<int> shownOnly{};
    // What the fields of a new row's dialog hold when it opens, such as a combo's first choice.
    std::array<std::string, 4> values{};
};

// Which row NEW's siblings act on.
enum class RowTarget {
    Selected,         // the selected row; nothing without one
    SelectedOrFirst,  // the selected row, or the first, which the list has current
};

enum class ButtonRule {
    FollowRows,  // DELETE and EDIT on while the list has rows
    EditOnPick,  // EDIT off at each load, on once a row is picked
    Fixed,       // as the toolbar was set up; only a limit turns NEW off
};

// A list edited through the edit dialogs: its toolbar's NEW, DELETE and EDIT, the pop-up
// entries, a double click, and the rules of each page's list.
struct RowEditorDecl {
    std::string list;
    std::string toolbar;
    // The pop-up menu a right click shows ("mnuFirst") and the prefix of the page methods its
    // entries call ("gMenuFirst": gMenuFirstAddClick, gMenuFirstDeleteClick, gMenuFirstEditClick).
    std::string popup{};
    std::string methods{};
    // The list column each dialog field stands in: 1 is the row's text, 2 and on its cells.
    std::vector<int> columns{1};
    std::optional<RowDialogDecl> add{};
    std::optional<RowDialogDecl> edit{};
    // DELETE asks this first; without it the list has no DELETE.
    std::optional<Prompt> confirmDelete{};
    // A list at its floor refuses to lose a row, with this message.
    int floor = 0;
    Prompt floorPrompt{};
    // A list at its limit takes no more rows: NEW turns off.
    int limit = 0;
    // A row added with the text of a row the list holds, letter case aside, is refused with this
    // message, and the add goes on as the dialog ended. An edit is not checked.
    std::optional<Prompt> refuseDuplicate{};
    RowTarget target = RowTarget::SelectedOrFirst;
    bool trimValues = false;  // the dialog shows the row's values without their blanks
    bool selectFirstAfterDelete = false;
    // How DELETE and EDIT are enabled.
    ButtonRule buttons = ButtonRule::FollowRows;
    // EDIT runs the page's own action (RowEditor::onEdit) instead of a dialog.
    bool customEdit = false;
    // NEW runs the page's own action (RowEditor::onAdd) instead of the add loop.
    bool customAdd = false;
    // The Delete key on the list is DELETE.
    bool deleteKey = false;
    // A new row's text is its first field's answer as well, where that field stands in another
    // column: the row shows what was typed beside the number the file gives it.
    bool addNamesRow = false;
    // EDIT opens the text editor on this file below the settings folder, "{profile}" standing for
    // the profile number of the row (its place less 2), instead of a dialog.
    std::string editsFile{};
};

// ---- The page
// ------------------------------------------------------------------------------------

struct PageDecl {
    std::string key;      // "Security~CommandSpy"
    std::string caption;  // "Security ~ CommandSpy"
    PageSize size;
    std::optional<PageSize> minimum{};  // the size, where the page gives no other
    // The files SAVE writes, in its order; a file's fields that no control is bound to aren't
    // written by the page.
    std::vector<const store::FileSchema*> files{};
    std::vector<ControlDecl> controls{};
    std::vector<RowEditorDecl> editors{};
    // Where the controls stand, by name; without it, one below the other.
    std::optional<Layout> layout{};
    bool noRestore = false;
    // The name the open window list knows the page by, where its caption isn't its key.
    std::string tag{};
    // A discard that leaves the page clean, as a load does.
    bool discardClears = false;
    // SAVE makes its files' folders where no builder has made them, rather than fail.
    bool saveMakesFolders = false;
    // The frame's buttons are off from the load on: the page holds nothing of its own to save or
    // discard, its files being edited and saved elsewhere.
    bool toolbarOff = false;
};

// A profile check list under a label of its own.
struct CheckListDecl {
    std::string key;          // the sub-table
    std::string list;         // the list control
    std::string label;        // the label's caption
    std::string column = "";  // the text of the list's one column
};

// Check lists side by side, each under its label: the labels ("lblLabel(n)", numbered from
// `firstLabel`) and the lists join the page's controls in that order, and a column of each
// label over its list joins `row`.
void AddCheckLists(PageDecl& page, Layout& row, const std::vector<CheckListDecl>& lists,
                   int firstLabel, int width);

// Whether the declaration holds together: each bound key in its file, with a control that fits
// the field, every name once, every editor's list and toolbar declared. Throws std::logic_error
// naming the page and what is wrong.
void Validate(const PageDecl& decl);

}  // namespace qb::shell
