// The ascii intros: named users greeted by an ascii picture. The pictures are the files of the
// Ascii folder, made, edited and deleted here at once, whatever a DISCARD does later; the index
// the scripts pick a picture from is written from the list of files at each SAVE, and never read.

#include "pages/customiseuser/customiseuser.h"
#include "shell/page_frame.h"
#include "shell/table_lists.h"

namespace qb::pages {

namespace {

using store::FieldKind;

constexpr const char* kFolder = "CustomiseUser\\IntroOutro\\";
constexpr const char* kPictures = "CustomiseUser\\IntroOutro\\Ascii";

}  // namespace

const store::FileSchema& AsciiIntroSettingsSchema() {
    static const store::FileSchema schema{
        std::string(kFolder) + "AsciiIntroSettings.tbl",
        "tAsciiIntroSettings",
        {{FieldKind::Flag, "bNotifyOps", "1"}, {FieldKind::ProfileChecks, "tEnabledProfiles", "0"}},
    };
    return schema;
}

const store::FileSchema& AsciiIntroSchema() {
    static const store::FileSchema schema{
        .file = std::string(kFolder) + "AsciiIntro.tbl",
        .table = "tAsciiIntro",
        .fields = {{.kind = FieldKind::Rows,
                    .key = "tAsciiIntro",
                    .defaultValue = "",
                    .rowForm = store::RowForm::Named}},
        .kind = store::FileKind::Data,
    };
    return schema;
}

const store::FileSchema& AsciiIntroIndexSchema() {
    static const store::FileSchema schema{
        .file = std::string(kFolder) + "AsciiIntroIndex.tbl",
        .table = "tAsciiIntroIndex",
        .fields = {{.kind = FieldKind::Rows, .key = "tAsciiIntroIndex", .defaultValue = ""}},
        .kind = store::FileKind::Data,
    };
    return schema;
}

namespace {

using shell::ListControl;
using shell::Toolbar;

constexpr int kListWidth = 3600;

void SetupUsersToolbar(Toolbar& toolbar) {
    shell::SetupListToolbar(toolbar);
    toolbar.SetButtonTip("NEW", "Add new user");
    toolbar.SetButtonTip("DELETE", "Delete user");
    toolbar.SetButtonTip("EDIT", "Edit user");
}

void SetupFilesToolbar(Toolbar& toolbar) {
    shell::SetupListToolbar(toolbar);
    toolbar.SetButtonTip("NEW", "Add new file");
    toolbar.SetButtonTip("DELETE", "Delete file");
    toolbar.SetButtonTip("EDIT", "Edit file");
}

shell::RowDialogDecl UserDialog(std::string caption) {
    return {.kind = shell::DialogKind::TextCombo,
            .caption = std::move(caption),
            .labels = {"Username", "Filename"},
            .required = 1};
}

// The picture file a row of lvwFiles stands for.
std::string PictureFile(const std::string& name) {
    return std::string(kPictures) + "\\" + name + ".asc";
}

class frmCustomiseUserAsciiIntro : public shell::Page {
  public:
    static const shell::PageDecl& Decl() {
        using namespace shell::decl;
        static const shell::PageDecl page{
            .key = "CustomiseUser~IntroOutro~Ascii",
            .caption = "Customise User ~ Intros & Outros ~ Ascii",
            .size = {8000, 6600},
            .files = {&AsciiIntroSettingsSchema(), &AsciiIntroSchema()},
            .controls = {Check("chkNotifyOps", "bNotifyOps", "Notify Ops"),
                         ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles",
                                       3000),
                         Label("lblLabel(0)", "Ascii Profiles"),
                         shell::decl::Toolbar("tlbAscii", {SetupUsersToolbar}),
                         In(AsciiIntroSchema(),
                            With({.restoreRows = shell::Quirks::RestoreRows::Empty},
                                 Rows("lvwAscii", "tAsciiIntro", kListWidth,
                                      {{"column1", "Username", 1600},
                                       {"column2", "Filename", kListWidth - 1600 - 350}}))),
                         shell::decl::Toolbar("tlbFiles", {SetupFilesToolbar}),
                         List("lvwFiles", kListWidth, {{"column1", "Filename", kListWidth - 350}})},
            .editors = {{.list = "lvwAscii",
                         .toolbar = "tlbAscii",
                         .popup = "mnuFirst",
                         .methods = "gMenuFirst",
                         .columns = {1, 2},
                         .add = UserDialog("Add Ascii Profile for User"),
                         .edit = UserDialog("Edit Ascii Intro for {row}"),
                         .confirmDelete = shell::Prompt{"Do you really want to delete this intro?",
                                                        "Delete Intro?"},
                         .selectFirstAfterDelete = true}},
            .layout = shell::Row(
                {shell::Weighted(shell::Column({shell::Item("chkNotifyOps"),
                                                shell::Item("lvwEnabledProfiles")}),
                                 1),
                 shell::Weighted(shell::Column({shell::Item("lblLabel(0)"), shell::Item("tlbAscii"),
                                                shell::Item("lvwAscii"), shell::Item("tlbFiles"),
                                                shell::Item("lvwFiles")}),
                                 2)}),
        };
        return page;
    }

    explicit frmCustomiseUserAsciiIntro(shell::PageContext& context)
        : Page(context, Decl()),
          lvwAscii(Get<ListControl>("lvwAscii")),
          tlbFiles(Get<Toolbar>("tlbFiles")),
          lvwFiles(Get<ListControl>("lvwFiles")) {
        // The caption isn't the key with blanks: the page goes from the open window list by key.
        SetTag(Key());
        // A user's picture is picked among the files there are.
        Editor("lvwAscii").onRequest = [this](shell::DialogRequest& request, int) {
            std::vector<std::string> names;
            for (const shell::ListRow& row : lvwFiles.Rows())
                names.push_back(row.text);
            request.comboItems = {std::move(names)};
        };
        tlbFiles.onButtonClick = [this](const std::string& key) {
            if (key == "NEW") NewFile();
            if (key == "DELETE") DeleteFile();
            if (key == "EDIT") EditFile();
        };
        lvwFiles.onRightClick = [this](int) { ShowPopupMenu("mnuSecond"); };
        PublishMenuMethod("gMenuSecondAddClick", [this] { NewFile(); });
        PublishMenuMethod("gMenuSecondDeleteClick", [this] { DeleteFile(); });
        PublishMenuMethod("gMenuSecondEditClick", [this] { EditFile(); });
    }

    // A new picture is listed once the editor has saved it; a later save lists nothing more.
    void TextEditorSaved(const std::string& file) override {
        if (pendingFile_.empty() || file != pendingFile_) return;
        lvwFiles.Append(shell::NewRowKey(context_.files, lvwFiles.Count() + 1), pendingName_);
        pendingFile_.clear();
        FilesChanged();
    }

  private:
    // The pictures are what the folder holds now, each shown without its last four characters.
    void LoadSettings() override {
        Page::LoadSettings();
        lvwFiles.Clear();
        auto& files = context_.files;
        for (const std::string& name :
             files.FolderFiles(files.SettingsFolder() + "\\" + kPictures)) {
            const std::string shown = name.substr(0, name.size() >= 4 ? name.size() - 4 : 0);
            lvwFiles.Append(std::to_string(lvwFiles.Count() + 1) + "ID", shown);
        }
        FilesChanged();
    }

    void SaveSettings() override {
        Page::SaveSettings();
        const store::FileSchema& index = AsciiIntroIndexSchema();
        context_.files.WriteTextFile(
            index.file,
            store::RenderTable(
                index, context_.profiles.LastNumber(),
                [](const store::Field&, int) { return std::string(); }, store::Writer::Page, {},
                [this](const store::Field&) {
                    std::vector<store::ListEntry> names;
                    for (const shell::ListRow& row : lvwFiles.Rows())
                        names.push_back({{}, row.text});
                    return names;
                }));
    }

    void FilesChanged() {
        tlbFiles.SetButtonEnabled("DELETE", lvwFiles.Count() > 0);
        tlbFiles.SetButtonEnabled("EDIT", lvwFiles.Count() > 0);
    }

    // The row the file buttons act on: the selected one, or the first, which the list has
    // current until the user picks another.
    int FileRow() const {
        if (lvwFiles.Selected() != 0) return lvwFiles.Selected();
        return lvwFiles.Count() > 0 ? 1 : 0;
    }

    bool Listed(const std::string& name) const {
        for (const shell::ListRow& row : lvwFiles.Rows()) {
            if (row.text == name) return true;
        }
        return false;
    }

    // The editor opens on a file that doesn't exist yet, under a name no picture has.
    void NewFile() {
        auto& host = context_.host;
        for (;;) {
            const auto name =
                host.AskInput("Enter filename for new Ascii Intro", "Enter filename", "");
            if (!name || name->empty()) return;
            if (!Listed(*name)) {
                pendingName_ = *name;
                pendingFile_ = PictureFile(*name);
                host.OpenTextEditor(pendingFile_, "N");
                return;
            }
            host.ShowMessage({"File already exists", "Error", shell::Buttons::OK});
        }
    }

    // A picture a user is greeted with stays. The file goes from the disk at once.
    void DeleteFile() {
        const int row = FileRow();
        if (row == 0) return;
        const std::string name = lvwFiles.Row(row).text;
        for (int user = 1; user <= lvwAscii.Count(); ++user) {
            if (lvwAscii.Cell(user, 2) == name) {
                context_.host.ShowMessage({"Cannot delete this Ascii Intro as it is in use",
                                           "Cannot delete", shell::Buttons::OK,
                                           shell::Icon::Exclamation});
                return;
            }
        }
        if (!Confirm("Do you really want to delete this Ascii Intro?", "Delete Ascii Intro?")) {
            return;
        }
        auto& files = context_.files;
        files.DeleteFile(files.SettingsFolder() + "\\" + PictureFile(name));
        lvwFiles.Remove(row);
        FilesChanged();
    }

    void EditFile() {
        const int row = FileRow();
        if (row == 0) return;
        context_.host.OpenTextEditor(PictureFile(lvwFiles.Row(row).text), "E");
    }

    ListControl& lvwAscii;
    Toolbar& tlbFiles;
    ListControl& lvwFiles;
    // The picture NEW opened the editor on, until the editor saves it.
    std::string pendingName_;
    std::string pendingFile_;
};

}  // namespace

shell::PageEntry AsciiIntroPage() {
    return shell::PageOf<frmCustomiseUserAsciiIntro>();
}

}  // namespace qb::pages
