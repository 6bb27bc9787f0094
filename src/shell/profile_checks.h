#pragma once
// The profile check list: a one-column list with a check box per row of the hub's profile list, in
// that order, stored as a sub-table of rows "[-1] = 1," keyed by profile number. Many pages have
// one or more; they all load, reset and save it here.

#include <string>
#include <string_view>

#include "shell/controls.h"
#include "shell/page.h"
#include "store/schema.h"

namespace qb::shell {

// The one column, key "column1", as wide as the list less 350.
void AddProfileColumn(ListControl& list, std::string text);

// A row per profile, key "<number>ID", text the profile's name, ticked exactly when the file's
// value for the number is numerically 1. A missing file or key reads as 0. A list whose rows start
// at a later number than -1 leaves the profiles before it out.
void LoadProfileChecks(ListControl& list, store::TableFiles& files,
                       const store::ProfileList& profiles, std::string_view file,
                       std::string_view subTable, int first = -1);
void LoadProfileChecks(ListControl& list, const PageContext& context, std::string_view file,
                       std::string_view subTable);

// The same rows, all unticked, for RestoreDefaults.
void ResetProfileChecks(ListControl& list, const store::ProfileList& profiles, int first = -1);

// The value a row saves: "1" when ticked, else "0". `profile` is the row's profile number, and
// `first` that of the list's first row.
std::string ProfileCheckValue(const ListControl& list, int profile, int first = -1);

}  // namespace qb::shell
