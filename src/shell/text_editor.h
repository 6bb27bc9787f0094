#pragma once
// frmGlobalTextEdit: one page that edits one text file, such as an ascii picture or a message
// file, for the page that opens it. Its frame has no RESTORE, and DISCARD clears the dirty mark.

#include <functional>
#include <memory>
#include <string>

#include "shell/page.h"

namespace qb::shell {

// The key the editor has among the open pages; no node of the tree has it.
inline constexpr const char* kTextEditorKey = "Global~TextEdit";

// `file` is relative to the settings folder, or a path with a drive. Mode "N" is a new file,
// which isn't read and doesn't exist before the first SAVE.
// `saved` is told after each SAVE.
std::unique_ptr<Page> MakeTextEditor(PageContext& context, const std::string& file,
                                     const std::string& mode, std::function<void()> saved = {});

}  // namespace qb::shell
