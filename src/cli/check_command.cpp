#include <algorithm>
#include <cctype>
#include <filesystem>
#include <iostream>

#include "cli/commands.h"
#include "cli/lua_tables.h"
#include "store/cp1252.h"
#include "store/paths.h"

namespace qb::cli {
namespace {

namespace fs = std::filesystem;

bool IsTableFile(const fs::path& path) {
    std::string extension = path.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension == ".tbl";
}

// The file as the settings tree names it: "General\Globals\Version.tbl".
std::string TreeName(const fs::path& file, const fs::path& root) {
    std::string name = file.lexically_relative(root).string();
    std::replace(name.begin(), name.end(), '/', '\\');
    return name;
}

}  // namespace

int CheckCommand(Session& session, const Arguments& /*none: the parser allows none*/) {
    const auto root = store::ToNativePath(session.files.SettingsFolder());
    std::error_code error;
    if (!root || !fs::is_directory(*root, error)) {
        std::cerr << "quillbook-cli: there is no settings tree at "
                  << (root ? root->string() : session.files.SettingsFolder())
                  << "; run quillbook-cli start first\n";
        return 2;
    }
    std::vector<fs::path> tables;
    for (auto it = fs::recursive_directory_iterator(*root, error);
         it != fs::recursive_directory_iterator(); it.increment(error)) {
        if (it->is_regular_file(error) && IsTableFile(it->path())) tables.push_back(it->path());
    }
    std::sort(tables.begin(), tables.end());

    int failed = 0;
    for (const auto& table : tables) {
        LuaTables lua;
        const std::string reason = lua.Load(table);
        if (reason.empty()) continue;
        ++failed;
        const bool line = std::isdigit(static_cast<unsigned char>(reason.front())) != 0;
        // Lua quotes the file's own bytes, which are Windows-1252.
        std::cout << TreeName(table, *root) << (line ? ":" : ": ") << store::Cp1252ToUtf8(reason)
                  << "\n";
    }
    std::cout << tables.size() << " table files checked; " << failed
              << (failed == 1 ? " fails" : " fail") << " to load in Lua\n";
    return failed == 0 ? 0 : 1;
}

}  // namespace qb::cli
