#include "store/productref.h"

#include "core/flavour.h"
#include "core/vocabulary.h"
#include "forms/mainform.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "store/formstate.h"
#include "store/store.h"
#include "text/dates.h"

namespace {

constexpr char16_t kAllowed[] = u"1234567890ABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

// %1 a reference of allowed characters, %2 a product number.
constexpr char kSameRefStatement[] =
    "SELECT count(*) FROM Products WHERE ProductRef = '%1' AND ProductId <> %2";

RefFault FaultOf(const QString& reference) {
    if (reference.size() > kRefLength) {
        return RefFault::TooLong;
    }
    const QStringView allowed(kAllowed);
    const bool good = std::all_of(reference.begin(), reference.end(),
                                  [allowed](QChar c) { return allowed.contains(c); });
    return good ? RefFault::None : RefFault::BadCharacter;
}

bool IsUnique(const QString& reference, const QString& productId) {
    RunQuery(kCursorScratch,
             QString(kSameRefStatement).replace("%1", reference).replace("%2", productId));
    return CellInteger(adcData[kCursorScratch].Value(0)) == 0;
}

QString FieldName() {
    const QString caption = frmMain->lblProductRef->text();
    return "El campo " + caption.left(caption.size() - 1);
}

// What is wrong with the box's text, for the user; empty when it is accepted.
QString Complaint() {
    const QString reference = frmMain->txtProductRef->text();
    if (reference.isEmpty()) {
        return FieldName() + " es obligatorio";
    }
    switch (RefCharsOk()) {
    case RefFault::BadCharacter:
        return FieldName() +
               " debe estar formado por letras, numéros y/o los caracteres guión(-) o "
               "guión bajo(_)";
    case RefFault::TooLong:
        return FieldName() + " debe tener como máximo 10 caracteres";
    case RefFault::None:
        break;
    }
    if (!IsRefUnique()) {
        return "Ya existe un registro con la Referencia " + reference + "\n\n" +
               Messages[kMessageRefNeeded];
    }
    return {};
}

} // namespace

RefFault RefCharsOk() {
    return FaultOf(frmMain->txtProductRef->text());
}

bool IsRefUnique() {
    return IsUnique(frmMain->txtProductRef->text(), frmMain->txtProductId->text());
}

QString UppercaseRef() {
    QLineEdit* box = frmMain->txtProductRef;
    QString upper = box->text().toUpper();
    if (box->text() != upper) {
        const int caret = box->cursorPosition();
        box->setText(upper);
        box->setCursorPosition(caret);
    }
    return upper;
}

void ValidateProductRef(bool& cancel, bool silent) {
    cancel = false;
    if (frmMain->lstProductList->model()->rowCount() == 0) {
        return;
    }
    {
        const FillingGuard filling;
        UppercaseRef();
    }
    const QString complaint = Complaint();
    if (complaint.isEmpty()) {
        return;
    }
    cancel = true;
    if (!silent) {
        MsgBox(complaint, BoxIcon::Warning, AppName);
        frmMain->txtProductRef->setFocus();
    }
}

QString FreeProductRef(const QString& productId) {
    QString reference = productId;
    while (FaultOf(reference) != RefFault::None || !IsUnique(reference, productId)) {
        DoEvents();
        const auto hundredths = static_cast<qint64>(SecondsOfDay() * 100);
        reference = QStringLiteral("REF%1").arg(hundredths % 100, 2, 10, QChar(u'0'));
    }
    return reference;
}
