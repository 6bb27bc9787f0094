#pragma once
// The texts of the about box, frmHelpAbout.

#include <string>

#include "store/edition.h"

namespace qb::shell {

struct AboutText {
    std::string caption;      // "About Quillbook"
    std::string title;        // lblTitle
    std::string version;      // lblVersion, "Version 5.3.0"
    std::string description;  // lblDescription
    std::string disclaimer;   // lblDisclaimer
};

inline AboutText AboutBox(store::ProgramVersion version) {
    const std::string edition(store::kEdition);
    return {"About " + edition, "Vandrell's " + edition, "Version " + store::VersionText(version),
            edition +
                " is an All-in-One bot for use with the PtokaX hubsoft. Supplying both Security "
                "functions and Games",
            "This program is given as it is, without warranty of any kind. Keep a copy of your "
            "settings folder before you change a hub's settings."};
}

// What the system information button says when it finds nothing to show.
inline constexpr const char* kNoSystemInformation =
    "System Information Is Unavailable At This Time";

}  // namespace qb::shell
