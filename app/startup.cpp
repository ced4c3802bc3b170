#include "app/startup.h"

#include "app/mainscreen.h"
#include "app/update.h"
#include "app/workflow.h"
#include "config/configdialog.h"
#include "core/flavour.h"
#include "core/settings.h"
#include "core/version.h"
#include "core/vocabulary.h"
#include "details/languages.h"
#include "editor/productlist.h"
#include "forms/apploginform.h"
#include "forms/mainform.h"
#include "forms/splashform.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/instance.h"
#include "platform/process.h"
#include "portal/pool.h"
#include "store/corpinfo.h"
#include "store/fielddefs.h"
#include "store/languages.h"
#include "store/store.h"

namespace {

constexpr int kSmallestWidth = 800; // pixels of the screen
constexpr int kPasswordBlanks = 255;

// For a request to the portal that still goes out when its run is over: milliseconds.
constexpr int kPortalEnd = 3000;

// Set by the password dialog alone: the application password was given correctly.
bool loginPassed = false;

void LoadIcon() {
    const QIcon icon(ProgramFolder() + "zandora.ico");
    // A broken icon must not keep the program from starting.
    if (!icon.isNull() && !icon.availableSizes().isEmpty()) {
        frmMain->setWindowIcon(icon);
    }
}

// Brings what the running program shows to the front: its main window, or the dialog above it.
void RaiseWindow() {
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr) {
        window = frmMain;
    }
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

void ClaimSingleInstance() {
    if (ClaimInstance()) {
        // A run without a user has no window to show: the other start gets no answer.
        if (!IsUnattended()) {
            OnRaiseRequest(RaiseWindow);
        }
        return;
    }
    if (IsUnattended()) {
        MsgBox("El programa ya está abierto. Ciérrelo antes de publicar.", BoxIcon::Warning,
               AppName);
        EndProcess(EXIT_FAILURE);
    }
    if (!RaiseRunningInstance()) {
        MsgBox(
            "El programa ya está en marcha, ocupado o publicando la web sin ventana. Espere a que "
            "termine e inténtelo de nuevo.",
            BoxIcon::Information, AppName);
    }
    EndProcess(EXIT_SUCCESS);
}

void TestScreen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const int width = qRound(screen->size().width() * screen->devicePixelRatio());
    if (width < kSmallestWidth) {
        MsgBox(QStringLiteral("Para ejecutar %1 es necesaria una resolución de al menos 800x600")
                   .arg(AppName),
               BoxIcon::Warning, "Problema con la resolución de pantalla");
        EndProcess(EXIT_FAILURE);
    }
    if (width == kSmallestWidth) {
        frmMain->setWindowState(Qt::WindowMaximized);
    }
}

void TryPassword(AppLoginForm& form) {
    if (form.txtPassword->text() != UIPassword) {
        MsgBox("Contraseña incorrecta", BoxIcon::Warning, AppName);
        return;
    }
    form.txtPassword->setText(QString(kPasswordBlanks, u' '));
    form.txtPassword->clear();
    loginPassed = true;
    form.accept();
}

// Closing the dialog in any other way than by the right password ends the program.
void AskPassword() {
    // A run without a user belongs to the one whose settings hold the password.
    if (UIPassword.isEmpty() || IsUnattended()) {
        return;
    }
    AppLoginForm form(frmMain);
    form.setWindowIcon(frmMain->windowIcon());
    form.setWindowTitle(AppName);
    form.lblTop->setText(form.lblTop->text().replace("%1", AppName));
    QObject::connect(form.cmdOK, &QPushButton::clicked, &form, [&form] { TryPassword(form); });
    QObject::connect(form.cmCancel, &QPushButton::clicked, &form, &QDialog::reject);
    form.exec();
    if (!loginPassed) {
        EndProcess(EXIT_SUCCESS);
    }
}

// May run at any point after the splash is up, also before the store is open.
void tmrByeSplash_Timer() {
    if (StoreOpen) {
        frmMain->show();
    }
    frmSplash->close();
}

void ShowSplash() {
    if (frmSplash == nullptr) {
        auto* splash = new SplashForm;
        splash->setAttribute(Qt::WA_DeleteOnClose);
        splash->setWindowIcon(frmMain->windowIcon());
        splash->lblProduct->setText(AppName + " V" + VersionText());
        QObject::connect(splash->tmrByeSplash, &QTimer::timeout, splash, tmrByeSplash_Timer);
    }
    frmSplash->show();
}

void OpenStoreBehindSplash() {
    ServeEvents();
    ShowSplash();
    ServeEvents();
    while (OpenStore() != 0) {
        ShowConfig(kPageAdvanced);
        ServeEvents();
        ShowSplash();
        ServeEvents();
    }
}

void AddListColumns() {
    frmMain->AddListColumn("ProductRef", "Ref.", 600, false);
    frmMain->AddListColumn("ShortDesc", "Descripción breve", 2325, false);
    frmMain->AddListColumn("PriceAmount", "Precio", 930, true);
}

void ShowCatalogue() {
    LoadLanguages();
    ArrangeLangButtons(frmMain->fraLang, frmMain->optLang);
    LoadCorpInfo();
    AddListColumns();
    LoadFieldDefs();
    RefreshProductList();
    if (MultiUser) {
        frmMain->tmrListRefresh->start();
    }
}

// A store that opens and can't be read all the same (damaged, or of another program) ends the
// start: there is nothing to show.
void OpenCatalogue() {
    OpenStoreBehindSplash();
    try {
        ShowCatalogue();
    } catch (const std::exception& failure) {
        MsgBox(QString::fromUtf8(failure.what()), BoxIcon::Critical, AppName);
        EndProcess(EXIT_FAILURE);
    }
}

void ConnectScreens() {
    ConnectMainScreen();
    ConnectPublish();
    ConnectUpdate();
    QObject::connect(frmMain, &MainForm::Unload, frmMain, EndProgram);
}

} // namespace

void StartProgram() {
    const bool flavoured = LoadFlavour(ProgramFolder());
    new MainForm;
    ConnectScreens();
    if (flavoured) {
        LoadIcon();
    }
    ApplyCaptions(frmMain);
    BuildMessages();
    ClaimSingleInstance();
    frmMain->setWindowTitle(AppName);
    TestScreen();
    LoadSettings();
    AskPassword();
    OpenCatalogue();
    frmMain->mnuConfig[kPagePortal]->setVisible(IsRealEstateFlavour());
    frmMain->show();
    if (frmSplash != nullptr) { // it stays in front for the rest of its time
        frmSplash->raise();
    }
}

void EndProgram(bool& cancel) {
    LeaveMainScreen(cancel);
    if (cancel) {
        return;
    }
    SaveSettings();
    if (PortalGoesOut()) {
        frmMain->hide();
        FinishPortal(kPortalEnd);
    }
    EndProcess(EXIT_SUCCESS);
}
