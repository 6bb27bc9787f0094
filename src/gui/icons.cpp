#include "gui/icons.h"

#include <QApplication>
#include <QStyle>
#include <map>

namespace qb::gui {

QIcon IconFor(const std::string& imageKey) {
    static const std::map<std::string, QStyle::StandardPixmap> kIcons = {
        {"SAVE", QStyle::SP_DialogSaveButton},       {"DISCARD", QStyle::SP_DialogDiscardButton},
        {"RESTORE", QStyle::SP_BrowserReload},       {"DELETE", QStyle::SP_TrashIcon},
        {"EDIT", QStyle::SP_FileDialogContentsView}, {"EDITALL", QStyle::SP_FileDialogDetailedView},
        {"AMEND", QStyle::SP_FileDialogInfoView},    {"NEW", QStyle::SP_FileIcon},
        {"OPEN", QStyle::SP_DialogOpenButton},       {"CLOSE", QStyle::SP_DialogCloseButton},
    };
    const auto found = kIcons.find(imageKey);
    if (found == kIcons.end()) return {};
    return QApplication::style()->standardIcon(found->second);
}

}  // namespace qb::gui
