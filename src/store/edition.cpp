#include "store/edition.h"

#include <algorithm>
#include <charconv>

namespace qb::store {

std::string VersionText(ProgramVersion version) {
    return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.revision);
}

std::optional<ProgramVersion> ParseVersion(std::string_view text) {
    int numbers[3] = {};
    const char* at = text.data();
    const char* const end = text.data() + text.size();
    for (int i = 0; i < 3; ++i) {
        if (i > 0) {
            if (at == end || *at != '.') return std::nullopt;
            ++at;
        }
        // Digits only: from_chars would take a sign.
        if (at == end || *at < '0' || *at > '9') return std::nullopt;
        const auto [next, error] = std::from_chars(at, end, numbers[i]);
        if (error != std::errc()) return std::nullopt;
        at = next;
    }
    if (at != end) return std::nullopt;
    return ProgramVersion{numbers[0], numbers[1], numbers[2]};
}

bool EditionHas(std::initializer_list<std::string_view> editions, std::string_view edition) {
    return edition == "Quillbook" ||
           std::find(editions.begin(), editions.end(), edition) != editions.end();
}

bool ArchiveBuilt(std::string_view edition, ProgramVersion version) {
    if (edition == "Quillbook") return version.major >= 6;
    return EditionHas({"TheVellum", "Archive", "Bookshelf", "DVDRack", "Jukebox", "Songbook",
                       "Arcade", "Hyperlink"},
                      edition);
}

bool Passes(const EditionTest& test, std::string_view edition, ProgramVersion version) {
    if (test.archive) return ArchiveBuilt(edition, version);
    if (test.everyEdition) return true;
    return edition == "Quillbook" ||
           std::find(test.alsoIn.begin(), test.alsoIn.end(), edition) != test.alsoIn.end();
}

}  // namespace qb::store
