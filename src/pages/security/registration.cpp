// Registration: whether users may register themselves, the log, the prefix of a registered nick
// and the profile a registration gives; and which profile may add, delete, look up and change the
// registrations of which profile. The pair shape of the permission matrices with four commands,
// the unregistered users on neither axis.

#include "pages/security/security.h"
#include "shell/page_frame.h"

namespace qb::pages {

namespace {

PairFile RegistrationFile(const std::string& command) {
    return {"Security\\Registration\\Registration" + command + ".tbl", "tRegistration" + command};
}

constexpr int kWidth = 7600;

}  // namespace

// The builder writes the profile a registration gives as iRegProfiles, always 3: it looks the
// old value up in a table of that name, which no file has. The page's iRegProfile is lost at
// every rebuild, and the page shows the first profile until the user chooses again.
const store::FileSchema& RegistrationSettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema{
        .file = "Security\\Registration\\RegistrationSettings.tbl",
        .table = "tRegistrationSettings",
        .fields = {{FieldKind::Flag, "bAllowRegme", "1"},
                   {FieldKind::Flag, "bKeepLog", "1"},
                   {FieldKind::String, "sPrefix", ""},
                   {.kind = FieldKind::Number,
                    .key = "iRegProfile",
                    .defaultValue = "",
                    .resetByRebuild = true,
                    .builderDefault = "3"}},
        .builderForm = {.lines = {{"iRegProfile", {.name = "iRegProfiles"}}}},
    };
    return schema;
}

const shell::PageDecl& RegistrationPage() {
    using namespace shell::decl;
    using shell::Item;
    static const shell::PageDecl page{
        .key = "Security~Registration",
        .caption = "Security ~ Registration",
        .size = {kWidth, 7200},
        .files = {&RegistrationSettingsSchema()},
        .controls = {Check("chkCheckBox(0)", "bAllowRegme", "Enable Regme"),
                     Check("chkCheckBox(1)", "bKeepLog", "Keep Log"),
                     Text("txtTextBox", "sPrefix", "Prefix"),
                     Label("lblLabel(0)", "Registration Profile"),
                     With({.profileCombo = true}, Combo("cboComboBox", "iRegProfile")),
                     Toolbar("tlbListview"), List("lvwRegistrations", shell::FillWidth(kWidth))},
        .layout = shell::Column(
            {shell::Row({shell::Column({Item("chkCheckBox(0)"), Item("chkCheckBox(1)")}),
                         Item("txtTextBox"),
                         shell::Column({Item("lblLabel(0)"), Item("cboComboBox")}),
                         shell::Stretch()}),
             Item("tlbListview"), Item("lvwRegistrations")}),
    };
    return page;
}

const PairMatrix& RegistrationMatrix() {
    static const PairMatrix matrix{
        .key = "Security~Registration",
        .commands = {{"Add Registration", RegistrationFile("Add")},
                     {"Delete Registration", RegistrationFile("Delete")},
                     {"Get Password", RegistrationFile("GetPassword")},
                     {"Change Password", RegistrationFile("ChangePassword")}},
        // The page's axes leave the unregistered users out; the builder's keep them, so a save
        // drops the rows of -1 and the next rebuild brings them back as 0.
        .firstProfile = 0,
        .yes = "True",
        .no = "False",
        .allowColumn = "Allow",
        .commandWidth = 1700,
        .builderFiles = {RegistrationFile("Add"), RegistrationFile("ChangePassword"),
                         RegistrationFile("Delete"), RegistrationFile("GetPassword")},
        .page = &RegistrationPage(),
        .list = "lvwRegistrations",
    };
    return matrix;
}

}  // namespace qb::pages
