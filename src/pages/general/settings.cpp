#include "pages/general/general.h"

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

}  // namespace qb::pages
