// A row of the products to publish, and what every page, block and listing makes of it.
#pragma once

#include "generator/fieldvalues.h"
#include "site/tagtext.h"
#include "store/snapshot.h"

#include <QString>

struct SiteProduct {
    QString ProductId;
    QString ProductRef;
    double PriceAmount = 0; // Null counts as 0
    QString PriceCurrency;
    QString SaleZone;
};

// Reads the current row of the products, columns looked up once.
class SiteProductReader {
public:
    explicit SiteProductReader(const Recordset& products);
    SiteProduct Read() const;
    QString LastUpdate() const; // ISO 8601 text
    QString PriceText() const;  // the amount in plain decimal with "."; Null is empty

private:
    const Recordset& products;
    int id, ref, price, currency, zone, update;
};

// Number, prices, currency and zone. Without a price both price tags become %%ACONSULTAR%%, which
// the finishing pass translates.
void ReplaceProductTags(TagText& text, const SiteProduct& row);

// An amount as pages and file names show it: grouped by threes, two decimals, no zero in front.
QString PriceWithDecimals(double amount);

// One product of a listing: `middle` with the row's tags, fields, texts and main picture.
QByteArray ExpandListRow(const TagText& middle, const SiteProduct& row, const QString& lang,
                         FieldSources& sources, Recordset& pictures);
