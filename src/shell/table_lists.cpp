#include "shell/table_lists.h"

#include "store/text_rules.h"

namespace qb::shell {

void LoadTableRows(store::TableFiles& files, std::string_view file, ListControl& list,
                   std::string_view delimiter, std::string_view table, bool asChecks,
                   bool inAppFolder, bool keepBrackets) {
    for (auto& row :
         files.LoadTableRows(file, delimiter, table, inAppFolder, keepBrackets, list.Count())) {
        const int index = list.Count() + 1;
        list.Append(std::move(row.key), std::move(row.text));
        if (delimiter.empty()) continue;
        if (asChecks) {
            list.SetChecked(index, store::IsNumericallyOne(row.value));
        } else if (list.ColumnCount() >= 2) {
            list.SetCell(index, 2, std::move(row.value));
        }
    }
}

void ApplyTableValues(store::TableFiles& files, std::string_view file, std::string_view table,
                      ListControl& list) {
    for (auto& value : files.ApplyTableValues(file, table)) {
        for (int row = 1; row <= list.Count(); ++row) {
            if (list.Row(row).text == value.key) {
                list.SetCell(row, 2, std::move(value.value));
                break;
            }
        }
    }
}

void LoadFileNameRows(store::TableFiles& files, std::string_view file, ListControl& list,
                      std::string_view table) {
    for (auto& name : files.LoadFileNameRows(file, table)) {
        list.Append(std::to_string(list.Count() + 1) + "ID", std::move(name));
    }
}

std::string NewRowKey(store::TableFiles& files, int count) {
    return std::to_string(count) + "*" + store::FormatGeneral(files.NextRandom() * 10000000.0) +
           "*ID";
}

}  // namespace qb::shell
