#include "text/numbers.h"

#include <QScopeGuard>
#include <gtest/gtest.h>
#include <limits>

namespace {

const QLocale kSpanish(QLocale::Spanish, QLocale::Spain);

class Numbers : public testing::Test {
protected:
    void SetUp() override { UseNumberLocale(kSpanish); }
    void TearDown() override { UseNumberLocale(QLocale::system()); }
};

} // namespace

TEST_F(Numbers, ValuesFollowTheirPicture) {
    struct Case {
        double value;
        const char16_t* picture;
        const char16_t* text;
    };
    const Case cases[] = {
        {0, u"#,##0.00", u"0,00"},
        {0, u"###,###.00", u",00"},
        {0, u"###,###", u""},
        {0.5, u"###,###.00", u",50"},
        {0.4, u"###,###", u""},
        {0.5, u"###,###", u"1"},
        {999.99, u"#,##0", u"1.000"},
        {1000, u"#,##0", u"1.000"}, // grouped from four digits on
        {1234567.5, u"#,##0.00", u"1.234.567,50"},
        {1234.5, u"0.00", u"1234,50"},
        {2.675, u"0.00", u"2,68"}, // by its decimal text, not by its binary value
        {1.005, u"0.00", u"1,01"},
        {0.125, u"0.00", u"0,13"},
        {2.5, u"#,##0", u"3"},
        {9.995, u"#,##0.00", u"10,00"},
        {-1234.5, u"#,##0.00", u"-1.234,50"},
        {-2.5, u"#,##0", u"-3"},
        {-0.001, u"#,##0.00", u"0,00"},
        {-0.4, u"###,###", u""},
        {1e21, u"#,##0", u"1.000.000.000.000.000.000.000"},
        {5e-324, u"#,##0.00", u"0,00"},
        {std::numeric_limits<double>::infinity(), u"0.00", u""},
    };
    for (const Case& item : cases) {
        EXPECT_EQ(FormatNumber(item.value, item.picture), QString::fromUtf16(item.text))
            << item.value << " by " << QString::fromUtf16(item.picture).toStdString();
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
    struct Case {
        const char16_t* text;
        bool isNumeric;
        double value;
    };
    const Case cases[] = {
        {u"1.234,5", true, 1234.5}, {u" 12 ", true, 12},
        {u"1.2.3", true, 123},      {u"12.5", true, 125},
        {u",5", true, 0.5},         {u"5,", true, 5},
        {u"-3,25", true, -3.25},    {u"+7", true, 7},
        {u"1,5E+3", true, 1500},    {u"", false, 0},
        {u",", false, 0},           {u"abc", false, 0},
        {u"12abc", false, 0},       {u"1,2,3", false, 0},
        {u"1,234.5", false, 0},     {u".5", false, 0},
        {u"1 2", false, 0},         {u"1E999", false, 0},
        {u"٣", false, 0},           {u"1E2.5", false, 0},
        {u"--1", false, 0},
    };
    for (const Case& item : cases) {
        SCOPED_TRACE(QString::fromUtf16(item.text).toStdString());
        EXPECT_EQ(IsNumeric(item.text), item.isNumeric);
        EXPECT_EQ(ParseNumber(item.text), item.value);
    }
}

TEST_F(Numbers, LeadingNumberIgnoresWhatFollowsAndTheLocale) {
    struct Case {
        const char16_t* text;
        double number;
        short integer;
    };
    const Case cases[] = {
        {u"12abc", 12, 12},
        {u"", 0, 0},
        {u"abc", 0, 0},
        {u"  3.5 euros", 3.5, 4},
        {u"2.5", 2.5, 2},
        {u"1 000", 1000, 1000},
        {u"1,5", 1, 1},
        {u"-7x", -7, -7},
        {u"1e3", 1000, 1000},
        {u"1e", 1, 1},
        {u".5.5", 0.5, 0},
        {u"-", 0, 0},
        {u"32767", 32767, 32767},
        {u"32768", 32768, 0},
        {u"-32768", -32768, -32768},
        {u"1e999", 0, 0},
    };
    for (const Case& item : cases) {
        SCOPED_TRACE(QString::fromUtf16(item.text).toStdString());
        EXPECT_EQ(LeadingNumber(item.text), item.number);
        EXPECT_EQ(LeadingInteger(item.text), item.integer);
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
