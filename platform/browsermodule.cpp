#include "platform/browsermodule.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <optional>

namespace {

constexpr int kPageMilliseconds = 30000;

// Serves events until `outcome` is there; false when it doesn't come in time.
bool WaitForOutcome(const std::optional<bool>& outcome, const QDeadlineTimer& deadline) {
    QEventLoop loop;
    QTimer alarm; // wakes the loop at the deadline
    alarm.start(static_cast<int>(deadline.remainingTime()));
    while (!outcome && !deadline.hasExpired()) {
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
    return outcome.value_or(false);
}

} // namespace

QWidget* LumentaMakeView(QWidget* parent) {
    auto* view = new QWebEngineView(parent);
    QObject::connect(view, &QWebEngineView::titleChanged, view, &QWidget::setWindowTitle);
    return view;
}

void LumentaBrowse(QWidget* view, const QString& path) {
    static_cast<QWebEngineView*>(view)->load(QUrl::fromLocalFile(path));
}

bool LumentaWritePdf(const QString& htmlPath, const QString& pdfPath) {
    const QDeadlineTimer deadline(kPageMilliseconds);
    std::optional<bool> loaded;
    std::optional<bool> written;
    QWebEnginePage page;
    QObject::connect(&page, &QWebEnginePage::loadFinished, [&](bool ok) { loaded = ok; });
    QObject::connect(&page, &QWebEnginePage::pdfPrintingFinished,
                     [&](const QString&, bool ok) { written = ok; });
    page.load(QUrl::fromLocalFile(htmlPath));
    if (!WaitForOutcome(loaded, deadline)) {
        return false;
    }
    page.printToPdf(pdfPath);
    return WaitForOutcome(written, deadline);
}
