#include "config/configdialog.h"

#include "config/designpage.h"
#include "config/storetools.h"
#include "core/addresses.h"
#include "core/flavour.h"
#include "core/settings.h"
#include "core/vocabulary.h"
#include "details/about.h"
#include "details/languages.h"
#include "editor/productlist.h"
#include "forms/configform.h"
#include "forms/mainform.h"
#include "platform/dialogs.h"
#include "platform/fileops.h"
#include "platform/shell.h"
#include "publish/ftp.h"
#include "store/corpinfo.h"
#include "store/products.h"
#include "store/store.h"
#include "transfer/transfer.h"

#include <QScopedValueRollback>

namespace {

enum BrowseButton { kBrowseStore = 0, kBrowsePictures = 1, kBrowseSite = 2 };

// The connection is being checked: an impatient second press must not cut the check short.
bool checking = false;

constexpr char kMaker[] = "Perlanta";
constexpr char kFeaturedCount[] = "SELECT count(*) FROM Products WHERE IsNew = 1";

QString Named(QString text) {
    return text.replace("%1", VSname).replace("%2", kMaker);
}

void FillTexts(ConfigForm& form) {
    for (QLabel* label : form.lblHelp) {
        label->setText(Named(label->text()));
    }
    form.chkNoVS->setText(Named(form.chkNoVS->text()));
    form.txtVsUser->setToolTip(Named(form.txtVsUser->toolTip()));
    form.txtVsPass->setToolTip(Named(form.txtVsPass->toolTip()));
    form.lblHelp_3->setText(VSurl);
}

void EnableStorage(ConfigForm& form) {
    const bool local = form.optStorageMethod[kStorageLocal]->isChecked();
    for (QWidget* control :
         {static_cast<QWidget*>(form.lblStoragePath), static_cast<QWidget*>(form.txtStoragePath),
          static_cast<QWidget*>(form.cmdBrowseDir[kBrowseSite])}) {
        control->setEnabled(local);
    }
    for (QWidget* control :
         {static_cast<QWidget*>(form.lblFTPServer), static_cast<QWidget*>(form.txtFTPServer),
          static_cast<QWidget*>(form.lblFTPPath), static_cast<QWidget*>(form.txtFTPPath),
          static_cast<QWidget*>(form.lblFTPUser), static_cast<QWidget*>(form.txtFTPUser),
          static_cast<QWidget*>(form.lblFTPPass), static_cast<QWidget*>(form.txtFTPPass),
          static_cast<QWidget*>(form.lblDiagnostics), static_cast<QWidget*>(form.lblInfo),
          static_cast<QWidget*>(form.cmdCheckFTP)}) {
        control->setEnabled(!local);
    }
}

void FillSettings(ConfigForm& form) {
    form.optStorageMethod[StorageMethod == kStorageFTP ? kStorageFTP : kStorageLocal]->setChecked(
        true);
    form.txtFTPServer->setText(FTPServer);
    form.txtFTPPath->setText(FTPPath);
    form.txtFTPUser->setText(FTPUser);
    form.txtFTPPass->setText(FTPPass);
    form.txtStoragePath->setText(StoragePath);
    form.txtDBdir->setText(DBpath);
    form.txtDefPictPath->setText(UIDefPictPath);
    form.txtUIPassword->setText(UIPassword);
    form.txtVsUser->setText(VSuser.isEmpty() ? CorpInfoData.ContactEmail : VSuser);
    form.txtVsPass->setText(VSpass);
    EnableStorage(form);
}

void ApplyLanguages(const ConfigForm& form) {
    const QString before = DefaultLang;
    const LanguageChoice choice = ChosenLanguages(form);
    SetUserLangs(choice.userLangs, choice.defaultLang);
    if (DefaultLang != before) {
        ChangeListLanguage(before, DefaultLang);
    }
    if (!UserLangs.split(kLanguageSeparator).contains(UICurrentLang)) {
        ReturnToLanguage(DefaultLang);
    }
}

void ApplyConfig(ConfigForm& form) {
    if (form.txtTemplPath->text() != TemplPath) {
        SetLastWebUpdate({}); // another design is another site
    }
    SetStoreFolder(form.txtDBdir->text());
    SetTemplate(form.txtTemplPath->text(), form.lstTemplate->currentRow(),
                form.txtTemplMaxEmph->text().toInt());
    SetColorSet(ChosenColorSet(form));
    SetStorage(form.optStorageMethod[kStorageFTP]->isChecked() ? kStorageFTP : kStorageLocal,
               form.txtStoragePath->text());
    SetFTP(form.txtFTPServer->text(), form.txtFTPPath->text(), form.txtFTPUser->text(),
           form.txtFTPPass->text());
    SetPictureFolder(form.txtDefPictPath->text());
    SetPassword(form.txtUIPassword->text());
    if (StoreOpen) {
        ApplyLanguages(form);
    }
    SetPortalAccount(form.txtVsUser->text(), form.txtVsPass->text());
    form.cmdCancel->setEnabled(false);
}

int FeaturedInStore() {
    RunQuery(kCursorScratch, kFeaturedCount);
    return static_cast<int>(CellInteger(adcData[kCursorScratch].Value(0)));
}

// A design with fewer featured products: the oldest ones give way.
void DemoteBeyondLimit() {
    bool demoted = false;
    for (int featured = FeaturedInStore(); featured > TemplMaxEmph; --featured) {
        DemoteOldestFeatured();
        demoted = true;
    }
    if (demoted) {
        RefreshProductList();
    }
}

void cmdOK_Click(ConfigForm& form) {
    ApplyConfig(form);
    SaveSettings();
    if (StoreOpen) {
        ArrangeLangButtons(frmMain->fraLang, frmMain->optLang);
        DemoteBeyondLimit();
    }
    form.accept();
}

void cmdCheckFTP_Click(ConfigForm& form) {
    if (checking) {
        return;
    }
    const QScopedValueRollback<bool> check(checking, true);
    ApplyConfig(form);
    if (ConnectFTP()) {
        MsgBox("Prueba de conexión finalizada con éxito.", BoxIcon::Information,
               form.cmdCheckFTP->text());
    }
    ineFTPSend().Cancel();
}

void cmdBrowseDir_Click(ConfigForm& form, int index) {
    const std::array<QString, 3> titles = {
        QStringLiteral("Seleccione la Carpeta en la que se almacena la Base de Datos:"),
        Messages[kMessagePictureFolder],
        QStringLiteral("Seleccione la Carpeta en la que se almacenará su Página Web:")};
    const std::array<QLineEdit*, 3> boxes = {form.txtDBdir, form.txtDefPictPath,
                                             form.txtStoragePath};
    const QString folder = BrowseFolder(&form, titles.at(index));
    if (folder.isEmpty()) {
        return;
    }
    boxes.at(index)->setText(WithSeparator(folder));
    if (index == kBrowseStore) {
        const QString name = form.txtTemplPath->text().section(u'/', -1);
        form.txtTemplPath->setText(WithSeparator(folder) + name);
    }
}

// The option can't be had here: the maker has to be asked.
void chkVsInmoDest_Click(ConfigForm& form) {
    if (!form.chkVsInmoDest->isChecked()) {
        return;
    }
    MsgBox(Named("Para aparecer como Empresa destacada en %1, contacte con ") + kMaker +
               " al teléfono " + Maker.telephone,
           BoxIcon::Information, "Empresa destacada");
    form.chkVsInmoDest->setChecked(false);
}

void cmdTemplates_Click(int index) {
    if (index == 0 && !Maker.designMail.isEmpty()) {
        OpenWithSystem("mailto:" + Maker.designMail +
                       "?subject=Solicitud de Información sobre Plantillas de Diseño"
                       "&body=(Escriba aquí su consulta)");
    } else if (index != 0 && !Maker.designPage.isEmpty()) {
        OpenWithSystem(Maker.designPage);
    }
}

// The other pages need the store.
void SelectPage(ConfigForm& form, int page) {
    if (page == kPageAdvanced || StoreOpen) {
        form.ShowTab(page);
    }
}

void ConnectPages(ConfigForm& form) {
    for (int page = 0; page < static_cast<int>(form.lblTab.size()); ++page) {
        const auto select = [&form, page] { SelectPage(form, page); };
        QObject::connect(form.lblTab[page], &QToolButton::clicked, &form, select);
        QObject::connect(form.imgTab[page], &QToolButton::clicked, &form, select);
    }
}

void ConnectButtons(ConfigForm& form) {
    for (int index = 0; index < static_cast<int>(form.cmdBrowseDir.size()); ++index) {
        QObject::connect(form.cmdBrowseDir[index], &QPushButton::clicked, &form,
                         [&form, index] { cmdBrowseDir_Click(form, index); });
    }
    for (int index = 0; index < static_cast<int>(form.cmdTemplates.size()); ++index) {
        QObject::connect(form.cmdTemplates[index], &QPushButton::clicked, &form,
                         [index] { cmdTemplates_Click(index); });
    }
    for (QRadioButton* option : form.optStorageMethod) {
        QObject::connect(option, &QRadioButton::toggled, &form, [&form] { EnableStorage(form); });
    }
    QObject::connect(form.cmdCheckFTP, &QPushButton::clicked, &form,
                     [&form] { cmdCheckFTP_Click(form); });
    QObject::connect(form.chkVsInmoDest, &QCheckBox::clicked, &form,
                     [&form] { chkVsInmoDest_Click(form); });
    QObject::connect(form.lblHelp_3, &QPushButton::clicked, &form, [&form] {
        if (!form.lblHelp_3->text().isEmpty()) {
            OpenWithSystem("http://" + form.lblHelp_3->text());
        }
    });
    QObject::connect(form.cmdOK, &QPushButton::clicked, &form, [&form] { cmdOK_Click(form); });
    QObject::connect(form.cmdCancel, &QPushButton::clicked, &form, &QDialog::reject);
    QObject::connect(form.cmdHelp, &QPushButton::clicked, &form, OpenManual);
}

} // namespace

void ShowConfig(int page) {
    ConfigForm form(frmMain);
    ConnectPages(form);
    ConnectButtons(form);
    ConnectDesignPage(form);
    ConnectStoreTools(form);
    form.fraTabs[kPagePortal]->setVisible(IsRealEstateFlavour());
    FillTexts(form);
    FillDesignPage(form);
    FillSettings(form);
    form.cmdTools[kToolMove]->setEnabled(StoreOpen);
    form.ShowTab(StoreOpen ? page : kPageAdvanced);
    form.exec();
}
