#include "generator/datalist.h"

#include "generator/categories.h"
#include "generator/siteproduct.h"
#include "generator/zones.h"
#include "site/outputs.h"
#include "site/template.h"
#include "site/transforms.h"
#include "site/weblangs.h"
#include "store/langvalues.h"
#include "text/ansi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kListMarker = 9; // nothing of a field's value is changed

// The arrays of a field that occurs. Those that the section has no tag for stay empty.
struct ListColumn {
    QString key;
    QByteArray tag; // of the values; the ids' tag is longer
    bool wantsIds = false;
    bool wantsValues = false;
    std::vector<QByteArray> ids; // in the order of WebLangs
    std::vector<QByteArray> values;
};

struct DataLists {
    QByteArray ids, refs, zones, zoneCodes, prices, mainPictures; // the same in every language
    std::vector<QByteArray> fileKeys;                             // in the order of WebLangs
    std::vector<ListColumn> columns;
};

void AddEntry(QByteArray& list, const QByteArray& entry, char separator) {
    const qsizetype end = list.size();
    list.resize(end + entry.size() + 3);
    char* to = list.data() + end;
    *to++ = '\'';
    to = std::copy(entry.cbegin(), entry.cend(), to);
    *to++ = '\'';
    *to = separator;
}

void AddToAll(std::vector<QByteArray>& lists, const QByteArray& entry, char separator) {
    for (QByteArray& list : lists) {
        AddEntry(list, entry, separator);
    }
}

// Goes through the products once and fills the arrays of all languages: most of what they hold is
// the same in each.
class ListCollector {
public:
    // Without `everything` only arrays whose tags `sectionText` holds are filled.
    ListCollector(SiteSnapshot& sets, const TagText& sectionText, bool everything)
        : snapshot(sets), sources(sets), reader(sets[kSnapProducts]), section(sectionText),
          all(everything), wantsFields(WantsFields()) {
        lists.fileKeys.resize(WebLangs.size());
    }

    DataLists Collect() {
        Recordset& products = snapshot[kSnapProducts];
        products.ClearFilter();
        const int count = products.RecordCount();
        for (int place = 1; products.HasRow(); ++place, products.MoveNext()) {
            separator = place < count ? ',' : ' ';
            const SiteProduct row = reader.Read();
            AddProduct(row);
            if (wantsFields) {
                LoadProductFields(sources, row.ProductId, WebLangs.first(), kListMarker, fields);
                AddFields();
            }
            LoadLangFields(sources, row.ProductId, TextTableName(TextTable::Products), WebLangs,
                           texts);
            for (qsizetype lang = 0; lang < WebLangs.size(); ++lang) {
                AddTexts(row.ProductId, lang);
            }
        }
        return std::move(lists);
    }

private:
    bool Wants(const QByteArray& tag) const { return all || section.MayHold(tag); }

    // Whether any field has a tag: their keys are numbers.
    bool WantsFields() const {
        const QByteArrayView starts = "-0123456789";
        return std::any_of(starts.begin(), starts.end(),
                           [this](char start) { return Wants("%%LIST" + QByteArray(1, start)); });
    }

    // Finds or makes the column of a key. Products mostly have the same fields in the same order,
    // so that the search begins at the place where the key is expected.
    ListColumn& FindColumn(const FieldItem& item, size_t expected) {
        std::vector<ListColumn>& columns = lists.columns;
        if (expected < columns.size() && columns[expected].key == item.Key) {
            return columns[expected];
        }
        const auto found =
            std::find_if(columns.begin(), columns.end(),
                         [&item](const ListColumn& column) { return column.key == item.Key; });
        if (found != columns.end()) {
            return *found;
        }
        ListColumn column;
        column.key = item.Key;
        column.tag = "%%LIST" + item.Tag.mid(2);
        column.wantsIds = Wants(column.tag + ".ID");
        column.wantsValues = Wants(column.tag);
        column.ids.resize(WebLangs.size());
        column.values.resize(WebLangs.size());
        return columns.emplace_back(std::move(column));
    }

    void AddProduct(const SiteProduct& row) {
        AddEntry(lists.ids, ToAnsi(row.ProductId), separator);
        AddEntry(lists.refs, EscapeQuotes(ToAnsi(row.ProductRef)), separator);
        AddEntry(lists.zones, EscapeQuotes(ToAnsi(row.SaleZone)), separator);
        AddEntry(lists.zoneCodes, EscapeQuotes(ToAnsi(ZoneCode(row.SaleZone))), separator);
        lists.prices += EscapeQuotes(ToAnsi(reader.PriceText()).replace(',', '.'));
        lists.prices += separator;
        const QString picture = MainPictureId(row.ProductId, snapshot[kSnapPictures]);
        AddEntry(lists.mainPictures, ToAnsi(picture), separator);
    }

    void AddFields() {
        size_t expected = 0;
        for (const FieldItem& item : fields) {
            ListColumn& column = FindColumn(item, expected++);
            if (column.wantsIds) {
                AddToAll(column.ids, ToAnsi(item.RawValue), separator);
            }
            if (column.wantsValues) {
                AddValues(column, item);
            }
        }
    }

    void AddValues(ListColumn& column, const FieldItem& item) {
        if (item.Option == nullptr) {
            AddToAll(column.values, ToAnsi(item.Value), separator);
            return;
        }
        for (qsizetype lang = 0; lang < WebLangs.size(); ++lang) {
            const QString text = OptionText(*item.Option, item.RawValue, WebLangs[lang]);
            AddEntry(column.values[lang], ToAnsi(text), separator);
        }
    }

    // The product's texts in one language. Their ids are the codes of the category trees, so that a
    // script can tell the products of a category.
    void AddTexts(const QString& productId, qsizetype lang) {
        size_t expected = fields.size();
        for (const FieldItem& item : texts[lang]) {
            if (item.Key == kFileKeyField) {
                const QString fileKey = productId + MakeFileSuffix(item.Value);
                AddEntry(lists.fileKeys[lang], ToAnsi(fileKey), separator);
            }
            ListColumn& column = FindColumn(item, expected++);
            if (!column.wantsIds && !column.wantsValues) {
                continue;
            }
            QByteArray value = ToAnsi(item.Value);
            if (column.wantsIds) {
                AddEntry(column.ids[lang], CategoryHash(value), separator);
            }
            AddEntry(column.values[lang], value.replace('\'', "&#39"), separator);
        }
    }

    SiteSnapshot& snapshot;
    FieldSources sources;
    SiteProductReader reader;
    const TagText& section;
    bool all;
    bool wantsFields;
    DataLists lists;
    FieldList fields;             // of the product at hand
    std::vector<FieldList> texts; // the same, in the order of WebLangs
    char separator = ' ';
};

// Whether a value of the catalogue brings one of the tags of this file.
bool BringTags(const DataLists& lists) {
    const auto brings = [](const QByteArray& list) { return list.contains("%%LIST"); };
    return brings(lists.refs) || brings(lists.zones) ||
           std::any_of(lists.columns.begin(), lists.columns.end(), [&](const ListColumn& column) {
               return std::any_of(column.ids.begin(), column.ids.end(), brings) ||
                      std::any_of(column.values.begin(), column.values.end(), brings);
           });
}

DataLists CollectLists(SiteSnapshot& snapshot, const TagText& section) {
    DataLists lists = ListCollector(snapshot, section, false).Collect();
    return BringTags(lists) ? ListCollector(snapshot, section, true).Collect() : std::move(lists);
}

void ReplaceLists(TagText& text, const DataLists& lists, size_t lang) {
    text.Replace("%%LISTPRODUCTID%%"_ba, lists.ids);
    text.Replace("%%LISTPRODUCTFKID%%"_ba, lists.fileKeys[lang]);
    text.Replace("%%LISTPRODUCTREF%%"_ba, lists.refs);
    text.Replace("%%LISTSALEZONE%%"_ba, lists.zones);
    text.Replace("%%LISTSALEZONECODE%%"_ba, lists.zoneCodes);
    text.Replace("%%LISTPRICEAMOUNT%%"_ba, lists.prices);
    text.Replace("%%LISTMAINPICTUREID%%"_ba, lists.mainPictures);
    for (const ListColumn& column : lists.columns) {
        text.Replace(column.tag + ".ID", column.ids[lang]);
        text.Replace(column.tag, column.values[lang]);
    }
}

} // namespace

void BuildProductDataList(SiteSnapshot& snapshot) {
    const int section = FindSection(kKindDataList);
    if (section == kNoSection) {
        return;
    }
    const TagText sectionText(SectionBodies[section]);
    const DataLists lists = CollectLists(snapshot, sectionText);
    for (qsizetype lang = 0; lang < WebLangs.size(); ++lang) {
        TagText text = sectionText;
        ReplaceLists(text, lists, static_cast<size_t>(lang));
        AddOutputFile(
            {TemplateSections[section].Name, WebLangs[lang], {}, false, TextToBytes(text.Text())});
    }
}
