#pragma once
// The main window's model: the hub's profile lists, the open pages and which of them is active.
// The desktop window shows it; the command line drives it without a window.

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "shell/host.h"
#include "shell/page.h"
#include "shell/page_registry.h"
#include "store/hub_profiles.h"
#include "store/table_files.h"

namespace qb::shell {

class Container {
  public:
    Container(store::TableFiles& files, Host& host, const PageRegistry& registry);
    ~Container();

    store::TableFiles& Files() { return files_; }
    Host& GetHost() { return host_; }
    const PageRegistry& Registry() const { return registry_; }

    // lvwProfiles from the hub's cfg\Profiles.xml and lvwOldProfiles from the copy kept at the
    // last rebuild, each behind its Unregistered row.
    void LoadProfiles();
    const store::ProfileList& Profiles() const { return profiles_; }
    const store::ProfileList& OldProfiles() const { return oldProfiles_; }
    // The hub file's text as read, for the copy a rebuild writes.
    const std::string& ProfileText() const { return profileText_; }

    // The news rows, never shown as a list: the status bar shows the last one.
    ListControl& News() { return lvwNews_; }

    // Loads and shows the page of `key`, or brings it to the front when it is open already; there
    // is never a second instance of a page. Null when the key has no page.
    Page* Open(const std::string& key);
    // Closes a page unless it is dirty and the user cancels. True when it closed.
    bool Close(Page& page);
    // Closes every page in turn; one cancel keeps that page and all after it open.
    bool CloseAll();

    Page* Find(const std::string& key) const;
    Page* Active() const { return active_; }
    void Activate(Page& page);
    const std::vector<std::unique_ptr<Page>>& OpenPages() const { return pages_; }

    // Front ends are told of pages that open, are about to go, and come to the front.
    std::function<void(Page&)> onPageOpened;
    std::function<void(Page&)> onPageClosing;
    std::function<void(Page&)> onPageActivated;

  private:
    store::TableFiles& files_;
    Host& host_;
    const PageRegistry& registry_;
    store::ProfileList profiles_;
    store::ProfileList oldProfiles_;
    std::string profileText_;
    ListControl lvwNews_{"lvwNews"};
    PageContext context_;
    std::vector<std::unique_ptr<Page>> pages_;
    Page* active_ = nullptr;
};

// Where the hub keeps its profiles and where the manager keeps its copy, below the hub folder.
inline constexpr const char* kHubProfilesFile = "cfg\\Profiles.xml";
inline constexpr const char* kProfileCopyFile =
    "scripts\\Vandrell's Quillbook\\Settings\\General\\PtokaX\\Profiles.xml";

}  // namespace qb::shell
