#include "store/edition.h"

#include <algorithm>

namespace qb::store {

std::string VersionText(ProgramVersion version) {
    return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.revision);
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
