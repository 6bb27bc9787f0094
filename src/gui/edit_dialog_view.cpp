#include "gui/edit_dialog_view.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "gui/text.h"

namespace qb::gui {
namespace {

QString Indexed(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

void Paint(QWidget* widget) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Base, kMandatoryColour);
    palette.setColor(QPalette::Button, kMandatoryColour);
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
    widget->setProperty("mandatory", true);
}

}  // namespace

EditDialogView::EditDialogView(const shell::DialogRequest& request, QWidget* parent)
    : QDialog(parent), model_(request) {
    setObjectName(QString::fromStdString(shell::DialogFormName(request.kind)));
    setWindowTitle(ToQt(request.caption));
    setModal(true);

    auto* frame = new QGroupBox(ToQt(request.frameCaption));
    frame->setObjectName(QStringLiteral("fraFrame"));
    auto* grid = new QGridLayout(frame);
    int row = 0;
    for (const auto& field : model_.Fields()) {
        auto* label = new QLabel(ToQt(field.label));
        label->setObjectName(Indexed("lblLabel", row));
        QWidget* widget = BuildField(row, field);
        label->setBuddy(widget);
        if (field.painted) Paint(widget);
        grid->addWidget(label, row, 0);
        grid->addWidget(widget, row, 1);
        fields_.push_back(widget);
        ++row;
    }
    grid->setColumnStretch(1, 1);

    cmdOK_ = new QPushButton(QStringLiteral("OK"));
    cmdOK_->setObjectName(QStringLiteral("cmdOK"));
    cmdOK_->setDefault(true);
    cmdAdd_ = new QPushButton(QStringLiteral("&Add"));
    cmdAdd_->setObjectName(QStringLiteral("cmdAdd"));
    cmdCancel_ = new QPushButton(QStringLiteral("Cancel"));
    cmdCancel_->setObjectName(QStringLiteral("cmdCancel"));
    connect(cmdOK_, &QPushButton::clicked, this, [this] { Finish(model_.ClickOK()); });
    connect(cmdAdd_, &QPushButton::clicked, this, [this] { Finish(model_.ClickAdd()); });
    connect(cmdCancel_, &QPushButton::clicked, this, [this] { Finish(model_.ClickCancel()); });

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOK_);
    buttons->addWidget(cmdAdd_);
    buttons->addWidget(cmdCancel_);
    auto* outer = new QVBoxLayout(this);
    outer->addWidget(frame);
    outer->addLayout(buttons);
    setMinimumWidth(360);

    SyncButtons();
    if (!fields_.empty()) fields_.front()->setFocus();
}

QWidget* EditDialogView::BuildField(int index, const shell::DialogField& field) {
    switch (field.kind) {
        case shell::FieldKind::Text: {
            auto* edit = new QLineEdit(ToQt(field.value));
            edit->setObjectName(Indexed("txtTextBox", field.index));
            connect(edit, &QLineEdit::textEdited, this,
                    [this, index](const QString& text) { FieldChanged(index, text); });
            return edit;
        }
        case shell::FieldKind::UpDown: {
            // The number beside the up-down can't be typed into: only the arrows change it,
            // and they keep it inside the bounds.
            auto* spin = new QSpinBox;
            spin->setObjectName(Indexed("updUpDown", field.index));
            spin->setRange(field.bounds.min, field.bounds.max);
            spin->setSingleStep(field.bounds.step);
            bool number = false;
            const int value = ToQt(field.value).toInt(&number);
            // An empty value shows empty until the arrows are used.
            if (!number) spin->setSpecialValueText(QStringLiteral(" "));
            spin->setValue(number ? value : field.bounds.min);
            spin->findChild<QLineEdit*>()->setReadOnly(true);
            spin->findChild<QLineEdit*>()->setObjectName(Indexed("txtTextBox", field.index));
            connect(spin, &QSpinBox::valueChanged, this, [this, index, spin](int changed) {
                spin->setSpecialValueText(QString());
                FieldChanged(index, QString::number(changed));
            });
            return spin;
        }
        case shell::FieldKind::Combo: {
            auto* combo = new QComboBox;
            combo->setObjectName(Indexed("cboComboBox", field.index));
            combo->setEditable(model_.Request().editableCombos);
            for (const auto& item : field.items)
                combo->addItem(ToQt(item));
            const int at = combo->findText(ToQt(field.value), Qt::MatchExactly);
            if (at >= 0 || !combo->isEditable()) {
                combo->setCurrentIndex(at);
            } else {
                combo->setEditText(ToQt(field.value));
            }
            connect(combo, &QComboBox::activated, this,
                    [this, index, combo](int item) { FieldChanged(index, combo->itemText(item)); });
            if (combo->isEditable()) {
                connect(combo->lineEdit(), &QLineEdit::textEdited, this,
                        [this, index](const QString& text) { FieldChanged(index, text); });
            }
            return combo;
        }
    }
    return new QWidget;
}

void EditDialogView::FieldChanged(int index, const QString& value) {
    model_.UserSetField(index, FromQt(value));
    SyncButtons();
}

void EditDialogView::SyncButtons() {
    cmdOK_->setEnabled(model_.OKEnabled());
    cmdAdd_->setEnabled(model_.AddEnabled());
}

void EditDialogView::Finish(const std::optional<shell::DialogResult>& result) {
    // A click the dialog ignores (Add with an empty field) leaves it open.
    if (!result) return;
    result_ = *result;
    closed_ = true;
    if (result_.mode.empty()) {
        QDialog::reject();
    } else {
        accept();
    }
}

void EditDialogView::reject() {
    // Escape is the Cancel button.
    Finish(model_.ClickCancel());
}

void EditDialogView::closeEvent(QCloseEvent* event) {
    // The close box ends the dialog as Cancel does.
    if (!closed_) {
        result_ = model_.CloseBox();
        closed_ = true;
    }
    QDialog::closeEvent(event);
}

}  // namespace qb::gui
