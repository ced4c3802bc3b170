#include "editor/listrows.h"

#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/formstate.h"
#include "store/products.h"
#include "text/numbers.h"

std::vector<int> ProductIds;
int FeaturedCount = 0;
bool NewProductPending = false;

namespace {

ProductListModel& List() {
    return *frmMain->productList;
}

} // namespace

void SetListRows(std::vector<int> ids, std::vector<ProductRow> rows) {
    const FillingGuard filling;
    FeaturedCount = static_cast<int>(
        std::count_if(rows.begin(), rows.end(), [](const ProductRow& row) { return row.bold; }));
    ProductIds = std::move(ids);
    List().SetRows(std::move(rows));
}

void AppendNewProductRow() {
    ProductIds.push_back(frmMain->txtProductId->text().toInt());
    List().AppendRow(
        {{frmMain->txtProductRef->text(), {}, FormatNumber(0, kPriceListed)}, false, false});
    SelectRow(ListRowCount() - 1);
    NewProductPending = true;
}

void SettleNewProduct() {
    NewProductPending = false;
}

void RemoveListRow(int row) {
    const FillingGuard filling;
    List().RemoveRow(row);
    ProductIds.erase(ProductIds.begin() + row);
}

void UpdateListRow(int column, const QString& text) {
    const int row = SelectedRow();
    if (row >= 0 && List().Text(row, column) != text) {
        List().SetCell(row, column, text);
    }
}

void MarkListRow(int row, int status) {
    List().SetMark(row, status == kStatusArchived, status == kStatusFeatured);
    const bool wasFeatured = Tag(frmMain->cboIsNew) == QString::number(kStatusFeatured);
    const bool isFeatured = status == kStatusFeatured;
    FeaturedCount += int(isFeatured) - int(wasFeatured);
}

void CountFeaturedDeleted() {
    --FeaturedCount;
}

void ResetListRows() {
    ProductIds.clear();
    FeaturedCount = 0;
    NewProductPending = false;
}

int ListRowCount() {
    return static_cast<int>(ProductIds.size());
}

int SelectedRow() {
    return frmMain->SelectedRow();
}

void SelectRow(int row) {
    const FillingGuard filling; // a selection made by code is no click
    frmMain->SelectRow(row);
}
