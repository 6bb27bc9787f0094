#include "shell/startup.h"

#include "store/backups.h"
#include "store/change_report.h"
#include "store/fatal_error.h"
#include "store/paths.h"

namespace qb::shell {
namespace {

// Sends the files' writes to a record while it lives.
class Recording {
  public:
    Recording(store::TableFiles& files, store::ChangeRecord& record) : files_(files) {
        files_.RecordWrites(&record);
    }
    ~Recording() { files_.RecordWrites(nullptr); }
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

  private:
    store::TableFiles& files_;
};

// The folders the scripts share with other packs come first, and stay even when the user then
// cancels the rebuild.
// The tree as it was, kept before the rebuild touches it. A backup that can't be written stops
// the start before any settings file is replaced.
void BackUpTree(Container& container) {
    const auto settings = store::ToNativePath(container.Files().SettingsFolder());
    if (!settings) return;
    const std::string version =
        container.Files().ReadTableValue(VersionSchema().file, "sVersion", "");
    try {
        store::BackUpSettings(*settings, version);
    } catch (const store::FatalError& error) {
        throw store::FatalError(error.Path(),
                                error.Reason() +
                                    " (the backup of the settings before the rebuild; nothing was "
                                    "rebuilt and every settings file is as it was)");
    }
}

void BuildSharedFolders(Container& container, const store::BuilderRegistry& builders) {
    store::BuildRun shared{container.Files(), container.Profiles().LastNumber(),
                           container.Version()};
    builders.BuildArea(store::Area::SharedFolders, shared);
}

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
    // One scope for the whole rebuild: nothing but the rebuild changes the tree while it runs,
    // so each folder is listed once however many files it gets.
    const store::TableFiles::ReadScope scope(run.files);
    const std::string settings = run.files.SettingsFolder();
    if (!run.files.FolderExists(settings)) run.files.CreateFolder(settings);
    for (store::Area area : RebuildOrder())
        builders.BuildArea(area, run);
    const std::string version = store::VersionText(run.version);
    run.files.WriteTextFile(
        VersionSchema().file,
        store::RenderTable(VersionSchema(), 0, [&](const store::Field&, int) { return version; }));
}

std::optional<SettingsChange> DueRebuild(Container& container) {
    if (container.Files().ReadTableValue(VersionSchema().file, "sVersion", "") !=
        store::VersionText(container.Version())) {
        return SettingsChange::Version;
    }
    if (container.Profiles().Count() > container.OldProfiles().Count()) {
        return SettingsChange::Profiles;
    }
    return std::nullopt;
}

void ApplyRebuild(Container& container, const store::BuilderRegistry& builders) {
    store::BuildRun run{.files = container.Files(),
                        .lastProfile = container.Profiles().LastNumber(),
                        .version = container.Version(),
                        .profileNames = container.Profiles().Names()};
    RebuildSettings(run, builders);
    if (!container.ProfileText().empty()) {
        container.Files().WriteTextFile(kProfileCopySetting, container.ProfileText());
    }
}

void RecordRebuild(Container& container, const store::BuilderRegistry& builders,
                   store::ChangeRecord& record) {
    Recording recording(container.Files(), record);
    ApplyRebuild(container, builders);
}

StartResult RunStartChecks(Container& container, const store::BuilderRegistry& builders) {
    container.LoadProfiles();
    BuildSharedFolders(container, builders);
    const std::optional<SettingsChange> change = DueRebuild(container);
    if (!change) return StartResult::Ready;
    Message question = ChangePrompt(*change);
    question.showChanges = [&container, &builders] {
        store::ChangeRecord record;
        RecordRebuild(container, builders, record);
        return DescribeRecord(container, record);
    };
    if (container.GetHost().ShowMessage(question) != Answer::OK) return StartResult::Cancelled;
    BackUpTree(container);
    ApplyRebuild(container, builders);
    return StartResult::Ready;
}

std::optional<SettingsChange> RecordStart(Container& container,
                                          const store::BuilderRegistry& builders,
                                          store::ChangeRecord& record) {
    container.LoadProfiles();
    Recording recording(container.Files(), record);
    BuildSharedFolders(container, builders);
    const std::optional<SettingsChange> change = DueRebuild(container);
    if (change) ApplyRebuild(container, builders);
    return change;
}

std::string DescribeRecord(Container& container, const store::ChangeRecord& record) {
    const auto settings = store::ToNativePath(container.Files().SettingsFolder());
    return store::DescribeChanges(record, settings ? *settings : std::filesystem::path());
}

}  // namespace qb::shell
