#include "pages/security/security.h"

#include "shell/page.h"
#include "shell/profile_checks.h"

namespace qb::pages {
namespace {

using shell::ListControl;
using shell::Page;
using shell::PageContext;

// The command spy: one check list of the profiles that see the command spy's reports.
class CommandSpyPage : public Page {
  public:
    explicit CommandSpyPage(PageContext& context)
        : Page(context, "Security~CommandSpy", "Security ~ CommandSpy", {3400, 6075}),
          lvwEnabledProfiles(Add<ListControl>("lvwEnabledProfiles", true)) {
        lvwEnabledProfiles.SetWidth(3400 - 180 - 2 * 120);
        lvwEnabledProfiles.onItemCheck = [this](int) { MarkDirty(); };
        SetBody(shell::Column({shell::Item(lvwEnabledProfiles)}));
    }

  private:
    void Setup() override { shell::AddProfileColumn(lvwEnabledProfiles, "Enabled Profiles"); }

    void LoadSettings() override {
        const auto& schema = CommandSpySettingsSchema();
        shell::LoadProfileChecks(lvwEnabledProfiles, context_, schema.file,
                                 schema.fields.front().key);
    }

    void RestoreDefaults() override {
        shell::ResetProfileChecks(lvwEnabledProfiles, context_.profiles);
    }

    void SaveSettings() override {
        const auto& schema = CommandSpySettingsSchema();
        const std::string text = store::RenderTable(
            schema, context_.profiles.LastNumber(), [this](const store::Field&, int profile) {
                return shell::ProfileCheckValue(lvwEnabledProfiles, profile);
            });
        context_.files.WriteTextFile(schema.file, text);
    }

    ListControl& lvwEnabledProfiles;
};

}  // namespace

const store::FileSchema& CommandSpySettingsSchema() {
    static const store::FileSchema schema{
        "Security\\CommandSpy\\CommandSpySettings.tbl",
        "tCommandSpySettings",
        {{store::FieldKind::ProfileChecks, "tEnabledProfiles", "0"}},
    };
    return schema;
}

const store::FileSchema& CommandSpyUsersSchema() {
    static const store::FileSchema schema{
        "Security\\CommandSpy\\CommandSpyUsers.tbl", "tCommandSpyUsers", {}, store::FileKind::Data};
    return schema;
}

void RegisterSpyBuilders(store::BuilderRegistry& builders) {
    builders.Add("Security\\CommandSpy", CommandSpySettingsSchema());
    builders.Add("Security\\CommandSpy", CommandSpyUsersSchema());
}

void RegisterSpyPages(shell::PageRegistry& registry) {
    registry.Register("Security~CommandSpy", [](PageContext& context) {
        return std::make_unique<CommandSpyPage>(context);
    });
}

}  // namespace qb::pages
