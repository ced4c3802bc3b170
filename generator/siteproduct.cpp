#include "generator/siteproduct.h"

#include "store/langvalues.h"
#include "text/ansi.h"
#include "text/numbers.h"

using namespace Qt::StringLiterals;

namespace {

QString WholePrice(double amount) {
    return FormatNumber(amount, u"###,###");
}

void ReplacePrice(TagText& text, const QByteArray& tag, double amount, QString (*format)(double)) {
    text.ReplaceBy(
        tag, [&] { return amount != 0 ? ToAnsi(format(amount)) : QByteArray("%%ACONSULTAR%%"); });
}

} // namespace

SiteProductReader::SiteProductReader(const Recordset& productRows)
    : products(productRows), id(products.Column(u"ProductId")), ref(products.Column(u"ProductRef")),
      price(products.Column(u"PriceAmount")), currency(products.Column(u"PriceCurrency")),
      zone(products.Column(u"SaleZone")), update(products.Column(u"LastUpdate")) {}

SiteProduct SiteProductReader::Read() const {
    SiteProduct row;
    row.ProductId = products.Text(id);
    row.ProductRef = products.Text(ref);
    row.PriceAmount = CellNumber(products.Value(price));
    row.PriceCurrency = products.Text(currency);
    row.SaleZone = products.Text(zone);
    return row;
}

QString SiteProductReader::LastUpdate() const {
    return products.Text(update);
}

QString SiteProductReader::PriceText() const {
    return products.Text(price);
}

void ReplaceProductTags(TagText& text, const SiteProduct& row) {
    const QByteArray productId = ToAnsi(row.ProductId);
    text.Replace("%%PRODUCTID%%", productId);
    text.Replace("%%PRID%%", productId);
    ReplacePrice(text, "%%PRICEAMOUNT%%", row.PriceAmount, PriceWithDecimals);
    ReplacePrice(text, "%%PRICEAMOUNT2%%", row.PriceAmount, WholePrice);
    text.Replace("%%PRICECURRENCY%%", ToAnsi(row.PriceCurrency));
    text.Replace("%%SALEZONE%%", ToAnsi(row.SaleZone));
}

QString PriceWithDecimals(double amount) {
    return FormatNumber(amount, u"###,###.00");
}

QByteArray ExpandListRow(const TagText& middle, const SiteProduct& row, const QString& lang,
                         FieldSources& sources, Recordset& pictures) {
    TagText text = middle;
    FieldList list;
    ReplaceProductTags(text, row);
    LoadProductFields(sources, row.ProductId, lang, 0, list);
    ReplaceFields(text, list, EmptyShows::Nothing);
    ReplaceProductTexts(
        text, LoadLangFields(sources, row.ProductId, TextTableName(TextTable::Products), lang));
    text.ReplaceBy("%%MAINPICTUREID%%",
                   [&] { return ToAnsi(MainPictureId(row.ProductId, pictures)); });
    return text.Text();
}
