#pragma once
// The images of the toolbars, looked up by the image key a button carries.

#include <QIcon>
#include <string>

namespace qb::gui {

QIcon IconFor(const std::string& imageKey);

}  // namespace qb::gui
