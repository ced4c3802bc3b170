// Picture records behind the album's boxes; the album itself is tested with its screen.
#include "store/picturerecords.h"

#include "core/settings.h"
#include "engine/storeerror.h"
#include "forms/mainform.h"
#include "forms/picturesform.h"
#include "platform/controls.h"
#include "store/langvalues.h"
#include "store/store.h"
#include "tests/support/boxes.h"
#include "tests/support/files.h"
#include "tests/support/program.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

class PictureRecords : public testing::Test {
protected:
    PictureRecords() : album(frmMain) { LoadPictures(); }

    QString SourceFile(const QByteArray& bytes) {
        return WriteFile(sources.filePath(QString("Foto %1.jpg").arg(++made)), bytes);
    }

    void Add(const std::initializer_list<const char*>& contents) {
        for (const char* bytes : contents) {
            EXPECT_EQ(AddPicture(SourceFile(bytes)), PictureResult::Done);
        }
    }

    // The order, number and file's content of each picture.
    QString Pictures() {
        QStringList rows;
        for (const QString& row :
             Stored("SELECT OrderInForm, PictureId, PicturePath FROM Pictures ORDER BY 1")
                 .split(u'|', Qt::SkipEmptyParts)) {
            rows +=
                row.section(u';', 0, 1) + u';' + ReadFile(program.Folder() + row.section(u';', 2));
        }
        return rows.join(u'|');
    }

    void Show(int position) {
        adcData[kCursorPictures].SetAbsolutePosition(position);
        ShowPictureRecord();
    }

    TestProgram program;
    PicturesForm album;
    QTemporaryDir sources;
    int made = 0;
};

} // namespace

TEST_F(PictureRecords, AddedOnesAreCopiedAndNumberedFromOneAndTheProductIsStampedWithThem) {
    Add({"uno"});
    EXPECT_EQ(Pictures(), "0;1000101;uno");
    EXPECT_EQ(frmPictures->txtPicturePath->text(), "Pic1000101.dat");
    SetControlText(frmPictures->txtMLFields[0], "Vista");
    Add({"dos"});
    EXPECT_EQ(Pictures(), "0;1000101;uno|1;1000102;dos");
    EXPECT_EQ(TextsOf(1000101), "Vista|");
    EXPECT_NE(frmMain->txtLastUpdate->text(), "01/01/2024 10:00:00");
}

TEST_F(PictureRecords, DeletingClosesTheGapAndTheHighestNumberIsGivenAgainWithoutOldTexts) {
    Add({"uno", "dos", "tres"});
    Show(2);
    DeletePicture();
    EXPECT_EQ(Pictures(), "0;1000101;uno|1;1000103;tres");
    EXPECT_FALSE(QFile::exists(program.Folder() + "Pic1000102.dat"));
    Show(2);
    SetControlText(frmPictures->txtMLFields[1], "del borrado");
    SavePictureIfChanged();
    Show(2);
    DeletePicture();
    EXPECT_EQ(Stored("SELECT count(*) FROM MultiLangFields WHERE TableName='Pictures'"), "0");
    ChangeStore("INSERT INTO MultiLangFields VALUES ('Pictures','1000102','ES',0,'de otro')");
    Add({"cuatro"});
    EXPECT_EQ(Pictures(), "0;1000101;uno|1;1000102;cuatro");
    EXPECT_EQ(ControlText(frmPictures->txtMLFields[0]), "");
}

TEST_F(PictureRecords, MovingSwapsTwoPlacesAndFollowsThePicture) {
    Add({"uno", "dos", "tres"});
    Show(3);
    MovePicture(3, 2);
    EXPECT_EQ(Pictures(), "0;1000101;uno|1;1000103;tres|2;1000102;dos");
    EXPECT_EQ(frmPictures->txtPictureId->text(), "1000103");
    EXPECT_EQ(adcData[kCursorPictures].AbsolutePosition(), 2);
}

TEST_F(PictureRecords, TheNinthIsRefusedAndAFileThatCannotBeCopiedLeavesEverythingAsItWas) {
    Add({"x", "x", "x", "x", "x", "x", "x"}); // one fewer than the limit
    Show(2);
    EXPECT_EQ(AddPicture(sources.filePath("falta.jpg")), PictureResult::NotCopied);
    EXPECT_EQ(adcData[kCursorPictures].RecordCount(), 7);
    EXPECT_EQ(frmPictures->txtProdPictureId->text(), "2"); // the one before
    Add({"x"});
    BoxAnswers answers;
    EXPECT_EQ(AddPicture(SourceFile("novena")), PictureResult::LimitReached);
    ASSERT_EQ(answers.seen.size(), 1U);
    EXPECT_EQ(answers.seen[0].text, "No se pueden incluir más de 8 fotografías por Producto");
    EXPECT_EQ(answers.seen[0].title, "Añadir Fotografía");
    EXPECT_EQ(Stored("SELECT count(*) FROM Pictures"), "8");
}

TEST_F(PictureRecords, ADeleteThatTheStoreRefusesKeepsRowTextsAndFile) {
    Add({"uno", "dos"});
    Show(1);
    Refuse("UPDATE ON Pictures");
    EXPECT_THROW(DeletePicture(), StoreError);
    EXPECT_EQ(Pictures(), "0;1000101;uno|1;1000102;dos");
    EXPECT_EQ(frmPictures->txtPictureId->text(), "1000101");
}
