#include "families/quiz/word_list.h"

#include "shell/page_frame.h"

namespace qb::pages {

WordListEditor::WordListEditor(const WordList& list, std::string file, shell::ListControl& rows,
                               shell::Toolbar& toolbar, shell::Host& host, store::TableFiles& files,
                               std::function<void()> popUp)
    : list_(list),
      file_(std::move(file)),
      rows_(rows),
      toolbar_(toolbar),
      host_(host),
      files_(files),
      questions_(rows, host, files, list.words, list.answers) {
    toolbar_.onButtonClick = [this](const std::string& key) {
        if (key == "OPEN") Open();
        if (key == "SAVE") Save();
        if (key == "CLOSE") Close();
        if (key == "NEW") questions_.Add({});
        if (key == "DELETE") questions_.Delete();
        if (key == "EDIT") Edit();
    };
    rows_.onDoubleClick = [this](int) { Edit(); };
    rows_.onRightClick = [popUp = std::move(popUp)](int) {
        if (popUp) popUp();
    };
}

void WordListEditor::Buttons(bool open) {
    for (const shell::ToolButton& button : toolbar_.Buttons()) {
        if (!button.separator)
            toolbar_.SetButtonEnabled(button.key, open != (button.key == "OPEN"));
    }
}

void WordListEditor::Open() {
    questions_.Load(file_);
    Buttons(true);
}

// Every row but the last with its line break, and the last one's text alone: a file saved here
// ends without a break, and where rows have answers the last one's is lost. The list then closes
// without a question.
void WordListEditor::Save() {
    if (rows_.Count() == 0) {
        host_.ShowMessage({"You must specify some questions", "Questions needed",
                           shell::Buttons::OK, shell::Icon::Exclamation});
        return;
    }
    files_.WriteTextFile(file_, questions_.Text(false));
    shell::ResetFileEditor(host_, toolbar_, rows_, true);
    Buttons(false);
}

// CLOSE always asks, edited or not; the toolbar goes back to OPEN alone even when the user
// keeps the list.
void WordListEditor::Close() {
    shell::ResetFileEditor(host_, toolbar_, rows_, false);
    Buttons(false);
}

void WordListEditor::Edit() {
    if (questions_.Edit() != QuestionRows::Edited::NoRow && list_.editOpens) {
        toolbar_.SetButtonEnabled("OPEN", true);
    }
}

}  // namespace qb::pages
