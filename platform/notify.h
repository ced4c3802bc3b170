// The last net under every handler: what no routine handles is shown in a warning box and the
// program goes on.
#pragma once

#include <QApplication>
#include <QString>

// Title of the box; empty at start. Set once, when the program knows its name.
void SetErrorTitle(const QString& title);

class Application : public QApplication {
public:
    using QApplication::QApplication;

    // No exception leaves it. The text of a std::exception is UTF-8 and is shown as it stands.
    // While one failure is on screen further ones are passed over, so that a failing timer or
    // repaint can't pile up boxes.
    bool notify(QObject* receiver, QEvent* event) override;
};
