#include "text/dates.h"

#include "text/numbers.h"

#include <ctime>
#include <gtest/gtest.h>

namespace {

const QDateTime kMoment(QDate(2026, 4, 5), QTime(3, 45, 7), Qt::UTC);

} // namespace

TEST(Dates, DateTextIsTheLocalesAndReadBackExactly) {
    const std::pair<QLocale, const char*> cases[] = {
        {QLocale(QLocale::Spanish, QLocale::Spain), "05/04/2026 03:45:07"},
        {QLocale(QLocale::English, QLocale::UnitedStates), "04/05/2026 03:45:07"},
        {QLocale(QLocale::German, QLocale::Germany), "05.04.2026 03:45:07"},
        {QLocale(QLocale::Swedish, QLocale::Sweden), "2026-04-05 03:45:07"},
        {QLocale(QLocale::Hungarian, QLocale::Hungary), "2026. 04. 05. 03:45:07"},
        {QLocale(QLocale::Bulgarian, QLocale::Bulgaria), "05.04.2026 03:45:07"},
        {QLocale::c(), "05/04/2026 03:45:07"},
    };
    for (const auto& [locale, text] : cases) {
        UseNumberLocale(locale);
        EXPECT_EQ(DateText(kMoment).toStdString(), text);
        EXPECT_EQ(ReadDate(ShortDateText(kMoment.date())), kMoment.date().startOfDay(Qt::UTC));
        EXPECT_EQ(ReadDate(StoredDateText(kMoment)), kMoment) << text;
    }
    UseNumberLocale(QLocale::system());
}

TEST(Dates, EveryLocaleReadsItsOwnText) {
    const QList<QLocale> locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    ASSERT_GT(locales.size(), 100);
    for (const QLocale& locale : locales) {
        UseNumberLocale(locale);
        EXPECT_EQ(ReadDate(DateText(kMoment)), kMoment)
            << locale.name().toStdString() << ' ' << DateText(kMoment).toStdString();
    }
    UseNumberLocale(QLocale::system());
}

TEST(Dates, OtherTextsAreNoDate) {
    UseNumberLocale(QLocale(QLocale::Spanish, QLocale::Spain));
    for (const char* text :
         {"", "hoy", "12", "31/02/2026", "13/13/2026", "5/4/26", "05/04/2026 25:00:00",
          "05/04/2026x", "2026-04-05T03:45:07Z", "05/04/2026 03:45:07 07", "2026-4"}) {
        EXPECT_FALSE(ReadDate(QString::fromUtf8(text))) << text;
    }
    EXPECT_EQ(ReadDate(u"2026-04-05 03:45:07"), kMoment);
    EXPECT_EQ(ReadDate(u"5/4/2026 3:45:07"), kMoment); // as older catalogues have it
    UseNumberLocale(QLocale::system());
}

TEST(Dates, HourThatSummerTimeLeavesOutIsKept) {
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "Europe/Madrid");
    ::tzset();
    const std::optional<QDateTime> moment = ReadDate(u"2026-03-29T02:30:00");
    ASSERT_TRUE(moment && moment->isValid());
    EXPECT_EQ(StoredDateText(*moment), "2026-03-29T02:30:00");
    zone.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", zone);
    ::tzset();
}
