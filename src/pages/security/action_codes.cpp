#include "pages/security/action_codes.h"

namespace qb::pages {

const std::vector<ActionCode>& ActionCodes() {
    static const std::vector<ActionCode> codes = {
        {"Disconnect", "D"}, {"Warn", "W"},    {"Notify Ops", "N"},
        {"Kick", "K"},       {"TempBan", "T"}, {"Ban", "B"},
    };
    return codes;
}

std::string ActionName(std::string_view code) {
    for (const ActionCode& action : ActionCodes()) {
        if (action.code == code) return std::string(action.name);
    }
    return {};
}

std::string ActionCodeOf(std::string_view name) {
    for (const ActionCode& action : ActionCodes()) {
        if (action.name == name) return std::string(action.code);
    }
    return {};
}

}  // namespace qb::pages
