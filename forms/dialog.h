// What all forms but the main one have in common: they tell when they are first seen and when they
// are about to close, whatever closes them (a button's handler, the window's own button, Escape).
#pragma once

#include <QDialog>

class QAbstractButton;

class Dialog : public QDialog {
    Q_OBJECT

public:
    explicit Dialog(QWidget* parent = nullptr);

    // Closes the form, with the question whether it may; the way in which handlers leave it.
    void done(int result) override;

signals:
    // Once, from the event loop, when the form has come up.
    void Activated();

    // Before the form closes; a receiver that sets `cancel` keeps it open.
    void Unload(bool& cancel);

protected:
    // Escape presses this button, or does nothing while the button is disabled. Without a button
    // Escape closes the form.
    void SetEscapeButton(QAbstractButton* button) { escapeButton = button; }

    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QAbstractButton* escapeButton = nullptr;
    bool activated = false;
};
