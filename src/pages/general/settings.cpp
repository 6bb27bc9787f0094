#include "pages/general/general.h"

#include <array>

#include "shell/page.h"
#include "store/text_rules.h"

namespace qb::pages {

const store::FileSchema& GeneralSettingsSchema() {
    using store::FieldKind;
    static const store::FileSchema schema = [] {
        store::FileSchema file{
            "General\\Globals\\GeneralSettings.tbl",
            "tGeneralSettings",
            {
                {FieldKind::Flag, "bAllowAllPrefixes", "1"},
                {FieldKind::Flag, "bFlatRC", "0"},
                {FieldKind::Flag, "bUnregRCEnable", "1"},
                {FieldKind::String, "sBorder", "\xBB\xAB"},  // the two bytes of a border in 1252
                {FieldKind::String, "sRightClickName", ""},
                {FieldKind::String, "sPrefix", "+"},
            },
        };
        // The builder has always written its own order; the scripts read by key.
        file.builderForm.order = {"bAllowAllPrefixes", "sPrefix", "sRightClickName",
                                  "sBorder",           "bFlatRC", "bUnregRCEnable"};
        return file;
    }();
    return schema;
}

void RegisterSettingsBuilders(store::BuilderRegistry& builders) {
    builders.Add("General\\Globals", GeneralSettingsSchema());
}

// ---- The page --------------------------------------------------------------------------------

namespace {

using shell::CheckBox;
using shell::ComboBox;
using shell::Page;
using shell::PageContext;
using shell::TextBox;

// The prefixes a command may start with, in the combo's order.
constexpr std::array<const char*, 9> kPrefixes = {"+", "-", "!", "#", "$", "\xA3", "?", "~", "="};

constexpr std::array<const char*, 3> kFlags = {"bAllowAllPrefixes", "bFlatRC", "bUnregRCEnable"};
constexpr std::array<const char*, 3> kFlagCaptions = {"Allow All Prefixes", "Flattened RC",
                                                      "Enable RC for Unreg"};

int CheckValue(std::string_view flag) {
    return store::IsNumericallyOne(flag) ? 1 : 0;
}

// frmGeneralGeneral: the look of the scripts' output and of their right click menus.
class GeneralSettingsPage : public Page {
  public:
    explicit GeneralSettingsPage(PageContext& context)
        : Page(context, "General~Settings", "General ~ Settings", {3165, 3450}),
          chkCheckBox{&Add<CheckBox>("chkCheckBox(0)", kFlagCaptions[0]),
                      &Add<CheckBox>("chkCheckBox(1)", kFlagCaptions[1]),
                      &Add<CheckBox>("chkCheckBox(2)", kFlagCaptions[2])},
          txtBorder(Add<TextBox>("txtTextBox(0)")),
          txtRightClickName(Add<TextBox>("txtTextBox(1)")),
          cboPrefixes(Add<ComboBox>("cboPrefixes")) {
        txtBorder.SetCaption("Border");
        txtRightClickName.SetCaption("Right Click Name");
        cboPrefixes.SetCaption("Prefixes");
        for (CheckBox* check : chkCheckBox)
            check->onClick = [this] { MarkDirty(); };
        txtBorder.onChange = [this] { MarkDirty(); };
        txtRightClickName.onChange = [this] { MarkDirty(); };
        cboPrefixes.onClick = [this] { MarkDirty(); };
        SetBody(shell::Column({shell::Item(*chkCheckBox[0]), shell::Item(*chkCheckBox[1]),
                               shell::Item(*chkCheckBox[2]), shell::Item(txtBorder),
                               shell::Item(txtRightClickName), shell::Item(cboPrefixes),
                               shell::Stretch()}));
    }

  private:
    std::string Read(const char* key) {
        const auto& schema = GeneralSettingsSchema();
        return context_.files.ReadTableValue(schema.file, key, schema.table);
    }

    // A missing file leaves every box empty: the defaults come with RESTORE or a rebuild.
    void LoadSettings() override {
        for (size_t i = 0; i < kFlags.size(); ++i)
            chkCheckBox[i]->SetValue(CheckValue(Read(kFlags[i])));
        txtBorder.SetText(Read("sBorder"));
        txtRightClickName.SetText(Read("sRightClickName"));
        // A prefix the combo doesn't offer is passed over, and the combo keeps what it showed.
        const std::string shown = cboPrefixes.Text();
        cboPrefixes.ClearItems();
        for (const char* prefix : kPrefixes)
            cboPrefixes.AddItem(prefix);
        if (!cboPrefixes.SetText(Read("sPrefix"))) cboPrefixes.SetText(shown);
    }

    void RestoreDefaults() override {
        const auto& schema = GeneralSettingsSchema();
        for (size_t i = 0; i < kFlags.size(); ++i)
            chkCheckBox[i]->SetValue(CheckValue(store::DefaultOf(schema, kFlags[i])));
        txtBorder.SetText(store::DefaultOf(schema, "sBorder"));
        txtRightClickName.SetText(store::DefaultOf(schema, "sRightClickName"));
        cboPrefixes.SetText(store::DefaultOf(schema, "sPrefix"));
    }

    void SaveSettings() override {
        const auto& schema = GeneralSettingsSchema();
        const std::string text = store::RenderTable(
            schema, 0, [this](const store::Field& field, int) { return ValueOf(field.key); });
        context_.files.WriteTextFile(schema.file, text);
    }

    std::string ValueOf(const std::string& key) const {
        for (size_t i = 0; i < kFlags.size(); ++i) {
            if (key == kFlags[i]) return std::to_string(chkCheckBox[i]->Value());
        }
        if (key == "sBorder") return txtBorder.Text();
        if (key == "sRightClickName") return txtRightClickName.Text();
        return cboPrefixes.Text();
    }

    std::array<CheckBox*, 3> chkCheckBox;
    TextBox& txtBorder;
    TextBox& txtRightClickName;
    ComboBox& cboPrefixes;
};

}  // namespace

void RegisterSettingsPages(shell::PageRegistry& registry) {
    registry.Register("General~Settings", [](PageContext& context) {
        return std::make_unique<GeneralSettingsPage>(context);
    });
}

}  // namespace qb::pages
