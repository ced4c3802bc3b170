#include "editor/search.h"

#include "core/flavour.h"
#include "core/vocabulary.h"
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "forms/searchform.h"
#include "platform/dialogs.h"
#include "store/products.h"
#include "store/store.h"
#include "text/numbers.h"

namespace {

constexpr char kZonesStatement[] = "SELECT DISTINCT SaleZone FROM Products ORDER BY SaleZone";

// %1 is one word as the user typed it. It is not escaped: a quote breaks the statement, and the
// user is told.
constexpr char kWordStatement[] = "SELECT DISTINCT ItemId FROM MultiLangFields WHERE "
                                  "TableName='Products' and FieldValue like '%%1%'";

void FillZones(QListWidget* list) {
    RunQuery(kCursorScratch, kZonesStatement);
    for (Recordset& zones = adcData[kCursorScratch]; zones.HasRow(); zones.MoveNext()) {
        auto* item = new QListWidgetItem(zones.Text(0), list);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
}

QString ZoneCondition(const QListWidget* list) {
    QStringList ticked;
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->checkState() == Qt::Checked) {
            ticked += "SaleZone='" + list->item(row)->text().replace("'", "''") + "'";
        }
    }
    return ticked.isEmpty() ? QString() : "(" + ticked.join(" OR ") + ")";
}

// Products whose reference or any text in any language holds the word.
QString WordCondition(const QString& word) {
    QString condition = "ProductRef like '%" + word + "%'";
    RunQuery(kCursorScratch, QString(kWordStatement).replace("%1", word));
    QStringList items;
    for (Recordset& found = adcData[kCursorScratch]; found.HasRow(); found.MoveNext()) {
        items += found.Text(0);
    }
    if (!items.isEmpty()) {
        condition += " OR ProductId IN (" + items.join(", ") + ")";
    }
    return condition;
}

QString TextCondition(const QString& text) {
    if (text.isEmpty()) {
        return {};
    }
    QStringList words;
    for (const QString& word : text.split(u' ')) {
        words += WordCondition(word);
    }
    return "(" + words.join(" OR ") + ")";
}

// Rewrites the box as the number that it begins with; the condition is empty for nothing above 0.
QString PriceCondition(QLineEdit* box, const QString& comparison) {
    box->setText(FormatNumber(LeadingNumber(box->text()), kPriceListed));
    const double price = ParseNumber(box->text());
    return price > 0 ? "PriceAmount " + comparison + " " + QString::number(price, 'f', 0)
                     : QString();
}

QString Condition(const SearchForm& form) {
    QStringList parts = {ZoneCondition(form.lvwZone), TextCondition(form.txtText->text()),
                         PriceCondition(form.txtMinPrice, ">="),
                         PriceCondition(form.txtMaxPrice, "<=")};
    parts.removeAll(QString());
    return parts.join(" AND ");
}

void cmdSearch_Click(SearchForm& form) {
    try {
        const QString condition = Condition(form);
        if (condition.isEmpty()) {
            frmMain->Button(kButtonSearch)->setChecked(false);
        } else {
            FilterProductList(condition);
            RefreshProductList();
        }
    } catch (const StoreError&) {
        MsgBox(
            "No se puede buscar ese texto. Quite las comillas y apóstrofos e inténtelo de nuevo.",
            BoxIcon::Warning, AppName);
        return;
    }
    form.accept();
}

} // namespace

void ShowSearch() {
    SearchForm form(frmMain);
    form.lblZone->setText(frmMain->lblZone->text());
    ApplyCaptions(&form);
    FillZones(form.lvwZone);
    QObject::connect(form.cmdSearch, &QPushButton::clicked, &form,
                     [&form] { cmdSearch_Click(form); });
    form.exec();
}
