// Whisper: whether the scripts confirm a whisper to its sender.

#include "pages/communication/communication.h"

namespace qb::pages {

const store::FileSchema& WhisperSettingsSchema() {
    static const store::FileSchema schema{
        "Communication\\Whisper\\WhisperSettings.tbl",
        "tWhisperSettings",
        {{store::FieldKind::Flag, "bSendConfirmation", "1"}},
    };
    return schema;
}

const shell::PageDecl& WhisperPage() {
    using namespace shell::decl;
    static const shell::PageDecl page{
        .key = "Communication~Whisper",
        .caption = "Communication ~ Whisper",
        .size = {3400, 1800},
        .files = {&WhisperSettingsSchema()},
        .controls = {Check("chkCheckBox(0)", "bSendConfirmation", "Send confirmation")},
    };
    return page;
}

}  // namespace qb::pages
