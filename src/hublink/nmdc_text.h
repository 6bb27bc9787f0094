#pragma once
// The small text routines the hub link is written with. Hub text is single-byte: every routine
// works on bytes and keeps them as they came.

#include <string>
#include <string_view>

namespace qb::hublink {

// The part of `text` ahead of the first `separator`; all of it when there is none.
std::string_view Before(std::string_view text, std::string_view separator);
// The part behind the first `separator`; empty when there is none.
std::string_view After(std::string_view text, std::string_view separator);

// Letters a to z in upper case; other bytes as they are. Commands are compared so, which makes
// "$lock" and "$Lock" the same command.
std::string UpperAscii(std::string_view text);

// True when the text converts to a floating number ("12", " 3.5", "-1e3").
bool IsNumber(std::string_view text);

// The fields of a $MyINFO line: "$ALL nick description$mode$speed<status>$email$share$".
struct MyInfo {
    std::string nick;
    std::string description;
    std::string mode;  // "ACTIVE" for "A", else "PASSIVE"
    std::string speed;
    int status = 0;  // the byte behind the speed
    std::string email;
    std::string share;  // "0" when it isn't a number
};
MyInfo ParseMyInfo(std::string_view arguments);

// A user's connection text as a user list would show it: "Modem", "Satellite", "ISDN", "DSL",
// "Cable", "LAN" or "Unknown".
std::string NormaliseConnection(std::string_view connection);

}  // namespace qb::hublink
