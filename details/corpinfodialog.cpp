#include "details/corpinfodialog.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "details/about.h"
#include "details/languages.h"
#include "engine/storeerror.h"
#include "forms/corpinfoform.h"
#include "forms/mainform.h"
#include "images/picturefile.h"
#include "platform/controls.h"
#include "platform/dialogs.h"
#include "platform/fileops.h"
#include "platform/shell.h"
#include "publish/generate.h"
#include "store/corpinfo.h"
#include "store/langvalues.h"
#include "store/snapshot.h"
#include "text/dates.h"

namespace {

// A picture is decoded for a frame of at least this size: the window may grow afterwards.
constexpr QSize kPictureShown(640, 480);

// By CompanyPicture: where its copy lies and what the choice is called.
struct PictureChoice {
    const char* file;
    const char* title;
};
constexpr std::array<PictureChoice, 3> kPictures = {
    {{kCorpLogoFile, "Seleccione la imagen de Logotipo"},
     {kExtraPictureFile, "Seleccione la imagen adicional"},
     {kFindUsMapFile, "Seleccione la imagen del Mapa de Situación"}}};

constexpr char kRegistryText[] =
    "(...) inscrita en el Registro Mercantil de %1, Tomo %2, Libro %3, Folio %4, Sección %5, Hoja "
    "%6, Inscripción %7ª";

void UpdateMRPreview(CorpInfoForm& form) {
    QString text = kRegistryText;
    for (std::size_t i = 0; i < form.txtMRInfo.size(); ++i) {
        text.replace("%" + QString::number(i + 1), form.txtMRInfo[i]->text());
    }
    form.lblMRPreview->setText(text);
}

void ShowPicture(CorpInfoForm& form, std::size_t i) {
    const QString name = form.txtPicturePath[i]->text();
    form.imgPicture[i]->clear();
    if (name.isEmpty()) {
        return;
    }
    try {
        const DecodedPicture picture =
            ReadPicture(DBpath + name, form.imgPicture[i]->size().expandedTo(kPictureShown) *
                                           form.devicePixelRatioF());
        form.imgPicture[i]->setPixmap(QPixmap::fromImage(picture.image));
    } catch (const PictureError&) {
        MsgBox("No se puede abrir la imagen.\nCompruebe que el fichero existe, que tiene permisos "
               "de acceso al mismo, y que no está dañado.\nUtilice el botón Cambiar de la barra de "
               "herramientas para seleccionar un fichero válido.",
               BoxIcon::Warning, AppName);
    }
}

void CorpInfoToForm(CorpInfoForm& form) {
    form.txtName->setText(CorpInfoData.Name);
    form.txtCIF->setText(CorpInfoData.CIF);
    form.txtPhone->setText(CorpInfoData.Phone);
    form.txtFax->setText(CorpInfoData.Fax);
    form.txtCellular->setText(CorpInfoData.Cellular);
    form.txtAddress->setText(CorpInfoData.Address);
    form.txtPostalCode->setText(CorpInfoData.PostalCode);
    form.txtZone->setText(CorpInfoData.Zone);
    form.txtContactEmail->setText(CorpInfoData.ContactEmail);
    form.txtPicturePath[kPictureLogo]->setText(CorpInfoData.CorpLogo);
    form.txtPicturePath[kPictureOffices]->setText(CorpInfoData.ExtraPicture);
    form.txtPicturePath[kPictureMap]->setText(CorpInfoData.FindUsMap);
    for (std::size_t line = 0; line < form.txtMRInfo.size(); ++line) {
        form.txtMRInfo[line]->setText(CorpInfoData.MRinfo.at(line));
    }
    form.chkShowAPIlogo->setChecked(ShowAPIlogo);
}

// A save, not only a copy: the record, its row, the setting and the texts on screen.
void FormToCorpInfo(CorpInfoForm& form) {
    CorpInfoRecord record = CorpInfoData;
    record.Name = form.txtName->text();
    record.CIF = form.txtCIF->text();
    record.Phone = form.txtPhone->text();
    record.Fax = form.txtFax->text();
    record.Cellular = form.txtCellular->text();
    record.Address = form.txtAddress->text();
    record.PostalCode = form.txtPostalCode->text();
    record.Zone = form.txtZone->text();
    record.ContactEmail = form.txtContactEmail->text();
    record.CorpLogo = form.txtPicturePath[kPictureLogo]->text();
    record.ExtraPicture = form.txtPicturePath[kPictureOffices]->text();
    record.FindUsMap = form.txtPicturePath[kPictureMap]->text();
    for (std::size_t line = 0; line < form.txtMRInfo.size(); ++line) {
        record.MRinfo.at(line) = form.txtMRInfo[line]->text();
    }
    record.LastUpdate = StoredDateText(Now());
    SaveShowAPIlogo(form.chkShowAPIlogo->isChecked());
    SaveCorpInfo(record);
    SaveCorpLangValues();
}

void SaveForGood(CorpInfoForm& form) {
    FormToCorpInfo(form);
    form.cmdCancel->setEnabled(false);
}

// The box is emptied first, so that the picture is read again even where its name stays.
void cmdBrowse_Click(CorpInfoForm& form, std::size_t i) {
    const QString source = BrowsePicture(&form, kPictures.at(i).title, UIDefPictPath);
    if (source.isEmpty()) {
        return;
    }
    const QString name = kPictures.at(i).file;
    if (FileOperation(FileOp::Copy, {source}, DBpath + name) == 0) {
        form.txtPicturePath[i]->clear();
        form.txtPicturePath[i]->setText(name);
    }
    SaveForGood(form);
}

void cmdDelete_Click(CorpInfoForm& form, std::size_t i) {
    const QString name = form.txtPicturePath[i]->text();
    if (!name.isEmpty()) {
        FileOperation(FileOp::Delete, {DBpath + name}, {});
    }
    form.txtPicturePath[i]->clear();
    SaveForGood(form);
}

void cmdPreview_Click(CorpInfoForm& form, std::size_t i) {
    SiteSnapshot snapshot;
    SaveForGood(form);
    TakeSiteSnapshot(snapshot);
    const PreviewPage shown = i == kPreviewAboutUs ? PreviewPage::AboutUs : PreviewPage::FindUs;
    const QString page = GeneratePreviewPage({shown}, TemplPath, snapshot);
    DropSiteSnapshot(snapshot);
    LoadCorpLangValues();
    if (!OpenWithSystem(page)) {
        MsgBox("No es posible mostrar la Vista Previa. Asegúrese que tiene Internet Explorer 4.0 o "
               "superior instalado en el sistema.",
               BoxIcon::Warning, "Vista Previa de la sección " + form.cmdPreview[i]->text());
    }
}

void MarkLanguage(CorpInfoForm& form) {
    for (QToolButton* button : form.optLang) {
        button->setChecked(Tag(button) == UICurrentLang);
    }
}

void optLang_Click(CorpInfoForm& form, const QToolButton* button) {
    if (!LangButtonsReady || Tag(button) == UICurrentLang) {
        return;
    }
    form.cmdCancel->setEnabled(false);
    try {
        SaveCorpLangValues();
    } catch (const StoreError&) {
        MarkLanguage(form); // the texts on screen stay those of the old language
        throw;
    }
    SetUICurrentLang(Tag(button));
    LoadCorpLangValues();
}

// Accepting makes the next publish a whole one: every page may show the company.
void cmdOK_Click(CorpInfoForm& form) {
    FormToCorpInfo(form);
    SetLastWebUpdate({});
    form.accept();
}

void SelectPage(CorpInfoForm& form, int page) {
    form.ShowTab(page);
    const bool hasTexts = page != kPageRegistry;
    form.fraLang->setVisible(hasTexts && UserLangs.contains(kLanguageSeparator));
}

void ShowLogoBox(CorpInfoForm& form) {
    form.chkShowAPIlogo->setVisible(HasLogoBox());
    form.chkShowAPIlogo->setText(LogoCaption);
}

// The store keeps a fixed number of texts; a box beyond it would lose what is typed into it.
void HideBoxesWithoutText(CorpInfoForm& form) {
    for (std::size_t box = kCorpTexts; box < form.txtMLFields.size(); ++box) {
        form.txtMLFields[box]->hide();
        if (auto* label = form.findChild<QLabel*>("lblMLFields_" + QString::number(box))) {
            label->hide();
        }
    }
}

void ConnectPictures(CorpInfoForm& form) {
    for (std::size_t i = 0; i < kPictures.size(); ++i) {
        QObject::connect(form.txtPicturePath[i], &QLineEdit::textChanged, &form,
                         [&form, i] { ShowPicture(form, i); });
        QObject::connect(form.cmdBrowse[i], &QPushButton::clicked, &form,
                         [&form, i] { cmdBrowse_Click(form, i); });
        QObject::connect(form.cmdDelete[i], &QPushButton::clicked, &form,
                         [&form, i] { cmdDelete_Click(form, i); });
    }
}

void Connect(CorpInfoForm& form) {
    for (int page = 0; page < static_cast<int>(form.lblTab.size()); ++page) {
        const auto select = [&form, page] { SelectPage(form, page); };
        QObject::connect(form.lblTab[page], &QToolButton::clicked, &form, select);
        QObject::connect(form.imgTab[page], &QToolButton::clicked, &form, select);
    }
    for (std::size_t i = 0; i < form.cmdPreview.size(); ++i) {
        QObject::connect(form.cmdPreview[i], &QPushButton::clicked, &form,
                         [&form, i] { cmdPreview_Click(form, i); });
    }
    for (const QLineEdit* line : form.txtMRInfo) {
        QObject::connect(line, &QLineEdit::textChanged, &form, [&form] { UpdateMRPreview(form); });
    }
    for (const QToolButton* button : form.optLang) {
        QObject::connect(button, &QToolButton::clicked, &form,
                         [&form, button] { optLang_Click(form, button); });
    }
    ConnectPictures(form);
    QObject::connect(form.cmdOK, &QPushButton::clicked, &form, [&form] { cmdOK_Click(form); });
    QObject::connect(form.cmdCancel, &QPushButton::clicked, &form, &QDialog::reject);
    QObject::connect(form.cmdHelp, &QPushButton::clicked, &form, OpenManual);
}

} // namespace

void ShowCorpInfo(int page) {
    CorpInfoForm form(frmMain);
    ShowLogoBox(form);
    HideBoxesWithoutText(form);
    Connect(form);
    CorpInfoToForm(form);
    form.lblSectionTitle->setText(
        QStringLiteral("Por ejemplo 'Quiénes somos', 'Información Corporativa', o 'Qué es %1'")
            .replace("%1", form.txtName->text()));
    UpdateMRPreview(form);
    form.cmdCancel->setEnabled(true);
    ArrangeLangButtons(form.fraLang, form.optLang);
    LoadCorpLangValues();
    SelectPage(form, page);
    form.exec();
}
