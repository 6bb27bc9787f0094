#include "shell/popup_menus.h"

namespace qb::shell {
namespace {

PopupMenu AddDeleteEdit(const std::string& menu, const std::string& method) {
    const std::string name = "mnu" + menu;
    const std::string call = "gMenu" + method;
    return {name,
            {{name + "Add", "&Add", call + "AddClick"},
             {name + "Delete", "&Delete", call + "DeleteClick"},
             {name + "Edit", "&Edit", call + "EditClick"}}};
}

}  // namespace

const std::vector<PopupMenu>& PopupMenus() {
    static const std::vector<PopupMenu> menus = {
        AddDeleteEdit("First", "First"),
        AddDeleteEdit("Second", "Second"),
        AddDeleteEdit("Third", "Third"),
        AddDeleteEdit("Fourth", "Fourth"),
        AddDeleteEdit("Anagrams", "Anagrams"),
        AddDeleteEdit("Hangman", "Hangman"),
        AddDeleteEdit("Numbers", "Numbers"),
        {"mnuNumbersNumbers", {{"mnuNumbersNumbersEdit", "&Edit", "gMenuNumbersNumbersEditClick"}}},
        AddDeleteEdit("Intro", "Intro"),
        AddDeleteEdit("Outro", "Outro"),
        // The user action pages share the plain method names.
        AddDeleteEdit("UserActions", ""),
        {"mnuOnlyEdit",
         {{"mnuOnlyEditEdit", "&Edit", "gMenuEditClick"},
          {"mnuOnlyEditTwoEdit", "&Edit", "gMenuEditTwoClick"},
          {"mnuOnlyEditThreeEdit", "&Edit", "gMenuEditThreeClick"}}},
        {"mnuBots", {{"mnuBotsEdit", "&Edit", "gMenuBotsEditClick"}}},
        // Both entries call the True method: pages have a False method that no entry reaches,
        // and the scripts' owners are used to the menu as it is.
        {"mnuTrueFalse",
         {{"mnuTrueFalseTrue", "&True", "gMenuTrueFalseTrueClick"},
          {"mnuTrueFalseFalse", "&False", "gMenuTrueFalseTrueClick"}}},
        // Entries the question list shows but that call nothing.
        {"mnuTriviaQuestions",
         {{"mnuTriviaQuestionsAdd", "&Add", ""},
          {"mnuTriviaQuestionsDelete", "&Delete", ""},
          {"mnuTriviaQuestionsEdit", "&Edit", ""}}},
    };
    return menus;
}

const PopupMenu* FindPopupMenu(std::string_view name) {
    for (const auto& menu : PopupMenus()) {
        if (menu.name == name) return &menu;
    }
    return nullptr;
}

const PopupEntry* FindPopupEntry(std::string_view name) {
    for (const auto& menu : PopupMenus()) {
        for (const auto& entry : menu.entries) {
            if (entry.name == name) return &entry;
        }
    }
    return nullptr;
}

const PopupEntry* PopupEntryCalling(std::string_view method) {
    for (const auto& menu : PopupMenus()) {
        for (const auto& entry : menu.entries) {
            if (entry.method == method) return &entry;
        }
    }
    return nullptr;
}

}  // namespace qb::shell
