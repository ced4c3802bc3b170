#include "platform/events.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace {

// Since the last serving; not started before the first one.
QElapsedTimer lastServed;

int holds = 0; // InputHolds that live

} // namespace

void DoEvents() {
    if (!lastServed.isValid() || lastServed.elapsed() >= kServeInterval) {
        ServeEvents();
    }
}

void ServeEvents() {
    QCoreApplication::processEvents(holds > 0 ? QEventLoop::ExcludeUserInputEvents
                                              : QEventLoop::AllEvents);
    lastServed.start();
}

void WaitForEvents(int milliseconds) {
    QEventLoop loop;
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    limit.start(milliseconds);
    loop.processEvents(QEventLoop::WaitForMoreEvents);
    lastServed.start();
}

InputHold::InputHold() {
    ++holds;
}

InputHold::~InputHold() {
    --holds;
}

bool InputIsHeld() {
    return holds > 0;
}
