// 100 homes of 5 pictures sent to a property portal 20 milliseconds away, and the very same
// requests by curl, both with eight connections at a time and one for each request. Pictures are
// rendered on the way, which is measured by itself too. Then the memory that 300 homes of 8
// pictures take where the portal is slower than the rendering. Prints medians, ratios and targets.
// An argument names the part to run: time or memory.
#include "bench/delayrelay.h"
#include "bench/measure.h"
#include "bench/photo.h"
#include "core/flavour.h"
#include "core/settings.h"
#include "forms/mainform.h"
#include "pictures/productpictures.h"
#include "platform/notify.h"
#include "platform/usersettings.h"
#include "portal/pool.h"
#include "portal/session.h"
#include "site/abort.h"
#include "site/steps.h"
#include "tests/support/portalpeer.h"
#include "tests/support/program.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <iostream>

namespace {

constexpr int kDelay = 20;      // milliseconds each way
constexpr int kSlowDelay = 150; // of a portal that the rendering has to wait for
constexpr int kClock = 2;       // milliseconds between two looks at the running program
constexpr char kPeerPart[] = "peer";

constexpr QSize kSmall(240, 180);
constexpr QSize kAsPublished(460, 345);
constexpr QSize kOfTheWeb(1024, 768);

struct Spent {
    double wall = 0, processor = 0; // seconds
};

template <class Work> Spent Measured(const Work& work) {
    const auto now = [](clockid_t clock) {
        timespec moment = {};
        clock_gettime(clock, &moment);
        return double(moment.tv_sec) + double(moment.tv_nsec) * 1e-9;
    };
    const Spent start = {now(CLOCK_MONOTONIC), now(CLOCK_PROCESS_CPUTIME_ID)};
    work();
    return {now(CLOCK_MONOTONIC) - start.wall, now(CLOCK_PROCESS_CPUTIME_ID) - start.processor};
}

// ---------------------------------------------------------------------------------- the portal

// A portal in a process of its own, so that its memory and its work don't count. It closes each
// connection behind its answer, as portals do.
class DistantPortal {
public:
    explicit DistantPortal(int delay) {
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(),
                      {kPeerPart, QString::number(delay), folder.path()});
        if (!process.waitForReadyRead(-1) || (Port = process.readLine().toInt()) == 0) {
            qFatal("The portal does not start");
        }
    }

    // What has come, the log-in first; it ends by that.
    QList<QByteArray> Requests() {
        process.closeWriteChannel();
        process.waitForFinished(-1);
        QList<QByteArray> requests;
        for (QFile file(Name(0)); file.open(QIODevice::ReadOnly);
             file.setFileName(Name(requests.size()))) {
            requests += file.readAll();
            file.close();
        }
        return requests;
    }

    int Port = 0;

private:
    QString Name(qsizetype number) const { return folder.filePath(QString::number(number)); }

    QTemporaryDir folder;
    QProcess process;
};

// The process of a DistantPortal: arguments are the delay and a folder for the requests.
int BePortal(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const PortalPeer peer([](int connection) {
        return connection > 0
                   ? PortalManners()
                   : PortalManners{.answer = LoginPage("Set-Cookie: session=1; path=/\r\n",
                                                       "<!--AgentId=1234-->")};
    });
    const DelayRelay relay(peer.Port(), std::atoi(argv[2]), RelayedProtocol::Other);
    std::cout << relay.Port() << std::endl;
    std::cin.get(); // until the other side closes it
    qsizetype number = 0;
    for (const QByteArray& request : peer.Requests()) {
        QFile file(QString("%1/%2").arg(argv[3]).arg(number++));
        if (!file.open(QIODevice::WriteOnly) || file.write(request) != request.size()) {
            qFatal("Requests cannot be written");
        }
    }
    return 0;
}

// ------------------------------------------------------------------------------- the catalogue

QString Homes(int count, int pictures) {
    QString rows = R"(
        def; 0; T; ESSuperficie
        def; 1; O; ESTipo; ESPisos#ENFlats|ESCasas#ENHouses
        def; 2; T; ESIndividuales
        def; 3; T; ESDobles
        def; 4; T; ESBaños
        def; 5; T; ESAseos
        textdef; Products; 0; ShortDesc
        textdef; Products; 1; LongDesc
    )";
    const QString text =
        QString("Piso muy luminoso con dos balcones, cerca del mercado. ").repeated(15);
    for (int home = 10001; home <= 10000 + count; ++home) {
        rows += QString("product; %1; PI-%1; 250000; 0; Centro; 2026-01-01T10:00:00\n"
                        "fields; %1; 80 m2; 1; 1; 2; 1; 1\n"
                        "texts; Products; %1; ES; Piso céntrico; %2\n")
                    .arg(home)
                    .arg(text);
        for (int picture = 1; picture <= pictures; ++picture) {
            rows += QString("picture; %1; %2; %3\n").arg(home).arg(picture).arg(picture - 1);
        }
    }
    return rows;
}

QByteArray PhotoOf(QSize size) {
    static const QImage photo = MakePhoto();
    QBuffer file;
    photo.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).save(&file, "JPG", 92);
    return file.data();
}

// Each file is there once, under all its names.
void WritePictures(const QString& folder, int homes, int pictures, QSize size) {
    const QString first = folder + "photo.jpg";
    const QByteArray photo = PhotoOf(size);
    QFile file(first);
    if (!file.open(QIODevice::WriteOnly) || file.write(photo) != photo.size()) {
        qFatal("The photograph cannot be written");
    }
    file.close();
    for (int home = 10001; home <= 10000 + homes; ++home) {
        for (int picture = 1; picture <= pictures; ++picture) {
            const QString name = QString("Pic%1%2.dat").arg(home).arg(picture, 2, 10, QChar(u'0'));
            std::filesystem::create_hard_link(first.toStdString(), (folder + name).toStdString());
        }
    }
}

// The program with such homes in it, at the page that shows a publish.
class Agency {
public:
    Agency(int homes, int pictures, QSize size)
        : program(Homes(homes, pictures), Trade::RealEstate) {
        WritePictures(program.Folder(), homes, pictures, size);
        SaveSetting(AppName, "Vestalia", "VSurl", "127.0.0.1");
        LoadSettings();
        SetStoreFolder(program.Folder());
        SetPortalAccount("ana@example.com", "secreta");
        frmMain->ShowTab(kTabPublish);
        SetUpSteps();
        TakeSiteSnapshot(Snapshot);
    }

    ~Agency() { DropSiteSnapshot(Snapshot); }

    SiteSnapshot Snapshot;

private:
    TestProgram program;
};

// ------------------------------------------------------------------------------------ the runs

// What is looked at while the program is at work.
struct Watched {
    double longestStand = 0;  // of the event loop, milliseconds
    qsizetype unfinished = 0; // most bytes of the requests that are
};

Spent SendByProgram(const DistantPortal& portal, Agency& agency, Watched& watched) {
    PortalPort = portal.Port;
    StartSteps();
    QTimer clock;
    QElapsedTimer since;
    QObject::connect(&clock, &QTimer::timeout, &clock, [&] {
        watched.longestStand = std::max(watched.longestStand, double(since.nsecsElapsed()) / 1e6);
        since.start();
        qsizetype bytes = 0;
        for (const PortalJob& job : PortalJobs) {
            bytes += job.State == kJobFinished ? 0 : job.Request.size();
        }
        watched.unfinished = std::max(watched.unfinished, bytes);
    });
    clock.setTimerType(Qt::PreciseTimer);
    clock.start(kClock);
    since.start();
    const Spent spent = Measured([&] { PortalSync(agency.Snapshot); });
    if (!PortalProblem.isEmpty() || AnyStepFailed()) {
        qFatal("The portal's step: %s", qPrintable(PortalProblem));
    }
    ResetPortal({});
    ClosePortalSockets();
    wskPortal(0).Close();
    return spent;
}

// What PortalSync renders, and nothing else.
Spent RenderAlone(Agency& agency, double& longest) {
    const TemplateSectionRecord size{.Name = "imagefind.jpg", .Params = "OPTIMALSIZE=460X345;"};
    Recordset& pictures = agency.Snapshot[kSnapPictures];
    pictures.ClearFilter();
    return Measured([&] {
        for (pictures.MoveFirst(); pictures.HasRow(); pictures.MoveNext()) {
            const Spent one = Measured([&] { RenderProductPicture(pictures, size); });
            longest = std::max(longest, one.wall * 1e3);
        }
    });
}

struct ParsedRequest {
    QByteArray method, path, version;
    QByteArrayList headers; // but for the one that curl writes by itself, in order of the alphabet
    QByteArray body;

    bool operator==(const ParsedRequest&) const = default;
};

ParsedRequest Parsed(const QByteArray& request) {
    const qsizetype end = request.indexOf("\r\n\r\n");
    QByteArrayList lines = request.first(end).replace("\r\n", "\n").split('\n');
    const QByteArrayList words = lines.takeFirst().split(' ');
    lines.removeIf([](const QByteArray& line) { return line.startsWith("Content-Length:"); });
    std::sort(lines.begin(), lines.end());
    return {words.value(0), words.value(1), words.value(2), lines, request.mid(end + 4)};
}

// The orders to curl for these requests, with their bodies as files beside it. Gives its name.
QString WriteOrders(const QList<QByteArray>& requests, const QString& folder, int port) {
    QByteArrayList orders;
    for (const QByteArray& bytes : requests) {
        const ParsedRequest request = Parsed(bytes);
        const QString name = QString("%1/%2").arg(folder).arg(orders.size());
        QFile body(name);
        if (!body.open(QIODevice::WriteOnly) || body.write(request.body) != request.body.size()) {
            qFatal("curl's files cannot be written");
        }
        QByteArray order = "url = http://127.0.0.1:" + QByteArray::number(port) + request.path +
                           "\noutput = /dev/null\n" +
                           (request.version == "HTTP/1.0" ? "http1.0\n" : "http1.1\n") +
                           "data-binary = @" + name.toUtf8() + "\nheader = \"Expect:\"\n";
        for (const QByteArray& header : request.headers) {
            order += "header = \"" + header + "\"\n";
        }
        orders += order;
    }
    QFile file(folder + "/orders");
    if (!file.open(QIODevice::WriteOnly) || file.write(orders.join("next\n")) < 0) {
        qFatal("curl's orders cannot be written");
    }
    return file.fileName();
}

Spent SendByCurl(const DistantPortal& portal, const QList<QByteArray>& requests) {
    const QTemporaryDir folder;
    const QString orders = WriteOrders(requests, folder.path(), portal.Port);
    return Measured([&orders] {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start("curl", {"-q", "--no-progress-meter", "--parallel", "--parallel-max",
                               QString::number(kPortalSockets), "--config", orders});
        if (!process.waitForFinished(-1) || process.exitCode() != 0) {
            qFatal("curl does not send");
        }
    });
}

void CheckSame(const QList<QByteArray>& ours, const QList<QByteArray>& theirs) {
    const auto sorted = [](const QList<QByteArray>& requests) {
        std::vector<ParsedRequest> parsed;
        for (const QByteArray& request : requests) {
            parsed.push_back(Parsed(request));
        }
        std::sort(parsed.begin(), parsed.end(), [](const auto& left, const auto& right) {
            return left.path + left.body < right.path + right.body;
        });
        return parsed;
    };
    if (sorted(ours) != sorted(theirs)) {
        qFatal("curl has sent other requests than the program");
    }
}

void CompareTimes(QSize size, int rounds) {
    constexpr int kHomes = 100;
    constexpr int kPictures = 5;
    Agency agency(kHomes, kPictures, size);
    std::vector<double> ours, theirs, rendering, renderingWork, rest, ratios, stands, longest;
    qsizetype bytes = 0;
    for (int round = 0; round < rounds; ++round) {
        double longestPicture = 0;
        Watched watched;
        const Spent alone = RenderAlone(agency, longestPicture);
        DistantPortal portal(kDelay);
        const Spent sent = SendByProgram(portal, agency, watched);
        const QList<QByteArray> requests = portal.Requests();
        if (requests.size() != 1 + 2 * kHomes) {
            qFatal("%d requests have come", int(requests.size()));
        }
        DistantPortal other(kDelay);
        theirs.push_back(SendByCurl(other, requests).wall);
        CheckSame(requests, other.Requests());
        ours.push_back(sent.wall);
        rendering.push_back(alone.wall);
        renderingWork.push_back(alone.processor);
        rest.push_back((sent.processor - alone.processor) / alone.processor);
        ratios.push_back(ours.back() / theirs.back());
        stands.push_back(watched.longestStand);
        longest.push_back(longestPicture);
        bytes = 0;
        for (const QByteArray& request : requests) {
            bytes += request.size();
        }
    }
    std::printf(
        "%4d homes of %d pictures of %d by %d, %.1f MB, %d ms: program %.3f s, curl %.3f s, "
        "ratio %.2f (%.2f to %.2f; target 1.15); rendering alone %.3f s, the rest of "
        "the program's time %.2f of curl's\n",
        kHomes, kPictures, size.width(), size.height(), double(bytes) / 1e6, kDelay, Median(ours),
        Median(theirs), Median(ratios), *std::min_element(ratios.begin(), ratios.end()),
        *std::max_element(ratios.begin(), ratios.end()), Median(rendering),
        (Median(ours) - Median(rendering)) / Median(theirs));
    std::printf("     processor: rendering %.3f s, beyond it %.1f %% of that (target under 10); "
                "longest stand of the event loop %.1f ms, longest picture alone %.1f ms (target "
                "of the difference 100)\n",
                Median(renderingWork), Median(rest) * 100, Median(stands), Median(longest));
}

void MeasureMemory() {
    constexpr int kHomes = 300;
    constexpr int kPictures = 8;
    Agency agency(kHomes, kPictures, kOfTheWeb);
    double longestPicture = 0;
    RenderAlone(agency, longestPicture); // what the pipeline keeps is none of the portal's
    DistantPortal portal(kSlowDelay);
    Watched watched;
    ForgetPeak();
    const int before = Memory("VmRSS:");
    const Spent spent = SendByProgram(portal, agency, watched);
    const int peak = Memory("VmHWM:") - before;
    const double unfinished = double(watched.unfinished) / 1024;
    std::printf("%4d homes of %d pictures, %d ms, %.1f s: peak of memory %d KB above the start, of "
                "unfinished requests %.0f KB, ratio %.2f (target 2); longest stand of the event "
                "loop %.1f ms\n",
                kHomes, kPictures, kSlowDelay, spent.wall, peak, unfinished, peak / unfinished,
                watched.longestStand);
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 4 && qstrcmp(argv[1], kPeerPart) == 0) {
        return BePortal(argc, argv);
    }
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    Application application(argc, argv);
    const auto wanted = [&](const char* part) { return argc < 2 || qstrcmp(argv[1], part) == 0; };
    if (wanted("time")) {
        if (QStandardPaths::findExecutable("curl").isEmpty()) {
            std::printf("Nothing to compare with: curl is missing\n");
            return 2;
        }
        CompareTimes(kSmall, 5);
        CompareTimes(kAsPublished, 5);
        CompareTimes(kOfTheWeb, 5);
    }
    if (wanted("memory")) {
        MeasureMemory();
    }
    return 0;
}
