#pragma once
// Table files as the scripts see them: run by a real Lua 5.4, each in an empty environment of its
// own, with a bound on instructions and memory so that a hostile file can't hang or exhaust us.

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

struct lua_State;

namespace qb::cli {

struct LuaBudget;

class LuaTables {
  public:
    LuaTables();
    ~LuaTables();
    LuaTables(const LuaTables&) = delete;
    LuaTables& operator=(const LuaTables&) = delete;

    // Runs the file; empty on success, else Lua's reason ("12: '}' expected near <eof>" with the
    // line first where Lua names one).
    std::string Load(const std::filesystem::path& path);

    // Calls `visit(table, key, value)` for every value of the tables the file made, where
    // `table` is the name of the innermost table holding it. Values that are neither strings nor
    // numbers are given as "(type name)".
    using Visit = std::function<void(const std::string& table, const std::string& key,
                                     const std::string& value)>;
    void EachValue(const Visit& visit);

  private:
    void Walk(int table, const std::string& name, const Visit& visit, int depth);

    std::unique_ptr<LuaBudget> budget_;
    lua_State* state_;
};

}  // namespace qb::cli
