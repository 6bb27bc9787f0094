#include "gui/qt_host.h"

#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFontDatabase>
#include <QInputDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>
#include <stdexcept>

#include "gui/edit_dialog_view.h"
#include "gui/text.h"
#include "store/paths.h"

namespace qb::gui {
namespace {

QMessageBox::Icon ToQt(shell::Icon icon) {
    switch (icon) {
        case shell::Icon::Information:
            return QMessageBox::Information;
        case shell::Icon::Question:
            return QMessageBox::Question;
        case shell::Icon::Exclamation:
            return QMessageBox::Warning;
        case shell::Icon::Critical:
            return QMessageBox::Critical;
        case shell::Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

// The list and diffs of what a rebuild would write, over the question that asks for it.
void ShowChanges(QWidget* parent, const std::string& report) {
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("dlgChanges"));
    dialog.setWindowTitle(QStringLiteral("What The Rebuild Would Write"));
    auto* text = new QPlainTextEdit(QString::fromStdString(report), &dialog);
    text->setObjectName(QStringLiteral("txtChanges"));
    text->setReadOnly(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(text);
    layout->addWidget(buttons);
    dialog.resize(900, 600);
    dialog.exec();
}

}  // namespace

QStringList NameFilters(const std::string& filter) {
    // The pages give their filters as pairs "description|patterns|description|patterns", the
    // patterns joined by ";". The scripts' home system matches names ignoring letter case, so
    // each letter of a pattern matches both cases: "*.tbl" finds "English.TBL" too.
    const QStringList parts = gui::ToQt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns;
        for (const QChar c : parts[i + 1]) {
            if (c == QLatin1Char(';')) {
                patterns += QLatin1Char(' ');
            } else if (c.isLetter() && c.toLower() != c.toUpper()) {
                patterns += QLatin1Char('[') + c.toLower() + c.toUpper() + QLatin1Char(']');
            } else {
                patterns += c;
            }
        }
        filters << parts[i] + QStringLiteral(" (") + patterns + QLatin1Char(')');
    }
    return filters;
}

shell::Answer QtHost::ShowMessage(const shell::Message& message) {
    QMessageBox box(ToQt(message.icon), gui::ToQt(message.title), gui::ToQt(message.text),
                    QMessageBox::NoButton, parent_);
    switch (message.buttons) {
        case shell::Buttons::OK:
            box.setStandardButtons(QMessageBox::Ok);
            break;
        case shell::Buttons::OKCancel:
            box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
            break;
        case shell::Buttons::YesNo:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
            break;
    }
    if (message.showChanges) {
        QPushButton* show = box.addButton(QStringLiteral("Show changes"), QMessageBox::ActionRole);
        show->setObjectName(QStringLiteral("cmdShowChanges"));
        // Every button of a message box closes it; this one shows the list over the box and
        // leaves the question open, so its own click replaces the box's.
        show->disconnect();
        QObject::connect(show, &QPushButton::clicked, &box,
                         [&box, &message] { ShowChanges(&box, message.showChanges()); });
    }
    switch (box.exec()) {
        case QMessageBox::Ok:
            return shell::Answer::OK;
        case QMessageBox::Yes:
            return shell::Answer::Yes;
        case QMessageBox::No:
            return shell::Answer::No;
        default:
            // The close box of an OK-only box is its OK.
            return message.buttons == shell::Buttons::OK      ? shell::Answer::OK
                   : message.buttons == shell::Buttons::YesNo ? shell::Answer::No
                                                              : shell::Answer::Cancel;
    }
}

shell::DialogResult QtHost::ShowDialog(const shell::DialogRequest& request) {
    EditDialogView dialog(request, parent_);
    dialog.exec();
    return dialog.Result();
}

std::optional<std::string> QtHost::AskInput(const std::string& prompt, const std::string& title,
                                            const std::string& initial) {
    bool ok = false;
    const QString text = QInputDialog::getText(parent_, gui::ToQt(title), gui::ToQt(prompt),
                                               QLineEdit::Normal, gui::ToQt(initial), &ok);
    if (!ok) return std::nullopt;
    return FromQt(text);
}

std::optional<std::string> QtHost::AskFile(const std::string& title, const std::string& filter,
                                           const std::string& initialFolder) {
    const auto folder = store::ToNativePath(initialFolder);
    QFileDialog dialog(parent_, gui::ToQt(title),
                       folder ? QString::fromStdString(folder->string()) : QString());
    dialog.setObjectName(QStringLiteral("dlgDialog"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(NameFilters(filter));
    // The filters read as the pages word them, "(*.TBL)", without Qt's pattern behind.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return store::ToScriptPath(dialog.selectedFiles().front().toStdString());
}

void QtHost::OpenTextEditor(const std::string& file, const std::string& mode) {
    if (!openTextEditor) throw std::logic_error("no text editor page in this window");
    openTextEditor(file, mode);
}

void QtHost::OpenWebAddress(const std::string& address) {
    QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

}  // namespace qb::gui
