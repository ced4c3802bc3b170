#include "forms/productlistmodel.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>

namespace {

struct ProductListModelTest : testing::Test {
    ProductListModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};

    ProductListModelTest() {
        model.AddColumn("ProductRef", "Ref.", false);
        model.AddColumn("ShortDesc", "Descripción breve", false);
        model.AddColumn("PriceAmount", "Precio", true);
        model.SetRows({{{"A", "Mesa", "10"}}, {{"B", "Silla", "20"}}, {{"C", "Sofá", "30"}}});
    }
};

TEST_F(ProductListModelTest, RowsFollowEveryChange) {
    model.AppendRow({{"D", "Cama", "40"}});
    model.RemoveRow(0);
    model.SetCell(1, 1, "Sofá cama");
    EXPECT_EQ(model.RowCount(), 3);
    EXPECT_EQ(model.Text(0, 0), "B");
    EXPECT_EQ(model.Text(1, 1), "Sofá cama");
    EXPECT_EQ(model.Text(2, 2), "40");
    model.Clear();
    EXPECT_EQ(model.RowCount(), 0);
}

TEST_F(ProductListModelTest, RowThatIsNotThereChangesNothing) {
    for (const int row : {-1, 3}) {
        model.RemoveRow(row);
        model.SetCell(row, 0, "X");
        model.SetMark(row, true, true);
        EXPECT_EQ(model.Text(row, 0), QString());
    }
    EXPECT_EQ(model.RowCount(), 3);
}

} // namespace
