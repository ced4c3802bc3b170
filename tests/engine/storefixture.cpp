#include "storefixture.h"

#include "tests/support/files.h"

namespace {

QString FieldText(const Cell& cell) {
    return IsNull(cell) ? QStringLiteral("-") : CellText(cell);
}

} // namespace

StoreFixture::StoreFixture() : connection(StoreConnection::Create(Path())) {
    connection->Execute(ReadFile(STORE_SQL));
}

Recordset StoreFixture::Cursor(const QString& statement, bool pessimistic) const {
    Recordset cursor;
    cursor.SetConnection(connection);
    cursor.SetPessimistic(pessimistic);
    cursor.SetSource(statement);
    cursor.Open();
    return cursor;
}

std::string StoreFixture::Rows(const QString& statement) const {
    QStringList rows;
    for (Recordset cursor = Cursor(statement); cursor.HasRow(); cursor.MoveNext()) {
        QStringList fields;
        for (int column = 0; column < cursor.ColumnCount(); ++column) {
            fields += FieldText(cursor.Value(column));
        }
        rows += fields.join(",");
    }
    return rows.join("/").toStdString();
}

int ErrorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const StoreError& error) {
        return error.number;
    }
    return 0;
}
