#pragma once
// The quiz games' settings: six games that ask questions in the chat (Trivia, Anagrams,
// CodeBreaker, GuessTheNumber, Hangman, Numbers) share one block of flags and numbers, and each
// adds or lacks a few keys. One page and one builder serve them all; a game is a row of data:
// its keys with their captions, defaults and spin limits, the order its page writes them in and
// the order its builder does, and the oddities each page has always had.

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "families/quiz/word_list.h"
#include "shell/page_decl.h"
#include "shell/page_registry.h"
#include "store/builders.h"
#include "store/schema.h"

namespace qb::pages {

// A check box of the page's array, at its index.
struct QuizFlag {
    std::string key;
    std::string caption;
    std::string defaultValue;
};

// A number in the text box of the array txtTextBoxUpDown at its index, set with its spin control
// and captioned by lblLabel at the same index. A box with no key is a dead control: it shows and
// spins, but no file has its value.
struct QuizNumber {
    std::string key;
    std::string caption;
    std::string defaultValue;
    store::Range range;
};

// One option button of a group: its caption and the value it stands for.
struct QuizOption {
    std::string caption;
    std::string value;
};

// A group of option buttons in a frame, bound to one key. The options of every group are one
// array optOption, numbered on from the group before.
struct QuizOptionGroup {
    std::string key;
    std::string caption;  // the frame's
    std::vector<QuizOption> options;
};

// A text field: its control, key and caption, and how it has always behaved.
struct QuizText {
    std::string control;
    std::string key;
    std::string caption;
    shell::Quirks quirks{};
    // RESTORE asks the game's lookup for this key instead of the field's own.
    std::string restoreKey{};
};

// A row of the Numbers game's operand table: the type shown in the list's first column, the key
// in the nested table and its default, four numbers joined by commas.
struct QuizCalculation {
    std::string type;
    std::string key;
    std::string defaultValue;
};

// Pictures of the game's progress, one a stage: files "0.asc" to the last stage's, in a folder of
// the game's, which the user draws in the text editor. A slider picks the stage EDIT opens,
// counted down from the last: the slider's zero end edits the last stage.
struct QuizStages {
    std::string folder;  // in the game's folder: "Ascii"
    int last;            // 13: the stages are 0.asc to 13.asc
    int largeChange;     // the slider's step on a click beside its thumb
};

// A file the scripts or the user fill, written by the builder only when it is missing.
struct QuizDataFile {
    std::string name;  // in the game's folder
    std::string text;  // what a new file holds, before the writer's last line break
};

struct QuizGame {
    std::string key;       // "Games~Anagrams"
    std::string caption;   // "Games ~ Anagrams"
    std::string folder;    // "Games\Anagrams"
    std::string settings;  // "AnagramSettings": the file's name, and its table with a "t"
    std::string prefix;    // of the three files the scripts fill: "Anagram"
    shell::PageSize size;
    std::string checks = "chkCheckBox";  // the check box array
    // What the game's default lookup answers beyond its flags' and numbers' defaults: the
    // strings and options, and the keys no file of the game uses.
    std::vector<store::ListEntry> defaults;
    // The check boxes past the six that every game has.
    std::vector<QuizFlag> flags;
    std::vector<QuizNumber> numbers;
    std::vector<QuizOptionGroup> options{};
    std::vector<QuizText> texts{};
    std::vector<QuizCalculation> calculation{};
    // The keys in the order the page writes them, and in the order the builder does.
    std::vector<std::string> pageOrder;
    std::vector<std::string> builderOrder;
    // The lines the page writes otherwise than the builder, by key.
    std::map<std::string, store::LineForm> pageLines{};
    // The values the page always writes, whatever the file held, by key.
    std::map<std::string, std::string> pageFixed{};
    // Keys whose default the builder cuts to its first character.
    std::vector<std::string> oneCharacterDefaults{};
    // The text field the save refuses to leave empty, and what it says then.
    std::string requiredText{};
    shell::Prompt requiredPrompt{};
    std::vector<QuizDataFile> dataFiles{};
    // The list of words or questions the game draws from, edited in place on the page.
    std::optional<WordList> words{};
    std::optional<QuizStages> stages{};
};

// The six check boxes every game has, in the order of their array.
const std::vector<QuizFlag>& SharedQuizFlags();

// The game's settings file. The game must outlive the program's registries.
const store::FileSchema& QuizSettingsSchema(const QuizGame& game);
// The game's page.
shell::PageEntry QuizPageOf(const QuizGame& game);
// The game's builders: its settings file, then its data files, its word list, its stages and the
// three files the scripts fill, each only when missing.
std::vector<store::BuildStep> QuizBuilds(const QuizGame& game);

}  // namespace qb::pages
