#include "site/transforms.h"

#include <gtest/gtest.h>

TEST(Transforms, GetParamTakesTheFirstPlainOccurrence) {
    const struct {
        const char* text;
        const char* key;
        const char* value;
    } kCases[] = {
        {"START=10;MIDDLE=20;END=5;", "MIDDLE", "20"},
        {"LEGEND=1;END=5;", "END", "1"},
        {"A=END;END=5;", "END", "5"}, // the first "=" behind the hit is the next item's
        {"end=5;", "END", ""},
        {"END=  5 0  ;", "END", "5 0"},
        {"END=5\t;", "END", "5\t"},
        {"END=123", "END", "12"}, // unclosed: loses its last character
        {"END=123   ", "END", "123"},
        {"END=", "END", ""},
        {"END=5", "END", ""},
        {"END", "END", ""},
        {"END=;X=1;", "END", ""},
        {"", "", ""},
    };
    for (const auto& row : kCases) {
        EXPECT_EQ(GetParam(row.text, row.key), row.value) << row.text;
    }
}

TEST(Transforms, ReplaceTagExpandsTheScriptSpellingFirst) {
    const struct {
        const char* text;
        const char* tag;
        const char* value;
        const char* result;
    } kCases[] = {
        {"a %%X%%.DOCWRITE b %%X%%", "%%X%%", "it's", "a document.writeln('it\\'s');\r\n b it's"},
        {"%%X%%.DOCWRITE", "%%X%%", "1\r\n\n\r\n",
         "document.writeln('1');\r\ndocument.writeln('\n');\r\ndocument.writeln('');\r\n"},
        {"%%X%%.DOCWRITE", "%%X%%", "", "document.writeln('');\r\n"},
        {"%%X%%.DOC", "  %%X%% ", "v", "v.DOC"},
        {"a b", "   ", "v", "a b"},
        {"%%x%%", "%%X%%", "v", "%%x%%"},
        {"aaa", "aa", "a", "aa"}, // what arises is not replaced again
        {"%%X%%", "%%X%%", "%%X%%", "%%X%%"},
    };
    for (const auto& row : kCases) {
        EXPECT_EQ(ReplaceTag(row.text, row.tag, row.value), row.result) << row.text;
    }
}

TEST(Transforms, MakeFileSuffixKeepsWhatItDoesNotKnow) {
    const struct {
        QString text;
        QString suffix;
    } kCases[] = {
        {"Ático 2.º", "-atico-2-º"},
        {"", ""},
        {" ", "--"},
        {"A/B\\C'D.E", "-a-b-c-d-e"},
        {"ÀÈÉÍÌÏÒÓÚÙÜÑ", "-aeeiiioouuun"},
        {"Ça, ¿y? & más", "-ça,-¿y?-&-mas"},
    };
    for (const auto& row : kCases) {
        EXPECT_EQ(MakeFileSuffix(row.text), row.suffix) << row.text.toStdString();
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
