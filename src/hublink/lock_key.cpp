#include "hublink/lock_key.h"

#include "hublink/nmdc_text.h"

namespace qb::hublink {
namespace {

void AppendKeyByte(std::string& key, unsigned value) {
    // Nibbles swapped, kept to one byte.
    const unsigned swapped = ((value << 4) | (value >> 4)) & 0xFF;
    switch (swapped) {
        case 0:
        case 5:
        case 36:
        case 96:
        case 124:
        case 126: {
            const char digits[] = {static_cast<char>('0' + swapped / 100),
                                   static_cast<char>('0' + swapped / 10 % 10),
                                   static_cast<char>('0' + swapped % 10)};
            key += "/%DCN";
            key.append(digits, 3);
            key += "%/";
            break;
        }
        default:
            key.push_back(static_cast<char>(swapped));
    }
}

}  // namespace

std::string LockToKey(std::string_view lockArguments) {
    const std::string_view lock = Before(lockArguments, " ");
    const size_t n = lock.size();
    std::string key;
    if (n == 0) return key;
    auto byte = [&](size_t i) { return static_cast<unsigned char>(lock[i]); };
    key.reserve(n + 16);
    // With one byte, the last and the second from the end are both that byte.
    const unsigned secondLast = n >= 2 ? byte(n - 2) : byte(0);
    AppendKeyByte(key, byte(0) ^ byte(n - 1) ^ secondLast ^ 5u);
    for (size_t i = 1; i < n; ++i)
        AppendKeyByte(key, byte(i) ^ byte(i - 1));
    return key;
}

}  // namespace qb::hublink
