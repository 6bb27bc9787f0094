#pragma once
// The twelve edit dialogs as one model. A dialog has only fields, their labels and three buttons;
// they differ in their fields (text boxes, numbers with an up-down, combos) and in which fields
// a requirement code paints as mandatory. Field 0 alone governs OK and Add; Add also refuses while
// any field is empty. The desktop window and the scripted host both answer through this model, so
// that a script is refused what a user would be.

#include <optional>
#include <string>
#include <vector>

#include "shell/host.h"

namespace qb::shell {

enum class FieldKind { Text, UpDown, Combo };

struct DialogField {
    FieldKind kind;
    int index;  // in its control array: txtTextBox(i) (beside updUpDown(i)) or cboComboBox(i)
    std::string label;
    std::string value;
    std::vector<std::string> items;  // a combo's items
    UpDownBounds bounds;             // an up-down's
    bool painted = false;            // shown as mandatory
};

// "frmGlobalEditTwoFields" and its like.
std::string DialogFormName(DialogKind kind);
// The fields of a dialog in their order: text boxes and up-downs, then combos.
std::vector<FieldKind> FieldKindsOf(DialogKind kind);

class EditDialog {
  public:
    // Shows the dialog: the page's captions and values, then its activation: OK and Add
    // disabled, the mandatory fields painted.
    explicit EditDialog(const DialogRequest& request);

    const DialogRequest& Request() const { return request_; }
    const std::vector<DialogField>& Fields() const { return fields_; }
    bool OKEnabled() const { return okEnabled_; }
    bool AddEnabled() const { return addEnabled_; }
    // The requirement code barred Add.
    bool NoAdd() const { return noAdd_; }

    // The user types into a field, picks a combo item or turns an up-down. False when the user
    // can't: no such field, an item the combo doesn't have, a number for an up-down that isn't
    // one. An up-down keeps the number inside its bounds.
    bool UserSetField(int field, const std::string& value);

    // The buttons. Null when the click does nothing and the dialog stays open: OK or Add
    // disabled, or Add with an empty field.
    std::optional<DialogResult> ClickOK() const;
    std::optional<DialogResult> ClickAdd() const;
    // Cancel and the close box both end with an empty mode.
    DialogResult ClickCancel() const { return {}; }
    DialogResult CloseBox() const { return {}; }

  private:
    void Activate();
    DialogResult Result(std::string mode) const;

    DialogRequest request_;
    std::vector<DialogField> fields_;
    bool okEnabled_ = false;
    bool addEnabled_ = false;
    bool noAdd_ = false;
};

}  // namespace qb::shell
