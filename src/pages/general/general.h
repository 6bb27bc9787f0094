#pragma once
// The general functions: the scripts' global settings, their bots, the function switches and the
// news. Their files, the builders of those files and their pages.

#include "shell/page_registry.h"
#include "store/builders.h"
#include "store/schema.h"

namespace qb::pages {

// The general functions' pages.
void RegisterGeneralPages(shell::PageRegistry& registry);
// The general area's builders, folder by folder.
void RegisterGeneralBuilders(store::BuilderRegistry& builders);

// General\Globals\GeneralSettings.tbl: prefix, border and right click name (settings.cpp).
const store::FileSchema& GeneralSettingsSchema();
const shell::PageDecl& GeneralSettingsPage();

// General\Bots\BotSettings.tbl: who is told of bot changes (bots.cpp).
const store::FileSchema& BotSettingsSchema();
// frmGeneralBots: both bot files (Bots.tbl has no builder).
shell::PageEntry BotsPage();

}  // namespace qb::pages
