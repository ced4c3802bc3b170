#include "app/updatescreen.h"

#include "app/workflow.h"
#include "editor/buttons.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "platform/events.h"
#include "store/fielddefs.h"
#include "text/numbers.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

constexpr int kChunk = 1024; // bytes

void EnableControls(bool enabled) {
    const InputHold input;
    EnableWhileBusy("cmdUpdateWeb", enabled, frmMain);
    if (enabled) {
        DisableUnusedFields();
        RefreshButtons();
    }
}

// Also for a large installer, where a count of kilobytes exceeds 32,767.
QString Whole(double value) {
    return QString::number(RoundHalfEven(value), 'f', 0);
}

} // namespace

bool Undisturbed() {
    return !PublishUnderWay() && !InputIsHeld() && QApplication::activeModalWidget() == nullptr &&
           QApplication::activePopupWidget() == nullptr;
}

TypingHold::TypingHold() {
    qApp->installEventFilter(this);
}

bool TypingHold::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    return !key->text().isEmpty() && key->text()[0].isLetterOrNumber() &&
           !key->modifiers().testFlag(Qt::AltModifier);
}

// A chunk is shown with what had come before it; a last one of a single byte isn't shown.
QString ProgressText(qint64 size, double total, bool ended) {
    const qint64 chunks = size / kChunk + (ended && size % kChunk > 1 ? 1 : 0);
    if (chunks == 0) {
        return {};
    }
    const double got = double(chunks - 1) * kChunk;
    return QStringLiteral("Descargando nueva versión     (%1 Kb / %2 Kb)   %3 % ")
        .arg(Whole(got / kChunk), Whole(total / kChunk), Whole(got / total * 100));
}

void ControlsHold::Keep() {
    holding = holding && !PublishUnderWay();
    if (!holding && Undisturbed()) {
        holding = true;
        focused = frmMain->focusWidget();
        frmMain->fraUpdateInfo->show();
        EnableControls(false);
    }
}

void ControlsHold::Release() {
    if (holding) {
        holding = false;
        EnableControls(true);
        if (focused != nullptr) {
            focused->setFocus();
        }
    }
}
