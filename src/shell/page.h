#pragma once
// A page: one child window of the main window, for one function of the scripts. It is a model over
// its files: named controls, the dirty flag `bSaveRequired`, and LoadSettings, RestoreDefaults and
// SaveSettings. Every page shares the frame: a toolbar on top, the function's controls in
// `fraFrame`, a status bar below, and one life of load, edit, save, discard, restore and close.

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "shell/bindings.h"
#include "shell/controls.h"
#include "shell/host.h"
#include "shell/layout.h"
#include "shell/page_decl.h"
#include "shell/row_editor.h"
#include "store/hub_profiles.h"
#include "store/table_files.h"

namespace qb::shell {

// What a page reaches outside itself.
struct PageContext {
    store::TableFiles& files;
    const store::ProfileList& profiles;  // the main window's lvwProfiles
    Host& host;
    store::ProgramVersion version;  // the version the run behaves as
};

class Page {
    // First, so that it exists before the frame's controls are added to it.
    std::vector<std::unique_ptr<Control>> controls_;

  public:
    // A page of the declaration: its controls made, bound and laid out, its row editors wired.
    Page(PageContext& context, const PageDecl& decl);
    virtual ~Page();
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    // The function key ("Security~CommandSpy") and the caption ("Security ~ CommandSpy").
    const std::string& Key() const { return key_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption) { caption_ = std::move(caption); }
    const std::string& Tag() const { return tag_; }
    void SetTag(std::string tag) { tag_ = std::move(tag); }

    // The page's sizes in twips; it is never made smaller than its minimum.
    PageSize Size() const { return size_; }
    PageSize MinimumSize() const { return minimum_; }

    // Form_Load: the frame, the page's own set-up, LoadSettings, and a clean state.
    void Load();
    // Form_QueryUnload: true when the page may close. A dirty page asks first.
    bool QueryUnload();

    // The text editor this page opened has saved `file`.
    virtual void TextEditorSaved(const std::string& /*file*/) {}

    bool SaveRequired() const { return bSaveRequired; }

    // Controls in the order the page made them; the status bar is among them.
    const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }
    Control* Find(const std::string& name) const;
    // The files SAVE writes from the page's declaration, in its order; a page with code of its
    // own may write more.
    const std::vector<const store::FileSchema*>& Files() const { return files_; }
    // The keys of `file` the page's controls are bound to: a field, a sub-table's row as
    // "tSub.bRow", or the file's own table where a list holds its rows.
    std::vector<std::string> BoundKeys(const store::FileSchema& file) const;
    const Frame& FrameControl() const { return fraFrame; }
    const Toolbar& FormToolbar() const { return tlbFormToolbar; }
    const StatusBar& Status() const { return stsStatusBar; }
    // The function's controls inside fraFrame.
    const Layout& Body() const { return body_; }

    // The public methods the main window's pop-up menus call by name (gMenuFirstAddClick...).
    bool HasMenuMethod(const std::string& method) const;
    void CallMenuMethod(const std::string& method);
    // Whether the page shows a pop-up entry (mnuTrueFalseTrue) the next time its menu pops up;
    // every entry is shown until the page hides it.
    bool PopupEntryVisible(const std::string& entry) const {
        return !hiddenEntries_.contains(entry);
    }
    // Another program's writes. The page notes its files as it reads and saves them. When one
    // has changed on disk since, CheckDisk shows a bar, "This file changed on disk", with Reload
    // (read the files again, dropping the page's changes) and Keep mine (leave the page as it
    // is; the bar stays away until the file changes again). SAVE over a changed file asks first.
    // The front ends call CheckDisk when they may have missed a change: the window when its
    // watcher fires, the drive before each action. True when the bar shows.
    bool CheckDisk();
    bool DiskBarShown() const { return diskBar_; }
    // The files the bar tells of.
    const std::vector<std::string>& DiskBarFiles() const { return barFiles_; }
    // The page's files that another program has changed since the page read or wrote them.
    std::vector<std::string> ChangedOnDisk();
    bool UserReloadFromDisk();  // the bar's buttons; false when the bar isn't shown
    bool UserKeepMine();
    // What a watcher of the disk must watch for this page: each file and its folder, as a file
    // replaced by a rename is a new file.
    std::vector<std::string> WatchedPaths() const;
    static constexpr const char* kDiskBarText = "This file changed on disk";
    // Told when the bar shows or goes.
    std::function<void()> onDiskBar;

    // Told when the page pops up one of the main window's menus (mnuFirst, mnuUserActions...).
    std::function<void(const std::string& menu)> onPopupMenu;

  protected:
    // The page's own part of Form_Load, between the frame's set-up (with the declared toolbars'
    // buttons and lists' columns) and LoadSettings.
    virtual void Setup() {}
    // By default the bound controls load, restore and save; a page with more to do overrides
    // and calls these.
    virtual void LoadSettings();
    virtual void RestoreDefaults();
    virtual void SaveSettings();
    // A click on tlbFormToolbar. The frame handles SAVE, DISCARD and RESTORE.
    virtual void FormToolbarClick(const std::string& key);

    template <class C, class... Args>
    C& Add(Args&&... args) {
        auto control = std::make_unique<C>(std::forward<Args>(args)...);
        C& ref = *control;
        controls_.push_back(std::move(control));
        return ref;
    }
    // A declared control by its name.
    template <class C>
    C& Get(const std::string& name) const {
        return static_cast<C&>(Declared(name));
    }
    // The row editor of a declared list.
    RowEditor& Editor(const std::string& list);
    // Binds a control the declaration's makers can't bind, as the page's own binding; it loads,
    // restores and saves with the declared ones, after them.
    void AddBinding(std::unique_ptr<Binding> binding);
    // The file a bound control writes, as SAVE renders it from the bindings.
    std::string BoundText(const store::FileSchema& file) const;
    // Makes the folders of a file below the settings folder where they are missing.
    void MakeFoldersOf(std::string_view file);
    // LoadSettings with each file read once.
    void Reload();
    void SetBody(Layout body);
    void SetMinimumSize(PageSize minimum) { minimum_ = minimum; }
    void PublishMenuMethod(std::string method, std::function<void()> call);
    void ShowPopupMenu(const std::string& menu) {
        if (onPopupMenu) onPopupMenu(menu);
    }
    void SetPopupEntryVisible(const std::string& entry, bool visible);

    // Variants of the frame that a page's own description asks for.
    void SetNoRestore(bool noRestore) { noRestore_ = noRestore; }
    // The text editor and the switches pages clear the dirty mark after a discard; every other
    // page keeps it, so that SAVE stays enabled until the next save.
    void SetDiscardClears(bool clears) { discardClears_ = clears; }

    // Runs on every change of a control that feeds the file.
    void MarkDirty();
    void MarkClean();
    // Asks the frame's yes-or-no question; true on OK.
    bool Confirm(const std::string& text, const std::string& title);

    PageContext& context_;
    Frame& fraFrame;
    Toolbar& tlbFormToolbar;
    StatusBar& stsStatusBar;
    bool bSaveRequired = false;

  private:
    Control& Declared(const std::string& name) const;
    void MakeDeclared(const PageDecl& decl);
    // The page's files are as it last read or wrote them.
    void NoteFilesOnDisk();
    void SetDiskBar(bool shown);
    void ResolveNames(Layout& layout) const;

    std::string key_;
    std::string caption_;
    std::string tag_;
    PageSize size_;
    PageSize minimum_;
    bool noRestore_ = false;
    bool discardClears_ = false;
    bool saveMakesFolders_ = false;
    bool toolbarOff_ = false;
    Layout body_;
    std::map<std::string, std::function<void()>> menuMethods_;
    std::set<std::string> hiddenEntries_;
    std::vector<const store::FileSchema*> files_;
    // Each file as the page last read or wrote it, and as the user last let it be (Keep mine).
    std::map<const store::FileSchema*, store::FileStamp> read_;
    std::map<const store::FileSchema*, store::FileStamp> kept_;
    bool diskBar_ = false;
    std::vector<std::string> barFiles_;
    std::vector<std::unique_ptr<Binding>> bindings_;
    std::vector<std::unique_ptr<RowEditor>> editors_;
    std::vector<std::pair<Toolbar*, std::vector<void (*)(Toolbar&)>>> toolbarSetups_;
    std::vector<std::pair<ListControl*, std::vector<ListColumn>>> listColumns_;
    std::vector<ListControl*> profileLists_;
};

}  // namespace qb::shell
