#pragma once
// A settings file described once, as data: its path, its table and its keys in order, each with
// its kind and default. A page's SaveSettings and the rebuild's merge both write the file from
// the same description, so they can't drift apart where they should agree.

#include <functional>
#include <string>
#include <vector>

namespace qb::store {

enum class FieldKind {
    Flag,           // bKey = 1,
    Number,         // iKey = 15,
    String,         // sKey = "text",
    ProfileChecks,  // tKey = { [-1] = 0, [0] = 1, ... }, one row per profile number
};

struct Field {
    FieldKind kind;
    std::string key;
    std::string defaultValue;  // for profile checks, the default of each row
};

struct FileSchema {
    std::string file;   // relative to the settings folder, e.g. "Security\CommandSpy\X.tbl"
    std::string table;  // e.g. "tCommandSpySettings"
    std::vector<Field> fields;
};

// The value of a field; `profile` is the row's profile number for profile checks, else unused.
using FieldValue = std::function<std::string(const Field& field, int profile)>;

// The whole text of the file, for profile numbers -1 to `lastProfile`.
std::string RenderTable(const FileSchema& schema, int lastProfile, const FieldValue& valueOf);

}  // namespace qb::store
