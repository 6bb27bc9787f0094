#pragma once
// The edit dialogs in the desktop window: one Qt dialog over the shell's dialog model, which
// decides the fields, the mandatory paint and when OK and Add may be clicked.

#include <QDialog>

#include "shell/edit_dialog.h"

class QPushButton;

namespace qb::gui {

// The light red of a mandatory field.
inline const QColor kMandatoryColour(0xff, 0x80, 0x80);

class EditDialogView : public QDialog {
    Q_OBJECT
  public:
    explicit EditDialogView(const shell::DialogRequest& request, QWidget* parent = nullptr);

    const shell::EditDialog& Model() const { return model_; }
    // After the dialog has ended: mode "1", "A", or empty for Cancel and the close box.
    const shell::DialogResult& Result() const { return result_; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

  private:
    QWidget* BuildField(int index, const shell::DialogField& field);
    void FieldChanged(int index, const QString& value);
    void SyncButtons();
    void Finish(const std::optional<shell::DialogResult>& result);

    shell::EditDialog model_;
    shell::DialogResult result_;
    QPushButton* cmdOK_;
    QPushButton* cmdAdd_;
    QPushButton* cmdCancel_;
    std::vector<QWidget*> fields_;
    bool closed_ = false;
};

}  // namespace qb::gui
