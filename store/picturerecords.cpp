#include "store/picturerecords.h"

#include "core/settings.h"
#include "core/vocabulary.h"
#include "engine/statement.h"
#include "engine/storeengine.h"
#include "forms/mainform.h"
#include "forms/picturesform.h"
#include "platform/controls.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/fileops.h"
#include "store/langvalues.h"
#include "store/openrecord.h"
#include "store/store.h"
#include "text/dates.h"
#include "text/numbers.h"

namespace {

// %1 is a product number in the first three, a picture number in the last; %2 a place in the album.
constexpr char kPicturesStatement[] =
    "Select * from Pictures WHERE ProductId = %1 ORDER BY OrderInForm";
constexpr char kNextNumberStatement[] =
    "SELECT Max(ProdPictureId) + 1 FROM Pictures WHERE ProductId = %1";
constexpr char kBehindStatement[] =
    "SELECT * FROM Pictures WHERE ProductId = %1 AND OrderInForm > %2 ORDER BY OrderInForm";
constexpr char kTextsStatement[] =
    "SELECT * FROM MultiLangFields WHERE TableName='Pictures' AND ItemId='%1'";

constexpr int kPicturesPerProduct = 100; // numbers that a product's pictures share

// Of the last picture chosen; empty when the album closes.
QString lastPicFolder;

Recordset& Rows() {
    return adcData[kCursorPictures];
}

qint64 NumberIn(const QLineEdit* box) {
    return static_cast<qint64>(LeadingNumber(box->text()));
}

void TellLimit() {
    MsgBox("No se pueden incluir más de " + QString::number(PictureLimit()) +
               Messages[kMessagePictureLimit],
           BoxIcon::Warning, "Añadir Fotografía");
}

bool RowDiffers() {
    const Recordset& row = Rows();
    return row.IsNull(u"LastUpdate") ||
           ShownDate(row.Text(u"LastUpdate")) != frmPictures->txtLastUpdate->text() ||
           row.Text(u"PicturePath") != frmPictures->txtPicturePath->text() ||
           row.Integer(u"OrderInForm") != NumberIn(frmPictures->txtOrderInForm) ||
           row.Integer(u"PictureId") != NumberIn(frmPictures->txtPictureId) ||
           row.Integer(u"ProdPictureId") != NumberIn(frmPictures->txtProdPictureId) ||
           row.Integer(u"ProductId") != NumberIn(frmPictures->txtProductId);
}

// Numbers of a new picture into the boxes and into its row, which is current.
void NumberNewRow() {
    const QString productId = frmMain->txtProductId->text();
    RunQuery(kCursorScratch, QString(kNextNumberStatement).replace("%1", productId));
    const Cell& next = adcData[kCursorScratch].Value(0);
    const qint64 number = IsNull(next) ? 1 : CellInteger(next);
    const qint64 pictureId = productId.toLongLong() * kPicturesPerProduct + number;
    frmPictures->txtProductId->setText(productId);
    frmPictures->txtProdPictureId->setText(QString::number(number));
    frmPictures->txtPictureId->setText(QString::number(pictureId));
    frmPictures->txtOrderInForm->setText(QString::number(Rows().RecordCount() - 1));
    Rows().Set(u"ProductId", productId.toLongLong());
    Rows().Set(u"PictureId", pictureId);
    Rows().Set(u"ProdPictureId", number);
    Rows().Set(u"OrderInForm", qint64{Rows().RecordCount() - 1});
}

// The copy and its name are in the boxes; the texts' rows are committed with the picture's first
// save.
void CommitNewRow() {
    Rows().Set(u"PicturePath", frmPictures->txtPicturePath->text());
    Rows().Set(u"LastUpdate", StoredDate(frmPictures->txtLastUpdate->text()));
    CreateLangRows(TextTable::Pictures, frmPictures->txtPictureId->text(), UICurrentLang);
    Rows().Update();
    WaitForCursor(Rows());
}

void DropNewRow(int position) {
    Rows().Requery();
    if (Rows().RecordCount() > 0) {
        Rows().SetAbsolutePosition(std::max(position, 1));
        ShowPictureRecord();
    } else {
        ClearPictureBoxes();
    }
}

// Reads the rows anew and shows the one of a picture, or the first.
void ShowRowOf(const QString& pictureId) {
    Rows().Requery();
    while (Rows().HasRow() && Rows().Text(u"PictureId") != pictureId) {
        Rows().MoveNext();
    }
    if (!Rows().HasRow()) {
        Rows().MoveFirst();
    }
    ShowPictureRecord();
}

// Closes the gap that the picture at place `order` leaves.
void CloseGap(const QString& productId, qint64 order) {
    RunQuery(
        kCursorScratch,
        QString(kBehindStatement).replace("%1", productId).replace("%2", QString::number(order)));
    Recordset& behind = adcData[kCursorScratch];
    for (; behind.HasRow(); behind.MoveNext()) {
        behind.Set(u"OrderInForm", behind.Integer(u"OrderInForm") - 1);
    }
    behind.Update();
    ParkCursor(kCursorScratch);
}

void DeleteTexts(const QString& pictureId) {
    RunQuery(kCursorTexts, QString(kTextsStatement).replace("%1", pictureId));
    Recordset& texts = adcData[kCursorTexts];
    while (texts.RecordCount() > 0) {
        texts.MoveFirst();
        texts.Delete();
        DoEvents();
    }
    texts.Update();
    WaitForCursor(texts);
}

// The current row with its texts, and its place in the order: all of it or nothing, so that the
// order never has a gap.
void DeleteRow(const QString& productId, const QString& pictureId, qint64 order) {
    Transaction transaction(Rows().Connection()->Handle());
    Rows().Delete();
    Rows().Update();
    if (order < Rows().RecordCount()) {
        CloseGap(productId, order);
    }
    DeleteTexts(pictureId);
    transaction.Commit();
}

} // namespace

void LoadPictures() {
    ForgetFailedSave(SavedPart::Picture);
    const double productId = LeadingNumber(frmMain->txtProductId->text());
    RunQuery(kCursorPictures,
             QString(kPicturesStatement).replace("%1", QString::number(productId, 'f', 0)));
    ShowPictureCount();
}

void ShowPictureCount() {
    const int count = Rows().RecordCount();
    frmMain->txtPicture->setText(
        QString(Messages[kMessagePictureCount]).replace("%1", QString::number(count)));
    frmMain->txtPicture->setCursorPosition(0); // a narrow box shows the beginning
}

void ShowPictureRecord() {
    ForgetFailedSave(SavedPart::Picture);
    if (!Rows().HasRow()) {
        ClearPictureBoxes();
        return;
    }
    frmPictures->txtProdPictureId->setText(Rows().Text(u"ProdPictureId"));
    frmPictures->txtProductId->setText(Rows().Text(u"ProductId"));
    frmPictures->txtPictureId->setText(Rows().Text(u"PictureId"));
    frmPictures->txtOrderInForm->setText(Rows().Text(u"OrderInForm"));
    frmPictures->txtPicturePath->setText(Rows().Text(u"PicturePath"));
    frmPictures->txtLastUpdate->setText(ShownDate(Rows().Text(u"LastUpdate")));
    LoadPictureLangValues();
}

void ClearPictureBoxes() {
    for (QLineEdit* box :
         {frmPictures->txtProdPictureId, frmPictures->txtProductId, frmPictures->txtPictureId,
          frmPictures->txtOrderInForm, frmPictures->txtPicturePath, frmPictures->txtLastUpdate}) {
        box->clear();
    }
    for (QWidget* box : frmPictures->txtMLFields) {
        SetControlText(box, {});
    }
}

void SavePictureIfChanged() {
    if (ProductIsReadOnly() || !Rows().HasRow() || frmPictures->txtOrderInForm->text().isEmpty()) {
        return;
    }
    if (LastSaveFailed(SavedPart::Picture) || LangValuesDiffer(frmPictures->txtMLFields) ||
        RowDiffers()) {
        SavePicture();
    }
}

void SavePicture() {
    if (ProductIsReadOnly()) {
        return;
    }
    const InputHold hold;
    SaveUnderWay save(SavedPart::Picture); // with its texts
    Rows().Set(u"ProdPictureId", NumberIn(frmPictures->txtProdPictureId));
    Rows().Set(u"ProductId", NumberIn(frmPictures->txtProductId));
    Rows().Set(u"PictureId", NumberIn(frmPictures->txtPictureId));
    Rows().Set(u"OrderInForm", NumberIn(frmPictures->txtOrderInForm));
    Rows().Set(u"PicturePath", frmPictures->txtPicturePath->text());
    TouchLastUpdate(Touched::All);
    Rows().Set(u"LastUpdate", StoredDate(frmPictures->txtLastUpdate->text()));
    Rows().Update();
    WaitForCursor(Rows());
    SavePictureLangValues();
    save.Written();
}

PictureResult AddPicture(const QString& path) {
    if (Rows().RecordCount() >= PictureLimit()) {
        TellLimit();
        return PictureResult::LimitReached;
    }
    SavePictureIfChanged();
    ClearPictureBoxes();
    const int position = Rows().AbsolutePosition();
    Rows().AddNew();
    WaitForCursor(Rows());
    NumberNewRow();
    const PictureResult result = ChangePictureFile(path);
    if (result != PictureResult::Done) {
        DropNewRow(position);
        return result;
    }
    try {
        CommitNewRow();
    } catch (const StoreError&) {
        DropNewRow(position);
        throw;
    }
    return result;
}

PictureResult ChangePictureFile(const QString& path) {
    QString source = path;
    if (source.isEmpty()) {
        source = BrowsePicture(frmPictures, "Seleccione la Fotografía",
                               lastPicFolder.isEmpty() ? UIDefPictPath : lastPicFolder);
    }
    if (source.isEmpty()) {
        return PictureResult::NotCopied;
    }
    lastPicFolder = source.left(source.lastIndexOf(u'/'));
    const QString name = "Pic" + frmPictures->txtPictureId->text() + ".dat";
    if (FileOperation(FileOp::Copy, {source}, DBpath + name) != 0) {
        return PictureResult::NotCopied;
    }
    frmPictures->txtPicturePath->setText(name);
    TouchLastUpdate(Touched::Picture);
    return PictureResult::Done;
}

void DeletePicture() {
    const InputHold hold;
    const QString productId = frmPictures->txtProductId->text();
    const QString pictureId = frmPictures->txtPictureId->text();
    const QString file = frmPictures->txtPicturePath->text();
    if (Rows().HasRow() && !Rows().IsNull(u"PictureId")) {
        try {
            DeleteRow(productId, pictureId, NumberIn(frmPictures->txtOrderInForm));
        } catch (const StoreError&) {
            ShowRowOf(pictureId); // nothing was deleted
            throw;
        }
        TouchLastUpdate(Touched::Product);
    }
    if (!file.isEmpty()) {
        FileOperation(FileOp::Delete, {DBpath + file}, {});
    }
    Rows().Requery();
    ClearPictureBoxes();
    ShowPictureRecord();
}

void MovePicture(int from, int to) {
    const InputHold hold;
    SavePictureIfChanged();
    Rows().SetAbsolutePosition(from);
    Rows().Set(u"OrderInForm", qint64{to - 1});
    Rows().SetAbsolutePosition(to);
    Rows().Set(u"OrderInForm", qint64{from - 1});
    Rows().Update(); // both at once: two pictures never share a place
    Rows().Requery();
    WaitForCursor(Rows());
    Rows().SetAbsolutePosition(to);
    ShowPictureRecord();
    TouchLastUpdate(Touched::Product);
}

int PictureLimit() {
    return static_cast<int>(frmPictures->fraPicPreview.size());
}

void ForgetPictureFolder() {
    lastPicFolder.clear();
}
