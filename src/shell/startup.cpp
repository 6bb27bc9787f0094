#include "shell/startup.h"

namespace qb::shell {
namespace {

Message ChangePrompt(SettingsChange change) {
    if (change == SettingsChange::Version) {
        return {"New version detected. Settings must be rebuilt; continue?",
                "Vandrell's Quillbook: Version Change Detected", Buttons::OKCancel, Icon::Question};
    }
    return {"PtokaX Profile change detected. Settings must be rebuilt; continue?",
            "Vandrell's Quillbook: PtokaX Profile Change Detected", Buttons::OKCancel,
            Icon::Question};
}

}  // namespace

const std::vector<store::Area>& RebuildOrder() {
    using store::Area;
    static const std::vector<Area> order = {
        Area::CustomiseUser, Area::Communication, Area::Games,       Area::General, Area::Language,
        Area::SharedFolders, Area::Security,      Area::UserActions, Area::Archive,
    };
    return order;
}

const store::FileSchema& VersionSchema() {
    static const store::FileSchema schema{
        "General\\Globals\\Version.tbl",
        "tVersion",
        // No default: the stamp is always the version the run behaves as.
        {{store::FieldKind::String, "sVersion", ""}},
    };
    return schema;
}

void RebuildSettings(store::BuildRun& run, const store::BuilderRegistry& builders) {
    const std::string settings = run.files.SettingsFolder();
    if (!run.files.FolderExists(settings)) run.files.CreateFolder(settings);
    for (store::Area area : RebuildOrder())
        builders.BuildArea(area, run);
    const std::string version = store::VersionText(run.version);
    run.files.WriteTextFile(
        VersionSchema().file,
        store::RenderTable(VersionSchema(), 0, [&](const store::Field&, int) { return version; }));
}

CheckResult CheckSettingsVersion(SettingsChange change, Container& container,
                                 const store::BuilderRegistry& builders) {
    store::TableFiles& files = container.Files();
    if (change == SettingsChange::Version &&
        files.ReadTableValue(VersionSchema().file, "sVersion", "") ==
            store::VersionText(container.Version())) {
        return CheckResult::NotRebuilt;
    }
    if (container.GetHost().ShowMessage(ChangePrompt(change)) != Answer::OK) {
        return CheckResult::Cancelled;
    }
    store::BuildRun run{.files = files,
                        .lastProfile = container.Profiles().LastNumber(),
                        .version = container.Version(),
                        .profileNames = container.Profiles().Names()};
    RebuildSettings(run, builders);
    return CheckResult::Rebuilt;
}

StartResult RunStartChecks(Container& container, const store::BuilderRegistry& builders) {
    container.LoadProfiles();
    // The shared folders come first and stay even when the user then cancels the rebuild.
    store::BuildRun shared{container.Files(), container.Profiles().LastNumber(),
                           container.Version()};
    builders.BuildArea(store::Area::SharedFolders, shared);

    CheckResult result = CheckSettingsVersion(SettingsChange::Version, container, builders);
    if (result == CheckResult::NotRebuilt &&
        container.Profiles().Count() > container.OldProfiles().Count()) {
        result = CheckSettingsVersion(SettingsChange::Profiles, container, builders);
    }
    if (result == CheckResult::Cancelled) return StartResult::Cancelled;

    // The copy is what the next start compares the hub's profiles with.
    if (result == CheckResult::Rebuilt && !container.ProfileText().empty()) {
        container.Files().WriteTextFile(kProfileCopySetting, container.ProfileText());
    }
    return StartResult::Ready;
}

}  // namespace qb::shell
