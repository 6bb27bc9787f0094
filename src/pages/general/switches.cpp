#include "pages/general/switches.h"

#include "pages/general/switch_descriptions.h"
#include "shell/page.h"
#include "shell/table_lists.h"
#include "store/settings_tree.h"
#include "store/table_text.h"

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

// Every rebuild rewrites both files from the defaults, so a function the user switched off comes
// back on: the files have always been reset so, and hub owners expect it.
void RegisterSwitchBuilders(store::BuilderRegistry& builders) {
    builders.Add("General\\Globals", SwitchesSchema());
    builders.Add("General\\Globals", EnableRightClicksSchema());
}

// ---- The two pages ---------------------------------------------------------------------------

namespace {

using shell::ListControl;
using shell::Page;
using shell::PageContext;

// frmGeneralSwitches and frmGeneralRightClicks: one check list of the file's switches. The list
// is as long as the file: a key missing from the file has no row.
class SwitchesPage : public Page {
  public:
    SwitchesPage(PageContext& context, std::string key, std::string caption,
                 const store::FileSchema& schema)
        : Page(context, std::move(key), std::move(caption), {3400, 6075}),
          schema_(schema),
          lvwSwitches(Add<ListControl>("lvwSwitches", true)),
          ttpDescription(Add<shell::Tooltip>("ttpDescription")) {
        lvwSwitches.SetWidth(3400 - 180 - 2 * 120);
        lvwSwitches.onItemCheck = [this](int) { MarkDirty(); };
        lvwSwitches.onItemClick = [this](int row) { Describe(row); };
        // A discard here leaves the page clean, unlike the settings pages.
        SetDiscardClears(true);
        SetBody(shell::Column({shell::Item(lvwSwitches)}));
    }

  private:
    void Setup() override {
        lvwSwitches.AddColumn("column1", "Functions", lvwSwitches.Width() - 350);
    }

    void LoadSettings() override {
        lvwSwitches.Clear();
        shell::LoadTableRows(context_.files, schema_.file, lvwSwitches, "=", schema_.table, true,
                             false, false);
        for (int row = 1; row <= lvwSwitches.Count(); ++row)
            lvwSwitches.SetText(row, lvwSwitches.Row(row).text.substr(1));
    }

    // Every row ticked, the two functions that are off by default too: the page doesn't ask the
    // defaults, and the whole list stays ticked until saved.
    void RestoreDefaults() override {
        for (int row = 1; row <= lvwSwitches.Count(); ++row)
            lvwSwitches.SetChecked(row, true);
    }

    void SaveSettings() override {
        store::TableText text(schema_.table + " = {");
        for (const auto& row : lvwSwitches.Rows())
            text.Line(1, "b" + row.text + " = " + (row.checked ? "1" : "0") + ",");
        context_.files.WriteTextFile(schema_.file, text.End());
    }

    // A click on a row tells what the function does, where the table knows it.
    void Describe(int row) {
        ttpDescription.Destroy();
        const std::string description = SwitchDescription(lvwSwitches.Row(row).text);
        if (description.empty()) return;
        ttpDescription.SetTitle(lvwSwitches.Row(row).text);
        ttpDescription.SetTipText(description);
        ttpDescription.Create(lvwSwitches);
    }

    const store::FileSchema& schema_;
    ListControl& lvwSwitches;
    shell::Tooltip& ttpDescription;
};

}  // namespace

void RegisterSwitchPages(shell::PageRegistry& registry) {
    registry.Register("General~Switches", [](PageContext& context) {
        return std::make_unique<SwitchesPage>(context, "General~Switches", "General ~ Switches",
                                              SwitchesSchema());
    });
    registry.Register("General~EnableRightClicks", [](PageContext& context) {
        return std::make_unique<SwitchesPage>(context, "General~EnableRightClicks",
                                              "General ~ Right Clicks", EnableRightClicksSchema());
    });
}

}  // namespace qb::pages
