#pragma once
// The customise user functions: the lines that announce users coming and going, the hub owner's
// own right click entries, the profiles' description tags and who may hide their share.

#include <vector>

#include "shell/page_registry.h"
#include "store/builders.h"
#include "store/schema.h"

namespace qb::pages {

void RegisterCustomiseUserPages(shell::PageRegistry& registry);
void RegisterCustomiseUserBuilders(store::BuilderRegistry& builders);

// The standard and the custom intros and outros, one page with two sets of words
// (intro_outro.cpp).
const std::vector<shell::PageDecl>& IntroOutroPages();
// CustomiseUser\IntroOutro\IntroOutroSettings.tbl: the unregistered users' intro and the
// profiles whose users are announced with the standard lines.
const store::FileSchema& IntroOutroSettingsSchema();
// Intro.tbl and Outro.tbl: the standard lines, made empty when missing.
const store::FileSchema& IntroSchema();
const store::FileSchema& OutroSchema();
// CustomIntroOutroSettings.tbl, and the named users' own lines in CustomIntro.tbl and
// CustomOutro.tbl, made empty when missing.
const store::FileSchema& CustomIntroOutroSettingsSchema();
const store::FileSchema& CustomIntroSchema();
const store::FileSchema& CustomOutroSchema();

// The ascii intros: named users greeted with an ascii picture of the Ascii folder
// (ascii_intro.cpp).
shell::PageEntry AsciiIntroPage();
const store::FileSchema& AsciiIntroSettingsSchema();
// AsciiIntro.tbl, nick to picture, and AsciiIntroIndex.tbl, the pictures the scripts may pick;
// both made empty when missing.
const store::FileSchema& AsciiIntroSchema();
const store::FileSchema& AsciiIntroIndexSchema();

// The hub owner's own right click entries (custom_right_click.cpp).
shell::PageEntry CustomRightClickPage();
// CustomiseUser\CustomRightClick\CustomRightClick.tbl: the entries, numbered in menu order;
// a rebuild only makes it when missing.
const store::FileSchema& CustomRightClickSchema();

// The profiles' description tags (description_tags.cpp).
shell::PageEntry DescriptionTagsPage();
const store::FileSchema& DescriptionTagSettingsSchema();
// Its builder: each profile's tag kept by number, or "[" + the profile's name + "]".
void BuildDescriptionTagSettings(store::BuildRun& run);
// DescriptionTags.tbl: the scripts' own list, made empty when missing.
const store::FileSchema& DescriptionTagsSchema();

// Who may hide their share (hide_share.cpp).
const shell::PageDecl& HideSharePage();
const store::FileSchema& HideShareSettingsSchema();
// HideShareUsers.tbl: the scripts' own list, made empty when missing.
const store::FileSchema& HideShareUsersSchema();

}  // namespace qb::pages
