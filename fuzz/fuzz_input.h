#pragma once
// Fuzz input as the readers see a file: lines cut by the same reader that reads settings files.

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "store/line_reader.h"

namespace qb::fuzz {

inline std::vector<std::string> LinesOf(const uint8_t* data, size_t size) {
    std::vector<std::string> lines;
    if (size == 0) return lines;
    std::FILE* stream = fmemopen(const_cast<uint8_t*>(data), size, "rb");
    if (stream == nullptr) return lines;
    auto reader = store::LineReader::Adopt(stream);
    std::string line;
    while (reader->Next(line))
        lines.push_back(line);
    return lines;
}

}  // namespace qb::fuzz
