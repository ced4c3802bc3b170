#include "platform/shell.h"

#include "platform/browser.h"
#include "platform/dialogs.h"
#include "platform/events.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <memory>
#include <unistd.h>

namespace {

constexpr char kOpenTool[] = "xdg-open";
constexpr char kPrintTool[] = "lp";

// A tool that still runs after so long has become the handler itself.
constexpr int kOpenMilliseconds = 2000;
constexpr int kPrintMilliseconds = 30000;

// Has the tool exit code 0, or is it still running after `milliseconds`? A running one lives on,
// also beyond this program.
bool RunTool(const QString& name, const QStringList& arguments, int milliseconds) {
    const QString tool = QStandardPaths::findExecutable(name);
    if (tool.isEmpty()) {
        return false;
    }
    auto process = std::make_unique<QProcess>();
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setChildProcessModifier([] { ::setsid(); });
    process->start(tool, arguments);
    const QDeadlineTimer deadline(milliseconds);
    while (process->state() != QProcess::NotRunning && !deadline.hasExpired()) {
        WaitForEvents();
    }
    if (process->state() != QProcess::NotRunning) {
        QProcess* running = process.release();
        running->setParent(QCoreApplication::instance());
        QObject::connect(running, &QProcess::finished, running, &QObject::deleteLater);
        return true;
    }
    return process->error() != QProcess::FailedToStart &&
           process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
}

bool IsAddress(const QString& target) {
    static const QRegularExpression kScheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]+:"));
    return target.contains(kScheme);
}

bool IsWebPage(const QFileInfo& file) {
    return QStringList{"html", "htm"}.contains(file.suffix().toLower());
}

} // namespace

bool OpenWithSystem(const QString& target) {
    const QFileInfo file(target);
    if (IsUnattended() || (!file.exists() && !IsAddress(target))) {
        return false;
    }
    return RunTool(kOpenTool, {file.exists() ? file.absoluteFilePath() : target},
                   kOpenMilliseconds);
}

bool PrintWithSystem(const QString& path) {
    const QFileInfo file(path);
    if (IsUnattended() || !file.isFile() || QStandardPaths::findExecutable(kPrintTool).isEmpty()) {
        return false;
    }
    if (!IsWebPage(file)) {
        return RunTool(kPrintTool, {file.absoluteFilePath()}, kPrintMilliseconds);
    }
    const QTemporaryDir folder;
    const QString pdf = folder.filePath(file.completeBaseName() + ".pdf");
    return WritePagePdf(file.absoluteFilePath(), pdf) &&
           RunTool(kPrintTool, {pdf}, kPrintMilliseconds);
}
