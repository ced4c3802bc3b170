// What controls tell their form beyond their own signals: focus that comes and goes, keys, and the
// question whether a control may be left.
//
// Only focus that moves between controls of one form counts. A message box, another window, a menu
// or a popup that takes the focus for a while is neither a loss nor, when it gives it back, a gain.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QFocusEvent;
class QKeyEvent;

class ControlEvents : public QObject {
    Q_OBJECT

public:
    explicit ControlEvents(QObject* parent = nullptr);

    // From now on tells the events of `control`. Any number of controls, of one form or several.
    void Watch(QWidget* control);

signals:
    void gotFocus(QWidget* control);

    // `next` is the control that takes the focus, or null if none does.
    void lostFocus(QWidget* control, QWidget* next);

    // Before the control itself sees the key; it doesn't if a receiver sets `handled`.
    void keyDown(QWidget* control, QKeyEvent* key, bool& handled);

    // When the focus is about to leave for another control of the form, before lostFocus. If a
    // receiver sets `cancel`, the focus stays, neither control is told of anything, and a mouse
    // press that would have moved the focus is lost. A message box may be shown meanwhile. Not
    // asked of a control that was hidden or disabled.
    void validate(QWidget* control, bool& cancel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void TakeFocus(QWidget* control);
    bool LeaveFocus(QWidget* control, const QFocusEvent* event);
    bool MayLeave(QWidget* control);
    void DropMousePress();

    QPointer<QWidget> current;  // has the focus as far as receivers know
    bool validating = false;    // while receivers of validate are at work
    bool droppingPress = false; // while the mouse press that moved the focus is under way
};
