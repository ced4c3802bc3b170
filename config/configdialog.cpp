#include "config/configdialog.h"

#include "core/settings.h"
#include "forms/configform.h"
#include "forms/mainform.h"
#include "platform/dialogs.h"
#include "platform/fileops.h"
#include "store/store.h"

namespace {

constexpr int kBrowseStore = 0;

void BrowseStoreFolder() {
    const QString folder =
        BrowseFolder(frmConfig, "Seleccione la Carpeta en la que se almacena la Base de Datos:");
    if (!folder.isEmpty()) {
        frmConfig->txtDBdir->setText(WithSeparator(folder));
    }
}

void ApplyConfig() {
    SetStoreFolder(WithSeparator(frmConfig->txtDBdir->text()));
    frmConfig->cmdCancel->setEnabled(false);
}

void Connect(ConfigForm& form) {
    QObject::connect(form.cmdBrowseDir[kBrowseStore], &QPushButton::clicked, &form,
                     BrowseStoreFolder);
    QObject::connect(form.cmdOK, &QPushButton::clicked, &form, [&form] {
        ApplyConfig();
        SaveSettings();
        form.accept();
    });
    QObject::connect(form.cmdCancel, &QPushButton::clicked, &form, &QDialog::reject);
}

} // namespace

void ShowConfig(int page) {
    ConfigForm form(frmMain);
    Connect(form);
    form.txtDBdir->setText(DBpath);
    form.ShowTab(StoreOpen ? page : kPageAdvanced);
    form.exec();
}
