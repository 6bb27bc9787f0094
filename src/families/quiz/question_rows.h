#pragma once
// The rows of a file of questions, words or jokes, opened for editing in a list on its page: a
// line of the file is a row, its text before the asterisk and, where the file has answers, the
// answer behind it in the second column. The editors of the trivia questions, the joke files, the
// word lists and the Numbers game's questions add, edit and delete their rows alike; they differ
// in their words, their toolbars and how they save.

#include <functional>
#include <string>
#include <vector>

#include "shell/controls.h"
#include "shell/host.h"
#include "store/table_files.h"

namespace qb::pages {

// What the dialogs and prompts over the rows say.
struct QuestionRowWords {
    std::string addTitle;
    std::vector<std::string> addLabels;
    std::string editTitle;
    std::vector<std::string> editLabels;
    std::string rowFloor;         // why the last row can't be deleted ("Cannot delete")
    std::string rowConfirm;       // the question before a row goes
    std::string rowConfirmTitle;  // and its title
};

class QuestionRows {
  public:
    // With `answers` a row is a text and an answer: the category and the question in the
    // dialogs, joined by a colon in the row, and the answer; without, the text alone.
    QuestionRows(shell::ListControl& rows, shell::Host& host, store::TableFiles& files,
                 const QuestionRowWords& words, bool answers);

    // Reads the file's lines in behind the rows the list holds: a line without an asterisk is
    // left out where rows have answers, and so is one that ends in a lower-case "t".
    void Load(const std::string& file);
    // NEW: rows go in while the dialog ends with Add; `stored` is told after each.
    void Add(const std::function<void()>& stored);
    // EDIT on the selected row, or the first: the text split at its colons fills the dialog, so
    // a text with a further colon loses what stands behind it when the edit is confirmed.
    enum class Edited { NoRow, Kept, Changed };
    Edited Edit();
    // DELETE: the last row can't go; the row asked about goes and row 1 is selected.
    void Delete();
    // The file's text: every row with its answer on a line of its own. With `lastWhole` false
    // the last line is the row's text alone, with no answer and no line break behind it.
    std::string Text(bool lastWhole) const;

  private:
    shell::DialogRequest Request(const std::string& caption, const std::vector<std::string>& labels,
                                 const std::string& mode) const;
    std::string RowText(const shell::DialogResult& result) const;
    size_t TextFields() const { return answers_ ? 2 : 1; }

    shell::ListControl& rows_;
    shell::Host& host_;
    store::TableFiles& files_;
    const QuestionRowWords& words_;
    bool answers_;
};

}  // namespace qb::pages
