#include "store/langvalues.h"

#include "core/settings.h"
#include "forms/corpinfoform.h"
#include "forms/mainform.h"
#include "forms/picturesform.h"
#include "platform/controls.h"
#include "platform/events.h"
#include "store/formstate.h"
#include "store/store.h"

namespace {

// %1 table, %2 item (digits), %3 language code.
constexpr char kTextsStatement[] = "SELECT * FROM MultiLangFields WHERE TableName='%1' AND "
                                   "ItemId='%2' AND LangCode='%3' ORDER BY FieldDefId";

constexpr char kProducts[] = "Products";
constexpr char kPictures[] = "Pictures";
constexpr char kCorpInfo[] = "CorpInfo";

// The last save of the set on screen failed: its rows in the cursor are as the boxes, those in the
// store aren't. False again once it is saved or another set selected.
bool saveFailed = false;

Recordset& Rows() {
    return adcData[kCursorTexts];
}

void SelectTexts(const QString& tableName, const QString& itemId, const QString& langCode) {
    saveFailed = false;
    RunQuery(kCursorTexts, QString(kTextsStatement)
                               .replace("%1", tableName)
                               .replace("%2", itemId)
                               .replace("%3", langCode));
}

// Boxes of the screen that shows a table's texts; none where the screen isn't open.
std::vector<QWidget*> BoxesOf(const QString& tableName) {
    if (tableName == kProducts) {
        return frmMain->txtMLFields;
    }
    if (tableName == kPictures) {
        return frmPictures != nullptr ? frmPictures->txtMLFields : std::vector<QWidget*>();
    }
    return frmCorpInfo != nullptr ? frmCorpInfo->txtMLFields : std::vector<QWidget*>();
}

int TextCountOf(const QString& tableName) {
    if (tableName == kProducts) {
        return kProductTexts;
    }
    return tableName == kPictures ? kPictureTexts : kCorpTexts;
}

void LoadTexts(const QString& tableName, const QString& itemId) {
    const FillingGuard filling;
    SelectTexts(tableName, itemId, UICurrentLang);
    if (Rows().RecordCount() == 0) {
        CreateLangRows(tableName, itemId, UICurrentLang);
        return;
    }
    for (QWidget* box : BoxesOf(tableName)) {
        if (!Rows().HasRow()) {
            break;
        }
        SetControlText(box, Rows().Text(u"FieldValue").trimmed());
        Rows().MoveNext();
    }
}

void SaveTexts(const std::vector<QWidget*>& boxes) {
    if (Rows().RecordCount() == 0) {
        return;
    }
    saveFailed = true; // until the rows are written
    Rows().MoveFirst();
    for (const QWidget* box : boxes) {
        if (!Rows().HasRow()) {
            break;
        }
        Rows().Set(u"FieldValue", ControlText(box));
        Rows().MoveNext();
        DoEvents();
    }
    Rows().MoveFirst();
    Rows().Update();
    WaitForCursor(Rows());
    saveFailed = false;
}

} // namespace

void LoadProductLangValues() {
    // A cleared form has no item whose rows could be made.
    const QString productId = frmMain->txtProductId->text();
    if (frmMain->lstProductList->model()->rowCount() > 0 && !productId.isEmpty()) {
        LoadTexts(kProducts, productId);
    }
}

void LoadPictureLangValues() {
    if (adcData[kCursorPictures].RecordCount() > 0) {
        LoadTexts(kPictures, frmPictures->txtPictureId->text());
    }
}

void LoadCorpLangValues() {
    LoadTexts(kCorpInfo, kCorpItemId);
}

void SaveProductLangValues() {
    SaveTexts(BoxesOf(kProducts));
}

void SavePictureLangValues() {
    SaveTexts(BoxesOf(kPictures));
}

void SaveCorpLangValues() {
    SaveTexts(BoxesOf(kCorpInfo));
}

void CreateLangRows(const QString& tableName, const QString& itemId, const QString& langCode) {
    const FillingGuard filling;
    SelectTexts(tableName, itemId, langCode);
    while (Rows().RecordCount() > 0) { // left behind by an item that had this number before
        Rows().MoveFirst();
        Rows().Delete();
    }
    const std::vector<QWidget*> boxes = BoxesOf(tableName);
    for (int text = 0; text < TextCountOf(tableName); ++text) {
        Rows().AddNew();
        Rows().Set(u"TableName", tableName);
        Rows().Set(u"ItemId", itemId);
        Rows().Set(u"LangCode", langCode);
        Rows().Set(u"FieldDefId", qint64{text});
        Rows().Set(u"FieldValue", QString());
        if (text < static_cast<int>(boxes.size())) {
            SetControlText(boxes[text], {});
        }
        DoEvents();
    }
    Rows().MoveFirst();
}

void SaveProductLangIfChanged() {
    if (!frmMain->fraReadOnly->isHidden()) {
        return;
    }
    const InputHold hold;
    if (LangValuesDiffer(frmMain->txtMLFields)) {
        SaveProductLangValues();
        TouchLastUpdate(Touched::Product);
    } else {
        Rows().Update(); // empty rows of a language that was only looked at
    }
}

bool LangValuesDiffer(const std::vector<QWidget*>& boxes) {
    if (saveFailed || !Rows().IsOpen()) {
        return saveFailed;
    }
    Rows().MoveFirst();
    for (const QWidget* box : boxes) {
        if (!Rows().HasRow()) {
            return false;
        }
        if (!Rows().IsNull(u"FieldValue") && Rows().Text(u"FieldValue") != ControlText(box)) {
            return true;
        }
        Rows().MoveNext();
    }
    return false;
}
