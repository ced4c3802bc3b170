#include "generator/datalist.h"

#include "generator/categories.h"
#include "generator/outputs.h"
#include "generator/siteproduct.h"
#include "generator/template.h"
#include "generator/transforms.h"
#include "generator/weblangs.h"
#include "generator/zones.h"
#include "platform/ansi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kListMarker = 9; // nothing of a field's value is changed

// The arrays of one field.
struct ListColumn {
    QString key;
    QByteArray ids;
    QByteArray values;
};

// The arrays of one language while the products are gone through.
struct DataLists {
    QByteArray ids, fileKeys, refs, zones, zoneCodes, prices, mainPictures;
    std::vector<ListColumn> columns;
};

// Finds or makes the column of a key. Products mostly have the same fields in the same order, so
// that the search begins at the place where the key is expected.
ListColumn& FindColumn(std::vector<ListColumn>& columns, const QString& key, size_t expected) {
    if (expected < columns.size() && columns[expected].key == key) {
        return columns[expected];
    }
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&key](const ListColumn& column) { return column.key == key; });
    return found != columns.end() ? *found : columns.emplace_back(ListColumn{key, {}, {}});
}

void AddEntry(QByteArray& list, const QByteArray& entry, char separator) {
    list += '\'';
    list += entry;
    list += '\'';
    list += separator;
}

QByteArray PriceEntry(const SiteProduct& row) {
    return EscapeQuotes(ToAnsi(row.PriceText).replace(',', '.'));
}

void AddProduct(DataLists& lists, const SiteProduct& row, const QByteArray& mainPicture,
                char separator) {
    AddEntry(lists.ids, ToAnsi(row.ProductId), separator);
    AddEntry(lists.refs, EscapeQuotes(ToAnsi(row.ProductRef)), separator);
    AddEntry(lists.zones, EscapeQuotes(ToAnsi(row.SaleZone)), separator);
    AddEntry(lists.zoneCodes, EscapeQuotes(ToAnsi(ZoneCode(row.SaleZone))), separator);
    lists.prices += PriceEntry(row);
    lists.prices += separator;
    AddEntry(lists.mainPictures, mainPicture, separator);
}

void AddFields(DataLists& lists, const FieldList& fields, char separator) {
    size_t expected = 0;
    for (const FieldItem& item : fields) {
        ListColumn& column = FindColumn(lists.columns, item.Key, expected++);
        AddEntry(column.values, ToAnsi(item.Value), separator);
        AddEntry(column.ids, ToAnsi(item.RawValue), separator);
    }
}

// Texts of the language. Their ids are the codes of the category trees, so that a script can tell
// the products of a category.
void AddTexts(DataLists& lists, const QString& productId, const FieldList& texts, size_t expected,
              char separator) {
    for (const FieldItem& item : texts) {
        if (item.Key == kFileKeyField) {
            AddEntry(lists.fileKeys, ToAnsi(productId + MakeFileSuffix(item.Value)), separator);
        }
        ListColumn& column = FindColumn(lists.columns, item.Key, expected++);
        QByteArray value = ToAnsi(item.Value);
        AddEntry(column.ids, CategoryHash(value), separator);
        AddEntry(column.values, value.replace('\'', "&#39"), separator);
    }
}

DataLists CollectProducts(SiteSnapshot& snapshot, FieldSources& sources, const QString& lang,
                          const std::vector<QByteArray>& mainPictures) {
    Recordset& products = snapshot[kSnapProducts];
    const SiteProductReader reader(products);
    DataLists lists;
    FieldList fields;
    products.MoveFirst();
    for (size_t place = 0; place < mainPictures.size(); ++place, products.MoveNext()) {
        const char separator = place + 1 < mainPictures.size() ? ',' : ' ';
        const SiteProduct row = reader.Read();
        AddProduct(lists, row, mainPictures[place], separator);
        LoadProductFields(sources, row.ProductId, lang, kListMarker, fields);
        AddFields(lists, fields, separator);
        const size_t fieldCount = fields.size();
        LoadLangFields(sources, row.ProductId, u"Products"_s, lang, fields);
        AddTexts(lists, row.ProductId, fields, fieldCount, separator);
    }
    return lists;
}

// In the order of the products.
std::vector<QByteArray> MainPictures(SiteSnapshot& snapshot) {
    Recordset& products = snapshot[kSnapProducts];
    const int idColumn = products.Column(u"ProductId");
    std::vector<QByteArray> ids;
    products.SetFilter({});
    for (products.MoveFirst(); products.HasRow(); products.MoveNext()) {
        ids.push_back(ToAnsi(MainPictureId(products.Text(idColumn), snapshot[kSnapPictures])));
    }
    return ids;
}

void ReplaceLists(TagText& text, const DataLists& lists) {
    text.Replace("%%LISTPRODUCTID%%"_ba, lists.ids);
    text.Replace("%%LISTPRODUCTFKID%%"_ba, lists.fileKeys);
    text.Replace("%%LISTPRODUCTREF%%"_ba, lists.refs);
    text.Replace("%%LISTSALEZONE%%"_ba, lists.zones);
    text.Replace("%%LISTSALEZONECODE%%"_ba, lists.zoneCodes);
    text.Replace("%%LISTPRICEAMOUNT%%"_ba, lists.prices);
    text.Replace("%%LISTMAINPICTUREID%%"_ba, lists.mainPictures);
    for (const ListColumn& column : lists.columns) {
        const QByteArray tag = "%%LIST" + ToAnsi(column.key) + "%%";
        text.Replace(tag + ".ID", column.ids);
        text.Replace(tag, column.values);
    }
}

} // namespace

void BuildProductDataList(SiteSnapshot& snapshot) {
    const int section = FindSection(kKindDataList);
    if (section == kNoSection) {
        return;
    }
    FieldSources sources(snapshot);
    const std::vector<QByteArray> mainPictures = MainPictures(snapshot);
    for (const QString& lang : WebLangs) {
        TagText text(SectionBodies[section]);
        ReplaceLists(text, CollectProducts(snapshot, sources, lang, mainPictures));
        AddOutputFile({TemplateSections[section].Name, lang, {}, false, TextToBytes(text.Take())});
    }
}
