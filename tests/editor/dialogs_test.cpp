// The editor's dialogs: search, internal data, calculator.
#include "core/settings.h"
#include "editor/productlist.h"
#include "forms/calcform.h"
#include "forms/internalform.h"
#include "forms/mainform.h"
#include "forms/searchform.h"
#include "tests/support/boxes.h"
#include "tests/support/program.h"

#include <gtest/gtest.h>

namespace {

struct Search {
    const char* name;
    QStringList zones;
    const char* words;
    const char* minimum;
    const char* maximum;
    const char* found; // references
};

void Fill(const Search& search) {
    for (int row = 0; row < frmSearch->lvwZone->count(); ++row) {
        QListWidgetItem* item = frmSearch->lvwZone->item(row);
        item->setCheckState(search.zones.contains(item->text()) ? Qt::Checked : Qt::Unchecked);
    }
    Type(frmSearch->txtText, search.words);
    Type(frmSearch->txtMinPrice, search.minimum);
    Type(frmSearch->txtMaxPrice, search.maximum);
    Click(frmSearch->cmdSearch);
}

} // namespace

TEST(Search, ZonesWordsAndPricesNarrowTheListUntilTheButtonIsReleased) {
    const Search searches[] = {
        {"nothing", {}, "", "", "", "A-1 B-2 C-3"},
        {"zones, one with an apostrophe", {"L'Eixample", "Norte"}, "", "", "", "A-1 C-3"},
        {"zones and a price", {"Norte", "Sur"}, "", "100", "", "B-2"},
        {"a word of any text in any language", {}, "chair", "", "", "A-1"},
        {"a word of a reference alone", {}, "b-", "", "", "B-2"},
        {"several words widen", {}, "mesa haya", "", "", "B-2 C-3"},
        {"prices that begin with a number", {}, "", "12abc", "1000", "C-3"},
        {"a minimum of nothing", {}, "", "0", "x", "A-1 B-2 C-3"},
        {"nothing found", {}, "zzz", "", "", ""},
    };
    constexpr char kAll[] = "A-1 B-2 C-3";
    for (const Search& search : searches) {
        const bool narrowed = QString(search.found) != kAll;
        const TestProgram program;
        WhenDialogOpens([&search] { Fill(search); });
        ClickTool("Search");
        EXPECT_EQ(References(), search.found) << search.name;
        EXPECT_EQ(frmMain->Button("Search")->isChecked(), narrowed) << search.name;
        EXPECT_TRUE(frmMain->Button("Search")->isEnabled());
        EXPECT_EQ(frmMain->fraNoProductsFound->isVisible(), *search.found == 0) << search.name;
        if (narrowed) {
            ClickTool("Search");
            EXPECT_EQ(References(), kAll) << search.name;
            EXPECT_FALSE(frmMain->fraNoProductsFound->isVisible());
        }
    }
}

TEST(Search, AQuoteInAWordGetsAPlainMessageAndTheListStays) {
    for (const char* words : {"L'Eixample", "a'b'c", "' OR 'x"}) {
        const TestProgram program;
        BoxAnswers answers;
        bool stillOpen = false;
        WhenDialogOpens([&] {
            Fill({"", {}, words, "", "", ""});
            stillOpen = frmSearch != nullptr && frmSearch->isVisible();
        });
        ClickTool("Search");
        EXPECT_EQ(answers.Texts(),
                  "No se puede buscar ese texto. Quite las comillas y apóstrofos e "
                  "inténtelo de nuevo.")
            << words;
        EXPECT_TRUE(stillOpen);
        EXPECT_EQ(References(), "A-1 B-2 C-3");
        EXPECT_TRUE(frmMain->Button("Search")->isChecked());
    }
}

TEST(InternalData, AreKeptWithTheProductOrLeftAsTheyWere) {
    for (const bool keep : {false, true}) {
        const TestProgram program(kSmallCatalogue, Trade::RealEstate);
        WhenDialogOpens([keep] {
            EXPECT_EQ(frmInternal->lblTitle->text(), "Información Interna (Ref. A-1 - Silla)");
            EXPECT_EQ(frmInternal->lblFields[0]->text(), "Coste:");
            EXPECT_EQ(frmInternal->txtFields[1]->text(), "frágil");
            Type(frmInternal->txtFields[1], "roto");
            Click(keep ? frmInternal->cmdClose : frmInternal->cmdUndo);
        });
        Click(frmMain->cmdInternalData);
        ClickRow(1);
        EXPECT_EQ(Stored("SELECT FieldValue, LastUpdate FROM ProductFields f, Products p WHERE "
                         "f.ProductId=10001 AND p.ProductId=10001 AND FieldDefId=4"),
                  QString(keep ? "roto" : "frágil") + ";2024-01-01T10:00:00");
    }
}

TEST(Calculator, FiguresCountThePercentageTwiceAndOddInputEndsThem) {
    struct {
        const char* price;
        const char* percent;
        const char* interest;
        const char* years;
        const char* figures; // loan; entry; instalment
        int boxes;
    } const cases[] = {
        {"100000", "100", "3,5", "35", "100.000,00;0,00;413,29", 0},
        {"100000", "80", "3,5", "35", "80.000,00;20.000,00;264,51", 0},
        {"100000", "100", "0", "35", "100.000,00;0,00;", 1},
        {"100000", "100", "", "35", "100.000,00;0,00;", 1},
        {"nada", "100", "3,5", "35", ";;", 1},
    };
    for (const auto& c : cases) {
        const TestProgram program(kSmallCatalogue, Trade::RealEstate);
        BoxAnswers answers;
        WhenDialogOpens([&c] {
            EXPECT_EQ(frmCalc->txtPriceAmount->text(), "10,50");
            EXPECT_EQ(frmCalc->txtLoanInterest->text(), "3,5");
            Type(frmCalc->txtPriceAmount, c.price);
            Type(frmCalc->txtLoanPerc, c.percent);
            Type(frmCalc->txtLoanInterest, c.interest);
            Type(frmCalc->txtLoanYears, c.years);
            Click(frmCalc->cmdCalc);
            EXPECT_EQ(frmCalc->txtLoanAmount->text() + ';' + frmCalc->txtInitialAmount->text() +
                          ';' + frmCalc->txtLoanQuote->text(),
                      c.figures);
        });
        ClickTool("LoanCalc");
        EXPECT_EQ(int(answers.seen.size()), c.boxes) << c.price << " " << c.interest;
    }
}
