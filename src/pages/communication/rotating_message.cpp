// The rotating messages: text files the scripts show one after the other, in main chat or to
// users privately. The main and the private page are one page over what differs between them.
// The message files are made, edited and deleted at once, whatever a DISCARD does later; the list
// file keeps only the ticked ones, and the others are found again in the folder at each load.

#include <unordered_map>

#include "pages/communication/communication.h"
#include "shell/page_frame.h"
#include "shell/table_lists.h"

namespace qb::pages {

namespace {

using store::FieldKind;

struct RotationList {
    const char* list;
    const char* caption;
    const char* key;
};

struct Rotation {
    std::string name;  // "RotatingMainMessage": the folder, the files and the tables
    std::vector<RotationList> lists;
    // The builder's order of the settings keys, where it isn't the page's.
    std::vector<std::string> builderOrder{};
    // The scripts' own list of users spared the messages, made empty by the builder.
    bool immuneUsers = false;
};

const std::vector<Rotation>& Members() {
    static const std::vector<Rotation> members = {
        // The main page's one list is named like the private page's second, and stores under
        // the private page's first key.
        {"RotatingMainMessage",
         {{"lvwEnabledProfiles", "Enabled Ad Profiles", "tEnabledAdProfiles"}}},
        {"RotatingPrivateMessage",
         {{"lvwEnabledAdProfiles", "Enabled Ad Profiles", "tEnabledAdProfiles"},
          {"lvwEnabledProfiles", "Enabled Profiles", "tEnabledProfiles"},
          {"lvwEnabledMaintainProfiles", "Enabled Maintain Profiles", "tEnabledMaintainProfiles"}},
         {"bRandomise", "iDelay", "tEnabledProfiles", "tEnabledAdProfiles",
          "tEnabledMaintainProfiles"},
         true},
    };
    return members;
}

std::string Folder(const Rotation& member) {
    return "Communication\\" + member.name + "\\";
}

struct RotationFiles {
    store::FileSchema settings;
    store::FileSchema list;
    store::FileSchema immune;
};

const std::vector<RotationFiles>& Files() {
    static const std::vector<RotationFiles> files = [] {
        std::vector<RotationFiles> all;
        for (const Rotation& member : Members()) {
            RotationFiles made{{Folder(member) + member.name + "Settings.tbl",
                                "t" + member.name + "Settings",
                                {{FieldKind::Flag, "bRandomise", "1"},
                                 {.kind = FieldKind::Number,
                                  .key = "iDelay",
                                  .defaultValue = "120",
                                  .range = store::Range{1, 10000}}}},
                               {Folder(member) + member.name + "Files.tbl",
                                "t" + member.name + "Files",
                                {{.kind = FieldKind::Rows,
                                  .key = "t" + member.name + "Files",
                                  .defaultValue = ""}},
                                store::FileKind::Data},
                               {Folder(member) + member.name + "ImmuneUsers.tbl",
                                "t" + member.name + "ImmuneUsers",
                                {},
                                store::FileKind::Data}};
            for (const RotationList& list : member.lists)
                made.settings.fields.push_back({FieldKind::ProfileChecks, list.key, "0"});
            made.settings.builderForm.order = member.builderOrder;
            all.push_back(std::move(made));
        }
        return all;
    }();
    return files;
}

const RotationFiles& FilesOf(const Rotation& member) {
    return Files().at(static_cast<size_t>(&member - Members().data()));
}

using shell::ListControl;
using shell::Toolbar;

constexpr int kListWidth = 3000;

shell::PageDecl RotationDecl(const Rotation& member) {
    using namespace shell::decl;
    using shell::Item;
    shell::PageDecl decl{
        .key = "Communication~" + member.name,
        .caption = "Communication ~ " + member.name,
        .size = {3600 + 3000 * static_cast<int>(member.lists.size()), 6075},
        .files = {&FilesOf(member).settings},
        .controls = {Check("chkRandomise", "bRandomise", "Randomise"),
                     Label("lblLabel(0)", "Delay"), Spin("txtUpDown", "updUpDown", "iDelay"),
                     shell::decl::Toolbar("tlbFiles", {shell::SetupListToolbar}),
                     Marks(List("lvwFiles", kListWidth, {{"column1", "Filename", kListWidth - 350}},
                                true))},
        .editors = {{.list = "lvwFiles",
                     .toolbar = "tlbFiles",
                     .popup = "mnuFirst",
                     .methods = "gMenuFirst",
                     .confirmDelete =
                         shell::Prompt{"Do you really want to delete this File?", "Delete File?"},
                     .customEdit = true,
                     .customAdd = true,
                     .deleteKey = true}},
    };
    shell::Layout lists = shell::Row({shell::Column(
        {Item("chkRandomise"),
         shell::Row({Item("lblLabel(0)"), Item("txtUpDown"), Item("updUpDown"), shell::Stretch()}),
         Item("tlbFiles"), Item("lvwFiles")})});
    for (const RotationList& list : member.lists) {
        decl.controls.push_back(ProfileChecks(list.list, list.key, list.caption, kListWidth));
        lists.items.push_back(Item(list.list));
    }
    decl.layout = std::move(lists);
    return decl;
}

const shell::PageDecl& DeclOf(const Rotation& member) {
    static const std::vector<shell::PageDecl> pages = [] {
        std::vector<shell::PageDecl> all;
        for (const Rotation& each : Members())
            all.push_back(RotationDecl(each));
        return all;
    }();
    return pages.at(static_cast<size_t>(&member - Members().data()));
}

class frmCommunicationRotatingMessage : public shell::Page {
  public:
    frmCommunicationRotatingMessage(shell::PageContext& context, const Rotation& member)
        : Page(context, DeclOf(member)),
          member_(member),
          files_(FilesOf(member)),
          tlbFiles(Get<Toolbar>("tlbFiles")),
          lvwFiles(Get<ListControl>("lvwFiles")) {
        shell::RowEditor& editor = Editor("lvwFiles");
        editor.onAdd = [this] { NewFile(); };
        editor.onEdit = [this](int row) {
            context_.host.OpenTextEditor(MessageFile(lvwFiles.Row(row).text), "E");
        };
        // The file goes from the disk as soon as the user has said so.
        editor.onRemoving = [this](int row) {
            auto& files = context_.files;
            files.DeleteFile(files.SettingsFolder() + "\\" + MessageFile(lvwFiles.Row(row).text));
        };
    }

    // A new message is listed, unticked and unsaved, once the editor has saved its file.
    void TextEditorSaved(const std::string& file) override {
        if (pendingFile_.empty() || file != pendingFile_) return;
        lvwFiles.Append(shell::NewRowKey(context_.files, lvwFiles.Count() + 1), pendingName_);
        pendingFile_.clear();
        tlbFiles.SetButtonEnabled("DELETE", true);
        tlbFiles.SetButtonEnabled("EDIT", true);
    }

  private:
    std::string MessageFile(const std::string& name) const {
        return Folder(member_) + "Files\\" + name + ".asc";
    }

    void LoadSettings() override {
        Page::LoadSettings();
        auto& files = context_.files;
        lvwFiles.Clear();
        const store::FileSchema& list = files_.list;
        // Older versions numbered the rows; such a list is read by its values' keys.
        const bool numbered = !files.ReadTableValue(list.file, "1", "").empty();
        shell::LoadTableRows(files, list.file, lvwFiles, numbered ? "=" : "", list.table, false,
                             false, false);
        // Each file of the folder ticks its row, or is offered unticked. An empty list is offered
        // nothing, so that a list the user emptied stays empty.
        std::unordered_map<std::string, int> rowOf;
        for (int row = lvwFiles.Count(); row >= 1; --row)
            rowOf[lvwFiles.Row(row).text] = row;
        for (const std::string& name :
             files.FolderFiles(files.SettingsFolder() + "\\" + Folder(member_) + "Files")) {
            const std::string shown = name.substr(0, name.size() >= 4 ? name.size() - 4 : 0);
            const auto found = rowOf.find(shown);
            if (found != rowOf.end()) {
                lvwFiles.SetChecked(found->second, true);
            } else if (lvwFiles.Count() > 0) {
                lvwFiles.Append(std::to_string(lvwFiles.Count() + 1) + "ID", shown);
                rowOf.emplace(shown, lvwFiles.Count());
            }
        }
    }

    void RestoreDefaults() override {
        Page::RestoreDefaults();
        lvwFiles.Clear();
    }

    // The list file holds the ticked files only.
    void SaveSettings() override {
        Page::SaveSettings();
        const store::FileSchema& list = files_.list;
        context_.files.WriteTextFile(
            list.file,
            store::RenderTable(
                list, context_.profiles.LastNumber(),
                [](const store::Field&, int) { return std::string(); }, store::Writer::Page, {},
                [this](const store::Field&) {
                    std::vector<store::ListEntry> ticked;
                    for (const shell::ListRow& row : lvwFiles.Rows()) {
                        if (row.checked) ticked.push_back({{}, row.text});
                    }
                    return ticked;
                }));
    }

    // The editor opens on a file that doesn't exist yet. The answer, lowered, is held against
    // the rows as they stand: a row with a capital letter never matches.
    void NewFile() {
        auto& host = context_.host;
        for (;;) {
            const auto answer =
                host.AskInput("Enter filename for new Rotating Main Message", "Enter filename", "");
            if (!answer || answer->empty()) return;
            std::string lowered = *answer;
            for (char& c : lowered) {
                if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
            }
            bool taken = false;
            for (const shell::ListRow& row : lvwFiles.Rows())
                taken = taken || row.text == lowered;
            if (!taken) {
                pendingName_ = *answer;
                pendingFile_ = MessageFile(*answer);
                host.OpenTextEditor(pendingFile_, "N");
                return;
            }
            host.ShowMessage(
                {"File already exists", "Error", shell::Buttons::OK, shell::Icon::Exclamation});
        }
    }

    const Rotation& member_;
    const RotationFiles& files_;
    Toolbar& tlbFiles;
    ListControl& lvwFiles;
    // The message NEW opened the editor on, until the editor saves it.
    std::string pendingName_;
    std::string pendingFile_;
};

}  // namespace

std::vector<shell::PageEntry> RotatingMessagePages() {
    std::vector<shell::PageEntry> pages;
    for (const Rotation& member : Members()) {
        pages.emplace_back(DeclOf(member), [&member](shell::PageContext& context) {
            return std::make_unique<frmCommunicationRotatingMessage>(context, member);
        });
    }
    return pages;
}

std::vector<store::BuildStep> RotatingMessageBuilds() {
    std::vector<store::BuildStep> steps;
    for (const Rotation& member : Members()) {
        const RotationFiles& files = FilesOf(member);
        steps.emplace_back(files.settings);
        steps.emplace_back(files.list);
        if (member.immuneUsers) steps.emplace_back(files.immune);
    }
    return steps;
}

}  // namespace qb::pages
