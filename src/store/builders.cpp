#include "store/builders.h"

#include <optional>

namespace qb::store {
namespace {

std::string Write(const FileSchema& schema, BuildRun& run, const FieldValue& valueOf,
                  const FieldRows& rowsOf = {}) {
    return RenderTable(
        schema, run.lastProfile, valueOf, Writer::Builder,
        [&](const Field& field) { return Passes(field.editions, run.edition, run.version); },
        rowsOf);
}

// The rows a list keeps through a rebuild: those the list's reader finds in the old file.
std::vector<ListEntry> OldRows(TableFiles& files, const std::string& path, const Field& field,
                               const std::string& table) {
    const bool keyed = field.rowForm != RowForm::Bare;
    std::vector<ListEntry> rows;
    for (TableRow& row : files.LoadTableRows(path, keyed ? "=" : "", table, false, false)) {
        if (keyed) {
            rows.push_back({std::move(row.text), std::move(row.value)});
        } else {
            rows.push_back({{}, std::move(row.text)});
        }
    }
    return rows;
}

// Where the builder finds a field's old value: the key and the table ReadTableValue is asked for.
// A row of a sub-table (a profile number, a named flag) is a key of the sub-table's name.
std::string OldKey(const Field& field, int row) {
    switch (field.kind) {
        case FieldKind::ProfileChecks:
            return std::to_string(row);
        case FieldKind::NamedFlags:
            return field.rows.at(static_cast<size_t>(row));
        case FieldKind::NamedValues:
            return field.defaultRows.at(static_cast<size_t>(row)).key;
        case FieldKind::Flag:
        case FieldKind::Number:
        case FieldKind::String:
        case FieldKind::Rows:
            break;
    }
    return field.key;
}

std::string SubTableOf(const FileSchema& schema, const Field& field) {
    return field.kind == FieldKind::ProfileChecks || field.kind == FieldKind::NamedFlags ||
                   field.kind == FieldKind::NamedValues
               ? field.key
               : schema.table;
}

// What the builder writes where the file holds nothing: its own default where it has one, else
// the row's or the field's.
std::string BuilderDefault(const Field& field, int row) {
    return field.builderDefault ? *field.builderDefault : RowDefault(field, row);
}

}  // namespace

std::string BuildRun::ProfileName(int number) const {
    const int row = number + 1;
    if (row < 0 || row >= static_cast<int>(profileNames.size())) return {};
    return profileNames[static_cast<size_t>(row)];
}

std::string BuilderReadPath(const TableFiles& files, const FileSchema& schema) {
    return (schema.inAppFolder ? files.ProgramFolder() : files.SettingsFolder()) + "\\" +
           schema.file;
}

void BuildFile(const FileSchema& schema, BuildRun& run) {
    const std::string path = BuilderReadPath(run.files, schema);
    const auto byDefault = [](const Field& field, int row) { return BuilderDefault(field, row); };
    std::string text;
    switch (schema.kind) {
        case FileKind::Data:
            if (run.files.FileExists(path)) return;
            // A new list holds its sample rows, where it has any.
            text =
                Write(schema, run, byDefault, [](const Field& field) { return field.sampleRows; });
            break;
        case FileKind::Reset:
            text = Write(schema, run, byDefault);
            break;
        case FileKind::Settings: {
            // A table of P profile rows asks its file P times: the scope reads it once.
            const TableFiles::ReadScope scope(run.files);
            // An emptied value and a missing key are one: both take the default. Rows are
            // found by profile number only, so a row keeps its value with its number.
            text = Write(
                schema, run,
                [&](const Field& field, int row) {
                    if (field.resetByRebuild) return BuilderDefault(field, row);
                    std::string value = run.files.ReadTableValue(path, OldKey(field, row),
                                                                 SubTableOf(schema, field));
                    return value.empty() ? BuilderDefault(field, row) : value;
                },
                [&](const Field& field) {
                    return field.resetByRebuild ? std::vector<ListEntry>{}
                                                : OldRows(run.files, path, field, field.key);
                });
            break;
        }
    }
    run.files.WriteTextFile(schema.file, text, schema.inAppFolder);
}

void WriteTextWhenMissing(BuildRun& run, const std::string& file, std::string_view text) {
    if (run.files.FileExists(run.files.SettingsFolder() + "\\" + file)) return;
    run.files.WriteTextFile(file, text);
}

BuildStep TextWhenMissing(std::string file, std::string text) {
    std::string folder = FolderOf(file);
    return {std::move(folder), [file = std::move(file), text = std::move(text)](BuildRun& run) {
                WriteTextWhenMissing(run, file, text);
            }};
}

std::string FolderOf(std::string_view file) {
    const size_t slash = file.rfind('\\');
    return std::string(slash == std::string_view::npos ? std::string_view()
                                                       : file.substr(0, slash));
}

BuildStep::BuildStep(const FileSchema& schema)
    : folder(FolderOf(schema.file)),
      builder([&schema](BuildRun& run) { BuildFile(schema, run); }) {}

BuildStep::BuildStep(std::string in, FileBuilder build)
    : folder(std::move(in)), builder(std::move(build)) {}

void BuilderRegistry::Add(const std::vector<BuildStep>& steps) {
    for (const BuildStep& step : steps)
        Add(step.folder, step.builder);
}

void BuilderRegistry::Add(std::string_view folder, const FileSchema& schema) {
    Add(folder, [&schema](BuildRun& run) { BuildFile(schema, run); });
}

void BuilderRegistry::Add(std::string_view folder, FileBuilder builder) {
    FolderEditions(folder);  // a folder the tree lacks would never be built
    auto at = byFolder_.find(folder);
    if (at == byFolder_.end())
        at = byFolder_.emplace(std::string(folder), std::vector<FileBuilder>{}).first;
    at->second.push_back(std::move(builder));
}

void BuilderRegistry::BuildArea(Area area, BuildRun& run) const {
    for (const SettingsFolder& folder : SettingsFolders()) {
        if (folder.area != area || !Passes(folder.editions, run.edition, run.version)) continue;
        const std::string path =
            (folder.inProgramFolder ? run.files.ProgramFolder() : run.files.SettingsFolder()) +
            "\\" + std::string(folder.path);
        if (!run.files.FolderExists(path)) run.files.CreateFolder(path);
        const auto builders = byFolder_.find(folder.path);
        if (builders == byFolder_.end()) continue;
        for (const FileBuilder& build : builders->second)
            build(run);
    }
}

}  // namespace qb::store
