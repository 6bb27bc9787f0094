#include "cli/lua_tables.h"

#include <cstdlib>
#include <fstream>
#include <lua.hpp>
#include <sstream>

namespace qb::cli {
namespace {

// A table file is a few tables of data; no sane one needs more than this.
constexpr size_t kMemoryLimit = 256u << 20;
constexpr int kInstructionsPerHook = 1 << 20;
constexpr int kHookLimit = 200;  // some 200 million instructions
constexpr int kDepthLimit = 64;

std::string Text(lua_State* L, int index) {
    if (lua_isinteger(L, index)) return std::to_string(lua_tointeger(L, index));
    if (lua_type(L, index) == LUA_TSTRING || lua_type(L, index) == LUA_TNUMBER) {
        size_t length = 0;
        const char* text = lua_tolstring(L, index, &length);
        return std::string(text, length);
    }
    return std::string("(") + luaL_typename(L, index) + ")";
}

// Lua names the chunk before the line ("tbl:12: ..."); the caller knows the file.
constexpr const char* kChunk = "tbl";

std::string WithoutChunkName(std::string message) {
    const std::string prefix = std::string(kChunk) + ":";
    if (message.starts_with(prefix)) message.erase(0, prefix.size());
    return message;
}

}  // namespace

struct LuaBudget {
    size_t used = 0;  // bytes
    int hooks = 0;    // counts of kInstructionsPerHook instructions
};

namespace {

void* Allocate(void* user, void* block, size_t oldSize, size_t newSize) {
    auto* budget = static_cast<LuaBudget*>(user);
    if (newSize == 0) {
        if (block != nullptr) budget->used -= oldSize;
        std::free(block);
        return nullptr;
    }
    const size_t before = block != nullptr ? oldSize : 0;
    if (budget->used - before + newSize > kMemoryLimit) return nullptr;
    void* grown = std::realloc(block, newSize);
    if (grown != nullptr) budget->used = budget->used - before + newSize;
    return grown;
}

void CountInstructions(lua_State* L, lua_Debug*) {
    void* user = nullptr;
    lua_getallocf(L, &user);
    if (++static_cast<LuaBudget*>(user)->hooks > kHookLimit) {
        luaL_error(L, "runs too long to be a table file");
    }
}

}  // namespace

LuaTables::LuaTables() : budget_(std::make_unique<LuaBudget>()) {
    state_ = lua_newstate(Allocate, budget_.get());
    lua_sethook(state_, CountInstructions, LUA_MASKCOUNT, kInstructionsPerHook);
}

LuaTables::~LuaTables() {
    lua_close(state_);
}

std::string LuaTables::Load(const std::filesystem::path& path) {
    lua_settop(state_, 0);
    budget_->hooks = 0;
    std::ifstream in(path, std::ios::binary);
    if (!in) return "can't be read";
    std::ostringstream bytes;
    bytes << in.rdbuf();
    const std::string text = bytes.str();
    // Text only: a precompiled chunk is no table file, and Lua doesn't check its bytecode.
    const std::string chunk = std::string("=") + kChunk;
    if (luaL_loadbufferx(state_, text.data(), text.size(), chunk.c_str(), "t") != LUA_OK) {
        return WithoutChunkName(Text(state_, -1));
    }
    // The file runs with an empty table for its globals: the tables it makes land there, and it
    // reaches none of Lua's libraries.
    lua_newtable(state_);
    lua_pushvalue(state_, -1);
    lua_setupvalue(state_, -3, 1);
    lua_insert(state_, -2);
    if (lua_pcall(state_, 0, 0, 0) != LUA_OK) return WithoutChunkName(Text(state_, -1));
    return {};
}

void LuaTables::EachValue(const Visit& visit) {
    Walk(lua_gettop(state_), "", visit, 0);
}

void LuaTables::Walk(int table, const std::string& name, const Visit& visit, int depth) {
    if (depth > kDepthLimit || !lua_checkstack(state_, 4)) return;
    lua_pushnil(state_);
    while (lua_next(state_, table) != 0) {
        const std::string key = Text(state_, -2);
        if (lua_istable(state_, -1)) {
            Walk(lua_gettop(state_), key, visit, depth + 1);
        } else {
            visit(name, key, Text(state_, -1));
        }
        lua_pop(state_, 1);
    }
}

}  // namespace qb::cli
