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

}  // namespace

std::string RenderTable(const FileSchema& schema, int lastProfile, const FieldValue& valueOf,
                        Writer writer, const FieldFilter& keep) {
    const WriterForm& form = writer == Writer::Builder ? schema.builderForm : schema.pageForm;
    TableText text(schema.table + " = {" + form.headerTail);
    for (const Field* field : InOrder(schema, form)) {
        if (keep && !keep(*field)) continue;
        const auto custom = form.lines.find(field->key);
        const LineForm line = custom == form.lines.end() ? LineForm{} : custom->second;
        switch (field->kind) {
            case FieldKind::Flag:
            case FieldKind::Number:
            case FieldKind::String: {
                const bool quoted = line.quoted.value_or(field->kind == FieldKind::String);
                const std::string value = valueOf(*field, 0);
                if (quoted) {
                    text.Quoted(line.depth, field->key, value);
                } else {
                    text.Bare(line.depth, field->key, value);
                }
                break;
            }
            case FieldKind::ProfileChecks:
                text.Open(line.depth, field->key);
                for (int profile = -1; profile <= lastProfile; ++profile) {
                    text.Row(line.rowDepth, profile, valueOf(*field, profile));
                }
                text.Close(line.depth);
                break;
            case FieldKind::NamedFlags:
                text.Open(line.depth, field->key);
                for (size_t row = 0; row < field->rows.size(); ++row) {
                    text.Bare(line.rowDepth, field->rows[row],
                              valueOf(*field, static_cast<int>(row)));
                }
                text.Close(line.depth);
                break;
        }
    }
    return text.End();
}

std::string DefaultOf(const FileSchema& schema, std::string_view key) {
    for (const Field& field : schema.fields) {
        if (field.key == key) return field.defaultValue;
    }
    return {};
}

}  // namespace qb::store
