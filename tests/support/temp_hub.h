#pragma once
// A hub folder in a fresh temporary directory: <tmp>/cfg and <tmp>/scripts, with the script
// pack's Settings folder. Removed when the test ends.

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace qb::test {

class TempHub {
  public:
    TempHub();
    ~TempHub();
    TempHub(const TempHub&) = delete;
    TempHub& operator=(const TempHub&) = delete;

    const std::filesystem::path& Root() const { return root_; }
    std::filesystem::path Scripts() const { return root_ / "scripts"; }
    std::filesystem::path Settings() const;
    // The scripts folder in the form the core speaks.
    std::string ProgramFolder() const;

    // Writes `bytes` to a path relative to the hub root, making its folders.
    void Write(const std::filesystem::path& relative, std::string_view bytes) const;
    // Writes below the settings folder.
    void WriteSetting(const std::filesystem::path& relative, std::string_view bytes) const;
    std::string Read(const std::filesystem::path& relative) const;
    std::string ReadSetting(const std::filesystem::path& relative) const;
    // Every file below a folder of the settings tree (the whole tree by default), by its path
    // relative to the settings folder, with its bytes: a tree to compare whole.
    std::map<std::string, std::string> SettingsTree(const std::filesystem::path& below = {}) const;

  private:
    std::filesystem::path root_;
};

// Lines joined and closed by CRLF, as the writers make them.
std::string Crlf(std::initializer_list<std::string_view> lines);

// A cfg/Profiles.xml of `count` profiles named P0, P1 and on, for hubs of any size.
std::string ProfilesXml(int count);

}  // namespace qb::test
