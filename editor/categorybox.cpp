#include "editor/categorybox.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "editor/editing.h"
#include "forms/mainform.h"
#include "platform/controlevents.h"
#include "platform/events.h"
#include "store/store.h"

namespace {

// %1 is a language code in the first and what was typed in the second part. The same statement
// serves both trades.
constexpr char kKnownStatement[] =
    "SELECT FieldValue, count(*) FROM MultiLangFields WHERE TableName='Products' AND FieldDefId=2 "
    "AND FieldValue is not null AND FieldValue <>'' AND LangCode='%1'";
constexpr char kLikeTyped[] = " AND FieldValue like \"%1%\"";
constexpr char kKnownOrder[] = " GROUP BY FieldValue ORDER BY count(*) DESC, FieldValue ASC";

QLineEdit* Box() {
    return IsGenericFlavour() ? qobject_cast<QLineEdit*>(frmMain->txtMLFields[kTextCategory])
                              : frmMain->txtZone;
}

bool Suggesting() {
    return frmMain->fraZone->isVisible();
}

// Characters that a key adds to the box; everything else leaves the text as it stands.
bool IsTyped(const QString& character) {
    static const QString kMarks = " .,-'\"";
    return character.size() == 1 &&
           (character[0].isLetterOrNumber() || kMarks.contains(character[0]));
}

// What the box will hold after the key.
QString TextAfter(int key, const QString& character) {
    const QLineEdit* box = Box();
    QString text = box->text();
    const int start = box->selectionStart();
    const auto length = box->selectedText().size();
    if (key == Qt::Key_Backspace) {
        return start >= 0 ? QString(text).remove(start, length)
                          : text.chopped(text.isEmpty() ? 0 : 1);
    }
    if (!IsTyped(character)) {
        return text;
    }
    return start >= 0 ? QString(text).replace(start, length, character) : text + character;
}

void TakeSuggestion() {
    const QListWidgetItem* item = frmMain->lstZone->currentItem();
    if (item != nullptr && !item->text().isEmpty() && item->text() != Box()->text()) {
        Box()->setText(item->text());
        ProductEdited(Box());
    }
}

void MoveSuggestion(int step) {
    QListWidget* list = frmMain->lstZone;
    const int count = list->count();
    const int row = list->currentRow();
    if (count == 0) {
        return;
    }
    if (step > 0) {
        list->setCurrentRow(row < 0 || row + 1 >= count ? 0 : row + 1);
    } else {
        list->setCurrentRow(row >= 1 ? row - 1 : count - 1);
    }
    Box()->end(false);
}

void AcceptSuggestion() {
    if (Suggesting()) {
        TakeSuggestion();
        ZoneHide(true);
    }
    frmMain->txtMLFields[kTextDescription]->setFocus();
}

void Category_KeyDown(const QKeyEvent* key, bool& handled) {
    const QListWidgetItem* current = frmMain->lstZone->currentItem();
    if (current != nullptr && !current->text().isEmpty() &&
        current->text() == Box()->text() + key->text()) {
        ZoneHide(false);
        return;
    }
    switch (key->key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
        if (Suggesting()) {
            MoveSuggestion(key->key() == Qt::Key_Down ? 1 : -1);
            handled = true;
        }
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        AcceptSuggestion();
        handled = true;
        break;
    case Qt::Key_Escape:
        ZoneHide(true);
        handled = true;
        break;
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        break;
    default:
        ZoneSuggest(key->key(), key->text());
        break;
    }
}

} // namespace

bool IsCategoryBox(const QWidget* control) {
    return control == Box();
}

void ZoneSuggest(int key, const QString& character) {
    const QString typed = TextAfter(key, character);
    QString statement = QString(kKnownStatement).replace("%1", UICurrentLang);
    if (!typed.isEmpty()) {
        // The engine takes a doubled quote inside a quoted text for the quote itself.
        statement += QString(kLikeTyped).replace("%1", QString(typed).replace("\"", "\"\""));
    }
    RunQuery(kCursorScratch, statement + kKnownOrder);
    Recordset& known = adcData[kCursorScratch];

    QStringList values;
    for (; known.HasRow(); known.MoveNext()) {
        values.push_back(known.Text(0));
        DoEvents();
    }
    frmMain->lstZone->clear();
    frmMain->lstZone->addItems(values);
    const bool nothingNew = values.isEmpty() || (values.size() == 1 && values[0] == typed);
    frmMain->fraZone->setVisible(!nothingNew);
}

void ZoneHide(bool giveFocus) {
    frmMain->fraZone->hide();
    if (giveFocus) {
        Box()->setFocus();
        Box()->end(false);
    }
}

void ConnectCategoryBox() {
    frmMain->txtZone->setVisible(!IsGenericFlavour());
    frmMain->txtMLFields_2->setVisible(IsGenericFlavour());
    auto* events = new ControlEvents(frmMain);
    for (QLineEdit* box : {frmMain->txtZone, frmMain->txtMLFields_2}) {
        events->Watch(box);
        QObject::connect(box, &QLineEdit::textEdited, frmMain, [box] { ProductEdited(box); });
    }
    QObject::connect(events, &ControlEvents::keyDown, frmMain,
                     [](QWidget* control, const QKeyEvent* key, bool& handled) {
                         if (IsCategoryBox(control)) {
                             Category_KeyDown(key, handled);
                         }
                     });
    const auto hide = [] { ZoneHide(false); };
    QObject::connect(events, &ControlEvents::gotFocus, frmMain, hide);
    QObject::connect(events, &ControlEvents::lostFocus, frmMain, hide);
    QObject::connect(frmMain->lstZone, &QListWidget::itemClicked, frmMain, [] {
        TakeSuggestion();
        ZoneHide(true);
    });
    QObject::connect(frmMain->lstZone, &QListWidget::itemDoubleClicked, frmMain, [] {
        TakeSuggestion();
        ZoneHide(false);
        frmMain->txtMLFields[kTextDescription]->setFocus();
    });
}
