#include "pages/security/action_codes.h"

namespace qb::pages {

const std::vector<store::Choice>& ActionChoices() {
    static const std::vector<store::Choice> codes = {
        {"Disconnect", "D"}, {"Warn", "W"},    {"Notify Ops", "N"},
        {"Kick", "K"},       {"TempBan", "T"}, {"Ban", "B"},
    };
    return codes;
}

std::vector<std::string> NamesOf(const std::vector<store::Choice>& choices) {
    std::vector<std::string> names;
    for (const store::Choice& choice : choices)
        names.push_back(choice.shown);
    return names;
}

std::vector<std::string> ActionNames() {
    return NamesOf(ActionChoices());
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

store::Field ActionField(std::string defaultCode) {
    return {.kind = store::FieldKind::String,
            .key = "sAction",
            .defaultValue = std::move(defaultCode),
            .choices = ActionChoices()};
}

store::Field BanTimeField(std::string key) {
    return store::UpDownNumber(std::move(key), "60", store::Range{1, 1440, 5});
}

}  // namespace qb::pages
