#include "text/ansi.h"

#include <gtest/gtest.h>

TEST(Ansi, EveryByteSurvivesReadingAndWriting) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes.append(static_cast<char>(byte));
    }
    EXPECT_EQ(ToAnsi(FromAnsi(bytes)), bytes);
}

TEST(Ansi, CharactersGetTheirByteOrTheSubstitute) {
    const std::pair<const char16_t*, QByteArray> cases[] = {
        {u"Ático 2.º ñ", "\xC1tico 2.\xBA \xF1"},
        {u"100 €", "100 \x80"},
        {u"“Œ™ž”", "\x93\x8C\x99\x9E\x94"},
        {u"日本", "??"},
        {u"a\U0001F600b", "a?b"},   // a surrogate pair is one character
        {u"\u0080\u0152", "?\x8C"}, // no control character takes the euro's byte
    };
    for (const auto& [text, bytes] : cases) {
        EXPECT_EQ(ToAnsi(text), bytes) << QString::fromUtf16(text).toStdString();
    }
}
