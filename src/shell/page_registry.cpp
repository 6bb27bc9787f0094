#include "shell/page_registry.h"

#include <stdexcept>

namespace qb::shell {

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
