#include "families/quiz/question_rows.h"

#include "shell/table_lists.h"
#include "store/table_text.h"
#include "store/text_rules.h"

namespace qb::pages {

using shell::Answer;
using shell::Buttons;
using shell::Icon;

QuestionRows::QuestionRows(shell::ListControl& rows, shell::Host& host, store::TableFiles& files,
                           const QuestionRowWords& words, bool answers)
    : rows_(rows), host_(host), files_(files), words_(words), answers_(answers) {}

void QuestionRows::Load(const std::string& file) {
    shell::LoadTableRows(files_, file, rows_, answers_ ? "*" : "", "", false, false, false);
}

shell::DialogRequest QuestionRows::Request(const std::string& caption,
                                           const std::vector<std::string>& labels,
                                           const std::string& mode) const {
    return {.kind = answers_ ? shell::DialogKind::ThreeFields : shell::DialogKind::OneFields,
            .caption = caption,
            .labels = labels,
            .mode = mode,
            // No field bars the Add button: rows go in one after the other.
            .required = answers_ ? 2 : 1};
}

// The row's text from the dialog's fields before the answer, joined by colons.
std::string QuestionRows::RowText(const shell::DialogResult& result) const {
    std::string text;
    for (size_t field = 0; field < TextFields(); ++field) {
        if (field > 0) text += ":";
        text += result.fields[field];
    }
    return text;
}

void QuestionRows::Add(const std::function<void()>& stored) {
    for (;;) {
        const shell::DialogResult result =
            host_.ShowDialog(Request(words_.addTitle, words_.addLabels, "A"));
        if (result.mode != "1" && result.mode != "A") return;
        const int row = rows_.Count() + 1;
        rows_.Append(shell::NewRowKey(files_, row), RowText(result));
        if (answers_) rows_.SetCell(row, 2, result.fields[2]);
        if (stored) stored();
        if (result.mode != "A") return;
    }
}

QuestionRows::Edited QuestionRows::Edit() {
    const int row = rows_.Selected() != 0 ? rows_.Selected() : (rows_.Count() > 0 ? 1 : 0);
    if (row == 0) return Edited::NoRow;
    shell::DialogRequest request = Request(words_.editTitle, words_.editLabels, "E");
    const std::string& text = rows_.Row(row).text;
    size_t from = 0;
    for (size_t field = 0; field < TextFields() && from <= text.size(); ++field) {
        const size_t colon = text.find(':', from);
        request.values[field] = store::TrimBlanks(
            text.substr(from, colon == std::string::npos ? std::string::npos : colon - from));
        from = colon == std::string::npos ? text.size() + 1 : colon + 1;
    }
    if (answers_) request.values[2] = rows_.Cell(row, 2);
    const shell::DialogResult result = host_.ShowDialog(request);
    if (result.mode != "1") return Edited::Kept;
    rows_.SetText(row, RowText(result));
    if (answers_) rows_.SetCell(row, 2, result.fields[2]);
    return Edited::Changed;
}

void QuestionRows::Delete() {
    if (rows_.Count() == 0) return;
    if (rows_.Count() == 1) {
        host_.ShowMessage({words_.rowFloor, "Cannot delete", Buttons::OK, Icon::Critical});
        return;
    }
    const int row = rows_.Selected() != 0 ? rows_.Selected() : 1;
    if (host_.ShowMessage({words_.rowConfirm, words_.rowConfirmTitle, Buttons::OKCancel,
                           Icon::Question}) != Answer::OK) {
        return;
    }
    rows_.Remove(row);
    rows_.Select(1);
}

std::string QuestionRows::Text(bool lastWhole) const {
    std::string text;
    const int count = rows_.Count();
    for (int index = 1; index <= count; ++index) {
        const shell::ListRow& row = rows_.Row(index);
        text += row.text;
        if (index == count && !lastWhole) break;
        if (answers_) {
            text += "*";
            text += row.cells.empty() ? std::string() : row.cells.front();
        }
        text += store::kNewline;
    }
    return text;
}

}  // namespace qb::pages
