#include "images/picturefile.h"
#include "tests/delivery/deliveredstore.h"

#include <gtest/gtest.h>

namespace {

QStringList Samples() {
    return DeliveredCatalogues().filter("muestra");
}

} // namespace

TEST(Samples, HaveAReadablePictureForEveryRowAndNoOthers) {
    ASSERT_FALSE(Samples().isEmpty());
    for (const QString& name : Samples()) {
        SCOPED_TRACE(name.toStdString());
        const DeliveredStore store(name);
        QStringList expected = {"CorpLogo.dat", "ExtraImage.dat", "FindUsMap.dat"};
        Recordset rows = store.Read("SELECT * FROM Pictures ORDER BY ProductId, OrderInForm");
        qint64 product = 0;
        for (int order = 0; rows.HasRow(); rows.MoveNext(), ++order) {
            if (rows.Integer(u"ProductId") != product) {
                product = rows.Integer(u"ProductId");
                order = 0;
            }
            const qint64 id = product * 100 + rows.Integer(u"ProdPictureId");
            EXPECT_EQ(rows.Integer(u"PictureId"), id);
            EXPECT_EQ(rows.Integer(u"OrderInForm"), order);
            EXPECT_EQ(rows.Text(u"PicturePath"), QString("Pic%1.dat").arg(id));
            expected.append(rows.Text(u"PicturePath"));
        }
        for (const QString& file : expected) {
            const QString path = store.Folder().filePath(file);
            const QSize size = ReadPictureSize(path);
            EXPECT_FALSE(size.isEmpty()) << file.toStdString();
        }
        expected.sort();
        QStringList found = store.Folder().entryList({"*.dat"}, QDir::Files, QDir::Name);
        EXPECT_EQ(found.removeAll("sector.dat"), name.contains("inmobiliaria") ? 1 : 0);
        EXPECT_EQ(found, expected);
    }
}

// A set of texts or values is complete or absent, since the program walks rows and boxes together.
TEST(Samples, HaveEveryTextAndValue) {
    for (const QString& name : Samples()) {
        SCOPED_TRACE(name.toStdString());
        const DeliveredStore store(name);
        const qint64 languages =
            store.Count("SELECT count(DISTINCT LangCode) FROM MultiLangFields");
        const qint64 items = 3 * store.Count("SELECT count(*) FROM Products") +
                             2 * store.Count("SELECT count(*) FROM Pictures") + 4;
        EXPECT_EQ(store.Count("SELECT count(*) FROM MultiLangFields WHERE FieldValue <> ''"),
                  languages * items);
        EXPECT_EQ(store.Count("SELECT count(*) FROM (SELECT DISTINCT TableName, ItemId, LangCode, "
                              "FieldDefId FROM MultiLangFields)"),
                  languages * items);
        EXPECT_EQ(store.Count("SELECT count(*) FROM ProductFields"),
                  store.Count("SELECT count(*) FROM Products") *
                      store.Count("SELECT count(*) FROM ProductFieldDef"));
        Recordset values = store.Read("SELECT FieldValue, Type, Choices FROM ProductFields f, "
                                      "ProductFieldDef d WHERE f.FieldDefId = d.FieldDefId AND "
                                      "Type IN ('B', 'O')");
        for (; values.HasRow(); values.MoveNext()) {
            const qint64 choices =
                values.Text(u"Type") == "B" ? 2 : values.Text(u"Choices").count('|') + 1;
            EXPECT_TRUE(values.Integer(u"FieldValue") >= 0 &&
                        values.Integer(u"FieldValue") < choices);
        }
    }
}
