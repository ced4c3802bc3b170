#include "config/storetools.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "editor/productlist.h"
#include "forms/configform.h"
#include "platform/dialogs.h"
#include "platform/fileops.h"
#include "store/fielddefs.h"
#include "store/maintenance.h"
#include "store/store.h"

namespace {

void TellInUse() {
    MsgBox("Otro programa tiene abierta la Base de Datos. Ciérrelo e inténtelo de nuevo.",
           BoxIcon::Warning, AppName);
}

void Compact() {
    const int result = CompactStore(DBpath + DBname);
    if (result == kErrBusy) {
        TellInUse();
    } else if (result != 0) {
        MsgBox("No se ha podido Compactar/Reparar la Dase de Datos", BoxIcon::Warning, AppName);
    } else {
        MsgBox("El Compactado/Reparado de la Base de Datos finalizado con éxito",
               BoxIcon::Information, AppName);
    }
}

void ShowPaths(ConfigForm& form) {
    form.txtDBdir->setText(DBpath);
    form.txtTemplPath->setText(TemplPath);
    form.cmdOK->setEnabled(true);
}

// The dialog is on screen already: where the store is gone, it asks for the folder itself.
void OpenStoreAgain(ConfigForm& form) {
    while (OpenStore() != 0) {
        const QString folder =
            BrowseFolder(&form, "Seleccione la Carpeta en la que se almacena la Base de Datos:");
        if (!folder.isEmpty()) {
            SetStoreFolder(folder);
            ShowPaths(form);
        }
    }
}

void MoveTo(ConfigForm& form, const QString& folder) {
    switch (MoveStoreFiles(folder)) {
    case MoveResult::Moved:
        ShowPaths(form);
        MsgBox("Los archivos de la Base de Datos se han movido con éxito", BoxIcon::Information,
               AppName);
        break;
    case MoveResult::InUse:
        TellInUse();
        break;
    case MoveResult::Failed:
        MsgBox("No se ha podido mover la Base de Datos", BoxIcon::Warning, AppName);
        break;
    }
}

void Move(ConfigForm& form) {
    const QString folder =
        BrowseFolder(&form, "Por favor, indique donde quiere mover la Base de Datos");
    if (folder.isEmpty()) {
        MsgBox("Se ha cancelado la operación de mover la Base de Datos", BoxIcon::Information,
               AppName);
    } else if (WithSeparator(folder) == WithSeparator(DBpath)) {
        MsgBox("No se ha movido la Base de Datos, dado que esta ya se encuentra en el Directorio "
               "\n" +
                   WithSeparator(folder),
               BoxIcon::Information, AppName);
    } else {
        MoveTo(form, folder);
    }
}

// The store is closed while a tool runs and is opened again whatever became of it. The backup
// button has no operation behind it.
void cmdTools_Click(ConfigForm& form, int tool) {
    if (StoreOpen) {
        ReleaseCurrent();
    }
    CloseStore();
    form.cmdCancel->setEnabled(false); // a tool can't be undone
    form.setEnabled(false);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (tool == kToolCompact) {
        Compact();
    } else if (tool == kToolMove) {
        Move(form);
    }
    QGuiApplication::restoreOverrideCursor();
    form.setEnabled(true);
    OpenStoreAgain(form);
    LoadFieldDefs();
    RestartProductList();
}

} // namespace

void ConnectStoreTools(ConfigForm& form) {
    for (int tool = 0; tool < static_cast<int>(form.cmdTools.size()); ++tool) {
        QObject::connect(form.cmdTools[tool], &QPushButton::clicked, &form,
                         [&form, tool] { cmdTools_Click(form, tool); });
    }
}
