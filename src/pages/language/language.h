#pragma once
// The language sets: the command words the scripts answer to, the messages they print and the
// captions of their right click menus. Each set is a folder of language files, each a plain table
// of key and text, and an index file that names the one in force. The keys belong to the scripts:
// the pack ships each set's DEFAULT.tbl, and the pages show any key as it stands. No builder
// writes a language file; the rebuild only makes the sets' folders.

#include <string>
#include <string_view>
#include <vector>

#include "shell/page_registry.h"

namespace qb::pages {

// What one set's page has of its own; the three pages are otherwise one.
struct LanguageSet {
    std::string_view key;            // the function key it opens under, "General~Commands"
    std::string_view caption;        // the page's own caption, "Language ~ Commands"
    std::string_view indexFile;      // "Language\Commands\CommandLanguages.tbl"
    std::string_view indexTable;     // "tCommandLanguages"
    std::string_view filesFolder;    // "Language\Commands\Files\", where the language files are
    std::string_view languageTable;  // "tScriptCommands"
    std::string_view idColumn;       // "Command ID"
    std::string_view textColumn;     // "Command": also the edit dialog's label
    std::string_view newTitle;       // the input box of NEW
    std::string_view newPrompt;
    std::string_view existsText;   // behind the name, when OPEN finds it listed already
    std::string_view defaultKept;  // why DELETE refuses DEFAULT
    // A file opens as DEFAULT.tbl with the file's texts laid over it, so that a key a newer
    // DEFAULT brought shows with its default text; otherwise a file opens as it stands.
    bool overDefault;
};

// Commands, Messages and RightClick.
const std::vector<LanguageSet>& LanguageSets();

// The language pages, under their General keys.
void RegisterLanguagePages(shell::PageRegistry& registry);

}  // namespace qb::pages
