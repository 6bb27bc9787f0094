#pragma once
// The core speaks the scripts' own paths: drive letter, backslashes, no letter case
// ("Z:\hub\scripts\Vandrell's Quillbook\Settings\General\Globals\Version.tbl"). The scripts and the
// settings files use that form, and so the readers' rules (the ":\" test, the walk back to the hub
// folder) work on it unchanged. This is the one place where such a path meets the Linux file
// system.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace qb::store {

// An absolute Linux path in the scripts' form: "/srv/hub/scripts" becomes "Z:\srv\hub\scripts".
// File names are UTF-8 on Linux and Windows-1252 in the core.
std::string ToScriptPath(const std::filesystem::path& native);

// The Linux path of a script path. The drive letter stands for the root. Each component is matched
// against what exists ignoring letter case, as the scripts' home system does, and takes the
// existing entry's name; from the first component that matches nothing on, names are used as given.
// A text without a drive ("\\server\share", "Settings\x.tbl") has no Linux path.
std::optional<std::filesystem::path> ToNativePath(std::string_view scriptPath);

// Characters 2 and 3 are ":\": the text is used as it stands instead of below a folder.
bool HasDrive(std::string_view file);

// The program folder cut behind the backslash before its last component ("Z:\hub\scripts" gives
// "Z:\hub\"). The walk starts at the last but one character, so a trailing backslash doesn't count.
// Empty when the walk runs out of characters, as in a drive root.
std::string HubFolderOf(std::string_view programFolder);

// Letter case folded the way the scripts' home system compares file names (Windows-1252 letters).
std::string FoldCase(std::string_view cp1252);

// The upper case form of a Windows-1252 text, letter for letter ("English" gives "ENGLISH").
std::string UpperCase(std::string_view cp1252);

}  // namespace qb::store
