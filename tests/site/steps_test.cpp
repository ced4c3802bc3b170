// Steps of a publish and the remaining time.
#include "site/steps.h"

#include "core/flavour.h"
#include "core/settings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
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
    ~StepsTest() override {
        clockStands = 0;
        LoadFlavour(folder.path() + u'/');
        SetStorage(1, {});
    }

    static void SetClock(double secondsOfDay) {
        const QDateTime midnight(QDate(2026, 11, 24), QTime(0, 0));
        clockStands = midnight.toSecsSinceEpoch() * kMicroseconds +
                      qRound64(secondsOfDay * double(kMicroseconds));
    }

    // Of the steps of the run, joined by "|".
    static std::string Texts() {
        QStringList texts;
        for (int step = 0; step < kStepCount; ++step) {
            texts += StepText(step);
        }
        texts.removeAll(QString());
        return texts.join(u'|').toStdString();
    }

    static std::string States() {
        std::string letters;
        for (int step = 0; step < kStepCount; ++step) {
            letters += "tcdf"[static_cast<int>(StateOfStep(step))];
        }
        return letters;
    }

    void UseAgencies() {
        QFile file(folder.filePath("agency/sector.dat"));
        QDir(folder.path()).mkpath("agency");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        for (const char byte :
             QByteArray("ZAND\r\nINMO\r\nZandora\r\nI\r\nI\r\nM\r\nZ\r\nZ\r\nN\r\n")) {
            file.putChar(static_cast<char>(~byte));
        }
        file.putChar('\0');
        file.close();
        LoadFlavour(folder.filePath("agency/"));
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(StepsTest, TheListFollowsStorageAndTradeAndKeepsWhatTheLastRunCameTo) {
    const std::string made = "Generar el Contenido Web|Comprobar y Listar los cambios|";
    const std::string sent = "Conectar con el Servidor Web|Enviar los Ficheros al Servidor Web";
    const std::string saved = "Guardar los Ficheros en Carpeta Local";
    LoadSettings();
    LoadFlavour(folder.path() + u'/');
    SetStorage(1, {});
    SetUpSteps();
    EXPECT_EQ(Texts(), made + sent);
    ResetSteps();
    StartSteps();
    NextStep();
    NextStep();
    StepFailed();
    SetUpSteps();
    EXPECT_EQ(States(), "ddftt");
    SetStorage(0, {});
    SetUpSteps();
    EXPECT_EQ(Texts(), made + saved);
    EXPECT_EQ(States(), "ddttt");
    UseAgencies();
    SetUpSteps();
    EXPECT_EQ(Texts(), made + saved + "|Sincronizar con Vestalia");
    SetStorage(1, {});
    SetUpSteps();
    EXPECT_EQ(Texts(), made + sent + "|Sincronizar con Vestalia");
}

TEST_F(StepsTest, EachChangeShowsInTheCurrentStepAndAFailureStays) {
    ResetSteps();
    EXPECT_EQ(States(), "ttttt");
    StartSteps();
    EXPECT_EQ(States(), "ctttt");
    NextStep();
    EXPECT_EQ(States(), "dcttt");
    StepFailed();
    EXPECT_TRUE(AnyStepFailed());
    NextStep();
    EXPECT_EQ(States(), "dfctt");
    EndSteps();
    EXPECT_EQ(States(), "dfftt");
    ResetSteps();
    StartSteps();
    for (int step = 0; step < kStepCount; ++step) {
        StepDone();
        EndSteps();
        NextStep();
    }
    StepFailed(); // behind the last one, where a sale without a portal ends
    EXPECT_EQ(States(), "ddddd");
    EXPECT_EQ(StepIndex, kStepCount);
    EXPECT_FALSE(AnyStepFailed());
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

TEST_F(StepsTest, AcrossMidnightTheTextIsWhatTheArithmeticGives) {
    SetClock(86390);
    ResetTimeRemaining();
    SetClock(86400 + 10);
    EXPECT_EQ(TimeRemaining(5000, 10000).toStdString(), "-86380 segundos");
}
