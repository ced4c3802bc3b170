#include "site/transforms.h"

#include "tests/support/files.h"

#include <gtest/gtest.h>

// The first "=" behind the key counts, and what isn't closed loses its last character.
TEST(Transforms, GetParamTakesTheFirstPlainOccurrence) {
    for (const QStringList& row : ReadTable(TABLES, "parameters")) {
        EXPECT_EQ(GetParam(row[0], row[1]), row[2]) << row[0].toStdString();
    }
}

TEST(Transforms, ReplaceTagExpandsTheScriptSpellingFirst) {
    for (const QStringList& row : ReadTable(TABLES, "tags")) {
        EXPECT_EQ(ReplaceTag(row[0].toUtf8(), row[1].toUtf8(), row[2].toUtf8()), row[3].toUtf8())
            << row[0].toStdString();
    }
}

TEST(Transforms, MakeFileSuffixKeepsWhatItDoesNotKnow) {
    for (const QStringList& row : ReadTable(TABLES, "suffixes of files")) {
        EXPECT_EQ(MakeFileSuffix(row[0]), row[1]) << row[0].toStdString();
    }
}

TEST(Transforms, TextToBytesIsZeroFromTheFirstNulOn) {
    EXPECT_EQ(TextToBytes(""), QByteArray(1, '\0'));
    EXPECT_EQ(TextToBytes("abc"), "abc");
    EXPECT_EQ(TextToBytes(QByteArray("ab\0cd", 5)), QByteArray("ab\0\0\0", 5));
}

TEST(Transforms, FieldsAreCountedFromOneAndEmptyOnesStay) {
    EXPECT_EQ(SplitFields("a||b|", "|"), QStringList({"a", "", "b", ""}));
    EXPECT_EQ(SplitFields("", "|"), QStringList({""}));
    EXPECT_EQ(NthField("a|b", 2, "|"), "b");
    EXPECT_EQ(NthField("a|b", 3, "|"), "");
    EXPECT_EQ(NthField("a|b", 0, "|"), "");
    EXPECT_EQ(CrLfToBr("1\r\n2\n3\r4\r\r\n"), "1<br>2\n3\r4\r<br>");
}

TEST(Transforms, FirstBetweenMovesOnAndStaysWhereAMarkIsMissing) {
    qsizetype from = 0;
    EXPECT_EQ(FirstBetween("x<a>1</a><a>2</a>", "<a>", "</a>", from), "1");
    EXPECT_EQ(FirstBetween("x<a>1</a><a>2</a>", "<a>", "</a>", from), "2");
    const qsizetype last = from;
    EXPECT_EQ(FirstBetween("x<a>1</a><a>2</a>", "<a>", "</a>", from), "");
    EXPECT_EQ(from, last);
    from = 0;
    EXPECT_EQ(FirstBetween("<a>1", "<a>", "</a>", from), "");
    EXPECT_EQ(from, 0);
}
