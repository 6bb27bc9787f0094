// Quotations, proverbs, limericks and jokes: four functions that say a line from a list, on request
// or at intervals. Each keeps the same three settings and a list of strings, and differs only in
// its words, its default delay and the sample a new list holds.

#include "families/lists/string_lists.h"
#include "pages/useractions/useractions.h"

namespace qb::pages {
namespace {

struct TextList {
    std::string noun;    // "Quotation": the list's words and the settings file's name
    std::string plural;  // "Quotations": the folder, the list file and the list's column
    std::string delay;   // the default of iDelay
    std::string sample;  // the row a new list holds
    std::string delayCaption = "Delay";
};

const std::vector<TextList>& Members() {
    static const std::vector<TextList> members = {
        {"Quotation", "Quotations", "89",
         "Experience has taught me that you feel better on a flight if you avoid chicken fat in "
         "plastic sauce.|  -- A weary traveller"},
        {"Proverb", "Proverbs", "73",
         "A lie can be halfway around the world before the truth gets its boots on"},
        {"Limerick", "Limericks", "93",
         "There once was an old man of Esser,|Whose knowledge grew lesser and lesser,|It at last "
         "grew so small|He knew nothing at all,|And now he's a college professor."},
        {"Joke", "Jokes", "103", "Cannot find REALITY.SYS. Universe halted", "Joke Delay"},
    };
    return members;
}

const TextList& Member(const std::string& plural) {
    for (const TextList& member : Members()) {
        if (member.plural == plural) return member;
    }
    throw std::logic_error("no text list " + plural);
}

std::string Folder(const TextList& member) {
    return "UserActions\\" + member.plural + "\\";
}

// The settings of every member, made once: pages and builders point at them.
const std::vector<store::FileSchema>& SettingsSchemas() {
    static const std::vector<store::FileSchema> schemas = [] {
        using store::FieldKind;
        std::vector<store::FileSchema> all;
        for (const TextList& member : Members()) {
            all.push_back({.file = Folder(member) + member.noun + "Settings.tbl",
                           .table = "t" + member.noun + "Settings",
                           .fields = {{FieldKind::Flag, "bManualControl", "0"},
                                      {FieldKind::Flag, "bSendToAll", "1"},
                                      {.kind = FieldKind::Number,
                                       .key = "iDelay",
                                       .defaultValue = member.delay,
                                       .range = store::Range{10, 720}}},
                           // The builder has always put the delay between the two flags.
                           .builderForm = {.order = {"bManualControl", "iDelay", "bSendToAll"}}});
        }
        return all;
    }();
    return schemas;
}

const store::FileSchema& SettingsOf(const TextList& member) {
    return SettingsSchemas().at(static_cast<size_t>(&member - Members().data()));
}

std::vector<shell::ControlDecl> SettingsControls(const TextList& member) {
    using namespace shell::decl;
    return {Check("chkManualControl", "bManualControl", "Manual Control"),
            Check("chkSendToAll", "bSendToAll", "Send To All"),
            Label("lblDelay", member.delayCaption), Spin("txtDelay", "updDelay", "iDelay")};
}

shell::Layout SettingsLayout() {
    using namespace shell;
    return Row({Column({Item("chkManualControl"), Item("chkSendToAll")}),
                Row({Item("lblDelay"), Item("txtDelay"), Item("updDelay")}), Stretch()});
}

StringList ListOf(const TextList& member) {
    return {.key = "t" + member.plural,
            .list = "lvw" + member.plural,
            .toolbar = "tlb" + member.plural,
            .columns = {{"column1", member.plural, 6000}},
            .words = WordsOf(member.noun),
            .sample = {{"", member.sample}},
            .selectFirstAfterDelete = true,
            .deleteKey = true};
}

// The page of a member: its settings above its list. The jokes' page of this kind has no node in
// the tree; the jokes are kept in joke files, and the settings have a page of their own.
const ListPageParts& PartsOf(const TextList& member) {
    return MakeListPage({.key = "UserActions~" + member.plural,
                         .caption = "User Actions ~ " + member.plural,
                         .size = {7000, 6075},
                         .file = Folder(member) + member.plural + ".tbl",
                         .table = "t" + member.plural,
                         .lists = {ListOf(member)},
                         .settings = &SettingsOf(member),
                         .settingsControls = SettingsControls(member),
                         .settingsLayout = SettingsLayout()});
}

}  // namespace

std::vector<shell::PageEntry> TextListPages() {
    std::vector<shell::PageEntry> pages;
    for (const TextList& member : Members())
        pages.emplace_back(PartsOf(member).page);
    return pages;
}

const shell::PageDecl& JokeSettingsPage() {
    static const shell::PageDecl page{
        .key = "UserActions~Jokes~Settings",
        .caption = "User Actions ~ Jokes",
        .size = {3400, 2400},
        .files = {&SettingsOf(Member("Jokes"))},
        .controls = SettingsControls(Member("Jokes")),
        .layout = shell::Column({SettingsLayout(), shell::Stretch()}),
        .discardClears = true,
    };
    return page;
}

std::vector<store::BuildStep> TextListBuilds() {
    std::vector<store::BuildStep> steps;
    for (const TextList& member : Members()) {
        steps.emplace_back(SettingsOf(member));
        steps.emplace_back(PartsOf(member).file);
    }
    return steps;
}

}  // namespace qb::pages
