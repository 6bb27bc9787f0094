// The anti-virus: what is done to a connecting user in whom the scripts find the Win.Tibick.32
// worm. Such a user never enters the hub; by default he is disconnected.

#include "pages/security/action_codes.h"
#include "pages/security/security.h"

namespace qb::pages {

// The builder has always written the action first.
const store::FileSchema& AntiVirusSettingsSchema() {
    static const store::FileSchema schema{
        .file = "Security\\AntiVirus\\AntiVirusSettings.tbl",
        .table = "tAntiVirusSettings",
        .fields = {BanTimeField("iTempBanTime"), ActionField("D")},
        .builderForm = {.order = {"sAction", "iTempBanTime"}},
    };
    return schema;
}

const shell::PageDecl& AntiVirusPage() {
    using namespace shell::decl;
    using shell::Item;
    static const shell::PageDecl page{
        .key = "Security~AntiVirus",
        .caption = "Security ~ AntiVirus",
        .size = {3400, 2400},
        .files = {&AntiVirusSettingsSchema()},
        .controls = {Label("lblLabel(0)", "Action"),
                     With({.initial = "Kick", .showsUnlisted = true},
                          Combo("cboComboBox", "sAction")),
                     Label("lblLabel(1)", "TimeBan"),
                     Spin("txtUpDown", "updUpDown", "iTempBanTime"),
                     // The scripts read no such key: the box marks the page, and its tick is
                     // neither loaded, restored nor saved.
                     Marks(Check("chkCheckBox", "", "Send Notification"))},
        .layout =
            shell::Column({shell::Row({Item("lblLabel(0)"), Item("cboComboBox")}),
                           shell::Row({Item("lblLabel(1)"), Item("txtUpDown"), Item("updUpDown")}),
                           Item("chkCheckBox"), shell::Stretch()}),
    };
    return page;
}

}  // namespace qb::pages
