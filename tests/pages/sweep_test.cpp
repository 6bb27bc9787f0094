// Every registered page over a freshly rebuilt tree: it opens clean, SAVE with nothing changed
// writes back the bytes it read, and RESTORE then SAVE writes what the rebuild wrote, since a
// fresh rebuild writes the defaults. A page joins this sweep by being registered; the pages whose
// writers have always differed from the rebuild's are listed below with the reason. The sweep
// runs over a tree built as 5.3.0, which has no archive, and over one built as 6.0.0, which has.

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/types.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>

#include "cli/lua_tables.h"
#include "hublink/sessions.h"
#include "pages/pages.h"
#include "shell/catalogue.h"
#include "shell/startup.h"
#include "store/fatal_error.h"
#include "support/page_harness.h"

namespace qb::pages {
namespace {

namespace fs = std::filesystem;

constexpr store::ProgramVersion kFive{5, 3, 0};
constexpr store::ProgramVersion kSix{6, 0, 0};

// The archive's pages, by kind.
std::vector<std::string> ArchivePages(const char* page) {
    std::vector<std::string> keys;
    for (const char* kind : {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"})
        keys.push_back(std::string(kind) + "~" + page);
    return keys;
}

// Adds `reason` for each key.
void Each(std::map<std::string, std::string>& pages, const std::vector<std::string>& keys,
          const std::string& reason) {
    for (const std::string& key : keys)
        pages.emplace(key, reason);
}

std::vector<std::string> ArchivePermissionPages() {
    std::vector<std::string> keys = ArchivePages("Permissions");
    keys.emplace_back("Hyperlink~RightClicks");
    return keys;
}

// Pages that end the program when they open over the freshly built tree.
std::map<std::string, std::string> OpenFails(store::ProgramVersion version) {
    std::map<std::string, std::string> pages;
    if (version.major < 6) {
        Each(pages, ArchivePages("LinkOfTheWeek"),
             "before version 6 no week file is made, and the rows' reader fails on a missing "
             "file");
    }
    return pages;
}

// Pages whose SAVE of an unchanged page writes a file otherwise than the rebuild did.
std::map<std::string, std::string> SaveDiffers(store::ProgramVersion version) {
    std::map<std::string, std::string> pages = {
        {"General~Settings", "the builder writes its keys in an order of its own"},
        {"Security~ClientChecker", "the builder writes its keys in an order of its own"},
        {"General~Bots", "Bots.tbl has no builder: the page's save makes it"},
        {"Communication~Talk",
         "the builder leaves out the unregistered users as the talked-to; the page writes them"},
        {"Communication~MassMessage",
         "the builder writes the words bare and keeps Operator; the page quotes them and drops it"},
        {"Communication~RotatingPrivateMessage",
         "the builder writes tEnabledProfiles ahead of tEnabledAdProfiles"},
        {"Communication~MOTD", "the builder writes the row for all users ahead of the profiles"},
        {"Communication~ChatRooms", "the builder writes tEnabledProfiles ahead of the four rights"},
        {"Communication~WelcomeInfo~Settings",
         "the builder keeps sMinShare, which the page neither shows nor writes"},
        {"Communication~HubEmail", "no builder: the page's save makes the file and its folder"},
        {"CustomiseUser~CustomRightClick",
         "the builder makes the table empty; the page's save writes the count of its entries"},
        {"CustomiseUser~DescriptionTags",
         "the builder writes bNotifyOps and the tags before the profiles; the page drops "
         "bNotifyOps and writes the profiles first"},
        {"General~Commands",
         "the language sets come with the script pack; no rebuild writes "
         "their index, and the page's save makes it"},
        {"General~Messages",
         "the language sets come with the script pack; no rebuild writes "
         "their index, and the page's save makes it"},
        {"General~RightClicks",
         "the language sets come with the script pack; no rebuild writes "
         "their index, and the page's save makes it"},
        {"UserActions~Quotations", "the builder puts the delay between the two flags"},
        {"UserActions~Proverbs", "the builder puts the delay between the two flags"},
        {"UserActions~Limericks", "the builder puts the delay between the two flags"},
        {"UserActions~Jokes", "the builder puts the delay between the two flags"},
        {"UserActions~Jokes~Settings", "the builder puts the delay between the two flags"},
        {"UserActions~Spells~Settings", "the builder writes the delay before the wards flag"},
        {"UserActions~Insults~Medieval",
         "the builder names the third list tThreee, the page tThree"},
        {"Security~AntiAdvertise~Addresses",
         "the builder makes each list under the other's table; the page writes each its own"},
        {"Security~Kicks~Settings", "the builder writes the numbers ahead of the flags"},
        {"Security~Kicks~Permissions",
         "the page writes KickCanTimeBan.tbl, which no rebuild makes: the builder's is TempBan"},
        {"Security~PrivateHub", "the builder writes the five lists in an order of its own"},
        {"Security~Registration",
         "the builder writes the unregistered users' rows, which the page drops, and "
         "iRegProfiles = 3 where the page writes iRegProfile"},
        {"Games~Trivia~Settings", "the builder writes its keys in an order of its own"},
        {"Games~Anagrams", "the builder writes its keys in an order of its own"},
        {"Games~CodeBreaker", "the builder writes its keys in an order of its own"},
        {"Games~GuessTheNumber", "the builder writes its keys in an order of its own"},
        {"Games~Hangman",
         "the builder writes its keys in an order of its own, and the allowed letters empty"},
        {"Games~Numbers",
         "the builder writes its keys in an order of its own, and iQuestions with one blank"},
        {"Games~Trivia~Questions",
         "the builder writes the default's key in brackets with no tab; the page the plain key"},
        {"UserActions~Jokes~Files", "no builder makes JokeFiles.tbl: the page's save makes it"},
        {"Security~SearchSpy", "the builder writes the immune profiles ahead of the enabled ones"},
        {"Security~BadNickBlocker", "the builder writes the action ahead of the ban time"},
        {"Security~CloneBlocker",
         "the builder writes the action ahead of the ban time, and the exempt profiles ahead of "
         "the enabled ones"},
        {"Security~UserLog", "the builder writes its keys in an order of its own"},
        {"Security~MainBlock", "the builder writes the block time after the profile lists"},
        {"Security~AntiVirus", "the builder writes the action ahead of the ban time"},
        {"Games~ThreeCardMonty",
         "the builder spells the cards with \"Of\", and writes a new comment file's one row "
         "without its tab and comma"},
        {"Games~RussianRoulette",
         "the builder writes the chambers bare, and a new comment file's one row without its tab "
         "and comma"},
    };
    if (version.major >= 6) {
        Each(pages, ArchivePages("LinkOfTheWeek"),
             "the builder quotes the change time with the day's code; the page writes it bare "
             "with the day's name");
        Each(pages, ArchivePermissionPages(),
             "the page writes each command's file but the last, two tabs deep, bare and with "
             "one brace too many; only Hyperlink's have a builder, one tab deep and quoted");
    }
    return pages;
}

// Pages whose SAVE ends the program over a freshly built tree.
std::map<std::string, std::string> SaveFails(store::ProgramVersion version) {
    std::map<std::string, std::string> pages;
    if (version.major < 6) {
        Each(pages, ArchivePages("NewLinks"), "before version 6 no folder of the archive is made");
        Each(pages, ArchivePermissionPages(), "before version 6 no folder of the archive is made");
    }
    return pages;
}

// Pages whose RESTORE then SAVE writes otherwise than a fresh rebuild.
const std::map<std::string, std::string>& RestoreDiffers() {
    static const std::map<std::string, std::string> pages = {
        {"General~Switches",
         "RESTORE ticks every row, the two functions that are off by default too"},
        {"General~EnableRightClicks",
         "RESTORE ticks every row, the two functions that are off by default too"},
        {"UserActions~Insults~Standard", "RESTORE empties the list the rebuild gave a sample"},
        {"UserActions~Insults~Modern",
         "RESTORE empties three of the lists the rebuild gave a sample"},
        {"UserActions~Attacks", "RESTORE empties the list the rebuild gave a sample"},
        {"UserActions~DoAction", "RESTORE empties the list the rebuild gave a sample"},
        {"CustomiseUser~IntroOutro~Standard",
         "RESTORE puts the default lines in; a rebuild makes the lists empty"},
        {"CustomiseUser~IntroOutro~Custom",
         "RESTORE puts the default lines in; a rebuild makes the lists empty"},
        {"Security~ProfileRules~Settings",
         "RESTORE unticks Log Redirects and sets the delay to 5; a rebuild ticks it and writes "
         "no delay"},
    };
    return pages;
}

// Pages whose SAVE over a file it lacks, or lacks a key of, writes a file Lua can't load: the
// manager's own broken forms, which the README lists.
std::map<std::string, std::string> SavesBroken() {
    std::map<std::string, std::string> pages = {
        {"Communication~HubEmail",
         "no rebuild makes its file, and until one exists the capacity shows empty: the first save "
         "writes iInboxSize = ,"},
        {"Security~ProfileRules~Settings",
         "the check delay shows empty until one is chosen, as a new tree's file has it: "
         "iCheckDelay = ,"},
    };
    Each(pages, ArchivePages("LinkOfTheWeek"),
         "the change time is written bare: sChangeTime = Sunday 17:59,");
    Each(pages, ArchivePermissionPages(),
         "each command's file closes its table with one brace too many");
    return pages;
}

// Pages that end the program when they open over one missing file, as their readers always
// have: by page, the file and the reason.
std::map<std::string, std::pair<std::string, std::string>> OpenFailsWithoutFile() {
    std::map<std::string, std::pair<std::string, std::string>> pages = {
        {"Communication~MOTD",
         {"Communication/MOTD/MOTDSettings.tbl",
          "each profile's bUse is read with ReadTableFlag, which fails on a missing file"}},
        {"UserActions~Ascii",
         {"UserActions/Ascii/AsciiIndex.tbl",
          "the pictures are read with ReadTableFlag, which fails on a missing file"}},
    };
    for (const char* kind :
         {"Bookshelf", "DVDRack", "Jukebox", "Songbook", "Arcade", "Hyperlink"}) {
        pages.emplace(std::string(kind) + "~LinkOfTheWeek",
                      std::pair{"TheVellum/" + std::string(kind) + "/" + kind + "ItemOfTheWeek.tbl",
                                "the rows are read with ReadTableFlag, which fails on a missing "
                                "file"});
    }
    return pages;
}

// Pages that, saved over a missing file, open on other rows than they saved.
const std::map<std::string, std::string>& ReopensOtherwise() {
    static const std::map<std::string, std::string> pages = {
        {"Security~ProfileRules~Rules",
         "the messages and redirects are saved as empty sub-tables, and the list reader shows an "
         "empty sub-table with the rows of the table behind it"},
    };
    return pages;
}

// Pages that open over one missing file with a value their SAVE refuses to write: by page, the
// file, the message SAVE shows instead, and the reason.
struct Refusal {
    std::string file;
    std::string message;
    std::string reason;
};
const std::map<std::string, Refusal>& SaveRefusedWithoutFile() {
    static const std::map<std::string, Refusal> pages = {
        {"Games~Hangman",
         {"Games/Hangman/HangmanSettings.tbl",
          "message: Hidden Character required: A Hint Character is required -> OK",
          "the hint box shows empty without the file, and SAVE refuses an empty hint"}},
    };
    return pages;
}

// A settings file's path below the settings folder, as the tree lists it.
std::string TreePath(const std::string& file) {
    std::string path = file;
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

// The keys a file names, at any depth: every line that starts with tabs and a key, without the
// blanks the readers trim from it.
std::set<std::string> Keys(const std::string& text) {
    std::set<std::string> keys;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const size_t start = line.find_first_not_of('\t');
        const size_t equals = line.find(" = ");
        if (start == 0 || start == std::string::npos || equals == std::string::npos) continue;
        std::string key = line.substr(start, equals - start);
        key.erase(key.find_last_not_of(' ') + 1);
        keys.insert(key);
    }
    return keys;
}

// The start of a key's line as the page writes it: its own name for the key, where it has one.
std::string PageLine(const store::FileSchema& file, const store::Field& field) {
    const auto form = file.pageForm.lines.find(field.key);
    const bool named = form != file.pageForm.lines.end() && !form->second.name.empty();
    return "\t" + (named ? form->second.name : field.key) + " = ";
}

class Sweep : public ::testing::TestWithParam<store::ProgramVersion>, protected test::PageHarness {
  protected:
    Sweep()
        : PageHarness(GetParam()),
          openFails_(OpenFails(GetParam())),
          saveFails_(SaveFails(GetParam())),
          saveDiffers_(SaveDiffers(GetParam())),
          savesBroken_(SavesBroken()),
          openFailsWithoutFile_(OpenFailsWithoutFile()) {
        BuildFor(4);
        built_ = Tree();
        // Restore() puts the built tree back behind the open page's back, as another program
        // would; the page's next SAVE may then ask whether to overwrite, and the sweep says Yes,
        // as what it checks is what that SAVE writes.
        host.answerUnqueued = [](const shell::Message& message) -> std::optional<shell::Answer> {
            if (message.title == "Vandrell's Quillbook: File Changed On Disk") {
                return shell::Answer::Yes;
            }
            return std::nullopt;
        };
    }

    // Every file below the settings folder, by its path, with its bytes.
    std::map<std::string, std::string> Tree() const { return hub.SettingsTree(); }

    // The files that differ from the freshly built tree, with what the page wrote.
    std::string Changes() const {
        std::string changes;
        const auto now = Tree();
        for (const auto& [path, bytes] : now) {
            const auto was = built_.find(path);
            if (was == built_.end() || was->second != bytes) changes += path + "\n";
        }
        for (const auto& [path, bytes] : built_) {
            if (!now.contains(path)) changes += path + " (gone)\n";
        }
        return changes;
    }

    // The tree as the rebuild left it, for the next page.
    void Restore() {
        for (const auto& [path, bytes] : Tree()) {
            if (!built_.contains(path)) fs::remove(hub.Settings() / path);
        }
        for (const auto& [path, bytes] : built_)
            hub.WriteSetting(path, bytes);
    }

    // The toolbar's handler, as a click would run it, whether or not SAVE is enabled: a clean
    // page can't be saved by the user, but what it would write is the point here.
    static void Press(shell::Page& page, const std::string& button) {
        static_cast<shell::Toolbar*>(page.Find("tlbFormToolbar"))->onButtonClick(button);
    }

    // Why each changed table file fails to load in Lua, by path; empty when all load.
    std::string Unloadable() const {
        std::string failures;
        const auto now = Tree();
        for (const auto& [path, bytes] : now) {
            const auto was = built_.find(path);
            if (!path.ends_with(".tbl") || (was != built_.end() && was->second == bytes)) continue;
            cli::LuaTables lua;
            const std::string reason = lua.Load(hub.Settings() / path);
            if (!reason.empty()) failures += path + ": " + reason + "\n";
        }
        return failures;
    }

    // Each file's identity on disk: a save replaces the file, so a new one marks a file written.
    std::map<std::string, ino_t> Inodes() const {
        std::map<std::string, ino_t> inodes;
        for (const auto& [path, bytes] : Tree()) {
            struct stat info {};
            if (::stat((hub.Settings() / path).c_str(), &info) == 0) inodes[path] = info.st_ino;
        }
        return inodes;
    }

    // The first change a user could make: a check box flipped, else a list row ticked.
    static void MakeOneChange(shell::Page& page) {
        for (const auto& control : page.Controls()) {
            if (control->Kind() == shell::ControlKind::Check && control->Enabled()) {
                auto& box = static_cast<shell::CheckBox&>(*control);
                box.UserSetValue(1 - box.Value());
                return;
            }
        }
        for (const auto& control : page.Controls()) {
            if (control->Kind() != shell::ControlKind::List) continue;
            auto& list = static_cast<shell::ListControl&>(*control);
            if (list.Count() > 0 && list.UserCheck(1, !list.Row(1).checked)) return;
        }
    }

    std::map<std::string, std::string> built_;
    const std::map<std::string, std::string> openFails_;
    const std::map<std::string, std::string> saveFails_;
    const std::map<std::string, std::string> saveDiffers_;
    const std::map<std::string, std::string> savesBroken_;
    const std::map<std::string, std::pair<std::string, std::string>> openFailsWithoutFile_;
};

// "Major5", "Major6".
std::string MajorName(const ::testing::TestParamInfo<store::ProgramVersion>& param) {
    return "Major" + std::to_string(param.param.major);
}

INSTANTIATE_TEST_SUITE_P(Versions, Sweep, ::testing::Values(kFive, kSix), MajorName);

TEST_P(Sweep, EveryPageOpensCleanAndSavesWhatItReadOrWhatTheRebuildWrites) {
    ASSERT_FALSE(registry.Keys().empty());
    for (const std::string& key : registry.Keys()) {
        SCOPED_TRACE(key);
        if (openFails_.contains(key)) {
            EXPECT_THROW(container.Open(key), store::FatalError) << openFails_.at(key);
            EXPECT_EQ(container.Find(key), nullptr);
            EXPECT_EQ(Changes(), "");
            continue;
        }
        shell::Page* page = container.Open(key);
        ASSERT_NE(page, nullptr);
        EXPECT_FALSE(page->SaveRequired());

        if (saveFails_.contains(key)) {
            EXPECT_THROW(Press(*page, "SAVE"), store::FatalError) << saveFails_.at(key);
            EXPECT_EQ(Changes(), "");
            EXPECT_TRUE(container.Close(*page));
            continue;
        }
        Press(*page, "SAVE");
        const std::string saved = Changes();
        if (!savesBroken_.contains(key)) {
            EXPECT_EQ(Unloadable(), "");
        }
        if (saveDiffers_.contains(key)) {
            EXPECT_NE(saved, "") << "listed as differing: " << saveDiffers_.at(key);
        } else {
            EXPECT_EQ(saved, "");
        }
        Restore();

        if (page->FormToolbar().Find("RESTORE") != nullptr) {
            host.QueueAnswer(shell::Answer::OK);
            Press(*page, "RESTORE");
            EXPECT_TRUE(page->SaveRequired());
            Press(*page, "SAVE");
            const std::string restored = Changes();
            if (!savesBroken_.contains(key)) {
                EXPECT_EQ(Unloadable(), "");
            }
            if (RestoreDiffers().contains(key) || saveDiffers_.contains(key)) {
                EXPECT_NE(restored, "");
            } else {
                EXPECT_EQ(restored, "");
            }
            Restore();
        }
        EXPECT_TRUE(container.Close(*page));
    }
    EXPECT_TRUE(host.Unused().empty());
}

// An empty value is no value: a number whose key the file lacks shows its default, and the page
// saves that, never a key with nothing behind it.
TEST_P(Sweep, ANumberTheFileLacksShowsItsDefaultAndSavesIt) {
    size_t numbers = 0;
    for (const std::string& key : registry.Keys()) {
        if (openFails_.contains(key) || saveFails_.contains(key) || savesBroken_.contains(key))
            continue;
        // The numbers the page writes, by what its save over the built tree holds.
        shell::Page* page = container.Open(key);
        ASSERT_NE(page, nullptr) << key;
        Press(*page, "SAVE");
        struct Written {
            std::string path;
            const store::FileSchema* file;
            const store::Field* field;
        };
        std::vector<Written> written;
        for (const store::FileSchema* file : page->Files()) {
            const std::string path = TreePath(file->file);
            if (!built_.contains(path)) continue;
            const std::set<std::string> keys = Keys(hub.ReadSetting(path));
            for (const store::Field& field : file->fields) {
                // A number with no default of its own has none to take.
                if (field.kind == store::FieldKind::Number && !field.defaultValue.empty() &&
                    keys.contains(field.key)) {
                    written.push_back({path, file, &field});
                }
            }
        }
        ASSERT_TRUE(container.Close(*page));
        Restore();

        for (const auto& [path, file, field] : written) {
            SCOPED_TRACE(key + ": " + path + ": " + field->key);
            ++numbers;
            // The builder's line, which the file now lacks, and the page's.
            const std::string line = "\t" + field->key + " = ";
            std::string lacking;
            std::istringstream lines(built_.at(path));
            for (std::string each; std::getline(lines, each);) {
                if (!each.starts_with(line)) lacking += each + "\n";
            }
            hub.WriteSetting(path, lacking);
            page = container.Open(key);
            Press(*page, "SAVE");
            EXPECT_NE(
                hub.ReadSetting(path).find(PageLine(*file, *field) + field->defaultValue + ","),
                std::string::npos)
                << hub.ReadSetting(path);
            EXPECT_TRUE(container.Close(*page));
            Restore();
        }
    }
    EXPECT_GT(numbers, 10u);
}

// A hub owner who deletes a settings file to start again: the page opens over nothing, takes a
// change and saves every table and key its writer lists, in a file Lua loads, and opens again
// on what it saved.
TEST_P(Sweep, APageSavedOverItsMissingFilesWritesThemWhole) {
    size_t saved = 0;
    for (const std::string& key : registry.Keys()) {
        if (openFails_.contains(key) || saveFails_.contains(key)) continue;
        SCOPED_TRACE(key);
        shell::Page* page = container.Open(key);
        ASSERT_NE(page, nullptr);
        // The keys each file of the page's declaration must hold, whatever the file held: the
        // bound fields and sub-tables; a list of the file's own rows lists only what it holds.
        std::map<std::string, std::set<std::string>> listed;
        for (const store::FileSchema* file : page->Files()) {
            auto& keys = listed[TreePath(file->file)];
            for (const std::string& bound : page->BoundKeys(*file)) {
                if (bound == file->table) continue;
                // A row of a sub-table ("tSub.bRow") needs the sub-table and its row.
                for (size_t from = 0, dot = 0; dot != std::string::npos; from = dot + 1) {
                    dot = bound.find('.', from);
                    keys.insert(bound.substr(from, dot - from));
                }
            }
        }
        const auto before = Inodes();
        Press(*page, "SAVE");
        std::set<std::string> written;
        for (const auto& [path, inode] : Inodes()) {
            if (!before.contains(path) || before.at(path) != inode) {
                written.insert(path);
            }
        }
        EXPECT_TRUE(container.Close(*page));
        Restore();

        for (const std::string& path : written) {
            SCOPED_TRACE(path);
            ++saved;
            fs::remove(hub.Settings() / path);
            if (const auto fails = openFailsWithoutFile_.find(key);
                fails != openFailsWithoutFile_.end() && fails->second.first == path) {
                EXPECT_THROW(container.Open(key), store::FatalError) << fails->second.second;
                Restore();
                continue;
            }
            if (const auto refused = SaveRefusedWithoutFile().find(key);
                refused != SaveRefusedWithoutFile().end() && refused->second.file == path) {
                page = container.Open(key);
                MakeOneChange(*page);
                host.QueueAnswer(shell::Answer::OK);
                Press(*page, "SAVE");
                EXPECT_FALSE(fs::exists(hub.Settings() / path)) << refused->second.reason;
                EXPECT_NE(transcript.str().find(refused->second.message), std::string::npos)
                    << refused->second.reason;
                EXPECT_FALSE(page->SaveRequired());
                EXPECT_TRUE(container.Close(*page));
                Restore();
                continue;
            }
            page = container.Open(key);
            MakeOneChange(*page);
            Press(*page, "SAVE");
            ASSERT_TRUE(fs::exists(hub.Settings() / path));
            const std::string text = hub.ReadSetting(path);
            if (const auto keys = listed.find(path); keys != listed.end()) {
                const std::set<std::string> held = Keys(text);
                for (const std::string& wanted : keys->second)
                    EXPECT_TRUE(held.contains(wanted)) << wanted << " is missing:\n" << text;
            }
            if (path.ends_with(".tbl") && !savesBroken_.contains(key)) {
                cli::LuaTables lua;
                EXPECT_EQ(lua.Load(hub.Settings() / path), "") << text;
            }
            EXPECT_TRUE(container.Close(*page));
            // Opened again, the page shows what it saved: saving it changes nothing.
            page = container.Open(key);
            Press(*page, "SAVE");
            if (ReopensOtherwise().contains(key)) {
                EXPECT_NE(hub.ReadSetting(path), text) << ReopensOtherwise().at(key);
            } else {
                EXPECT_EQ(hub.ReadSetting(path), text);
            }
            EXPECT_TRUE(container.Close(*page));
            Restore();
        }
    }
    EXPECT_GT(saved, 40u);
    EXPECT_TRUE(host.Unused().empty());
}

// Every function the navigation can open has its page: the archive's, the e-mail page and,
// given hub sessions, the portal among them. The one page beyond them is the jokes page that
// keeps the list and its settings together, which no node reaches.
TEST(Registration, EveryFunctionKeyHasItsPage) {
    shell::PageRegistry registry;
    pages::PageServices services;
    services.hubLink = [](const hublink::PortalValues& values) {
        return std::make_unique<hublink::RecordingSessions>(values, std::cout);
    };
    pages::RegisterAllPages(registry, services);
    const auto& functions = shell::FunctionKeys();
    std::set<std::string> unreached(registry.Keys().begin(), registry.Keys().end());
    for (const std::string& key : functions) {
        EXPECT_EQ(unreached.erase(key), 1u) << key << " has no page";
    }
    EXPECT_EQ(unreached, std::set<std::string>{"UserActions~Jokes"});
}

// A page's declaration is checked when it is registered, at start: a control bound to a key its
// file doesn't have is an error then, not an empty field when the page opens.
TEST(Declarations, AKeyTheFileLacksIsRefusedAtRegistration) {
    static const store::FileSchema file{
        "Security\\X\\XSettings.tbl", "tXSettings", {{store::FieldKind::Flag, "bNotify", "1"}}};
    using namespace shell::decl;
    static const shell::PageDecl mistyped{
        .key = "Security~X",
        .caption = "Security ~ X",
        .size = {3400, 6075},
        .files = {&file},
        .controls = {Check("chkCheckBox(0)", "bNotfy", "Notify")}};
    shell::PageRegistry registry;
    try {
        registry.Register(mistyped);
        FAIL() << "a mistyped key was registered";
    } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(),
                     "Security~X: chkCheckBox(0) is bound to bNotfy, which "
                     "Security\\X\\XSettings.tbl doesn't have");
    }
    EXPECT_FALSE(registry.Has("Security~X"));
}

TEST(Declarations, AControlThatCantShowItsFieldIsRefused) {
    static const store::FileSchema file{
        "Security\\X\\XSettings.tbl", "tXSettings", {{store::FieldKind::Number, "iTime", "10"}}};
    using namespace shell::decl;
    // A number without a range has no up-down.
    static const shell::PageDecl spin{.key = "Security~X",
                                      .caption = "Security ~ X",
                                      .size = {3400, 6075},
                                      .files = {&file},
                                      .controls = {Spin("txtUpDown", "updUpDown", "iTime")}};
    shell::PageRegistry registry;
    EXPECT_THROW(registry.Register(spin), std::logic_error);
}

}  // namespace
}  // namespace qb::pages
