#include "store/products.h"

#include "core/settings.h"
#include "engine/statement.h"
#include "engine/storeengine.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "platform/events.h"
#include "platform/fileops.h"
#include "store/fielddefs.h"
#include "store/formstate.h"
#include "store/langvalues.h"
#include "store/openrecord.h"
#include "store/picturerecords.h"
#include "store/productref.h"
#include "store/store.h"
#include "text/dates.h"
#include "text/numbers.h"

namespace {

// %1 is a product number in all of these.
constexpr char kProductStatement[] = "SELECT * FROM Products WHERE ProductId = %1";
constexpr char kFieldsStatement[] =
    "SELECT * FROM ProductFields WHERE ProductId = %1 ORDER BY FieldDefId";
constexpr char kPicturesStatement[] = "SELECT * FROM Pictures WHERE ProductId = %1";
constexpr char kAllTextsStatement[] =
    "SELECT * FROM MultiLangFields WHERE (TableName='Products' AND ItemId='%1') OR "
    "(TableName='Pictures' AND ItemId like '%1%')";

constexpr char kNextIdStatement[] = "Select Max(ProductId)+1 from Products";
constexpr char kFieldDefCountStatement[] = "SELECT count(*) FROM ProductFieldDef";
constexpr char kOldestFeaturedStatement[] =
    "SELECT top 1 ProductId, IsNew, LastUpdate FROM Products WHERE IsNew = 1 ORDER BY LastUpdate";

constexpr char kCurrency[] = "EUR"; // the only one in this system

Recordset& Product() {
    return adcData[kCursorProduct];
}

Recordset& Fields() {
    return adcData[kCursorFields];
}

// Runs the row's statement and probes its lock: writing the currency that every product has takes
// the lock or fails, and changes nothing.
ProductState OpenRow(const QString& productId) {
    RunQuery(kCursorProduct, QString(kProductStatement).replace("%1", productId));
    ForgetFailedSave(SavedPart::Product);
    try {
        Product().Set(u"PriceCurrency", QString(kCurrency));
    } catch (const StoreError& error) {
        if (error.number == kErrNoCurrentRow) {
            return ProductState::Gone;
        }
        SetProductReadOnly(true);
        return ProductState::ReadOnly;
    }
    SetProductReadOnly(false);
    return ProductState::Held;
}

void FillProductBoxes() {
    const Recordset& row = Product();
    frmMain->txtProductId->setText(row.Text(u"ProductId"));
    frmMain->txtProductRef->setText(row.Text(u"ProductRef"));
    frmMain->txtZone->setText(row.Text(u"SaleZone"));
    frmMain->txtPriceAmount->setText(FormatNumber(row.Number(u"PriceAmount"), kPriceShown));
    frmMain->txtPriceCurrency->setText(row.Text(u"PriceCurrency"));
    frmMain->txtLastUpdate->setText(ShownDate(row.Text(u"LastUpdate")));
    const auto status = static_cast<int>(row.Integer(u"IsNew"));
    frmMain->cboIsNew->setCurrentIndex(status);
    SetTag(frmMain->cboIsNew, QString::number(status));
}

void ShowFieldValue(int slot, const QString& value) {
    frmMain->txtFields[slot]->setText(value);
    switch (SlotType(slot)) {
    case FieldType::YesNo:
        frmMain->chkFields[slot]->setChecked(LeadingInteger(value) != 0);
        break;
    case FieldType::Options:
        frmMain->cboFields[slot]->setCurrentIndex(IsNumeric(value) ? LeadingInteger(value) : -1);
        break;
    case FieldType::Text:
    case FieldType::Internal:
        break;
    }
}

bool IsSlot(int slot) {
    return slot < static_cast<int>(frmMain->txtFields.size());
}

void AddFieldRow(const QString& productId, int fieldDefId, const QString& value) {
    Fields().AddNew();
    Fields().Set(u"ProductId", productId.toLongLong());
    Fields().Set(u"FieldDefId", qint64{fieldDefId});
    Fields().Set(u"FieldValue", value);
}

void LoadProductFields(const QString& productId) {
    RunQuery(kCursorFields, QString(kFieldsStatement).replace("%1", productId));
    if (Fields().RecordCount() == 0) {
        return;
    }
    // A product older than the catalogue's internal fields gains rows for those, never for public
    // ones.
    if (Fields().RecordCount() < MaxFieldDefId) {
        for (int field = FirstHiddenField; field <= MaxFieldDefId; ++field) {
            AddFieldRow(productId, field, {});
        }
    }
    Fields().MoveFirst();
    for (int slot = 0; Fields().HasRow() && IsSlot(slot); ++slot, Fields().MoveNext()) {
        ShowFieldValue(slot, Fields().Text(u"FieldValue").trimmed());
    }
}

void SaveProductFields() {
    if (Fields().RecordCount() == 0) {
        return;
    }
    Fields().MoveFirst();
    for (int slot = 0; Fields().HasRow() && IsSlot(slot); ++slot, Fields().MoveNext()) {
        Fields().Set(u"FieldValue", frmMain->txtFields[slot]->text());
        DoEvents();
    }
    Fields().MoveFirst();
    Fields().Update();
    WaitForCursor(Fields());
}

struct FieldChanges {
    bool internal = false;
    bool open = false; // a public field
};

FieldChanges CompareFields() {
    FieldChanges changes;
    Fields().MoveFirst();
    for (int slot = 0; Fields().HasRow() && IsSlot(slot); ++slot, Fields().MoveNext()) {
        if (Fields().IsNull(u"FieldValue") ||
            Fields().Text(u"FieldValue") == frmMain->txtFields[slot]->text()) {
            continue;
        }
        if (Fields().Integer(u"FieldDefId") >= FirstHiddenField) {
            changes.internal = true;
        } else {
            changes.open = true;
            break;
        }
    }
    return changes;
}

// A price that is no number yet is kept in its box alone: the user is still to be asked for it.
bool PriceDiffers() {
    const QString typed = frmMain->txtPriceAmount->text();
    return IsNumeric(typed) && Product().Number(u"PriceAmount") != ParseNumber(typed);
}

bool ProductRowDiffers() {
    const Recordset& row = Product();
    return row.IsNull(u"LastUpdate") ||
           ShownDate(row.Text(u"LastUpdate")) != frmMain->txtLastUpdate->text() || PriceDiffers() ||
           row.Integer(u"IsNew") != frmMain->cboIsNew->currentIndex() ||
           row.Text(u"SaleZone") != frmMain->txtZone->text() ||
           row.Text(u"PriceCurrency") != frmMain->txtPriceCurrency->text() ||
           row.Text(u"ProductId") != frmMain->txtProductId->text() ||
           row.Text(u"ProductRef") != frmMain->txtProductRef->text();
}

// Committed by the caller's Update.
void DeleteAllRows(Recordset& cursor) {
    for (int left = cursor.RecordCount(); left > 0; --left) {
        cursor.MoveFirst();
        cursor.Delete();
        DoEvents();
    }
}

QStringList PictureFiles() {
    QStringList files;
    Recordset& pictures = adcData[kCursorPictures];
    for (pictures.MoveFirst(); pictures.HasRow(); pictures.MoveNext()) {
        files += pictures.Text(u"PicturePath");
    }
    files.removeAll(QString());
    return files;
}

void DeleteFiles(const QStringList& names) {
    for (const QString& name : names) {
        FileOperation(FileOp::Delete, {DBpath + name}, {});
    }
}

void OpenChildRows(const QString& productId) {
    RunQuery(kCursorFields, QString(kFieldsStatement).replace("%1", productId));
    RunQuery(kCursorTexts, QString(kAllTextsStatement).replace("%1", productId));
    RunQuery(kCursorPictures, QString(kPicturesStatement).replace("%1", productId));
}

// Writes what is pending on the cursors of a product's rows: all of it or, when the program is cut
// off or the disk is full, nothing. So no product is ever left without its fields, and none without
// its own row.
void CommitTogether(std::initializer_list<StoreCursor> cursors) {
    Transaction transaction(Product().Connection()->Handle());
    for (const StoreCursor cursor : cursors) {
        adcData[cursor].Update();
    }
    transaction.Commit();
}

void AddFieldRows(const QString& productId) {
    RunQuery(kCursorScratch, kFieldDefCountStatement);
    const auto count = static_cast<int>(CellInteger(adcData[kCursorScratch].Value(0)));
    for (int field = 0; field < count; ++field) {
        const QString value = IsSlot(field) ? SlotDefault(field) : QString();
        AddFieldRow(productId, field, value);
        if (IsSlot(field)) {
            ShowFieldValue(field, value);
        }
        DoEvents();
    }
}

// The row and its fields, without rows that a deleted product of this number has left in the
// catalogue: they would appear as the new product's.
void CreateRows(const QString& productId) {
    ParkCursor(kCursorProduct); // lets the product before go
    Product().AddNew();
    Product().Set(u"ProductId", productId.toLongLong());
    Product().Set(u"ProductRef", frmMain->txtProductRef->text());
    Product().Set(u"PriceCurrency", QString(kCurrency));
    OpenChildRows(productId);
    for (const StoreCursor cursor : {kCursorFields, kCursorTexts, kCursorPictures}) {
        DeleteAllRows(adcData[cursor]);
    }
    AddFieldRows(productId);
    CommitTogether({kCursorProduct, kCursorFields, kCursorTexts, kCursorPictures});
    WaitForCursor(Product());
    Fields().MoveFirst();
}

void WriteProductRow() {
    Product().Set(u"ProductId", frmMain->txtProductId->text().toLongLong());
    Product().Set(u"ProductRef", frmMain->txtProductRef->text());
    Product().Set(u"SaleZone", frmMain->txtZone->text());
    if (IsNumeric(frmMain->txtPriceAmount->text())) {
        Product().Set(u"PriceAmount", ParseNumber(frmMain->txtPriceAmount->text()));
    }
    Product().Set(u"PriceCurrency", frmMain->txtPriceCurrency->text());
    Product().Set(u"IsNew", qint64{frmMain->cboIsNew->currentIndex()});
}

} // namespace

ProductState LoadProduct(const QString& productId) {
    const ProductState state = OpenRow(productId);
    if (state == ProductState::Gone) {
        return state;
    }
    const FillingGuard filling;
    const InputHold hold;
    FillProductBoxes();
    LoadProductFields(productId);
    LoadProductLangValues();
    LoadPictures();
    return state;
}

ProductState ReopenProduct() {
    if (ProductIsReadOnly()) {
        return ProductState::ReadOnly;
    }
    const QString productId = frmMain->txtProductId->text();
    if (productId.isEmpty() || Product().HasRow()) {
        return ProductState::Held;
    }
    return OpenRow(productId);
}

void AddProduct() {
    const FillingGuard filling;
    const InputHold hold;
    ForgetFailedSave(SavedPart::Product);
    RunQuery(kCursorScratch, kNextIdStatement);
    const Cell& next = adcData[kCursorScratch].Value(0);
    const QString productId = IsNull(next) ? QString::number(kFirstProductId) : CellText(next);
    frmMain->txtProductId->setText(productId);
    frmMain->txtProductRef->setText(FreeProductRef(productId));
    frmMain->txtPriceAmount->setText(FormatNumber(0, kPriceShown));
    frmMain->txtPriceCurrency->setText(kCurrency);
    frmMain->cboIsNew->setCurrentIndex(kStatusPublished);
    SetTag(frmMain->cboIsNew, QString::number(kStatusPublished));

    CreateRows(productId);
    CreateLangRows(TextTable::Products, productId, UICurrentLang);
    LoadPictures();
}

void SaveProduct(bool internalOnly) {
    if (ProductIsReadOnly()) {
        return;
    }
    const InputHold hold;
    SaveUnderWay save(SavedPart::Product);
    WriteProductRow();
    SaveProductFields();
    SaveProductLangValues();
    if (!internalOnly) {
        TouchLastUpdate(Touched::Product);
    }
    Product().Set(u"LastUpdate", StoredDate(frmMain->txtLastUpdate->text()));
    Product().Update();
    WaitForCursor(Product());
    save.Written();
    ParkCursor(kCursorProduct);
}

void SaveCurrentProduct() {
    if (ProductIsReadOnly() || Product().Source().isEmpty() || Product().RecordCount() == 0) {
        return;
    }
    FieldChanges changes = CompareFields();
    if (!changes.open) {
        changes.open = LangValuesDiffer(frmMain->txtMLFields);
    }
    if (LastSaveFailed(SavedPart::Product) || changes.open || ProductRowDiffers()) {
        SaveProduct(false);
    } else if (changes.internal) {
        SaveProduct(true);
    }
}

void DeleteProduct() {
    const InputHold hold;
    ForgetFailedSave(SavedPart::Product);
    OpenChildRows(frmMain->txtProductId->text());
    const QStringList files = PictureFiles();
    if (Product().HasRow() && !Product().IsNull(u"ProductId")) {
        Product().Delete();
    }
    for (const StoreCursor cursor : {kCursorFields, kCursorTexts, kCursorPictures}) {
        DeleteAllRows(adcData[cursor]);
    }
    CommitTogether({kCursorProduct, kCursorFields, kCursorTexts, kCursorPictures});
    ParkCursor(kCursorProduct);
    DeleteFiles(files);
}

void DemoteOldestFeatured() {
    RunQuery(kCursorScratch, kOldestFeaturedStatement);
    Recordset& oldest = adcData[kCursorScratch];
    if (oldest.HasRow()) {
        oldest.Set(u"IsNew", qint64{kStatusPublished});
        oldest.Set(u"LastUpdate", StoredDateText(Now()));
        oldest.Update();
        WaitForCursor(oldest);
    }
    ParkCursor(kCursorScratch);
}
