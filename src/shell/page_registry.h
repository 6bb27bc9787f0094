#pragma once
// Function keys to pages. Each function group registers its pages as one table; the main window,
// the command line and the tests open a page by its key through here.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "shell/page.h"

namespace qb::shell {

using PageFactory = std::function<std::unique_ptr<Page>(PageContext&)>;

// A row of a group's table of pages: a page that is its declaration alone, a page class with
// code of its own over its declaration (PageOf), or a member of a family engine that makes its
// own declaration.
struct PageEntry {
    PageEntry(const PageDecl& declared);  // NOLINT(google-explicit-constructor): tables list them
    PageEntry(const PageDecl& declared, PageFactory make);
    PageEntry(std::string pageKey, PageFactory make);

    std::string key;
    const PageDecl* decl = nullptr;  // checked at registration where there is one
    PageFactory factory;
};

// The entry of a page class: its key and caption from `P::Decl()`.
template <class P>
PageEntry PageOf() {
    return {P::Decl(), [](PageContext& context) { return std::make_unique<P>(context); }};
}

class PageRegistry {
  public:
    // The declarations are checked here, at start: a key its file lacks is an error now, not an
    // empty field later.
    void Register(const std::vector<PageEntry>& pages);
    void Register(const PageEntry& page);
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
