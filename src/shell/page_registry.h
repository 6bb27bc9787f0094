#pragma once
// Function keys to pages. Each function group registers its pages; the main window, the command
// line and the tests open a page by its key through here.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "shell/page.h"

namespace qb::shell {

using PageFactory = std::function<std::unique_ptr<Page>(PageContext&)>;

class PageRegistry {
  public:
    void Register(std::string key, PageFactory factory);
    bool Has(const std::string& key) const { return factories_.contains(key); }
    // A new, not yet loaded page, or null when the key has no page.
    std::unique_ptr<Page> Create(const std::string& key, PageContext& context) const;
    const std::vector<std::string>& Keys() const { return keys_; }

  private:
    std::map<std::string, PageFactory> factories_;
    std::vector<std::string> keys_;
};

}  // namespace qb::shell
