// Hub e-mail: how many messages a user's inbox holds. No rebuild makes its folder, so its SAVE
// does, as the portal's does.

#include "pages/communication/communication.h"

namespace qb::pages {

const store::FileSchema& HubEmailSettingsSchema() {
    static const store::FileSchema schema{
        "Communication\\HubEmail\\HubEmailSettings.tbl",
        "tHubEmailSettings",
        {{.kind = store::FieldKind::Number,
          .key = "iInboxSize",
          .defaultValue = "10",
          .range = store::Range{1, 250}}},
    };
    return schema;
}

const shell::PageDecl& HubEmailPage() {
    using namespace shell::decl;
    using shell::Item;
    static const shell::PageDecl page{
        .key = "Communication~HubEmail",
        .caption = "Communication ~ HubEmail",
        .size = {3400, 1800},
        .files = {&HubEmailSettingsSchema()},
        .controls = {Label("lblLabel(0)", "Inbox Capacity"),
                     // No rebuild makes this file: until a save does, the capacity shows empty,
                     // as it always has, rather than the default.
                     With({.initial = ""}, Spin("txtUpDown", "updUpDown", "iInboxSize"))},
        .layout = shell::Column({shell::Row({Item("lblLabel(0)"), Item("txtUpDown"),
                                             Item("updUpDown"), shell::Stretch()}),
                                 shell::Stretch()}),
        .saveMakesFolders = true,
    };
    return page;
}

}  // namespace qb::pages
