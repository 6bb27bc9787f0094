#pragma once
// A game's word list (or question list) edited in place on its settings page: the file is read
// only when the user opens it, since it can hold many thousands of lines, and the list has its
// own toolbar, its own save and its own close, apart from the page's. Its state never marks the
// page, and the page's SAVE, DISCARD and RESTORE leave it as it is. Anagrams and Hangman keep a
// word a line, Numbers a question and its answer; a game names its list as data.

#include <functional>
#include <string>
#include <vector>

#include "families/quiz/question_rows.h"
#include "shell/controls.h"
#include "shell/host.h"
#include "store/table_files.h"

namespace qb::pages {

struct WordList {
    std::string file;    // in the game's folder: "AnagramWords.lst"
    std::string sample;  // what the builder writes into a new file, before its line break
    std::vector<shell::ListColumn> columns;
    // A row's answer stands behind its asterisk: the list reads the file split there, and its
    // save writes each answer but the last one's, which is lost.
    bool answers = false;
    // The word pages turn OPEN on after every edit, confirmed or not, so that it stands enabled
    // beside an open list.
    bool editOpens = false;
    QuestionRowWords words;
};

// The list's toolbar, `tlbListview`, and the list, `lvwWords`, on every page that has one.
inline constexpr const char* kWordList = "lvwWords";
inline constexpr const char* kWordToolbar = "tlbListview";

class WordListEditor {
  public:
    // Takes the toolbar's clicks and the list's double click; `popUp` shows the page's menu on a
    // right click, whose entries call NEW, DELETE and EDIT through the toolbar.
    WordListEditor(const WordList& list, std::string file, shell::ListControl& rows,
                   shell::Toolbar& toolbar, shell::Host& host, store::TableFiles& files,
                   std::function<void()> popUp);

  private:
    // OPEN appends the file's rows to what the list holds: it doesn't clear it first.
    void Open();
    void Save();
    void Close();
    void Edit();
    // OPEN alone on, or OPEN off and the five others on.
    void Buttons(bool open);

    const WordList& list_;
    std::string file_;
    shell::ListControl& rows_;
    shell::Toolbar& toolbar_;
    shell::Host& host_;
    store::TableFiles& files_;
    QuestionRows questions_;
};

}  // namespace qb::pages
