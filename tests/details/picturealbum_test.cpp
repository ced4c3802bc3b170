// The album, opened from the main form over real picture files.
#include "details/picturealbum.h"

#include "core/settings.h"
#include "forms/mainform.h"
#include "forms/picturesform.h"
#include "platform/controls.h"
#include "store/store.h"
#include "tests/support/boxes.h"
#include "tests/support/files.h"
#include "tests/support/program.h"
#include "tests/support/testpictures.h"

#include <QScreen>
#include <gtest/gtest.h>

namespace {

constexpr char kThreePictures[] = R"(
    picture; 10001; 1; 0
    picture; 10001; 2; 1
    picture; 10001; 3; 2)";

QByteArray Jpeg() {
    return MakeJpeg(FourFields(QSize(64, 48)));
}

class Album : public testing::Test {
protected:
    explicit Album(const QString& pictures = kThreePictures)
        : program(QString(kSmallCatalogue) + pictures) {
        for (int number = 1; number <= 3; ++number) {
            WriteFile(program.Folder() + QString("Pic%1.dat").arg(1000100 + number), Jpeg());
        }
    }

    // The album comes up, loads its pictures, and `act` runs.
    static void Open(const std::function<void()>& act) {
        WhenDialogOpens(act);
        Click(frmMain->cmdPictures);
    }

    TestProgram program;
};

QString Names() {
    QStringList names;
    for (const PictureBox* slot : frmPictures->imgPicPreview) {
        names += Tag(slot).mid(8, 2);
    }
    return names.join(' ').trimmed();
}

QString Enabled() {
    QStringList keys;
    for (const char* key : {"Add", "Del", "Change", "MoveUp", "MoveDn"}) {
        if (frmPictures->Button(key)->isEnabled()) {
            keys += key;
        }
    }
    return keys.join(' ');
}

int Selected() {
    for (int slot = 0; slot < int(frmPictures->shpPicPreview.size()); ++slot) {
        if (frmPictures->shpPicPreview[slot]->property("selected").toBool()) {
            return slot;
        }
    }
    return -1;
}

} // namespace

TEST_F(Album, SelectingEnablesWhatIsPossibleAndTextsAreKeptPerPicture) {
    Open([] {
        EXPECT_EQ(frmPictures->windowTitle(), "Fotografías - A-1");
        EXPECT_LE(frmPictures->frameGeometry().width(), frmPictures->screen()->size().width());
        EXPECT_EQ(Names(), "01 02 03");
        EXPECT_EQ(Enabled(), "Add Del Change MoveDn");
        Type(frmPictures->txtMLFields[0], "Frente");
        Click(frmPictures->lblClickArea[2]);
        EXPECT_EQ(Enabled(), "Add Del Change MoveUp");
        EXPECT_EQ(ControlText(frmPictures->txtMLFields[0]), "");
        Click(frmPictures->lblClickArea[5]); // an empty slot
        EXPECT_EQ(Selected(), 2);
        Click(frmPictures->optLang[1]);
        Type(frmPictures->txtMLFields[0], "Back");
    });
    EXPECT_EQ(UICurrentLang, "ES");
    EXPECT_EQ(ControlText(frmMain->txtMLFields[0]), "Silla");
    ClickRow(1);
    EXPECT_EQ(Stored("SELECT ItemId, LangCode, FieldValue FROM MultiLangFields WHERE "
                     "TableName='Pictures' AND FieldValue<>''"),
              "1000101;ES;Frente|1000103;EN;Back");
    EXPECT_NE(Stored("SELECT LastUpdate FROM Products WHERE ProductId=10001"),
              "2024-01-01T10:00:00");
}

TEST_F(Album, DeletingTheSecondOfThreeSelectsTheFirst) {
    Open([] {
        Click(frmPictures->lblClickArea[1]);
        BoxAnswers answers(QMessageBox::Yes);
        frmPictures->Button("Del")->trigger();
        EXPECT_EQ(answers.Texts(), "¿Confirma que desea eliminar la fotografía?");
        EXPECT_EQ(Names(), "01 03");
        EXPECT_EQ(Selected(), 0);
    });
    EXPECT_EQ(frmMain->txtPicture->text(), "Este Producto tiene 2 fotografias asociadas");
    EXPECT_TRUE(DeletedItems.contains("I1000102"));
}

TEST_F(Album, MovingAndDraggingCarryThePictureToItsPlace) {
    Open([] {
        frmPictures->Button("MoveDn")->trigger();
        EXPECT_EQ(Names(), "02 01 03");
        EXPECT_EQ(Selected(), 1);
        emit frmPictures->lblClickArea[6]->Dropped(frmPictures->lblClickArea[0]);
        EXPECT_EQ(Names(), "01 03 02"); // beyond the last one: the last place
        EXPECT_EQ(Selected(), 2);
        emit frmPictures->lblClickArea[0]->Dropped(frmPictures->lblClickArea[2]);
        EXPECT_EQ(Names(), "02 01 03");
    });
    EXPECT_EQ(Stored("SELECT ProdPictureId FROM Pictures ORDER BY OrderInForm"), "2|1|3");
}

TEST_F(Album, DroppedFilesAreJudgedByTheirEndingAndTheLimitStopsThem) {
    Open([this] {
        BoxAnswers answers;
        QStringList files = {program.Folder() + "notas.tiff"};
        for (const char* name : {"a.jpg", "b.JPEG", "c.jp", "d.jpg", "e.jpg", "f.jpg", "g.jpg"}) {
            WriteFile(program.Folder() + name, Jpeg());
            files += program.Folder() + name;
        }
        emit frmPictures->lblOleDropZone->FilesDropped(files);
        EXPECT_EQ(Names(), "01 02 03 04 05 06 07 08");
        EXPECT_EQ(answers.Texts(), "No se pueden incluir más de 8 fotografías por Producto");
        EXPECT_EQ(Enabled(), "Del Change MoveUp");
    });
    EXPECT_EQ(frmMain->txtPicture->text(), "Este Producto tiene 8 fotografias asociadas");
}

TEST_F(Album, ADamagedPictureIsToldOnceAndStaysUntilItIsChanged) {
    WriteFile(program.Folder() + "Pic1000102.dat", "no es una foto");
    WriteFile(program.Folder() + "Pic1000103.dat", Jpeg() + QByteArray(2049 - Jpeg().size(), '\0'));
    BoxAnswers answers(QMessageBox::Yes);
    Open([&answers] {
        EXPECT_EQ(answers.seen.size(), 1U);
        EXPECT_TRUE(answers.Texts().endsWith("Utilice el botón Cambiar de la barra de herramientas "
                                             "para seleccionar un fichero válido."));
        Click(frmPictures->lblClickArea[1]);
        EXPECT_EQ(frmPictures->txtPicFileSize->text(), "?");
        EXPECT_EQ(frmPictures->imgPicPreview[1]->toolTip(), "Fotografía dañada o inaccesible");
        Click(frmPictures->lblClickArea[2]);
        EXPECT_EQ(frmPictures->txtPicFileSize->text(), "3"); // 2049 bytes, in whole KB
        Click(frmPictures->lblClickArea[0]);
        frmPictures->Button("Del")->trigger();
        EXPECT_EQ(Names(), "02 03");
    });
    EXPECT_EQ(answers.seen.size(), 2U); // and the question of the delete
}

TEST_F(Album, AnAlbumThatCannotBeSavedIsLeftOnlyIfTheUserWants) {
    BoxAnswers answers(QMessageBox::Yes);
    Open([] {
        Type(frmPictures->txtMLFields[0], "Frente");
        Refuse("UPDATE ON Pictures");
    });
    ASSERT_EQ(answers.seen.size(), 1U);
    EXPECT_TRUE(answers.Texts().endsWith("¿Desea salir sin guardarlos?"));
}

TEST_F(Album, ThePanelShowsAPicturesTitleInTheOtherLanguage) {
    Open([] {
        Type(frmPictures->txtMLFields[0], "Frente");
        Click(frmPictures->optLang[1]);
        frmPictures->txtMLFields[1]->setFocus();
        frmPictures->txtMLFields[0]->setFocus();
        EXPECT_TRUE(frmPictures->fraLangAssist->isVisible());
        EXPECT_EQ(frmPictures->lblToTranslate->text(), "Frente");
    });
}

TEST(AlbumWithoutPictures, OnlyAddIsEnabled) {
    const TestProgram program;
    WhenDialogOpens([] {
        EXPECT_EQ(Enabled(), "Add");
        EXPECT_EQ(frmPictures->txtPicFileSize->text(), "0");
        EXPECT_FALSE(frmPictures->txtMLFields[0]->isEnabled());
    });
    Click(frmMain->cmdPictures);
}
