// One field of a row, and its plain conversions.
#pragma once

#include <QString>
#include <variant>

// Null, a whole number, a floating-point number or a text.
using Cell = std::variant<std::monostate, qint64, double, QString>;

bool IsNull(const Cell& cell);
QString CellText(const Cell& cell);   // Null is empty; numbers in plain decimal with "."
double CellNumber(const Cell& cell);  // Null is 0; a text by its leading number
qint64 CellInteger(const Cell& cell); // the same, cut to a whole number within the type's range

// What a column makes of the values written to it.
enum class Affinity { Text, Integer, Real, None };

// `value` as a column of that affinity keeps it: a text that is a number becomes one in a number
// column, a number becomes its text in a text column (https://www.sqlite.org/datatype3.html).
Cell ConvertCell(const Cell& value, Affinity affinity);

// The affinity of a declared type by the rules of the same page; nullptr or empty is None.
Affinity AffinityOf(const char* declaredType);
