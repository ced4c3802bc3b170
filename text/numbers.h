// Numbers as the user types and reads them: number pictures, the leading-number parse, the numeric
// test and the rounding of conversions. Separators are those of the user's locale.
#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>

// The locale's two marks, as single characters that Windows-1252 holds (a narrow no-break space
// becomes a plain no-break space).
struct NumberMarks {
    QChar decimal;
    QChar group;
};

// Marks of the system's locale, unless UseNumberLocale has named another.
NumberMarks CurrentMarks();

// For tests: from now on numbers and dates follow `locale`.
void UseNumberLocale(const QLocale& locale);

// The locale that numbers and dates follow.
QLocale CurrentLocale();

// `value` by a picture: "#,##0.00", "###,###.00", "#,##0", "###,###" or "0.00". Digits left of the
// point are grouped by threes where the picture holds a ","; a "0" left of the point demands a
// digit, "#" alone shows none for a zero integer part (0.5 by "###,###.00" is ",50" with Spanish
// marks; 0 by "###,###" is empty). Zeros right of the point are fixed decimals. A half is rounded
// away from zero, on the shortest decimal text of the value. What rounds to zero has no sign;
// infinite values give an empty text.
QString FormatNumber(double value, QStringView picture);

// The number that `text` begins with, 0 if it begins with none: blanks are skipped wherever they
// stand ("1 000" is 1000), the decimal mark is always ".", an exponent counts ("1e3"), whatever
// follows the number is ignored ("12abc" is 12).
double LeadingNumber(QStringView text);

// LeadingNumber cut to a 16-bit signed integer (half to even); out of range counts as 0.
short LeadingInteger(QStringView text);

// Whether ParseNumber accepts the whole of `text` (blanks around it apart).
bool IsNumeric(QStringView text);

// The number that the whole text is, with the locale's marks: "1.234,5" in Spanish. Group marks are
// passed over wherever they stand left of the decimal mark; an exponent counts, so that NumberText
// is read back. 0 when it is not numeric.
double ParseNumber(QStringView text);

// The number as text with the locale's decimal mark and no grouping, up to 15 significant digits.
QString NumberText(double value);

// Nearest whole number, a half to the even neighbour.
double RoundHalfEven(double value);
