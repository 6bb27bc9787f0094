// The index against the scan it stands for: any file, and keys and tables from its own words.

#include <cstdint>
#include <cstdlib>
#include <set>

#include "fuzz_input.h"
#include "store/scanners.h"
#include "store/text_rules.h"
#include "store/value_index.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace qb::store;
    const auto lines = qb::fuzz::LinesOf(data, size);
    std::set<std::string> words = {"", "missing"};
    for (const auto& line : lines) {
        if (words.size() > 24) break;
        std::string left = TrimBlanks(line.substr(0, line.find('=')));
        TrimTableKey(left, false);
        words.insert(left);
    }
    const ValueIndex index(lines);
    for (const auto& key : words) {
        for (const auto& table : words) {
            LinesOf source(lines);
            if (index.Find(key, table) != ScanTableValue(source, key, table)) std::abort();
        }
    }
    return 0;
}
