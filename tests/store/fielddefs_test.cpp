#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/fielddefs.h"
#include "store/store.h"
#include "store/taggedtext.h"
#include "tests/support/files.h"
#include "tests/support/program.h"

#include <gtest/gtest.h>

TEST(TaggedText, EntriesLanguagesAndTheLastAlternativeWhereOneIsMissing) {
    for (const QStringList& row : ReadTable(TABLES, "entries, language, place, text")) {
        const QString entries = QString(row[0]).replace('/', '|');
        EXPECT_EQ(TaggedText(entries, row[1], row[2].toInt()), row[3])
            << row.join(' ').toStdString();
    }
}

TEST(FieldTypes, AreTheStoredLettersAloneAndEverythingElseIsText) {
    using enum FieldType;
    const QList<FieldType> types = {YesNo, Options, Internal, Text, Text, Text, Text};
    for (int i = 0; const char* stored : {"B", "O", "I", "T", "", "b", "BO"}) {
        EXPECT_EQ(FieldTypeOf(stored), types[i++]) << stored;
    }
}

TEST(FieldDefs, SlotsAreDressedByTheirTypeAndTheRestIsClosed) {
    const TestProgram program;
    EXPECT_EQ(FirstHiddenField, 3);
    EXPECT_EQ(MaxFieldDefId, 4);
    EXPECT_EQ(frmMain->lblFields[0]->text(), "Color:");
    EXPECT_TRUE(frmMain->txtFields[0]->isVisible());
    EXPECT_FALSE(frmMain->chkFields[0]->isVisible() || frmMain->cboFields[0]->isVisible());
    EXPECT_TRUE(frmMain->chkFields[1]->isVisible());
    EXPECT_FALSE(frmMain->txtFields[1]->isVisible());
    EXPECT_TRUE(frmMain->cboFields[2]->isVisible());
    EXPECT_EQ(frmMain->cboFields[2]->itemText(1), "Grande");
    EXPECT_EQ(frmMain->cboFields[2]->count(), 2);
    EXPECT_FALSE(frmMain->txtFields[3]->isVisible());
    EXPECT_EQ(Tag(frmMain->txtFields[0]), "T|blanco");
    EXPECT_EQ(frmMain->lblFields[5]->text(), "No usado");
    EXPECT_FALSE(frmMain->lblFields[5]->isEnabled() || frmMain->txtFields[5]->isEnabled());
    EXPECT_FALSE(frmMain->cmdInternalData->isVisible()); // the generic trade shows none
}

TEST(FieldDefs, AnAgencyGetsItsCommandsAndACatalogueInPlaceOfAnotherItsOwnSlots) {
    const TestProgram program(kSmallCatalogue, Trade::RealEstate);
    EXPECT_TRUE(frmMain->cmdInternalData->isVisible());
    EXPECT_TRUE(frmMain->Button("LoanCalc")->isVisible());
    ChangeStore("DELETE FROM ProductFieldDef WHERE FieldDefId>0;"
                "INSERT INTO ProductFieldDef (FieldDefId,Type,Caption) VALUES "
                "(1,'T','ESPeso'),(2,'T','ES'),"
                "(3,'T','ES'),(4,'T','ES'),(5,'T','ESSexto'),(6,'I','Nota');");
    LoadFieldDefs();
    EXPECT_EQ(FirstHiddenField, 6);
    EXPECT_TRUE(frmMain->txtFields[1]->isVisible() && !frmMain->chkFields[1]->isVisible());
    EXPECT_TRUE(frmMain->txtFields[5]->isEnabled() && frmMain->lblFields[5]->isEnabled());
    EXPECT_EQ(frmMain->lblFields[5]->text(), "Sexto:");
    EXPECT_FALSE(frmMain->cmdInternalData->isVisible()); // one internal field alone: hidden
}
