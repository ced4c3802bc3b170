// The rows of the product list: three texts, a grey flag and a bold flag each. A plain table that
// the list's handlers fill and change; it neither sorts nor knows the store.
#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <array>
#include <vector>

// Columns of the list, in the order in which they are added.
enum ListColumn { kColumnRef = 0, kColumnShortDesc = 1, kColumnPrice = 2, kProductColumns = 3 };

struct ProductRow {
    std::array<QString, kProductColumns> texts;
    bool grey = false; // the whole row
    bool bold = false; // the second column alone
};

class ProductListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ProductListModel(QObject* parent = nullptr);

    // Columns appear one by one as they are added; rows and columns count from 0.
    void AddColumn(const QString& key, const QString& caption, bool rightAligned);
    QString ColumnKey(int column) const;

    int RowCount() const { return static_cast<int>(rows.size()); }
    QString Text(int row, int column) const;

    void Clear();
    void SetRows(std::vector<ProductRow> newRows);
    void AppendRow(ProductRow row);

    // These three do nothing for a row that isn't there.
    void RemoveRow(int row);
    void SetCell(int row, int column, const QString& text);
    void SetMark(int row, bool grey, bool bold);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Column {
        QString key;
        QString caption;
        bool rightAligned;
    };

    bool HasRow(int row) const { return row >= 0 && row < RowCount(); }

    std::vector<Column> columns;
    std::vector<ProductRow> rows;
};
