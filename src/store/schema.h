#pragma once
// A table file described once, as data: its path, its table and its keys in order, each with its
// kind and default. A page's SaveSettings, its RestoreDefaults and the rebuild's builders all
// work from the same description, so they can't drift apart where they should agree; where the
// page and the builder have always written a file differently, the description says how.

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/edition.h"

namespace qb::store {

enum class FieldKind {
    Flag,           // bKey = 1,
    Number,         // iKey = 15,
    String,         // sKey = "text",
    ProfileChecks,  // tKey = { [-1] = 0, [0] = 1, ... }, one row per profile number
    NamedFlags,     // tKey = { bFirst = 0, bSecond = 1, ... }, one row per name of `rows`
    NamedValues,    // tKey = { sFirst = "a", ... }, one row per entry of `defaultRows`, quoted
    Rows,           // a list the user keeps: the rows of a sub-table, or of the file's own table
};

// How the rows of a list are written. Only the writer knows these forms: the readers take any
// row by its first "=" or as it stands.
enum class RowForm {
    Bare,      // "text",
    Named,     // ["key"] = "value",
    Numbered,  // [1] = "value", numbered from 1 at every write
};

// A value the user picks from a combo by name, which the file holds in its own form ("TempBan"
// is stored as "T"); where the two are one, `shown` and `stored` are equal.
struct Choice {
    std::string shown;
    std::string stored;
};

// The bounds of a number the user sets with an up-down. A file's value is never held to them:
// it shows and saves as it stands until the user turns the up-down.
struct Range {
    int min;
    int max;
    int step = 1;
};

// One row of a list as it is written: the key of a named row, and the value.
struct ListEntry {
    std::string key;
    std::string value;
};

struct Field {
    FieldKind kind;
    std::string key;
    std::string defaultValue;  // for profile checks, the default of each row
    // Builders write the key only in the editions that have its function.
    EditionTest editions{{}, true};
    std::vector<std::string> rows{};  // the row names of named flags, in file order
    // The builder writes the default whatever the file held: a rebuild clears the key.
    bool resetByRebuild = false;
    std::optional<Range> range{};  // a number set through an up-down
    // A value picked from a combo; on a list of named or numbered rows, each row's value, which
    // the list shows by name.
    std::vector<Choice> choices{};
    // The rows of a list: their form, and whether a value is written in quotes.
    RowForm rowForm = RowForm::Bare;
    bool quotedRows = true;
    // The rows RESTORE puts in, where it refills a list.
    std::vector<ListEntry> defaultRows{};
    // The rows a new data file is written with: a sample the user sees the form of a row by.
    std::vector<ListEntry> sampleRows{};
    // Every named row is written with this value, which no list shows ("["Nick"] = 1,").
    std::optional<std::string> rowValue{};
    // Profile checks whose rows start at this number, not at -1 (Unregistered has no row).
    int firstProfile = -1;
    // The sub-table the key stands in, where it isn't the file's own table: the writers open it
    // before the first of its keys and close it after the last, and its lines go a tab deeper.
    // The readers never leave a table, so the key reads alike wherever it stands.
    std::string parent{};
    // What the builder takes for an empty value where it asks its defaults under another key
    // than RESTORE does; without it both take `defaultValue`.
    std::optional<std::string> builderDefault{};
};

// A number the user sets with an up-down, held to `range` by the up-down alone.
Field UpDownNumber(std::string key, std::string defaultValue, Range range);

// What a rebuild does to a file that exists already.
enum class FileKind {
    Settings,  // rewritten in the current layout: each key keeps its value unless that is empty
    Data,      // lists the user or the scripts fill: written only when missing
    Reset,     // rewritten with its fixed defaults, whatever it held
};

// Who writes the file: the files are one, but not every writer lays them out alike.
enum class Writer { Page, Builder };

// How one line is laid out where a writer departs from the common form.
struct LineForm {
    int depth = 1;     // tabs before the key's line
    int rowDepth = 2;  // tabs before a sub-table's rows
    // A string key written bare, or a number quoted; for a list, its rows' values.
    std::optional<bool> quoted{};
    std::string name{};    // the key written in place of the field's own
    bool rowComma = true;  // a list's rows end in a comma
};

// A writer's own layout of the file; the default is the common form of every field.
struct WriterForm {
    std::vector<std::string> order{};         // the keys in this writer's order; empty: the fields'
    std::string table{};                      // the header's table, where this writer names another
    std::string headerTail{};                 // text behind the header's brace
    std::map<std::string, LineForm> lines{};  // by key, the lines laid out otherwise
    // By key, the values this writer always writes, whatever the file or a control held.
    std::map<std::string, std::string> fixed{};
    // By key, the rows this writer always writes for a list, whatever the file held: a table the
    // scripts play by and the user never edits.
    std::map<std::string, std::vector<ListEntry>> fixedRows{};
};

struct FileSchema {
    std::string file;           // relative to the settings folder, e.g. "Security\CommandSpy\X.tbl"
    std::string table;          // e.g. "tCommandSpySettings"
    std::vector<Field> fields;  // in the page's order
    FileKind kind = FileKind::Settings;
    bool inAppFolder = false;  // `file` is relative to the program folder instead
    WriterForm pageForm{};
    WriterForm builderForm{};
};

// The value of a field; `row` is the row's profile number for profile checks, the row's index in
// `rows` (from 0) for named flags, else unused.
using FieldValue = std::function<std::string(const Field& field, int row)>;
// Whether a field is written at all.
using FieldFilter = std::function<bool(const Field& field)>;

// The rows of a list field, in the order they are written.
using FieldRows = std::function<std::vector<ListEntry>(const Field& field)>;

// The whole text of the file as `writer` lays it out, for profile numbers -1 to `lastProfile`.
// A list field writes the rows `rowsOf` gives, or none without it.
std::string RenderTable(const FileSchema& schema, int lastProfile, const FieldValue& valueOf,
                        Writer writer = Writer::Page, const FieldFilter& keep = {},
                        const FieldRows& rowsOf = {});

// The field of a key, or null. A row of a named flag sub-table is found as "tSub.bRow".
const Field* FindField(const FileSchema& schema, std::string_view key);

// The default of a key, or empty for a key the file doesn't have: RestoreDefaults and the
// builders both ask here.
std::string DefaultOf(const FileSchema& schema, std::string_view key);

// The default of one row of a field: a named value's own, or the field's.
std::string RowDefault(const Field& field, int row);

}  // namespace qb::store
