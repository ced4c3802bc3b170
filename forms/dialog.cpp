#include "forms/dialog.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>

namespace {

// What a desktop draws around a window, pixels: no form comes up larger than the screen.
constexpr QSize kWindowFrame(8, 36);

} // namespace

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
        resize(size().boundedTo(screen()->availableSize() - kWindowFrame));
        QTimer::singleShot(0, this, &Dialog::Activated);
    }
}
