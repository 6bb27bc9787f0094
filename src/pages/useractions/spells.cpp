// Spells and nick spells: a user casts a named spell and the bot says one of its phrases. Each
// function has a spell book, the names and descriptions in one table and each spell's phrases in
// a file of its own, and a settings page; only spells have wards, users no spell can touch. A
// book may be large, so a spell's phrases are read only when the user amends it.

#include "families/lists/string_lists.h"
#include "pages/useractions/useractions.h"
#include "shell/page_frame.h"
#include "shell/table_lists.h"
#include "store/paths.h"
#include "store/table_text.h"

namespace qb::pages {
namespace {

using shell::ListControl;
using shell::Toolbar;

struct SpellFunction {
    std::string function;  // "Spells": the key's part
    std::string title;     // "Spells" as the book's caption has it
    std::string folder;    // "UserActions\Spells\"
    std::string name;      // "Spell": the files' and tables' stem
    bool wards;
};

const SpellFunction& SpellsFunction() {
    static const SpellFunction spells{"Spells", "Spells", "UserActions\\Spells\\", "Spell", true};
    return spells;
}

const SpellFunction& NickSpellsFunction() {
    static const SpellFunction nick{"NickSpells", "Nick Spells", "UserActions\\NickSpells\\",
                                    "NickSpell", false};
    return nick;
}

// ---- The book
// ---------------------------------------------------------------------------------------

// Columns of lvwSpells: the name is the row's text, the description column 2.
constexpr int kPhrases = 3;  // each phrase with a "|" after it, held until SAVE
constexpr int kLines = 4;

StringList SpellList(const SpellFunction& function) {
    return {.key = "t" + function.name + "Book",
            .list = "lvwSpells",
            .toolbar = "tlbSpells",
            .columns = {{"Spell Name", "Spell Name", 1800},
                        {"Spell Description", "Spell Description", 2600},
                        {"Spell Phrases", "Spell Phrases", 2400},
                        // The caption has always had that capital I.
                        {"Spell Lines", "Spell LInes", 900}},
            .words = {.addTitle = "Add New Spell",
                      .labels = {"Spell Name", "Spell Description"},
                      // Both books have always edited a spell under this title.
                      .editTitle = "Edit Warded User",
                      .floor = {"There must be a minimum of one Spell", "Cannot delete",
                                shell::Icon::Critical},
                      .confirm = {"Do you really want to delete this Spell?", "Delete Spell?"}},
            .keyed = true,
            .popup = "mnuFirst",
            .methods = "gMenuFirst",
            .selectFirstAfterDelete = true};
}

StringList PhraseList() {
    return {.list = "lvwSpellPhrases",
            .toolbar = "tlbSpellPhrases",
            .columns = {{"Spell Phrases", "Spell Phrases", 7400}},
            .words = {.addTitle = "Add New Spell Phrase",
                      .labels = {"Spell Phrase"},
                      .editTitle = "Edit Spell Phrase",
                      .floor = {"There must be a minimum of one Spell Phrase", "Cannot delete",
                                shell::Icon::Critical},
                      .confirm = {"Do you really want to delete this Spell Phrase?",
                                  "Delete Spell Phrase?"}},
            .popup = "mnuSecond",
            .methods = "gMenuSecond"};
}

struct BookParts {
    store::FileSchema book;
    shell::PageDecl page;
};

const BookParts& MakeBook(const SpellFunction& function) {
    static std::map<std::string, std::unique_ptr<BookParts>> made;
    auto& parts = made[function.function];
    if (parts) return *parts;
    parts = std::make_unique<BookParts>();
    const StringList spells = SpellList(function);
    const StringList phrases = PhraseList();
    parts->book = ListFile(function.folder + function.name + "Book.tbl", spells.key, {spells});
    shell::PageDecl& page = parts->page;
    page.key = "UserActions~" + function.function + "~SpellBook";
    page.caption = "UserActions ~ " + function.title + " ~ SpellBook";
    page.size = {8000, 7200};
    page.files = {&parts->book};
    page.controls = ListControls(spells, 7700);
    // AMEND stands before the list's own buttons.
    page.controls.front().setups = {shell::SetupAmendToolbar, shell::SetupListToolbar};
    // The phrase list is bound to nothing: it shows one spell's file while the user amends it.
    for (shell::ControlDecl& control : ListControls(phrases, 7700, false))
        page.controls.push_back(std::move(control));
    page.editors = {ListEditor(spells), ListEditor(phrases)};
    // The phrases' buttons are the page's: all off until a spell is amended.
    page.editors[1].buttons = shell::ButtonRule::Fixed;
    page.layout = shell::Column({ListLayout(spells), ListLayout(phrases)});
    page.discardClears = true;
    return *parts;
}

class frmUserActionsSpellBook : public shell::Page {
  public:
    frmUserActionsSpellBook(shell::PageContext& context, const SpellFunction& function)
        : Page(context, MakeBook(function).page),
          function_(function),
          lvwSpells(Get<ListControl>("lvwSpells")),
          tlbSpells(Get<Toolbar>("tlbSpells")),
          lvwSpellPhrases(Get<ListControl>("lvwSpellPhrases")),
          tlbSpellPhrases(Get<Toolbar>("tlbSpellPhrases")) {
        // The editor takes the list's own buttons.
        tlbSpells.onButtonClick = [this, editor = tlbSpells.onButtonClick](const std::string& key) {
            if (key == "AMEND") {
                AmendSpell();
            } else {
                editor(key);
            }
        };
        Editor("lvwSpells").onStored = [this](int, bool) {
            tlbSpells.SetButtonEnabled("AMEND", lvwSpells.Count() > 0);
        };
        auto& phrases = Editor("lvwSpellPhrases");
        phrases.onStored = [this](int, bool) { SyncSpellPhrases(); };
        phrases.onDeleted = [this] { SyncSpellPhrases(); };
    }

  private:
    void Setup() override { tlbSpells.SetButtonTip("AMEND", "Amend Spell Phrases"); }

    void LoadSettings() override {
        Page::LoadSettings();
        tlbSpells.SetButtonEnabled("AMEND", lvwSpells.Count() > 0);
        for (const char* key : {"NEW", "DELETE", "EDIT"})
            tlbSpellPhrases.SetButtonEnabled(key, false);
    }

    // RESTORE asks its question and marks the page, but a book has no defaults to go back to.
    void RestoreDefaults() override {}

    // Only the spells amended since the page opened hold their phrases, and only their files are
    // written; every other spell's file stays as it is, and a spell without one gets none. The
    // book comes last.
    void SaveSettings() override {
        for (const shell::ListRow& row : lvwSpells.Rows()) {
            if (row.cells.size() < kPhrases - 1 || row.cells[kPhrases - 2].empty()) continue;
            store::TableText spell("t" + function_.name + " = {");
            const std::string& held = row.cells[kPhrases - 2];
            for (size_t from = 0, bar; from < held.size(); from = bar + 1) {
                bar = held.find('|', from);
                if (bar == std::string::npos) bar = held.size();
                if (bar > from) spell.Line(1, "\"" + held.substr(from, bar - from) + "\",");
            }
            context_.files.WriteTextFile(SpellFile(row.text), spell.End());
        }
        Page::SaveSettings();
    }

    std::string SpellFile(const std::string& spell) const {
        return function_.folder + function_.function + "\\" + spell + ".tbl";
    }

    void AmendSpell() {
        const int row = Editor("lvwSpells").Target();
        if (row == 0) return;
        const std::string& spell = lvwSpells.Row(row).text;
        lvwSpellPhrases.Clear();
        shell::LoadTableRows(context_.files, SpellFile(spell), lvwSpellPhrases, "",
                             "t" + function_.name, false, false, false);
        lvwSpellPhrases.SetTag(spell);
        tlbSpellPhrases.SetButtonEnabled("NEW", true);
        for (const char* key : {"DELETE", "EDIT"})
            tlbSpellPhrases.SetButtonEnabled(key, lvwSpellPhrases.Count() > 0);
    }

    // The phrases shown go into the row of their spell, to wait there for SAVE.
    void SyncSpellPhrases() {
        for (const char* key : {"DELETE", "EDIT"})
            tlbSpellPhrases.SetButtonEnabled(key, lvwSpellPhrases.Count() > 0);
        std::string held;
        for (const shell::ListRow& phrase : lvwSpellPhrases.Rows())
            held += phrase.text + "|";
        const std::string spell = store::FoldCase(lvwSpellPhrases.Tag());
        for (int row = 1; row <= lvwSpells.Count(); ++row) {
            if (store::FoldCase(lvwSpells.Row(row).text) != spell) continue;
            lvwSpells.SetCell(row, kPhrases, held);
            lvwSpells.SetCell(row, kLines, std::to_string(lvwSpellPhrases.Count()));
        }
    }

    const SpellFunction& function_;
    ListControl& lvwSpells;
    Toolbar& tlbSpells;
    ListControl& lvwSpellPhrases;
    Toolbar& tlbSpellPhrases;
};

shell::PageEntry BookPage(const SpellFunction& function) {
    return {MakeBook(function).page, [&function](shell::PageContext& context) {
                return std::make_unique<frmUserActionsSpellBook>(context, function);
            }};
}

// ---- The settings
// -----------------------------------------------------------------------------------

const store::FileSchema& SettingsSchema(const SpellFunction& function) {
    using store::FieldKind;
    static const auto make = [](const SpellFunction& of) {
        store::FileSchema schema{.file = of.folder + of.name + "Settings.tbl",
                                 .table = "t" + of.name + "Settings",
                                 .fields = {}};
        if (of.wards) schema.fields.push_back({FieldKind::Flag, "bEnableWards", "1"});
        schema.fields.push_back({.kind = FieldKind::Number,
                                 .key = "iDelay",
                                 .defaultValue = "3",
                                 .range = store::Range{1, 180}});
        schema.fields.push_back({FieldKind::ProfileChecks, "tEnabledProfiles", "0"});
        // The builder has always written the delay first.
        if (of.wards) schema.builderForm.order = {"iDelay", "bEnableWards", "tEnabledProfiles"};
        return schema;
    };
    static const store::FileSchema spells = make(SpellsFunction());
    static const store::FileSchema nick = make(NickSpellsFunction());
    return function.wards ? spells : nick;
}

std::vector<shell::ControlDecl> SettingsControls(const SpellFunction& function) {
    using namespace shell::decl;
    std::vector<shell::ControlDecl> controls;
    if (function.wards) {
        // A tip from another page, which this box has always shown.
        controls.push_back(Tipped("Allows IPs beginning with 0 (such as 0.3.6.0)",
                                  Check("chkCheckBox(0)", "bEnableWards", "Enable Wards")));
    }
    controls.push_back(Label("lblLabel(0)", "Timeout"));
    controls.push_back(Spin("txtUpDown(0)", "updUpDown(0)", "iDelay"));
    controls.push_back(
        ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Enabled Profiles", 3000));
    return controls;
}

shell::Layout SettingsLayout(const SpellFunction& function) {
    using namespace shell;
    Layout top = Row({Item("lblLabel(0)"), Item("txtUpDown(0)"), Item("updUpDown(0)"), Stretch()});
    if (function.wards) top.items.insert(top.items.begin(), Item("chkCheckBox(0)"));
    return Column({top, Item("lvwEnabledProfiles")});
}

std::string SettingsKey(const SpellFunction& function) {
    return "UserActions~" + function.function + "~Settings";
}

std::string SettingsCaption(const SpellFunction& function) {
    return "UserActions ~ " + function.function + " ~ Settings";
}

// The spells' settings and their wards, saved with the page. Wards have no minimum, and RESTORE
// leaves them.
const ListPageParts& SpellSettings() {
    const SpellFunction& spells = SpellsFunction();
    return MakeListPage(
        {.key = SettingsKey(spells),
         .caption = SettingsCaption(spells),
         .size = {3400, 8000},
         .file = spells.folder + "SpellWards.tbl",
         .table = "tSpellWards",
         .lists = {{.key = "tSpellWards",
                    .list = "lvwWards",
                    .toolbar = "tlbWards",
                    .columns = {{"column1", "Warded User", 2700}},
                    .words = {.addTitle = "Add Warded User",
                              .labels = {"Warded User"},
                              .editTitle = "Edit Warded User",
                              .confirm = {"Do you really want to delete this Warded User?",
                                          "Delete Warded User?"}},
                    .keyed = true,
                    .rowValue = "1",
                    .floor = 0}},
         .settings = &SettingsSchema(spells),
         .settingsControls = SettingsControls(spells),
         .settingsLayout = SettingsLayout(spells)});
}

const shell::PageDecl& NickSpellSettings() {
    const SpellFunction& nick = NickSpellsFunction();
    static const shell::PageDecl page{.key = SettingsKey(nick),
                                      .caption = SettingsCaption(nick),
                                      .size = {3400, 6075},
                                      .files = {&SettingsSchema(nick)},
                                      .controls = SettingsControls(nick),
                                      .layout = SettingsLayout(nick),
                                      .discardClears = true};
    return page;
}

}  // namespace

std::vector<shell::PageEntry> SpellPages() {
    return {SpellSettings().page, BookPage(SpellsFunction()), NickSpellSettings(),
            BookPage(NickSpellsFunction())};
}

std::vector<store::BuildStep> SpellBuilds() {
    return {SettingsSchema(SpellsFunction()), MakeBook(SpellsFunction()).book, SpellSettings().file,
            SettingsSchema(NickSpellsFunction()), MakeBook(NickSpellsFunction()).book};
}

}  // namespace qb::pages
