#include "families/quiz/question_files.h"

#include <map>
#include <memory>

#include "shell/page_frame.h"
#include "shell/table_lists.h"
#include "store/paths.h"
#include "store/table_text.h"
#include "store/text_rules.h"

namespace qb::pages {
namespace {

using shell::Answer;
using shell::Buttons;
using shell::Icon;
using shell::ListControl;
using shell::Toolbar;

shell::PageDecl MakeDecl(const QuestionFiles& member) {
    using namespace shell::decl;
    using shell::Item;
    const int width = member.size.width - 420;
    shell::PageDecl page{
        .key = member.key,
        .caption = member.caption,
        .size = member.size,
        .files = {member.schema},
        .controls = {{.kind = shell::ControlKind::Combo,
                      .name = member.defaultCombo,
                      .caption = member.comboCaption},
                     shell::decl::Toolbar(member.fileToolbar, {shell::SetupFileListToolbar}),
                     List(member.fileList, width, {{"column", member.fileColumn, width - 350}}),
                     shell::decl::Toolbar(member.rowToolbar, {shell::SetupQuestionToolbar}),
                     List(member.rowList, width, member.rowColumns)},
        .layout = shell::Column({Item(member.defaultCombo), Item(member.fileToolbar),
                                 shell::Weighted(Item(member.fileList), 1), Item(member.rowToolbar),
                                 shell::Weighted(Item(member.rowList), 3)}),
        .noRestore = true,
        // A discard reloads the list of files, closes the editor and leaves nothing to save.
        .discardClears = true,
    };
    return page;
}

const shell::PageDecl& DeclOf(const QuestionFiles& member) {
    static std::map<const QuestionFiles*, std::unique_ptr<shell::PageDecl>> made;
    auto& decl = made[&member];
    if (!decl) decl = std::make_unique<shell::PageDecl>(MakeDecl(member));
    return *decl;
}

class QuestionFilesPage : public shell::Page {
  public:
    QuestionFilesPage(shell::PageContext& context, const QuestionFiles& member)
        : Page(context, DeclOf(member)),
          member_(member),
          words_(member.words),
          combo_(Get<shell::ComboBox>(member.defaultCombo)),
          files_(Get<ListControl>(member.fileList)),
          fileBar_(Get<Toolbar>(member.fileToolbar)),
          rows_(Get<ListControl>(member.rowList)),
          rowBar_(Get<Toolbar>(member.rowToolbar)),
          questions_(rows_, context.host, context.files, member.words.rows, member.answers) {
        combo_.onClick = [this] { MarkDirty(); };
        fileBar_.onButtonClick = [this](const std::string& key) {
            if (key == "NEW") CreateQuestionFile();
            if (key == "OPEN") AddQuestionFile();
            if (key == "DELETE") DeleteQuestionFile();
            if (key == "EDIT") OpenQuestionFile();
        };
        rowBar_.onButtonClick = [this](const std::string& key) {
            if (key == "SAVE") SaveQuestions();
            if (key == "CLOSE") CloseQuestions();
            if (key == "NEW") AddQuestion();
            if (key == "EDIT") EditQuestion();
            // Deleting a question leaves the editor's SAVE as it was.
            if (key == "DELETE") questions_.Delete();
        };
        files_.onDoubleClick = [this](int) {
            if (files_.Count() > 0) OpenQuestionFile();
        };
        rows_.onDoubleClick = [this](int) { EditQuestion(); };
        // The shared menu acts on the list last right-clicked, as its toolbar's buttons would.
        files_.onRightClick = [this](int) { PopUp(fileBar_); };
        rows_.onRightClick = [this](int) { PopUp(rowBar_); };
        for (const auto& [entry, button] :
             {std::pair{"Add", "NEW"}, std::pair{"Delete", "DELETE"}, std::pair{"Edit", "EDIT"}}) {
            PublishMenuMethod(std::string("gMenuFirst") + entry + "Click",
                              [this, key = std::string(button)] {
                                  if (popped_ != nullptr) popped_->UserClick(key);
                              });
        }
    }

  protected:
    void LoadSettings() override {
        files_.Clear();
        combo_.ClearItems();
        ResetFileEditor(true);
        CloseEditor();
        const store::FileSchema& schema = *member_.schema;
        const std::string& defaultKey = schema.fields.front().key;
        const std::string name = context_.files.ReadTableValue(schema.file, defaultKey, "");
        // A list without a default shows nothing at all.
        if (name.empty()) return;
        files_.Append("1ID", name);
        shell::LoadFileNameRows(context_.files, schema.file, files_, schema.table);
        // The default's key reads as a row of its own, bracketed as the builder writes it or
        // plain: a row that begins with it goes.
        for (int row = files_.Count(); row >= 2; --row) {
            std::string text = files_.Row(row).text;
            if (text.starts_with("[\"")) {
                text = text.substr(2, defaultKey.size());
                files_.SetText(row, text);
            }
            if (text.substr(0, defaultKey.size()) == defaultKey) files_.Remove(row);
        }
        for (const shell::ListRow& row : files_.Rows())
            combo_.AddItem(row.text);
        combo_.SetText(name);
    }

    void SaveSettings() override {
        const store::FileSchema& schema = *member_.schema;
        const std::string chosen = combo_.Text();
        std::vector<store::ListEntry> others;
        for (const shell::ListRow& row : files_.Rows()) {
            if (row.text != chosen) others.push_back({{}, row.text});
        }
        context_.files.WriteTextFile(
            schema.file, store::RenderTable(
                             schema, context_.profiles.LastNumber(),
                             [&](const store::Field&, int) { return chosen; }, store::Writer::Page,
                             {}, [&](const store::Field&) { return others; }));
    }

  private:
    void PopUp(Toolbar& toolbar) {
        popped_ = &toolbar;
        ShowPopupMenu("mnuFirst");
    }

    // The file row the buttons act on: the selected one, or the first, which the list has
    // current.
    int FileRow() const {
        if (files_.Count() == 0) return 0;
        return files_.Selected() != 0 ? files_.Selected() : 1;
    }

    std::string PathOf(const std::string& name) const { return member_.folder + name + ".lst"; }

    // The refusal of a delete that would leave a list empty.
    void CannotDelete(const std::string& text) {
        context_.host.ShowMessage({text, "Cannot delete", Buttons::OK, Icon::Critical});
    }

    bool Ask(const std::string& text, const std::string& title) {
        return context_.host.ShowMessage({text, title, Buttons::OKCancel, Icon::Question}) ==
               Answer::OK;
    }

    // Empties the editor, asking first unless `force`: the list, its tag, button 1 on and the
    // rest off. False when the user keeps what is open.
    bool ResetFileEditor(bool force) {
        return shell::ResetFileEditor(context_.host, rowBar_, rows_, force);
    }

    void CloseEditor() {
        for (const char* key : {"SAVE", "CLOSE", "NEW", "EDIT", "DELETE"})
            rowBar_.SetButtonEnabled(key, false);
    }

    // A new row, selected, and its name in the combo. A list without a default (the joke
    // files' on a fresh tree) takes the first file as its default: saved without one, the list
    // would open empty.
    void ListFile(const std::string& name) {
        files_.Append(std::to_string(files_.Count() + 1) + "ID", name);
        combo_.AddItem(name);
        if (combo_.Text().empty()) combo_.SetText(name);
        files_.Select(files_.Count());
    }

    // OPEN: a file is taken by its name only, and looked for in the files' folder whatever
    // folder it was chosen in. A name that begins a listed one, letter case and all, is passed
    // over without a word.
    void AddQuestionFile() {
        const auto path = context_.host.AskFile(words_.openTitle, "(*.lst)|*.lst",
                                                context_.files.ProgramFolder() + words_.openFolder);
        if (!path || path->size() < 5) return;
        std::string name = path->substr(path->find_last_of('\\') + 1);
        name = name.substr(0, name.size() >= 4 ? name.size() - 4 : 0);
        for (const shell::ListRow& row : files_.Rows()) {
            if (row.text.substr(0, name.size()) == name) return;
        }
        ListFile(name);
        OpenQuestionFile();
        MarkDirty();
    }

    // NEW: the name in lower case, the file written at once with a sample line, then opened.
    void CreateQuestionFile() {
        const auto typed = context_.host.AskInput("Enter filename", "Enter filename", "");
        if (!typed) return;
        const std::string name = store::FoldCase(*typed);
        if (name.empty()) return;
        for (const shell::ListRow& row : files_.Rows()) {
            if (store::FoldCase(row.text) == name) {
                // The title is the language pages' own, and has always stood here.
                context_.host.ShowMessage(
                    {name + " already exists", "Cannot create language file", Buttons::OK});
                return;
            }
        }
        ListFile(name);
        if (member_.makesFolder) MakeFoldersOf(PathOf(name));
        context_.files.WriteTextFile(PathOf(name), words_.sample);
        OpenQuestionFile();
        MarkDirty();
    }

    // DELETE: the row leaves the list and the combo; the file stays on the disk, and nothing is
    // marked: the table file loses it only when something else enables SAVE.
    void DeleteQuestionFile() {
        const int row = FileRow();
        if (row == 0) return;
        if (combo_.Items().size() == 1) {
            CannotDelete(words_.fileFloor);
            return;
        }
        const std::string name = files_.Row(row).text;
        if (!Ask("Do you really want to delete " + name + "?", words_.fileConfirm)) return;
        std::vector<std::string> items = combo_.Items();
        for (size_t at = 0; at < items.size(); ++at) {
            if (items[at] != name) continue;
            const std::string shown = items[at == 0 ? (items.size() > 1 ? 1 : 0) : at - 1];
            items.erase(items.begin() + static_cast<std::ptrdiff_t>(at));
            combo_.ClearItems();
            for (const std::string& item : items)
                combo_.AddItem(item);
            combo_.SetText(shown);
            break;
        }
        files_.Remove(row);
        files_.Select(files_.Count() > 0 ? 1 : 0);
    }

    // Reads the file of the selected row into the editor, after a warning: what the editor held
    // goes without a question.
    void OpenQuestionFile() {
        const int row = FileRow();
        if (row == 0) return;
        if (rows_.Count() > 0) ResetFileEditor(true);
        if (!Ask(words_.loadWarning, "Load file?")) return;
        questions_.Load(PathOf(files_.Row(row).text));
        rowBar_.SetButtonEnabled("SAVE", false);
        for (const char* key : {"CLOSE", "NEW", "EDIT", "DELETE"})
            rowBar_.SetButtonEnabled(key, true);
    }

    // Each question added or edited lights the editor's SAVE; an added one the file list's
    // first button too.
    void AddQuestion() {
        questions_.Add([this] {
            rowBar_.SetButtonEnabled("SAVE", true);
            fileBar_.SetButtonEnabled(1, true);
        });
    }

    void EditQuestion() {
        if (questions_.Edit() == QuestionRows::Edited::Changed)
            rowBar_.SetButtonEnabled("SAVE", true);
    }

    // Every row with its line break, to the file of the row selected now: that may be another
    // file than the one opened. The page's own SAVE lights up with it.
    void SaveQuestions() {
        const int fileRow = FileRow();
        if (fileRow == 0) return;
        context_.files.WriteTextFile(PathOf(files_.Row(fileRow).text), questions_.Text(true));
        rowBar_.SetButtonEnabled("SAVE", false);
        MarkDirty();
    }

    // The editor's SAVE goes off whether or not the user lets the list go.
    void CloseQuestions() {
        ResetFileEditor(false);
        rowBar_.SetButtonEnabled("SAVE", false);
    }

    const QuestionFiles& member_;
    const QuestionWords& words_;
    shell::ComboBox& combo_;
    ListControl& files_;
    Toolbar& fileBar_;
    ListControl& rows_;
    Toolbar& rowBar_;
    QuestionRows questions_;
    Toolbar* popped_ = nullptr;
};

}  // namespace

shell::PageEntry QuestionFilesPageOf(const QuestionFiles& member) {
    return {DeclOf(member), [&member](shell::PageContext& context) {
                return std::make_unique<QuestionFilesPage>(context, member);
            }};
}

}  // namespace qb::pages
