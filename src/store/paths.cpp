#include "store/paths.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>
#include <vector>

#include "store/cp1252.h"
#include "store/edition.h"

namespace qb::store {
namespace fs = std::filesystem;

namespace {

unsigned char FoldByte(unsigned char b) {
    if (b >= 'A' && b <= 'Z') return static_cast<unsigned char>(b + 32);
    if (b >= 0xC0 && b <= 0xDE && b != 0xD7) return static_cast<unsigned char>(b + 32);
    switch (b) {
        case 0x8A:  // S caron
        case 0x8C:  // OE
        case 0x8E:  // Z caron
            return static_cast<unsigned char>(b + 16);
        case 0x9F:  // Y diaeresis
            return 0xFF;
        default:
            return b;
    }
}

unsigned char UpperByte(unsigned char b) {
    if (b >= 'a' && b <= 'z') return static_cast<unsigned char>(b - 32);
    if (b >= 0xE0 && b <= 0xFE && b != 0xF7) return static_cast<unsigned char>(b - 32);
    switch (b) {
        case 0x9A:  // s caron
        case 0x9C:  // oe
        case 0x9E:  // z caron
            return static_cast<unsigned char>(b - 16);
        case 0xFF:  // y diaeresis
            return 0x9F;
        default:
            return b;
    }
}

std::vector<std::string> Components(std::string_view text) {
    std::vector<std::string> parts;
    std::string current;
    for (char c : text) {
        if (c == '\\' || c == '/') {
            if (!current.empty()) parts.push_back(std::move(current));
            current.clear();
        } else {
            current.push_back(c);
        }
    }
    if (!current.empty()) parts.push_back(std::move(current));
    return parts;
}

}  // namespace

std::string FoldCase(std::string_view cp1252) {
    std::string out(cp1252);
    for (char& c : out)
        c = static_cast<char>(FoldByte(static_cast<unsigned char>(c)));
    return out;
}

std::string UpperCase(std::string_view cp1252) {
    std::string out(cp1252);
    for (char& c : out)
        c = static_cast<char>(UpperByte(static_cast<unsigned char>(c)));
    return out;
}

std::string ToScriptPath(const fs::path& native) {
    std::string out = "Z:";
    const std::string text = Utf8ToCp1252(native.lexically_normal().string());
    for (char c : text)
        out.push_back(c == '/' ? '\\' : c);
    if (out.size() > 3 && out.back() == '\\') out.pop_back();
    if (out == "Z:") out += '\\';
    return out;
}

bool HasDrive(std::string_view file) {
    return file.size() >= 3 && file[1] == ':' && file[2] == '\\';
}

std::optional<fs::path> ToNativePath(std::string_view scriptPath, FolderListings* listings) {
    if (!HasDrive(scriptPath)) return std::nullopt;
    fs::path native = "/";
    bool matching = true;  // whether the folder so far exists, so that listing it makes sense
    for (const std::string& part : Components(scriptPath.substr(3))) {
        const std::string name = Cp1252ToUtf8(part);
        if (part == "." || part == "..") {
            native /= name;
            continue;
        }
        if (matching && listings != nullptr) {
            const std::optional<std::string> entry = listings->Match(native, name);
            matching = entry.has_value();
            native /= matching ? *entry : name;
            continue;
        }
        std::error_code error;
        if (matching && !fs::exists(native / name, error)) {
            matching = false;
            const std::string wanted = FoldCase(part);
            for (const auto& entry : fs::directory_iterator(native, error)) {
                const std::string entryName = entry.path().filename().string();
                if (FoldCase(Utf8ToCp1252(entryName)) == wanted) {
                    native /= entryName;
                    matching = true;
                    break;
                }
            }
            if (matching) continue;
        }
        native /= name;
    }
    return native;
}

bool IsWriteTemporary(const fs::path& file) {
    const std::string name = file.filename().string();
    const size_t dot = name.size() >= 8 ? name.size() - 7 : std::string::npos;
    if (dot == std::string::npos || name[0] != '.' || name[dot] != '.') return false;
    return std::all_of(name.end() - 6, name.end(),
                       [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; });
}

FolderListings::Listing& FolderListings::Of(const fs::path& folder) {
    const auto [at, added] = folders_.try_emplace(folder.native());
    if (!added) return at->second;
    Listing& listing = at->second;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        std::string name = entry.path().filename().string();
        if (IsWriteTemporary(entry.path())) listing.temporaries.push_back(name);
        listing.byFolded.try_emplace(FoldCase(Utf8ToCp1252(name)), name);
        listing.names.insert(std::move(name));
    }
    return listing;
}

std::optional<std::string> FolderListings::Match(const fs::path& folder, const std::string& name) {
    Listing& listing = Of(folder);
    if (listing.names.contains(name)) return name;
    const auto found = listing.byFolded.find(FoldCase(Utf8ToCp1252(name)));
    if (found == listing.byFolded.end()) return std::nullopt;
    return found->second;
}

const std::vector<std::string>& FolderListings::Temporaries(const fs::path& folder) {
    return Of(folder).temporaries;
}

void FolderListings::Added(const fs::path& path, bool madeEmpty) {
    const auto parent = folders_.find(path.parent_path().native());
    if (parent != folders_.end()) {
        std::string name = path.filename().string();
        parent->second.byFolded.try_emplace(FoldCase(Utf8ToCp1252(name)), name);
        parent->second.names.insert(std::move(name));
    }
    if (madeEmpty) folders_.try_emplace(path.native());
}

void FolderListings::Removed(const fs::path& path) {
    // Another entry may now be the first of its folded name: the folder is listed again.
    folders_.erase(path.parent_path().native());
    folders_.erase(path.native());
}

bool HoldsScriptPack(const std::filesystem::path& scripts) {
    const std::string pack = FoldCase("Vandrell's " + std::string(kEdition));
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(scripts, error)) {
        if (entry.is_directory(error) && FoldCase(entry.path().filename().string()) == pack)
            return true;
    }
    return false;
}

std::string HubFolderOf(std::string_view programFolder) {
    if (programFolder.size() < 2) return {};
    for (size_t i = programFolder.size() - 1; i-- > 0;) {
        if (programFolder[i] == '\\') return std::string(programFolder.substr(0, i + 1));
    }
    return {};
}

}  // namespace qb::store
