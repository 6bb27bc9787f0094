#pragma once
// Shows one page: its toolbar, its frame with the function's controls as the page lays them out,
// and its status bar. Each control becomes a widget named after it; a change of the control in
// the model updates the widget, and the user's actions on the widget reach the page's handlers.

#include <QWidget>

#include "shell/page.h"

class QLayout;

namespace qb::gui {

class PageView : public QWidget {
    Q_OBJECT
  public:
    explicit PageView(shell::Page& page, QWidget* parent = nullptr);
    ~PageView() override;

    shell::Page& GetPage() const { return page_; }
    QSize MinimumPixels() const;
    QSize InitialPixels() const;

  private:
    void ShowTooltip(const shell::Tooltip& tip);
    QWidget* Build(const shell::Control& control);
    QLayout* BuildLayout(const shell::Layout& layout);

    shell::Page& page_;
    std::vector<shell::Control*> bound_;
};

}  // namespace qb::gui
