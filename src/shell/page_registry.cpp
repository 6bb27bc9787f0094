#include "shell/page_registry.h"

#include <stdexcept>

namespace qb::shell {

PageEntry::PageEntry(const PageDecl& declared)
    : PageEntry(declared, [&declared](PageContext& context) {
          return std::make_unique<Page>(context, declared);
      }) {}

PageEntry::PageEntry(const PageDecl& declared, PageFactory make)
    : key(declared.key), decl(&declared), factory(std::move(make)) {}

PageEntry::PageEntry(std::string pageKey, PageFactory make)
    : key(std::move(pageKey)), factory(std::move(make)) {}

void PageRegistry::Register(const std::vector<PageEntry>& pages) {
    for (const PageEntry& page : pages)
        Register(page);
}

void PageRegistry::Register(const PageEntry& page) {
    if (page.decl != nullptr) Validate(*page.decl);
    Register(page.key, page.factory);
}

void PageRegistry::Register(std::string key, PageFactory factory) {
    if (factories_.contains(key)) throw std::logic_error("page registered twice: " + key);
    keys_.push_back(key);
    factories_.emplace(std::move(key), std::move(factory));
}

std::unique_ptr<Page> PageRegistry::Create(const std::string& key, PageContext& context) const {
    const auto found = factories_.find(key);
    if (found == factories_.end()) return nullptr;
    return found->second(context);
}

}  // namespace qb::shell
