#include "editor/editing.h"

#include "editor/buttons.h"
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "store/formstate.h"
#include "store/openrecord.h"
#include "store/products.h"
#include "store/store.h"

namespace {

// What the user has in a control, with the caret.
struct Content {
    QString text;
    int caret = 0;
    int choice = 0; // check box: 0 or 1; option list: index
};

Content ContentOf(const QWidget* control) {
    if (const auto* line = qobject_cast<const QLineEdit*>(control)) {
        return {line->text(), line->cursorPosition(), 0};
    }
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(control)) {
        return {text->toPlainText(), text->textCursor().position(), 0};
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(control)) {
        return {{}, 0, combo->currentIndex()};
    }
    const auto* check = qobject_cast<const QCheckBox*>(control);
    return {{}, 0, check != nullptr && check->isChecked() ? 1 : 0};
}

void Restore(QWidget* control, const Content& content) {
    const FillingGuard filling;
    if (auto* line = qobject_cast<QLineEdit*>(control)) {
        line->setText(content.text);
        line->setCursorPosition(content.caret);
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(control)) {
        text->setPlainText(content.text);
        QTextCursor caret = text->textCursor();
        caret.setPosition(content.caret);
        text->setTextCursor(caret);
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        combo->setCurrentIndex(content.choice);
    } else if (auto* check = qobject_cast<QCheckBox*>(control)) {
        check->setChecked(content.choice != 0);
    }
}

} // namespace

void ProductEdited(QWidget* edited) {
    if (FillingForm || ListRowCount() == 0 || ProductIsReadOnly() ||
        adcData[kCursorProduct].HasRow()) {
        return;
    }
    const Content typed = ContentOf(edited);
    switch (LoadProduct(frmMain->txtProductId->text())) {
    case ProductState::Held:
        Restore(edited, typed);
        break;
    case ProductState::ReadOnly:
        RefreshButtons();
        break;
    case ProductState::Gone:
        TellProductGone();
        break;
    }
}
