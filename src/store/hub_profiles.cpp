#include "store/hub_profiles.h"

#include "store/line_reader.h"
#include "store/paths.h"
#include "store/text_rules.h"

namespace qb::store {

std::string ProfileNameOf(std::string_view line) {
    std::string working(line);
    TrimTableKey(working, false);  // indentation by tabs or blanks goes
    if (!working.starts_with("<Name>")) return {};
    // The search starts at the eighth character, so a name is at least one character long, and
    // a line without a closing "<" holds no name at all.
    const size_t close = working.find('<', 7);
    if (close == std::string::npos) return {};
    return working.substr(6, close - 6);
}

HubProfiles LoadHubProfiles(const TableFiles& files, std::string_view file) {
    HubProfiles result;
    const std::string hub = files.HubFolder();
    if (hub.empty() || files.SlotStuck()) return result;
    const auto native = ToNativePath(hub + std::string(file));
    if (!native) return result;
    int error = 0;
    auto reader = LineReader::Open(*native, error);
    if (!reader) return result;
    std::string line;
    while (reader->Next(line)) {
        result.text += line;
        result.text += "\r\n";
        std::string name = ProfileNameOf(line);
        if (!name.empty()) result.names.push_back(std::move(name));
    }
    return result;
}

}  // namespace qb::store
