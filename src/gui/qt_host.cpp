#include "gui/qt_host.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QUrl>
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

}  // namespace

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
    const QString chosen = QFileDialog::getOpenFileName(
        parent_, gui::ToQt(title), folder ? QString::fromStdString(folder->string()) : QString(),
        gui::ToQt(filter));
    if (chosen.isEmpty()) return std::nullopt;
    return store::ToScriptPath(chosen.toStdString());
}

void QtHost::OpenTextEditor(const std::string& file, const std::string& mode) {
    if (!openTextEditor) throw std::logic_error("no text editor page in this window");
    openTextEditor(file, mode);
}

void QtHost::OpenWebAddress(const std::string& address) {
    QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

}  // namespace qb::gui
