// The configuration, opened over a catalogue and worked with clicks and keys.
#include "config/configdialog.h"
#include "core/settings.h"
#include "editor/productlist.h"
#include "forms/configform.h"
#include "forms/mainform.h"
#include "platform/usersettings.h"
#include "store/corpinfo.h"
#include "tests/support/boxes.h"
#include "tests/support/program.h"
#include "tests/support/templatebuilder.h"
#include "transfer/transfer.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <gtest/gtest.h>

namespace {

// Over a small catalogue with three designs: A of five languages and four colour sets, B of one
// language and one featured product, C that is none.
class Config : public testing::Test {
protected:
    Config() {
        TemplateBuilder a;
        a.Name("Alba").Emphasis(4, 2);
        a.Add(21, "ES|EN|DE|FR|CA", "", "");
        a.Add(28, "", "",
              "NUMBERSOFSTYLES=4;COLORSSTYLE1=0000FF,00FF00,FF0000;"
              "COLORSSTYLE2=1,2,3;COLORSSTYLE3=4,5,6;COLORSSTYLE4=7,8,9;");
        a.Write(program.Folder(), "A.zdt");
        TemplateBuilder()
            .Name("Brisa")
            .Emphasis(1, 0)
            .Add(21, "EN", "", "")
            .Write(program.Folder(), "B.zdt");
        SetTemplate(program.Folder() + "A.zdt", 0, 6);
        SetColorSet(1);
        SetStorage(kStorageLocal, program.Folder() + "web");
        SetLastWebUpdate("01/02/2026 10:00:00");
    }

    // Opens the dialog on a page, lets the user act and closes it if he didn't.
    static void Open(int page, const std::function<void()>& act) {
        WhenDialogOpens(act);
        ShowConfig(page);
    }

    static QString Written(const char* section, const char* key) {
        return GetSetting("Lumenta", section, key);
    }

    static QString Ticked() {
        QString marks;
        for (const QCheckBox* box : frmConfig->chkLang) {
            marks += box->isHidden() ? '-' : !box->isEnabled() ? 'x' : box->isChecked() ? '1' : '0';
        }
        return marks;
    }

    TestProgram program;
};

} // namespace

TEST_F(Config, ShowsSettingsAndAcceptingWithoutAChangeKeepsThem) {
    SetFTP("ftp.example.com", "/web", "ana", "clave");
    SetPictureFolder("/fotos");
    SetPassword("secreto");
    SetPortalAccount("", "");
    CorpInfoData.ContactEmail = "ana@example.com";
    Open(kPageDesign, [this] {
        EXPECT_EQ(frmConfig->lstTemplate->count(), 2);
        EXPECT_EQ(frmConfig->txtTemplName->text(), "Alba");
        EXPECT_TRUE(frmConfig->optColorSet[1]->isChecked());
        EXPECT_TRUE(frmConfig->fraTabs[kPagePortal]->isHidden());
        EXPECT_EQ(frmConfig->txtStoragePath->text(), program.Folder() + "web/");
        EXPECT_EQ(frmConfig->txtFTPServer->text(), "ftp.example.com");
        EXPECT_FALSE(frmConfig->txtFTPServer->isEnabled());
        EXPECT_TRUE(frmConfig->txtStoragePath->isEnabled());
        EXPECT_EQ(frmConfig->txtVsUser->text(), "ana@example.com");
        EXPECT_TRUE(frmConfig->cmdCancel->isEnabled());
        EXPECT_TRUE(frmConfig->cmdTools[0]->isEnabled());
        Click(frmConfig->cmdOK);
    });
    EXPECT_EQ(Written("Params", "LastWebUpdate"), "01/02/2026 10:00:00");
    EXPECT_EQ(Written("Params", "FTPPass"), "clave");
    EXPECT_EQ(Written("Params", "UserLangs"), "ES|EN");
    EXPECT_EQ(Written("UI", "UIDefPictPath"), "/fotos/");
    EXPECT_EQ(Written("Vestalia", "VSuser"), "ana@example.com");
    EXPECT_EQ(Written("Templates", "TemplColorSet"), "1");
}

TEST_F(Config, CancelKeepsEverything) {
    Open(kPageHosting, [] {
        Click(frmConfig->optStorageMethod[kStorageFTP]);
        EXPECT_TRUE(frmConfig->cmdCheckFTP->isEnabled());
        EXPECT_FALSE(frmConfig->cmdBrowseDir[2]->isEnabled());
        Type(frmConfig->txtFTPServer, "otro.example.com");
        Click(frmConfig->cmdCancel);
    });
    EXPECT_EQ(StorageMethod, kStorageLocal);
    EXPECT_NE(FTPServer, "otro.example.com");
}

TEST_F(Config, LanguagesAreOneToFourAndTheInitialOneIsAmongThem) {
    const BoxAnswers boxes;
    Open(kPageDesign, [&boxes] {
        EXPECT_EQ(Ticked(), "11000");
        Click(frmConfig->chkLang[2]);
        Click(frmConfig->chkLang[3]);
        EXPECT_EQ(Ticked(), "1111x");
        Click(frmConfig->optDefaultLang[2]);
        Click(frmConfig->chkLang[2]); // the initial one goes: the first takes its place
        EXPECT_EQ(Ticked(), "11010");
        EXPECT_TRUE(frmConfig->optDefaultLang[0]->isChecked());
        EXPECT_TRUE(frmConfig->optDefaultLang[2]->isHidden());
        Click(frmConfig->chkLang[3]);
        Click(frmConfig->chkLang[0]);
        EXPECT_TRUE(frmConfig->optDefaultLang[1]->isChecked());
        EXPECT_EQ(boxes.Texts(), "");
        Click(frmConfig->chkLang[1]);
        QTRY_COMPARE(boxes.Texts(), "Es necesario seleccionar al menos un idioma");
        EXPECT_EQ(Ticked(), "01000");
        Click(frmConfig->cmdOK);
    });
    EXPECT_EQ(UserLangs, "EN");
    EXPECT_EQ(DefaultLang, "EN");
    EXPECT_EQ(UICurrentLang, "EN"); // Spanish is none of the site's any more
    EXPECT_EQ(frmMain->txtMLFields[0]->property("text").toString(), "Chair");
    EXPECT_TRUE(ListText().startsWith("A-1;Chair;")) << ListText().toStdString();
    EXPECT_TRUE(frmMain->fraLang->isHidden());
}

TEST_F(Config, ColourSetsAreShownUpToThreeAndHiddenWithoutAny) {
    Open(kPageDesign, [] {
        EXPECT_TRUE(frmConfig->optColorSet[2]->isVisible());
        const QColor red = frmConfig->shpColors1[0]->grab().toImage().pixelColor(
            frmConfig->shpColors1[0]->rect().center());
        EXPECT_EQ(red, QColor(Qt::red)); // the last two digits
        Click(frmConfig->lblColorSet[2]);
        EXPECT_TRUE(frmConfig->optColorSet[2]->isChecked());
        frmConfig->txtColorSets->setText("1,2,3");
        EXPECT_TRUE(frmConfig->optColorSet[0]->isChecked());
        EXPECT_TRUE(frmConfig->optColorSet[1]->isHidden());
        frmConfig->txtColorSets->setText(" ");
        EXPECT_TRUE(frmConfig->fraColors->isHidden());
        frmConfig->txtColorSets->setText("1,2,3|4,5,6");
        Click(frmConfig->optColorSet[1]);
        Click(frmConfig->cmdOK);
    });
    EXPECT_EQ(TemplColorSet, 1);
    EXPECT_FALSE(LastWebUpdate.isEmpty());
}

TEST_F(Config, AnotherDesignForgetsTheLastPublishAndDemotesBeyondItsLimit) {
    ChangeStore("UPDATE Products SET IsNew = 1");
    RefreshProductList();
    Open(kPageDesign, [] {
        QListWidget* list = frmConfig->lstTemplate;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(1)).center());
        EXPECT_EQ(frmConfig->txtTemplName->text(), "Brisa");
        EXPECT_EQ(Ticked(), "1----");
        EXPECT_EQ(Stored("SELECT count(*) FROM Products WHERE IsNew = 1"), "3");
        Click(frmConfig->cmdOK);
    });
    EXPECT_EQ(LastWebUpdate, "");
    EXPECT_TRUE(TemplPath.endsWith("/B.zdt"));
    EXPECT_EQ(TemplateNum, 1);
    EXPECT_EQ(TemplMaxEmph, 1);
    EXPECT_EQ(Stored("SELECT ProductRef FROM Products WHERE IsNew = 1"), "C-3"); // the youngest
    EXPECT_EQ(Stored("SELECT ProductRef FROM Products WHERE LastUpdate LIKE '2024%'"), "C-3");
    EXPECT_EQ(UserLangs, "EN");
}

TEST_F(Config, TheConnectionTestTakesTheValuesOverAndCannotBeUndone) {
    const BoxAnswers boxes;
    Open(kPageHosting, [&boxes] {
        Click(frmConfig->optStorageMethod[kStorageFTP]);
        Type(frmConfig->txtFTPServer, "host.invalid");
        Click(frmConfig->cmdCheckFTP);
        EXPECT_TRUE(boxes.Texts().contains("'host.invalid'")) << boxes.Texts().toStdString();
        EXPECT_FALSE(frmConfig->cmdCancel->isEnabled());
    });
    EXPECT_EQ(StorageMethod, kStorageFTP);
    EXPECT_EQ(FTPServer, "host.invalid");
}

TEST_F(Config, ASecondPressDoesNotDisturbTheConnectionTest) {
    const BoxAnswers boxes;
    QTcpServer server; // hangs up on everybody
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    FTPControlPort = server.serverPort();
    bool pressed = false;
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        if (!std::exchange(pressed, true)) {
            Click(frmConfig->cmdCheckFTP);
        }
        server.nextPendingConnection()->abort();
    });
    Open(kPageHosting, [] {
        Click(frmConfig->optStorageMethod[kStorageFTP]);
        Type(frmConfig->txtFTPServer, "127.0.0.1");
        Click(frmConfig->cmdCheckFTP);
    });
    FTPControlPort = 21;
    EXPECT_TRUE(pressed);
    EXPECT_EQ(boxes.Texts().toStdString(), "Error al conectar con el servidor FTP '127.0.0.1'. "
                                           "El servidor ha cortado la conexión");
}

TEST_F(Config, FoldersAreChosenAndTheDesignFollowsTheCatalogue) {
    Open(kPageAdvanced, [] {
        PathChoice choice("/srv");
        Click(frmConfig->cmdBrowseDir[1]);
        EXPECT_EQ(choice.title, "Seleccione la Carpeta en la que normalmente almacena las "
                                "Fotografías de Productos:");
        Click(frmConfig->cmdBrowseDir[0]);
        EXPECT_EQ(frmConfig->txtDefPictPath->text(), "/srv/");
        EXPECT_EQ(frmConfig->txtDBdir->text(), "/srv/");
        EXPECT_EQ(frmConfig->txtTemplPath->text(), "/srv/A.zdt");
    });
    Open(kPageAdvanced, [this] {
        const PathChoice cancelled({});
        Click(frmConfig->cmdBrowseDir[0]);
        EXPECT_EQ(frmConfig->txtDBdir->text(), program.Folder());
    });
}

TEST_F(Config, TheFeaturedCompanyCannotBeHadHere) {
    const BoxAnswers boxes;
    Open(kPageDesign, [&boxes] {
        frmConfig->ShowTab(kPagePortal);
        PressKey(frmConfig->chkVsInmoDest, Qt::Key_Space);
        EXPECT_EQ(boxes.Texts(), "Para aparecer como Empresa destacada en Vestalia, contacte con "
                                 "Perlanta al teléfono ");
        EXPECT_FALSE(frmConfig->chkVsInmoDest->isChecked());
    });
}
