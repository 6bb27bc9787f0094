#include "store/text_rules.h"

#include <cctype>
#include <charconv>

namespace qb::store {
namespace {

bool IsKeyTrimChar(char c) {
    return c == '\t' || c == '"' || c == ',' || c == ' ';
}

}  // namespace

void TrimTableKey(std::string& key, bool keepBrackets) {
    while (!key.empty() && (IsKeyTrimChar(key.front()) || key.front() == '[')) {
        if (!keepBrackets && key.starts_with("[\"[")) {
            // "[" and the characters from the fourth to the last but one.
            key = "[" + (key.size() > 4 ? key.substr(3, key.size() - 4) : std::string());
        } else if (keepBrackets && key.front() == '[' && (key.size() < 2 || key[1] != '"')) {
            // "[" and the characters from the second to the last but one; the pass ends here.
            key = "[" + (key.size() > 2 ? key.substr(1, key.size() - 2) : std::string());
            break;
        } else {
            key.erase(0, 1);
        }
    }
    while (!key.empty() && (IsKeyTrimChar(key.back()) || key.back() == ']')) {
        if (key.back() == ']' && keepBrackets && !(key.size() >= 2 && key[key.size() - 2] == '"')) {
            break;
        }
        key.pop_back();
    }
}

void TrimTableValue(std::string& value) {
    size_t first = 0;
    while (first < value.size() && IsKeyTrimChar(value[first]))
        ++first;
    size_t last = value.size();
    while (last > first && IsKeyTrimChar(value[last - 1]))
        --last;
    value = value.substr(first, last - first);
}

std::string TrimBlanks(std::string_view text) {
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    const size_t last = text.find_last_not_of(' ');
    return std::string(text.substr(first, last - first + 1));
}

std::vector<std::string_view> SplitAll(std::string_view text, std::string_view delimiter) {
    std::vector<std::string_view> fields;
    if (text.empty()) return fields;
    if (delimiter.empty()) {
        fields.push_back(text);
        return fields;
    }
    size_t start = 0;
    while (true) {
        const size_t at = text.find(delimiter, start);
        if (at == std::string_view::npos) {
            fields.push_back(text.substr(start));
            return fields;
        }
        fields.push_back(text.substr(start, at - start));
        start = at + delimiter.size();
    }
}

std::optional<double> NumericValue(std::string_view text) {
    const std::string trimmed = TrimBlanks(text);
    if (trimmed.empty()) return std::nullopt;
    // Decimal numerals only: an optional sign, digits with an optional point, an optional exponent.
    size_t i = 0;
    if (trimmed[i] == '+' || trimmed[i] == '-') ++i;
    size_t digits = 0;
    while (i < trimmed.size() && std::isdigit(static_cast<unsigned char>(trimmed[i])))
        ++i, ++digits;
    if (i < trimmed.size() && trimmed[i] == '.') {
        ++i;
        while (i < trimmed.size() && std::isdigit(static_cast<unsigned char>(trimmed[i]))) {
            ++i, ++digits;
        }
    }
    if (digits == 0) return std::nullopt;
    if (i < trimmed.size() && (trimmed[i] == 'e' || trimmed[i] == 'E')) {
        ++i;
        if (i < trimmed.size() && (trimmed[i] == '+' || trimmed[i] == '-')) ++i;
        size_t expDigits = 0;
        while (i < trimmed.size() && std::isdigit(static_cast<unsigned char>(trimmed[i]))) {
            ++i, ++expDigits;
        }
        if (expDigits == 0) return std::nullopt;
    }
    if (i != trimmed.size()) return std::nullopt;
    // from_chars doesn't depend on the locale, which the desktop front end sets from the user's.
    const char* begin = trimmed.data() + (trimmed[0] == '+' ? 1 : 0);
    double number = 0;
    const auto [end, error] = std::from_chars(begin, trimmed.data() + trimmed.size(), number);
    if (error != std::errc() || end != trimmed.data() + trimmed.size()) return std::nullopt;
    return number;
}

bool IsNumericallyOne(std::string_view text) {
    return NumericValue(text) == 1.0;
}

}  // namespace qb::store
