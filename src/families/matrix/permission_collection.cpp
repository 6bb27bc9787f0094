#include "families/matrix/permission_collection.h"

#include <charconv>
#include <limits>
#include <stdexcept>

namespace qb::pages {

void Permission::SetProfileKey(const std::string& number) {
    int value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error != std::errc() || end != number.data() + number.size()) {
        throw std::invalid_argument("a profile number is no number: " + number);
    }
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
        throw std::out_of_range("a profile number past 16 bits: " + number);
    }
    profileKey_ = static_cast<std::int16_t>(value);
}

std::string PermissionKey(const std::string& command, const std::string& profile) {
    return command + "*" + profile;
}

Permission& Permissions::Add(std::string key, std::string command, std::string profile,
                             bool permission, const std::string& profileKey,
                             const std::string& listKey) {
    if (!listKey.empty() && byKey_.contains(listKey)) {
        throw std::invalid_argument("two permissions under the key \"" + listKey + "\"");
    }
    auto object = std::make_unique<Permission>();
    object->key = std::move(key);
    object->command = std::move(command);
    object->profile = std::move(profile);
    object->permission = permission;
    object->SetProfileKey(profileKey);
    Permission& added = *object;
    items_.emplace_back(listKey, std::move(object));
    if (!listKey.empty()) byKey_.emplace(listKey, &added);
    return added;
}

Permission& Permissions::Item(int index) {
    if (index < 1 || index > Count()) {
        throw std::out_of_range("no permission at " + std::to_string(index));
    }
    return *items_[static_cast<size_t>(index - 1)].second;
}

Permission& Permissions::Item(const std::string& listKey) {
    Permission* found = Find(listKey);
    if (found == nullptr) throw std::out_of_range("no permission under \"" + listKey + "\"");
    return *found;
}

Permission* Permissions::Find(const std::string& listKey) {
    const auto found = byKey_.find(listKey);
    return found == byKey_.end() ? nullptr : found->second;
}

void Permissions::Remove(int index) {
    Item(index);  // the same error for a position that holds nothing
    const auto at = items_.begin() + (index - 1);
    if (!at->first.empty()) byKey_.erase(at->first);
    items_.erase(at);
}

void Permissions::Remove(const std::string& listKey) {
    const Permission& object = Item(listKey);
    for (size_t i = 0; i < items_.size(); ++i) {
        if (items_[i].second.get() == &object) {
            Remove(static_cast<int>(i) + 1);
            return;
        }
    }
}

void Permissions::Clear() {
    items_.clear();
    byKey_.clear();
}

}  // namespace qb::pages
