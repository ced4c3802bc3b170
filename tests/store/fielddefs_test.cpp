#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/fielddefs.h"
#include "store/store.h"
#include "store/taggedtext.h"
#include "tests/support/program.h"

#include <gtest/gtest.h>

TEST(TaggedText, EntriesLanguagesAndTheLastAlternativeWhereOneIsMissing) {
    const QString colours = "ESRojo#ENRed|ESVerde#ENGreen";
    struct {
        QString text;
        QString language;
        int index;
        QString expected;
    } const cases[] = {
        {colours, "EN", 1, "Green"},     {colours, "ES", 0, "Rojo"},
        {colours, "FR", 1, "Green"},     {colours, "EN", 2, ""},
        {"ESPuerta", "EN", 0, "Puerta"}, {"E#ENDoor", "EN", 0, "Door"},
        {"ENDoor#E", "ES", 0, ""},       {"", "ES", 0, ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(TaggedText(c.text, c.language, c.index), c.expected)
            << qPrintable(c.text) << " " << qPrintable(c.language) << " " << c.index;
    }
}

TEST(FieldTypes, AreTheStoredLettersAloneAndEverythingElseIsText) {
    const std::pair<const char*, FieldType> cases[] = {
        {"B", FieldType::YesNo}, {"O", FieldType::Options}, {"I", FieldType::Internal},
        {"T", FieldType::Text},  {"", FieldType::Text},     {"b", FieldType::Text},
        {"BO", FieldType::Text}};
    for (const auto& [stored, type] : cases) {
        EXPECT_EQ(FieldTypeOf(stored), type) << stored;
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
