#include "platform/notify.h"

#include "platform/dialogs.h"

#include <QScopeGuard>
#include <exception>

namespace {

constexpr char kUnknownFailure[] = "Se ha producido un error inesperado.";

QString errorTitle;
bool showing = false;

QString FailureText() {
    try {
        throw;
    } catch (const std::exception& failure) {
        return QString::fromUtf8(failure.what());
    } catch (...) {
        return {};
    }
}

void ShowFailure() noexcept {
    if (showing) {
        return;
    }
    showing = true;
    const auto done = qScopeGuard([] { showing = false; });
    try {
        const QString text = FailureText();
        MsgBox(text.isEmpty() ? QString::fromUtf8(kUnknownFailure) : text, BoxIcon::Warning,
               errorTitle);
    } catch (...) {
        return; // not even a box can be shown: what remains is to go on
    }
}

} // namespace

void SetErrorTitle(const QString& title) {
    errorTitle = title;
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        ShowFailure();
    }
    return false;
}
