#pragma once
// The trimming and splitting rules that every reader of the table files shares. The readers are
// line scanners, not a Lua parser, and the scripts' files have been read this way for years: the
// rules, including what they lose, are kept exactly.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qb::store {

// Strips quotes, commas, blanks, tabs and square brackets around a key. With keepBrackets a
// numbered key keeps its brackets ("[1]"), without them it loses them ("1"). The front pass cuts
// the last character whenever it rebuilds the text around a bracket, whatever that character is.
void TrimTableKey(std::string& key, bool keepBrackets);

// Strips tabs, double quotes, commas and blanks from both ends; inner characters stay.
void TrimTableValue(std::string& value);

// Removes blanks (the space character only, not tabs) from both ends.
std::string TrimBlanks(std::string_view text);

// Every field between delimiters; an empty text has no fields at all.
std::vector<std::string_view> SplitAll(std::string_view text, std::string_view delimiter);

// The number a text converts to, as the scripts' home system reads a numeral: blanks around it,
// an optional sign, digits with an optional point, an optional exponent. Nullopt for anything
// else ("abc", "1x", "").
std::optional<double> NumericValue(std::string_view text);

// True when the text converts to a number equal to 1 ("1", " 1", "1.0", "01"). Text that isn't a
// number ("true", "1x", "") is not 1: only the numeral ticks a box.
bool IsNumericallyOne(std::string_view text);

}  // namespace qb::store
