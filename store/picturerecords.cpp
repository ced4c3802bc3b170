#include "store/picturerecords.h"

#include "core/vocabulary.h"
#include "forms/mainform.h"
#include "platform/numbers.h"
#include "store/store.h"

namespace {

// %1 is a product number.
constexpr char kPicturesStatement[] =
    "Select * from Pictures WHERE ProductId = %1 ORDER BY OrderInForm";

constexpr int kMessageCountOfPictures = 0;

} // namespace

void LoadPictures() {
    const double productId = LeadingNumber(frmMain->txtProductId->text());
    RunQuery(kCursorPictures,
             QString(kPicturesStatement).replace("%1", QString::number(productId, 'f', 0)));
    const int count = adcData[kCursorPictures].RecordCount();
    frmMain->txtPicture->setText(
        QString(Messages[kMessageCountOfPictures]).replace("%1", QString::number(count)));
}
