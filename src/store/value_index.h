#pragma once
// The answers of ScanTableValue for every key and table of one file, from a single pass. A page
// of a hundred profiles asks its file ten thousand times; the scan would read the file each time.

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qb::store {

class ValueIndex {
  public:
    // `lines` are the whole file; the index stops where the scan would.
    explicit ValueIndex(const std::vector<std::string>& lines);

    // What ScanTableValue(lines, key, table) returns.
    std::string Find(std::string_view key, std::string_view table) const;

  private:
    struct Occurrence {
        int line;
        std::string value;
    };
    // Where each table's header first stands: the scan looks at keys after it.
    std::unordered_map<std::string, int> headers_;
    // Each key's value lines in file order.
    std::unordered_map<std::string, std::vector<Occurrence>> values_;
};

}  // namespace qb::store
