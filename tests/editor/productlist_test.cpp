#include "editor/productlist.h"

#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/store.h"
#include "tests/support/boxes.h"
#include "tests/support/program.h"

#include <gtest/gtest.h>

namespace {

constexpr char kThree[] = "A-1;Silla;11|B-2;Mesa;2.000|C-3;Banco;30";

QVariant Look(int row, int column, int role) {
    return frmMain->productList->data(frmMain->productList->index(row, column), role);
}

void Tick() {
    emit frmMain->tmrListRefresh->timeout({});
}

constexpr char kFourth[] =
    "INSERT INTO Products (ProductId, ProductRef, IsNew) VALUES (10004, 'D-4', 1)";

} // namespace

TEST(ProductList, RowsShowTextsInTheMainLanguageNullsAndStatus) {
    const TestProgram program;
    EXPECT_EQ(ListText(), kThree);
    EXPECT_EQ(ProductIds, (std::vector<int>{10001, 10002, 10003}));
    EXPECT_EQ(FeaturedCount, 1);
    EXPECT_TRUE(Look(1, 1, Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(Look(1, 0, Qt::FontRole).value<QFont>().bold());
    EXPECT_TRUE(Look(2, 0, Qt::ForegroundRole).isValid());
    EXPECT_FALSE(Look(0, 0, Qt::ForegroundRole).isValid());
    ChangeStore("UPDATE Products SET ProductRef=NULL, PriceAmount=NULL WHERE ProductId=10001");
    RefreshProductList();
    EXPECT_EQ(ListText().section('|', 0, 0), ";Silla;0");
}

TEST(ProductList, HeadersSortAndTurnRoundAndASearchKeepsTheOrder) {
    const TestProgram program;
    const std::pair<int, const char*> clicks[] = {
        {0, "C-3 B-2 A-1"}, // the very first one turns the order round
        {1, "C-3 B-2 A-1"}, {1, "A-1 B-2 C-3"}, {2, "A-1 C-3 B-2"},
        {0, "A-1 B-2 C-3"}, {0, "C-3 B-2 A-1"}};
    for (const auto& [column, references] : clicks) {
        ClickHeader(column);
        EXPECT_EQ(References(), references) << column;
        EXPECT_EQ(frmMain->txtProductId->text(), QString::number(ProductIds[0]));
    }
    FilterProductList("PriceAmount < 1000");
    RefreshProductList();
    EXPECT_EQ(References(), "C-3 A-1");
    ClickHeader(0);
    EXPECT_EQ(References(), "A-1 C-3");
    FilterProductList({});
    RefreshProductList();
    EXPECT_EQ(References(), "A-1 B-2 C-3");
}

TEST(ProductList, AStatementThatCannotRunLeavesListAndEditorAlone) {
    const TestProgram program;
    ClickRow(1);
    EXPECT_THROW(FilterProductList("ProductRef like '%'%'"), StoreError);
    EXPECT_EQ(ListText(), kThree);
    RefreshProductList();
    EXPECT_EQ(ListText(), kThree);
}

TEST(ProductList, AClickOnTheSelectedRowSavesAndSettlesANewProduct) {
    const TestProgram program;
    Type(frmMain->txtFields[0], "rosa");
    ClickRow(0);
    EXPECT_TRUE(FieldsOf(10001).startsWith("rosa|"));
    ClickHeader(1); // by description: the new one has none, and comes first
    ClickTool("Add");
    EXPECT_EQ(ProductIds.back(), 10004);
    ClickRow(3);
    EXPECT_EQ(ProductIds.front(), 10004);
    EXPECT_EQ(frmMain->txtProductId->text(), "10004");
    EXPECT_EQ(SelectedRow(), 0);
}

TEST(ProductList, AProductNamedLikeTheNumberOfTheOneOnScreenIsNotLoadedByAClick) {
    const TestProgram program;
    ChangeStore("UPDATE Products SET ProductRef='10001' WHERE ProductId=10002");
    RefreshProductList();
    ClickRow(1);
    EXPECT_EQ(frmMain->txtProductId->text(), "10001");
    ClickRow(2);
    ClickRow(1);
    EXPECT_EQ(frmMain->txtProductId->text(), "10002");
}

TEST(ProductList, RemovingMovesOnAndTheOnlyRowEmptiesTheEditor) {
    const TestProgram program;
    const BoxAnswers answers(QMessageBox::Yes);
    ClickRow(2);
    PressKey(frmMain->lstProductList, Qt::Key_Delete);
    EXPECT_EQ(frmMain->txtProductRef->text(), "B-2");
    ReturnToWindow();
    EXPECT_TRUE(frmMain->lstProductList->hasFocus());
    ClickTool("Del");
    EXPECT_EQ(FeaturedCount, 0);
    ClickTool("Del");
    EXPECT_EQ(ListRowCount(), 0);
    EXPECT_EQ(frmMain->txtProductRef->text() + ControlText(frmMain->txtMLFields[0]), "");
    EXPECT_FALSE(frmMain->fraDetail->isEnabled() || frmMain->Button("Del")->isEnabled());
    EXPECT_TRUE(frmMain->Button("Add")->isEnabled());
    EXPECT_EQ(Stored("SELECT count(*) FROM MultiLangFields"), "0");
}

TEST(ProductList, TypingFollowsInTheSelectedRow) {
    const TestProgram program;
    Type(frmMain->txtProductRef, "zz-9");
    Type(frmMain->txtMLFields[0], "Sofá");
    Type(frmMain->txtPriceAmount, "1234,56");
    EXPECT_EQ(ListText().section('|', 0, 0), "ZZ-9;Sofá;1.235");
    Click(frmMain->optLang[1]);
    Type(frmMain->txtMLFields[0], "Couch");
    EXPECT_EQ(ListText().section('|', 0, 0), "ZZ-9;Sofá;1.235");
}

TEST(ProductList, FeaturedCountFollowsEveryChangeOfStatus) {
    const TestProgram program;
    struct {
        int row;
        int status;
        int featured;
    } const changes[] = {{0, 1, 2}, {0, 2, 1}, {2, 1, 2}, {1, 0, 1}, {2, 0, 0}};
    for (const auto& change : changes) {
        ClickRow(change.row);
        PressKey(frmMain->cboIsNew, Qt::Key_Home);
        for (int step = 0; step < change.status; ++step) {
            PressKey(frmMain->cboIsNew, Qt::Key_Down);
        }
        PressKey(frmMain->cboIsNew, Qt::Key_Return);
        EXPECT_EQ(FeaturedCount, change.featured) << change.row << " " << change.status;
        RefreshProductList();
        EXPECT_EQ(FeaturedCount, change.featured) << "stored";
    }
}

TEST(ProductList, TheMinutesRefreshShowsAnotherUsersChangesAndKeepsWhatIsTyped) {
    const TestProgram program;
    ClickRow(1);
    Type(frmMain->txtFields[0], "ocre");
    ChangeStore(kFourth);
    Tick();
    EXPECT_EQ(References(), "A-1 B-2 C-3 D-4");
    EXPECT_EQ(frmMain->txtFields[0]->text(), "ocre");
    EXPECT_EQ(SelectedRow(), 1);
    frmMain->txtFields[0]->setFocus();
    TypeOn(frmMain->txtFields[0], "s");
    ClickRow(0);
    EXPECT_TRUE(FieldsOf(10002).startsWith("ocres|"));
}

TEST(ProductList, TheRefreshWaitsForSearchesAndDialogs) {
    const TestProgram program;
    frmMain->Button("Search")->setChecked(true);
    ChangeStore(kFourth);
    Tick();
    EXPECT_EQ(ListRowCount(), 3);
    frmMain->Button("Search")->setChecked(false);
    Type(frmMain->txtMLFields[0], "Taburete");
    WhenDialogOpens([] { Tick(); });
    Click(frmMain->cmdPictures);
    EXPECT_EQ(ListRowCount(), 3);
    ClickRow(1);
    EXPECT_EQ(TextsOf(10001), "Taburete|De pino|Asientos");
    Tick();
    EXPECT_EQ(ListRowCount(), 4);
}

TEST(ProductList, TheRefreshLeavesAProductThatAnotherUserHasDeleted) {
    const TestProgram program;
    ClickRow(1);
    Type(frmMain->txtFields[0], "ocre");
    Click(frmMain->lblTab[1]); // saved, and its row let go
    ChangeStore("DELETE FROM Products WHERE ProductId=10002");
    Tick();
    EXPECT_EQ(References(), "A-1 C-3");
    EXPECT_EQ(frmMain->txtProductRef->text(), "A-1");
    ChangeStore("DELETE FROM Products");
    Tick();
    EXPECT_EQ(frmMain->txtProductRef->text(), "");
}

TEST(ProductList, AnEmptySearchLetsTheProductGoUnharmed) {
    const TestProgram program;
    FilterProductList("PriceAmount > 5000");
    RefreshProductList();
    EXPECT_EQ(ListRowCount(), 0);
    Click(frmMain->lblTab[1]);
    Click(frmMain->lblTab[0]);
    EXPECT_TRUE(frmMain->close());
    EXPECT_EQ(Stored("SELECT ProductRef, PriceAmount FROM Products WHERE ProductId=10001"),
              "A-1;10.5");
}
