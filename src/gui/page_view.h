#pragma once
// Shows one page: its toolbar, its frame with the function's controls as the page lays them out,
// and its status bar. Each control becomes a widget named after it; a change of the control in
// the model updates the widget, and the user's actions on the widget reach the page's handlers.

#include <QWidget>
#include <set>
#include <string>

#include "shell/page.h"

class QLabel;
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
    // A control as the window draws it: its widget, and the label its caption makes, if any.
    struct Shown {
        QLabel* label = nullptr;
        QWidget* field = nullptr;
        QLabel* unit = nullptr;  // a label behind the field that names its unit ("Days")
    };

    void ShowTooltip(const shell::Tooltip& tip);
    // The bar over the page when another program changed its files, and the watcher that
    // notices it.
    QWidget* BuildDiskBar();
    Shown Build(const shell::Control& control);
    Shown BuildItem(const shell::Layout& item);
    // A row of a label and one field, maybe with a label of its unit behind it, which a column
    // lines up with its captioned fields; an empty Shown for any other row.
    Shown LabelledField(const shell::Layout& row);
    QLayout* BuildLayout(const shell::Layout& layout);
    bool Hidden(const shell::Layout& item) const;
    static int Share(const shell::Layout& item);

    shell::Page& page_;
    std::vector<shell::Control*> bound_;
    std::set<std::string> buddies_;
};

}  // namespace qb::gui
