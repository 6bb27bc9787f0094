#include "pages/general/switches.h"

#include "pages/general/switch_descriptions.h"
#include "store/settings_tree.h"

namespace qb::pages {
namespace {

store::FileSchema SwitchFile(std::string file, std::string table) {
    store::FileSchema schema{std::move(file), std::move(table), {}, store::FileKind::Reset};
    for (const SwitchKey& key : SwitchKeys()) {
        schema.fields.push_back({store::FieldKind::Flag, std::string(key.key), key.on ? "1" : "0",
                                 store::FolderEditions(key.folder)});
    }
    return schema;
}

}  // namespace

const std::vector<SwitchKey>& SwitchKeys() {
    static const std::vector<SwitchKey> keys = {
        {"bAnagrams", true, "Games\\Anagrams"},
        {"bAntiAdvertise", true, "Security\\AntiAdvertise"},
        {"bAntiVirus", true, "Security\\AntiVirus"},
        {"bAscii", true, "UserActions\\Ascii"},
        {"bAttacks", true, "UserActions\\Attacks"},
        {"bAutoCorrect", true, "Communication\\AutoCorrect"},
        {"bBadNickBlocker", true, "Security\\BadNickBlocker"},
        {"bCalculator", true, "UserActions\\Calculator"},
        {"bChatRooms", true, "Communication\\ChatRooms"},
        {"bClientChecker", true, "Security\\ClientChecker"},
        {"bClock", true, "Communication\\Clock"},
        {"bCloneBlocker", true, "Security\\CloneBlocker"},
        {"bCodeBreaker", true, "Games\\CodeBreaker"},
        {"bCommandSpy", true, "Security\\CommandSpy"},
        {"bCustomRightClick", true, "CustomiseUser\\CustomRightClick"},
        {"bDescriptionTags", true, "CustomiseUser\\DescriptionTags"},
        {"bDoAction", true, "UserActions\\DoAction"},
        {"bFlood", true, "Security\\Flood"},
        {"bGuessTheNumber", true, "Games\\GuessTheNumber"},
        {"bHangman", true, "Games\\Hangman"},
        {"bHideShare", true, "CustomiseUser\\HideShare"},
        {"bInsults", true, "UserActions\\Insults"},
        {"bIntroOutro", true, "CustomiseUser\\IntroOutro"},
        {"bJokes", true, "UserActions\\Jokes"},
        {"bKickBarChanger", true, "Communication\\KickBarChanger"},
        {"bKicks", true, "Security\\Kick"},
        {"bLimericks", true, "UserActions\\Limericks"},
        {"bMainBlock", true, "Security\\MainBlock"},
        {"bMainCleaner", true, "Security\\MainCleaner"},
        {"bMainLock", true, "Security\\MainLock"},
        {"bMassMessage", true, "Communication\\MassMessage"},
        {"bMOTD", true, "Communication\\MOTD"},
        {"bMute", true, "Communication\\Mute"},
        {"bNumbers", true, "Games\\Numbers"},
        {"bPrivateHub", true, "Security\\PrivateHub"},
        {"bProfileRules", true, "Security\\ProfileRules"},
        {"bProverbs", true, "UserActions\\Proverbs"},
        {"bPtokaXSettings", true, "Security\\PtokaX"},
        {"bQuotations", true, "UserActions\\Quotations"},
        {"bRegistration", true, "Security\\Registration"},
        {"bReport", true, "Security\\Report"},
        {"bRotatingMainMessage", true, "Communication\\RotatingMainMessage"},
        // These two stay off until the hub owner turns them on.
        {"bRotatingPrivateMessage", false, "Communication\\RotatingPrivateMessage"},
        {"bRules", true, "Security\\Rules"},
        {"bRussianRoulette", true, "Games\\RussianRoulette"},
        {"bSearchSpy", true, "Security\\SearchSpy"},
        {"bSlotMachine", true, "Games\\SlotMachine"},
        {"bSpells", true, "UserActions\\Spells"},
        {"bNickSpells", true, "UserActions\\NickSpells"},
        {"bTalk", true, "Communication\\Talk"},
        {"bThreeCardMonty", true, "Games\\ThreeCardMonty"},
        {"bTopicChanger", false, "Communication\\TopicChanger"},
        {"bTrivia", true, "Games\\Trivia"},
        {"bUserLog", true, "Security\\UserLog"},
        {"bWelcomeInfo", true, "Communication\\WelcomeInfo"},
        {"bWhisper", true, "Communication\\Whisper"},
    };
    return keys;
}

const store::FileSchema& SwitchesSchema() {
    static const store::FileSchema schema =
        SwitchFile("General\\Globals\\Switches.tbl", "tSwitches");
    return schema;
}

const store::FileSchema& EnableRightClicksSchema() {
    static const store::FileSchema schema =
        SwitchFile("General\\Globals\\EnableRightClicks.tbl", "tEnableRightClicks");
    return schema;
}

// ---- The two pages ---------------------------------------------------------------------------

namespace {

using shell::ListControl;

// frmGeneralSwitches and frmGeneralRightClicks: one check list of the file's switches. The list
// is as long as the file: a key missing from the file has no row. RESTORE ticks every row, the
// two functions that are off by default too: the page doesn't ask the defaults, and the whole
// list stays ticked until saved. A discard leaves the page clean, unlike the settings pages.
shell::PageDecl SwitchesDecl(std::string key, std::string caption, const store::FileSchema& file) {
    using namespace shell::decl;
    constexpr int kWidth = shell::FillWidth(3400);
    return {.key = std::move(key),
            .caption = std::move(caption),
            .size = {3400, 6075},
            .files = {&file},
            .controls = {With({.restoreTicksAll = true},
                              FlagRows("lvwSwitches", file.table, kWidth,
                                       {{"column1", "Functions", kWidth - 350}})),
                         Tooltip("ttpDescription")},
            .discardClears = true};
}

class frmGeneralSwitches : public shell::Page {
  public:
    frmGeneralSwitches(shell::PageContext& context, const shell::PageDecl& decl)
        : Page(context, decl),
          lvwSwitches(Get<ListControl>("lvwSwitches")),
          ttpDescription(Get<shell::Tooltip>("ttpDescription")) {
        lvwSwitches.onItemClick = [this](int row) { Describe(row); };
    }

  private:
    // A click on a row tells what the function does, where the table knows it.
    void Describe(int row) {
        ttpDescription.Destroy();
        const std::string description = SwitchDescription(lvwSwitches.Row(row).text);
        if (description.empty()) return;
        ttpDescription.SetTitle(lvwSwitches.Row(row).text);
        ttpDescription.SetTipText(description);
        ttpDescription.Create(lvwSwitches);
    }

    ListControl& lvwSwitches;
    shell::Tooltip& ttpDescription;
};

shell::PageEntry SwitchesPageOf(const shell::PageDecl& decl) {
    return {decl, [&decl](shell::PageContext& context) {
                return std::make_unique<frmGeneralSwitches>(context, decl);
            }};
}

}  // namespace

shell::PageEntry SwitchesPage() {
    static const shell::PageDecl decl =
        SwitchesDecl("General~Switches", "General ~ Switches", SwitchesSchema());
    return SwitchesPageOf(decl);
}

shell::PageEntry RightClicksPage() {
    static const shell::PageDecl decl = SwitchesDecl(
        "General~EnableRightClicks", "General ~ Right Clicks", EnableRightClicksSchema());
    return SwitchesPageOf(decl);
}

}  // namespace qb::pages
