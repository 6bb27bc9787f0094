#include "shell/container.h"

#include <algorithm>

namespace qb::shell {

Container::Container(store::TableFiles& files, Host& host, const PageRegistry& registry)
    : files_(files), host_(host), registry_(registry), context_{files_, profiles_, host_} {}

Container::~Container() = default;

void Container::LoadProfiles() {
    profiles_ = store::ProfileList();
    auto current = store::LoadHubProfiles(files_, kHubProfilesFile);
    for (auto& name : current.names)
        profiles_.Append(std::move(name));
    profileText_ = std::move(current.text);

    // Only the copy's row count matters: it tells whether the hub has gained profiles.
    oldProfiles_ = store::ProfileList();
    for (auto& name : store::LoadHubProfiles(files_, kProfileCopyFile).names) {
        oldProfiles_.Append(std::move(name));
    }
}

Page* Container::Find(const std::string& key) const {
    for (const auto& page : pages_) {
        if (page->Key() == key) return page.get();
    }
    return nullptr;
}

Page* Container::Open(const std::string& key) {
    if (Page* open = Find(key)) {
        Activate(*open);
        return open;
    }
    auto page = registry_.Create(key, context_);
    if (!page) return nullptr;
    page->Load();
    pages_.push_back(std::move(page));
    Page& opened = *pages_.back();
    if (onPageOpened) onPageOpened(opened);
    Activate(opened);
    return &opened;
}

bool Container::Close(Page& page) {
    if (!page.QueryUnload()) return false;
    if (onPageClosing) onPageClosing(page);
    const auto at = std::find_if(pages_.begin(), pages_.end(),
                                 [&](const auto& open) { return open.get() == &page; });
    if (at == pages_.end()) return true;
    const bool wasActive = active_ == &page;
    pages_.erase(at);
    if (wasActive) {
        active_ = nullptr;
        if (!pages_.empty()) Activate(*pages_.back());
    }
    return true;
}

bool Container::CloseAll() {
    while (!pages_.empty()) {
        if (!Close(*pages_.front())) return false;
    }
    return true;
}

void Container::Activate(Page& page) {
    active_ = &page;
    if (onPageActivated) onPageActivated(page);
}

}  // namespace qb::shell
