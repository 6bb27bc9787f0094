#include "shell/profile_checks.h"

#include "store/text_rules.h"

namespace qb::shell {

void AddProfileColumn(ListControl& list, std::string text) {
    list.AddColumn("column1", std::move(text), list.Width() - 350);
}

void LoadProfileChecks(ListControl& list, const PageContext& context, std::string_view file,
                       std::string_view subTable) {
    LoadProfileChecks(list, context.files, context.profiles, file, subTable);
}

void LoadProfileChecks(ListControl& list, store::TableFiles& files,
                       const store::ProfileList& profiles, std::string_view file,
                       std::string_view subTable, int first) {
    list.Clear();
    for (int number = first; number <= profiles.LastNumber(); ++number) {
        const int row = number - first + 1;
        list.Add(row, std::to_string(number) + "ID", profiles.Text(number + 2));
        const std::string value =
            files.ReadTableValue(file, std::to_string(number), subTable, false);
        list.SetChecked(row, store::IsNumericallyOne(value.empty() ? "0" : value));
    }
}

void ResetProfileChecks(ListControl& list, const store::ProfileList& profiles, int first) {
    list.Clear();
    for (int number = first; number <= profiles.LastNumber(); ++number) {
        list.Add(number - first + 1, std::to_string(number) + "ID", profiles.Text(number + 2));
    }
}

std::string ProfileCheckValue(const ListControl& list, int profile, int first) {
    return list.Row(profile - first + 1).checked ? "1" : "0";
}

}  // namespace qb::shell
