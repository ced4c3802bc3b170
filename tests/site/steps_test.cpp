// Steps of a publish and the remaining time.
#include "site/steps.h"

#include "core/flavour.h"
#include "core/settings.h"

#include <QDateTime>
#include <ctime>
#include <gtest/gtest.h>
#include <sys/time.h>

namespace {

// The time on the system's clock while it is positive: microseconds since 1970.
qint64 clockStands = 0;

constexpr qint64 kMicroseconds = 1'000'000;

} // namespace

// The toolkit asks here for the time of day.
extern "C" int gettimeofday(timeval* time, void* /*zone*/) noexcept {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    const qint64 shown =
        clockStands > 0 ? clockStands : now.tv_sec * kMicroseconds + now.tv_nsec / 1000;
    *time = {shown / kMicroseconds, shown % kMicroseconds};
    return 0;
}

namespace {

class StepsTest : public testing::Test {
protected:
    StepsTest() { LoadFlavour("/nowhere/"); }
    ~StepsTest() override { clockStands = 0; }

    static void SetClock(double secondsOfDay) {
        const QDateTime midnight(QDate(2026, 11, 24), QTime(0, 0));
        clockStands = midnight.toSecsSinceEpoch() * kMicroseconds +
                      qRound64(secondsOfDay * double(kMicroseconds));
    }
};

} // namespace

TEST_F(StepsTest, TheListFollowsTheStorageAndAStepOfTheLastRunKeepsItsStateWhileItIsTheSame) {
    const auto list = [] {
        QStringList steps;
        for (int step = 0; step < kStepCount; ++step) {
            steps += QString("tcdf"[static_cast<int>(StateOfStep(step))]) + StepText(step);
        }
        return steps.join(u'|').toStdString();
    };
    SetStorage(kStorageFTP, {});
    SetUpSteps();
    ResetSteps();
    StartSteps();
    NextStep();
    NextStep();
    StepFailed();
    NextStep();
    SetUpSteps();
    const std::string made = "dGenerar el Contenido Web|dComprobar y Listar los cambios|";
    EXPECT_EQ(list(),
              made + "fConectar con el Servidor Web|cEnviar los Ficheros al Servidor Web|t");
    SetStorage(kStorageLocal, {});
    SetUpSteps();
    EXPECT_EQ(list(), made + "tGuardar los Ficheros en Carpeta Local|t|t");
}

// Each line: seconds since the start, bytes sent of 10,000 and the text that is then shown.
TEST_F(StepsTest, TheRemainingTimeIsMeasuredAndCountsDownBetweenMeasurements) {
    struct Moment {
        double seconds;
        double sent;
        const char* text;
    };
    const std::vector<Moment> kRuns[] = {
        {{0, 0, ""}, {1, 499, "Calculando..."}, {1, 500, "19 segundos"}},
        // Up to 20 seconds each call measures.
        {{10, 5000, "10 segundos"}, {11, 5000, "11 segundos"}, {12, 10000, "0 segundos"}},
        // Above, the first figure counts down, whatever the speed does, until 5 seconds are over.
        {{4, 1000, "32 segundos"},
         {4.5, 5000, "32 segundos"},
         {4.9, 9000, "31 segundos"},
         {5, 1000, "45 segundos"},
         {8, 1000, "42 segundos"},
         {10, 2000, "40 segundos"}},
        // The figure is rounded before it is compared, a half to the even neighbour.
        {{6.6, 1000, "59 segundos"}},
        {{6.61, 1000, "59 segundos"}},
        {{59.5, 5000, "1 minuto(s) "}},
        {{60, 5000, "1 minuto(s) "}},
        {{90, 5000, "2 minuto(s) "}},
        {{150, 5000, "2 minuto(s) "}},
        // Across midnight the text is what the arithmetic gives.
        {{43210, 5000, "-43190 segundos"}},
    };
    for (const auto& run : kRuns) {
        SetClock(43200);
        ResetTimeRemaining();
        for (const Moment& moment : run) {
            SetClock(43200 + moment.seconds);
            EXPECT_EQ(TimeRemaining(moment.sent, 10000).toStdString(), moment.text)
                << moment.seconds;
        }
    }
}
