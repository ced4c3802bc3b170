#include "text/numbers.h"

#include "tests/support/files.h"

#include <gtest/gtest.h>

namespace {

const QLocale kSpanish(QLocale::Spanish, QLocale::Spain);

class Numbers : public testing::Test {
protected:
    void SetUp() override { UseNumberLocale(kSpanish); }
    void TearDown() override { UseNumberLocale(QLocale::system()); }
};

} // namespace

// Grouped from four digits on, and rounded by the decimal text of a value, not by its bits.
TEST_F(Numbers, ValuesFollowTheirPicture) {
    for (const QStringList& row : ReadTable(TABLES, "values by their picture")) {
        EXPECT_EQ(FormatNumber(row[0].toDouble(), row[1]), row[2]) << row.join(' ').toStdString();
    }
}

TEST_F(Numbers, MarksAreTheLocalesAndFitTheCodePage) {
    const std::pair<QLocale, const char16_t*> cases[] = {
        {QLocale(QLocale::English, QLocale::UnitedStates), u"1,234.50"},
        {QLocale::c(), u"1,234.50"},
        {QLocale(QLocale::French, QLocale::France), u"1\u00A0234,50"},
        {QLocale(QLocale::German, QLocale::Switzerland), u"1\u2019234.50"},
        {QLocale(QLocale::Arabic, QLocale::Egypt), u"1,234.50"},
    };
    for (const auto& [locale, text] : cases) {
        UseNumberLocale(locale);
        EXPECT_EQ(FormatNumber(1234.5, u"#,##0.00"), QString::fromUtf16(text))
            << locale.name().toStdString();
        EXPECT_EQ(ParseNumber(QString::fromUtf16(text)), 1234.5);
    }
}

TEST_F(Numbers, WholeTextsAreNumbersByTheLocalesMarks) {
    for (const QStringList& row : ReadTable(TABLES, "whole texts by the Spanish marks")) {
        EXPECT_EQ(IsNumeric(row[0]), row[1] == "true") << row[0].toStdString();
        EXPECT_EQ(ParseNumber(row[0]), row[2].toDouble()) << row[0].toStdString();
    }
}

TEST_F(Numbers, LeadingNumberIgnoresWhatFollowsAndTheLocale) {
    for (const QStringList& row : ReadTable(TABLES, "numbers at the beginning of a text")) {
        EXPECT_EQ(LeadingNumber(row[0]), row[1].toDouble()) << row[0].toStdString();
        EXPECT_EQ(LeadingInteger(row[0]), row[2].toInt()) << row[0].toStdString();
    }
}

TEST_F(Numbers, NumberTextIsReadBack) {
    const std::pair<double, const char16_t*> cases[] = {
        {1234.5, u"1234,5"}, {0.1 + 0.2, u"0,3"}, {-7, u"-7"},
        {1e20, u"1E+20"},    {100, u"100"},       {16721.793, u"16721,793"},
    };
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(NumberText(value), QString::fromUtf16(text));
        EXPECT_DOUBLE_EQ(ParseNumber(NumberText(value)), value);
    }
}
