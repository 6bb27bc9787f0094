#pragma once
// The images of the toolbars and the window, drawn at start-up so that they match one another and
// need no files: one small set in one palette, looked up by the image key a button carries.

#include <QIcon>
#include <string>

namespace qb::gui {

// The image of `imageKey` in the image list `imageList` ("imlSidebar", "imlToolbarListview"...):
// the same key may stand for another image in another list (CLOSE closes the tree's nodes in the
// side bar, and discards a question list's changes). An unknown key has no image.
QIcon IconFor(const std::string& imageKey, const std::string& imageList = {});

// The window's icon, named by the edition in capitals ("QUILLBOOK").
QIcon WindowIcon();

}  // namespace qb::gui
