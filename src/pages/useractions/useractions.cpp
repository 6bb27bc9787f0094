#include "pages/useractions/useractions.h"

namespace qb::pages {
namespace {

void Append(std::vector<shell::PageEntry>& to, const std::vector<shell::PageEntry>& pages) {
    to.insert(to.end(), pages.begin(), pages.end());
}

void Append(std::vector<store::BuildStep>& to, const std::vector<store::BuildStep>& steps) {
    to.insert(to.end(), steps.begin(), steps.end());
}

}  // namespace

void RegisterUserActionPages(shell::PageRegistry& registry) {
    std::vector<shell::PageEntry> pages{AsciiPage(), CalculatorPage(), JokeSettingsPage(),
                                        QuestionFilesPageOf(JokeFiles())};
    Append(pages, AttackPages());
    Append(pages, InsultPages());
    Append(pages, TextListPages());
    Append(pages, SpellPages());
    registry.Register(pages);
}

// The user actions' files, in the order a rebuild writes them in each folder.
void RegisterUserActionBuilders(store::BuilderRegistry& builders) {
    std::vector<store::BuildStep> steps{AsciiSettingsSchema(), AsciiIndexSchema(),
                                        CalculatorSettingsSchema()};
    Append(steps, AttackBuilds());
    Append(steps, InsultBuilds());
    Append(steps, TextListBuilds());
    Append(steps, SpellBuilds());
    builders.Add(steps);
}

}  // namespace qb::pages
