#include "details/about.h"

#include "core/addresses.h"
#include "core/flavour.h"
#include "core/settings.h"
#include "core/version.h"
#include "forms/aboutform.h"
#include "forms/mainform.h"
#include "platform/dialogs.h"
#include "platform/shell.h"

namespace {

constexpr char kDescription[] = "Catálogo de productos y generación de su sitio web";

// This platform has no such tool of its own.
void cmdSysInfo_Click() {
    MsgBox("System Information Is Unavailable At This Time", BoxIcon::None, AppName);
}

} // namespace

void OpenManual() {
    const QString manual = AppPath + "Manual " + AppName + ".pdf";
    if (!OpenWithSystem(manual)) {
        MsgBox("No se encuentra el manual: " + manual, BoxIcon::Information, AppName);
    }
}

void ShowAbout() {
    AboutForm form(frmMain);
    form.setWindowTitle("Acerca de " + AppName);
    form.lblTitle->setText(AppName);
    form.lblVersion->setText(" Versión: " + VersionText());
    form.lblDescription->setText(kDescription);
    QObject::connect(form.cmdOK, &QPushButton::clicked, &form, &QDialog::accept);
    QObject::connect(form.cmdSysInfo, &QPushButton::clicked, &form, cmdSysInfo_Click);
    form.exec();
}

void OpenHomePage() {
    if (!Maker.homePage.isEmpty()) {
        OpenWithSystem(Maker.homePage);
    }
}
