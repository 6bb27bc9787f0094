// Chat rooms: which profiles may create, delete, suspend and manage the rooms users make, and
// which of those actions the operators hear of. The rooms are the scripts' own file, which a
// rebuild only makes empty.

#include "pages/communication/communication.h"

namespace qb::pages {

namespace {

struct RoomList {
    const char* list;
    const char* key;
    const char* label;
};

// In the order the page shows and writes them.
constexpr RoomList kRoomLists[] = {
    {"lvwEnabledProfilesCreate", "tEnabledProfilesCreate", "Enabled Profiles - Create"},
    {"lvwEnabledProfilesDelete", "tEnabledProfilesDelete", "Enabled Profiles - Delete"},
    {"lvwEnabledProfilesSuspend", "tEnabledProfilesSuspend", "Enabled Profiles - Suspend"},
    {"lvwEnabledProfilesMembers", "tEnabledProfilesMembers", "Enabled Profiles - Members"},
    {"lvwEnabledProfilesDefault", "tEnabledProfiles", "Enabled Profiles - Default"},
};

constexpr int kListWidth = 2600;

}  // namespace

const store::FileSchema& ChatRoomSettingsSchema() {
    static const store::FileSchema schema = [] {
        using store::FieldKind;
        store::FileSchema file{
            "Communication\\ChatRooms\\ChatRoomSettings.tbl",
            "tChatRoomSettings",
            {{.kind = FieldKind::NamedFlags,
              .key = "tAnnounce",
              .defaultValue = "1",
              .rows = {"bDeleted", "bSuspended"}}},
        };
        for (const RoomList& list : kRoomLists)
            file.fields.push_back({FieldKind::ProfileChecks, list.key, "0"});
        // The builder has always put the rooms' users ahead of the four rights.
        file.builderForm.order = {"tAnnounce",
                                  "tEnabledProfiles",
                                  "tEnabledProfilesCreate",
                                  "tEnabledProfilesDelete",
                                  "tEnabledProfilesSuspend",
                                  "tEnabledProfilesMembers"};
        return file;
    }();
    return schema;
}

// The rooms themselves: kept by the scripts, made empty when missing.
const store::FileSchema& ChatRoomsSchema() {
    static const store::FileSchema schema{
        "Communication\\ChatRooms\\ChatRooms.tbl", "tChatRooms", {}, store::FileKind::Data};
    return schema;
}

const shell::PageDecl& ChatRoomsPage() {
    static const shell::PageDecl page = [] {
        using namespace shell::decl;
        using shell::Item;
        shell::PageDecl decl{
            .key = "Communication~ChatRooms",
            .caption = "Communication ~ ChatRooms",
            .size = {8600, 7200},
            .files = {&ChatRoomSettingsSchema()},
            .controls = {{.kind = shell::ControlKind::Frame,
                          .name = "fraAnnounce",
                          .caption = "Announce To Ops"},
                         Check("chkDeleted", "tAnnounce.bDeleted", "Deletion"),
                         Check("chkSuspended", "tAnnounce.bSuspended", "Suspension")},
        };
        shell::Layout top = shell::Row({shell::InFrame(
            "fraAnnounce",
            shell::Column({Item("chkDeleted"), Item("chkSuspended"), shell::Stretch()}))});
        shell::Layout bottom = shell::Row({});
        int label = 0;
        for (const RoomList& list : kRoomLists) {
            const std::string name = "lblLabel(" + std::to_string(label++) + ")";
            decl.controls.push_back(Label(name, list.label));
            decl.controls.push_back(
                ProfileChecks(list.list, list.key, "Enabled Profiles", kListWidth));
            shell::Layout& row = label <= 2 ? top : bottom;
            row.items.push_back(shell::Column({Item(name), Item(list.list)}));
        }
        decl.layout = shell::Column({top, bottom});
        return decl;
    }();
    return page;
}

}  // namespace qb::pages
