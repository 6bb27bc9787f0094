#pragma once
// What a run would write, kept in memory instead of on the disk. A dry run hands TableFiles a
// record and then runs the very rebuild that would replace the files: every write lands here,
// and every read of the run sees what was recorded, so each builder meets the tree as the real
// run would have left it so far. What the dry run shows is therefore what the rebuild writes.

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace qb::store {

class ChangeRecord {
  public:
    struct File {
        std::filesystem::path path;  // spelled as it was first written
        std::string bytes;           // the whole file as the write would leave it
    };

    // The file recorded at `path`, letter case aside, or null.
    const File* Find(const std::filesystem::path& path) const;
    bool HasFolder(const std::filesystem::path& path) const;
    // `path` with each part below a recorded folder spelled as that folder was recorded: a later
    // write that names the folder in another case reaches it, as it reaches a folder on disk.
    std::filesystem::path Spell(const std::filesystem::path& path) const;
    // The names of the recorded files directly in `folder`.
    std::vector<std::string> NamesIn(const std::filesystem::path& folder) const;

    void Replace(const std::filesystem::path& path, std::string bytes);
    void MakeFolder(const std::filesystem::path& path);

    // By path, letter case aside.
    std::vector<File> Files() const;
    std::vector<std::filesystem::path> Folders() const;

  private:
    std::map<std::string, File> files_;                     // by folded path
    std::map<std::string, std::filesystem::path> folders_;  // by folded path
};

}  // namespace qb::store
