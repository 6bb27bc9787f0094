#include "gui/page_view.h"

#include <algorithm>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCursor>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPalette>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>
#include <QVBoxLayout>
#include <QValidator>

#include "gui/fatal.h"
#include "gui/icons.h"
#include "gui/list_model.h"
#include "gui/text.h"
#include "gui/toolbar_binding.h"
#include "shell/page_frame.h"

namespace qb::gui {
namespace {

using shell::ControlKind;

int Pixels(int twips) {
    return twips / shell::kTwipsPerPixel;
}

// Keeps the widget's enabled and visible state with the control's.
void SyncCommon(const shell::Control& control, QWidget* widget) {
    widget->setEnabled(control.Enabled());
    widget->setVisible(control.Visible());
    widget->setToolTip(ToQt(control.Tip()));
}

class ListBinding : public QTreeView {
  public:
    explicit ListBinding(shell::ListControl& list) : list_(list), model_(list, this) {
        setObjectName(QString::fromStdString(list.Name()));
        setModel(&model_);
        setRootIsDecorated(false);
        setUniformRowHeights(true);
        setAllColumnsShowFocus(true);
        setSelectionMode(QAbstractItemView::SingleSelection);
        setSelectionBehavior(QAbstractItemView::SelectRows);
        setEditTriggers(QAbstractItemView::NoEditTriggers);
        setContextMenuPolicy(Qt::CustomContextMenu);
        header()->setStretchLastSection(true);
        connect(&model_, &QAbstractItemModel::modelReset, this, [this] { SyncColumns(); });
        connect(&model_, &ListModel::selectionMoved, this,
                [this](int row) { FollowSelection(row); });
        // A click on a row is the user's every time, on the selected row too; the keys move the
        // selection without a click.
        connect(this, &QAbstractItemView::pressed, this, [this](const QModelIndex& index) {
            if (QApplication::mouseButtons() != Qt::LeftButton) return;
            Guard([&] { list_.UserSelect(index.row() + 1); });
        });
        connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                [this](const QModelIndex& current) {
                    if (following_ || !current.isValid()) return;
                    if (QApplication::mouseButtons() != Qt::NoButton) return;
                    const int row = current.row() + 1;
                    if (row != list_.Selected()) Guard([&] { list_.UserSelect(row); });
                });
        connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
            Guard([&] { list_.UserDoubleClick(index.row() + 1); });
        });
        // The page pops up its menu from the right click, through the main window.
        connect(this, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
            const QModelIndex index = indexAt(at);
            if (!index.isValid()) return;
            Guard([&] { list_.UserRightClick(index.row() + 1); });
        });
        SyncColumns();
    }

  protected:
    // The pages know a key by the code the scripts' home system gives it: Delete is 46.
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Delete) {
            Guard([&] { list_.UserKeyDown(46); });
            return;
        }
        QTreeView::keyPressEvent(event);
    }

    // A list that gets the focus makes its first row current; that is no click of the user's.
    void focusInEvent(QFocusEvent* event) override {
        following_ = true;
        QTreeView::focusInEvent(event);
        following_ = false;
    }

    // As wide as the page laid the list out, and never narrower than its columns, so that a
    // list whose columns fit shows them whole, with no scroll bar across.
    QSize sizeHint() const override {
        return {std::max(Pixels(list_.Width()), ColumnsWidth()), QTreeView::sizeHint().height()};
    }
    QSize minimumSizeHint() const override {
        return {ColumnsWidth(), QTreeView::minimumSizeHint().height()};
    }

  private:
    int ColumnsWidth() const {
        return columnsWidth_ + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    }

    void SyncColumns() {
        columnsWidth_ = 0;
        for (int i = 0; i < list_.ColumnCount(); ++i) {
            int width = Pixels(list_.Columns()[static_cast<size_t>(i)].width);
            setColumnHidden(i, width == 0);
            if (width == 0) continue;
            // The widths were laid out for a smaller font: a column is never narrower than its
            // heading, nor, but for the last, which takes the room that is left, than what it
            // shows.
            width = std::max(width, header()->sectionSizeHint(i));
            if (i + 1 < list_.ColumnCount()) width = std::max(width, sizeHintForColumn(i));
            setColumnWidth(i, width);
            columnsWidth_ += width;
        }
        // A list whose columns have no text shows no header, as a list with hidden headers.
        const auto& columns = list_.Columns();
        header()->setVisible(
            std::any_of(columns.begin(), columns.end(),
                        [](const shell::ListColumn& c) { return !c.text.empty(); }));
        SyncCommon(list_, this);
        FollowSelection(list_.Selected());
        updateGeometry();
    }

    void FollowSelection(int row) {
        following_ = true;
        if (row == 0) {
            selectionModel()->clearSelection();
        } else if (currentIndex().row() != row - 1) {
            setCurrentIndex(model_.index(row - 1, 0));
        }
        following_ = false;
    }

    shell::ListControl& list_;
    ListModel model_;
    bool following_ = false;
    int columnsWidth_ = 0;
};

// An up-down and the read-only text box beside it, as one control: the box's text, which may
// be a file's value outside the up-down's range or no value at all, with the up-down's arrows
// attached. Only the arrows change the value, as the box takes no typing.
class UpDownBox : public QSpinBox {
  public:
    UpDownBox(shell::UpDown& updown, const shell::TextBox* buddy) : updown_(updown), buddy_(buddy) {
        lineEdit()->setReadOnly(buddy != nullptr);
    }

    void Sync() {
        const QSignalBlocker block(this);
        setRange(updown_.Min(), updown_.Max());
        setSingleStep(updown_.Step());
        setValue(updown_.Value());
        // The same value may stand beside another text: show the text.
        lineEdit()->setText(textFromValue(value()));
        SyncCommon(updown_, this);
    }

  protected:
    QString textFromValue(int value) const override {
        if (buddy_ != nullptr && value == updown_.Value()) return ToQt(buddy_->Text());
        return QSpinBox::textFromValue(value);
    }
    int valueFromText(const QString& text) const override {
        if (buddy_ != nullptr && text == ToQt(buddy_->Text())) return updown_.Value();
        return QSpinBox::valueFromText(text);
    }
    QValidator::State validate(QString& text, int& at) const override {
        if (buddy_ != nullptr && text == ToQt(buddy_->Text())) return QValidator::Acceptable;
        return QSpinBox::validate(text, at);
    }

  private:
    shell::UpDown& updown_;
    const shell::TextBox* buddy_;
};

// The label a text box, combo or up-down shows in front of itself, where it has a caption.
QLabel* CaptionOf(const shell::Control& control, QWidget* field) {
    if (control.Caption().empty()) return nullptr;
    auto* label = new QLabel(ToQtLiteral(control.Caption()));
    label->setBuddy(field);
    return label;
}

// A spin box or a combo is as wide as what it holds; a text box takes the width it is given.
Qt::Alignment FieldAlignment(const QWidget* field) {
    return qobject_cast<const QLineEdit*>(field) != nullptr ? Qt::Alignment() : Qt::AlignLeft;
}

}  // namespace

PageView::PageView(shell::Page& page, QWidget* parent) : QWidget(parent), page_(page) {
    setObjectName(QString::fromStdString(page.Key()));
    setWindowTitle(ToQt(page.Caption()));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(2);

    auto& toolbar = const_cast<shell::Toolbar&>(page.FormToolbar());
    outer->addWidget(new ToolbarBinding(toolbar));
    outer->addWidget(BuildDiskBar());

    // An up-down shows its value itself: its read-only text box isn't drawn.
    for (const auto& control : page.Controls()) {
        if (control->Kind() == ControlKind::UpDown) {
            buddies_.insert(static_cast<const shell::UpDown&>(*control).Buddy());
        }
    }
    auto& frame = const_cast<shell::Frame&>(page.FrameControl());
    auto* group = new QGroupBox(ToQt(frame.Caption()));
    group->setObjectName(QString::fromStdString(frame.Name()));
    group->setLayout(BuildLayout(page.Body()));
    outer->addWidget(group, 1);

    auto& status = const_cast<shell::StatusBar&>(page.Status());
    auto* bar = new QStatusBar;
    bar->setObjectName(QString::fromStdString(status.Name()));
    bar->setSizeGripEnabled(false);
    std::vector<QLabel*> panels;
    for (int i = 1; i <= status.Count(); ++i) {
        auto* label = new QLabel;
        label->setObjectName(QStringLiteral("panel%1").arg(i));
        label->setFrameShape(QFrame::StyledPanel);
        bar->addWidget(label, i == status.Count() ? 1 : 0);
        panels.push_back(label);
    }
    auto syncStatus = [&status, panels] {
        for (int i = 1; i <= status.Count(); ++i) {
            const auto& panel = status.Panel(i);
            panels[static_cast<size_t>(i - 1)]->setText(ToQt(panel.text));
            panels[static_cast<size_t>(i - 1)]->setToolTip(ToQt(panel.tip));
            panels[static_cast<size_t>(i - 1)]->setMinimumWidth(Pixels(std::max(0, panel.width)));
        }
    };
    status.SetListener(syncStatus);
    bound_.push_back(&status);
    syncStatus();
    outer->addWidget(bar);
    bound_.push_back(&toolbar);

    // Balloons stand over their parent control while they exist.
    for (const auto& control : page.Controls()) {
        if (control->Kind() != ControlKind::Tooltip) continue;
        auto& tip = static_cast<shell::Tooltip&>(*control);
        // The balloon comes after the tip's delay, so that the click that asked for it is over:
        // a tip goes away at any click.
        tip.SetListener([this, &tip] {
            if (!tip.Visible()) {
                QToolTip::hideText();
                return;
            }
            AfterDispatch(this, [this, &tip] {
                QTimer::singleShot(tip.DelayTime(), this, [this, &tip] { ShowTooltip(tip); });
            });
        });
        bound_.push_back(&tip);
    }
}

void PageView::ShowTooltip(const shell::Tooltip& tip) {
    auto* parent = findChild<QWidget*>(QString::fromStdString(tip.Parent()));
    if (!tip.Visible() || parent == nullptr) {
        QToolTip::hideText();
        return;
    }
    QString text =
        ToQt(tip.TipText()).toHtmlEscaped().replace(QStringLiteral("\r\n"), QStringLiteral("<br>"));
    if (!tip.Title().empty()) {
        text = QStringLiteral("<b>%1</b><br>").arg(ToQt(tip.Title()).toHtmlEscaped()) + text;
    }
    // Over the row the user picked, else under the mouse if it is on the control, else at its
    // middle.
    QPoint at = parent->rect().center();
    auto* view = qobject_cast<QAbstractItemView*>(parent);
    const QPoint mouse = parent->mapFromGlobal(QCursor::pos());
    if (view != nullptr && view->currentIndex().isValid() && !tip.Centered()) {
        const QRect row = view->visualRect(view->currentIndex());
        at = view->viewport()->mapTo(parent, row.bottomLeft() + QPoint(row.height(), 0));
    } else if (parent->rect().contains(mouse) && !tip.Centered()) {
        at = mouse;
    }
    QToolTip::showText(parent->mapToGlobal(at), text, parent, {}, tip.VisibleTime());
}

PageView::~PageView() {
    for (shell::Control* control : bound_)
        control->SetListener(nullptr);
    page_.onDiskBar = nullptr;
}

QWidget* PageView::BuildDiskBar() {
    auto* bar = new QFrame;
    bar->setObjectName(QStringLiteral("barDisk"));
    bar->setFrameShape(QFrame::StyledPanel);
    bar->setAutoFillBackground(true);
    QPalette palette = bar->palette();
    palette.setColor(QPalette::Window, QColor(0xff, 0xf4, 0xce));
    bar->setPalette(palette);
    auto* row = new QHBoxLayout(bar);
    auto* text = new QLabel(QString::fromLatin1(shell::Page::kDiskBarText));
    text->setObjectName(QStringLiteral("lblDisk"));
    auto* reload = new QPushButton(QStringLiteral("Reload"));
    reload->setObjectName(QStringLiteral("cmdReload"));
    auto* keep = new QPushButton(QStringLiteral("Keep mine"));
    keep->setObjectName(QStringLiteral("cmdKeepMine"));
    row->addWidget(text, 1);
    row->addWidget(reload);
    row->addWidget(keep);
    connect(reload, &QPushButton::clicked, this, [this] { page_.UserReloadFromDisk(); });
    connect(keep, &QPushButton::clicked, this, [this] { page_.UserKeepMine(); });
    auto sync = [this, bar, text] {
        QStringList files;
        for (const std::string& file : page_.DiskBarFiles())
            files << ToQt(file);
        text->setText(QString::fromLatin1(shell::Page::kDiskBarText) + QStringLiteral(": ") +
                      files.join(QStringLiteral(", ")));
        bar->setVisible(page_.DiskBarShown());
    };
    page_.onDiskBar = sync;
    sync();

    // A file replaced by a rename leaves the watch, so its folder is watched as well, and the
    // files are watched again after each change.
    auto* watcher = new QFileSystemWatcher(this);
    auto watch = [this, watcher] {
        for (const std::string& path : page_.WatchedPaths()) {
            const QString name = QString::fromStdString(path);
            if (QFileInfo::exists(name) && !watcher->files().contains(name) &&
                !watcher->directories().contains(name)) {
                watcher->addPath(name);
            }
        }
    };
    auto changed = [this, watch] {
        page_.CheckDisk();
        watch();
    };
    connect(watcher, &QFileSystemWatcher::fileChanged, this, changed);
    connect(watcher, &QFileSystemWatcher::directoryChanged, this, changed);
    watch();
    return bar;
}

QSize PageView::MinimumPixels() const {
    return {Pixels(page_.MinimumSize().width), Pixels(page_.MinimumSize().height)};
}

QSize PageView::InitialPixels() const {
    return {Pixels(page_.Size().width), Pixels(page_.Size().height)};
}

bool PageView::Hidden(const shell::Layout& item) const {
    return item.type == shell::Layout::Type::Item && buddies_.contains(item.control->Name());
}

// Lists and many-line texts take the room; the other controls keep their height.
int PageView::Share(const shell::Layout& item) {
    if (item.weight > 0) return item.weight;
    if (item.type != shell::Layout::Type::Item) return 0;
    const shell::Control& control = *item.control;
    const bool grows = control.Kind() == ControlKind::List ||
                       (control.Kind() == ControlKind::Text &&
                        static_cast<const shell::TextBox&>(control).MultiLine());
    return grows ? 1 : 0;
}

PageView::Shown PageView::BuildItem(const shell::Layout& item) {
    Shown shown = Build(*item.control);
    // A frame holds the controls its part of the layout puts in it.
    if (item.control->Kind() == ControlKind::Frame && !item.items.empty()) {
        auto* inner = new QVBoxLayout;
        for (const auto& part : item.items)
            inner->addLayout(BuildLayout(part), Share(part));
        shown.field->setLayout(inner);
    }
    return shown;
}

PageView::Shown PageView::LabelledField(const shell::Layout& row) {
    std::vector<const shell::Layout*> shown;
    for (const auto& item : row.items) {
        if (!Hidden(item)) shown.push_back(&item);
    }
    const auto isLabel = [](const shell::Layout* item) {
        return item->type == shell::Layout::Type::Item &&
               item->control->Kind() == ControlKind::Label;
    };
    const bool unit = shown.size() == 3 && isLabel(shown[2]);
    if ((shown.size() != 2 && !unit) || !isLabel(shown[0]) ||
        shown[1]->type != shell::Layout::Type::Item) {
        return {};
    }
    const ControlKind kind = shown[1]->control->Kind();
    const bool field = kind == ControlKind::Combo || kind == ControlKind::UpDown ||
                       (kind == ControlKind::Text &&
                        !static_cast<const shell::TextBox&>(*shown[1]->control).MultiLine());
    if (!field || !shown[1]->control->Caption().empty()) return {};
    auto* label = static_cast<QLabel*>(BuildItem(*shown[0]).field);
    Shown value = BuildItem(*shown[1]);
    label->setBuddy(value.field);
    label->setText(ToQtLiteral(shown[0]->control->Caption()));
    return {label, value.field, unit ? static_cast<QLabel*>(BuildItem(*shown[2]).field) : nullptr};
}

QLayout* PageView::BuildLayout(const shell::Layout& layout) {
    using Type = shell::Layout::Type;
    if (layout.type == Type::Item || layout.type == Type::Stretch) {
        return BuildLayout(shell::Column({layout}));
    }
    if (layout.type == Type::Row) {
        auto* row = new QHBoxLayout;
        for (const auto& item : layout.items) {
            if (Hidden(item)) continue;
            if (item.type == Type::Stretch) {
                row->addStretch(1);
            } else if (item.type != Type::Item) {
                row->addLayout(BuildLayout(item), item.weight);
            } else {
                const Shown shown = BuildItem(item);
                if (shown.label != nullptr) row->addWidget(shown.label);
                row->addWidget(shown.field, Share(item));
            }
        }
        return row;
    }
    // A column is a grid of two: the labels of its text boxes, combos and up-downs in the first,
    // so that the fields start at one edge, and every other part across both.
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    int at = 0;
    const auto place = [grid, &at](const Shown& shown, int share) {
        if (shown.unit != nullptr) {
            grid->addWidget(shown.label, at, 0);
            auto* field = new QHBoxLayout;
            field->addWidget(shown.field);
            field->addWidget(shown.unit);
            field->addStretch(1);
            grid->addLayout(field, at, 1);
        } else if (shown.label != nullptr) {
            grid->addWidget(shown.label, at, 0);
            grid->addWidget(shown.field, at, 1, FieldAlignment(shown.field));
        } else {
            grid->addWidget(shown.field, at, 0, 1, 2);
        }
        grid->setRowStretch(at++, share);
    };
    for (const auto& item : layout.items) {
        if (Hidden(item)) continue;
        if (item.type == Type::Stretch) {
            grid->setRowStretch(at++, 1);
        } else if (item.type == Type::Item) {
            place(BuildItem(item), Share(item));
        } else if (const Shown pair = item.type == Type::Row ? LabelledField(item) : Shown{};
                   pair.field != nullptr) {
            place(pair, item.weight);
        } else {
            grid->addLayout(BuildLayout(item), at, 0, 1, 2);
            grid->setRowStretch(at++, item.weight);
        }
    }
    return grid;
}

PageView::Shown PageView::Build(const shell::Control& constControl) {
    // The page owns its controls; the view binds to them for the page's lifetime.
    auto& control = const_cast<shell::Control&>(constControl);
    bound_.push_back(&control);
    const QString name = QString::fromStdString(control.Name());
    switch (control.Kind()) {
        case ControlKind::List:
            return {nullptr, new ListBinding(static_cast<shell::ListControl&>(control))};
        case ControlKind::Text: {
            auto& text = static_cast<shell::TextBox&>(control);
            if (text.MultiLine()) {
                auto* edit = new QPlainTextEdit;
                edit->setObjectName(name);
                // The model keeps the file's CRLF line ends; the widget has bare line feeds.
                auto sync = [&text, edit] {
                    if (FromQtLines(edit->toPlainText()) != text.Text()) {
                        const QSignalBlocker block(edit);
                        edit->setPlainText(ToQtLines(text.Text()));
                    }
                    edit->setReadOnly(text.ReadOnly());
                    SyncCommon(text, edit);
                };
                text.SetListener(sync);
                sync();
                connect(edit, &QPlainTextEdit::textChanged, edit, [&text, edit] {
                    Guard([&] { text.UserSetText(FromQtLines(edit->toPlainText())); });
                });
                return {nullptr, edit};
            }
            auto* edit = new QLineEdit;
            edit->setObjectName(name);
            auto sync = [&text, edit] {
                // A text put in by the page shows from its first character, however long.
                if (FromQt(edit->text()) != text.Text()) {
                    edit->setText(ToQt(text.Text()));
                    edit->setCursorPosition(0);
                }
                edit->setReadOnly(text.ReadOnly());
                SyncCommon(text, edit);
            };
            text.SetListener(sync);
            sync();
            connect(edit, &QLineEdit::textEdited, edit, [&text](const QString& value) {
                Guard([&] { text.UserSetText(FromQt(value)); });
            });
            return {CaptionOf(text, edit), edit};
        }
        case ControlKind::Check: {
            auto& check = static_cast<shell::CheckBox&>(control);
            auto* box = new QCheckBox;
            box->setObjectName(name);
            auto sync = [&check, box] {
                box->setText(ToQt(check.Caption()));
                box->setChecked(check.Value() == 1);
                SyncCommon(check, box);
            };
            check.SetListener(sync);
            sync();
            connect(box, &QCheckBox::clicked, box,
                    [&check](bool on) { Guard([&] { check.UserSetValue(on ? 1 : 0); }); });
            return {nullptr, box};
        }
        case ControlKind::Option: {
            auto& option = static_cast<shell::OptionButton&>(control);
            auto* button = new QRadioButton;
            button->setObjectName(name);
            // The model keeps its groups: the widget never turns a sibling off by itself.
            button->setAutoExclusive(false);
            auto sync = [&option, button] {
                button->setText(ToQt(option.Caption()));
                button->setChecked(option.Value() == 1);
                SyncCommon(option, button);
            };
            option.SetListener(sync);
            sync();
            connect(button, &QRadioButton::clicked, button, [&option, button] {
                Guard([&] { option.UserClick(); });
                // A click on the option that is on leaves it on.
                button->setChecked(option.Value() == 1);
            });
            return {nullptr, button};
        }
        case ControlKind::Combo: {
            auto& combo = static_cast<shell::ComboBox&>(control);
            auto* box = new QComboBox;
            box->setObjectName(name);
            auto sync = [&combo, box] {
                const QSignalBlocker block(box);
                box->clear();
                for (const auto& item : combo.Items())
                    box->addItem(ToQt(item));
                box->setCurrentIndex(box->findText(ToQt(combo.Text()), Qt::MatchExactly));
                SyncCommon(combo, box);
            };
            combo.SetListener(sync);
            sync();
            connect(box, &QComboBox::activated, box, [&combo, box](int index) {
                Guard([&] { combo.UserSetText(FromQt(box->itemText(index))); });
            });
            return {CaptionOf(combo, box), box};
        }
        case ControlKind::UpDown: {
            auto& updown = static_cast<shell::UpDown&>(control);
            auto* buddy = updown.Buddy().empty()
                              ? nullptr
                              : dynamic_cast<shell::TextBox*>(page_.Find(updown.Buddy()));
            auto* spin = new UpDownBox(updown, buddy);
            spin->setObjectName(name);
            const auto sync = [spin] { spin->Sync(); };
            updown.SetListener(sync);
            // The text box isn't drawn: its text shows in the spin box.
            if (buddy != nullptr) buddy->SetListener(sync);
            sync();
            connect(spin, &QSpinBox::valueChanged, spin,
                    [&updown](int value) { Guard([&] { updown.UserSetValue(value); }); });
            return {CaptionOf(updown, spin), spin};
        }
        case ControlKind::Slider: {
            auto& slider = static_cast<shell::Slider&>(control);
            auto* bar = new QSlider(Qt::Horizontal);
            bar->setObjectName(name);
            bar->setTickPosition(QSlider::TicksBelow);
            auto sync = [&slider, bar] {
                const QSignalBlocker block(bar);
                bar->setRange(slider.Min(), slider.Max());
                bar->setSingleStep(slider.SmallChange());
                bar->setPageStep(slider.LargeChange());
                bar->setTickInterval(slider.SmallChange());
                bar->setValue(slider.Value());
                SyncCommon(slider, bar);
            };
            slider.SetListener(sync);
            sync();
            connect(bar, &QSlider::valueChanged, bar,
                    [&slider](int value) { Guard([&] { slider.UserSetValue(value); }); });
            return {CaptionOf(slider, bar), bar};
        }
        case ControlKind::Label: {
            auto* label = new QLabel;
            label->setObjectName(name);
            auto sync = [&control, label] {
                // A label that names a field takes "&" as a shortcut mark; the captions don't.
                label->setText(label->buddy() != nullptr ? ToQtLiteral(control.Caption())
                                                         : ToQt(control.Caption()));
                SyncCommon(control, label);
            };
            control.SetListener(sync);
            sync();
            return {nullptr, label};
        }
        case ControlKind::Button: {
            auto& button = static_cast<shell::Button&>(control);
            auto* push = new QPushButton;
            push->setObjectName(name);
            auto sync = [&button, push] {
                push->setText(ToQt(button.Caption()));
                SyncCommon(button, push);
            };
            button.SetListener(sync);
            sync();
            connect(push, &QPushButton::clicked, push,
                    [&button] { Guard([&] { button.UserClick(); }); });
            return {nullptr, push};
        }
        case ControlKind::Toolbar:
            return {nullptr, new ToolbarBinding(static_cast<shell::Toolbar&>(control))};
        case ControlKind::Frame: {
            auto* group = new QGroupBox(ToQt(control.Caption()));
            group->setObjectName(name);
            return {nullptr, group};
        }
        case ControlKind::StatusBar:
        case ControlKind::Tooltip:
            break;
    }
    return {nullptr, new QWidget};
}

}  // namespace qb::gui
