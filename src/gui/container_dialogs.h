#pragma once
// The main window's own modal dialogs: "Windows" (frmContainerWindows), which lists every open
// window, and the about box (frmHelpAbout) with its system information.

#include <QDialog>
#include <QString>

#include "shell/container.h"

class QTreeWidget;

namespace qb::gui {

class WindowsDialog : public QDialog {
    Q_OBJECT
  public:
    WindowsDialog(shell::Container& container, QWidget* parent = nullptr);
    QTreeWidget* List() const { return lvwWindows_; }

  private:
    void Choose();

    shell::Container& container_;
    QTreeWidget* lvwWindows_;
};

class AboutDialog : public QDialog {
    Q_OBJECT
  public:
    // The version the run behaves as stands in the box.
    explicit AboutDialog(store::ProgramVersion version, QWidget* parent = nullptr);
};

// The details of this system: the output of `command`, the text of `file`, the Qt version and
// the screens. Empty when neither the command nor the file gives anything.
QString SystemInformation(const QString& command, const QString& file);
// The same from the configured command and file (uname -a, /etc/os-release).
QString SystemInformation();

// cmdSysInfo: the details in a dialog of their own, or the message that there are none.
void ShowSystemInformation(QWidget* parent);

}  // namespace qb::gui
