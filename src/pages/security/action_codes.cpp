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

store::Field ActionField() {
    return {.kind = store::FieldKind::String,
            .key = "sAction",
            .defaultValue = "T",
            .choices = ActionChoices()};
}

store::Field BanTimeField(std::string key) {
    return {.kind = store::FieldKind::Number,
            .key = std::move(key),
            .defaultValue = "60",
            .range = store::Range{1, 1440, 5}};
}

}  // namespace qb::pages
