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
                       std::string_view subTable) {
    list.Clear();
    for (int number = -1; number <= profiles.LastNumber(); ++number) {
        list.Add(number + 2, std::to_string(number) + "ID", profiles.Text(number + 2));
        const std::string value =
            files.ReadTableValue(file, std::to_string(number), subTable, false);
        list.SetChecked(number + 2, store::IsNumericallyOne(value.empty() ? "0" : value));
    }
}

void ResetProfileChecks(ListControl& list, const store::ProfileList& profiles) {
    list.Clear();
    for (int number = -1; number <= profiles.LastNumber(); ++number) {
        list.Add(number + 2, std::to_string(number) + "ID", profiles.Text(number + 2));
    }
}

std::string ProfileCheckValue(const ListControl& list, int profile) {
    return list.Row(profile + 2).checked ? "1" : "0";
}

}  // namespace qb::shell
