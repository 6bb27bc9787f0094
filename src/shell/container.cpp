#include "shell/container.h"

#include <algorithm>

#include "shell/links.h"
#include "shell/text_editor.h"
#include "store/edition.h"

namespace qb::shell {

Container::Container(store::TableFiles& files, Host& host, const PageRegistry& registry,
                     store::ProgramVersion version)
    : files_(files),
      host_(host),
      registry_(registry),
      version_(version),
      context_{files_, profiles_, host_, version_} {
    windowsMenu_ = BuildWindowsMenu(openWindows_);
    tlbMDITop.onButtonClick = [this](const std::string& key) {
        if (key == "TREEVIEW") {
            ToggleSideBar();
        } else {
            GroupButtonClick(key);
        }
    };
    tlbMDITop.onMenuClick = [this](const std::string&, const std::string& menuKey) {
        OpenFunctionPage(menuKey);
    };
    tlbSidebar.onButtonClick = [this](const std::string& key) {
        // Every node but the root: the root stays as it is.
        std::function<void(const CatalogueNode&)> walk = [&](const CatalogueNode& node) {
            for (const auto& child : node.children) {
                if (child.children.empty()) continue;
                if (key == "EXPAND") {
                    expanded_.insert(child.key);
                } else {
                    expanded_.erase(child.key);
                }
                walk(child);
            }
        };
        walk(catalogue_.root);
        NavigationChanged();
    };
}

Container::~Container() = default;

std::string Container::WindowCaption() const {
    return "Vandrell's " + std::string(store::kEdition) + " " + store::VersionText(version_);
}

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

// ---- Navigation ------------------------------------------------------------------------------

void Container::FillNavigation() {
    tlbMDITop.Clear();
    tlbMDITop.imageList = "imlMDIToolbarTop";
    tlbMDITop.AddButton("TREEVIEW", "Show/Hide Functions treeview", "Treeview");
    tlbMDITop.AddSeparator();
    tlbSidebar.Clear();
    tlbSidebar.imageList = "imlSidebar";
    tlbSidebar.AddButton("EXPAND", "Expand Nodes", "EXPAND");
    tlbSidebar.AddButton("CLOSE", "Close Nodes", "CLOSE");

    catalogue_ = BuildCatalogue(files_, store::kEdition, version_);
    for (const auto& group : catalogue_.groups) {
        const CatalogueNode* node = catalogue_.Find(group.key);
        tlbMDITop.AddButton(group.key, node != nullptr ? node->text : group.key, group.key);
        for (const auto& entry : group.menu)
            tlbMDITop.AddMenuEntry(group.key, entry.key, entry.text);
    }
    expanded_ = {catalogue_.root.key};
    selectedNode_.clear();
    NavigationChanged();
}

bool Container::SelectNode(const std::string& key) {
    if (catalogue_.Find(key) == nullptr) return false;
    selectedNode_ = key;
    NavigationChanged();
    return true;
}

void Container::SetExpanded(const std::string& key, bool expanded) {
    if (expanded) {
        expanded_.insert(key);
    } else {
        expanded_.erase(key);
    }
}

void Container::ToggleSideBar() {
    sideBarVisible_ = !sideBarVisible_;
    NavigationChanged();
}

int Container::GroupCounter(const std::string& group) const {
    const auto found = groupCounters_.find(group);
    return found == groupCounters_.end() ? 0 : found->second;
}

void Container::GroupButtonClick(const std::string& group) {
    const GroupButton* button = catalogue_.Group(group);
    if (button == nullptr || button->menu.empty()) return;
    // Each click opens the group's next page, so that clicks walk through the group; the count
    // is the window's own and goes on across pages being closed.
    std::int16_t& counter = groupCounters_[group];
    ++counter;
    if (counter > static_cast<int>(button->menu.size())) counter = 1;
    OpenFunctionPage(button->menu[static_cast<size_t>(counter - 1)].key);
}

void Container::NavigationChanged() const {
    if (onNavigationChanged) onNavigationChanged();
}

// ---- Pages ---------------------------------------------------------------------------------

Page* Container::OpenFunctionPage(std::string key) {
    struct Busy {
        const std::function<void(bool)>& tell;
        explicit Busy(const std::function<void(bool)>& t) : tell(t) {
            if (tell) tell(true);
        }
        ~Busy() {
            if (tell) tell(false);
        }
    } busy(onBusy);
    if (key.empty()) key = selectedNode_;
    Page* page = nullptr;
    const bool function = IsFunctionKey(key);
    if (function) {
        // A function whose page a later version brings: nothing to show, nothing to list.
        if (!registry_.Has(key)) return nullptr;
        page = Open(key);
    }
    bool listed = std::any_of(openWindows_.begin(), openWindows_.end(),
                              [&](const COpenWindow& entry) { return entry.key == key; });
    // A group node opens nothing and isn't listed; an intermediate node isn't bold, and so it is
    // listed under its own name with no page behind it.
    const CatalogueNode* selected = catalogue_.Find(selectedNode_);
    if (!function && selected != nullptr && selected->bold) listed = true;
    if (!listed) openWindows_.Add(key, key, key);
    RebuildWindowsMenu();
    return page;
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
    return &Adopt(std::move(page));
}

Page* Container::OpenTextEditor(const std::string& file, const std::string& mode) {
    if (Page* open = Find(kTextEditorKey)) {
        if (!Close(*open)) return nullptr;
    }
    // The page that asked is told of each save, and is active again when the editor closes.
    editorOpener_ = active_ != nullptr ? active_->Key() : std::string();
    return &Adopt(MakeTextEditor(context_, file, mode, [this, file] {
        if (Page* opener = Find(editorOpener_)) opener->TextEditorSaved(file);
    }));
}

Page& Container::Adopt(std::unique_ptr<Page> page) {
    page->onPopupMenu = [this, raw = page.get()](const std::string& menu) {
        if (onPopupMenu) onPopupMenu(*raw, menu);
    };
    page->Load();
    pages_.push_back(std::move(page));
    Page& opened = *pages_.back();
    if (onPageOpened) onPageOpened(opened);
    Activate(opened);
    return opened;
}

bool Container::Close(Page& page) {
    if (!page.QueryUnload()) return false;
    if (onPageClosing) onPageClosing(page);
    const auto at = std::find_if(pages_.begin(), pages_.end(),
                                 [&](const auto& open) { return open.get() == &page; });
    if (at == pages_.end()) return true;
    // The editor is opened by pages, not by OpenFunctionPage, and so was never listed.
    if (page.Key() != kTextEditorKey) {
        ForgetOpenPage(openWindows_, page.Tag().empty() ? page.Caption() : page.Tag());
        RebuildWindowsMenu();
    }
    const bool wasActive = active_ == &page;
    const bool editor = page.Key() == kTextEditorKey;
    pages_.erase(at);
    if (wasActive) {
        active_ = nullptr;
        Page* opener = editor ? Find(editorOpener_) : nullptr;
        if (opener != nullptr) {
            Activate(*opener);
        } else if (!pages_.empty()) {
            Activate(*pages_.back());
        }
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

// ---- Windows menu ----------------------------------------------------------------------------

void Container::RebuildWindowsMenu() {
    windowsMenu_ = BuildWindowsMenu(openWindows_);
    if (onWindowsChanged) onWindowsChanged();
}

bool Container::ClickWindowsMenu(int number) {
    if (number < 1 || number > kWindowsMenuItems) return false;
    const WindowsMenuItem item = windowsMenu_[static_cast<size_t>(number - 1)];
    if (!item.visible) return false;
    OpenFunctionPage(item.tag);
    return true;
}

// ---- Application menus ----------------------------------------------------------------------

bool Container::ClickAppMenu(const std::string& entry) {
    if (entry == "mnuToolsSideBar") {
        ToggleSideBar();
        return true;
    }
    // "&Close All Windows" has never had a handler.
    if (entry == "mnuWindowsClose") return true;
    if (entry == "mnuHelpVisit") {
        host_.OpenWebAddress(kSiteAddress);
        return true;
    }
    if (entry == "mnuHelpDonate") {
        host_.OpenWebAddress(kDonateAddress);
        return true;
    }
    const std::string windows = "mnuWindows";
    if (entry.starts_with(windows)) {
        const std::string number = entry.substr(windows.size());
        for (int i = 1; i <= kWindowsMenuItems; ++i) {
            if (number == std::to_string(i)) return ClickWindowsMenu(i);
        }
    }
    return false;
}

// ---- Status bar -----------------------------------------------------------------------------

namespace {
constexpr const char* kVersionFile = "General\\Globals\\Version.tbl";
constexpr const char* kCurrentUnknown = "Current Version = Unknown";
}  // namespace

void Container::SetupStatusBar(int windowWidth) {
    stsContainer.SetKey(1, "INSTALLED");
    stsContainer.SetText(
        1, "Installed Version = " + files_.ReadTableValue(kVersionFile, "sVersion", "", false));
    stsContainer.SetWidth(1, 2200);
    stsContainer.SetKey(2, "CURRENT");
    stsContainer.SetText(2, kCurrentUnknown);
    stsContainer.SetWidth(2, 2200);
    stsContainer.SetKey(3, "NEWS:SHORT");
    stsContainer.SetKey(4, "NEWS:LONG");
    stsContainer.SetWidth(4, windowWidth - stsContainer.Left(4) - 360);
}

void Container::TimerTick() {
    stsContainer.SetText(2, kCurrentUnknown);
    stsContainer.SetWidth(2, 2200);
}

void Container::ClickStatusPanel(int index) {
    if (index < 1 || index > stsContainer.Count()) return;
    if (stsContainer.Panel(index).key != "CURRENT") return;
    // The panel once offered a download of a newer version; the text stays, the download went.
    const std::string installed = files_.ReadTableValue(kVersionFile, "sVersion", "", false);
    if (installed != store::VersionText(version_)) {
        host_.ShowMessage({"Click to download new version", "Click to download new version",
                           Buttons::OK, Icon::None});
    }
}

// ---- Pop-up menus ----------------------------------------------------------------------------

std::vector<PopupEntry> Container::PopupEntries(const std::string& menu) const {
    std::vector<PopupEntry> entries;
    const PopupMenu* popup = FindPopupMenu(menu);
    if (popup == nullptr || active_ == nullptr) return entries;
    for (const auto& entry : popup->entries) {
        if (!active_->PopupEntryVisible(entry.name)) continue;
        if (entry.method.empty() || active_->HasMenuMethod(entry.method)) entries.push_back(entry);
    }
    return entries;
}

bool Container::ClickPopupEntry(const std::string& name) {
    const PopupEntry* entry = FindPopupEntry(name);
    if (entry == nullptr || active_ == nullptr) return false;
    if (!active_->PopupEntryVisible(entry->name)) return false;
    if (entry->method.empty()) return true;
    if (!active_->HasMenuMethod(entry->method)) return false;
    active_->CallMenuMethod(entry->method);
    return true;
}

}  // namespace qb::shell
