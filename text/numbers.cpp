#include "text/numbers.h"

#include "text/ansi.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace {

constexpr QChar kNoBreakSpace(0xA0);
constexpr QChar kNarrowNoBreakSpace(0x202F);
constexpr int kGroupDigits = 3;
constexpr int kSignificantDigits = 15;

// Named by UseNumberLocale; none: the system's.
std::optional<QLocale> namedLocale;

// Marks of the current locale; none until somebody asks.
std::optional<NumberMarks> knownMarks;

struct Picture {
    qsizetype wholeDigits; // at least so many left of the point
    qsizetype decimals;    // exactly so many right of it
    bool grouped;
};

Picture ParsePicture(QStringView picture) {
    const qsizetype point = picture.indexOf(u'.');
    const QStringView whole = point < 0 ? picture : picture.left(point);
    const QStringView fraction = point < 0 ? QStringView() : picture.mid(point + 1);
    return {whole.count(u'0'), fraction.count(u'0'), whole.contains(u',')};
}

QChar AnsiMark(const QString& mark, QChar fallback) {
    if (mark.isEmpty()) {
        return fallback;
    }
    if (mark[0].isSpace()) {
        return kNoBreakSpace;
    }
    return AnsiValue(mark[0]) == kAnsiSubstitute ? fallback : mark[0];
}

// A magnitude as decimal digits, without leading zeros in the whole part.
struct Digits {
    QByteArray whole;
    QByteArray fraction;
};

Digits ShortestDigits(double magnitude) {
    std::array<char, 512> buffer{}; // the longest double in plain notation takes under 350
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                   std::chars_format::fixed)
                         .ptr;
    const QByteArray text(buffer.data(), end - buffer.data());
    const qsizetype point = text.indexOf('.');
    Digits digits{point < 0 ? text : text.left(point),
                  point < 0 ? QByteArray() : text.mid(point + 1)};
    if (digits.whole == "0") {
        digits.whole.clear();
    }
    return digits;
}

// Cuts or pads the fraction to `decimals`, a half away from zero.
Digits Rounded(const Digits& digits, qsizetype decimals) {
    if (digits.fraction.size() == decimals) {
        return digits;
    }
    const bool up = digits.fraction.size() > decimals && digits.fraction[decimals] >= '5';
    QByteArray all = digits.whole + digits.fraction.leftJustified(decimals, '0', true);
    for (qsizetype at = all.size() - 1; up && at >= -1; --at) {
        if (at < 0) {
            all.prepend('1');
        } else if (all[at] == '9') {
            all[at] = '0';
            continue;
        } else {
            ++all.data()[at];
        }
        break;
    }
    return {all.left(all.size() - decimals), all.right(decimals)};
}

QString Grouped(const QByteArray& whole, QChar mark) {
    QString text;
    text.reserve(whole.size() + whole.size() / kGroupDigits);
    for (qsizetype at = 0; at < whole.size(); ++at) {
        if (at > 0 && (whole.size() - at) % kGroupDigits == 0) {
            text += mark;
        }
        text += QLatin1Char(whole[at]);
    }
    return text;
}

bool IsDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

qsizetype SkipDigits(const QByteArray& text, qsizetype at) {
    while (at < text.size() && IsDigit(QLatin1Char(text[at]))) {
        ++at;
    }
    return at;
}

qsizetype SkipSign(const QByteArray& text, qsizetype at) {
    return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

// How many characters of `text` are a number with a decimal point; 0 if it begins with none.
qsizetype NumberLength(const QByteArray& text) {
    const qsizetype start = SkipSign(text, 0);
    qsizetype at = SkipDigits(text, start);
    qsizetype digits = at - start;
    if (at < text.size() && text[at] == '.') {
        const qsizetype end = SkipDigits(text, at + 1);
        digits += end - at - 1;
        at = end;
    }
    if (digits == 0) {
        return 0;
    }
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        const qsizetype exponent = SkipSign(text, at + 1);
        const qsizetype end = SkipDigits(text, exponent);
        at = end > exponent ? end : at;
    }
    return at;
}

// Nothing for what is no number throughout or too big for a double.
std::optional<double> ReadPlainNumber(const QByteArray& text) {
    if (text.isEmpty() || NumberLength(text) != text.size()) {
        return {};
    }
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

bool IsGroupMark(QChar character, QChar mark) {
    return character == mark ||
           (mark == kNoBreakSpace && (character == u' ' || character == kNarrowNoBreakSpace));
}

std::optional<double> ReadLocalNumber(QStringView text) {
    const NumberMarks marks = CurrentMarks();
    QByteArray plain;
    bool inWhole = true;
    for (const QChar character : text.trimmed()) {
        if (character == marks.decimal && inWhole) {
            plain += '.';
            inWhole = false;
        } else if (IsGroupMark(character, marks.group) && inWhole && !plain.isEmpty()) {
            continue;
        } else if (IsDigit(character) || QStringView(u"+-eE").contains(character)) {
            inWhole = inWhole && character.toUpper() != u'E';
            plain += character.toLatin1();
        } else {
            return {};
        }
    }
    return ReadPlainNumber(plain);
}

} // namespace

NumberMarks CurrentMarks() {
    if (!knownMarks) {
        const QLocale locale = CurrentLocale();
        const QChar decimal = AnsiMark(locale.decimalPoint(), u'.');
        const QChar group = AnsiMark(locale.groupSeparator(), decimal == u',' ? u'.' : u',');
        knownMarks = NumberMarks{decimal, group};
    }
    return *knownMarks;
}

void UseNumberLocale(const QLocale& locale) {
    namedLocale = locale;
    knownMarks.reset();
}

QLocale CurrentLocale() {
    return namedLocale.value_or(QLocale::system());
}

QString FormatNumber(double value, QStringView picture) {
    if (!std::isfinite(value)) {
        return {};
    }
    const Picture form = ParsePicture(picture);
    const NumberMarks marks = CurrentMarks();
    const Digits digits = Rounded(ShortestDigits(std::abs(value)), form.decimals);
    const QByteArray whole = digits.whole.rightJustified(form.wholeDigits, '0');
    const QByteArray all = whole + digits.fraction;
    const bool isZero = all.count('0') == all.size();
    QString text = value < 0 && !isZero ? QStringLiteral("-") : QString();
    text += form.grouped ? Grouped(whole, marks.group) : QString::fromLatin1(whole);
    if (form.decimals > 0) {
        text += marks.decimal + QString::fromLatin1(digits.fraction);
    }
    return text;
}

double LeadingNumber(QStringView text) {
    static constexpr QStringView kMayOccur = u"0123456789+-.eE";
    QByteArray plain;
    for (const QChar character : text) {
        if (kMayOccur.contains(character)) {
            plain += character.toLatin1();
        } else if (!character.isSpace()) {
            break;
        }
    }
    return ReadPlainNumber(plain.left(NumberLength(plain))).value_or(0);
}

short LeadingInteger(QStringView text) {
    using Limits = std::numeric_limits<short>;
    const double value = RoundHalfEven(LeadingNumber(text));
    return value < Limits::min() || value > Limits::max() ? short{0} : static_cast<short>(value);
}

bool IsNumeric(QStringView text) {
    return ReadLocalNumber(text).has_value();
}

double ParseNumber(QStringView text) {
    return ReadLocalNumber(text).value_or(0);
}

QString NumberText(double value) {
    QString text = QString::number(value, 'g', kSignificantDigits).toUpper();
    return text.replace(u'.', CurrentMarks().decimal);
}

double RoundHalfEven(double value) {
    return std::nearbyint(value);
}
