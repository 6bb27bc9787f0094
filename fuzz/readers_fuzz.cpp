// Every reader's scan over any file, with the table and key taken from the file's own words: no
// crash, and a failure only of the one kind a reader may raise.

#include <cstdint>

#include "fuzz_input.h"
#include "store/fatal_error.h"
#include "store/scanners.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace qb::store;
    const auto lines = qb::fuzz::LinesOf(data, size);
    const std::string table =
        lines.empty() ? "tA" : lines.front().substr(0, lines.front().find(' '));
    const std::string key = lines.size() < 2 ? "x" : lines[1].substr(0, 8);
    const std::string path = "fuzz.tbl";
    auto scan = [&](auto&& read) {
        LinesOf source(lines);
        try {
            read(source);
        } catch (const FatalError&) {
            // a second failing line reaches the caller: the one failure these readers raise
        }
    };
    scan([&](LineSource& s) { ScanTableValue(s, key, table); });
    scan([&](LineSource& s) { ScanTableFlag(s, table, key, path); });
    for (const char* delimiter : {"=", "*", ""}) {
        for (bool keep : {false, true}) {
            scan([&](LineSource& s) { ScanTableRows(s, delimiter, table, keep, path); });
            scan([&](LineSource& s) { ScanTableRows(s, delimiter, "", keep, path); });
        }
    }
    scan([&](LineSource& s) { ScanTableValues(s, table); });
    scan([&](LineSource& s) { ScanFileNames(s, table); });
    scan([&](LineSource& s) {
        std::string text;
        ScanText(s, text);
    });
    return 0;
}
