// Windows-1252, the single-byte code page of everything that leaves the program as text: site
// files, the control file and what goes over the wire.
//
// The five byte values that the code page leaves open (81, 8D, 8F, 90, 9D hexadecimal) stand for
// the control characters of the same number, so that any bytes survive being read and written.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

// What a character outside the code page becomes.
inline constexpr char kAnsiSubstitute = '?';

// One byte a character (a surrogate pair is one character); never fails.
QByteArray ToAnsi(QStringView text);

// One character a byte; never fails.
QString FromAnsi(QByteArrayView bytes);

// The code page's value of one character, 0 to 255; the substitute's value if it has none.
unsigned char AnsiValue(QChar character);
