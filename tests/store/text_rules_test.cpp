// The trim and split rules every reader shares, with their stated losses.

#include "store/text_rules.h"

#include <gtest/gtest.h>

namespace qb::store {
namespace {

std::string Key(std::string text, bool keepBrackets) {
    TrimTableKey(text, keepBrackets);
    return text;
}

std::string Value(std::string text) {
    TrimTableValue(text);
    return text;
}

struct KeyCase {
    const char* input;
    const char* withoutBrackets;
    const char* withBrackets;
};

TEST(TrimTableKey, KeepsOrDropsBracketsAsTheTableSays) {
    const KeyCase cases[] = {
        {"[\"sBorder\"] ", "sBorder", "sBorder"},
        {"[1] ", "1", "[1]"},
        {"[-1] ", "-1", "[-1]"},
        {"[\"[Rules]\"] ", "Rules", "[Rules]"},
        {"[Rules]", "Rules", "[Rules"},  // the front pass cuts the last character, whatever it is
        {"tEnabledProfiles ", "tEnabledProfiles", "tEnabledProfiles"},
        {"\"Some text\",", "Some text", "Some text"},
        {"},", "}", "}"},
        {"\t\t[0] ", "0", "[0]"},
        {"", "", ""},
        {"[", "", "["},
        {"[\"[", "", "["},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Key(c.input, false), c.withoutBrackets) << "input: " << c.input;
        EXPECT_EQ(Key(c.input, true), c.withBrackets) << "input: " << c.input;
    }
}

TEST(TrimTableValue, StripsQuotesCommasBlanksAndTabsAtBothEndsOnly) {
    EXPECT_EQ(Value(" \"hello\","), "hello");
    EXPECT_EQ(Value("\"hello, \","), "hello");  // the text's own comma and blank go too
    EXPECT_EQ(Value("    "), "");
    EXPECT_EQ(Value("\t1,"), "1");
    EXPECT_EQ(Value(" \"a \"quoted\" b\","), "a \"quoted\" b");  // inner characters stay
    EXPECT_EQ(Value(" {"), "{");
    EXPECT_EQ(Value(" \"\xBB\xAB\","), "\xBB\xAB");  // Windows-1252 bytes pass untouched
}

TEST(TrimBlanks, RemovesSpacesButNotTabs) {
    EXPECT_EQ(TrimBlanks("  tName  "), "tName");
    EXPECT_EQ(TrimBlanks("\ttName\t"), "\ttName\t");
    EXPECT_EQ(TrimBlanks("   "), "");
}

TEST(SplitAll, GivesEveryFieldAndNoneForEmptyText) {
    EXPECT_TRUE(SplitAll("", "=").empty());
    EXPECT_EQ(SplitAll("a=b=c", "="), (std::vector<std::string_view>{"a", "b", "c"}));
    EXPECT_EQ(SplitAll("a*", "*"), (std::vector<std::string_view>{"a", ""}));
    EXPECT_EQ(SplitAll("abc", "*"), (std::vector<std::string_view>{"abc"}));
}

TEST(IsNumericallyOne, OnlyTheNumeralOneTicksABox) {
    for (const char* one : {"1", " 1 ", "1.0", "01", "+1", "1e0", "10e-1"}) {
        EXPECT_TRUE(IsNumericallyOne(one)) << one;
    }
    for (const char* other : {"", "0", "true", "1x", "1.5", "one", "-1", "1,", ".", "e1", "1e"}) {
        EXPECT_FALSE(IsNumericallyOne(other)) << other;
    }
}

}  // namespace
}  // namespace qb::store
