#include "platform/controlevents.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>

namespace {

// Focus that another window or a popup borrows, and that comes back by itself.
bool IsBorrowed(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

} // namespace

ControlEvents::ControlEvents(QObject* parent) : QObject(parent) {}

void ControlEvents::Watch(QWidget* control) {
    control->installEventFilter(this);
    if (control->hasFocus()) {
        current = control;
    }
}

bool ControlEvents::eventFilter(QObject* watched, QEvent* event) {
    if (droppingPress && event->type() == QEvent::MouseButtonPress && watched->isWidgetType()) {
        return true;
    }
    auto* control = qobject_cast<QWidget*>(watched);
    if (control == nullptr || validating) {
        return false;
    }
    switch (event->type()) {
    case QEvent::FocusIn:
        TakeFocus(control);
        return false;
    case QEvent::FocusOut:
        return !LeaveFocus(control, static_cast<QFocusEvent*>(event));
    case QEvent::KeyPress: {
        bool handled = false;
        emit keyDown(control, static_cast<QKeyEvent*>(event), handled);
        return handled;
    }
    default:
        return false;
    }
}

void ControlEvents::TakeFocus(QWidget* control) {
    if (control == current) {
        return;
    }
    // The focus moved while the form's window was inactive: the loss is told late.
    const QPointer<QWidget> previous = current;
    current = control;
    if (previous != nullptr) {
        emit lostFocus(previous, control);
    }
    emit gotFocus(control);
}

// False if the focus has to stay.
bool ControlEvents::LeaveFocus(QWidget* control, const QFocusEvent* event) {
    if (IsBorrowed(event->reason()) || control != current) {
        return true;
    }
    QWidget* next = QApplication::focusWidget();
    if (next == control) {
        return true;
    }
    const bool sameForm = next != nullptr && next->window() == control->window();
    if (sameForm && control->isVisible() && control->isEnabled() && !MayLeave(control)) {
        if (event->reason() == Qt::MouseFocusReason) {
            DropMousePress();
        }
        return false;
    }
    current = nullptr;
    emit lostFocus(control, next);
    return true;
}

// Asks, and gives the focus back on refusal without anybody noticing.
bool ControlEvents::MayLeave(QWidget* control) {
    const QPointer<QWidget> asked = control;
    bool cancel = false;
    validating = true;
    emit validate(control, cancel);
    if (cancel && asked != nullptr) {
        asked->setFocus(Qt::OtherFocusReason);
    }
    validating = false;
    return !cancel || asked == nullptr;
}

// The press reaches its control right after the focus has moved, within the same event.
void ControlEvents::DropMousePress() {
    droppingPress = true;
    qApp->installEventFilter(this);
    QTimer::singleShot(0, this, [this] {
        droppingPress = false;
        qApp->removeEventFilter(this);
    });
}
