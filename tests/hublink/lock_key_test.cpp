// The $Key answer to a hub's $Lock. Every expected key here was worked out by hand: each byte is
// L[i] xor L[i-1] (the first: L[0] xor L[n-1] xor L[n-2] xor 5), with its nibbles swapped.

#include "hublink/lock_key.h"

#include <gtest/gtest.h>

namespace qb::hublink {
namespace {

TEST(LockToKey, KnownLocks) {
    // "Lock": 4C^6B^63^05 = 41 -> 14; 6F^4C = 23 -> 32; 63^6F = 0C -> C0; 6B^63 = 08 -> 80.
    EXPECT_EQ(LockToKey("Lock"),
              "\x14"
              "2\xC0\x80");
    // "ABC": 41^43^42^05 = 45 -> 54 'T'; 42^41 = 03 -> 30 '0'; 43^42 = 01 -> 10.
    EXPECT_EQ(LockToKey("ABC"), "T0\x10");
    // "A" then 86: 41^86^41^05 = 83 -> 38 '8'; 86^41 = C7 -> 7C, escaped in the middle.
    EXPECT_EQ(LockToKey("A\x86"), "8/%DCN124%/");
}

TEST(LockToKey, TheHubsPkPartIsCutOffAtTheFirstBlank) {
    EXPECT_EQ(LockToKey("Lock Pk=SomeHub"), LockToKey("Lock"));
    EXPECT_EQ(LockToKey("ABC Pk=x y z"), "T0\x10");
}

TEST(LockToKey, OneByteLockIsThatByteXorFive) {
    // 41^05 = 44 -> 44 'D'.
    EXPECT_EQ(LockToKey("A"), "D");
    EXPECT_EQ(LockToKey("A Pk=x"), "D");
}

TEST(LockToKey, EachFramingByteIsEscaped) {
    // One-byte locks chosen so that the swapped byte is the escaped value.
    const struct {
        const char* lock;
        const char* key;
    } cases[] = {
        {"\x05", "/%DCN000%/"},  // 05^05 = 00
        {"U", "/%DCN005%/"},     // 55^05 = 50 -> 05
        {"G", "/%DCN036%/"},     // 47^05 = 42 -> 24
        {"\x03", "/%DCN096%/"},  // 03^05 = 06 -> 60
        {"\xC2", "/%DCN124%/"},  // C2^05 = C7 -> 7C
        {"\xE2", "/%DCN126%/"},  // E2^05 = E7 -> 7E
    };
    for (const auto& c : cases) {
        EXPECT_EQ(LockToKey(c.lock), c.key)
            << "lock byte " << int(static_cast<unsigned char>(c.lock[0]));
    }
}

TEST(LockToKey, EmptyLockGivesEmptyKey) {
    EXPECT_EQ(LockToKey(""), "");
    EXPECT_EQ(LockToKey(" Pk=x"), "");
}

}  // namespace
}  // namespace qb::hublink
