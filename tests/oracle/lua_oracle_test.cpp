// The scripts load every table file with Lua. After a fresh start with a rebuild, each .tbl file
// of the tree must load in a real Lua 5.4, and every value Lua sees must be what the manager's own
// one-key reader returns for it: the writers and the readers agree with the language the files
// are written in.

#include <gtest/gtest.h>

#include <filesystem>
#include <lua.hpp>
#include <map>
#include <memory>
#include <sstream>

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

// Files the scripts' own design leaves unloadable by Lua, by name, with the reason. None of the
// files written so far is.
const std::map<std::string, std::string> kNotLua = {};

struct Mismatch {
    std::string file;
    std::string table;
    std::string key;
    std::string lua;
    std::string reader;
};

class LuaFile {
  public:
    LuaFile() : state_(luaL_newstate(), lua_close) {}

    // Runs the file with a table of its own as its globals; empty on success, else Lua's error.
    std::string Load(const fs::path& path) {
        lua_State* L = state_.get();
        if (luaL_loadfile(L, path.c_str()) != LUA_OK) return lua_tostring(L, -1);
        lua_newtable(L);
        lua_pushvalue(L, -1);
        lua_setupvalue(L, -3, 1);  // the chunk's _ENV
        lua_insert(L, -2);
        if (lua_pcall(L, 0, 0, 0) != LUA_OK) return lua_tostring(L, -1);
        return {};
    }

    // Calls `visit(table, key, value)` for every value below the globals, where `table` is the
    // name of the innermost table holding it. Values that are neither strings nor whole numbers
    // are reported with a value of "(type name)".
    template <class Visit>
    void EachValue(const Visit& visit) {
        Walk(lua_gettop(state_.get()), "", visit);
    }

  private:
    static std::string KeyText(lua_State* L, int index) {
        if (lua_isinteger(L, index)) return std::to_string(lua_tointeger(L, index));
        if (lua_type(L, index) == LUA_TSTRING) {
            size_t length = 0;
            const char* text = lua_tolstring(L, index, &length);
            return std::string(text, length);
        }
        return std::string("(") + luaL_typename(L, index) + ")";
    }

    template <class Visit>
    void Walk(int table, const std::string& name, const Visit& visit) {
        lua_State* L = state_.get();
        lua_pushnil(L);
        while (lua_next(L, table) != 0) {
            const std::string key = KeyText(L, -2);
            if (lua_istable(L, -1)) {
                Walk(lua_gettop(L), key, visit);
            } else {
                visit(name, key, KeyText(L, -1));
            }
            lua_pop(L, 1);
        }
    }

    std::unique_ptr<lua_State, void (*)(lua_State*)> state_;
};

TEST(LuaOracle, EveryTableFileOfAFreshStartLoadsInLuaWithTheReadersValues) {
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
    shell::Container container(files, host, registry);
    ASSERT_EQ(shell::RunStartChecks(container, builders), shell::StartResult::Ready);
    pages::LoadNews(files, container.News(), nullptr);

    int loaded = 0;
    int compared = 0;
    std::vector<Mismatch> mismatches;
    for (const auto& entry : fs::recursive_directory_iterator(hub.Scripts())) {
        if (entry.path().extension() != ".tbl") continue;
        const std::string name = entry.path().filename().string();
        LuaFile lua;
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
                const std::string read = files.ReadTableValue(scriptPath, key, table);
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
