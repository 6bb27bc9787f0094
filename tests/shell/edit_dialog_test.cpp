// The edit dialogs: the fields each requirement code paints, when OK and Add can be clicked, and
// what each way of ending the dialog hands back; and the scripted host answering through them.

#include "shell/edit_dialog.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "shell/scripted_host.h"

namespace qb::shell {
namespace {

DialogRequest Request(DialogKind kind, int required, std::array<std::string, 4> values = {}) {
    DialogRequest request;
    request.kind = kind;
    request.caption = "Edit Row";
    request.required = required;
    request.values = values;
    request.mode = "A";
    request.comboItems = {{"Kick", "Ban", ""}, {"Yes", "No"}, {"1", "2"}, {"x", "y"}};
    request.bounds = {{0, 10, 1}, {5, 50, 5}};
    return request;
}

std::string Painted(const EditDialog& dialog) {
    std::string painted;
    for (size_t i = 0; i < dialog.Fields().size(); ++i) {
        if (dialog.Fields()[i].painted) painted += std::to_string(i);
    }
    return painted;
}

// Field positions as the user sees them, top to bottom, and "-" where Add is barred. Codes 7 and
// -1 stand for any code without a rule of its own.
struct Expected {
    DialogKind kind;
    std::map<int, std::string> byCode;
};

TEST(EditDialogTest, EachRequirementCodePaintsItsFieldsAndMayBarAdd) {
    using K = DialogKind;
    const std::vector<Expected> table = {
        {K::OneFields, {{0, "0-"}, {1, "0"}, {2, ""}, {7, ""}}},
        {K::OneUpDown, {{0, "0-"}, {1, "0"}, {2, ""}}},
        // A text box the dialog doesn't have (T2 of two) paints nothing.
        {K::TwoFields, {{0, ""}, {1, "01"}, {2, "01-"}, {3, "1"}, {4, "01"}, {5, ""}}},
        {K::ThreeFields,
         {{0, "0-"}, {1, "1"}, {2, "0"}, {3, "1"}, {4, "012"}, {5, "012-"}, {6, "2"}, {-1, "2"}}},
        {K::FourFields,
         {{0, "0-"}, {1, "1"}, {2, "0"}, {3, "1"}, {4, "01"}, {5, "0123-"}, {6, "0123"}, {7, "2"}}},
        {K::TwoUpDowns, {{0, "0-"}, {1, "01-"}, {2, "1"}, {3, ""}}},
        // The combo follows the number.
        {K::UpDownCombo, {{0, "0-"}, {1, "01-"}, {2, ""}, {3, "1"}, {4, ""}}},
        {K::TextCombo, {{0, "-"}, {1, "0"}, {2, "1"}, {3, "1"}, {4, ""}}},
        {K::OneTextTwoCombo, {{0, "-"}, {1, "0"}, {2, "1"}, {3, "01"}, {4, "012"}, {5, ""}}},
        {K::TwoTextCombo, {{0, "-"}, {1, "0"}, {2, "2"}, {3, "02"}, {4, "012"}, {5, ""}}},
        {K::ThreeCombos,
         {{0, "0-"}, {1, "1"}, {2, "0"}, {3, "1"}, {4, "012"}, {5, "012-"}, {6, "2"}, {9, "2"}}},
        {K::FourCombos,
         {{0, "0-"},
          {1, "1"},
          {2, "0"},
          {3, "1"},
          {4, "01"},
          {5, "0123-"},
          {6, "0123"},
          {-3, "2"}}},
    };
    for (const auto& [kind, byCode] : table) {
        for (const auto& [code, expected] : byCode) {
            const EditDialog dialog(Request(kind, code));
            const std::string got = Painted(dialog) + (dialog.NoAdd() ? "-" : "");
            EXPECT_EQ(got, expected) << DialogFormName(kind) << " code " << code;
        }
    }
}

TEST(EditDialogTest, TheDialogsHaveTheirFieldsInOrder) {
    const EditDialog dialog(Request(DialogKind::TwoTextCombo, 1, {"a", "b", "Ban", ""}));
    ASSERT_EQ(dialog.Fields().size(), 3u);
    EXPECT_EQ(dialog.Fields()[1].kind, FieldKind::Text);
    EXPECT_EQ(dialog.Fields()[1].index, 1);
    EXPECT_EQ(dialog.Fields()[2].kind, FieldKind::Combo);
    EXPECT_EQ(dialog.Fields()[2].index, 0);
    EXPECT_EQ(dialog.Fields()[2].items, (std::vector<std::string>{"Kick", "Ban", ""}));
    EXPECT_EQ(dialog.Fields()[2].value, "Ban");
    const EditDialog updowns(Request(DialogKind::TwoUpDowns, 0, {"3", "10", "", ""}));
    EXPECT_EQ(updowns.Fields()[1].bounds.min, 5);
    EXPECT_EQ(DialogFormName(DialogKind::UpDownCombo), "frmGlobalEditUpDownCombo");
}

TEST(EditDialogTest, FieldZeroAloneGovernsOKAndAdd) {
    // Edited or new, the buttons start disabled: the user has to touch field 0.
    EditDialog dialog(Request(DialogKind::ThreeFields, 2, {"kept", "b", "c", ""}));
    EXPECT_FALSE(dialog.OKEnabled());
    EXPECT_FALSE(dialog.AddEnabled());
    EXPECT_FALSE(dialog.ClickOK().has_value());
    ASSERT_TRUE(dialog.UserSetField(1, "changed"));
    EXPECT_FALSE(dialog.OKEnabled());
    ASSERT_TRUE(dialog.UserSetField(0, "kept"));
    EXPECT_TRUE(dialog.OKEnabled());
    EXPECT_TRUE(dialog.AddEnabled());
    ASSERT_TRUE(dialog.UserSetField(0, ""));
    EXPECT_FALSE(dialog.OKEnabled());
    EXPECT_FALSE(dialog.AddEnabled());

    // A code that bars Add leaves it disabled whatever field 0 holds.
    EditDialog noAdd(Request(DialogKind::ThreeFields, 0));
    ASSERT_TRUE(noAdd.UserSetField(0, "x"));
    EXPECT_TRUE(noAdd.OKEnabled());
    EXPECT_FALSE(noAdd.AddEnabled());
    EXPECT_FALSE(noAdd.ClickAdd().has_value());

    // A combo or an up-down as field 0 governs the same way.
    EditDialog combos(Request(DialogKind::ThreeCombos, 1));
    ASSERT_TRUE(combos.UserSetField(0, "Kick"));
    EXPECT_TRUE(combos.AddEnabled());
    ASSERT_TRUE(combos.UserSetField(0, ""));
    EXPECT_FALSE(combos.OKEnabled());
    EditDialog number(Request(DialogKind::OneUpDown, 1));
    ASSERT_TRUE(number.UserSetField(0, "4"));
    EXPECT_TRUE(number.OKEnabled());
}

TEST(EditDialogTest, OKTakesEmptyLaterFieldsAndAddRefusesThem) {
    EditDialog dialog(Request(DialogKind::FourFields, 6));
    ASSERT_TRUE(dialog.UserSetField(0, "one"));
    ASSERT_TRUE(dialog.UserSetField(2, "three"));
    EXPECT_FALSE(dialog.ClickAdd().has_value());
    const auto ok = dialog.ClickOK();
    ASSERT_TRUE(ok.has_value());
    EXPECT_EQ(ok->mode, "1");
    EXPECT_EQ(ok->fields, (std::array<std::string, 4>{"one", "", "three", ""}));

    ASSERT_TRUE(dialog.UserSetField(1, "two"));
    ASSERT_TRUE(dialog.UserSetField(3, "four"));
    const auto add = dialog.ClickAdd();
    ASSERT_TRUE(add.has_value());
    EXPECT_EQ(add->mode, "A");
    EXPECT_EQ(add->fields[3], "four");
}

TEST(EditDialogTest, CancelAndTheCloseBoxHandBackNothing) {
    EditDialog dialog(Request(DialogKind::TwoFields, 1));
    dialog.UserSetField(0, "typed");
    EXPECT_EQ(dialog.ClickCancel().mode, "");
    EXPECT_EQ(dialog.CloseBox().mode, "");
    EXPECT_EQ(dialog.CloseBox().fields[0], "");
}

TEST(EditDialogTest, UpDownsKeepTheirBoundsAndCombosTheirItems) {
    EditDialog dialog(Request(DialogKind::UpDownCombo, 3));
    ASSERT_TRUE(dialog.UserSetField(0, "99"));
    EXPECT_EQ(dialog.Fields()[0].value, "10");
    ASSERT_TRUE(dialog.UserSetField(0, "-4"));
    EXPECT_EQ(dialog.Fields()[0].value, "0");
    EXPECT_FALSE(dialog.UserSetField(0, "ten"));
    EXPECT_FALSE(dialog.UserSetField(1, "Warn"));
    EXPECT_TRUE(dialog.UserSetField(1, "Ban"));
    EXPECT_FALSE(dialog.UserSetField(2, "x"));

    DialogRequest editable = Request(DialogKind::TextCombo, 1);
    editable.editableCombos = true;
    EditDialog typed(editable);
    EXPECT_TRUE(typed.UserSetField(1, "Warn"));
}

class ScriptedDialogTest : public ::testing::Test {
  protected:
    ScriptedDialogTest() : host_(transcript_) {}
    std::ostringstream transcript_;
    ScriptedHost host_;
};

TEST_F(ScriptedDialogTest, AScriptIsRefusedWhatTheUserWouldBe) {
    const DialogRequest request = Request(DialogKind::TwoFields, 1, {"Name", "Desc", "", ""});
    // Field 0 untouched: OK is still disabled.
    host_.QueueDialog({"OK", {}});
    EXPECT_THROW(host_.ShowDialog(request), UnansweredPrompt);
    host_.QueueDialog({"OK", {""}});
    EXPECT_THROW(host_.ShowDialog(request), UnansweredPrompt);
    host_.QueueDialog({"Add", {"Name", ""}});
    EXPECT_THROW(host_.ShowDialog(request), UnansweredPrompt);
    EXPECT_EQ(transcript_.str(),
              "dialog: Edit Row -> OK refused\ndialog: Edit Row -> OK refused\n"
              "dialog: Edit Row -> Add refused\n");
}

TEST_F(ScriptedDialogTest, TheAddLoopKeepsItsRowsWhenTheNextOpeningIsCancelled) {
    host_.QueueDialog({"Add", {"first", "1"}});
    host_.QueueDialog({"Add", {"second", "2"}});
    host_.QueueDialog({"Close", {}});
    // The page's add loop: store the row while the dialog ends with Add.
    std::vector<std::string> rows;
    for (;;) {
        const DialogResult result = host_.ShowDialog(Request(DialogKind::TwoFields, 1));
        if (result.mode.empty()) break;
        rows.push_back(result.fields[0] + "=" + result.fields[1]);
        if (result.mode != "A") break;
    }
    EXPECT_EQ(rows, (std::vector<std::string>{"first=1", "second=2"}));
    EXPECT_EQ(transcript_.str(),
              "dialog: Edit Row -> Add first 1\ndialog: Edit Row -> Add second 2\n"
              "dialog: Edit Row -> Close\n");
}

TEST_F(ScriptedDialogTest, OKHandsBackEveryFieldWithTheUntypedOnesAsThePageSetThem) {
    host_.QueueDialog({"OK", {"New Name"}});
    const DialogResult result =
        host_.ShowDialog(Request(DialogKind::ThreeFields, 4, {"Old", "kept desc", "", ""}));
    EXPECT_EQ(result.mode, "1");
    EXPECT_EQ(result.fields, (std::array<std::string, 4>{"New Name", "kept desc", "", ""}));
    EXPECT_EQ(transcript_.str(), "dialog: Edit Row -> OK \"New Name\" \"kept desc\" \"\"\n");
}

}  // namespace
}  // namespace qb::shell
