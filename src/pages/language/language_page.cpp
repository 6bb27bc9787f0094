// One page for the three language sets. It has two stages that are saved apart: the index
// (lvwFiles, which language is in force; saved by the page's SAVE) and one open language file
// (lvwTexts, saved by its own toolbar). A language file saved there is on disk and listed before
// the index names it, and a DISCARD of the page forgets it from the list again.

#include <optional>

#include "pages/language/language.h"
#include "shell/page.h"
#include "shell/page_frame.h"
#include "shell/table_lists.h"
#include "store/paths.h"
#include "store/table_text.h"

namespace qb::pages {
namespace {

using shell::Icon;
using shell::ListControl;
using shell::Page;
using shell::PageContext;
using shell::Toolbar;

constexpr const char* kDefault = "DEFAULT";
constexpr int kText = 2;  // lvwTexts: the key is the row's text, the language's text column 2

class LanguagePage : public Page {
  public:
    LanguagePage(PageContext& context, const LanguageSet& set, std::string caption)
        : Page(context,
               {.key = std::string(set.key), .caption = std::move(caption), .size = {8400, 6075}}),
          set_(set),
          tlbFiles(Add<Toolbar>("tlbFiles")),
          lvwFiles(Add<ListControl>("lvwFiles", true)),
          tlbTexts(Add<Toolbar>("tlbTexts")),
          lvwTexts(Add<ListControl>("lvwTexts")) {
        lvwFiles.SetWidth(2400);
        lvwTexts.SetWidth(8400 - 180 - 2400 - 3 * 120);
        lvwFiles.onItemCheck = [this](int row) { MakeCurrent(row); };
        lvwFiles.onDoubleClick = [this](int) {
            if (lvwFiles.Count() > 0) EditFile();
        };
        lvwFiles.onRightClick = [this](int) { ShowPopupMenu("mnuFirst"); };
        lvwTexts.onDoubleClick = [this](int) { EditText(); };
        lvwTexts.onRightClick = [this](int) { ShowPopupMenu("mnuOnlyEdit"); };
        tlbFiles.onButtonClick = [this](const std::string& key) {
            if (key == "NEW") NewFile();
            if (key == "OPEN") OpenFile();
            if (key == "DELETE") DeleteFile();
            if (key == "EDIT") EditFile();
        };
        tlbTexts.onButtonClick = [this](const std::string& key) {
            if (key == "SAVE") SaveFile();
            if (key == "CLOSE") CloseFile();
            if (key == "EDIT") EditText();
            if (key == "EDITALL") EditAll();
        };
        PublishMenuMethod("gMenuFirstAddClick", [this] { NewFile(); });
        PublishMenuMethod("gMenuFirstDeleteClick", [this] { DeleteFile(); });
        PublishMenuMethod("gMenuFirstEditClick", [this] { EditFile(); });
        PublishMenuMethod("gMenuEditClick", [this] { EditText(); });
        SetBody(shell::Row({shell::Column({shell::Item(tlbFiles), shell::Item(lvwFiles)}),
                            shell::Column({shell::Item(tlbTexts), shell::Item(lvwTexts)})}));
    }

  private:
    // tlbTexts, numbered as the page addresses them: 1 SAVE, 2 CLOSE, 3 EDIT, 4 EDITALL.
    void SetTextButtons(bool save, bool close, bool edit, bool editAll) {
        tlbTexts.SetButtonEnabled("SAVE", save);
        tlbTexts.SetButtonEnabled("CLOSE", close);
        tlbTexts.SetButtonEnabled("EDIT", edit);
        tlbTexts.SetButtonEnabled("EDITALL", editAll);
    }

    void Setup() override {
        shell::SetupFileListToolbar(tlbFiles);
        shell::SetupQuestionToolbar(tlbTexts);
        shell::SetupEditAllToolbar(tlbTexts);
        // A language file's keys are the scripts': no text is added or taken away here.
        tlbTexts.RemoveButton("NEW");
        tlbTexts.RemoveButton("DELETE");
        SetTextButtons(false, false, false, false);
        lvwFiles.AddColumn("column1", "Languages", lvwFiles.Width() - 350);
        lvwTexts.AddColumn("column1", std::string(set_.idColumn), 1800);
        lvwTexts.AddColumn("column2", std::string(set_.textColumn), lvwTexts.Width() - 350 - 1800);
        lvwTexts.SetEnabled(false);  // until a file is open
    }

    // The index: a row per language, the one named Current ticked. The open file stays open.
    void LoadSettings() override {
        lvwFiles.Clear();
        current_.clear();
        for (auto& row : context_.files.LoadTableRows(set_.indexFile, "=", set_.indexTable, false,
                                                      false, lvwFiles.Count())) {
            const int index = lvwFiles.Count() + 1;
            lvwFiles.Append(std::move(row.key), row.value);
            if (row.text == "Current") {
                lvwFiles.SetChecked(index, true);
                current_ = row.value;
            }
        }
    }

    // RESTORE leaves the index as it is: there is no default language but the one the hub
    // owner picks. It still marks the page changed.
    void RestoreDefaults() override {}

    // The language in force first, then the others numbered from 1.
    void SaveSettings() override {
        store::TableText text(std::string(set_.indexTable) + " = {");
        for (const auto& row : lvwFiles.Rows()) {
            if (row.checked) text.Line(1, "Current = \"" + row.text + "\",");
        }
        int number = 0;
        for (const auto& row : lvwFiles.Rows()) {
            if (!row.checked) {
                text.Line(1, "[" + std::to_string(++number) + "] = \"" + row.text + "\",");
            }
        }
        context_.files.WriteTextFile(set_.indexFile, text.End());
    }

    std::string FileOf(const std::string& language) const {
        return std::string(set_.filesFolder) + language + ".tbl";
    }

    // The row the file buttons act on: the selected one, or the first, which the list has
    // current until the user picks another.
    int CurrentRow() const {
        if (lvwFiles.Selected() != 0) return lvwFiles.Selected();
        return lvwFiles.Count() > 0 ? 1 : 0;
    }

    void Warn(const std::string& title, const std::string& text) {
        context_.host.ShowMessage({text, title, shell::Buttons::OK, Icon::Exclamation});
    }

    // ---- The index ------------------------------------------------------------------------

    // A tick makes its row the language in force. The set always keeps one: ticking the current
    // language's box again leaves it ticked and changes nothing.
    void MakeCurrent(int row) {
        const std::string name = lvwFiles.Row(row).text;
        if (name == current_) {
            for (int each = 1; each <= lvwFiles.Count(); ++each) {
                if (lvwFiles.Row(each).text == name) {
                    lvwFiles.SetChecked(each, true);
                    break;
                }
            }
            return;
        }
        for (int each = 1; each <= lvwFiles.Count(); ++each)
            lvwFiles.SetChecked(each, each == row);
        current_ = name;
        MarkDirty();
    }

    // A new language begins as a copy of DEFAULT under the typed name, which isn't checked.
    void NewFile() {
        const auto name =
            context_.host.AskInput(std::string(set_.newPrompt), std::string(set_.newTitle), "");
        if (!name || name->empty()) return;
        // DEFAULT comes with the scripts and the manager never writes it: a new file under its
        // name would replace it at the first save.
        if (store::UpperCase(*name) == kDefault) {
            Warn("Read Only", "DEFAULT file cannot be edited");
            return;
        }
        readOnly_ = false;
        lvwTexts.Clear();
        shell::LoadTableRows(context_.files, FileOf(kDefault), lvwTexts, "=", set_.languageTable,
                             false, false, false);
        ShowOpenFile(*name);
        // A new file can be saved as it is.
        SetTextButtons(true, true, true, true);
    }

    // Lists a file that is there already. Adding a row doesn't mark the page: only a change of
    // the language in force or a saved file does.
    void OpenFile() {
        const auto chosen = context_.host.AskFile(
            "Select Language File to open", "(*.TBL)|*.tbl",
            "\\Vandrell's Quillbook\\Settings\\" + std::string(set_.filesFolder));
        if (!chosen || chosen->empty()) return;
        std::string name = chosen->substr(chosen->find_last_of('\\') + 1);
        name = name.substr(0, name.size() >= 4 ? name.size() - 4 : 0);
        for (const auto& row : lvwFiles.Rows()) {
            if (store::FoldCase(row.text) == store::FoldCase(name)) {
                Warn("Cannot Add Language File", name + std::string(set_.existsText));
                return;
            }
        }
        lvwFiles.Append("ID" + std::to_string(lvwFiles.Count() + 1), name);
    }

    // Takes the row out of the list only; the file stays on disk.
    void DeleteFile() {
        const int row = CurrentRow();
        if (row == 0) return;
        const std::string name = lvwFiles.Row(row).text;
        if (name == kDefault) {
            Warn("Cannot delete", std::string(set_.defaultKept));
            return;
        }
        const shell::Answer answer = context_.host.ShowMessage(
            {"Are you sure you wish to delete " + name + "?", "Delete Language File?",
             shell::Buttons::YesNo, Icon::Question});
        if (answer == shell::Answer::Yes) lvwFiles.Remove(row);
    }

    // Opens the row's file. DEFAULT opens for reading only.
    void EditFile() {
        // More than one row: a list of one is replaced without a word.
        if (lvwTexts.Count() > 1) {
            Warn("Cannot Edit", "There is already a file being edited");
            return;
        }
        const int row = CurrentRow();
        if (row == 0) return;
        const std::string name = lvwFiles.Row(row).text;
        if (name == kDefault) {
            Warn("Read Only", "DEFAULT file cannot be edited");
            readOnly_ = true;
            SetTextButtons(false, true, false, false);
        } else {
            readOnly_ = false;
            SetTextButtons(Enabled("SAVE"), true, true, true);
        }
        const std::string file = FileOf(name);
        lvwTexts.Clear();
        shell::LoadTableRows(context_.files, set_.overDefault ? FileOf(kDefault) : file, lvwTexts,
                             "=", set_.languageTable, false, false, false);
        // A language listed without its file reads as no texts, over DEFAULT or alone.
        auto& files = context_.files;
        if (files.FileExists(files.Resolve(file, false, false))) {
            shell::ApplyTableValues(files, file, set_.languageTable, lvwTexts);
        }
        ShowOpenFile(store::UpperCase(name));
    }

    void ShowOpenFile(std::string name) {
        if (lvwTexts.Count() > 0) lvwTexts.Select(1);
        lvwTexts.SetTag(std::move(name));
        lvwTexts.SetEnabled(true);
    }

    bool Enabled(const std::string& key) const { return tlbTexts.Find(key)->enabled; }

    // ---- The open file --------------------------------------------------------------------

    std::optional<std::string> AskText(int row) {
        shell::DialogRequest request;
        request.kind = shell::DialogKind::OneFields;
        request.caption = "Edit " + std::string(set_.textColumn);
        request.labels = {std::string(set_.textColumn)};
        request.values = {lvwTexts.Cell(row, kText), {}, {}, {}};
        request.mode = "E";
        const shell::DialogResult result = context_.host.ShowDialog(request);
        if (result.mode != "1") return std::nullopt;
        return result.fields[0];
    }

    // DEFAULT is only viewed: its dialog opens, but what comes back isn't kept.
    void StoreText(int row, std::string text) {
        if (readOnly_) return;
        lvwTexts.SetCell(row, kText, std::move(text));
        MarkDirty();
        tlbTexts.SetButtonEnabled("SAVE", true);
    }

    void EditText() {
        const int row = lvwTexts.Selected();
        if (row == 0) return;
        if (auto text = AskText(row)) StoreText(row, std::move(*text));
    }

    // Each text in turn, until the first dialog that isn't accepted; what was accepted stays.
    void EditAll() {
        for (int row = 1; row <= lvwTexts.Count(); ++row) {
            auto text = AskText(row);
            if (!text) return;
            StoreText(row, std::move(*text));
        }
    }

    void CloseFile() {
        if (lvwTexts.Tag() != kDefault &&
            !Confirm("Are you sure you'd like to discard changes?", "Discard changes?")) {
            return;
        }
        SetTextButtons(false, false, false, false);
        lvwTexts.Clear();
    }

    // Writes the open file whole under its name, and lists a language that is new to the set.
    void SaveFile() {
        if (readOnly_) return;
        store::TableText text(std::string(set_.languageTable) + " = {");
        for (const auto& row : lvwTexts.Rows()) {
            const std::string value = row.cells.empty() ? std::string() : row.cells.front();
            text.Line(1, row.text + " = \"" + value + "\",");
        }
        const std::string name = lvwTexts.Tag();
        context_.files.WriteTextFile(FileOf(name), text.End());
        lvwTexts.Clear();
        SetTextButtons(false, false, false, false);
        // A name typed in another letter case than the listed one's upper case is listed again.
        for (const auto& row : lvwFiles.Rows()) {
            if (store::UpperCase(row.text) == name) return;
        }
        lvwFiles.Append(shell::NewRowKey(context_.files, lvwFiles.Count() + 1), name);
        MarkDirty();
    }

    const LanguageSet& set_;
    Toolbar& tlbFiles;
    ListControl& lvwFiles;
    Toolbar& tlbTexts;
    ListControl& lvwTexts;
    std::string current_;    // the name of the language in force
    bool readOnly_ = false;  // DEFAULT is open
};

// Opened from the General group, the page says General, as its key does.
std::string GeneralCaption(std::string_view caption) {
    constexpr std::string_view language = "Language";
    return "General" + std::string(caption.substr(language.size()));
}

}  // namespace

void RegisterLanguagePages(shell::PageRegistry& registry) {
    for (const LanguageSet& set : LanguageSets()) {
        registry.Register(std::string(set.key), [&set](PageContext& context) {
            return std::make_unique<LanguagePage>(context, set, GeneralCaption(set.caption));
        });
    }
}

}  // namespace qb::pages
