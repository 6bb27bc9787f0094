#include "gui/list_model.h"

#include "gui/fatal.h"
#include "gui/text.h"

namespace qb::gui {

ListModel::ListModel(shell::ListControl& list, QObject* parent)
    : QAbstractTableModel(parent), shownRows_(list.Count()), list_(list) {
    list_.SetListener([this] {
        if (resetPending_) return;
        resetPending_ = true;
        AfterDispatch(this, [this] {
            beginResetModel();
            shownRows_ = list_.Count();
            resetPending_ = false;
            endResetModel();
            emit selectionMoved(list_.Selected());
        });
    });
    list_.SetRowListener([this](int first, int last) {
        if (resetPending_ || last > shownRows_) return;  // the coming reset shows them
        emit dataChanged(index(first - 1, 0), index(last - 1, std::max(0, columnCount() - 1)));
        emit selectionMoved(list_.Selected());
    });
}

ListModel::~ListModel() {
    list_.SetListener(nullptr);
    list_.SetRowListener(nullptr);
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shownRows_;
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : std::max(1, list_.ColumnCount());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= list_.Count()) return {};
    const int row = index.row() + 1;
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        return ToQt(list_.Cell(row, index.column() + 1));
    }
    if (role == Qt::CheckStateRole && index.column() == 0 && list_.CheckBoxes()) {
        return list_.Row(row).checked ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

bool ListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole || index.row() >= list_.Count())
        return false;
    const bool checked = value.toInt() == Qt::Checked;
    const int row = index.row() + 1;
    bool done = false;
    Guard([&] { done = list_.UserCheck(row, checked); });
    return done;
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (list_.Enabled()) flags |= Qt::ItemIsEnabled;
    if (index.column() == 0 && list_.CheckBoxes()) flags |= Qt::ItemIsUserCheckable;
    return flags;
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    if (section >= list_.ColumnCount()) return {};
    return ToQt(list_.Columns()[static_cast<size_t>(section)].text);
}

}  // namespace qb::gui
