#pragma once
// The main window, frmContainer: the pages as child windows of a multiple document area, the side
// bar with the tree of functions, the group toolbar, the menus and the status bar. It shows the
// container's model and hands the user's actions to it.

#include <QMainWindow>
#include <QMdiSubWindow>
#include <string>
#include <vector>

#include "shell/container.h"

class QLabel;
class QMdiArea;
class QMenu;
class QTimer;
class QTreeWidget;
class QTreeWidgetItem;

namespace qb::gui {

class PageView;
class ToolbarBinding;

// A page's child window. Its close box asks the page first; the window goes only when the
// container lets the page go.
class PageWindow : public QMdiSubWindow {
    Q_OBJECT
  public:
    PageWindow(shell::Container& container, PageView* view);
    PageView* View() const { return view_; }
    // Sizes the window to its page, once it stands in the area.
    void FitToPage();
    void CloseForGood();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    shell::Container& container_;
    PageView* view_;
    bool closing_ = false;
};

class MainWindow : public QMainWindow {
    Q_OBJECT
  public:
    explicit MainWindow(shell::Container& container);
    ~MainWindow() override;

    QMdiArea* Area() const { return area_; }
    QTreeWidget* Tree() const { return tvwFunctions_; }
    QWidget* SideBar() const { return picSideBar_; }
    ToolbarBinding* GroupToolbar() const { return tlbMDITop_; }
    ToolbarBinding* SideBarToolbar() const { return tlbSidebar_; }
    QMenu* WindowsMenu() const { return mnuWindows_; }
    QMenu* LastPopup() const { return popup_; }
    QTimer* UpdateTimer() const { return tmrUpdate_; }
    QLabel* StatusPanel(int index) const;
    PageWindow* WindowOf(const std::string& key) const;
    QTreeWidgetItem* NodeOf(const std::string& key) const;

    // Opens the page of a function key through the navigation, or brings it to the front.
    void OpenPage(const std::string& key);
    // The Windows menu's "&Show All Windows": the dialog, modal.
    void ShowAllWindows();
    void ShowAbout();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void BuildMenus();
    void BuildSideBar();
    void BuildStatusBar();
    void FillTree();
    // The width the tree needs to show every node whole with all of them open.
    int FullTreeWidth() const;
    void SyncNavigation();
    void SyncWindowsMenu();
    void SyncStatus();
    void ShowPopup(const std::string& menu);

    shell::Container& container_;
    QMdiArea* area_;
    QWidget* picSideBar_ = nullptr;
    QTreeWidget* tvwFunctions_ = nullptr;
    ToolbarBinding* tlbMDITop_ = nullptr;
    ToolbarBinding* tlbSidebar_ = nullptr;
    QMenu* mnuWindows_ = nullptr;
    std::vector<QAction*> windowsItems_;
    QAction* toolsSideBar_ = nullptr;
    QMenu* popup_ = nullptr;
    QTimer* tmrUpdate_ = nullptr;
    std::vector<QLabel*> panels_;
    bool syncing_ = false;
};

}  // namespace qb::gui
