#include "store/cp1252.h"

#include <array>

namespace qb::store {
namespace {

// 0x80 to 0x9F: the only range where Windows-1252 differs from Latin-1.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

void AppendUtf8(std::string& out, char32_t cp) {
    auto put = [&out](unsigned value) { out.push_back(static_cast<char>(value)); };
    if (cp < 0x80) {
        put(cp);
    } else if (cp < 0x800) {
        put(0xC0 | (cp >> 6));
        put(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        put(0xE0 | (cp >> 12));
        put(0x80 | ((cp >> 6) & 0x3F));
        put(0x80 | (cp & 0x3F));
    } else {
        put(0xF0 | (cp >> 18));
        put(0x80 | ((cp >> 12) & 0x3F));
        put(0x80 | ((cp >> 6) & 0x3F));
        put(0x80 | (cp & 0x3F));
    }
}

}  // namespace

char32_t Cp1252ToCodePoint(unsigned char byte) {
    if (byte >= 0x80 && byte < 0xA0) return kHighControls[byte - 0x80];
    return byte;
}

int CodePointToCp1252(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
        return static_cast<int>(codePoint);
    }
    for (unsigned i = 0; i < kHighControls.size(); ++i) {
        if (kHighControls[i] == codePoint) return static_cast<int>(0x80 + i);
    }
    return -1;
}

std::string Cp1252ToUtf8(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    for (char c : bytes)
        AppendUtf8(out, Cp1252ToCodePoint(static_cast<unsigned char>(c)));
    return out;
}

std::string Utf8ToCp1252(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    size_t i = 0;
    while (i < utf8.size()) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        int extra = 0;
        char32_t cp = 0;
        if (lead < 0x80) {
            cp = lead;
        } else if ((lead & 0xE0) == 0xC0) {
            extra = 1;
            cp = lead & 0x1F;
        } else if ((lead & 0xF0) == 0xE0) {
            extra = 2;
            cp = lead & 0x0F;
        } else if ((lead & 0xF8) == 0xF0) {
            extra = 3;
            cp = lead & 0x07;
        } else {
            out.push_back('?');
            ++i;
            continue;
        }
        bool valid = i + static_cast<size_t>(extra) < utf8.size();
        for (int k = 1; valid && k <= extra; ++k) {
            const auto next = static_cast<unsigned char>(utf8[i + static_cast<size_t>(k)]);
            if ((next & 0xC0) != 0x80) {
                valid = false;
            } else {
                cp = (cp << 6) | (next & 0x3F);
            }
        }
        if (!valid) {
            out.push_back('?');
            ++i;
            continue;
        }
        const int byte = CodePointToCp1252(cp);
        out.push_back(byte < 0 ? '?' : static_cast<char>(byte));
        i += static_cast<size_t>(extra) + 1;
    }
    return out;
}

}  // namespace qb::store
