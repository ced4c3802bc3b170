#include "editor/productlist.h"

#include "core/settings.h"
#include "core/vocabulary.h"
#include "editor/buttons.h"
#include "editor/clearform.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "store/formstate.h"
#include "store/products.h"
#include "store/store.h"
#include "text/numbers.h"

#include <QShortcut>

QString CurrentListSQL;
QString SelectedRef;
int SortColumn = kColumnRef;
bool SortDescending = false;

namespace {

// %1 is the default language: the list shows descriptions in it, whatever the editor shows.
constexpr char kListStatement[] =
    "SELECT ProductId, ProductRef, PriceAmount, IsNew, SaleZone, FieldValue AS MLShortDesc FROM "
    "Products p LEFT JOIN MultiLangFields ml ON (cstr(p.ProductId)=ml.ItemId AND "
    "ml.TableName='Products' AND ml.LangCode='%1' AND ml.FieldDefId=0)";

constexpr char kProductCountStatement[] = "SELECT count(*) FROM Products";

constexpr char kEndOfBase[] = "AND ml.FieldDefId=0)"; // a filter stands behind it
constexpr char kOrderBy[] = "ORDER BY";
// By ListColumn.
constexpr std::array<const char*, kProductColumns> kSortNames = {"ProductRef", "FieldValue",
                                                                 "PriceAmount"};

ProductListModel& List() {
    return *frmMain->productList;
}

// Places of the statement's columns, looked up once for all rows.
struct ListColumns {
    explicit ListColumns(const Recordset& list)
        : id(list.Column(u"ProductId")), reference(list.Column(u"ProductRef")),
          price(list.Column(u"PriceAmount")), status(list.Column(u"IsNew")),
          shortDesc(list.Column(u"MLShortDesc")) {}
    int id;
    int reference;
    int price;
    int status;
    int shortDesc;
};

ProductRow RowOf(const Recordset& product, const ListColumns& columns, qint64 status) {
    return {{product.Text(columns.reference), product.Text(columns.shortDesc),
             FormatNumber(CellNumber(product.Value(columns.price)), kPriceListed)},
            status == kStatusArchived,
            status == kStatusFeatured};
}

// Between fills the cursor holds nothing; a sort or a search has just run its statement.
bool ListIsParked() {
    return adcData[kCursorList].Source() == QLatin1StringView(kParkStatement);
}

// The row whose number, as text, is `productId`; -1 if there is none.
int RowOfProduct(const QString& productId) {
    const auto found = std::find(ProductIds.begin(), ProductIds.end(), productId.toInt());
    return found == ProductIds.end() ? -1 : static_cast<int>(found - ProductIds.begin());
}

bool EditorIsListed() {
    return RowOfProduct(frmMain->txtProductId->text()) >= 0;
}

// A save that fails keeps the product on screen: its row is selected again before the failure is
// told.
void SaveBeforeLeaving() {
    try {
        SaveCurrentProduct();
    } catch (const StoreError&) {
        SelectRow(RowOfProduct(frmMain->txtProductId->text()));
        throw;
    }
}

void lstProductList_RowClick() {
    if (FillingForm || SelectedRow() < 0) {
        return;
    }
    const int clicked = SelectedRow();
    SaveBeforeLeaving();
    if (NewProductPending) {
        int position = 1;
        SettleNewProduct();
        RefreshProductList(position, QString::number(ProductIds[clicked]), false);
    } else if (frmMain->txtProductId->text() != List().Text(clicked, kColumnRef)) {
        // Number against reference, on purpose: a product that still has its number for a
        // reference isn't read anew by a click on its own row. In return one whose reference is
        // the number of the product in the editor isn't loaded by a click.
        LoadSelectedProduct();
    }
    RefreshButtons();
}

// A mouse press that selects another row has been served when its click arrives.
bool pressServed = false;

void lstProductList_RowChanged() {
    pressServed = QGuiApplication::mouseButtons() != Qt::NoButton;
    lstProductList_RowClick();
}

void lstProductList_Clicked() {
    if (!std::exchange(pressServed, false)) {
        lstProductList_RowClick();
    }
}

void lstProductList_ColumnClick(int column) {
    QString noted;
    if (ListRowCount() > 0) {
        noted = List().Text(SelectedRow(), kColumnRef);
        SaveBeforeLeaving();
    }
    SortDescending = column == SortColumn && !SortDescending;
    SortColumn = column;
    frmMain->lstProductList->header()->setSortIndicator(
        SortColumn, SortDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
    SortProductList(kListSelector, SortColumn, !SortDescending);
    if (adcData[kCursorList].RecordCount() > 0) {
        int position = 1;
        RefreshProductList(position, noted, false);
    }
}

// Another user's inserts and deletes show up, but only while no search is on: then the counts
// differ by nature. A tick during a dialog, or in the middle of a load or a save, is passed over:
// the next one comes in a minute.
void tmrListRefresh_Timer() {
    if (QApplication::activeModalWidget() != nullptr || InputIsHeld() || !StoreOpen) {
        return;
    }
    RunQuery(kCursorScratch, kProductCountStatement);
    const auto count = CellInteger(adcData[kCursorScratch].Value(0));
    if (count == ListRowCount() || frmMain->Button(kButtonSearch)->isChecked()) {
        return;
    }
    int position = 1;
    RefreshProductList(position, frmMain->txtProductId->text(), true);
}

// A statement that can't be run leaves the cursor parked, and the list as it was.
void RunListQuery(const QString& statement) {
    try {
        RunQuery(kCursorList, statement);
    } catch (const StoreError&) {
        ParkCursor(kCursorList);
        throw;
    }
}

// Reads all rows of cursor 2; `position` becomes the row of `productId`.
void ReadRows(int& position, const QString& productId) {
    const InputHold hold;
    Recordset& products = adcData[kCursorList];
    std::vector<ProductRow> rows;
    std::vector<int> ids;
    rows.reserve(products.RecordCount());
    ids.reserve(products.RecordCount());
    const ListColumns columns(products);
    for (products.MoveFirst(); products.HasRow(); products.MoveNext()) {
        const qint64 status = CellInteger(products.Value(columns.status));
        ids.push_back(static_cast<int>(CellInteger(products.Value(columns.id))));
        rows.push_back(RowOf(products, columns, status));
        DoEvents();
    }
    SetListRows(std::move(ids), std::move(rows));
    const int row = RowOfProduct(productId);
    position = row < 0 ? position : row + 1;
}

} // namespace

QString BuildListQuery() {
    if (CurrentListSQL.isEmpty()) {
        RunQuery(kCursorList, QString(kListStatement).replace("%1", DefaultLang));
    } else {
        SortProductList(kListSelector, SortColumn, !SortDescending);
    }
    CurrentListSQL = adcData[kCursorList].Source();
    return SelectedRef;
}

void SortProductList(int selector, int column, bool ascending) {
    if (selector != kListSelector) {
        return;
    }
    QString statement = CurrentListSQL;
    const auto order = statement.indexOf(QString(" ") + kOrderBy);
    if (order >= 0) {
        statement.truncate(order);
    }
    statement += QStringLiteral(" %1 %2 %3")
                     .arg(kOrderBy, kSortNames.at(column), ascending ? "ASC" : "DESC");
    RunListQuery(statement);
}

void FilterProductList(const QString& filter) {
    const auto baseEnd = CurrentListSQL.lastIndexOf(kEndOfBase) + qsizetype(qstrlen(kEndOfBase));
    const auto order = CurrentListSQL.lastIndexOf(QString(" ") + kOrderBy);
    QString statement = CurrentListSQL.left(baseEnd);
    if (!filter.isEmpty()) {
        statement += " WHERE " + filter;
    }
    if (order >= baseEnd) {
        statement += CurrentListSQL.mid(order);
    }
    RunListQuery(statement.trimmed());
    CurrentListSQL = adcData[kCursorList].Source();
}

void ChangeListLanguage(const QString& before, const QString& after) {
    CurrentListSQL.replace("LangCode='" + before + "'", "LangCode='" + after + "'");
    RefreshProductList();
}

void RestartProductList() {
    CurrentListSQL.clear();
    RefreshProductList();
}

void ResetProductList() {
    ResetListRows();
    CurrentListSQL.clear();
    SelectedRef.clear();
    SortColumn = kColumnRef;
    SortDescending = false;
}

void ReleaseCurrent() {
    if (ListRowCount() > 0) {
        SelectedRef = List().Text(SelectedRow(), kColumnRef);
        SaveCurrentProduct();
    }
}

void RefreshProductList(int& position, QString productId, bool keepEditor) {
    bool clear = true;
    if (CurrentListSQL.isEmpty()) {
        productId = BuildListQuery();
    } else {
        ReleaseCurrent();
        if (ListIsParked()) {
            RunListQuery(CurrentListSQL);
        }
        clear = productId.isEmpty() || productId != frmMain->txtProductId->text();
    }
    ReadRows(position, productId);
    CurrentListSQL = adcData[kCursorList].Source();
    ParkCursor(kCursorList); // the list on screen keeps no rows of the store
    SelectRow(position - 1);
    if ((!keepEditor && clear) || !EditorIsListed()) {
        ClearProductForm();
        LoadSelectedProduct();
    }
    RefreshButtons();
}

void RefreshProductList() {
    int position = 1;
    RefreshProductList(position, {}, false);
}

void RemoveFromList() {
    const int row = SelectedRow();
    SettleNewProduct();
    if (row < 0) {
        return;
    }
    RemoveListRow(row);
    if (ListRowCount() > 0) {
        SelectRow(std::min(row, ListRowCount() - 1));
        LoadSelectedProduct();
    } else {
        ClearProductForm();
    }
    RefreshButtons();
}

void LoadSelectedProduct() {
    const int row = SelectedRow();
    if (row < 0) {
        return;
    }
    if (LoadProduct(QString::number(ProductIds[row])) == ProductState::Gone) {
        TellProductGone();
    }
}

void TellProductGone() {
    MsgBox(Messages[kMessageGone], BoxIcon::Information, Messages[kMessageGoneTitle]);
    RemoveFromList();
}

void ConnectProductList() {
    QTreeView* list = frmMain->lstProductList;
    list->header()->setSortIndicatorShown(true);
    list->header()->setSortIndicator(SortColumn, Qt::AscendingOrder);
    QObject::connect(list->selectionModel(), &QItemSelectionModel::currentRowChanged, frmMain,
                     lstProductList_RowChanged);
    QObject::connect(list, &QAbstractItemView::clicked, frmMain, lstProductList_Clicked);
    QObject::connect(list->header(), &QHeaderView::sectionClicked, frmMain,
                     lstProductList_ColumnClick);
    QObject::connect(list, &QAbstractItemView::doubleClicked, frmMain,
                     [] { frmMain->txtProductRef->setFocus(); });
    auto* deleteKey =
        new QShortcut(QKeySequence(Qt::Key_Delete), list, nullptr, nullptr, Qt::WidgetShortcut);
    QObject::connect(deleteKey, &QShortcut::activated, frmMain,
                     [] { frmMain->Button(kButtonDel)->trigger(); });
    QObject::connect(frmMain->tmrListRefresh, &QTimer::timeout, frmMain, tmrListRefresh_Timer);
}
