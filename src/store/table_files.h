#pragma once
// The shared file operations through which every page and builder reaches its files. Each reader
// is a line scanner with its own split and trim rules and its own way of failing; pages depend on
// those differences (a missing file must read as empty), so each is kept exactly.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/paths.h"
#include "store/scanners.h"

namespace qb::store {

// A row that LoadTableRows would append to a list.
struct TableRow {
    std::string key;    // "3ID" for a bare row, "4*123456789.5ID" for a keyed one
    std::string text;   // the bare row, or the keyed row's first field
    std::string value;  // the keyed row's second field
};

class ValueIndex;
class ChangeRecord;

// A file as the disk has it now: enough to tell that something has written it since.
struct FileStamp {
    bool exists = false;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t modified = 0;  // nanoseconds since the epoch
    bool operator==(const FileStamp&) const = default;
};

class TableFiles {
  public:
    // A line past this number ends ReadTableValue and ReadTextFile, and LoadFileNameRows stops.
    static constexpr int kLineLimit = store::kLineLimit;

    // `programFolder` is the folder the manager runs from, in the scripts' path form.
    explicit TableFiles(std::string programFolder);
    ~TableFiles();
    TableFiles(const TableFiles&) = delete;
    TableFiles& operator=(const TableFiles&) = delete;

    // While a scope lives (a page load, a rebuild), each file is read once and keys are answered
    // from an index, with exactly the results of reading the file for each key. A file the scope
    // writes is read again; outside any scope every read goes to the disk.
    class ReadScope {
      public:
        explicit ReadScope(TableFiles& files);
        ~ReadScope();
        ReadScope(const ReadScope&) = delete;
        ReadScope& operator=(const ReadScope&) = delete;

      private:
        TableFiles& files_;
        bool counted_;  // whether the scope holds the files: not while the index is off
    };

    // Without the index every read goes to the disk, scopes or not: the plain scanner the index
    // must agree with, which the tests and the benchmarks measure it against.
    void SetIndexing(bool indexing) { indexing_ = indexing; }

    // From here on every write goes to `record` instead of the disk, and every read sees what the
    // record holds over what the disk holds; null writes to the disk again. While a record is set
    // nothing at all reaches the disk: no folder is made, no leftover temporary is cleared, and a
    // delete is refused.
    void RecordWrites(ChangeRecord* record);

    const std::string& ProgramFolder() const { return programFolder_; }
    std::string SettingsFolder() const;  // program folder, "\Vandrell's Quillbook\Settings"
    std::string HubFolder() const;       // empty when it can't be derived

    // Value of `key` in the table `table` (empty: the whole file), or empty. Ends at the first
    // blank line, line without "=" (other than a closing line) or line 5001. Once the named
    // table's header is met the search runs to the end of the file: a key that table lacks is
    // found in any later table that has it.
    std::string ReadTableValue(std::string_view file, std::string_view key, std::string_view table,
                               bool inAppFolder = false);

    // Second one-key reader, splitting at every "=". A file that can't be opened, or a second
    // failing line, raises FatalError.
    std::string ReadTableFlag(std::string_view file, std::string_view table, std::string_view key);
    bool ReadTableFlagIsOne(std::string_view file, std::string_view table, std::string_view key);

    // The rows of a table. `existingRows` is the number of rows the list holds already, which
    // keyed rows' keys are numbered from. A missing file gives no rows; a second failing line
    // raises FatalError.
    std::vector<TableRow> LoadTableRows(std::string_view file, std::string_view delimiter,
                                        std::string_view table, bool inAppFolder, bool keepBrackets,
                                        int existingRows = 0);

    // Keys and values of every line that holds "=", but the table's header and closing lines.
    // A file that can't be opened raises FatalError.
    std::vector<TableValue> ApplyTableValues(std::string_view file, std::string_view table);

    // Keys of a table of file names, brackets kept and ".lst", ".tbl" or ".txt" cut off.
    std::vector<std::string> LoadFileNameRows(std::string_view file, std::string_view table);

    // The whole file, every line followed by CRLF. Line 5001 returns empty and leaves the file
    // slot taken: every later open fails as for a missing file, until the program ends.
    std::string ReadTextFile(std::string_view file);

    // Replaces the file by `text` and one line break, atomically. Raises FatalError when the
    // folder is missing, the file is read-only, or the disk refuses; the old file stays whole.
    void WriteTextFile(std::string_view file, std::string_view text, bool inAppFolder = false);

    // The stamp of a file as a page names it (Resolve's rules, as WriteTextFile).
    FileStamp StampOf(std::string_view file, bool inAppFolder = false) const;
    // Whether `stamp` is what this program's own last write of the file left: a page's file
    // that changed so was changed by the program, not by another one.
    bool WroteLast(std::string_view file, bool inAppFolder, const FileStamp& stamp) const;

    // The file system object of the scripts' home system, on script paths.
    bool FileExists(std::string_view path) const;
    bool FolderExists(std::string_view path) const;
    void CreateFolder(std::string_view path);  // FatalError when it can't be made
    // The names of the files in a folder, as the file system object lists them: by name, letter
    // case aside. A missing folder has none; a write's leftover temporary isn't a file of it.
    std::vector<std::string> FolderFiles(std::string_view folder) const;
    // Removes a file at once and forgets what a read scope kept of it; false when there was
    // none (a file already gone is no error). FatalError when it can't be removed.
    bool DeleteFile(std::string_view path);

    // Whether a read past line 5000 of ReadTextFile has left the file slot taken.
    bool SlotStuck() const { return slotStuck_; }

    // The next value of the row key generator: uniform in 0 to 1. It is never seeded, so a run
    // repeats the same keys, as the scripts' home system does.
    double NextRandom();
    // Seeds the generator from the clock. Only the hub link does this, when a hub refuses the
    // portal's nick; row keys after it differ from run to run.
    void Randomize();

    // The path an operation opens: `file` as it stands when characters 2 and 3 are ":\" and the
    // operation has that test, else below the program folder or the settings folder.
    std::string Resolve(std::string_view file, bool inAppFolder, bool driveTest) const;

  private:
    struct CachedFile;
    // The lines of a file for a reader: from the disk, or from the scope's copy. Null with the
    // system's reason when the file can't be opened.
    std::unique_ptr<LineSource> OpenLines(const std::string& path, int& error);
    // The file as a scope keeps it; `whole` for the readers that go past line 5000.
    CachedFile* Cached(const std::string& path, bool whole = true);
    std::string NativeOf(const std::string& path);
    // The Linux path of a script path, spelled as the record has it where it made the folder.
    std::optional<std::filesystem::path> Native(std::string_view scriptPath) const;
    void Forget(const std::string& native);

    std::string programFolder_;
    ChangeRecord* record_ = nullptr;
    bool slotStuck_ = false;
    std::minstd_rand random_;
    int scopes_ = 0;
    bool indexing_ = true;
    std::unordered_map<std::string, std::string> natives_;  // script path -> Linux path
    // The folders the scope has listed to resolve names ignoring letter case.
    mutable FolderListings listings_;
    std::unordered_map<std::string, std::unique_ptr<CachedFile>> cache_;  // by Linux path
    std::unordered_map<std::string, FileStamp> ownWrites_;                // by Linux path
    // The file the last one-key read in a scope asked, as it was named: a page asks one file for
    // thousands of keys in a row.
    std::string lastFile_;
    bool lastInAppFolder_ = false;
    CachedFile* lastCached_ = nullptr;
};

// A number in general decimal form, as row keys carry it.
std::string FormatGeneral(double value);

}  // namespace qb::store
