#include "tests/support/catalogue.h"

#include "core/settings.h"
#include "engine/storeengine.h"
#include "store/corpinfo.h"
#include "store/fielddefs.h"
#include "store/store.h"
#include "tests/support/files.h"

#include <QHash>
#include <gtest/gtest.h>

const char kAgencyFields[] = R"(
    def; 0; T; ESSuperficie
    def; 1; O; ESTipo; ESPisos#ENFlats|ESFincas rusticas#ENFarms
    def; 2; T; ESIndividuales
    def; 3; T; ESDobles
    def; 4; B; ESBaño
    def; 5; T; ESAseos
    textdef; Products; 0; ShortDesc
    textdef; Products; 1; LongDesc
)";

namespace {

// Table and columns of each kind of line.
const QHash<QString, QString> kKinds = {
    {"def", "ProductFieldDef (FieldDefId, Type, Caption, Choices, DefaultValue)"},
    {"product",
     "Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate, PriceCurrency)"},
    {"field", "ProductFields (ProductId, FieldDefId, FieldValue)"},
    {"picture", "Pictures (ProductId, ProdPictureId, OrderInForm, PictureId, PicturePath)"},
    {"language", "Languages (LangCode, Caption, Priority)"},
    {"textdef", "MultiLangFieldDef (TableName, FieldDefId, FieldName)"},
    {"text", "MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue)"}};

// "\n" stands for a line end.
QString Literal(QString value) {
    value.replace(QStringLiteral("\\n"), QStringLiteral("\r\n"));
    return value == u"NULL" ? value : u'\'' + value.replace(u'\'', QStringLiteral("''")) + u'\'';
}

constexpr int kValuesOfProduct = 6; // without the currency

// What a test needn't say: the currency, a picture's number and its file.
void AddDerived(const QString& kind, QStringList& values) {
    if (kind == u"product" && values.size() == kValuesOfProduct) {
        values.append("EUR");
    } else if (kind == u"picture") {
        const QString id = QString::number(values[0].toInt() * 100 + values[1].toInt());
        values.append({id, "Pic" + id + ".dat"});
    }
}

QString RowStatement(const QString& line);

// A row for each value behind the first `shared` ones, with its place as number of the field.
QString SeveralStatements(const QString& kind, const QStringList& values, int shared) {
    QString statements;
    for (int place = 0; place + shared < values.size(); ++place) {
        QStringList row = QStringList{kind} + values.mid(0, shared);
        row += {QString::number(place), values[shared + place]};
        statements += RowStatement(row.join(u';'));
    }
    return statements;
}

QString RowStatement(const QString& line) {
    QStringList values;
    for (const QString& value : line.split(u';')) {
        values.append(value.trimmed());
    }
    const QString kind = values.takeFirst();
    if (kind == u"fields" || kind == u"texts") {
        return SeveralStatements(kind.chopped(1), values, kind == u"fields" ? 1 : 3);
    }
    if (kind == u"corp") {
        return "UPDATE CorpInfo SET " + values[0] + " = " + Literal(values[1]) + ';';
    }
    const QString target = kKinds.value(kind);
    EXPECT_FALSE(target.isEmpty()) << qPrintable(line);
    const qsizetype derived = kind == u"product" ? 1 : kind == u"picture" ? 2 : 0;
    while (values.size() < target.count(u',') + 1 - derived) {
        values.append("NULL");
    }
    AddDerived(kind, values);
    for (QString& value : values) {
        value = Literal(value);
    }
    return "INSERT INTO " + target + " VALUES (" + values.join(u',') + ");";
}

} // namespace

TestCatalogue::TestCatalogue(const QString& rows) {
    LoadSettings();
    SetStoreFolder(Folder());
    const auto connection = StoreConnection::Create(Folder() + DBname);
    connection->Execute(QString::fromUtf8(ReadFile(SCHEMA_FILE)));
    QString statements = "INSERT INTO CorpInfo (Name) VALUES ('');";
    for (const QString& line : rows.split(u'\n')) {
        if (!line.trimmed().isEmpty()) {
            statements += RowStatement(line);
        }
    }
    connection->Execute(statements);
    for (Recordset& cursor : adcData) {
        cursor.SetConnection(connection);
    }
    CountPublicFields();
    LoadCorpInfo();
}

TestCatalogue::~TestCatalogue() {
    DropSiteSnapshot(snapshot);
    CloseStore();
}

QString TestCatalogue::Folder() const {
    return folder.path() + u'/';
}

SiteSnapshot& TestCatalogue::Snapshot() {
    if (snapshot.empty()) {
        TakeSiteSnapshot(snapshot);
    }
    return snapshot;
}
