#include "store/value_index.h"

#include <algorithm>

#include "store/scanners.h"
#include "store/text_rules.h"

namespace qb::store {

ValueIndex::ValueIndex(const std::vector<std::string>& lines) {
    const int count = static_cast<int>(std::min<size_t>(lines.size(), kLineLimit));
    for (int number = 1; number <= count; ++number) {
        const std::string& line = lines[static_cast<size_t>(number - 1)];
        if (line.empty()) return;
        const size_t equals = line.find('=');
        std::string left = TrimBlanks(std::string_view(line).substr(0, equals));
        TrimTableKey(left, false);
        if (left == "}") continue;
        if (equals == std::string::npos) return;
        std::string right = line.substr(equals + 1);
        TrimTableValue(right);
        if (right == "{") {
            headers_.try_emplace(std::move(left), number);
        } else {
            values_[std::move(left)].push_back({number, std::move(right)});
        }
    }
}

std::string ValueIndex::Find(std::string_view key, std::string_view table) const {
    const auto found = values_.find(key);
    if (found == values_.end()) return {};
    int after = 0;  // with no table the whole file is in the table
    if (!table.empty()) {
        if (table != lastTable_) {
            const auto header = headers_.find(table);
            lastTable_ = table;
            lastAfter_ = header == headers_.end() ? -1 : header->second;
        }
        if (lastAfter_ < 0) return {};
        after = lastAfter_;
    }
    const auto& occurrences = found->second;
    const auto first = std::upper_bound(
        occurrences.begin(), occurrences.end(), after,
        [](int line, const Occurrence& occurrence) { return line < occurrence.line; });
    return first == occurrences.end() ? std::string() : first->value;
}

}  // namespace qb::store
