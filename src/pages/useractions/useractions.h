#pragma once
// The user actions: what users can call up in the hub, from jokes and insults to spells and ascii
// pictures. Their pages and the descriptions of their files.

#include <vector>

#include "families/quiz/question_files.h"
#include "shell/page_registry.h"
#include "store/builders.h"
#include "store/schema.h"

namespace qb::pages {

void RegisterUserActionPages(shell::PageRegistry& registry);
void RegisterUserActionBuilders(store::BuilderRegistry& builders);

// Quotations, proverbs, limericks and jokes, each its settings above its list; the jokes'
// settings on a page of their own (text_lists.cpp).
std::vector<shell::PageEntry> TextListPages();
const shell::PageDecl& JokeSettingsPage();
std::vector<store::BuildStep> TextListBuilds();

// The joke files, a member of the question file page (joke_files.cpp).
const QuestionFiles& JokeFiles();
// UserActions\Jokes\JokeFiles.tbl: the default joke file and the others; no builder makes it.
const store::FileSchema& JokeFilesSchema();

// The standard, medieval and modern insults (insults.cpp).
std::vector<shell::PageEntry> InsultPages();
std::vector<store::BuildStep> InsultBuilds();

// Attacks and DoAction (attacks.cpp).
std::vector<shell::PageEntry> AttackPages();
std::vector<store::BuildStep> AttackBuilds();

// The spells' and nick spells' settings and books; the spells' wards (spells.cpp).
std::vector<shell::PageEntry> SpellPages();
std::vector<store::BuildStep> SpellBuilds();

// The ascii pictures (ascii.cpp).
shell::PageEntry AsciiPage();
// UserActions\Ascii\AsciiSettings.tbl: the flags, who may show pictures and who has them on the
// right click menu.
const store::FileSchema& AsciiSettingsSchema();
// UserActions\Ascii\AsciiIndex.tbl: the pictures, numbered.
const store::FileSchema& AsciiIndexSchema();

// The calculator (calculator.cpp).
const shell::PageDecl& CalculatorPage();
// UserActions\Calculator\CalculatorSettings.tbl: the profiles that may use it.
const store::FileSchema& CalculatorSettingsSchema();

}  // namespace qb::pages
