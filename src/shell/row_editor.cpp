#include "shell/row_editor.h"

#include <algorithm>

#include "shell/table_lists.h"
#include "store/paths.h"
#include "store/text_rules.h"

namespace qb::shell {
namespace {

constexpr std::string_view kRowMark = "{row}";
constexpr std::string_view kProfileMark = "{profile}";

std::string Fill(std::string text, const std::string& row, std::string_view mark = kRowMark) {
    for (size_t at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + row.size())) {
        text.replace(at, mark.size(), row);
    }
    return text;
}

}  // namespace

RowEditor::RowEditor(const RowEditorDecl& decl, ListControl& list, Toolbar& toolbar, Host& host,
                     store::TableFiles& files, std::function<void()> markDirty)
    : decl_(decl),
      list_(list),
      toolbar_(toolbar),
      host_(host),
      files_(files),
      markDirty_(std::move(markDirty)) {
    if (decl_.buttons == ButtonRule::EditOnPick) {
        list_.onItemClick = [this](int) { toolbar_.SetButtonEnabled("EDIT", true); };
    }
}

int RowEditor::Target() const {
    if (list_.Count() == 0) return 0;
    if (list_.Selected() != 0 || decl_.target == RowTarget::Selected) return list_.Selected();
    return 1;
}

DialogRequest RowEditor::Request(const RowDialogDecl& dialog, int row) const {
    const auto trimmed = [&](const std::string& text) {
        return decl_.trimValues ? store::TrimBlanks(text) : text;
    };
    const std::string rowText = row != 0 ? trimmed(list_.Row(row).text) : std::string();
    DialogRequest request;
    request.kind = dialog.kind;
    request.caption = Fill(dialog.caption, rowText);
    request.frameCaption = Fill(dialog.frameCaption, rowText);
    for (const std::string& label : dialog.labels)
        request.labels.push_back(Fill(label, rowText));
    request.comboItems = dialog.comboItems;
    request.bounds = dialog.bounds;
    request.required = dialog.required;
    request.addButton = dialog.addButton;
    if (row == 0) request.values = dialog.values;
    if (row != 0) {
        for (size_t field = 0; field < decl_.columns.size() && field < request.values.size();
             ++field) {
            const int column = decl_.columns[field];
            request.values[field] =
                trimmed(column == 1 ? list_.Row(row).text : list_.Cell(row, column));
        }
    }
    return request;
}

void RowEditor::Store(int row, const RowDialogDecl& dialog, const DialogResult& result) {
    for (size_t field = 0; field < decl_.columns.size() && field < result.fields.size(); ++field) {
        if (std::find(dialog.shownOnly.begin(), dialog.shownOnly.end(), static_cast<int>(field)) !=
            dialog.shownOnly.end()) {
            continue;
        }
        const int column = decl_.columns[field];
        if (column == 1) {
            list_.SetText(row, result.fields[field]);
        } else {
            list_.SetCell(row, column, result.fields[field]);
        }
    }
}

void RowEditor::EnableRowButtons(bool enabled) {
    for (const char* key : {"DELETE", "EDIT"}) {
        if (toolbar_.Find(key) != nullptr) toolbar_.SetButtonEnabled(key, enabled);
    }
}

void RowEditor::Loaded() {
    switch (decl_.buttons) {
        case ButtonRule::FollowRows:
            EnableRowButtons(list_.Count() > 0);
            break;
        case ButtonRule::EditOnPick:
            toolbar_.SetButtonEnabled("EDIT", false);
            break;
        case ButtonRule::Fixed:
            break;
    }
    // A load only ever turns NEW off.
    if (decl_.limit != 0 && list_.Count() == decl_.limit) toolbar_.SetButtonEnabled("NEW", false);
}

void RowEditor::Add() {
    if (decl_.customAdd) {
        if (onAdd) onAdd();
        return;
    }
    if (!decl_.add) return;
    if (decl_.limit != 0 && list_.Count() >= decl_.limit) return;
    for (;;) {
        DialogRequest request = Request(*decl_.add, 0);
        request.mode = "A";
        if (onRequest) onRequest(request, 0);
        const DialogResult result = host_.ShowDialog(request);
        if (result.mode != "1" && result.mode != "A") break;
        if (IsDuplicate(result.fields[0])) {
            const Prompt& prompt = *decl_.refuseDuplicate;
            host_.ShowMessage({prompt.text, prompt.title, Buttons::OK, prompt.icon});
            if (result.mode != "A") break;
            continue;
        }
        const int row = list_.Count() + 1;
        // Where no field gives the row's text, the text is the row's number.
        const bool textGiven =
            std::find(decl_.columns.begin(), decl_.columns.end(), 1) != decl_.columns.end();
        std::string text = textGiven ? std::string() : std::to_string(row);
        if (decl_.addNamesRow) text = result.fields[0];
        list_.Append(NewRowKey(files_, row), std::move(text));
        Store(row, *decl_.add, result);
        markDirty_();
        if (onStored) onStored(row, true);
        if (decl_.limit != 0 && list_.Count() == decl_.limit) {
            toolbar_.SetButtonEnabled("NEW", false);
            break;
        }
        if (result.mode != "A") break;
    }
    if (decl_.buttons == ButtonRule::FollowRows && list_.Count() > 0) EnableRowButtons(true);
}

bool RowEditor::IsDuplicate(const std::string& text) const {
    if (!decl_.refuseDuplicate) return false;
    const std::string folded = store::FoldCase(text);
    for (const ListRow& row : list_.Rows()) {
        if (store::FoldCase(row.text) == folded) return true;
    }
    return false;
}

void RowEditor::Edit() {
    const int row = Target();
    if (row == 0) return;
    if (decl_.customEdit) {
        if (onEdit) onEdit(row);
        return;
    }
    if (!decl_.editsFile.empty()) {
        host_.OpenTextEditor(Fill(decl_.editsFile, std::to_string(row - 2), kProfileMark), "E");
        return;
    }
    if (!decl_.edit) return;
    DialogRequest request = Request(*decl_.edit, row);
    request.mode = "E";
    if (onRequest) onRequest(request, row);
    const DialogResult result = host_.ShowDialog(request);
    if (result.mode != "1") return;
    Store(row, *decl_.edit, result);
    markDirty_();
    if (onStored) onStored(row, false);
}

void RowEditor::Delete() {
    if (!decl_.confirmDelete || list_.Count() == 0) return;
    if (decl_.floor != 0 && list_.Count() <= decl_.floor) {
        host_.ShowMessage(
            {decl_.floorPrompt.text, decl_.floorPrompt.title, Buttons::OK, decl_.floorPrompt.icon});
        return;
    }
    const int row = Target();
    if (row == 0) return;
    const Prompt& prompt = *decl_.confirmDelete;
    if (host_.ShowMessage({prompt.text, prompt.title, Buttons::OKCancel, prompt.icon}) !=
        Answer::OK) {
        return;
    }
    if (onRemoving) onRemoving(row);
    list_.Remove(row);
    if (decl_.selectFirstAfterDelete) list_.Select(list_.Count() > 0 ? 1 : 0);
    if (decl_.buttons == ButtonRule::FollowRows && list_.Count() == 0) EnableRowButtons(false);
    markDirty_();
    if (onDeleted) onDeleted();
    // The test is for the limit itself, which a delete never leaves: NEW stays off until the
    // page loads again.
    if (decl_.limit != 0 && list_.Count() == decl_.limit) toolbar_.SetButtonEnabled("NEW", true);
}

}  // namespace qb::shell
