// The insults: a standard insult is a whole sentence; the script makes a medieval insult of one
// word from each of three lists and a modern one from each of four. The three pages are one page
// with one, three or four lists.

#include "families/lists/string_lists.h"
#include "pages/useractions/useractions.h"

namespace qb::pages {
namespace {

using RestoreRows = shell::Quirks::RestoreRows;

constexpr const char* kFolder = "UserActions\\Insults\\";
constexpr const char* kNumbers[] = {"One", "Two", "Three", "Four"};
constexpr const char* kMenus[] = {"First", "Second", "Third", "Fourth"};

// List `index` (from 0) of a page of word lists: sub-table tOne, lvwInsultsOne, tlbInsultsOne, and
// the pop-up menu of its place on the page. RESTORE empties it.
StringList WordList(int index, ListWords words, std::string sample) {
    const std::string number = kNumbers[index];
    return {.key = "t" + number,
            .list = "lvwInsults" + number,
            .toolbar = "tlbInsults" + number,
            .columns = {{"column1", "Insult", 2000}},
            .words = std::move(words),
            .restore = RestoreRows::Empty,
            .sample = {{"", std::move(sample)}},
            .popup = std::string("mnu") + kMenus[index],
            .methods = std::string("gMenu") + kMenus[index],
            .deleteKey = true};
}

const ListPageParts& Standard() {
    return MakeListPage(
        {.key = "UserActions~Insults~Standard",
         .caption = "UserActions ~ Insults ~ Standard",
         .size = {7000, 6075},
         .file = std::string(kFolder) + "Insults.tbl",
         .table = "tInsults",
         .lists = {{.key = "tInsults",
                    .list = "lvwInsults",
                    .toolbar = "tlbListview",
                    .columns = {{"column1", "Insult", 6000}},
                    .words = WordsOf("Insult"),
                    .restore = RestoreRows::Empty,
                    .sample = {{"",
                                "*** !username! Says 'People can't say that !victim! has "
                                "absolutely nothing! After all, they have inferiority!'"}},
                    .deleteKey = true}}});
}

const ListPageParts& Medieval() {
    const ListWords words = WordsOf("Medieval Insult");
    StringList three = WordList(2, words, "hedge-pig");
    // The builder has always spelt the third list so; the page reads and writes tThree, so a new
    // file's third list shows empty until the page saves it.
    three.builderName = "tThreee";
    return MakeListPage(
        {.key = "UserActions~Insults~Medieval",
         .caption = "UserActions ~ Insults ~ Medieval",
         .size = {7500, 6075},
         .file = std::string(kFolder) + "InsultsMedieval.tbl",
         .table = "tInsultsMedieval",
         .lists = {WordList(0, words, "artless"), WordList(1, words, "boil brained"), three}});
}

const ListPageParts& Modern() {
    const ListWords words = WordsOf("Modern Insult");
    // Two of the modern lists have always spoken of medieval insults.
    ListWords one = words;
    one.confirm.text = "Do you really want to delete this Medieval Insult?";
    ListWords three = words;
    three.floor.text = "There must be a minimum of one Medieval Insult";
    StringList four = WordList(3, words, "kangaroo vomit");
    // RESTORE has always left the fourth list alone.
    four.restore = RestoreRows::Keep;
    return MakeListPage({.key = "UserActions~Insults~Modern",
                         .caption = "UserActions ~ Insults ~ Modern",
                         .size = {9600, 6075},
                         .file = std::string(kFolder) + "InsultsModern.tbl",
                         .table = "tInsultsModern",
                         .lists = {WordList(0, one, "amorphous"), WordList(1, words, "blob of"),
                                   WordList(2, three, "fly-covered"), four}});
}

}  // namespace

std::vector<shell::PageEntry> InsultPages() {
    return {Standard().page, Medieval().page, Modern().page};
}

std::vector<store::BuildStep> InsultBuilds() {
    return {Standard().file, Medieval().file, Modern().file};
}

}  // namespace qb::pages
