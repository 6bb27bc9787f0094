// The scripts load every table file with Lua. After a fresh start with a rebuild, each .tbl file
// of the tree must load in a real Lua 5.4, and every value Lua sees must be what the manager's own
// one-key reader returns for it: the writers and the readers agree with the language the files
// are written in.

#include <gtest/gtest.h>

#include <charconv>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <sstream>

#include "cli/lua_tables.h"
#include "pages/general/news.h"
#include "pages/pages.h"
#include "shell/scripted_host.h"
#include "shell/startup.h"
#include "store/paths.h"
#include "support/temp_hub.h"

namespace qb {
namespace {

namespace fs = std::filesystem;
using test::Crlf;

// Files the scripts' own design leaves unloadable by Lua, by name, with the reason.
const std::map<std::string, std::string> kNotLua = {
    {"ProfileRuleSettings.tbl",
     "the builder asks its defaults for the check delay under a key they lack and writes "
     "\"iCheckDelay = ,\""},
};

// A row of a plain list of strings is Lua's entry at its place in the list, and the pages read
// it as a row of the list's table, not by a key: the row at that place, where `key` is one.
std::optional<std::string> ListRow(store::TableFiles& files, const std::string& file,
                                   const std::string& table, const std::string& key) {
    size_t place = 0;
    const auto [end, error] = std::from_chars(key.data(), key.data() + key.size(), place);
    if (error != std::errc() || end != key.data() + key.size() || place == 0) return std::nullopt;
    // The list reader has no drive test: its path is below the settings folder.
    const std::string settings = files.SettingsFolder() + "\\";
    if (!file.starts_with(settings)) return std::nullopt;
    const auto rows = files.LoadTableRows(file.substr(settings.size()), "", table, false, false);
    if (place > rows.size()) return std::nullopt;
    return rows[place - 1].text;
}

struct Mismatch {
    std::string file;
    std::string table;
    std::string key;
    std::string lua;
    std::string reader;
};

// As the build's version and as 6.0.0, whose start builds the archive as well.
class LuaOracle : public ::testing::TestWithParam<store::ProgramVersion> {};

// "Major5", "Major6".
std::string MajorName(const ::testing::TestParamInfo<store::ProgramVersion>& param) {
    return "Major" + std::to_string(param.param.major);
}

INSTANTIATE_TEST_SUITE_P(Versions, LuaOracle,
                         ::testing::Values(store::kBuildVersion, store::ProgramVersion{6, 0, 0}),
                         MajorName);

TEST_P(LuaOracle, EveryTableFileOfAFreshStartLoadsInLuaWithTheReadersValues) {
    test::TempHub hub;
    hub.Write("cfg/Profiles.xml", Crlf({"<Profiles>", "  <Name>Master</Name>", "  <Name>Op</Name>",
                                        "  <Name>R\xE9gular</Name>", "</Profiles>"}));
    hub.Write(
        "scripts/Vandrell's Scripts/News/News.tbl",
        Crlf({"tNews = {", "\t[4] = \"2024-05-06|Quillbook \xBB 5.3|Story: all new|2\",", "}"}));
    store::TableFiles files(hub.ProgramFolder());
    std::ostringstream transcript;
    shell::ScriptedHost host(transcript);
    host.QueueAnswer(shell::Answer::OK);
    shell::PageRegistry registry;
    pages::RegisterAllPages(registry);
    store::BuilderRegistry builders;
    pages::RegisterAllBuilders(builders);
    shell::Container container(files, host, registry, GetParam());
    ASSERT_EQ(shell::RunStartChecks(container, builders), shell::StartResult::Ready);
    pages::LoadNews(files, container.News(), nullptr);

    int loaded = 0;
    int compared = 0;
    std::vector<Mismatch> mismatches;
    for (const auto& entry : fs::recursive_directory_iterator(hub.Scripts())) {
        if (entry.path().extension() != ".tbl") continue;
        const std::string name = entry.path().filename().string();
        cli::LuaTables lua;
        const std::string error = lua.Load(entry.path());
        if (kNotLua.contains(name)) {
            EXPECT_NE(error, "") << name << " is listed as unloadable but loads";
            continue;
        }
        ASSERT_EQ(error, "") << entry.path();
        ++loaded;
        const std::string scriptPath = store::ToScriptPath(entry.path());
        lua.EachValue(
            [&](const std::string& table, const std::string& key, const std::string& value) {
                ++compared;
                std::string read = files.ReadTableValue(scriptPath, key, table);
                if (read != value) read = ListRow(files, scriptPath, table, key).value_or(read);
                if (read != value) mismatches.push_back({name, table, key, value, read});
            });
    }
    for (const auto& m : mismatches) {
        ADD_FAILURE() << m.file << ": " << m.table << "." << m.key << " is \"" << m.lua
                      << "\" to Lua and \"" << m.reader << "\" to the reader";
    }
    EXPECT_GT(loaded, 0);
    EXPECT_GT(compared, loaded);
}

}  // namespace
}  // namespace qb
