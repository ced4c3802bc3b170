// Saves that the disk refuses: the user is told, the boxes keep what was typed, and the next save
// brings all of it to the store.
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/store.h"
#include "tests/support/boxes.h"
#include "tests/support/program.h"

#include <QFileInfo>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

// No file of the process can grow beyond what a lone journal header needs, while it lives: what a
// full disk does to the store.
class FullDisk {
public:
    FullDisk() {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit none = before;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }

private:
    rlimit before = {};
};

void Refuse(const QString& table) {
    ChangeStore("CREATE TRIGGER refusal BEFORE UPDATE ON " + table +
                " BEGIN SELECT RAISE(ABORT, 'refused'); END");
}

void Permit() {
    ChangeStore("DROP TRIGGER refusal");
}

} // namespace

TEST(SaveFailure, AFullDiskIsToldAndTheProductStaysWithWhatWasTyped) {
    const TestProgram program;
    Type(frmMain->txtFields[0], "rosa");
    Type(frmMain->txtMLFields[0], "Butaca");
    {
        BoxAnswers answers;
        const FullDisk full;
        ClickRow(1);
        ASSERT_EQ(answers.seen.size(), 1U);
        EXPECT_FALSE(answers.seen[0].text.isEmpty());
    }
    EXPECT_EQ(frmMain->SelectedRow(), 0);
    EXPECT_EQ(frmMain->txtProductRef->text(), "A-1");
    EXPECT_EQ(frmMain->txtFields[0]->text(), "rosa");
    EXPECT_EQ(ControlText(frmMain->txtMLFields[0]), "Butaca");
    ClickRow(1);
    EXPECT_EQ(frmMain->SelectedRow(), 1);
    EXPECT_EQ(Stored("SELECT FieldValue FROM ProductFields WHERE ProductId=10001 AND FieldDefId=0"),
              "rosa");
    EXPECT_EQ(Stored("SELECT FieldValue FROM MultiLangFields WHERE ItemId='10001' AND FieldDefId=0 "
                     "AND LangCode='ES'"),
              "Butaca");
}

TEST(SaveFailure, AtEachOfTheThreeCommitsTheNextSaveWritesAll) {
    for (const char* table : {"ProductFields", "MultiLangFields", "Products"}) {
        const TestProgram program;
        BoxAnswers answers;
        Type(frmMain->txtPriceAmount, "77");
        Type(frmMain->txtFields[0], "rosa");
        Type(frmMain->txtMLFields[0], "Butaca");
        Refuse(table);
        ClickRow(1);
        EXPECT_EQ(answers.seen.size(), 1U) << table;
        Permit();
        ClickRow(1);
        EXPECT_EQ(Stored("SELECT PriceAmount, FieldValue FROM Products p, ProductFields f WHERE "
                         "p.ProductId=10001 AND f.ProductId=p.ProductId AND FieldDefId=0"),
                  "77;rosa")
            << table;
        EXPECT_EQ(Stored("SELECT FieldValue FROM MultiLangFields WHERE ItemId='10001' AND "
                         "FieldDefId=0 AND LangCode='ES'"),
                  "Butaca")
            << table;
    }
}

TEST(SaveFailure, ALanguageThatCannotBeSavedIsNotLeft) {
    const TestProgram program;
    BoxAnswers answers;
    Type(frmMain->txtMLFields[0], "Butaca");
    Refuse("MultiLangFields");
    Click(frmMain->optLang[1]);
    EXPECT_EQ(answers.seen.size(), 1U);
    EXPECT_TRUE(frmMain->optLang[0]->isChecked());
    EXPECT_EQ(ControlText(frmMain->txtMLFields[0]), "Butaca");
    Permit();
    Click(frmMain->optLang[1]);
    Click(frmMain->optLang[0]);
    EXPECT_EQ(ControlText(frmMain->txtMLFields[0]), "Butaca");
}

TEST(SaveFailure, AddingAndDeletingDoAllOrNothing) {
    const TestProgram program;
    const QString before = Stored("SELECT count(*) FROM ProductFields");
    BoxAnswers answers(QMessageBox::Yes);
    ChangeStore("CREATE TRIGGER refusal BEFORE INSERT ON ProductFields BEGIN SELECT "
                "RAISE(ABORT,'no'); END");
    ClickTool("Add");
    EXPECT_EQ(Stored("SELECT count(*) FROM Products"), "3");
    EXPECT_EQ(frmMain->txtProductRef->text(), "A-1");
    EXPECT_EQ(ListRowCount(), 3);
    Permit();
    ChangeStore(
        "CREATE TRIGGER refusal BEFORE DELETE ON MultiLangFields BEGIN SELECT RAISE(ABORT,'no'); "
        "END");
    ClickTool("Del");
    EXPECT_EQ(Stored("SELECT count(*) FROM Products"), "3");
    EXPECT_EQ(Stored("SELECT count(*) FROM ProductFields"), before);
    EXPECT_EQ(ListRowCount(), 3);
    Permit();
    Type(frmMain->txtFields[0], "rosa"); // still a product that can be edited
    ClickRow(1);
    EXPECT_EQ(Stored("SELECT FieldValue FROM ProductFields WHERE ProductId=10001 AND FieldDefId=0"),
              "rosa");
}
