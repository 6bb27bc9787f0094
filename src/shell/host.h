#pragma once
// Everything a page needs from the platform beyond its own controls: modal prompts, the edit
// dialogs, the file dialog, the text editor page and the web browser. The desktop window answers
// with real dialogs; the command line and the tests with a scripted host.

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace qb::shell {

enum class Buttons { OK, OKCancel, YesNo };
enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Answer { OK, Cancel, Yes, No };

struct Message {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::OK;
    Icon icon = Icon::None;
    // Where set, the box also offers "Show changes", which shows this text and leaves the
    // question open: what the rebuild it asks about would write.
    std::function<std::string()> showChanges{};
};

// The twelve edit dialogs differ only in their fields.
enum class DialogKind {
    OneFields,
    TwoFields,
    ThreeFields,
    FourFields,
    OneUpDown,
    TwoUpDowns,
    TextCombo,
    OneTextTwoCombo,
    TwoTextCombo,
    ThreeCombos,
    FourCombos,
    UpDownCombo,
};

struct UpDownBounds {
    int min = 0;
    int max = 100;
    int step = 1;
};

// What a page hands an edit dialog. `values` are the fields in the order of the dialog (text
// boxes and up-downs, then combos), `required` is the requirement code that paints the mandatory
// fields and may bar the Add button.
struct DialogRequest {
    DialogKind kind = DialogKind::OneFields;
    std::string caption{};
    std::string frameCaption{};
    std::vector<std::string> labels{};
    std::array<std::string, 4> values{};
    std::vector<std::vector<std::string>> comboItems{};
    std::vector<UpDownBounds> bounds{};
    std::string mode{};  // "E" to edit a row, "A" to add rows
    int required = 0;
    bool editableCombos = false;  // combos take typed text, not only their items
    // The Add button, where the page switches it off for this use (an edit of one row): off, it
    // can't be clicked at all.
    bool addButton = true;
};

// The dialog's outcome: mode "1" after OK, "A" after Add, empty after Cancel or the close box.
struct DialogResult {
    std::string mode;
    std::array<std::string, 4> fields;
};

class Host {
  public:
    virtual ~Host() = default;
    virtual Answer ShowMessage(const Message& message) = 0;
    virtual DialogResult ShowDialog(const DialogRequest& request) = 0;
    // A one-line question; nullopt when cancelled.
    virtual std::optional<std::string> AskInput(const std::string& prompt, const std::string& title,
                                                const std::string& initial) = 0;
    // The open file dialog; a script path, or nullopt when cancelled.
    virtual std::optional<std::string> AskFile(const std::string& title, const std::string& filter,
                                               const std::string& initialFolder) = 0;
    virtual void OpenTextEditor(const std::string& file, const std::string& mode) = 0;
    virtual void OpenWebAddress(const std::string& address) = 0;
};

std::string AnswerName(Answer answer);

}  // namespace qb::shell
