#include "gui/toolbar_binding.h"

#include <QMenu>
#include <QToolButton>

#include "gui/fatal.h"
#include "gui/icons.h"
#include "gui/text.h"

namespace qb::gui {

ToolbarBinding::ToolbarBinding(shell::Toolbar& toolbar, QWidget* parent)
    : QToolBar(parent), toolbar_(toolbar) {
    setObjectName(QString::fromStdString(toolbar.Name()));
    setMovable(false);
    setFloatable(false);
    setIconSize(QSize(16, 16));
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    toolbar_.SetListener([this] { Sync(); });
    Rebuild();
}

ToolbarBinding::~ToolbarBinding() {
    toolbar_.SetListener(nullptr);
}

QAction* ToolbarBinding::ActionOf(const std::string& key) const {
    for (size_t i = 0; i < keys_.size(); ++i) {
        if (keys_[i] == key) return actions_[i];
    }
    return nullptr;
}

// The buttons change state often (SAVE on every edit) and their set rarely: only a change of the
// set rebuilds the actions, and then after the click that caused it has returned.
void ToolbarBinding::Sync() {
    if (!SameButtons()) {
        QMetaObject::invokeMethod(
            this, [this] { Rebuild(); }, Qt::QueuedConnection);
        return;
    }
    int i = 0;
    for (const auto& button : toolbar_.Buttons()) {
        QAction* action = actions_[static_cast<size_t>(i++)];
        if (action == nullptr) continue;
        action->setEnabled(button.enabled);
        action->setToolTip(ToQt(button.tip));
        // Only a pressed button is checkable, so that a click never presses one: the page
        // presses its buttons itself.
        action->setCheckable(button.pressed);
        action->setChecked(button.pressed);
    }
    setEnabled(toolbar_.Enabled());
    setVisible(toolbar_.Visible());
}

bool ToolbarBinding::SameButtons() const {
    if (keys_.size() != toolbar_.Buttons().size()) return false;
    for (size_t i = 0; i < keys_.size(); ++i) {
        const auto& button = toolbar_.Buttons()[i];
        if (keys_[i] != (button.separator ? std::string() : button.key)) return false;
    }
    return true;
}

void ToolbarBinding::Rebuild() {
    clear();
    actions_.clear();
    keys_.clear();
    for (const auto& button : toolbar_.Buttons()) {
        keys_.push_back(button.separator ? std::string() : button.key);
        if (button.separator) {
            addSeparator();
            actions_.push_back(nullptr);
            continue;
        }
        QAction* action = addAction(IconFor(button.image, toolbar_.imageList), ToQt(button.key));
        action->setObjectName(QString::fromStdString(button.key));
        action->setCheckable(button.pressed);
        const std::string key = button.key;
        connect(action, &QAction::triggered, this,
                [this, key] { Guard([&] { toolbar_.UserClick(key); }); });
        if (!button.menu.empty()) {
            // The button's body and its arrow are two targets: the body is the button's own
            // click, the arrow drops the menu.
            auto* menu = new QMenu(this);
            menu->setObjectName(QString::fromStdString(key) + QStringLiteral("Menu"));
            for (const auto& entry : button.menu) {
                const std::string menuKey = entry.key;
                QAction* item = menu->addAction(
                    ToQtLiteral(entry.text), this,
                    [this, key, menuKey] { Guard([&] { toolbar_.UserMenuClick(key, menuKey); }); });
                item->setData(QString::fromStdString(menuKey));
            }
            action->setMenu(menu);
            if (auto* tool = qobject_cast<QToolButton*>(widgetForAction(action))) {
                tool->setPopupMode(QToolButton::MenuButtonPopup);
            }
        }
        actions_.push_back(action);
    }
    Sync();
}

}  // namespace qb::gui
