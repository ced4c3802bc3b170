// Moving and compacting the catalogue from the configuration.
#include "config/configdialog.h"
#include "config/storetools.h"
#include "core/settings.h"
#include "editor/productlist.h"
#include "engine/storeengine.h"
#include "forms/configform.h"
#include "forms/mainform.h"
#include "store/corpinfo.h"
#include "store/store.h"
#include "tests/support/boxes.h"
#include "tests/support/files.h"
#include "tests/support/program.h"
#include "tests/support/templatebuilder.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

class StoreTools : public testing::Test {
protected:
    StoreTools() { SetTemplateLangs("ES|EN"); }

    // Presses a tool with `path` as the answer to its question; returns what it told.
    QString Press(int tool, const QString& path = {}) {
        const BoxAnswers boxes;
        const PathChoice choice(path);
        WhenDialogOpens([this, tool] {
            Click(frmConfig->cmdTools[static_cast<std::size_t>(tool)]);
            cancelEnabled = frmConfig->cmdCancel->isEnabled();
            folderShown = frmConfig->txtDBdir->text();
        });
        ShowConfig(kPageAdvanced);
        return boxes.Texts();
    }

    TestProgram program;
    bool cancelEnabled = true;
    QString folderShown;
};

} // namespace

TEST_F(StoreTools, CompactKeepsTheCatalogueAndTheProductOnScreen) {
    Type(frmMain->txtMLFields[0], "Silla nueva");
    EXPECT_EQ(Press(kToolCompact),
              "El Compactado/Reparado de la Base de Datos finalizado con éxito");
    EXPECT_FALSE(cancelEnabled);
    EXPECT_TRUE(QFile::exists(DBpath + "Zandora.zdb.bak"));
    EXPECT_EQ(ListText(), "A-1;Silla nueva;11|B-2;Mesa;2.000|C-3;Banco;30");
    EXPECT_EQ(Press(kToolBackup), "");
}

TEST_F(StoreTools, MoveTakesTheFilesToAnotherFolderAndOnlyThere) {
    const QString old = program.Folder();
    const QTemporaryDir other;
    WriteFile(old + "Pic1000101.dat", "foto");
    SetTemplate(TemplateBuilder().Write(old, "Default.zdt"), 0, 6);
    EXPECT_EQ(Press(kToolMove), "Se ha cancelado la operación de mover la Base de Datos");
    EXPECT_EQ(Press(kToolMove, old.chopped(1)),
              "No se ha movido la Base de Datos, dado que esta ya se "
              "encuentra en el Directorio \n" +
                  old);
    EXPECT_EQ(Press(kToolMove, other.path()),
              "Los archivos de la Base de Datos se han movido con éxito");
    EXPECT_EQ(folderShown, other.path() + '/');
    EXPECT_EQ(DBpath, other.path() + '/');
    EXPECT_EQ(TemplPath, other.path() + "/Default.zdt");
    EXPECT_EQ(ReadFile(other.filePath("Pic1000101.dat")), "foto");
    EXPECT_TRUE(QDir(old).isEmpty(QDir::Files | QDir::Hidden));
    EXPECT_TRUE(StoreOpen);
    EXPECT_EQ(ListRowCount(), 3);
}

TEST_F(StoreTools, ACatalogueThatIsGoneAfterwardsIsAskedFor) {
    const QTemporaryDir other;
    const QString gone = program.Folder() + "Zandora.zdb";
    ASSERT_TRUE(QFile::copy(gone, other.filePath("Zandora.zdb")));
    QFile::remove(gone);
    const QString told = Press(kToolBackup, other.path());
    EXPECT_TRUE(told.startsWith("No se ha podido abrir la Base de Datos.")) << told.toStdString();
    EXPECT_EQ(folderShown, other.path() + '/');
    EXPECT_EQ(DBpath, other.path() + '/');
    EXPECT_EQ(ListRowCount(), 3);
}

TEST_F(StoreTools, AnotherFolderShowsItsCatalogueWithItsCompanyAndLanguages) {
    const QTemporaryDir other;
    ASSERT_TRUE(QFile::copy(program.Folder() + "Zandora.zdb", other.filePath("Zandora.zdb")));
    const auto store = StoreConnection::Open(other.filePath("Zandora.zdb"));
    store->Execute("UPDATE CorpInfo SET Name = 'Otra'; UPDATE Products SET ProductRef = 'Z-9' "
                   "WHERE ProductId = 10001; UPDATE Languages SET Caption = 'Alemán' WHERE "
                   "LangCode = 'EN';");
    WhenDialogOpens([&other] {
        Type(frmConfig->txtDBdir, other.path());
        Click(frmConfig->cmdOK);
    });
    frmMain->mnuConfig[kPageAdvanced]->trigger();
    EXPECT_EQ(DBpath, other.path() + '/');
    EXPECT_TRUE(ListText().startsWith("Z-9;")) << ListText().toStdString();
    EXPECT_EQ(CorpInfoData.Name, "Otra");
    EXPECT_EQ(frmMain->optLang[1]->toolTip(), "Alemán");
}
