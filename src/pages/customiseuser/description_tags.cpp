// The description tags: the tag the scripts put into the description of each profile's users,
// and the profiles whose users get one. A tag belongs to a profile number, not to a name: a
// profile renamed at the hub keeps its tag.

#include "pages/customiseuser/customiseuser.h"
#include "shell/page_frame.h"
#include "shell/profile_checks.h"
#include "shell/table_lists.h"
#include "store/table_text.h"

namespace qb::pages {

namespace {

constexpr const char* kTags = "tProfiles";

// A profile's tag until the user gives it another.
std::string DefaultTag(const std::string& profile) {
    return "[" + profile + "]";
}

// One row a profile, two tabs in: [-1] = "[Unregistered]",
void TagRow(store::TableText& text, const std::string& number, const std::string& tag) {
    text.Line(2, "[" + number + "] = \"" + tag + "\",");
}

}  // namespace

// bNotifyOps is the scripts' alone: no page shows it, and a page's save leaves it out until the
// next rebuild writes it again.
const store::FileSchema& DescriptionTagSettingsSchema() {
    static const store::FileSchema schema{
        "CustomiseUser\\DescriptionTags\\DescriptionTagSettings.tbl",
        "tDescriptionTagSettings",
        {{store::FieldKind::ProfileChecks, "tEnabledProfiles", "0"},
         {store::FieldKind::Flag, "bNotifyOps", "1"}},
    };
    return schema;
}

// The builder's order is its own: bNotifyOps, the tags, then the profiles.
void BuildDescriptionTagSettings(store::BuildRun& run) {
    const store::FileSchema& schema = DescriptionTagSettingsSchema();
    const std::string path = store::BuilderReadPath(run.files, schema);
    const store::TableFiles::ReadScope scope(run.files);
    const auto old = [&](std::string_view key, std::string_view table) {
        return run.files.ReadTableValue(path, key, table);
    };
    store::TableText text(schema.table + " = {");
    const std::string notify = old("bNotifyOps", schema.table);
    text.Bare(1, "bNotifyOps", notify.empty() ? store::DefaultOf(schema, "bNotifyOps") : notify);
    text.Open(1, kTags);
    for (int profile = -1; profile <= run.lastProfile; ++profile) {
        const std::string number = std::to_string(profile);
        const std::string tag = old(number, kTags);
        TagRow(text, number, tag.empty() ? DefaultTag(run.ProfileName(profile)) : tag);
    }
    text.Close(1);
    text.Open(1, "tEnabledProfiles");
    for (int profile = -1; profile <= run.lastProfile; ++profile) {
        const std::string value = old(std::to_string(profile), "tEnabledProfiles");
        text.Row(2, profile, value.empty() ? "0" : value);
    }
    text.Close(1);
    run.files.WriteTextFile(schema.file, text.End());
}

const store::FileSchema& DescriptionTagsSchema() {
    static const store::FileSchema schema{"CustomiseUser\\DescriptionTags\\DescriptionTags.tbl",
                                          "tDescriptionTags",
                                          {},
                                          store::FileKind::Data};
    return schema;
}

namespace {

using shell::ListControl;

constexpr int kTag = 2;  // lvwDescriptionTags: the profile is the row's text, its tag column 2

class frmCustomiseUserDescriptionTags : public shell::Page {
  public:
    static const shell::PageDecl& Decl() {
        using namespace shell::decl;
        constexpr int kWidth = shell::FillWidth(4400);
        static const shell::PageDecl page{
            .key = "CustomiseUser~DescriptionTags",
            .caption = "CustomiseUser ~ DescriptionTags",
            .size = {4400, 7200},
            .controls = {Label("lblLabel(0)", "Enabled Profiles"),
                         In(DescriptionTagSettingsSchema(),
                            ProfileChecks("lvwEnabledProfiles", "tEnabledProfiles",
                                          "Enabled Profiles", kWidth)),
                         Label("lblLabel(1)", "Description Tags"),
                         Toolbar("tlbListview", {shell::SetupEditToolbar}),
                         List("lvwDescriptionTags", kWidth,
                              {{"Profile", "Profile", 1800}, {"Tag", "Tag", kWidth - 1800 - 350}})},
            // The edit's caption is the one its dialog has always had.
            .editors = {{.list = "lvwDescriptionTags",
                         .toolbar = "tlbListview",
                         .columns = {kTag},
                         .edit = shell::RowDialogDecl{.kind = shell::DialogKind::OneFields,
                                                      .caption = "Edit File",
                                                      .labels = {"{row} Tag"},
                                                      .required = 1}}},
        };
        return page;
    }

    explicit frmCustomiseUserDescriptionTags(shell::PageContext& context)
        : Page(context, Decl()), lvwDescriptionTags(Get<ListControl>("lvwDescriptionTags")) {}

  private:
    // A row per tag the file holds, shown by the name of the profile with its number.
    void LoadSettings() override {
        Page::LoadSettings();
        lvwDescriptionTags.Clear();
        const store::FileSchema& file = DescriptionTagSettingsSchema();
        shell::LoadTableRows(context_.files, file.file, lvwDescriptionTags, "=", kTags, false,
                             false, false);
        for (int row = 1; row <= lvwDescriptionTags.Count(); ++row) {
            const std::string number = lvwDescriptionTags.Row(row).text;
            lvwDescriptionTags.SetRowTag(row, number);
            lvwDescriptionTags.SetText(row, ProfileName(number));
        }
    }

    void RestoreDefaults() override {
        Page::RestoreDefaults();
        lvwDescriptionTags.Clear();
        const store::ProfileList& profiles = context_.profiles;
        for (int row = 1; row <= profiles.Count(); ++row) {
            const std::string number = std::to_string(row - 2);
            lvwDescriptionTags.Append(number + "ID", profiles.Text(row));
            lvwDescriptionTags.SetRowTag(row, number);
            lvwDescriptionTags.SetCell(row, kTag, DefaultTag(profiles.Text(row)));
        }
    }

    // The profiles first, then the tags, each under the number it was read with.
    void SaveSettings() override {
        const store::FileSchema& file = DescriptionTagSettingsSchema();
        store::TableText text(file.table + " = {");
        text.Open(1, "tEnabledProfiles");
        const ListControl& profiles = Get<ListControl>("lvwEnabledProfiles");
        for (int profile = -1; profile <= context_.profiles.LastNumber(); ++profile)
            text.Row(2, profile, shell::ProfileCheckValue(profiles, profile));
        text.Close(1);
        text.Open(1, kTags);
        for (const shell::ListRow& row : lvwDescriptionTags.Rows())
            TagRow(text, row.tag, row.cells.empty() ? std::string() : row.cells.front());
        text.Close(1);
        context_.files.WriteTextFile(file.file, text.End());
    }

    // A number the hub has no profile for shows as it stands.
    std::string ProfileName(const std::string& number) const {
        const store::ProfileList& profiles = context_.profiles;
        for (int row = 1; row <= profiles.Count(); ++row) {
            if (std::to_string(row - 2) == number) return profiles.Text(row);
        }
        return number;
    }

    ListControl& lvwDescriptionTags;
};

}  // namespace

shell::PageEntry DescriptionTagsPage() {
    return shell::PageOf<frmCustomiseUserDescriptionTags>();
}

}  // namespace qb::pages
