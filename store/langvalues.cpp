#include "store/langvalues.h"

#include "core/settings.h"
#include "forms/corpinfoform.h"
#include "forms/mainform.h"
#include "forms/picturesform.h"
#include "platform/controls.h"
#include "platform/events.h"
#include "store/formstate.h"
#include "store/openrecord.h"
#include "store/store.h"

namespace {

// %1 table, %2 item (digits), %3 language code.
constexpr char kTextsStatement[] = "SELECT * FROM MultiLangFields WHERE TableName='%1' AND "
                                   "ItemId='%2' AND LangCode='%3' ORDER BY FieldDefId";

Recordset& Rows() {
    return adcData[kCursorTexts];
}

void SelectTexts(TextTable table, const QString& itemId, const QString& langCode) {
    ForgetFailedSave(SavedPart::Texts);
    RunQuery(kCursorTexts, QString(kTextsStatement)
                               .replace("%1", TextTableName(table))
                               .replace("%2", itemId)
                               .replace("%3", langCode));
}

// Boxes of the screen that shows a table's texts; none where the screen isn't open.
std::vector<QWidget*> BoxesOf(TextTable table) {
    switch (table) {
    case TextTable::Products:
        return frmMain->txtMLFields;
    case TextTable::Pictures:
        return frmPictures != nullptr ? frmPictures->txtMLFields : std::vector<QWidget*>();
    case TextTable::CorpInfo:
        return frmCorpInfo != nullptr ? frmCorpInfo->txtMLFields : std::vector<QWidget*>();
    }
    return {};
}

int TextCountOf(TextTable table) {
    switch (table) {
    case TextTable::Products:
        return kProductTexts;
    case TextTable::Pictures:
        return kPictureTexts;
    case TextTable::CorpInfo:
        return kCorpTexts;
    }
    return 0;
}

void LoadTexts(TextTable table, const QString& itemId) {
    const FillingGuard filling;
    SelectTexts(table, itemId, UICurrentLang);
    if (Rows().RecordCount() == 0) {
        CreateLangRows(table, itemId, UICurrentLang);
        return;
    }
    for (QWidget* box : BoxesOf(table)) {
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
    SaveUnderWay save(SavedPart::Texts);
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
    save.Written();
}

} // namespace

const QString& TextTableName(TextTable table) {
    static const std::array kNames = {QStringLiteral("Products"), QStringLiteral("Pictures"),
                                      QStringLiteral("CorpInfo")};
    return kNames.at(static_cast<std::size_t>(table));
}

void LoadProductLangValues() {
    // A cleared form has no item whose rows could be made.
    const QString productId = frmMain->txtProductId->text();
    if (frmMain->lstProductList->model()->rowCount() > 0 && !productId.isEmpty()) {
        LoadTexts(TextTable::Products, productId);
    }
}

void LoadPictureLangValues() {
    if (adcData[kCursorPictures].RecordCount() > 0) {
        LoadTexts(TextTable::Pictures, frmPictures->txtPictureId->text());
    }
}

void LoadCorpLangValues() {
    LoadTexts(TextTable::CorpInfo, kCorpItemId);
}

void SaveProductLangValues() {
    SaveTexts(BoxesOf(TextTable::Products));
}

void SavePictureLangValues() {
    SaveTexts(BoxesOf(TextTable::Pictures));
}

void SaveCorpLangValues() {
    SaveTexts(BoxesOf(TextTable::CorpInfo));
}

void CreateLangRows(TextTable table, const QString& itemId, const QString& langCode) {
    const FillingGuard filling;
    SelectTexts(table, itemId, langCode);
    while (Rows().RecordCount() > 0) { // left behind by an item that had this number before
        Rows().MoveFirst();
        Rows().Delete();
    }
    const std::vector<QWidget*> boxes = BoxesOf(table);
    for (int text = 0; text < TextCountOf(table); ++text) {
        Rows().AddNew();
        Rows().Set(u"TableName", TextTableName(table));
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
    if (ProductIsReadOnly()) {
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
    if (LastSaveFailed(SavedPart::Texts)) {
        return true;
    }
    if (!Rows().IsOpen()) {
        return false;
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
