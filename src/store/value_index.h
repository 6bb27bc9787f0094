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
    // Keys are looked up as they come, without a copy.
    struct TextHash {
        using is_transparent = void;
        size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>{}(text);
        }
    };
    template <class T>
    using ByText = std::unordered_map<std::string, T, TextHash, std::equal_to<>>;

    struct Occurrence {
        int line;
        std::string value;
    };
    // Where each table's header first stands: the scan looks at keys after it.
    ByText<int> headers_;
    // The table the last lookup named and where its keys start (-1: no such table): a matrix
    // asks one table for every profile in a row.
    mutable std::string lastTable_;
    mutable int lastAfter_ = -1;
    // Each key's value lines in file order.
    ByText<std::vector<Occurrence>> values_;
};

}  // namespace qb::store
