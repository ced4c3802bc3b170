#include "editor/listrows.h"

#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/formstate.h"
#include "store/products.h"
#include "text/numbers.h"

std::vector<int> ProductIds;
QString CurrentListSQL;
QString SelectedRef;
int SortColumn = 0;
bool SortDescending = false;
int FeaturedCount = 0;
bool NewProductPending = false;

namespace {

constexpr char16_t kListPrice[] = u"#,##0";

ProductListModel& List() {
    return *frmMain->productList;
}

} // namespace

void AppendNewProductRow() {
    ProductIds.push_back(frmMain->txtProductId->text().toInt());
    List().AppendRow(
        {{frmMain->txtProductRef->text(), {}, FormatNumber(0, kListPrice)}, false, false});
    SelectRow(ListRowCount() - 1);
    NewProductPending = true;
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

void ResetProductList() {
    ProductIds.clear();
    CurrentListSQL.clear();
    SelectedRef.clear();
    SortColumn = 0;
    SortDescending = false;
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
