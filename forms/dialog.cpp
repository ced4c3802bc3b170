#include "forms/dialog.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QTimer>

Dialog::Dialog(QWidget* parent) : QDialog(parent) {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void Dialog::done(int result) {
    bool cancel = false;
    emit Unload(cancel);
    if (!cancel) {
        QDialog::done(result);
    }
}

void Dialog::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) && escapeButton != nullptr) {
        escapeButton->click();
        return;
    }
    QDialog::keyPressEvent(event);
}

void Dialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!activated) {
        activated = true;
        QTimer::singleShot(0, this, &Dialog::Activated);
    }
}
