#include "pages/security/action_codes.h"

namespace qb::pages {

const std::vector<store::Choice>& ActionChoices() {
    static const std::vector<store::Choice> codes = {
        {"Disconnect", "D"}, {"Warn", "W"},    {"Notify Ops", "N"},
        {"Kick", "K"},       {"TempBan", "T"}, {"Ban", "B"},
    };
    return codes;
}

std::vector<std::string> ActionNames() {
    std::vector<std::string> names;
    for (const store::Choice& action : ActionChoices())
        names.push_back(action.shown);
    return names;
}

std::string ActionName(std::string_view code) {
    for (const store::Choice& action : ActionChoices()) {
        if (action.stored == code) return action.shown;
    }
    return {};
}

std::string ActionCodeOf(std::string_view name) {
    for (const store::Choice& action : ActionChoices()) {
        if (action.shown == name) return action.stored;
    }
    return {};
}

}  // namespace qb::pages
