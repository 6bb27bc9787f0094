#include "pages/language/language.h"

namespace qb::pages {

const std::vector<LanguageSet>& LanguageSets() {
    // The wordings differ where the pages always have: the messages set asks for a new file
    // under the commands' title, and the right click set words its prompts its own way.
    static const std::vector<LanguageSet> sets = {
        {
            .key = "General~Commands",
            .caption = "Language ~ Commands",
            .indexFile = "Language\\Commands\\CommandLanguages.tbl",
            .indexTable = "tCommandLanguages",
            .filesFolder = "Language\\Commands\\Files\\",
            .languageTable = "tScriptCommands",
            .idColumn = "Command ID",
            .textColumn = "Command",
            .newTitle = "Add New Command",
            .newPrompt = "Enter name of new Command File:",
            .existsText = " already exists as a Command Language File",
            .defaultKept = "DEFAULT Command File cannot be deleted",
            .overDefault = true,
        },
        {
            .key = "General~Messages",
            .caption = "Language ~ Messages",
            .indexFile = "Language\\Messages\\MessageLanguages.tbl",
            .indexTable = "tMessageLanguages",
            .filesFolder = "Language\\Messages\\Files\\",
            .languageTable = "tScriptMessages",
            .idColumn = "Message ID",
            .textColumn = "Message",
            .newTitle = "Add New Command",
            .newPrompt = "Enter name of new Message File:",
            .existsText = " already exists as a Message Language File",
            .defaultKept = "DEFAULT Command File cannot be deleted",
            .overDefault = false,
        },
        {
            .key = "General~RightClicks",
            .caption = "Language ~ RightClick",
            .indexFile = "Language\\RightClick\\RightClickLanguages.tbl",
            .indexTable = "tRightClickLanguages",
            .filesFolder = "Language\\RightClick\\Files\\",
            .languageTable = "tScriptRightClick",
            .idColumn = "RightClick ID",
            .textColumn = "RightClick",
            .newTitle = "Add New RightClick",
            .newPrompt = "Enter name of new RightClick:",
            .existsText = " already exists as a RightClick Language File",
            .defaultKept = "DEFAULT RightClick cannot be deleted",
            .overDefault = false,
        },
    };
    return sets;
}

}  // namespace qb::pages
