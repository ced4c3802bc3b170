#include "editor/clearform.h"

#include "editor/listrows.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/formstate.h"
#include "store/langvalues.h"
#include "store/openrecord.h"
#include "store/picturerecords.h"
#include "store/products.h"
#include "store/store.h"

namespace {

void ClearSlots() {
    for (QLineEdit* box : frmMain->txtFields) {
        box->clear();
    }
    for (QCheckBox* box : frmMain->chkFields) {
        box->setChecked(false);
    }
    for (QComboBox* box : frmMain->cboFields) {
        box->setCurrentIndex(box->count() > 0 ? 0 : -1);
    }
}

} // namespace

void ClearProductForm() {
    const FillingGuard filling;
    for (QLineEdit* box :
         {frmMain->txtProductId, frmMain->txtProductRef, frmMain->txtZone, frmMain->txtPriceAmount,
          frmMain->txtPrizeAmountPTA, frmMain->txtPriceCurrency, frmMain->txtLastUpdate,
          frmMain->txtPicture}) {
        box->clear();
    }
    for (QWidget* box : frmMain->txtMLFields) {
        SetControlText(box, {});
    }
    ClearSlots();
    frmMain->cboIsNew->setCurrentIndex(kStatusPublished);
    SetTag(frmMain->cboIsNew, QString::number(kStatusPublished));
    LoadProductLangValues();
    LoadPictures();
    // What the boxes hold now belongs to no row.
    ParkCursor(kCursorTexts);
    ParkCursor(kCursorProduct);
    SetProductReadOnly(false);
}
