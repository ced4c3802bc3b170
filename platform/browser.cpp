#include "platform/browser.h"

#include "platform/browsermodule.h"

#include <QCoreApplication>
#include <QLibrary>
#include <unistd.h>

namespace {

// The module's functions; all null without it.
struct Engine {
    MakeViewFunction makeView = nullptr;
    BrowseFunction browse = nullptr;
    WritePdfFunction writePdf = nullptr;
};

Engine LoadEngine() {
    if (geteuid() == 0) {
        // The engine's sandbox refuses the administrator and would end the whole program.
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    }
    QLibrary library(QCoreApplication::applicationDirPath() + "/" + kBrowserModule);
    Engine engine;
    if (library.load()) {
        engine.makeView = reinterpret_cast<MakeViewFunction>(library.resolve(kMakeViewName));
        engine.browse = reinterpret_cast<BrowseFunction>(library.resolve(kBrowseName));
        engine.writePdf = reinterpret_cast<WritePdfFunction>(library.resolve(kWritePdfName));
    }
    return engine;
}

const Engine& TheEngine() {
    static const Engine engine = LoadEngine();
    return engine;
}

} // namespace

QWidget* MakeBrowserView(QWidget* parent) {
    return TheEngine().makeView != nullptr ? TheEngine().makeView(parent) : nullptr;
}

void BrowseTo(QWidget* view, const QString& path) {
    if (TheEngine().browse != nullptr) {
        TheEngine().browse(view, path);
    }
}

bool WritePagePdf(const QString& htmlPath, const QString& pdfPath) {
    return TheEngine().writePdf != nullptr && TheEngine().writePdf(htmlPath, pdfPath);
}
