#pragma once
// The data of the command shape's pages: whether a profile may use a command, one object per
// command and profile, in a keyed collection that keeps its objects in the order they came. One
// type serves every function that has such a page.

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace qb::pages {

class Permission {
  public:
    std::string key;      // command, "*", profile name: the object's key in its collection
    std::string command;  // "Submit"
    std::string profile;  // the profile's name
    bool permission = false;

    // The profile number, kept in 16 bits; set and read as text. A text that is no number in
    // that range raises std::invalid_argument or std::out_of_range.
    std::string ProfileKey() const { return std::to_string(profileKey_); }
    void SetProfileKey(const std::string& number);

  private:
    std::int16_t profileKey_ = 0;
};

// The key a page finds an object by, from the two texts a row shows.
std::string PermissionKey(const std::string& command, const std::string& profile);

class Permissions {
  public:
    // Makes an object of the five members and stores it under `listKey`, or without a key when
    // that is empty. A second object under one list key raises std::invalid_argument.
    Permission& Add(std::string key, std::string command, std::string profile, bool permission,
                    const std::string& profileKey, const std::string& listKey);
    int Count() const { return static_cast<int>(items_.size()); }
    // By position from 1, or by list key; std::out_of_range when there is none.
    Permission& Item(int index);
    Permission& Item(const std::string& listKey);
    // Null when no object has the list key.
    Permission* Find(const std::string& listKey);
    void Remove(int index);
    void Remove(const std::string& listKey);
    void Clear();

    // NewEnum: the objects in the order they were added.
    class Iterator {
      public:
        using Base =
            std::vector<std::pair<std::string, std::unique_ptr<Permission>>>::const_iterator;
        explicit Iterator(Base at) : at_(at) {}
        const Permission& operator*() const { return *at_->second; }
        const Permission* operator->() const { return at_->second.get(); }
        Iterator& operator++() {
            ++at_;
            return *this;
        }
        bool operator==(const Iterator& other) const { return at_ == other.at_; }

      private:
        Base at_;
    };
    Iterator begin() const { return Iterator(items_.begin()); }
    Iterator end() const { return Iterator(items_.end()); }

  private:
    // Each object with its list key, in order.
    std::vector<std::pair<std::string, std::unique_ptr<Permission>>> items_;
    std::unordered_map<std::string, Permission*> byKey_;
};

}  // namespace qb::pages
