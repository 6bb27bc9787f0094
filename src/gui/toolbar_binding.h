#pragma once
// A toolbar control shown as a Qt toolbar: a button per button of the model, with its image, tip
// and state, and a drop-down menu where the button has one. A click reaches the model's handlers.

#include <QToolBar>
#include <string>
#include <vector>

#include "shell/controls.h"

namespace qb::gui {

class ToolbarBinding : public QToolBar {
    Q_OBJECT
  public:
    explicit ToolbarBinding(shell::Toolbar& toolbar, QWidget* parent = nullptr);
    ~ToolbarBinding() override;

    shell::Toolbar& Model() const { return toolbar_; }
    // The widget of a button, for tests and the main window's layout.
    QAction* ActionOf(const std::string& key) const;

  private:
    void Sync();
    bool SameButtons() const;
    void Rebuild();

    shell::Toolbar& toolbar_;
    std::vector<QAction*> actions_;
    std::vector<std::string> keys_;
};

}  // namespace qb::gui
