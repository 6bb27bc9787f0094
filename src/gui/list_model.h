#pragma once
// A list control seen by a Qt view. The view asks for rows as it paints them, so a matrix page
// of ten thousand rows opens and scrolls without building ten thousand items.

#include <QAbstractTableModel>

#include "shell/controls.h"

namespace qb::gui {

class ListModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    explicit ListModel(shell::ListControl& list, QObject* parent = nullptr);
    ~ListModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    shell::ListControl& List() const { return list_; }

  signals:
    // The control's selection moved in code; the view follows.
    void selectionMoved(int row);

  private:
    // The rows the view knows of: the control's count as of the last reset, which waits for the
    // page to finish handling the event.
    int shownRows_ = 0;
    bool resetPending_ = false;
    shell::ListControl& list_;
};

}  // namespace qb::gui
