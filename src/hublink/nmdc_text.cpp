#include "hublink/nmdc_text.h"

#include <cstdlib>

namespace qb::hublink {

std::string_view Before(std::string_view text, std::string_view separator) {
    const size_t at = text.find(separator);
    return at == std::string_view::npos ? text : text.substr(0, at);
}

std::string_view After(std::string_view text, std::string_view separator) {
    const size_t at = text.find(separator);
    return at == std::string_view::npos ? std::string_view() : text.substr(at + separator.size());
}

std::string UpperAscii(std::string_view text) {
    std::string upper(text);
    for (char& c : upper) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return upper;
}

bool IsNumber(std::string_view text) {
    // strtod skips leading blanks itself; trailing ones are allowed as a conversion allows them.
    const std::string copy(text);
    const char* start = copy.c_str();
    char* end = nullptr;
    std::strtod(start, &end);
    if (end == start) return false;
    while (*end == ' ')
        ++end;
    return *end == '\0';
}

MyInfo ParseMyInfo(std::string_view arguments) {
    MyInfo info;
    std::string_view rest = After(arguments, " ");
    info.nick = Before(rest, " ");
    rest = After(rest, " ");
    info.description = Before(rest, "$");
    rest = After(rest, "$");
    info.mode = Before(rest, "$") == "A" ? "ACTIVE" : "PASSIVE";
    rest = After(rest, "$");
    std::string_view speed = Before(rest, "$");
    rest = After(rest, "$");
    // The last byte of the speed field is the status byte. A hub may send the field empty.
    if (!speed.empty()) {
        info.status = static_cast<unsigned char>(speed.back());
        speed.remove_suffix(1);
    }
    info.speed = speed;
    info.email = Before(rest, "$");
    rest = After(rest, "$");
    info.share = Before(rest, "$");
    if (info.share.empty() || !IsNumber(info.share)) info.share = "0";
    return info;
}

std::string NormaliseConnection(std::string_view connection) {
    if (connection == "28.8Kbps" || connection == "33.6Kbps" || connection == "56Kbps") {
        return "Modem";
    }
    if (connection == "Satellite" || connection == "Microwave") return "Satellite";
    if (connection == "ISDN" || connection == "DSL" || connection == "Cable") {
        return std::string(connection);
    }
    if (connection == "LAN(T1)" || connection == "LAN(T3)" || connection == "LAN") return "LAN";
    return "Unknown";
}

}  // namespace qb::hublink
