// The company's dialog, worked with clicks and keys.
#include "core/flavour.h"
#include "core/settings.h"
#include "details/corpinfodialog.h"
#include "forms/corpinfoform.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/corpinfo.h"
#include "tests/support/boxes.h"
#include "tests/support/files.h"
#include "tests/support/program.h"
#include "tests/support/templatebuilder.h"
#include "tests/support/testpictures.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

enum Page { kGeneral = 0, kWebOptions = 2, kRegistry = 3 };

class CorpInfoDialog : public testing::Test {
protected:
    CorpInfoDialog() {
        SetLastWebUpdate("01/02/2026 10:00:00");
        SaveShowAPIlogo(false);
    }

    static void Open(int page, const std::function<void()>& act) {
        WhenDialogOpens(act);
        ShowCorpInfo(page);
    }

    static QString Texts(const QString& lang) {
        return Stored("SELECT FieldDefId, FieldValue FROM MultiLangFields WHERE "
                      "TableName='CorpInfo' AND LangCode='" +
                      lang + "' AND FieldValue<>'' ORDER BY FieldDefId");
    }

    TestProgram program;
};

} // namespace

TEST_F(CorpInfoDialog, AcceptingSavesRowTextsAndSettingAndForgetsTheLastPublish) {
    Open(kGeneral, [] {
        EXPECT_TRUE(frmCorpInfo->chkShowAPIlogo->isHidden());
        Type(frmCorpInfo->txtName, "Encina y Barro");
        Type(frmCorpInfo->txtMLFields[0], "Somos alfareros");
        EXPECT_TRUE(frmCorpInfo->cmdCancel->isEnabled());
        Click(frmCorpInfo->cmdOK);
    });
    EXPECT_EQ(Stored("SELECT Name, LastUpdate IS NOT NULL FROM CorpInfo"), "Encina y Barro;1");
    EXPECT_EQ(Texts("ES"), "0;Somos alfareros");
    EXPECT_EQ(CorpInfoData.Name, "Encina y Barro");
    EXPECT_EQ(LastWebUpdate, "");
    Open(kWebOptions, [] {
        EXPECT_EQ(frmCorpInfo->txtName->text(), "Encina y Barro");
        EXPECT_EQ(frmCorpInfo->lblSectionTitle->text(),
                  "Por ejemplo 'Quiénes somos', 'Información Corporativa', o 'Qué es Encina y "
                  "Barro'");
    });
}

TEST_F(CorpInfoDialog, CancelUndoesWhatWasTypedButNotAnotherLanguage) {
    Open(kGeneral, [] {
        Type(frmCorpInfo->txtName, "Nadie");
        Type(frmCorpInfo->txtMLFields[0], "Nada");
        Click(frmCorpInfo->cmdCancel);
    });
    EXPECT_EQ(Stored("SELECT Name FROM CorpInfo"), "");
    EXPECT_EQ(Texts("ES"), "");
    Open(kGeneral, [] {
        Type(frmCorpInfo->txtMLFields[0], "Hola");
        Click(frmCorpInfo->optLang[1]);
        EXPECT_FALSE(frmCorpInfo->cmdCancel->isEnabled());
        EXPECT_EQ(ControlText(frmCorpInfo->txtMLFields[0]), "");
        Type(frmCorpInfo->txtMLFields[0], "Hello");
        Click(frmCorpInfo->cmdOK);
    });
    EXPECT_EQ(Texts("ES"), "0;Hola");
    EXPECT_EQ(Texts("EN"), "0;Hello");
}

TEST_F(CorpInfoDialog, TheAssociationsBoxBearsTheFlavoursCaption) {
    LogoCaption = "Colegio de Agentes";
    Open(kGeneral, [] {
        EXPECT_TRUE(frmCorpInfo->chkShowAPIlogo->isVisible());
        EXPECT_EQ(frmCorpInfo->chkShowAPIlogo->text(), "Colegio de Agentes");
        PressKey(frmCorpInfo->chkShowAPIlogo, Qt::Key_Space);
        Click(frmCorpInfo->cmdOK);
    });
    EXPECT_TRUE(ShowAPIlogo);
    LogoCaption = "[N/A]";
}

TEST_F(CorpInfoDialog, TheRegistrysTextIsReplacedInTurn) {
    Open(kRegistry, [] {
        Type(frmCorpInfo->txtMRInfo[1], "12");
        Type(frmCorpInfo->txtMRInfo[0], "Rioja %2");
        EXPECT_EQ(frmCorpInfo->lblMRPreview->text(),
                  "(...) inscrita en el Registro Mercantil de Rioja 12, Tomo 12, Libro , Folio , "
                  "Sección , Hoja , Inscripción ª");
    });
}

TEST_F(CorpInfoDialog, PicturesAreFinalAtOnceWhateverTheirFormat) {
    const QString source =
        WriteFile(program.Folder() + "mi logo.jpg", MakeJpeg(FourFields({80, 60})));
    const QString damaged = WriteFile(program.Folder() + "roto.jpg", "hola");
    BoxAnswers boxes;
    Open(kGeneral, [&] {
        {
            const PathChoice choice(source);
            Click(frmCorpInfo->cmdBrowse[0]);
            EXPECT_EQ(choice.title, "Seleccione la imagen de Logotipo");
        }
        EXPECT_EQ(frmCorpInfo->txtPicturePath[0]->text(), "CorpLogo.dat");
        EXPECT_FALSE(frmCorpInfo->imgPicture[0]->pixmap(Qt::ReturnByValue).isNull());
        EXPECT_FALSE(frmCorpInfo->cmdCancel->isEnabled());
        EXPECT_EQ(Stored("SELECT CorpLogo FROM CorpInfo"), "CorpLogo.dat");
        EXPECT_EQ(boxes.Texts(), "");
        const PathChoice choice(damaged);
        Click(frmCorpInfo->cmdBrowse[0]);
    });
    EXPECT_EQ(boxes.Texts(),
              "No se puede abrir la imagen.\nCompruebe que el fichero existe, que tiene permisos "
              "de acceso al mismo, y que no está dañado.\nUtilice el botón Cambiar de la barra de "
              "herramientas para seleccionar un fichero válido.");
    EXPECT_TRUE(QFile::exists(program.Folder() + "CorpLogo.dat"));
    boxes.seen.clear();
    Open(kGeneral, [] { Click(frmCorpInfo->cmdDelete[0]); });
    EXPECT_FALSE(QFile::exists(program.Folder() + "CorpLogo.dat"));
    EXPECT_EQ(Stored("SELECT CorpLogo FROM CorpInfo"), "");
}

TEST_F(CorpInfoDialog, APreviewSavesFirstAndIsOpenedOrTellsThatItCannotBe) {
    const DesktopTools tools({"xdg-open"});
    SetTemplate(TemplateBuilder()
                    .Add(8, "quienes.html", "", "<p>%%CORPINFO.NAME%%</p>")
                    .Add(21, "ES|EN", "", "")
                    .Write(program.Folder()),
                0, 6);
    const BoxAnswers boxes;
    Open(kWebOptions, [] {
        Type(frmCorpInfo->txtName, "Encina");
        Click(frmCorpInfo->cmdPreview[0]);
        EXPECT_FALSE(frmCorpInfo->cmdCancel->isEnabled());
        Click(frmCorpInfo->cmdPreview[1]); // the design has no such page
    });
    EXPECT_EQ(Stored("SELECT Name FROM CorpInfo"), "Encina");
    EXPECT_EQ(tools.Said("xdg-open"), (program.Folder() + "temp/quienes.html").toUtf8());
    EXPECT_TRUE(tools.Got("xdg-open").endsWith("<p>Encina</p>"));
    ASSERT_EQ(boxes.seen.size(), 1U);
    EXPECT_EQ(boxes.seen[0].title, "Vista Previa de la sección Sección 'Cómo llegar'");
    EXPECT_EQ(boxes.seen[0].text,
              "No es posible mostrar la Vista Previa. Asegúrese que tiene Internet Explorer 4.0 o "
              "superior instalado en el sistema.");
}
