#include "engine/cell.h"

#include "text/numbers.h"

#include <cmath>
#include <limits>

namespace {

// Bounds of qint64 as floating-point numbers; the upper one is the first beyond the range.
constexpr double kLowest = -9223372036854775808.0;
constexpr double kBeyond = 9223372036854775808.0;

QString DecimalText(double value) {
    if (value == 0) {
        return QStringLiteral("0"); // also for -0
    }
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

qint64 CutToInteger(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= kBeyond) {
        return std::numeric_limits<qint64>::max();
    }
    return value <= kLowest ? std::numeric_limits<qint64>::min() : static_cast<qint64>(value);
}

// A whole number stays one; in a column of whole numbers so does a floating-point one that is
// whole.
Cell NumberFromText(const QString& text) {
    bool isNumber = false;
    const qint64 whole = text.toLongLong(&isNumber);
    if (isNumber) {
        return whole;
    }
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? Cell(number) : Cell(text);
}

Cell ConvertToInteger(const Cell& value) {
    Cell number =
        std::holds_alternative<QString>(value) ? NumberFromText(std::get<QString>(value)) : value;
    const auto* real = std::get_if<double>(&number);
    if (real != nullptr && *real == std::trunc(*real) && *real >= kLowest && *real < kBeyond) {
        return static_cast<qint64>(*real);
    }
    return number;
}

Cell ConvertToReal(const Cell& value) {
    Cell number =
        std::holds_alternative<QString>(value) ? NumberFromText(std::get<QString>(value)) : value;
    const auto* whole = std::get_if<qint64>(&number);
    return whole != nullptr ? Cell(static_cast<double>(*whole)) : number;
}

} // namespace

bool IsNull(const Cell& cell) {
    return cell.index() == 0;
}

QString CellText(const Cell& cell) {
    if (const auto* text = std::get_if<QString>(&cell)) {
        return *text;
    }
    if (const auto* whole = std::get_if<qint64>(&cell)) {
        return QString::number(*whole);
    }
    const auto* real = std::get_if<double>(&cell);
    return real != nullptr ? DecimalText(*real) : QString();
}

double CellNumber(const Cell& cell) {
    if (const auto* text = std::get_if<QString>(&cell)) {
        return LeadingNumber(*text);
    }
    if (const auto* whole = std::get_if<qint64>(&cell)) {
        return static_cast<double>(*whole);
    }
    const auto* real = std::get_if<double>(&cell);
    return real != nullptr ? *real : 0;
}

qint64 CellInteger(const Cell& cell) {
    const auto* whole = std::get_if<qint64>(&cell);
    return whole != nullptr ? *whole : CutToInteger(CellNumber(cell));
}

Cell ConvertCell(const Cell& value, Affinity affinity) {
    switch (affinity) {
    case Affinity::Text:
        return IsNull(value) ? value : Cell(CellText(value));
    case Affinity::Integer:
        return ConvertToInteger(value);
    case Affinity::Real:
        return ConvertToReal(value);
    case Affinity::None:
        break;
    }
    return value;
}

Affinity AffinityOf(const char* declaredType) {
    const QString type = QString::fromUtf8(declaredType).toUpper();
    const auto holds = [&type](const char* word) { return type.contains(QLatin1String(word)); };
    if (holds("INT")) {
        return Affinity::Integer;
    }
    if (holds("CHAR") || holds("CLOB") || holds("TEXT")) {
        return Affinity::Text;
    }
    if (type.isEmpty() || holds("BLOB")) {
        return Affinity::None;
    }
    return holds("REAL") || holds("FLOA") || holds("DOUB") ? Affinity::Real : Affinity::Integer;
}
