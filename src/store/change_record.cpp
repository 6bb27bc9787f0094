#include "store/change_record.h"

#include "store/cp1252.h"
#include "store/paths.h"

namespace qb::store {
namespace fs = std::filesystem;

namespace {

std::string Folded(const fs::path& path) {
    return FoldCase(Utf8ToCp1252(path.lexically_normal().string()));
}

}  // namespace

const ChangeRecord::File* ChangeRecord::Find(const fs::path& path) const {
    const auto found = files_.find(Folded(path));
    return found == files_.end() ? nullptr : &found->second;
}

bool ChangeRecord::HasFolder(const fs::path& path) const {
    return folders_.contains(Folded(path));
}

fs::path ChangeRecord::Spell(const fs::path& path) const {
    if (folders_.empty() && files_.empty()) return path;
    fs::path spelled;
    for (const fs::path& part : path) {
        spelled /= part;
        const std::string folded = Folded(spelled);
        if (const auto folder = folders_.find(folded); folder != folders_.end()) {
            spelled = folder->second;
        } else if (const auto file = files_.find(folded); file != files_.end()) {
            spelled = file->second.path;
        }
    }
    return spelled;
}

std::vector<std::string> ChangeRecord::NamesIn(const fs::path& folder) const {
    std::vector<std::string> names;
    const std::string parent = Folded(folder);
    for (const auto& [folded, file] : files_) {
        if (Folded(file.path.parent_path()) == parent) {
            names.push_back(Utf8ToCp1252(file.path.filename().string()));
        }
    }
    return names;
}

void ChangeRecord::Replace(const fs::path& path, std::string bytes) {
    File& file = files_[Folded(path)];
    if (file.path.empty()) file.path = path;
    file.bytes = std::move(bytes);
}

void ChangeRecord::MakeFolder(const fs::path& path) {
    folders_.try_emplace(Folded(path), path);
}

std::vector<ChangeRecord::File> ChangeRecord::Files() const {
    std::vector<File> files;
    for (const auto& [folded, file] : files_)
        files.push_back(file);
    return files;
}

std::vector<fs::path> ChangeRecord::Folders() const {
    std::vector<fs::path> folders;
    for (const auto& [folded, folder] : folders_)
        folders.push_back(folder);
    return folders;
}

}  // namespace qb::store
