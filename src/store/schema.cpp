#include "store/schema.h"

#include "store/table_text.h"

namespace qb::store {

std::string RenderTable(const FileSchema& schema, int lastProfile, const FieldValue& valueOf) {
    TableText text(schema.table + " = {");
    for (const Field& field : schema.fields) {
        switch (field.kind) {
            case FieldKind::Flag:
            case FieldKind::Number:
                text.Bare(1, field.key, valueOf(field, 0));
                break;
            case FieldKind::String:
                text.Quoted(1, field.key, valueOf(field, 0));
                break;
            case FieldKind::ProfileChecks:
                text.Open(1, field.key);
                for (int profile = -1; profile <= lastProfile; ++profile) {
                    text.Row(2, profile, valueOf(field, profile));
                }
                text.Close(1);
                break;
        }
    }
    return text.End();
}

}  // namespace qb::store
