#include "forms/productlistmodel.h"

#include <QColor>
#include <QFont>

namespace {

constexpr int kBoldColumn = 1;
constexpr QRgb kGrey = 0xFF909090;

} // namespace

ProductListModel::ProductListModel(QObject* parent) : QAbstractTableModel(parent) {}

void ProductListModel::AddColumn(const QString& key, const QString& caption, bool rightAligned) {
    const int column = columnCount();
    if (column == kProductColumns) {
        return;
    }
    beginInsertColumns({}, column, column);
    columns.push_back({key, caption, rightAligned});
    endInsertColumns();
}

QString ProductListModel::ColumnKey(int column) const {
    return column >= 0 && column < columnCount() ? columns[column].key : QString();
}

QString ProductListModel::Text(int row, int column) const {
    return HasRow(row) && column >= 0 && column < kProductColumns ? rows[row].texts[column]
                                                                  : QString();
}

void ProductListModel::Clear() {
    SetRows({});
}

void ProductListModel::SetRows(std::vector<ProductRow> newRows) {
    beginResetModel();
    rows = std::move(newRows);
    endResetModel();
}

void ProductListModel::AppendRow(ProductRow row) {
    beginInsertRows({}, RowCount(), RowCount());
    rows.push_back(std::move(row));
    endInsertRows();
}

void ProductListModel::RemoveRow(int row) {
    if (!HasRow(row)) {
        return;
    }
    beginRemoveRows({}, row, row);
    rows.erase(rows.begin() + row);
    endRemoveRows();
}

void ProductListModel::SetCell(int row, int column, const QString& text) {
    if (!HasRow(row) || column < 0 || column >= kProductColumns || Text(row, column) == text) {
        return;
    }
    rows[row].texts[column] = text;
    const QModelIndex cell = index(row, column);
    emit dataChanged(cell, cell);
}

void ProductListModel::SetMark(int row, bool grey, bool bold) {
    if (!HasRow(row) || (rows[row].grey == grey && rows[row].bold == bold)) {
        return;
    }
    rows[row].grey = grey;
    rows[row].bold = bold;
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

int ProductListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : RowCount();
}

int ProductListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant ProductListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const ProductRow& row = rows[index.row()];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return row.texts[index.column()];
    case Qt::ForegroundRole:
        return row.grey ? QVariant(QColor(kGrey)) : QVariant();
    case Qt::FontRole:
        if (row.bold && index.column() == kBoldColumn) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            (columns[index.column()].rightAligned ? Qt::AlignRight : Qt::AlignLeft) |
            Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant ProductListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return columns[section].caption;
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(
            (columns[section].rightAligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    return {};
}
