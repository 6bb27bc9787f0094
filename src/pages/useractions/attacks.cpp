// Attacks, lines one user fires at another, and DoAction, a command word and the line it says:
// two pages of one list each. Their prompts have always spoken of intros.

#include "families/lists/string_lists.h"
#include "pages/useractions/useractions.h"

namespace qb::pages {
namespace {

using RestoreRows = shell::Quirks::RestoreRows;

ListWords IntroWords(std::string addTitle, std::vector<std::string> labels, std::string editTitle,
                     std::string deleteTitle) {
    return {
        .addTitle = std::move(addTitle),
        .labels = std::move(labels),
        .editTitle = std::move(editTitle),
        .floor = {"There must be a minimum of one Intro", "Cannot delete", shell::Icon::Critical},
        .confirm = {"Do you really want to delete this intro?", std::move(deleteTitle)}};
}

const ListPageParts& Attacks() {
    return MakeListPage(
        {.key = "UserActions~Attacks",
         .caption = "UserActions ~ Attacks",
         .size = {7000, 6075},
         .file = "UserActions\\Attacks\\Attacks.tbl",
         .table = "tAttacks",
         .lists = {{.key = "tAttacks",
                    .list = "lvwAttacks",
                    .toolbar = "tlbListview",
                    .columns = {{"column1", "Attack", 6000}},
                    .words = IntroWords("Add Attack", {"Attack"}, "Edit Attack", "Delete Intro?"),
                    .restore = RestoreRows::Empty,
                    .sample = {{"", "*** !username! blows !victim!'s brains out"}},
                    .deleteKey = true}}});
}

// Rows are read back split at every "=": an action holding one loses what follows it.
const ListPageParts& DoAction() {
    return MakeListPage(
        {.key = "UserActions~DoAction",
         .caption = "UserActions ~ DoAction",
         .size = {7000, 6075},
         .file = "UserActions\\DoAction\\DoAction.tbl",
         .table = "tDoAction",
         .lists = {{.key = "tDoAction",
                    .list = "lvwDoActions",
                    .toolbar = "tlbListview",
                    .columns = {{"column1", "Command", 1800}, {"column2", "Action", 4200}},
                    .words = IntroWords("Add DoAction", {"Command", "Action"}, "Edit DoAction",
                                        "Delete DoAction?"),
                    .keyed = true,
                    .restore = RestoreRows::Empty,
                    .sample = {{"beer", "*** !username! drinks an ice cold beer"}},
                    .trimValues = true,
                    .deleteKey = true}}});
}

}  // namespace

std::vector<shell::PageEntry> AttackPages() {
    return {Attacks().page, DoAction().page};
}

std::vector<store::BuildStep> AttackBuilds() {
    return {Attacks().file, DoAction().file};
}

}  // namespace qb::pages
