#pragma once
// The main window's own list of open pages, which fills the Windows menu and the "Show All Windows"
// dialog. It isn't the list of child windows: an entry is made when a page is asked for (an
// intermediate node of the tree too) and removed when a page unloads.

#include <string>
#include <string_view>
#include <vector>

namespace qb::shell {

class COpenWindow {
  public:
    COpenWindow(std::string key, std::string_view name, std::string_view tag);

    std::string key;
    // The key with each "~" written " ~ ".
    const std::string& WindowName() const { return name_; }
    // The key with blanks trimmed from both ends.
    const std::string& WindowTag() const { return tag_; }

  private:
    std::string name_;
    std::string tag_;
};

class COpenWindows {
  public:
    // Appends an entry; entries stay in the order they came.
    void Add(std::string key, std::string_view name, std::string_view tag);
    const COpenWindow& Item(int index) const;  // from 1
    int Count() const { return static_cast<int>(entries_.size()); }
    void Remove(int index);  // from 1
    auto begin() const { return entries_.begin(); }
    auto end() const { return entries_.end(); }

  private:
    std::vector<COpenWindow> entries_;
};

// One of the ten entries mnuWindows1 to mnuWindows10.
struct WindowsMenuItem {
    std::string caption;  // "&3. Games ~ Trivia ~ Settings", the tenth "1&0. ..."
    std::string tag;
    bool visible = false;
};

inline constexpr int kWindowsMenuItems = 10;

// The Windows menu for the list: the first ten entries, the rest hidden.
std::vector<WindowsMenuItem> BuildWindowsMenu(const COpenWindows& windows);

// A page unloads: removes the entry whose key equals `name` with all its blanks removed. `name`
// is the page's tag, or else its caption. With no such entry the last entry goes: a page whose
// caption isn't its key takes another page's entry, as it always has.
void ForgetOpenPage(COpenWindows& windows, std::string_view name);

}  // namespace qb::shell
