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
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace qb::store {

// The folders a run of resolutions has listed, each listed once. A name that isn't on the disk as
// given is looked for ignoring letter case, which takes a listing of its folder: a rebuild that
// makes a thousand files in one folder would list it a thousand times, and a file's write lists
// it once more for a cut-off write's temporaries. The owner tells the cache of every file and
// folder it makes or removes; nothing else may change the folders while the cache is in use.
class FolderListings {
  public:
    // The entry of `folder` that `name` (UTF-8) resolves to: the name itself where the folder
    // holds it, else the first entry in the folder's listing order whose name is the same letter
    // case aside. Nothing when none is, or the folder can't be listed.
    std::optional<std::string> Match(const std::filesystem::path& folder, const std::string& name);
    // The entries of `folder` that look like a write's leftover temporary.
    const std::vector<std::string>& Temporaries(const std::filesystem::path& folder);

    // `path` was made: a file, or a folder (`madeEmpty`: a folder known to hold nothing).
    void Added(const std::filesystem::path& path, bool madeEmpty = false);
    // `path` was removed.
    void Removed(const std::filesystem::path& path);
    void Clear() { folders_.clear(); }

  private:
    struct Listing {
        std::unordered_set<std::string> names;
        // By the folded Windows-1252 name, the first entry in listing order that has it.
        std::unordered_map<std::string, std::string> byFolded;
        std::vector<std::string> temporaries;
    };
    Listing& Of(const std::filesystem::path& folder);
    std::unordered_map<std::string, Listing> folders_;  // by the folder's Linux path
};

// An absolute Linux path in the scripts' form: "/srv/hub/scripts" becomes "Z:\srv\hub\scripts".
// File names are UTF-8 on Linux and Windows-1252 in the core.
std::string ToScriptPath(const std::filesystem::path& native);

// The Linux path of a script path. The drive letter stands for the root. Each component is matched
// against what exists ignoring letter case, as the scripts' home system does, and takes the
// existing entry's name; from the first component that matches nothing on, names are used as given.
// A text without a drive ("\\server\share", "Settings\x.tbl") has no Linux path.
// With `listings`, each folder is listed at most once for all the resolutions that share them.
std::optional<std::filesystem::path> ToNativePath(std::string_view scriptPath,
                                                  FolderListings* listings = nullptr);

// Whether a file is what a cut-off write leaves: ".<name>.XXXXXX" beside the file it was for.
bool IsWriteTemporary(const std::filesystem::path& file);

// Characters 2 and 3 are ":\": the text is used as it stands instead of below a folder.
bool HasDrive(std::string_view file);

// The program folder cut behind the backslash before its last component ("Z:\hub\scripts" gives
// "Z:\hub\"). The walk starts at the last but one character, so a trailing backslash doesn't count.
// Empty when the walk runs out of characters, as in a drive root.
std::string HubFolderOf(std::string_view programFolder);

// Whether a Linux folder holds the script pack's folder ("Vandrell's Quillbook"), in any letter
// case: what makes it a hub's scripts folder the manager can open.
bool HoldsScriptPack(const std::filesystem::path& scripts);

// Letter case folded the way the scripts' home system compares file names (Windows-1252 letters).
std::string FoldCase(std::string_view cp1252);

// The upper case form of a Windows-1252 text, letter for letter ("English" gives "ENGLISH").
std::string UpperCase(std::string_view cp1252);

}  // namespace qb::store
