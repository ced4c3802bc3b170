// Steps of a publish and the remaining time.
#include "site/steps.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "tests/support/files.h"

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

TEST_F(StepsTest, TheRemainingTimeIsMeasuredAndCountsDownBetweenMeasurements) {
    QString run;
    for (const QStringList& row : ReadTable(TABLES, "run, its second, bytes sent, text shown")) {
        if (std::exchange(run, row[0]) != row[0]) {
            SetClock(43200);
            ResetTimeRemaining();
        }
        SetClock(43200 + row[1].toDouble());
        EXPECT_EQ(TimeRemaining(row[2].toDouble(), 10000), row[3]) << row[0].toStdString();
    }
}
