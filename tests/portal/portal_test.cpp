// The portal's stage of a run against a portal that a test scripts: the bytes of every request, and
// what becomes of them when the portal misbehaves.
#include "portal/session.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "forms/mainform.h"
#include "images/picturefile.h"
#include "platform/events.h"
#include "platform/usersettings.h"
#include "portal/login.h"
#include "portal/pool.h"
#include "portal/products.h"
#include "site/abort.h"
#include "site/steps.h"
#include "tests/support/catalogue.h"
#include "tests/support/files.h"
#include "tests/support/portalpeer.h"
#include "tests/support/testpictures.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

constexpr char kHomes[] = R"(
    def; 6; I; Dueño
    product; 10001; PI-1; 100.5; 0; Norte & Sur; 2026-01-01T10:00:00
    product; 10002; PI-2; NULL; 1; NULL; 2026-01-01T10:00:00
    product; 10003; PI-3; 5; 0; NULL; 2026-01-01T10:00:00
    product; 10004; PI-4; 5; 2; NULL; 2026-01-01T10:00:00
    fields; 10001; 80 m2; 1; ; 2; 0; 1; secreto
    texts; Products; 10001; ES; Ático con luz; Dos líneas:\na+b=c 5 €
    texts; Products; 10001; EN; Flat; Light
    picture; 10001; 1; 0
    picture; 10001; 2; 1
    picture; 10001; 3; 2)";

QString ManyHomes(int count) {
    QString rows;
    for (int home = 0; home < count; ++home) {
        rows += QString("product; %1; R%1; 1; 0; Z; 2026-01-01T10:00:00\n").arg(10000 + home);
    }
    return rows;
}

const QByteArray kAgent = LoginPage("Set-Cookie: s=1; path=/; x\r\n", "<!--AgentId=1234-->");

// Logs in with kAgent on the first connection and goes on with `others`.
PortalPeer::Manners After(const PortalPeer::Manners& others, const QByteArray& page = kAgent) {
    return [others, page](int connection) {
        return connection == 0 ? PortalManners{.answer = page} : others(connection);
    };
}

PortalManners Good(int /*connection*/) {
    return {};
}

class Portal : public testing::Test {
protected:
    Portal() { LoadFlavour("/nowhere/"); }

    ~Portal() override {
        ResetPortal({});
        ClosePortalSockets();
        wskPortal(0).Close();
    }

    // A whole run with a catalogue of these rows; the letter of its step.
    char Run(const PortalPeer::Manners& manners, const QString& rows, const QString& deleted = {},
             const QString& user = "ana@casas.example") {
        peer = std::make_unique<PortalPeer>(manners);
        PortalPort = peer->Port();
        SaveSetting(AppName, "Vestalia", "VSurl", host);
        SaveSetting(AppName, "Params", "DeletedItems", deleted);
        catalogue.reset();
        catalogue = std::make_unique<TestCatalogue>(kAgencyFields + rows);
        for (int picture : {1000101, 1000103}) {
            const QSize size = picture == 1000101 ? QSize(80, 60) : QSize(100, 150);
            WriteFile(catalogue->Folder() + QString("Pic%1.dat").arg(picture),
                      MakeJpeg(FourFields(size)));
        }
        SetPortalAccount(user, "a&b c=ñ+%");
        SetAbortPublish(false);
        ResetSteps();
        StartSteps();
        SiteSnapshot& snapshot = catalogue->Snapshot();
        snapshot[kSnapProducts].SetFilter({{u"ProductRef", u"of the last page"}});
        PortalSync(snapshot);
        return "tcdf"[static_cast<int>(StateOfStep(StepIndex))];
    }

    void CancelWhen(const std::function<bool()>& due) {
        QObject::connect(&clock, &QTimer::timeout, &clock, [this, due] {
            if (due() && !AbortPublish) {
                SetAbortPublish(true);
                sinceCancel.start();
            }
        });
        clock.start(5);
    }

    // Connections that the program makes by itself from now on.
    int NewConnections() const {
        const int before = peer->Connections();
        for (int served = 0; served < 10; ++served) {
            WaitForEvents(5);
        }
        return peer->Connections() - before;
    }

    std::string Names() const {
        QStringList names;
        for (const PortalJob& job : PortalJobs) {
            names += job.Name + QString::number(job.State);
        }
        return names.join(u' ').toStdString();
    }

    QString host = "localhost";
    std::unique_ptr<PortalPeer> peer;
    std::unique_ptr<TestCatalogue> catalogue;
    QTimer clock;
    QElapsedTimer sinceCancel;
};

// As requests.txt has it: a JPEG by its size, a length as whether it is that of the body.
QByteArray Shown(QByteArray request) {
    const QByteArray start = "\xFF\xD8\xFF";
    const QByteArray end = "\r\n--7d61";
    const QByteArray body = request.mid(request.indexOf("\r\n\r\n") + 4);
    request.replace("Content-Length: " + QByteArray::number(body.size()), "Content-Length: (body)");
    for (qsizetype at = 0; (at = request.indexOf(start, at)) >= 0; ++at) {
        const qsizetype length = request.indexOf(end, at) - at;
        const QSize size = ReadPictureBytes(request.mid(at, length), "test").naturalSize;
        request.replace(at, length,
                        '(' + QByteArray::number(size.width()) + 'x' +
                            QByteArray::number(size.height()) + ')');
    }
    QByteArrayList lines;
    for (const QByteArray& line : request.replace("\r\n", "\n").split('\n')) {
        lines += Escaped(line);
    }
    return lines.join('\n');
}

// Save requests that have come, each home counted once.
qsizetype HomesOf(const QList<QByteArray>& requests) {
    QSet<QByteArray> homes;
    for (const QByteArray& request : requests) {
        const qsizetype at = request.indexOf("\r\n\r\nProductId=");
        if (at >= 0) {
            homes += request.mid(at, 30);
        }
    }
    return homes.size();
}

} // namespace

TEST_F(Portal, EveryRequestIsWhatThePortalExpects) {
    host = "127.0.0.1";
    const QByteArray page = kAgent + "<!--ProductId=1000--><!--ProductId=10003--><!--ProductId=1";
    EXPECT_EQ(Run(After(Good, page), kHomes, "P10009|I1000903"), 'd');
    EXPECT_EQ(Names(), "PI-22 Fotografia2 PI-12 Fotografia2 Eliminar2 Eliminar2");
    QByteArrayList expected;
    for (const TextCase& request : ReadCases(CASES)) {
        if (request.name.startsWith("requests.txt")) {
            expected += request.lines.join('\n');
        }
    }
    QByteArrayList got;
    for (const QByteArray& request : peer->Requests()) {
        got += Shown(request);
    }
    std::sort(expected.begin(), expected.end());
    std::sort(got.begin(), got.end());
    ASSERT_EQ(got.size(), expected.size());
    for (qsizetype place = 0; place < got.size(); ++place) {
        EXPECT_EQ(got[place].toStdString(), expected[place].toStdString());
    }
    EXPECT_EQ(PortalProblem, "Fotografías que no se han podido leer para Vestalia: 1.");
}

TEST_F(Portal, ALogInIsGoodByTheAgentsComment) {
    for (const QStringList& row : ReadTable(CASES "/logins.txt", "answers")) {
        const QByteArray answer = LoginPage(row[1].toLatin1(), row[2].toLatin1());
        const char letter =
            Run([answer](int) { return PortalManners{.answer = answer, .piece = 1}; }, {});
        EXPECT_EQ(letter, row[3][0].toLatin1()) << row[0].toStdString();
        EXPECT_EQ(PortalCookie, row[5].toLatin1()) << row[0].toStdString();
        EXPECT_TRUE(letter == 'f' || PortalAgentId == row[4].toLatin1()) << row[0].toStdString();
        EXPECT_EQ(PortalProblem, letter == 'd' ? "" : "Vestalia no admite el usuario o la clave.");
        EXPECT_EQ(peer->Connections(), 1);
    }
}

TEST_F(Portal, AFaultOfThePortalIsNotTakenForAWrongPassword) {
    const std::pair<QByteArray, const char*> kAnswers[] = {
        {"", "Vestalia ha cortado la conexión sin contestar."},
        {"HTTP/1.1 500 No\r\n\r\n", "Vestalia ha contestado con un error (500)."},
        {"HTTP/1.0 200 OK\r\n\r\n", "Vestalia no admite el usuario o la clave."}};
    for (const auto& [answer, problem] : kAnswers) {
        const QByteArray said = answer;
        EXPECT_EQ(Run([said](int) { return PortalManners{.answer = said}; }, {}), 'f');
        EXPECT_EQ(PortalProblem, problem);
    }
    SocketPace = 0;
    QString told;
    static QString* activity = nullptr;
    activity = &told;
    ListenToPublish({.activity = [](const QString& text) { *activity += text + '|'; }});
    EXPECT_EQ(Run(
                  [](int connection) {
                      return PortalManners{.answer = kAgent, .resetAt = connection < 3 ? 0 : -1};
                  },
                  {}),
              'd');
    ListenToPublish({});
    EXPECT_EQ(told.count("Vestalia no responde. Se vuelve a intentar..."), 3);
}

TEST_F(Portal, WithoutAUserOrAHostNothingIsSent) {
    EXPECT_EQ(Run(Good, {}, {}, ""), 'f');
    EXPECT_EQ(PortalProblem, "Falta el usuario de Vestalia: Configuración, Otras Webs.");
    EXPECT_EQ(peer->Connections(), 0);
    const QString long70 = QString(70, u'a') + ".invalid"; // asks no name server
    for (const QString& name : {QString(), long70, QString("127.0.0.1/x"), QString("a b")}) {
        host = name;
        EXPECT_EQ(Run(Good, {}), 'f') << name.toStdString();
        EXPECT_EQ(PortalProblem, name.isEmpty()
                                     ? "No hay ninguna dirección de Vestalia."
                                     : "No se encuentra el servidor de Vestalia (" + name + ").");
        EXPECT_EQ(peer->Connections(), 0);
    }
}

TEST_F(Portal, NoSettingAndNoAnswerBeginsAHeaderLine) {
    host = "127.0.0.1\r\nX-Smuggled: 1";
    const QByteArray cookie = "Set-Cookie: a\nX-Smuggled: 2\r\n";
    const QByteArray page = LoginPage(cookie, "<!--AgentId=1\r\nX-Smuggled: 3-->");
    EXPECT_EQ(Run(After(Good, page), ManyHomes(1), "P1\r\nX-Smuggled: 4|P2"), 'd');
    const QList<QByteArray> requests = peer->Requests();
    EXPECT_EQ(requests.size(), 5);
    for (const QByteArray& request : requests) {
        EXPECT_FALSE(request.first(request.indexOf("\r\n\r\n")).contains("Smuggled"));
    }
}

// What the log-in earns counts as the first job.
TEST_F(Portal, NothingToSendEndsAtOnceAndOneRequestGoesOutBehindTheRun) {
    EXPECT_EQ(Run(After(Good), {}), 'd');
    EXPECT_EQ(peer->Connections(), 1);
    EXPECT_FALSE(PortalGoesOut());
    EXPECT_EQ(Run(After(Good), {}, "P1"), 'd');
    FinishPortal(5000);
    EXPECT_EQ(peer->Requests().size(), 2);
    const auto resetsTwice = [](int connection) {
        return PortalManners{.resetAt = connection < 3 ? 20 : -1};
    };
    EXPECT_EQ(Run(After(resetsTwice), {}, "I2"), 'd');
    FinishPortal(5000);
    EXPECT_EQ(peer->Requests().size(), 2);
    EXPECT_FALSE(PortalGoesOut());
    EXPECT_EQ(Run(After(Good), {}, "I1|P1"), 'd');
    EXPECT_EQ(peer->Requests().size(), 3);
}

TEST_F(Portal, ACancelEndsEveryWaitAndDropsWhatIsLeft) {
    SocketPace = 5;
    const auto mute = [](int) {
        return PortalManners{.answer = "x", .end = PortalManners::End::StayOpen};
    };
    const auto resets = [](int) { return PortalManners{.resetAt = 100}; };
    const auto resetsAtOnce = [](int) { return PortalManners{.resetAt = 0}; };
    const struct {
        const char* situation;
        PortalPeer::Manners manners;
        int connections; // at which the user cancels
    } kCases[] = {
        {"log-in without an answer", mute, 1},
        {"log-in reset", resets, 5},
        {"jobs without an answer", After(mute), 9},
        {"jobs reset", After(resetsAtOnce), 20},
    };
    for (const auto& one : kCases) {
        SetAbortPublish(false);
        CancelWhen([this, &one] { return peer && peer->Connections() >= one.connections; });
        EXPECT_EQ(Run(one.manners, ManyHomes(20), "P1"), 'f') << one.situation;
        EXPECT_LT(sinceCancel.elapsed(), 1000) << one.situation;
        clock.disconnect(&clock);
        EXPECT_EQ(Names(), "0") << one.situation;
        EXPECT_EQ(PortalProblem, "") << one.situation;
        EXPECT_LE(NewConnections(), 1) << one.situation;
    }
}

// Cut at any byte of the request, before it, behind the answer; closed while idle, before the
// answer, or left open behind it. What breaks is sent again, what ends in order is done.
TEST_F(Portal, AThousandResetsLoseNoRequest) {
    SocketPace = 0;
    constexpr int kResets = 1000;
    QRandomGenerator random(20261125);
    const auto moody = [&random](int connection) {
        PortalManners how;
        if (connection <= kResets && random.bounded(10) > 0) {
            how.resetAt = random.bounded(3) == 0 ? 0 : random.bounded(1, 250'000);
        } else if (connection <= kResets) {
            how.end = PortalManners::End::Reset;
        }
        return how;
    };
    const QByteArray cookie = "Set-Cookie: " + QByteArray(200'000, 'c') + "\r\n";
    const QByteArray page = LoginPage(cookie, "<!--AgentId=1-->");
    EXPECT_EQ(Run(After(moody, page), ManyHomes(50), "P1|I2"), 'd');
    QSet<QByteArray> got; // no two are equal
    for (const QByteArray& request : peer->Requests()) {
        got += request;
    }
    EXPECT_EQ(got.size(), 1 + 50 + 50 + 2);
    EXPECT_GT(peer->Connections(), kResets);
}

TEST_F(Portal, APortalThatClosesEarlyLateOrWithAnErrorGetsEverything) {
    using End = PortalManners::End;
    const QByteArray error = "HTTP/1.1 500 No\r\nContent-Length: 3\r\n\r\nNo!";
    const std::pair<const char*, PortalManners> kCases[] = {
        {"error pages", {.answer = error}},
        {"kept alive, closed when idle", {.answer = error, .end = End::StayOpen, .idle = 100}},
        {"no answer", {.answer = ""}},
        {"closes idle connections at once", {.idle = 1}},
    };
    for (const auto& [situation, how] : kCases) {
        const PortalManners manners = how;
        EXPECT_EQ(Run(After([manners](int) { return manners; }), ManyHomes(40), "P1"), 'd');
        if (how.idle != 1) { // a request may meet the end of a connection, which finishes it
            EXPECT_EQ(HomesOf(peer->Requests()), 40) << situation;
        }
        for (const PortalJob& job : PortalJobs) { // what has gone is not kept
            EXPECT_TRUE(job.State == kJobFinished && job.Request.isEmpty()) << situation;
        }
        EXPECT_LE(NewConnections(), 1) << situation;
    }
}

TEST_F(Portal, AHugeLogInPageAndAHugeCookieAreTaken) {
    const QByteArray cookie = "Set-Cookie: " + QByteArray(1 << 20, 'c') + "\r\n";
    const QByteArray page = QByteArray(50 << 20, '-') + "<!--AgentId=1--><!--ProductId=10001-->";
    EXPECT_EQ(Run(After(Good, LoginPage(cookie, page)), ManyHomes(20)), 'd');
    EXPECT_EQ(HomesOf(peer->Requests()), 19);
    EXPECT_GT(peer->Requests().last().size(), 1 << 20);
}

TEST_F(Portal, NoMoreThanSomeMegabytesWaitForASlowPortal) {
    const QByteArray page =
        LoginPage("Set-Cookie: " + QByteArray(1 << 20, 'c') + "\r\n", "<!--AgentId=1-->");
    const auto mute = [](int) {
        return PortalManners{.answer = "x", .end = PortalManners::End::StayOpen};
    };
    qsizetype most = 0;
    CancelWhen([&most, ticks = 0]() mutable {
        qsizetype bytes = 0;
        for (const PortalJob& job : PortalJobs) {
            bytes += job.Request.size();
        }
        most = std::max(most, bytes);
        return ++ticks > 60;
    });
    EXPECT_EQ(Run(After(mute, page), ManyHomes(40)), 'f');
    EXPECT_GT(most, 32 << 20);
    EXPECT_LT(most, 34 << 20);
}

TEST_F(Portal, AnIdleConnectionTakesTheNextRequestAndHasItSentAgainWhenItIsJustClosed) {
    Run([](int connection) { return PortalManners{.deaf = connection == 0}; }, {}, {}, "");
    SetPortalLoggedIn();
    for (int index = 0; index < kPortalSockets; ++index) {
        PortalConnect(index);
        EXPECT_TRUE(WaitForPortal([&] { return wskPortal(index).State() == kSocketConnected; }));
    }
    PortalQueueRequest("Eliminar", "GET /x HTTP/1.0\r\n\r\n", false);
    PortalQueueRequest("Eliminar", "GET /y HTTP/1.0\r\n\r\n", false);
    FinishPortal(5000);
    EXPECT_EQ(peer->Requests().size(), 2);
}

TEST(PortalWords, KindsOfPropertyHaveTheNumbersOfThePortal) {
    const std::pair<const char*, int> kKinds[] = {
        {"Obra Nueva", 0}, {"venta", 1},    {"PISOS", 1},           {"piso", 1},
        {"casas", 2},      {"terrenos", 3}, {"alquiler", 4},        {"Fincas rusticas", 8},
        {"LOCALES", 9},    {"garages", 10}, {"Fincas rústicas", 1}, {" CASAS", 1},
        {"&nbsp;", 1}};
    for (const auto& [text, number] : kKinds) {
        EXPECT_EQ(PortalPropertyType(text), number) << text;
    }
}
