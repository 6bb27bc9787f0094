#pragma once
// The lists of strings the user actions keep: jokes, quotations, insults, attacks, the DoAction
// commands, spells and their phrases, warded users. Each is a table of rows in a file, edited
// through the one-line or two-line dialog, with a toolbar of NEW, DELETE and EDIT. They differ in
// their words, in whether a row is bare ("text",) or keyed (["key"] = "value",), in what RESTORE
// does to them and in the sample a new file holds; a list is one row of data saying so, and the
// controls, the field and the editor of every list come from here.

#include <optional>
#include <string>
#include <vector>

#include "shell/layout.h"
#include "shell/page_decl.h"
#include "store/schema.h"

namespace qb::pages {

// What a list's dialogs and prompts say.
struct ListWords {
    std::string addTitle{};             // "Add Quotation"
    std::vector<std::string> labels{};  // the dialog's fields: {"Quotation"}
    std::string editTitle{};            // "Edit Quotation"
    shell::Prompt floor{};              // the refusal to delete the last row
    shell::Prompt confirm{};            // the question before a delete
};

// The words most lists have, of a thing called `noun`: "Add Insult", "Edit Insult", "There must
// be a minimum of one Insult", "Delete Insult?", "Do you really want to delete this Insult?".
ListWords WordsOf(const std::string& noun);

struct StringList {
    std::string key{};      // the field: a sub-table, or the file's own table
    std::string list{};     // lvwQuotations
    std::string toolbar{};  // tlbQuotations
    std::vector<shell::ListColumn> columns{};
    ListWords words{};
    // A keyed row: the first column is the key, the second the value.
    bool keyed = false;
    // A keyed row whose value no column shows is written with this one, bare.
    std::string rowValue{};
    // The least number of rows a delete leaves; 0 lets the list run empty.
    int floor = 1;
    // What RESTORE does to the rows.
    shell::Quirks::RestoreRows restore = shell::Quirks::RestoreRows::Keep;
    // The rows of a new file, as its builder writes them.
    std::vector<store::ListEntry> sample{};
    // The name the builder writes the sub-table under, where it isn't the key.
    std::string builderName{};
    // The pop-up menu of a right click and the prefix of the methods its entries call.
    std::string popup = "mnuUserActions";
    std::string methods = "gMenu";
    bool selectFirstAfterDelete = false;
    bool trimValues = false;  // the edit dialog shows the row's values without their blanks
    bool deleteKey = false;   // the Delete key on the list deletes the row
    // A row added with the text of one the list holds, letter case aside, is refused so.
    std::optional<shell::Prompt> refuseDuplicate{};
};

// The field a list is bound to.
store::Field ListField(const StringList& list);

// The list's toolbar and its list, bound to the field or, with `bound` false, to nothing.
std::vector<shell::ControlDecl> ListControls(const StringList& list, int width, bool bound = true);

// The row editor of the list.
shell::RowEditorDecl ListEditor(const StringList& list);

// The toolbar above the list.
shell::Layout ListLayout(const StringList& list);

// A file of string lists and nothing else: its lists in the order they stand in it, each a field.
// A rebuild writes it only when missing, with each list's sample.
store::FileSchema ListFile(std::string file, std::string table,
                           const std::vector<StringList>& lists);

// A page of string lists: a file of lists, and where the function has one, its settings file,
// whose controls stand above the lists.
struct ListPage {
    std::string key{};
    std::string caption{};
    shell::PageSize size{};
    std::string file{};   // the list file
    std::string table{};  // its table
    std::vector<StringList> lists{};
    const store::FileSchema* settings = nullptr;
    std::vector<shell::ControlDecl> settingsControls{};
    shell::Layout settingsLayout{};
};

// The parts a page of lists is made of, made once and kept for the program's life.
struct ListPageParts {
    store::FileSchema file;
    shell::PageDecl page;
};

// Makes the page's file and declaration. The result never moves, so the declaration may point
// at the file.
const ListPageParts& MakeListPage(const ListPage& member);

}  // namespace qb::pages
