#include "text/ansi.h"

#include <array>

namespace {

constexpr int kFirstSpecial = 0x80;
constexpr int kLastSpecial = 0x9F;

// The characters of bytes 80 to 9F hexadecimal; all other bytes stand for the character of the same
// number.
constexpr std::array<char16_t, kLastSpecial - kFirstSpecial + 1> kSpecial{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

QByteArray ToAnsi(QStringView text) {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char* to = bytes.data();
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text[at];
        if (character.unicode() < kFirstSpecial) {
            *to++ = static_cast<char>(character.unicode());
            continue;
        }
        const bool pair =
            character.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        *to++ = static_cast<char>(AnsiValue(character));
        at += pair ? 1 : 0;
    }
    bytes.truncate(to - bytes.constData());
    return bytes;
}

QString FromAnsi(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        const bool special = byte >= kFirstSpecial && byte <= kLastSpecial;
        text[at] = QChar(special ? kSpecial[byte - kFirstSpecial] : char16_t{byte});
    }
    return text;
}

unsigned char AnsiValue(QChar character) {
    const char16_t code = character.unicode();
    if (code < kFirstSpecial || (code > kLastSpecial && code <= 0xFF)) {
        return static_cast<unsigned char>(code);
    }
    const auto* found = std::find(kSpecial.begin(), kSpecial.end(), code);
    return found == kSpecial.end()
               ? static_cast<unsigned char>(kAnsiSubstitute)
               : static_cast<unsigned char>(kFirstSpecial + (found - kSpecial.begin()));
}
