#include "support/temp_hub.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "store/paths.h"

namespace qb::test {
namespace fs = std::filesystem;

TempHub::TempHub() {
    std::string pattern = (fs::temp_directory_path() / "qbhub-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
    root_ = pattern;
    fs::create_directories(Settings());
    fs::create_directories(root_ / "cfg");
}

TempHub::~TempHub() {
    std::error_code ec;
    // Read-only files and folders made by a test must not stop the clean-up.
    for (const auto& entry : fs::recursive_directory_iterator(root_, ec)) {
        fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add, ec);
    }
    fs::remove_all(root_, ec);
}

fs::path TempHub::Settings() const {
    return Scripts() / "Vandrell's Quillbook" / "Settings";
}

std::string TempHub::ProgramFolder() const {
    return store::ToScriptPath(Scripts());
}

void TempHub::Write(const fs::path& relative, std::string_view bytes) const {
    const fs::path path = root_ / relative;
    fs::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out) throw std::runtime_error("can't write " + path.string());
}

void TempHub::WriteSetting(const fs::path& relative, std::string_view bytes) const {
    Write(fs::relative(Settings(), root_) / relative, bytes);
}

std::string TempHub::Read(const fs::path& relative) const {
    std::ifstream in(root_ / relative, std::ios::binary);
    if (!in) throw std::runtime_error("can't read " + (root_ / relative).string());
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

std::string TempHub::ReadSetting(const fs::path& relative) const {
    return Read(fs::relative(Settings(), root_) / relative);
}

std::map<std::string, std::string> TempHub::SettingsTree(const fs::path& below) const {
    std::map<std::string, std::string> tree;
    for (const auto& entry : fs::recursive_directory_iterator(Settings() / below)) {
        if (!entry.is_regular_file()) continue;
        tree[fs::relative(entry.path(), Settings()).string()] =
            Read(fs::relative(entry.path(), root_));
    }
    return tree;
}

std::string Crlf(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (std::string_view line : lines) {
        text += line;
        text += "\r\n";
    }
    return text;
}

std::string ProfilesXml(int count) {
    std::string xml = "<Profiles>\r\n";
    for (int i = 0; i < count; ++i)
        xml += "<Name>P" + std::to_string(i) + "</Name>\r\n";
    return xml + "</Profiles>\r\n";
}

}  // namespace qb::test
