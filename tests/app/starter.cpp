// The program as its main() starts it, with a user at hand: each argument is what he does next,
// when a window waits for him. What he sees goes to standard output, a line a window:
//
//   box ICON TITLE: TEXT        answered by "yes", "no" or "ok", which wait for one
//   login TITLE: TEXT           "password=TEXT" types it and presses OK, "cancel"
//   config PAGE                 "folder=PATH" types the catalogue's folder and accepts, "cancel"
//   main TITLE, ...             "reference=TEXT" types over the reference, "minimise", "close";
//                               "publish=PORT" presses the button with an FTP server at that port,
//                               "update=HOST" lets the check for a newer build begin there;
//                               "sending" waits until the first file is on its way; "exit" ends
//                               the process as the toolkit does when the screen goes away
//
// With no more arguments he waits.
#include "app/mainscreen.h"
#include "app/startup.h"
#include "core/addresses.h"
#include "forms/apploginform.h"
#include "forms/configform.h"
#include "forms/mainform.h"
#include "forms/splashform.h"
#include "platform/dialogs.h"
#include "platform/notify.h"
#include "transfer/transfer.h"

#include <QMessageBox>
#include <QTest>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kLookEvery = 5; // milliseconds

QStringList actions;
QString lastSeen;
bool acting = false;
bool started = false;

// "password" of "password=TEXT".
bool TakeText(const QString& action, const char* name, QString& text) {
    const QString start = QString(name) + '=';
    text = action.mid(start.size());
    return action.startsWith(start);
}

void TypeOver(QLineEdit* box, const QString& text) {
    box->setFocus();
    QTest::keySequence(box, QKeySequence::SelectAll);
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, text);
}

QString MainState() {
    return QString("main %1, menu %2, rows %3, other webs %4, refresh %5%6%7")
        .arg(frmMain->windowTitle(), frmMain->mnuActionsC[0]->text())
        .arg(frmMain->productList->RowCount())
        .arg(frmMain->mnuConfig[3]->isVisible() ? "shown" : "hidden",
             frmMain->tmrListRefresh->isActive() ? "on" : "off",
             frmMain->isMaximized() ? ", maximised" : "",
             frmMain->isMinimized() ? ", minimised" : "");
}

// The window that waits for the user; empty while there is none.
QString Seen() {
    QWidget* window = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QMessageBox*>(window)) {
        const QString icon = QVariant::fromValue(box->icon()).toString().toLower();
        return QString("box %1 %2: %3").arg(icon, box->windowTitle(), box->text());
    }
    if (auto* login = qobject_cast<AppLoginForm*>(window)) {
        return "login " + login->windowTitle() + ": " + login->lblTop->text();
    }
    if (auto* config = qobject_cast<ConfigForm*>(window)) {
        return QString("config page %1%2")
            .arg(config->fraMain[2]->isVisible() ? "2" : "other",
                 config->cmdTools[0]->isEnabled() ? "" : ", nothing to move");
    }
    return started && frmMain->isVisible() ? MainState() : QString();
}

void ActOnDialog(QWidget* window, const QString& action) {
    QString text;
    if (auto* box = qobject_cast<QMessageBox*>(window)) {
        box->button(action == "yes"  ? QMessageBox::Yes
                    : action == "no" ? QMessageBox::No
                                     : QMessageBox::Ok)
            ->click();
    } else if (action == "cancel") {
        QTest::keyClick(window, Qt::Key_Escape);
    } else if (auto* login = qobject_cast<AppLoginForm*>(window);
               login != nullptr && TakeText(action, "password", text)) {
        TypeOver(login->txtPassword, text);
        login->cmdOK->click();
    } else if (auto* config = qobject_cast<ConfigForm*>(window);
               config != nullptr && TakeText(action, "folder", text)) {
        TypeOver(config->txtDBdir, text);
        config->cmdOK->click();
    }
}

void Act(const QString& action) {
    QString text;
    acting = false;
    if (QWidget* window = QApplication::activeModalWidget()) {
        ActOnDialog(window, action);
    } else if (TakeText(action, "reference", text)) {
        TypeOver(frmMain->txtProductRef, text);
    } else if (TakeText(action, "publish", text)) {
        FTPControlPort = text.toInt();
        SelectMainTab(kTabPublish);
        frmMain->cmdUpdateWeb[0]->click();
    } else if (TakeText(action, "update", text)) {
        Maker.updateService = text;
        frmMain->tmrUpdate->start(0);
    } else if (action == "minimise") {
        frmMain->showMinimized();
    } else if (action == "close") {
        frmMain->close();
    } else if (action == "exit") {
        std::exit(1);
    }
}

void Look() {
    const QString seen = Seen();
    if (acting || seen.isEmpty()) {
        return;
    }
    const bool answers = QStringList{"yes", "no", "ok"}.contains(actions.value(0));
    if (answers && !seen.startsWith("box")) {
        return;
    }
    if (actions.value(0) == "sending") {
        if (!frmMain->lblInfo->text().startsWith("Enviando")) {
            return;
        }
        actions.removeFirst();
    }
    if (seen != lastSeen || !actions.isEmpty()) {
        std::puts(seen.toUtf8().constData());
        std::fflush(stdout);
    }
    lastSeen = seen;
    if (!actions.isEmpty()) {
        acting = true;
        // After this event: what he does may open the next window.
        QTimer::singleShot(0, qApp, [action = actions.takeFirst()] { Act(action); });
    }
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    Application application(argc, argv);
    actions = QCoreApplication::arguments().mid(1);
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, Look);
    clock.start(kLookEvery);
    LoadToolkitTexts();
    StartProgram();
    started = true;
    return Application::exec();
}
