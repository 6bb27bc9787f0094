#pragma once
// The hub's user profiles, read from its own profile file at every start. The file is read for
// its "<Name>" lines only: the reader is no XML parser and the hub's file has always had that form.

#include <string>
#include <string_view>
#include <vector>

#include "store/table_files.h"

namespace qb::store {

// The profile list of a hub. Row 1 is always Unregistered; the hub's profiles follow in file order.
// A profile's number in every settings file is its row index less 2: -1 is Unregistered.
class ProfileList {
  public:
    ProfileList() : names_{"Unregistered"} {}

    int Count() const { return static_cast<int>(names_.size()); }
    const std::string& Text(int row) const { return names_.at(static_cast<size_t>(row - 1)); }
    int LastNumber() const { return Count() - 2; }  // the highest profile number
    void Append(std::string name) { names_.push_back(std::move(name)); }
    const std::vector<std::string>& Names() const { return names_; }

  private:
    std::vector<std::string> names_;
};

struct HubProfiles {
    std::vector<std::string> names;  // in file order
    std::string text;                // every line read, each closed by CRLF
};

// Reads `file`, relative to the hub folder. A folder that can't be derived or a file that can't be
// opened gives no names and no text, silently.
HubProfiles LoadHubProfiles(const TableFiles& files, std::string_view file);

// The profile name on a line that, after TrimTableKey, begins with "<Name>": the text from the
// seventh character up to the next "<" from the eighth on. Empty when the line holds none.
std::string ProfileNameOf(std::string_view line);

}  // namespace qb::store
