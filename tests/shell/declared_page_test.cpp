// A page that is its declaration alone, over a file with one field of each kind: what it loads
// from a hand-edited file, what its save writes, the quirks of its bindings, and its row editor.

#include <gtest/gtest.h>

#include <sstream>

#include "shell/edit_dialog.h"
#include "shell/page_frame.h"
#include "shell/page_registry.h"
#include "shell/scripted_host.h"
#include "support/temp_hub.h"

namespace qb::shell {
namespace {

using store::FieldKind;
using test::Crlf;

const store::FileSchema& Settings() {
    static const store::FileSchema file{
        .file = "T\\TSettings.tbl",
        .table = "tTSettings",
        .fields = {{FieldKind::Flag, "bOn", "1"},
                   {.kind = FieldKind::Number,
                    .key = "iTime",
                    .defaultValue = "60",
                    .range = store::Range{1, 1440, 5}},
                   {.kind = FieldKind::String,
                    .key = "sAction",
                    .defaultValue = "T",
                    .choices = {{"Kick", "K"}, {"TempBan", "T"}}},
                   {.kind = FieldKind::NamedFlags,
                    .key = "tAnnounce",
                    .defaultValue = "1",
                    .rows = {"bDeleted", "bSuspended"}},
                   {FieldKind::ProfileChecks, "tEnabledProfiles", "0"},
                   {.kind = FieldKind::Rows, .key = "tWords", .defaultValue = ""}},
        // The builder's order, which the page doesn't follow.
        .builderForm = {.order = {"tWords", "tEnabledProfiles", "tAnnounce", "sAction", "iTime",
                                  "bOn"}},
    };
    return file;
}

const PageDecl& Declared() {
    using namespace decl;
    static const PageDecl page{
        .key = "T~Settings",
        .caption = "T ~ Settings",
        .size = {3400, 6075},
        .files = {&Settings()},
        .controls = {Check("chkCheckBox(0)", "bOn", "On"),
                     With({.initial = "10"}, Spin("txtUpDown", "updUpDown", "iTime")),
                     With({.initial = "Kick", .showsUnlisted = true},
                          Combo("cboAction", "sAction")),
                     Check("chkDeleted", "tAnnounce.bDeleted", "Deletion"),
                     ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles", "Profiles", 3000),
                     decl::Toolbar("tlbWords", {SetupListToolbar}),
                     Rows("lvwWords", "tWords", 3000, {{"column1", "Words", 2600}})},
        .editors = {{.list = "lvwWords",
                     .toolbar = "tlbWords",
                     .add = RowDialogDecl{.kind = DialogKind::OneFields,
                                          .caption = "Add Word",
                                          .labels = {"Word"},
                                          .required = 1},
                     .edit = RowDialogDecl{.kind = DialogKind::OneFields,
                                           .caption = "Edit {row}",
                                           .labels = {"Word"},
                                           .addButton = false},
                     .confirmDelete =
                         Prompt{"Do you really want to delete this Word?", "Delete Word?"},
                     .floor = 1,
                     .floorPrompt = {"There must be a minimum of one Word", "Cannot delete",
                                     Icon::Exclamation},
                     .limit = 3}},
    };
    return page;
}

class DeclaredPage : public ::testing::Test {
  protected:
    DeclaredPage() { profiles.Append("P0"); }  // Unregistered and one profile
    Page& Open() {
        page = std::make_unique<Page>(context, Declared());
        page->Load();
        return *page;
    }
    template <class C>
    C& Get(const char* name) {
        return static_cast<C&>(*page->Find(name));
    }
    bool Click(const char* toolbar, const char* button) {
        return Get<Toolbar>(toolbar).UserClick(button);
    }

    test::TempHub hub;
    store::TableFiles files{hub.ProgramFolder()};
    std::ostringstream transcript;
    ScriptedHost host{transcript};
    store::ProfileList profiles;
    PageContext context{files, profiles, host, store::kBuildVersion};
    std::unique_ptr<Page> page;
};

TEST_F(DeclaredPage, LoadsAHandEditedFileAsTheReadersReadItAndSavesInThePagesOrder) {
    // A bare row has no "=" and ends the one-key reader: the list comes last.
    hub.WriteSetting(
        "T/TSettings.tbl",
        Crlf({"tTSettings = {", "\tsAction = \"Q\",", "\tiTime = 9999,", "\ttAnnounce = {",
              "\t\tbDeleted = 1,", "\t},", "\ttEnabledProfiles = {", "\t\t[0] = 1,", "\t},",
              "\ttWords = {", "\t\t\"one\",", "\t\t\"two\",", "\t},", "}"}));
    Open();
    EXPECT_FALSE(page->SaveRequired());
    // A flag missing from the file reads 0; a value outside the range shows as the file has it,
    // and the up-down follows as far as it can; an action the combo lacks shows as it stands.
    EXPECT_EQ(Get<CheckBox>("chkCheckBox(0)").Value(), 0);
    EXPECT_EQ(Get<TextBox>("txtUpDown").Text(), "9999");
    EXPECT_EQ(Get<UpDown>("updUpDown").Value(), 1440);
    EXPECT_EQ(Get<ComboBox>("cboAction").Text(), "Q");
    EXPECT_EQ(Get<CheckBox>("chkDeleted").Value(), 1);
    EXPECT_EQ(Get<ListControl>("lvwEnabledProfiles").Row(2).checked, true);
    ASSERT_EQ(Get<ListControl>("lvwWords").Count(), 2);

    ASSERT_TRUE(Get<CheckBox>("chkCheckBox(0)").UserSetValue(1));
    EXPECT_TRUE(page->SaveRequired());
    ASSERT_TRUE(Click("tlbFormToolbar", "SAVE"));
    // A row of the named flags that no control shows is written with its default.
    EXPECT_EQ(hub.ReadSetting("T/TSettings.tbl"),
              Crlf({"tTSettings = {", "\tbOn = 1,", "\tiTime = 9999,", "\tsAction = \"Q\",",
                    "\ttAnnounce = {", "\t\tbDeleted = 1,", "\t\tbSuspended = 1,", "\t},",
                    "\ttEnabledProfiles = {", "\t\t[-1] = 0,", "\t\t[0] = 1,", "\t},",
                    "\ttWords = {", "\t\t\"one\",", "\t\t\"two\",", "\t},", "}"}));
}

TEST_F(DeclaredPage, AnEmptyReadKeepsWhatTheControlShowsFirstAndRestoreTakesTheDefaults) {
    Open();
    EXPECT_EQ(Get<TextBox>("txtUpDown").Text(), "10");
    EXPECT_EQ(Get<ComboBox>("cboAction").Text(), "Kick");
    EXPECT_EQ(Get<CheckBox>("chkDeleted").Value(), 0);
    host.QueueAnswer(Answer::OK);
    ASSERT_TRUE(Click("tlbFormToolbar", "RESTORE"));
    EXPECT_TRUE(page->SaveRequired());
    EXPECT_EQ(Get<TextBox>("txtUpDown").Text(), "60");
    EXPECT_EQ(Get<ComboBox>("cboAction").Text(), "TempBan");
    EXPECT_EQ(Get<CheckBox>("chkCheckBox(0)").Value(), 1);
    EXPECT_EQ(Get<CheckBox>("chkDeleted").Value(), 1);
    // Turning the up-down writes its value into the box beside it and marks the page.
    ASSERT_TRUE(Get<UpDown>("updUpDown").UserSetValue(5000));
    EXPECT_EQ(Get<TextBox>("txtUpDown").Text(), "1440");
}

TEST_F(DeclaredPage, TheRowEditorAddsUpToItsLimitEditsAndKeepsItsFloor) {
    Open();
    auto& words = Get<ListControl>("lvwWords");
    auto& toolbar = Get<Toolbar>("tlbWords");
    // An empty list offers NEW alone.
    EXPECT_FALSE(toolbar.Find("DELETE")->enabled);
    host.QueueDialog({"Add", {"alpha"}});
    host.QueueDialog({"Add", {"beta"}});
    host.QueueDialog({"Add", {"gamma"}});
    ASSERT_TRUE(Click("tlbWords", "NEW"));
    // The limit ends the run without a fourth dialog, and NEW goes off.
    ASSERT_EQ(words.Count(), 3);
    EXPECT_EQ(words.Row(3).text, "gamma");
    EXPECT_FALSE(toolbar.Find("NEW")->enabled);
    EXPECT_TRUE(toolbar.Find("DELETE")->enabled);
    EXPECT_TRUE(page->SaveRequired());

    ASSERT_TRUE(words.UserSelect(2));
    host.QueueDialog({"OK", {"bravo"}});
    ASSERT_TRUE(Click("tlbWords", "EDIT"));
    EXPECT_EQ(words.Row(2).text, "bravo");
    // Add is switched off in the edit: a click on it is refused, and the row stays.
    host.QueueDialog({"Add", {"charlie"}});
    EXPECT_THROW(Click("tlbWords", "EDIT"), UnansweredPrompt);
    EXPECT_EQ(words.Row(2).text, "bravo");

    host.QueueAnswer(Answer::OK);
    host.QueueAnswer(Answer::OK);
    ASSERT_TRUE(Click("tlbWords", "DELETE"));
    ASSERT_TRUE(Click("tlbWords", "DELETE"));
    ASSERT_EQ(words.Count(), 1);
    host.QueueAnswer(Answer::OK);
    ASSERT_TRUE(Click("tlbWords", "DELETE"));
    EXPECT_EQ(words.Count(), 1);
    EXPECT_NE(transcript.str().find("dialog: Edit bravo -> Add refused"), std::string::npos);
    EXPECT_NE(transcript.str().find("message: Cannot delete: There must be a minimum of one Word"),
              std::string::npos);
}

// A list whose NEW is the page's own, and a delete (by the toolbar or the Delete key) the page
// hears of before the row goes; right clicks start past Unregistered.
const store::FileSchema& Pictures() {
    static const store::FileSchema file{
        .file = "T\\Pictures.tbl",
        .table = "tPictures",
        .fields = {{.kind = FieldKind::ProfileChecks,
                    .key = "tEnabledRC",
                    .defaultValue = "0",
                    .firstProfile = 0},
                   {.kind = FieldKind::Rows, .key = "tNames", .defaultValue = ""}}};
    return file;
}

class PicturesPage : public Page {
  public:
    static const PageDecl& Decl() {
        using namespace decl;
        static const PageDecl page{
            .key = "T~Pictures",
            .caption = "T ~ Pictures",
            .size = {3400, 6075},
            .files = {&Pictures()},
            .controls = {ProfileChecks("lvwEnabledRCs", "tEnabledRC", "Right Clicks", 3000),
                         decl::Toolbar("tlbNames", {SetupListToolbar}),
                         Rows("lvwNames", "tNames", 3000, {{"column1", "Names", 2600}})},
            .editors = {{.list = "lvwNames",
                         .toolbar = "tlbNames",
                         .popup = "mnuUserActions",
                         .methods = "gMenu",
                         .confirmDelete = Prompt{"Delete it?", "Delete"},
                         .customAdd = true,
                         .deleteKey = true}}};
        return page;
    }
    explicit PicturesPage(PageContext& context) : Page(context, Decl()) {
        Editor("lvwNames").onAdd = [this] { ++adds; };
        Editor("lvwNames").onRemoving = [this](int row) {
            removing = Get<ListControl>("lvwNames").Row(row).text;
        };
    }
    int adds = 0;
    std::string removing;
};

TEST_F(DeclaredPage, APageMayOwnNewHearOfADeleteAndStartItsProfileRowsLater) {
    hub.WriteSetting("T/Pictures.tbl",
                     Crlf({"tPictures = {", "\ttEnabledRC = {", "\t\t[-1] = 1,", "\t\t[0] = 1,",
                           "\t},", "\ttNames = {", "\t\t\"cat\",", "\t\t\"dog\",", "\t},", "}"}));
    PicturesPage pictures(context);
    pictures.Load();
    const auto& rcs = static_cast<ListControl&>(*pictures.Find("lvwEnabledRCs"));
    ASSERT_EQ(rcs.Count(), 1);
    EXPECT_EQ(rcs.Row(1).key, "0ID");
    EXPECT_EQ(rcs.Row(1).text, "P0");
    EXPECT_TRUE(rcs.Row(1).checked);

    auto& toolbar = static_cast<Toolbar&>(*pictures.Find("tlbNames"));
    ASSERT_TRUE(toolbar.UserClick("NEW"));
    pictures.CallMenuMethod("gMenuAddClick");
    EXPECT_EQ(pictures.adds, 2);
    auto& names = static_cast<ListControl&>(*pictures.Find("lvwNames"));
    ASSERT_TRUE(names.UserSelect(2));
    host.QueueAnswer(Answer::Cancel);
    ASSERT_TRUE(toolbar.UserClick("DELETE"));
    EXPECT_EQ(pictures.removing, "");
    // Only the Delete key deletes.
    ASSERT_TRUE(names.UserKeyDown(13));
    host.QueueAnswer(Answer::OK);
    ASSERT_TRUE(names.UserKeyDown(46));
    EXPECT_EQ(pictures.removing, "dog");
    EXPECT_EQ(names.Count(), 1);

    static_cast<Toolbar&>(*pictures.Find("tlbFormToolbar")).onButtonClick("SAVE");
    EXPECT_EQ(hub.ReadSetting("T/Pictures.tbl"),
              Crlf({"tPictures = {", "\ttEnabledRC = {", "\t\t[0] = 1,", "\t},", "\ttNames = {",
                    "\t\t\"cat\",", "\t},", "}"}));
}

// Named rows whose edit names the row in its first field and never renames it; the file field's
// choices are the page's to give when the dialog opens.
const store::FileSchema& Nicks() {
    static const store::FileSchema file{
        .file = "T\\Nicks.tbl",
        .table = "tNicks",
        .fields = {{.kind = FieldKind::Rows,
                    .key = "tNicks",
                    .defaultValue = "",
                    .rowForm = store::RowForm::Named,
                    .defaultRows = {{"vandrell", "crown"}}}},
    };
    return file;
}

class NickPage : public Page {
  public:
    static const PageDecl& Decl() {
        using namespace decl;
        const RowDialogDecl dialog{.kind = DialogKind::TextCombo,
                                   .caption = "Add Nick",
                                   .labels = {"Nick", "File"},
                                   .required = 1};
        RowDialogDecl edit = dialog;
        edit.caption = "Edit {row}";
        edit.labels = {"Nick {row}", "File"};
        edit.shownOnly = {0};
        static const PageDecl page{
            .key = "T~Nicks",
            .caption = "T ~ Nicks",
            .size = {3400, 6075},
            .files = {&Nicks()},
            .controls = {decl::Toolbar("tlbNicks", {SetupListToolbar}),
                         With({.restoreRows = Quirks::RestoreRows::Defaults,
                               .restoreKeysNumbered = false},
                              Rows("lvwNicks", "tNicks", 3000,
                                   {{"column1", "Nick", 1300}, {"column2", "File", 1300}}))},
            .editors = {{.list = "lvwNicks",
                         .toolbar = "tlbNicks",
                         .columns = {1, 2},
                         .add = dialog,
                         .edit = edit}},
        };
        return page;
    }
    explicit NickPage(PageContext& context) : Page(context, Decl()) {
        Editor("lvwNicks").onRequest = [](DialogRequest& request, int) {
            request.comboItems = {{"crown", "dragon"}};
        };
    }
};

TEST_F(DeclaredPage, AnEditKeepsTheRowsNameAndTheDialogTakesThePagesChoices) {
    hub.WriteSetting("T/Nicks.tbl", Crlf({"tNicks = {", "\t[\"bob\"] = \"crown\",", "}"}));
    page = std::make_unique<NickPage>(context);
    page->Load();
    auto& nicks = Get<ListControl>("lvwNicks");
    // "dragon" is a choice only because the page gave it.
    host.QueueDialog({"OK", {"amy", "dragon"}});
    ASSERT_TRUE(Click("tlbNicks", "NEW"));
    host.QueueDialog({"OK", {"robert", "dragon"}});
    ASSERT_TRUE(nicks.UserSelect(1));
    ASSERT_TRUE(Click("tlbNicks", "EDIT"));
    EXPECT_EQ(nicks.Row(1).text, "bob");
    EXPECT_EQ(nicks.Cell(1, 2), "dragon");
    EXPECT_EQ(transcript.str(),
              "dialog: Add Nick -> OK amy dragon\ndialog: Edit bob -> OK robert dragon\n");

    host.QueueAnswer(Answer::OK);
    ASSERT_TRUE(Click("tlbFormToolbar", "RESTORE"));
    ASSERT_EQ(nicks.Count(), 1);
    EXPECT_EQ(nicks.Row(1).key, "id");
    ASSERT_TRUE(Click("tlbFormToolbar", "SAVE"));
    EXPECT_EQ(hub.ReadSetting("T/Nicks.tbl"),
              Crlf({"tNicks = {", "\t[\"vandrell\"] = \"crown\",", "}"}));
}

TEST_F(DeclaredPage, RestoreLeavesTheRowButtonsAsTheyStand) {
    page = std::make_unique<NickPage>(context);
    page->Load();  // no file: no rows
    const auto& toolbar = Get<Toolbar>("tlbNicks");
    EXPECT_FALSE(toolbar.Find("EDIT")->enabled);
    host.QueueAnswer(Answer::OK);
    ASSERT_TRUE(Click("tlbFormToolbar", "RESTORE"));
    EXPECT_EQ(Get<ListControl>("lvwNicks").Count(), 1);
    EXPECT_FALSE(toolbar.Find("DELETE")->enabled);
    EXPECT_FALSE(toolbar.Find("EDIT")->enabled);
}

// A file of flags whose keys may lack their "b": the rows show without a leading "b" only, the
// save puts one in front of every row, and RESTORE leaves the ticks.
const store::FileSchema& Filters() {
    static const store::FileSchema file{
        "T\\Filters.tbl", "tFilters", {{FieldKind::Flag, "bFilter", "0"}}, store::FileKind::Data};
    return file;
}

const PageDecl& FiltersPage() {
    using namespace decl;
    static const PageDecl page{
        .key = "T~Filters",
        .caption = "T ~ Filters",
        .size = {3400, 6075},
        .files = {&Filters()},
        .controls = {With({.onlyLeadingB = true, .restoreKeepsTicks = true},
                          FlagRows("lvwFilters", "tFilters", 3000, {{"column1", "F", 2600}}))},
    };
    return page;
}

TEST_F(DeclaredPage, FlagRowsMayKeepAKeyWithoutItsLeadingBAndTheirTicksThroughRestore) {
    hub.WriteSetting("T/Filters.tbl", Crlf({"tFilters = {", "\tbKick = 1,", "\tMute = 0,",
                                            "\tban = 1,", "\tb = 0,", "}"}));
    page = std::make_unique<Page>(context, FiltersPage());
    page->Load();
    const auto& list = Get<ListControl>("lvwFilters");
    ASSERT_EQ(list.Count(), 4);
    EXPECT_EQ(list.Row(1).text, "Kick");
    EXPECT_EQ(list.Row(2).text, "Mute");
    EXPECT_EQ(list.Row(3).text, "an");
    EXPECT_EQ(list.Row(4).text, "");
    host.QueueAnswer(Answer::OK);
    ASSERT_TRUE(Click("tlbFormToolbar", "RESTORE"));
    EXPECT_TRUE(list.Row(1).checked);
    EXPECT_FALSE(list.Row(2).checked);
    ASSERT_TRUE(Click("tlbFormToolbar", "SAVE"));
    EXPECT_EQ(
        hub.ReadSetting("T/Filters.tbl"),
        Crlf({"tFilters = {", "\tbKick = 1,", "\tbMute = 0,", "\tban = 1,", "\tb = 0,", "}"}));
}

TEST(RowDialogs, AnEditDialogWithoutItsAddButtonNeverEnablesIt) {
    DialogRequest request{.kind = DialogKind::OneFields, .required = 1, .addButton = false};
    EditDialog dialog(request);
    ASSERT_TRUE(dialog.UserSetField(0, "x"));
    EXPECT_TRUE(dialog.OKEnabled());
    EXPECT_FALSE(dialog.AddEnabled());
    EXPECT_FALSE(dialog.ClickAdd().has_value());
}

}  // namespace
}  // namespace qb::shell
