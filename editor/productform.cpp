#include "editor/productform.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "core/vocabulary.h"
#include "editor/categorybox.h"
#include "editor/editing.h"
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "platform/controlevents.h"
#include "platform/controls.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "store/formstate.h"
#include "store/openrecord.h"
#include "store/productref.h"
#include "store/products.h"
#include "store/store.h"
#include "text/numbers.h"

namespace {

constexpr double kPesetasPerEuro = 166.386; // fixed by law, no setting

constexpr char16_t kPriceTyped[] = u"0.00";

bool IsEdit() {
    return !FillingForm && ListRowCount() > 0;
}

void ShortDesc_Change() {
    if (IsEdit() && UICurrentLang == DefaultLang) {
        UpdateListRow(kColumnShortDesc, ControlText(frmMain->txtMLFields[kTextTitle]));
    }
}

void txtProductRef_Change() {
    if (IsEdit()) {
        UpdateListRow(kColumnRef, UppercaseRef());
    }
}

void ShowPesetas() {
    const QString text = frmMain->txtPriceAmount->text();
    frmMain->txtPrizeAmountPTA->setText(
        IsNumeric(text)
            ? "(" + FormatNumber(ParseNumber(text) * kPesetasPerEuro, kPriceListed) + " PTA)"
            : QString());
}

void txtPriceAmount_Change() {
    if (ListRowCount() == 0) {
        return;
    }
    QLineEdit* box = frmMain->txtPriceAmount;
    if (!FillingForm) {
        if (box->text().trimmed().isEmpty()) {
            box->setText("0"); // comes back here
            return;
        }
        if (IsNumeric(box->text())) {
            UpdateListRow(kColumnPrice, FormatNumber(ParseNumber(box->text()), kPriceListed));
        }
    }
    ShowPesetas();
}

void ReformatPrice(const char16_t* picture) {
    const FillingGuard filling;
    QLineEdit* box = frmMain->txtPriceAmount;
    if (IsNumeric(box->text())) {
        box->setText(FormatNumber(ParseNumber(box->text()), picture));
    }
}

void txtPriceAmount_Validate(bool& cancel) {
    if (ListRowCount() == 0) {
        return;
    }
    if (IsNumeric(frmMain->txtPriceAmount->text())) {
        ReformatPrice(kPriceShown);
        return;
    }
    const QString caption = frmMain->lblPriceAmount->text();
    MsgBox("El campo " + caption.left(caption.size() - 1) + " sólo admite valores numéricos",
           BoxIcon::Warning, AppName);
    cancel = true;
}

// The design's limit is reached: may the oldest featured product give way?
bool MayReplaceOldest() {
    const QString text = "La Plantilla de Diseño Web actual no permite más de " +
                         QString::number(TemplMaxEmph) + Messages[kMessageFeaturedLimit] + "\n\n" +
                         Messages[kMessageReplaceOldest];
    return MsgBox(text, BoxIcon::Information, BoxButtons::YesNo, BoxAnswer::Yes, AppName) ==
           BoxAnswer::Yes;
}

// False if another user has taken the product or deleted it.
bool ReplaceOldest() {
    const QString productId = frmMain->txtProductId->text();
    if (ReopenProduct() != ProductState::Held) {
        return false;
    }
    SaveProduct(false);
    DemoteOldestFeatured();
    int position = 1;
    RefreshProductList(position, productId, false);
    // The refill has counted this product already.
    SetTag(frmMain->cboIsNew, QString::number(frmMain->cboIsNew->currentIndex()));
    return true;
}

// Puts the choice back to the status that was last accepted, and returns it.
int RestoreStatus() {
    const FillingGuard filling;
    const int status = Tag(frmMain->cboIsNew).toInt();
    frmMain->cboIsNew->setCurrentIndex(status);
    return status;
}

void SetProductStatus(int status) {
    {
        const InputHold hold;
        ServeEvents();
    }
    if (ProductIsReadOnly()) {
        RestoreStatus();
        return;
    }
    const bool full = status == kStatusFeatured && FeaturedCount >= TemplMaxEmph;
    if (full && !(MayReplaceOldest() && ReplaceOldest())) {
        status = RestoreStatus();
    }
    MarkListRow(SelectedRow(), status);
    SetTag(frmMain->cboIsNew, QString::number(status));
}

void cboIsNew_Validate() {
    const int status = frmMain->cboIsNew->currentIndex();
    if (ListRowCount() > 0 && QString::number(status) != Tag(frmMain->cboIsNew)) {
        SetProductStatus(status);
    }
}

// The control of a slot that the user sees; null for an internal or closed one.
QWidget* SlotControl(int slot) {
    if (slot >= static_cast<int>(frmMain->cboFields.size())) {
        return nullptr;
    }
    for (QWidget* control : {static_cast<QWidget*>(frmMain->txtFields[slot]),
                             static_cast<QWidget*>(frmMain->cboFields[slot]),
                             static_cast<QWidget*>(frmMain->chkFields[slot])}) {
        if (control->isVisible() && control->isEnabled()) {
            return control;
        }
    }
    return nullptr;
}

void FocusSlot(int slot) {
    QWidget* control = SlotControl(slot);
    (control != nullptr ? control : frmMain->txtMLFields[kTextTitle])->setFocus();
}

// Where Enter leads from a control; null where it does nothing.
void MoveOnFrom(QWidget* control) {
    const QString group = GroupName(control);
    if (group == u"txtFields" || group == u"cboFields" || group == u"chkFields") {
        FocusNextField(control->objectName().section(u'_', 1).toInt());
    } else if (control == frmMain->txtProductRef || control == frmMain->cboIsNew) {
        frmMain->txtMLFields[kTextTitle]->setFocus();
    } else if (control == frmMain->txtMLFields[kTextTitle]) {
        FocusSlot(0);
    } else if (control == frmMain->txtPriceAmount) {
        frmMain->cmdPictures->setFocus();
    }
}

void Editor_KeyDown(QWidget* control, const QKeyEvent* key, bool& handled) {
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (enter && !IsCategoryBox(control) && qobject_cast<QPlainTextEdit*>(control) == nullptr) {
        MoveOnFrom(control);
        handled = true;
    }
}

void Editor_Validate(QWidget* control, bool& cancel) {
    if (control == frmMain->txtProductRef) {
        ValidateProductRef(cancel, false);
    } else if (control == frmMain->txtPriceAmount) {
        txtPriceAmount_Validate(cancel);
    } else if (control == frmMain->cboIsNew) {
        cboIsNew_Validate();
    }
}

void ConnectSlots() {
    for (std::size_t slot = 0; slot < frmMain->chkFields.size(); ++slot) {
        QLineEdit* value = frmMain->txtFields[slot];
        QCheckBox* check = frmMain->chkFields[slot];
        QComboBox* combo = frmMain->cboFields[slot];
        QObject::connect(value, &QLineEdit::textEdited, frmMain, [value] { ProductEdited(value); });
        QObject::connect(check, &QCheckBox::clicked, frmMain, [check, value] {
            ProductEdited(check);
            value->setText(check->isChecked() ? "1" : "0");
        });
        QObject::connect(combo, &QComboBox::activated, frmMain, [combo, value] {
            ProductEdited(combo);
            value->setText(QString::number(combo->currentIndex()));
        });
    }
}

void ConnectTexts() {
    auto* title = qobject_cast<QLineEdit*>(frmMain->txtMLFields[kTextTitle]);
    auto* description = qobject_cast<QPlainTextEdit*>(frmMain->txtMLFields[kTextDescription]);
    QObject::connect(title, &QLineEdit::textEdited, frmMain, [title] { ProductEdited(title); });
    QObject::connect(title, &QLineEdit::textChanged, frmMain, ShortDesc_Change);
    QObject::connect(description, &QPlainTextEdit::textChanged, frmMain,
                     [description] { ProductEdited(description); });
}

void ConnectRecordBoxes() {
    QLineEdit* reference = frmMain->txtProductRef;
    QLineEdit* price = frmMain->txtPriceAmount;
    QComboBox* status = frmMain->cboIsNew;
    QObject::connect(reference, &QLineEdit::textEdited, frmMain,
                     [reference] { ProductEdited(reference); });
    QObject::connect(reference, &QLineEdit::textChanged, frmMain, txtProductRef_Change);
    QObject::connect(price, &QLineEdit::textEdited, frmMain, [price] { ProductEdited(price); });
    QObject::connect(price, &QLineEdit::textChanged, frmMain, txtPriceAmount_Change);
    QObject::connect(status, &QComboBox::activated, frmMain, [status] { ProductEdited(status); });
}

void ConnectEvents() {
    auto* events = new ControlEvents(frmMain);
    std::vector<QWidget*> controls = {frmMain->txtProductRef, frmMain->txtPriceAmount,
                                      frmMain->cboIsNew, frmMain->txtMLFields[kTextTitle],
                                      frmMain->txtMLFields[kTextDescription]};
    controls.insert(controls.end(), frmMain->txtFields.begin(), frmMain->txtFields.end());
    controls.insert(controls.end(), frmMain->cboFields.begin(), frmMain->cboFields.end());
    controls.insert(controls.end(), frmMain->chkFields.begin(), frmMain->chkFields.end());
    for (QWidget* control : controls) {
        events->Watch(control);
    }
    QObject::connect(events, &ControlEvents::keyDown, frmMain, Editor_KeyDown);
    QObject::connect(events, &ControlEvents::validate, frmMain, Editor_Validate);
    QObject::connect(events, &ControlEvents::gotFocus, frmMain, [](QWidget* control) {
        if (control == frmMain->txtPriceAmount) {
            ReformatPrice(kPriceTyped);
        }
    });
}

} // namespace

void FocusNextField(int index) {
    const bool last = index + 1 >= static_cast<int>(frmMain->txtFields.size());
    if (last) {
        frmMain->txtMLFields[kTextTitle]->setFocus();
    } else {
        FocusSlot(index + 1);
    }
}

void ConnectProductForm() {
    ConnectRecordBoxes();
    ConnectTexts();
    ConnectSlots();
    ConnectEvents();
    ConnectCategoryBox();
}
