#include "store/schema.h"

#include <stdexcept>

#include "store/table_text.h"

namespace qb::store {
namespace {

const Field& FieldOf(const FileSchema& schema, std::string_view key) {
    for (const Field& field : schema.fields) {
        if (field.key == key) return field;
    }
    throw std::logic_error(schema.file + " has no key " + std::string(key));
}

std::vector<const Field*> InOrder(const FileSchema& schema, const WriterForm& form) {
    std::vector<const Field*> fields;
    if (form.order.empty()) {
        for (const Field& field : schema.fields)
            fields.push_back(&field);
    } else {
        if (form.order.size() != schema.fields.size()) {
            throw std::logic_error(schema.file + ": a writer's order must name every key once");
        }
        for (const std::string& key : form.order)
            fields.push_back(&FieldOf(schema, key));
    }
    return fields;
}

// One row of a list at `depth`, laid out as the writer's line form has it.
void ListRow(TableText& text, const Field& field, const LineForm& line, int depth, int number,
             const ListEntry& entry) {
    const std::string& raw = field.rowValue ? *field.rowValue : entry.value;
    const std::string value = line.quoted.value_or(field.quotedRows) ? "\"" + raw + "\"" : raw;
    const char* end = line.rowComma ? "," : "";
    switch (field.rowForm) {
        case RowForm::Bare:
            text.Line(depth, value + end);
            break;
        case RowForm::Named:
            text.Line(depth, "[\"" + entry.key + "\"] = " + value + end);
            break;
        case RowForm::Numbered:
            text.Line(depth, "[" + std::to_string(number) + "] = " + value + end);
            break;
    }
}

}  // namespace

Field UpDownNumber(std::string key, std::string defaultValue, Range range) {
    return {.kind = FieldKind::Number,
            .key = std::move(key),
            .defaultValue = std::move(defaultValue),
            .range = range};
}

std::string RenderTable(const FileSchema& schema, int lastProfile, const FieldValue& valueOf,
                        Writer writer, const FieldFilter& keep, const FieldRows& rowsOf) {
    const WriterForm& form = writer == Writer::Builder ? schema.builderForm : schema.pageForm;
    TableText text((form.table.empty() ? schema.table : form.table) + " = {" + form.headerTail);
    std::string parent;  // the sub-table open around the keys
    for (const Field* field : InOrder(schema, form)) {
        if (keep && !keep(*field)) continue;
        if (field->parent != parent) {
            if (!parent.empty()) text.Close(1);
            if (!field->parent.empty()) text.Open(1, field->parent);
            parent = field->parent;
        }
        const auto custom = form.lines.find(field->key);
        LineForm line = custom == form.lines.end() ? LineForm{} : custom->second;
        if (!parent.empty()) {
            ++line.depth;
            ++line.rowDepth;
        }
        const std::string& key = line.name.empty() ? field->key : line.name;
        switch (field->kind) {
            case FieldKind::Flag:
            case FieldKind::Number:
            case FieldKind::String: {
                const bool quoted = line.quoted.value_or(field->kind == FieldKind::String);
                const auto fixed = form.fixed.find(field->key);
                const std::string value =
                    fixed != form.fixed.end() ? fixed->second : valueOf(*field, 0);
                if (quoted) {
                    text.Quoted(line.depth, key, value);
                } else {
                    text.Bare(line.depth, key, value);
                }
                break;
            }
            case FieldKind::ProfileChecks:
                text.Open(line.depth, key);
                for (int profile = field->firstProfile; profile <= lastProfile; ++profile) {
                    text.Row(line.rowDepth, profile, valueOf(*field, profile));
                }
                text.Close(line.depth);
                break;
            case FieldKind::NamedFlags:
                text.Open(line.depth, key);
                for (size_t row = 0; row < field->rows.size(); ++row) {
                    text.Bare(line.rowDepth, field->rows[row],
                              valueOf(*field, static_cast<int>(row)));
                }
                text.Close(line.depth);
                break;
            case FieldKind::NamedValues:
                text.Open(line.depth, key);
                for (size_t row = 0; row < field->defaultRows.size(); ++row) {
                    text.Quoted(line.rowDepth, field->defaultRows[row].key,
                                valueOf(*field, static_cast<int>(row)));
                }
                text.Close(line.depth);
                break;
            case FieldKind::Rows: {
                // The rows of the file's own table stand at its depth, with nothing around them.
                const bool own = field->key == schema.table;
                if (!own) text.Open(line.depth, key);
                const auto fixed = form.fixedRows.find(field->key);
                const std::vector<ListEntry> rows = fixed != form.fixedRows.end() ? fixed->second
                                                    : rowsOf                      ? rowsOf(*field)
                                                             : std::vector<ListEntry>{};
                for (size_t row = 0; row < rows.size(); ++row) {
                    ListRow(text, *field, line, own ? line.depth : line.rowDepth,
                            static_cast<int>(row) + 1, rows[row]);
                }
                if (!own) text.Close(line.depth);
                break;
            }
        }
    }
    if (!parent.empty()) text.Close(1);
    return text.End();
}

std::string RowDefault(const Field& field, int row) {
    if (field.kind == FieldKind::NamedValues && row >= 0 &&
        static_cast<size_t>(row) < field.defaultRows.size()) {
        return field.defaultRows[static_cast<size_t>(row)].value;
    }
    return field.defaultValue;
}

const Field* FindField(const FileSchema& schema, std::string_view key) {
    const size_t dot = key.find('.');
    for (const Field& field : schema.fields) {
        if (dot == std::string_view::npos) {
            if (field.key == key) return &field;
            continue;
        }
        if (field.kind != FieldKind::NamedFlags || field.key != key.substr(0, dot)) continue;
        for (const std::string& row : field.rows) {
            if (row == key.substr(dot + 1)) return &field;
        }
    }
    return nullptr;
}

std::string DefaultOf(const FileSchema& schema, std::string_view key) {
    for (const Field& field : schema.fields) {
        if (field.key == key) return field.defaultValue;
    }
    return {};
}

}  // namespace qb::store
