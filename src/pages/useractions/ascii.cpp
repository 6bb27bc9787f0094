// Ascii pictures that users call up by name: who may show them, which profiles have them on the
// right click menu, and the index of the pictures, each in a text file of its own.

#include <optional>

#include "pages/useractions/useractions.h"
#include "shell/page_frame.h"
#include "shell/table_lists.h"
#include "store/table_text.h"

namespace qb::pages {

const store::FileSchema& AsciiSettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema{
        .file = "UserActions\\Ascii\\AsciiSettings.tbl",
        .table = "tAsciiSettings",
        .fields = {{FieldKind::Flag, "bInMain", "1"},
                   {FieldKind::Flag, "bInMainGlobal", "1"},
                   {FieldKind::Flag, "bEnableNoCommand", "1"},
                   {FieldKind::ProfileChecks, "tEnabledProfiles", "0"},
                   // Unregistered users get no right click, so the rows start at profile 0.
                   {.kind = FieldKind::ProfileChecks,
                    .key = "tEnabledRC",
                    .defaultValue = "0",
                    .firstProfile = 0}},
    };
    return schema;
}

// The pictures, numbered from 1: the page writes it whole; a rebuild makes it empty when missing.
const store::FileSchema& AsciiIndexSchema() {
    static const store::FileSchema schema{
        "UserActions\\Ascii\\AsciiIndex.tbl", "tAsciiIndex", {}, store::FileKind::Data};
    return schema;
}

namespace {

using shell::ListControl;

constexpr const char* kPictures = "UserActions\\Ascii\\Ascii\\";
// The scripts show no more pictures than this, and the page reads no more.
constexpr int kMostPictures = 50;
constexpr int kDisplayName = 2;
constexpr int kMenu = 3;

class frmUserActionsAscii : public shell::Page {
  public:
    static const shell::PageDecl& Decl() {
        using namespace shell::decl;
        static const shell::PageDecl page{
            .key = "UserActions~Ascii",
            .caption = "User Actions ~ Ascii",
            .size = {7000, 6600},
            .files = {&AsciiSettingsSchema()},
            .controls = {Check("chkCheckBox(0)", "bInMain", "Show In Main"),
                         Check("chkCheckBox(1)", "bInMainGlobal", "Show In Main To All"),
                         Check("chkCheckBox(2)", "bEnableNoCommand", "Enable No Command"),
                         ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles",
                                       3100),
                         ProfileChecks("lvwEnabledRCs", "tEnabledRC", "Enabled Right Clicks", 3100),
                         Toolbar("tlbFiles", {shell::SetupListToolbar}),
                         List("lvwAscii", 6580,
                              {{"Filename", "Filename", 2100},
                               {"DisplayName", "DisplayName", 2100},
                               {"Menu", "Menu", 2100}})},
            .editors = {{.list = "lvwAscii",
                         .toolbar = "tlbFiles",
                         .columns = {kDisplayName, kMenu},
                         .edit =
                             shell::RowDialogDecl{.kind = shell::DialogKind::TwoFields,
                                                  .caption = "Edit Ascii",
                                                  .labels = {"Display Name", "Right Click Menu"}},
                         .confirmDelete = shell::Prompt{"Do you really want to delete this Ascii?",
                                                        "Delete Ascii?"},
                         .customAdd = true,
                         .deleteKey = true}},
            .layout = shell::Column(
                {shell::Row({shell::Item("chkCheckBox(0)"), shell::Item("chkCheckBox(1)"),
                             shell::Item("chkCheckBox(2)"), shell::Stretch()}),
                 shell::Row({shell::Item("lvwEnabledProfiles"), shell::Item("lvwEnabledRCs")}),
                 shell::Item("tlbFiles"), shell::Item("lvwAscii")}),
            .discardClears = true,
        };
        return page;
    }

    explicit frmUserActionsAscii(shell::PageContext& context)
        : Page(context, Decl()), lvwAscii(Get<ListControl>("lvwAscii")) {
        auto& editor = Editor("lvwAscii");
        editor.onAdd = [this] { AddPicture(); };
        editor.onStored = [this](int row, bool) {
            adding_.reset();
            context_.host.OpenTextEditor(PictureFile(lvwAscii.Row(row).text), "E");
        };
        // A picture's file goes at once, and the page is saved with it: DISCARD can't bring
        // either back.
        editor.onRemoving = [this](int row) {
            context_.files.DeleteFile(context_.files.SettingsFolder() + "\\" +
                                      PictureFile(lvwAscii.Row(row).text));
        };
        editor.onDeleted = [this] { SaveSettings(); };
    }

    // A picture being added gets its row once the editor has saved its file.
    void TextEditorSaved(const std::string& file) override {
        if (!adding_ || file != PictureFile(adding_->fields[0])) return;
        const int row = lvwAscii.Count() + 1;
        lvwAscii.Append(shell::NewRowKey(context_.files, row), adding_->fields[0]);
        lvwAscii.SetCell(row, kDisplayName, adding_->fields[1]);
        lvwAscii.SetCell(row, kMenu, adding_->fields[2]);
        adding_.reset();
        Editor("lvwAscii").Loaded();
    }

  private:
    void LoadSettings() override {
        Page::LoadSettings();
        auto& files = context_.files;
        const std::string& index = AsciiIndexSchema().file;
        lvwAscii.Clear();
        for (int number = 1; number <= kMostPictures; ++number) {
            const std::string table = std::to_string(number);
            std::string file = files.ReadTableFlag(index, table, "sFilename");
            if (file.empty()) break;
            lvwAscii.Append(table + "ID", std::move(file));
            lvwAscii.SetCell(number, kDisplayName,
                             files.ReadTableFlag(index, table, "sDisplayName"));
            lvwAscii.SetCell(number, kMenu, files.ReadTableFlag(index, table, "sMenu"));
        }
    }

    // The pictures in list order, numbered from 1 again.
    void SaveSettings() override {
        Page::SaveSettings();
        store::TableText index(AsciiIndexSchema().table + " = {");
        for (int row = 1; row <= lvwAscii.Count(); ++row) {
            index.Open(1, "[" + std::to_string(row) + "]");
            index.Quoted(2, "sFilename", lvwAscii.Row(row).text);
            index.Quoted(2, "sDisplayName", lvwAscii.Cell(row, kDisplayName));
            index.Quoted(2, "sMenu", lvwAscii.Cell(row, kMenu));
            index.Close(1);
        }
        context_.files.WriteTextFile(AsciiIndexSchema().file, index.End());
    }

    // The name as typed, with ".asc" behind whatever extension it has.
    static std::string PictureFile(const std::string& name) { return kPictures + name + ".asc"; }

    void AddPicture() {
        shell::DialogRequest request{.kind = shell::DialogKind::ThreeFields,
                                     .caption = "Edit Ascii",
                                     .labels = {"Filename", "Display Name", "Right Click Menu"},
                                     .mode = "E"};
        shell::DialogResult result = context_.host.ShowDialog(request);
        if (result.mode != "1") return;
        MarkDirty();
        adding_ = std::move(result);
        context_.host.OpenTextEditor(PictureFile(adding_->fields[0]), "N");
    }

    ListControl& lvwAscii;
    std::optional<shell::DialogResult> adding_;
};

}  // namespace

shell::PageEntry AsciiPage() {
    return shell::PageOf<frmUserActionsAscii>();
}

}  // namespace qb::pages
