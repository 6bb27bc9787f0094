#pragma once
// The frame of the rebuild: the builders that bring every file of the settings tree to the
// current layout and to the hub's profiles. A file's builder follows from its schema and its kind
// (settings merged key by key, data written only when missing, reset files rewritten); function
// groups register their files' builders against the folders of the settings tree, and an area's
// build makes its folders in the table's order, each right before its builders.

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "store/edition.h"
#include "store/schema.h"
#include "store/settings_tree.h"
#include "store/table_files.h"

namespace qb::store {

struct BuildRun {
    TableFiles& files;
    int lastProfile;  // per-profile rows are written for the numbers -1 to this one
    // The version the run behaves as: it decides, with the edition, which areas are built.
    ProgramVersion version;
    std::string_view edition = kEdition;
    // The hub's profiles by row, Unregistered first, for the defaults that follow a profile's
    // name; a run that leaves them out gives every profile an empty name.
    std::vector<std::string> profileNames{};

    // The name of a profile number, or empty.
    std::string ProfileName(int number) const;
};

// The path a builder reads a file through: absolute, so that the readers' drive test takes it as
// it stands. A program folder without a drive letter fails that test, and every read misses.
std::string BuilderReadPath(const TableFiles& files, const FileSchema& schema);

// Brings one file to the current layout. A settings file keeps each key's value unless it is
// empty, which takes the default (a key reset by a rebuild always does); a data file is written
// only when missing; a reset file is rewritten with its defaults. Keys whose function the edition
// lacks aren't written.
void BuildFile(const FileSchema& schema, BuildRun& run);

using FileBuilder = std::function<void(BuildRun& run)>;

// A text file the user keeps (a message, an ascii picture), below the settings folder: written
// with `text` when missing, never touched once it exists.
void WriteTextWhenMissing(BuildRun& run, const std::string& file, std::string_view text);

// The folder of a file, "Security\CommandSpy" of "Security\CommandSpy\X.tbl".
std::string FolderOf(std::string_view file);

// One step of a function group's build: a file described by its schema, built in its own
// folder, or a builder of its own against a folder.
struct BuildStep {
    BuildStep(const FileSchema& schema);  // NOLINT(google-explicit-constructor): tables list them
    BuildStep(std::string in, FileBuilder build);
    std::string folder;
    FileBuilder builder;
};

// The step of a text file the user keeps, made with `text` when missing, in its own folder.
BuildStep TextWhenMissing(std::string file, std::string text);

class BuilderRegistry {
  public:
    // A group's files, in the order a rebuild writes them within each folder. Schemas and
    // builders must outlive the registry.
    void Add(const std::vector<BuildStep>& steps);
    // Adds the builder of a file to a folder of the settings tree. The builders of one folder run
    // in the order they were added. The schema must outlive the registry.
    void Add(std::string_view folder, const FileSchema& schema);
    // A builder that a schema can't describe.
    void Add(std::string_view folder, FileBuilder builder);

    // Makes the area's folders that the edition has, in the table's order, and runs each
    // folder's builders right after making it.
    void BuildArea(Area area, BuildRun& run) const;

  private:
    std::map<std::string, std::vector<FileBuilder>, std::less<>> byFolder_;
};

}  // namespace qb::store
