#pragma once
// The main window: the pages as child windows of a multiple document area.

#include <QMainWindow>
#include <QMdiSubWindow>
#include <string>

#include "shell/container.h"

class QMdiArea;

namespace qb::gui {

class PageView;

// A page's child window. Its close box asks the page first; the window goes only when the
// container lets the page go.
class PageWindow : public QMdiSubWindow {
    Q_OBJECT
  public:
    PageWindow(shell::Container& container, PageView* view);
    PageView* View() const { return view_; }
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
    PageWindow* WindowOf(const std::string& key) const;
    // Opens the page of a function key, or brings it to the front.
    void OpenPage(const std::string& key);

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    shell::Container& container_;
    QMdiArea* area_;
};

}  // namespace qb::gui
