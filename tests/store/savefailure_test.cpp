// Saves that the store refuses: the user is told, the boxes keep what was typed, and the next save
// brings all of it to the store. That a full disk is such a refusal is tested with the cursor.
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "tests/support/boxes.h"
#include "tests/support/program.h"

#include <gtest/gtest.h>

TEST(SaveFailure, AtEachOfTheThreeCommitsTheProductStaysAndTheNextSaveWritesAll) {
    for (const char* table : {"ProductFields", "MultiLangFields", "Products"}) {
        SCOPED_TRACE(table);
        const TestProgram program;
        const BoxAnswers answers;
        Type(frmMain->txtPriceAmount, "77");
        Type(frmMain->txtFields[0], "rosa");
        Type(frmMain->txtMLFields[0], "Butaca");
        Refuse(QString("UPDATE ON ") + table);
        ClickRow(1);
        EXPECT_EQ(answers.seen.size(), 1U);
        EXPECT_EQ(frmMain->SelectedRow(), 0);
        EXPECT_EQ(frmMain->txtProductRef->text(), "A-1");
        EXPECT_EQ(frmMain->txtFields[0]->text(), "rosa");
        EXPECT_EQ(ControlText(frmMain->txtMLFields[0]), "Butaca");
        Permit();
        ClickRow(1);
        EXPECT_EQ(frmMain->SelectedRow(), 1);
        EXPECT_EQ(Stored("SELECT PriceAmount FROM Products WHERE ProductId=10001"), "77");
        EXPECT_EQ(FieldsOf(10001), "rosa|0|0|5|frágil");
        EXPECT_EQ(TextsOf(10001), "Butaca|De pino|Asientos");
    }
}

TEST(SaveFailure, ALanguageThatCannotBeSavedIsNotLeft) {
    const TestProgram program;
    BoxAnswers answers;
    Type(frmMain->txtMLFields[0], "Butaca");
    Refuse("UPDATE ON MultiLangFields");
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
    Refuse("INSERT ON ProductFields");
    ClickTool("Add");
    EXPECT_EQ(Stored("SELECT count(*) FROM Products"), "3");
    EXPECT_EQ(frmMain->txtProductRef->text(), "A-1");
    EXPECT_EQ(ListRowCount(), 3);
    Permit();
    Refuse("DELETE ON MultiLangFields");
    ClickTool("Del");
    EXPECT_EQ(Stored("SELECT count(*) FROM Products"), "3");
    EXPECT_EQ(Stored("SELECT count(*) FROM ProductFields"), before);
    EXPECT_EQ(ListRowCount(), 3);
    Permit();
    Type(frmMain->txtFields[0], "rosa"); // still a product that can be edited
    ClickRow(1);
    EXPECT_EQ(FieldsOf(10001), "rosa|0|0|5|frágil");
}
