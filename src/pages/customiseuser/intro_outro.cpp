// The intros and outros: the lines the scripts announce a user with when they enter or leave the
// hub. The standard page keeps lines for everybody and the unregistered users' own line; the
// custom page keeps a line per named user. Both are one page: only their words, their files and
// the shape of a line differ.

#include "pages/customiseuser/customiseuser.h"
#include "shell/page_frame.h"

namespace qb::pages {
namespace {

using store::FieldKind;

constexpr const char* kFolder = "CustomiseUser\\IntroOutro\\";

// RESTORE's lines: each names the user it announces with !username!, and the scripts put a user
// of the hub in place of !random!.
std::vector<store::ListEntry> Lines(std::initializer_list<const char*> lines) {
    std::vector<store::ListEntry> entries;
    for (const char* line : lines)
        entries.push_back({{}, line});
    return entries;
}

// A list of lines that is the whole of its file: bare lines for everybody, or named users'.
store::FileSchema LinesFile(const char* name, const char* table, bool named,
                            std::vector<store::ListEntry> restored) {
    return {.file = std::string(kFolder) + name,
            .table = table,
            .fields = {{.kind = FieldKind::Rows,
                        .key = table,
                        .defaultValue = "",
                        .rowForm = named ? store::RowForm::Named : store::RowForm::Bare,
                        .defaultRows = std::move(restored)}},
            .kind = store::FileKind::Data};
}

}  // namespace

const store::FileSchema& IntroOutroSettingsSchema() {
    static const store::FileSchema schema{
        std::string(kFolder) + "IntroOutroSettings.tbl",
        "tIntroOutroSettings",
        {{FieldKind::Flag, "bRegIntroEnabled", "1"},
         {FieldKind::String, "sRegIntro",
          "Welcome !nick! to !hubname!. Type !prefix!!regcommand! to register"},
         {FieldKind::ProfileChecks, "tEnabledProfiles", "0"}},
    };
    return schema;
}

const store::FileSchema& IntroSchema() {
    static const store::FileSchema schema = LinesFile(
        "Intro.tbl", "tIntro", false,
        Lines({"!username! comes back from the bar with a round of beer for all",
               "!username! staggers in and collapses in relief",
               "!username! sweeps out of the night on a broomstick",
               "Like a demon, !username! materialises in the hub",
               "!username! bursts through the door with sword drawn",
               "A trumpet sounds as !username! enters the great hall",
               "!username! rides in on a white horse",
               "!username! tumbles down the chimney in a cloud of soot",
               "The candles flicker as !username! walks in",
               "!username! appears in a puff of purple smoke",
               "!username! climbs in through the window",
               "!username! has arrived, so let the feast begin", "Out of the mist steps !username!",
               "!username! wanders in, looking for the tavern"}));
    return schema;
}

const store::FileSchema& OutroSchema() {
    static const store::FileSchema schema =
        LinesFile("Outro.tbl", "tOutro", false,
                  Lines({"!username! hops onto their broomstick and flies off into the night",
                         "!username! goes off to battle the Ice Giants",
                         "The door flew open, badly damaging !random! who was standing beside it. "
                         "!username! strides in",
                         "!username! fades into the shadows",
                         "!username! rides off into the sunset",
                         "!username! vanishes in a puff of smoke",
                         "!username! slips out by the back door",
                         "!username! sets sail for distant shores",
                         "!username! has left the building",
                         "!username! marches off to war",
                         "!username! is carried out by the tavern guards",
                         "!username! falls asleep and is dragged away",
                         "!username! wanders off in search of treasure",
                         "!username! is swallowed by a passing dragon",
                         "!username! climbs out through the window",
                         "!username! disappears down a rabbit hole",
                         "!username! goes home to bed",
                         "!username! steps through a magic portal",
                         "!username! waves goodbye and is gone",
                         "!username! walks off into the mist"}));
    return schema;
}

const store::FileSchema& CustomIntroOutroSettingsSchema() {
    static const store::FileSchema schema{
        std::string(kFolder) + "CustomIntroOutroSettings.tbl",
        "tCustomIntroOutroSettings",
        {{FieldKind::Flag, "bNotifyOps", "1"}, {FieldKind::ProfileChecks, "tEnabledProfiles", "0"}},
    };
    return schema;
}

const store::FileSchema& CustomIntroSchema() {
    static const store::FileSchema schema =
        LinesFile("CustomIntro.tbl", "tCustomIntro", true,
                  {{"vandrell", "All in the hub bow low as the mighty Vandrell arrives"}});
    return schema;
}

const store::FileSchema& CustomOutroSchema() {
    static const store::FileSchema schema = LinesFile(
        "CustomOutro.tbl", "tCustomOutro", true,
        {{"vandrell", "Vandrell vanishes in a burst of flames, leaving only smoke behind"}});
    return schema;
}

namespace {

// What one of the two pages has of its own.
struct IntroOutroKind {
    const char* key;
    const char* caption;
    const char* name;  // "Standard" or "Custom", before each label
    const store::FileSchema& settings;
    const store::FileSchema& intros;
    const store::FileSchema& outros;
    std::vector<shell::ControlDecl> settingsControls;
    // A line belongs to a named user: two columns, and dialogs that ask whose line it is.
    bool named;
    // How each page's delete question writes the word; the custom page has always written
    // "Outro" with a capital.
    const char* introWord;
    const char* outroWord;
};

constexpr int kWidth = 9000;
constexpr int kProfilesWidth = 3000;
constexpr int kLinesWidth = 5400;

// The list, its toolbar and its editor of one kind of line, "Intro" or "Outro".
shell::RowEditorDecl LinesEditor(const IntroOutroKind& kind, const std::string& line,
                                 const std::string& deleteWord) {
    shell::RowDialogDecl add{.kind = shell::DialogKind::OneFields,
                             .caption = "Add " + line,
                             .labels = {line},
                             .required = 1};
    shell::RowDialogDecl edit{.kind = shell::DialogKind::OneFields,
                              .caption = "Edit " + line,
                              .labels = {line},
                              .required = 1};
    if (kind.named) {
        add.kind = edit.kind = shell::DialogKind::TwoFields;
        add.labels = {line + " for", line};
        // The edit names the user it is for and keeps the nick, whatever is typed over it.
        edit.labels = {line + " for {row}", line};
        edit.shownOnly = {0};
    }
    return {.list = "lvw" + line,
            .toolbar = "tlb" + line,
            .popup = "mnu" + line,
            .methods = "gMenu" + line,
            .columns = kind.named ? std::vector<int>{1, 2} : std::vector<int>{1},
            .add = add,
            .edit = edit,
            .confirmDelete = shell::Prompt{"Do you really want to delete this " + deleteWord + "?",
                                           "Delete " + line + "?"},
            // A fresh tree has no lines, but the user can't empty a list: the scripts would have
            // nothing to announce with.
            .floor = 1,
            .floorPrompt = {"There must be a minimum of one " + line, "Cannot delete",
                            shell::Icon::Critical},
            .selectFirstAfterDelete = true,
            .deleteKey = true};
}

shell::ControlDecl LinesList(const IntroOutroKind& kind, const store::FileSchema& file,
                             const std::string& line) {
    using namespace shell::decl;
    std::vector<shell::ListColumn> columns;
    if (kind.named) {
        columns = {{"column1", "Username", 1500}, {"column2", line, kLinesWidth - 1500 - 350}};
    } else {
        columns = {{"column1", line + "s", kLinesWidth - 350}};
    }
    return In(file, With({.restoreRows = shell::Quirks::RestoreRows::Defaults,
                          .restoreKeysNumbered = !kind.named},
                         Rows("lvw" + line, file.table, kLinesWidth, std::move(columns))));
}

shell::PageDecl IntroOutroDecl(const IntroOutroKind& kind) {
    using namespace shell::decl;
    const std::string name = kind.name;
    std::vector<shell::ControlDecl> controls = kind.settingsControls;
    std::vector<shell::Layout> left;
    for (const shell::ControlDecl& control : controls)
        left.push_back(shell::Item(control.name));
    for (shell::ControlDecl control :
         {Label("lblLabel(0)", name + " Enabled Profiles"),
          ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles",
                        kProfilesWidth),
          Label("lblLabel(1)", name + " Intros"), Toolbar("tlbIntro", {shell::SetupListToolbar}),
          LinesList(kind, kind.intros, "Intro"), Label("lblLabel(2)", name + " Outros"),
          Toolbar("tlbOutro", {shell::SetupListToolbar}), LinesList(kind, kind.outros, "Outro")}) {
        controls.push_back(std::move(control));
    }
    left.push_back(shell::Item("lblLabel(0)"));
    left.push_back(shell::Item("lvwEnabledProfiles"));
    shell::Layout profiles = shell::Column({});
    profiles.items = std::move(left);
    return {
        .key = kind.key,
        .caption = kind.caption,
        .size = {kWidth, 6600},
        .files = {&kind.settings, &kind.intros, &kind.outros},
        .controls = std::move(controls),
        .editors = {LinesEditor(kind, "Intro", kind.introWord),
                    LinesEditor(kind, "Outro", kind.outroWord)},
        .layout = shell::Row(
            {shell::Weighted(profiles, 1),
             shell::Weighted(shell::Column({shell::Item("lblLabel(1)"), shell::Item("tlbIntro"),
                                            shell::Item("lvwIntro"), shell::Item("lblLabel(2)"),
                                            shell::Item("tlbOutro"), shell::Item("lvwOutro")}),
                             2)}),
    };
}

}  // namespace

const std::vector<shell::PageDecl>& IntroOutroPages() {
    using namespace shell::decl;
    static const std::vector<shell::PageDecl> pages = {
        IntroOutroDecl({.key = "CustomiseUser~IntroOutro~Standard",
                        .caption = "CustomiseUser ~ IntroOutro ~ Standard",
                        .name = "Standard",
                        .settings = IntroOutroSettingsSchema(),
                        .intros = IntroSchema(),
                        .outros = OutroSchema(),
                        .settingsControls = {Check("chkEnableUnregIntro", "bRegIntroEnabled",
                                                   "Enable Unregistered User Intro"),
                                             Text("txtUnregIntro", "sRegIntro")},
                        .named = false,
                        .introWord = "intro",
                        .outroWord = "outro"}),
        IntroOutroDecl({.key = "CustomiseUser~IntroOutro~Custom",
                        .caption = "CustomiseUser ~ IntroOutro ~ Custom",
                        .name = "Custom",
                        .settings = CustomIntroOutroSettingsSchema(),
                        .intros = CustomIntroSchema(),
                        .outros = CustomOutroSchema(),
                        .settingsControls = {Check("chkNotifyOps", "bNotifyOps",
                                                   "Notify Ops when Custom Intro/Outro changed")},
                        .named = true,
                        .introWord = "intro",
                        .outroWord = "Outro"}),
    };
    return pages;
}

}  // namespace qb::pages
