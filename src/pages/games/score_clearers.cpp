// The users who may clear the games' scores, one list that every game shares. Each row is written
// with the value 1, whatever the file held; a name is taken only once, letter case aside, when it
// is added.

#include "families/lists/string_lists.h"
#include "pages/games/games.h"

namespace qb::pages {
namespace {

const ListPageParts& ScoreClearers() {
    ListWords words = WordsOf("User");
    words.confirm = {"Do you really want to delete this User?", "Delete Exempt User?"};
    return MakeListPage(
        {.key = "Games~ScoreClearers",
         .caption = "Games ~ Score Clearers",
         .size = {4200, 6075},
         .file = "Games\\Globals\\ScoreClearers.tbl",
         .table = "tScoreClearers",
         .lists = {{.key = "tScoreClearers",
                    .list = "lvwUsers",
                    .toolbar = "tlbListview",
                    .columns = {{"column1", "User", 2400}, {"column2", "Value", 900}},
                    .words = words,
                    .keyed = true,
                    .rowValue = "1",
                    // The list may run empty, and RESTORE empties it.
                    .floor = 0,
                    .restore = shell::Quirks::RestoreRows::Empty,
                    .popup = "",
                    .methods = "",
                    .refuseDuplicate = shell::Prompt{"Duplicate users are not permitted",
                                                     "Duplicate user", shell::Icon::None}}}});
}

}  // namespace

const store::FileSchema& ScoreClearersSchema() {
    return ScoreClearers().file;
}

const shell::PageDecl& ScoreClearersPage() {
    return ScoreClearers().page;
}

}  // namespace qb::pages
