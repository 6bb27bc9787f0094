// Kick permissions: which profile may drop, warn, kick, time ban, ban and unban which profile.
// The pair shape of the permission matrices with six commands, shown by command and by the
// profile that acts.

#include "pages/security/security.h"

namespace qb::pages {

namespace {

PairFile KickFile(const std::string& command) {
    return {"Security\\Kick\\KickCan" + command + ".tbl", "tKickCan" + command};
}

}  // namespace

const PairMatrix& KickPermissionsMatrix() {
    static const PairMatrix matrix{
        .key = "Security~Kicks~Permissions",
        .commands = {{"Drop", KickFile("Drop")},
                     {"Warn", KickFile("Warn")},
                     {"Kick", KickFile("Kick")},
                     {"TimeBan", KickFile("TimeBan")},
                     {"Ban", KickFile("Ban")},
                     {"Unban", KickFile("Unban")}},
        .view = PairView::ByCommandAndProfile,
        // The builder's word for the time ban is TempBan, the page's TimeBan, and neither file
        // is the other: the builder never touches the page's file, nor the page the builder's.
        .builderFiles = {KickFile("Ban"), KickFile("Drop"), KickFile("Kick"), KickFile("TempBan"),
                         KickFile("Unban"), KickFile("Warn")},
    };
    return matrix;
}

}  // namespace qb::pages
