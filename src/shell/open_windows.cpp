#include "shell/open_windows.h"

#include <stdexcept>

#include "shell/catalogue.h"

namespace qb::shell {
namespace {

std::string TrimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    const auto last = text.find_last_not_of(' ');
    return std::string(text.substr(first, last - first + 1));
}

std::string RemoveBlanks(std::string_view text) {
    std::string out;
    for (char c : text) {
        if (c != ' ') out.push_back(c);
    }
    return out;
}

}  // namespace

COpenWindow::COpenWindow(std::string key_, std::string_view name, std::string_view tag)
    : key(std::move(key_)), name_(CaptionOfKey(name)), tag_(TrimBlanks(tag)) {}

void COpenWindows::Add(std::string key, std::string_view name, std::string_view tag) {
    entries_.emplace_back(std::move(key), name, tag);
}

const COpenWindow& COpenWindows::Item(int index) const {
    if (index < 1 || index > Count()) {
        throw std::out_of_range("no open window " + std::to_string(index));
    }
    return entries_[static_cast<size_t>(index - 1)];
}

void COpenWindows::Remove(int index) {
    Item(index);
    entries_.erase(entries_.begin() + (index - 1));
}

std::vector<WindowsMenuItem> BuildWindowsMenu(const COpenWindows& windows) {
    std::vector<WindowsMenuItem> menu(kWindowsMenuItems);
    int i = 1;
    for (const auto& entry : windows) {
        if (i > kWindowsMenuItems) break;
        const std::string number = i == 10 ? "1&0. " : "&" + std::to_string(i) + ". ";
        menu[static_cast<size_t>(i - 1)] = {number + entry.WindowName(), entry.WindowTag(), true};
        ++i;
    }
    return menu;
}

void ForgetOpenPage(COpenWindows& windows, std::string_view name) {
    if (windows.Count() == 0) return;
    const std::string wanted = RemoveBlanks(name);
    int count = 0;
    for (const auto& entry : windows) {
        ++count;
        if (entry.key == wanted) break;
    }
    windows.Remove(count);
}

}  // namespace qb::shell
