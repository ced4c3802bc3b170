// What the update needs of the main form: when it may come before the user, how far a download is,
// and the controls that are disabled meanwhile.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

// Nothing goes on that a question, or the end of the program, would come between: no publish, no
// open dialog, no load or save.
bool Undisturbed();

// While it lives, a letter needs Alt to press a button: a question comes over somebody who types,
// and his text must not answer it.
class TypingHold : public QObject {
public:
    TypingHold();
    bool eventFilter(QObject* watched, QEvent* event) override;
};

// What the label says when `size` of `total` bytes have come, counted in chunks of 1,024: `ended`
// if the last one may be shorter. Empty before the first chunk.
QString ProgressText(qint64 size, double total, bool ended);

// All controls of the form that a run would disable.
class ControlsHold {
public:
    // Called again and again: disables them as soon as no dialog is open, whose controls are the
    // form's too, and again behind a publish, whose end enables them.
    void Keep();

    // Enables them, if they are disabled, and gives the focus back. Not during a publish.
    void Release();

private:
    bool holding = false;
    QPointer<QWidget> focused; // before that
};
