// Products between the store and the form, through the boxes that a user types into.
#include "store/products.h"

#include "core/settings.h"
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/langvalues.h"
#include "store/store.h"
#include "tests/support/boxes.h"
#include "tests/support/files.h"
#include "tests/support/program.h"
#include "text/dates.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

QString Product(int id) {
    return Stored("SELECT ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate FROM Products WHERE "
                  "ProductId=" +
                  QString::number(id));
}

QString RowsOf(const QString& id) {
    return Stored("SELECT (SELECT count(*) FROM Products WHERE ProductId=" + id +
                  "), (SELECT count(*) FROM ProductFields WHERE ProductId=" + id +
                  "), (SELECT count(*) FROM Pictures WHERE ProductId=" + id +
                  "), (SELECT count(*) FROM MultiLangFields WHERE ItemId LIKE '" + id +
                  "%') FROM CorpInfo");
}

} // namespace

TEST(Products, LoadShowsTheRowItsFieldsAndTextsAndNullsAsEmpty) {
    const TestProgram program;
    EXPECT_EQ(frmMain->txtProductRef->text(), "A-1");
    EXPECT_EQ(frmMain->txtPriceAmount->text(), "10,50");
    EXPECT_EQ(frmMain->txtLastUpdate->text(), "01/01/2024 10:00:00");
    EXPECT_EQ(frmMain->txtFields[0]->text(), "rojo");
    EXPECT_EQ(ControlText(frmMain->txtMLFields[1]), "De pino");
    ClickRow(1);
    EXPECT_TRUE(frmMain->chkFields[1]->isChecked());
    EXPECT_EQ(frmMain->cboFields[2]->currentIndex(), 1);
    EXPECT_EQ(Tag(frmMain->cboIsNew), "1");
    ChangeStore("UPDATE Products SET ProductRef=NULL, PriceAmount=NULL, IsNew=NULL, SaleZone=NULL, "
                "LastUpdate=NULL WHERE ProductId=10003");
    ClickRow(2);
    EXPECT_EQ(frmMain->txtProductRef->text() + frmMain->txtZone->text(), "");
    EXPECT_EQ(frmMain->txtPriceAmount->text(), "0,00");
    EXPECT_EQ(frmMain->cboIsNew->currentIndex(), 0);
}

TEST(Products, AnOldProductGainsRowsForInternalFieldsAlone) {
    const TestProgram program;
    ChangeStore("DELETE FROM ProductFields WHERE ProductId=10002 AND FieldDefId>1");
    ClickRow(1);
    Type(frmMain->txtFields[0], "verde");
    ClickRow(0);
    EXPECT_EQ(Stored("SELECT FieldDefId FROM ProductFields WHERE ProductId=10002 ORDER BY 1"),
              "0|1|3|4");
}

TEST(Products, SavingWritesFieldsThenTextsThenTheProduct) {
    const TestProgram program;
    ChangeStore(
        "CREATE TABLE Log (What TEXT);"
        "CREATE TRIGGER a AFTER UPDATE ON ProductFields BEGIN INSERT INTO Log VALUES('F'); END;"
        "CREATE TRIGGER b AFTER UPDATE ON MultiLangFields BEGIN INSERT INTO Log VALUES('T'); END;"
        "CREATE TRIGGER c AFTER UPDATE ON Products BEGIN INSERT INTO Log VALUES('P'); END;");
    Type(frmMain->txtProductRef, "a-9");
    Type(frmMain->txtFields[0], " rosa ");
    Type(frmMain->txtMLFields[0], "Sillón");
    ClickRow(1);
    EXPECT_EQ(Stored("SELECT What FROM Log"), "F|T|P");
    EXPECT_EQ(FieldsOf(10001), " rosa |0|0|5|frágil");
    EXPECT_EQ(TextsOf(10001), "Sillón|De pino|Asientos");
    const QStringList row = Product(10001).split(u';');
    EXPECT_EQ(row[0], "A-9");
    EXPECT_LE(ReadDate(row[4])->secsTo(Now()), 60);
}

TEST(Products, WhatChangedDecidesWhetherItIsSavedAndStamped) {
    for (const QStringList& row : ReadTable(TABLES, "what is typed, stamped, fields")) {
        const TestProgram program;
        if (!row[1].isEmpty()) {
            frmMain->txtFields[4]->setText(row[1]);
        }
        if (!row[2].isEmpty()) {
            Type(frmMain->txtFields[0], row[2]);
        }
        if (!row[3].isEmpty()) {
            Type(frmMain->txtPriceAmount, row[3]);
        }
        if (row[0] == "the stamp alone") {
            TouchLastUpdate(Touched::Product);
        }
        ClickRow(1);
        EXPECT_EQ(FieldsOf(10001), row.mid(5).join('|')) << row[0].toStdString();
        EXPECT_EQ(!Product(10001).endsWith("2024-01-01T10:00:00"), row[4] == "yes")
            << row[0].toStdString();
    }
}

TEST(Products, ATextWithBlanksIsShownAndSavedTrimmedAndANullStaysUntilASave) {
    const TestProgram program;
    ChangeStore(
        "UPDATE MultiLangFields SET FieldValue='  Mesa ' WHERE ItemId='10002' AND FieldDefId=0;"
        "UPDATE MultiLangFields SET FieldValue=NULL WHERE ItemId='10003' AND FieldDefId=1");
    ClickRow(1);
    ClickRow(2);
    EXPECT_EQ(TextsOf(10002), "Mesa|De roble|Mesas");
    ClickRow(0);
    EXPECT_EQ(TextsOf(10003), "Banco|NULL|Asientos");
}

TEST(Products, TheFirstOneIsNumber10001AndATakenReferenceIsReplaced) {
    {
        const TestProgram program("def; 0; T; ESColor");
        ClickTool("Add");
        EXPECT_EQ(Stored("SELECT ProductId, ProductRef FROM Products"), "10001;10001");
    }
    const TestProgram program;
    ChangeStore("UPDATE Products SET ProductRef='10004' WHERE ProductId=10002");
    ClickTool("Add");
    const QString reference = Stored("SELECT ProductRef FROM Products WHERE ProductId=10004");
    EXPECT_TRUE(QRegularExpression("^REF\\d\\d$").match(reference).hasMatch())
        << qPrintable(reference);
}

TEST(Products, ANewOneIsStoredAtOnceWithDefaultsAndNothingOfAnotherBehindItsNumber) {
    const TestProgram program;
    ChangeStore(
        "INSERT INTO ProductFields VALUES (10004, 0, 'de otro');"
        "INSERT INTO Pictures (ProductId, ProdPictureId, PictureId) VALUES (10004, 1, 1000401);"
        "INSERT INTO MultiLangFields VALUES ('Products','10004','ES',0,'de otro');");
    ClickTool("Add");
    EXPECT_EQ(FieldsOf(10004), "blanco|1|1|0|");
    EXPECT_TRUE(frmMain->chkFields[1]->isChecked());
    EXPECT_EQ(frmMain->cboFields[2]->currentIndex(), 1);
    EXPECT_EQ(RowsOf("10004"), "1;5;0;0");
    EXPECT_TRUE(frmMain->txtMLFields[0]->hasFocus());
    TypeOn(frmMain->txtMLFields[0], "Cama");
    ClickRow(0);
    EXPECT_EQ(TextsOf(10004), "Cama||");
    EXPECT_EQ(frmMain->txtProductRef->text(), "A-1"); // the clicked one, found again by the refill
    EXPECT_FALSE(NewProductPending);
}

TEST(Products, DeletingLeavesNoRowTextOrFileAndIsRememberedForThePortal) {
    for (const bool afterASaveThatStayed : {false, true}) {
        const TestProgram program(QString(kSmallCatalogue) +
                                  "\npicture; 10001; 1; 0\n"
                                  "text; Pictures; 1000101; ES; 0; Vista");
        const QString file = WriteFile(program.Folder() + "Pic1000101.dat", {});
        ClickRow(1);
        ClickRow(0);
        if (afterASaveThatStayed) {
            Type(frmMain->txtFields[0], "lila");
            Click(frmMain->lblTab[1]);
            Click(frmMain->lblTab[0]);
        }
        BoxAnswers answers(QMessageBox::Yes);
        ClickTool("Del");
        EXPECT_EQ(answers.Texts(),
                  "¿Confirma que desea eliminar todos los datos de este Producto?");
        EXPECT_EQ(RowsOf("10001"), "0;0;0;0") << afterASaveThatStayed;
        EXPECT_FALSE(QFile::exists(file));
        EXPECT_TRUE(DeletedItems.contains("P10001"));
        EXPECT_EQ(frmMain->txtProductRef->text(), "B-2");
    }
}

TEST(LangValues, ALanguageLookedAtGetsEmptyRowsAndTypingInItIsKept) {
    const TestProgram program;
    ClickRow(1);
    Click(frmMain->optLang[1]);
    EXPECT_EQ(ControlText(frmMain->txtMLFields[0]), "");
    Click(frmMain->optLang[0]);
    EXPECT_EQ(TextsOf(10002, "EN"), "||");
    ClickRow(0);
    EXPECT_TRUE(Product(10002).endsWith("2024-01-02T10:00:00")); // nothing to stamp
    Click(frmMain->optLang[1]);
    Type(frmMain->txtMLFields[0], "Stool");
    EXPECT_EQ(ListText().section(u'|', 0, 0), "A-1;Silla;11"); // the list shows the main language
    Click(frmMain->optLang[0]);
    EXPECT_EQ(TextsOf(10001, "EN"), "Stool|Pine|Seats");
    EXPECT_EQ(ControlText(frmMain->txtMLFields[0]), "Silla");
    ClickRow(1);
    EXPECT_FALSE(Product(10001).endsWith("2024-01-01T10:00:00"));
}
