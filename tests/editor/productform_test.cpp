// What the editor's boxes do while a user types and moves on.
#include "editor/productform.h"

#include "core/settings.h"
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "tests/support/boxes.h"
#include "tests/support/program.h"

#include <gtest/gtest.h>

namespace {

constexpr char kMarks[] = "El campo Referencia debe estar formado por letras, numéros y/o los "
                          "caracteres guión(-) o guión bajo(_)";

QString FocusName() {
    ReturnToWindow();
    return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName()
                                                  : QString();
}

void ChooseFeatured() {
    PressKey(frmMain->cboIsNew, Qt::Key_Home);
    PressKey(frmMain->cboIsNew, Qt::Key_Down);
}

} // namespace

TEST(ProductForm, AReferenceIsAcceptedOrRefusedWithItsReason) {
    const TestProgram program;
    struct {
        const char* typed;
        const char* box;
        const char* complaint; // none: accepted
    } const cases[] = {
        {"ab-1", "AB-1", ""},
        {"A123456_89", "A123456_89", ""},
        {"A123456_890", "A123456_890", "El campo Referencia debe tener como máximo 10 caracteres"},
        {"a b", "A B", kMarks},
        {"Ñ", "Ñ", kMarks},
        {"", "", "El campo Referencia es obligatorio"},
        {"b-2", "B-2",
         "Ya existe un registro con la Referencia B-2\n\nEs necesaria una Referencia que "
         "identifique el Producto de manera única"},
        {"A-1", "A-1", ""},
    };
    for (const auto& c : cases) {
        BoxAnswers answers;
        Type(frmMain->txtProductRef, c.typed);
        PressKey(frmMain->txtProductRef, Qt::Key_Return);
        EXPECT_EQ(answers.Texts(), c.complaint) << c.typed;
        EXPECT_EQ(frmMain->txtProductRef->text(), c.box);
        EXPECT_EQ(FocusName(), *c.complaint == 0 ? "txtMLFields_0" : "txtProductRef") << c.typed;
    }
    BoxAnswers answers;
    Type(frmMain->txtProductRef, "b-2");
    ClickRow(1);
    EXPECT_EQ(answers.seen.size(), 1U);
    EXPECT_EQ(SelectedRow(), 0);
    EXPECT_FALSE(frmMain->close());
}

TEST(ProductForm, APriceChangesItsLookWithTheFocusAndMustBeANumber) {
    const TestProgram program;
    Type(frmMain->txtPriceAmount, "1.234,5");
    EXPECT_EQ(frmMain->txtPrizeAmountPTA->text(), "(205.404 PTA)");
    PressKey(frmMain->txtPriceAmount, Qt::Key_Return);
    EXPECT_EQ(FocusName(), "cmdPictures");
    EXPECT_EQ(frmMain->txtPriceAmount->text(), "1.234,50");
    frmMain->txtPriceAmount->setFocus();
    EXPECT_EQ(frmMain->txtPriceAmount->text(), "1234,50");
    Type(frmMain->txtPriceAmount, "");
    EXPECT_EQ(frmMain->txtPriceAmount->text(), "0");
    BoxAnswers answers;
    Type(frmMain->txtPriceAmount, "abc");
    EXPECT_EQ(frmMain->txtPrizeAmountPTA->text(), "");
    ClickRow(1);
    EXPECT_EQ(answers.Texts(), "El campo Precio sólo admite valores numéricos");
    EXPECT_EQ(FocusName(), "txtPriceAmount");
    EXPECT_EQ(SelectedRow(), 0);
    frmMain->mnuTabs[1]->trigger(); // saves while the box still holds no number
    EXPECT_EQ(Stored("SELECT PriceAmount FROM Products WHERE ProductId=10001"), "10.5");
}

TEST(ProductForm, EnterLeadsFromBoxToBox) {
    const TestProgram program;
    const std::pair<const char*, const char*> moves[] = {
        {"txtProductRef", "txtMLFields_0"}, {"txtMLFields_0", "txtFields_0"},
        {"txtFields_0", "chkFields_1"},     {"chkFields_1", "cboFields_2"},
        {"cboFields_2", "txtMLFields_0"},   {"cboIsNew", "txtMLFields_0"},
        {"txtPriceAmount", "cmdPictures"},  {"txtMLFields_2", "txtMLFields_1"}};
    for (const auto& [from, to] : moves) {
        PressKey(frmMain->findChild<QWidget*>(from), Qt::Key_Return);
        EXPECT_EQ(FocusName(), to) << from;
    }
}

TEST(ProductForm, TheDesignsLimitOfFeaturedProductsAsksBeforeTheOldestGivesWay) {
    for (const auto& [yes, savedMeanwhile] :
         {std::pair(false, false), std::pair(true, false), std::pair(true, true)}) {
        const TestProgram program;
        SetTemplate(TemplPath, 0, 1);
        BoxAnswers answers(yes ? QMessageBox::Yes : QMessageBox::No);
        ChooseFeatured();
        if (savedMeanwhile) { // a menu takes no focus: saved before the question
            frmMain->mnuTabs[1]->trigger();
            frmMain->mnuTabs[0]->trigger();
        }
        PressKey(frmMain->cboIsNew, Qt::Key_Return);
        EXPECT_EQ(answers.Texts(),
                  "La Plantilla de Diseño Web actual no permite más de 1 Productos en Portada.\n\n"
                  "¿Desea quitar de Portada el anuncio más antiguo y substituirlo por el Producto "
                  "actual?");
        EXPECT_EQ(frmMain->cboIsNew->currentIndex(), yes ? 1 : 0);
        EXPECT_EQ(FeaturedCount, 1);
        ClickRow(2);
        EXPECT_EQ(Stored("SELECT IsNew FROM Products ORDER BY ProductId"), yes ? "1|0|2" : "0|1|2");
    }
}

TEST(ProductForm, CategoriesInUseAreSuggestedMostUsedFirstAndTakenByKeyboard) {
    const TestProgram program;
    auto* box = frmMain->txtMLFields_2;
    Type(box, "");
    ASSERT_TRUE(frmMain->fraZone->isVisible());
    const auto suggestions = [] {
        QStringList texts;
        for (int row = 0; row < frmMain->lstZone->count(); ++row) {
            texts += frmMain->lstZone->item(row)->text();
        }
        return texts.join('|');
    };
    EXPECT_EQ(suggestions(), "Asientos|Mesas");
    const auto current = [] { return frmMain->lstZone->currentRow(); };
    PressKey(box, Qt::Key_Down);
    PressKey(box, Qt::Key_Down);
    EXPECT_EQ(current(), 1);
    PressKey(box, Qt::Key_Down);
    EXPECT_EQ(current(), 0);
    PressKey(box, Qt::Key_Up);
    EXPECT_EQ(current(), 1);
    PressKey(box, Qt::Key_Return);
    EXPECT_EQ(box->text(), "Mesas");
    EXPECT_EQ(FocusName(), "txtMLFields_1");
    Type(box, "Asiento");
    EXPECT_EQ(suggestions(), "Asientos");
    PressKey(box, Qt::Key_Escape);
    EXPECT_FALSE(frmMain->fraZone->isVisible());
    TypeOn(box, "s");
    EXPECT_FALSE(frmMain->fraZone->isVisible()); // the only one, typed whole
    Type(box, "a'\"b");
    EXPECT_FALSE(frmMain->fraZone->isVisible());
    ClickRow(1);
    EXPECT_EQ(TextsOf(10001), "Silla|De pino|a'\"b");
}

TEST(ProductForm, AnAgencysCategoryIsItsZone) {
    const TestProgram program(kSmallCatalogue, Trade::RealEstate);
    EXPECT_TRUE(frmMain->txtZone->isVisible() && !frmMain->txtMLFields_2->isVisible());
    EXPECT_EQ(frmMain->txtZone->text(), "Norte");
    Type(frmMain->txtZone, "Centro");
    ClickRow(1);
    EXPECT_EQ(Stored("SELECT SaleZone FROM Products WHERE ProductId=10001"), "Centro");
}

TEST(ProductForm, ChecksAndListsWriteTheirValue) {
    const TestProgram program;
    PressKey(frmMain->chkFields[1], Qt::Key_Space);
    PressKey(frmMain->cboFields[2], Qt::Key_Down);
    ClickRow(1);
    EXPECT_EQ(FieldsOf(10001), "rojo|1|1|5|frágil");
}
