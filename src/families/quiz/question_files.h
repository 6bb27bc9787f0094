#pragma once
// A page that keeps a list of files of questions (or jokes), one of them the default, in a table
// file, and doubles as an editor of one such file at a time. Files can hold many thousands of
// lines, so one is read only on request, after a warning, and the editor has its own save and
// close, apart from the page's. The trivia questions and the joke files are its members; a member
// is a row of data: its files, its controls' names and its words.

#include <string>
#include <vector>

#include "families/quiz/question_rows.h"
#include "shell/page_decl.h"
#include "shell/page_registry.h"
#include "store/schema.h"

namespace qb::pages {

// What the file list's and the editor's prompts and dialogs say.
struct QuestionWords {
    std::string openTitle;    // the file dialog's title
    std::string openFolder;   // its starting folder, below the scripts folder
    std::string loadWarning;  // asked before a file is read
    std::string sample;       // the line a new file holds
    std::string fileFloor;    // why the last file can't be deleted ("Cannot delete")
    std::string fileConfirm;  // the title of the question before a file leaves the list
    QuestionRowWords rows;    // the editor's dialogs and prompts
};

struct QuestionFiles {
    std::string key;      // "Games~Trivia~Questions"
    std::string caption;  // "Games ~ Trivia ~ Questions"
    shell::PageSize size;
    // The list of files: "tName = {", the default's key, a row per other file, "}". The
    // schema's fields are the default's key and the file's own rows; its builder form, where
    // a builder makes the file, says how the builder lays it out.
    const store::FileSchema* schema;
    std::string folder;  // where the files stand, "Games\Trivia\QuestionFiles\"
    // The controls.
    std::string defaultCombo;  // cboQuestionFileDefault
    std::string comboCaption;  // "Default Question File"
    std::string fileList;      // lvwQuestionFiles
    std::string fileColumn;    // "Available Question Files"
    std::string fileToolbar;   // tlbQuestionFiles
    std::string rowList;       // lvwQuestions
    std::vector<shell::ListColumn> rowColumns;
    std::string rowToolbar;  // tlbQuestions
    // A row of a file: its text before the asterisk and the answer behind it, or, with no
    // asterisk, the line whole.
    bool answers = true;
    // NEW makes the files' folder where no builder has.
    bool makesFolder = false;
    QuestionWords words;
};

// The member's page. The member must outlive the registries.
shell::PageEntry QuestionFilesPageOf(const QuestionFiles& member);

}  // namespace qb::pages
