#pragma once
// The platform for the pages in the desktop window: real message boxes and dialogs.

#include <QStringList>
#include <QWidget>
#include <functional>

#include "shell/host.h"

namespace qb::gui {

// A page's file filter, "(*.TBL)|*.tbl", as the file dialog's name filters.
QStringList NameFilters(const std::string& filter);

class QtHost : public shell::Host {
  public:
    // Dialogs are modal to the main window once it exists.
    void SetParent(QWidget* parent) { parent_ = parent; }

    shell::Answer ShowMessage(const shell::Message& message) override;
    shell::DialogResult ShowDialog(const shell::DialogRequest& request) override;
    std::optional<std::string> AskInput(const std::string& prompt, const std::string& title,
                                        const std::string& initial) override;
    std::optional<std::string> AskFile(const std::string& title, const std::string& filter,
                                       const std::string& initialFolder) override;
    void OpenTextEditor(const std::string& file, const std::string& mode) override;
    void OpenWebAddress(const std::string& address) override;

    std::function<void(const std::string& file, const std::string& mode)> openTextEditor;

  private:
    QWidget* parent_ = nullptr;
};

}  // namespace qb::gui
