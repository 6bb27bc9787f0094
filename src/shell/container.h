#pragma once
// The main window's model, frmContainer: the hub's profile lists, the navigation (tree, group
// buttons and their counters, side bar), the open pages and which of them is active, the list of
// open windows behind the Windows menu, and the routing of the pop-up menus to the active page.
// The desktop window shows it; the command line drives it without a window.

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "shell/catalogue.h"
#include "shell/controls.h"
#include "shell/host.h"
#include "shell/open_windows.h"
#include "shell/page.h"
#include "shell/page_registry.h"
#include "shell/popup_menus.h"
#include "store/hub_profiles.h"
#include "store/table_files.h"

namespace qb::shell {

// The main window never gets smaller than this, in twips.
inline constexpr PageSize kContainerMinimum{11790, 9060};

class Container {
  public:
    // `version` is the one the run behaves as: the build's, or the one the command line names.
    Container(store::TableFiles& files, Host& host, const PageRegistry& registry,
              store::ProgramVersion version);
    ~Container();

    store::TableFiles& Files() { return files_; }
    Host& GetHost() { return host_; }
    const PageRegistry& Registry() const { return registry_; }

    // The version the run behaves as: the stamp a rebuild writes and the start compares, the
    // captions, and which areas the edition has.
    store::ProgramVersion Version() const { return version_; }

    // "Vandrell's Quillbook 5.3.0".
    std::string WindowCaption() const;

    // lvwProfiles from the hub's cfg\Profiles.xml and lvwOldProfiles from the copy kept at the
    // last rebuild, each behind its Unregistered row.
    void LoadProfiles();
    const store::ProfileList& Profiles() const { return profiles_; }
    const store::ProfileList& OldProfiles() const { return oldProfiles_; }
    // The hub file's text as read, for the copy a rebuild writes.
    const std::string& ProfileText() const { return profileText_; }

    // The news rows, never shown as a list: the status bar shows the last one.
    ListControl& News() { return lvwNews_; }

    // ---- Navigation ----
    // Sets up tlbMDITop and tlbSidebar and fills the tree and the group buttons for the edition.
    void FillNavigation();
    const Catalogue& Navigation() const { return catalogue_; }
    Toolbar& MDITop() { return tlbMDITop; }
    Toolbar& Sidebar() { return tlbSidebar; }
    // The tree's selected node, and the nodes shown expanded (the root from the start).
    const std::string& SelectedNode() const { return selectedNode_; }
    bool SelectNode(const std::string& key);
    const std::set<std::string>& ExpandedNodes() const { return expanded_; }
    void SetExpanded(const std::string& key, bool expanded);
    // picSideBar, the tree and its toolbar.
    bool SideBarVisible() const { return sideBarVisible_; }
    void ToggleSideBar();
    // The count of a group button's clicks, wrapped at the length of its menu.
    int GroupCounter(const std::string& group) const;

    // ---- Pages ----
    // Opens the page of a function key (the selected node's when `key` is empty), or brings it
    // to the front, and lists it in the open windows. A group or intermediate node opens nothing;
    // an intermediate node is listed all the same, unless the selected node is bold. A function
    // whose page isn't registered (the portal, where no hub link is given) opens and lists
    // nothing. Returns the page, or null.
    Page* OpenFunctionPage(std::string key);
    // Loads and shows the page of `key`, or brings it to the front, without the open window
    // list; there is never a second instance of a page. Null when the key has no page.
    Page* Open(const std::string& key);
    // The text editor page on a file, for a page that asks for it. An editor open on another file
    // closes first, and may keep its unsaved text if the user cancels.
    Page* OpenTextEditor(const std::string& file, const std::string& mode);
    // Closes a page unless it is dirty and the user cancels. True when it closed.
    bool Close(Page& page);
    // Closes every page in turn; one cancel keeps that page and all after it open.
    bool CloseAll();

    Page* Find(const std::string& key) const;
    Page* Active() const { return active_; }
    void Activate(Page& page);
    const std::vector<std::unique_ptr<Page>>& OpenPages() const { return pages_; }

    // ---- Windows menu ----
    const COpenWindows& OpenWindows() const { return openWindows_; }
    const std::vector<WindowsMenuItem>& WindowsMenu() const { return windowsMenu_; }
    // A click on mnuWindows1 to mnuWindows10; false when the entry is hidden.
    bool ClickWindowsMenu(int number);

    // ---- Pop-up menus ----
    // The entries of a pop-up menu that the active page has a method for (and those that call
    // nothing), but for those the page hides.
    std::vector<PopupEntry> PopupEntries(const std::string& menu) const;
    // A click on a pop-up entry (mnuFirstAdd): calls its method on the active page. False when
    // no page is active, the page lacks the method or hides the entry.
    bool ClickPopupEntry(const std::string& entry);

    // ---- Application menus ----
    // The entries the main window handles itself: mnuToolsSideBar, mnuWindows1 to mnuWindows10,
    // mnuWindowsClose (which does nothing), mnuHelpVisit and mnuHelpDonate. False for any other
    // name, or a hidden Windows entry. File close, "Show All Windows" and About are the front
    // end's, as they close the window or show its own dialogs.
    bool ClickAppMenu(const std::string& entry);

    // ---- Status bar ----
    StatusBar& Status() { return stsContainer; }
    // Panels INSTALLED (the version of the last rebuild), CURRENT, NEWS:SHORT and NEWS:LONG, the
    // last taking what the window's width leaves.
    void SetupStatusBar(int windowWidth = kContainerMinimum.width);
    // tmrUpdate, once a minute: nothing is ever fetched, so the current version stays unknown.
    void TimerTick();
    // A click on a status panel; only CURRENT answers.
    void ClickStatusPanel(int index);

    // Front ends are told of pages that open, are about to go, and come to the front; of a page
    // that pops up a menu; and of changes to the navigation and the Windows menu.
    std::function<void(Page&)> onPageOpened;
    std::function<void(Page&)> onPageClosing;
    std::function<void(Page&)> onPageActivated;
    std::function<void(Page&, const std::string& menu)> onPopupMenu;
    std::function<void()> onNavigationChanged;
    std::function<void()> onWindowsChanged;
    // Told when a page starts and ends loading: the window shows the hourglass meanwhile.
    std::function<void(bool busy)> onBusy;

  private:
    Page& Adopt(std::unique_ptr<Page> page);
    void GroupButtonClick(const std::string& group);
    void RebuildWindowsMenu();
    void NavigationChanged() const;

    store::TableFiles& files_;
    Host& host_;
    const PageRegistry& registry_;
    store::ProgramVersion version_;
    store::ProfileList profiles_;
    store::ProfileList oldProfiles_;
    std::string profileText_;
    ListControl lvwNews_{"lvwNews"};
    PageContext context_;
    std::vector<std::unique_ptr<Page>> pages_;
    Page* active_ = nullptr;

    Toolbar tlbMDITop{"tlbMDITop"};
    Toolbar tlbSidebar{"tlbSidebar"};
    StatusBar stsContainer{"stsContainer", 4};
    Catalogue catalogue_;
    std::string selectedNode_;
    std::set<std::string> expanded_;
    bool sideBarVisible_ = true;
    std::map<std::string, std::int16_t> groupCounters_;
    COpenWindows openWindows_;
    std::string editorOpener_;  // the key of the page that opened the text editor
    std::vector<WindowsMenuItem> windowsMenu_;
};

// Where the hub keeps its profiles and where the manager keeps its copy, below the hub folder.
inline constexpr const char* kHubProfilesFile = "cfg\\Profiles.xml";
inline constexpr const char* kProfileCopyFile =
    "scripts\\Vandrell's Quillbook\\Settings\\General\\PtokaX\\Profiles.xml";

}  // namespace qb::shell
