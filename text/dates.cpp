#include "text/dates.h"

#include "text/numbers.h"

#include <QRegularExpression>

namespace {

constexpr char kPlainPattern[] = "dd/MM/yyyy";
constexpr char kTimePattern[] = "HH:mm:ss";
constexpr char kStoredPattern[] = "yyyy-MM-ddTHH:mm:ss";

// The locale's short date as a pattern of "dd", "MM", "yyyy" and its separators, without quoted
// words ("г.") and invisible direction marks. Where the locale writes out names of months or days,
// as C does, the plain pattern stands in.
QString DatePattern() {
    QString format = CurrentLocale().dateFormat(QLocale::ShortFormat);
    static const QRegularExpression kIdle(QStringLiteral("\\s*'[^']*'\\.?|\\p{Cf}"));
    static const QRegularExpression kWords(QStringLiteral("d{3,}|M{3,}"));
    static const QRegularExpression kDay(QStringLiteral("d+"));
    static const QRegularExpression kMonth(QStringLiteral("M+"));
    static const QRegularExpression kYear(QStringLiteral("y+"));
    format = format.remove(kIdle).trimmed();
    const bool isComplete = format.contains(u'd') && format.contains(u'M') && format.contains(u'y');
    if (!isComplete || format.contains(kWords)) {
        return kPlainPattern;
    }
    return format.replace(kDay, "dd").replace(kMonth, "MM").replace(kYear, "yyyy");
}

// Groups 1 to 3 are the three parts of a date, 4 to 6 hours, minutes and seconds, if there.
const QRegularExpression& DateExpression() {
    static const QRegularExpression kExpression(QRegularExpression::anchoredPattern(
        QStringLiteral(R"((\d{1,4})[^\d:\pL]+(\d{1,4})[^\d:\pL]+(\d{1,4})[^\d:\pL]*?)"
                       R"((?:[T ](\d{1,2}):(\d{2})(?::(\d{2}))?)?)")));
    return kExpression;
}

bool IsStoredText(QStringView text) {
    static const QRegularExpression kStored(QStringLiteral("^\\d{4}-\\d{2}-\\d{2}([T ]|$)"));
    return kStored.match(text).hasMatch();
}

// The date whose parts stand in the order of `pattern`; invalid without a four-digit year.
QDate ArrangeDate(const QRegularExpressionMatch& parts, const QString& pattern) {
    const auto place = [&](QChar letter) {
        int before = 0;
        for (const QChar other : {u'd', u'M', u'y'}) {
            before += pattern.indexOf(other) < pattern.indexOf(letter) ? 1 : 0;
        }
        return before + 1;
    };
    if (parts.capturedLength(place(u'y')) != 4) {
        return {};
    }
    return QDate(parts.capturedView(place(u'y')).toInt(), parts.capturedView(place(u'M')).toInt(),
                 parts.capturedView(place(u'd')).toInt());
}

} // namespace

QString DateText(const QDateTime& moment) {
    return ShortDateText(moment.date()) + u' ' + moment.time().toString(kTimePattern);
}

QString ShortDateText(const QDate& date) {
    return date.toString(DatePattern());
}

QString StoredDateText(const QDateTime& moment) {
    return moment.toString(kStoredPattern);
}

std::optional<QDateTime> ReadDate(QStringView text) {
    const QRegularExpressionMatch parts = DateExpression().match(text.trimmed());
    if (!parts.hasMatch()) {
        return {};
    }
    const QString pattern = IsStoredText(text.trimmed()) ? QString(kStoredPattern) : DatePattern();
    const QDate date = ArrangeDate(parts, pattern);
    const QTime time(parts.capturedView(4).toInt(), parts.capturedView(5).toInt(),
                     parts.capturedView(6).toInt());
    if (!date.isValid() || !time.isValid()) {
        return {};
    }
    return QDateTime(date, time, Qt::UTC);
}

QString ShownDate(const QString& stored) {
    const auto moment = ReadDate(stored);
    return moment ? DateText(*moment) : stored;
}

QString StoredDate(const QString& shown) {
    const auto moment = ReadDate(shown);
    return moment ? StoredDateText(*moment) : shown;
}

QDateTime Now() {
    const QDateTime now = QDateTime::currentDateTime();
    const QTime time(now.time().hour(), now.time().minute(), now.time().second());
    return QDateTime(now.date(), time, Qt::UTC);
}

double SecondsOfDay() {
    constexpr double kMillisecondsPerSecond = 1000;
    return QTime::currentTime().msecsSinceStartOfDay() / kMillisecondsPerSecond;
}
