// A site sent to a server on the loopback by the program and by lftp in turn, at once and with 20
// milliseconds each way on every byte: 2,000 files of 8 KB and 200 of 60 KB. Then the memory that
// sending takes and the time that the control file takes. Every upload is compared byte for byte.
// Prints medians and ratios. A number as argument bounds the files that are sent over the delay:
// all of them take half an hour.
#include "bench/delayrelay.h"
#include "bench/measure.h"
#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/notify.h"
#include "publish/ftp.h"
#include "publish/md5control.h"
#include "site/abort.h"
#include "site/md5.h"
#include "site/steps.h"
#include "tests/support/realservers.h"
#include "transfer/transfer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <cstdio>
#include <optional>

namespace {

constexpr int kDelay = 20; // milliseconds each way
constexpr int kRepetitions = 5;
constexpr int kDelayedRepetitions = 1; // the delay, which is no chance, outweighs all else
constexpr int kDelayedFiles = 300;     // of a site, unless the argument says otherwise
constexpr ServerKind kKind = ServerKind::Vsftpd;

// On the control connection: USER, PASS, PWD, CWD, TYPE.
constexpr int kSessionCommands = 5;
const QList<QByteArray> kFileCommands = {"EPSV", "STOR"};

std::vector<OutputFile> MakeSite(int count, int bytes) {
    std::vector<OutputFile> files;
    for (int file = 0; file < count; ++file) {
        QByteArray data(bytes, '\0');
        for (qsizetype at = 0; at < data.size(); ++at) {
            data[at] = static_cast<char>(at * 31 + at / 256 + file);
        }
        files.push_back({QString("producto%1.html").arg(file), {}, MD5Bytes(data), false, data});
    }
    return files;
}

void WriteSite(const std::vector<OutputFile>& files, const QString& folder) {
    for (const OutputFile& file : files) {
        QFile written(folder + file.Name);
        if (!written.open(QIODevice::WriteOnly) || written.write(file.Data) != file.Data.size()) {
            qFatal("%s cannot be written", qPrintable(written.fileName()));
        }
    }
}

// A server with an empty folder, near or far.
class Target {
public:
    explicit Target(int delay) {
        Port = server.Start({});
        if (Port == 0) {
            qFatal("The server does not start");
        }
        if (delay > 0) {
            relay.emplace(Port, delay, RelayedProtocol::Ftp);
            Port = relay->Port();
        }
    }

    void Check(const std::vector<OutputFile>& files) const {
        const QMap<QString, QByteArray> arrived = server.Files({});
        for (const OutputFile& file : files) {
            if (arrived.value(file.Name) != file.Data) {
                qFatal("%s did not arrive as it is", qPrintable(file.Name));
            }
        }
    }

    RealServer server{kKind};
    int Port = 0;

private:
    std::optional<DelayRelay> relay;
};

// The program's own sending, with a new control file. Gives seconds.
double SendByProgram(const Target& target, std::vector<OutputFile>& files) {
    const QTemporaryDir store;
    SetStoreFolder(store.path() + "/");
    ResetControlFile();
    SetAbortPublish(false);
    FTPControlPort = target.Port;
    SetFTP("127.0.0.1", target.server.Home(), {}, "clave");
    SetUpSteps();
    StartSteps();
    QElapsedTimer timer;
    timer.start();
    if (!SendFiles(files)) {
        qFatal("The program does not connect");
    }
    const double seconds = double(timer.nsecsElapsed()) / 1e9;
    ineFTPSend().Cancel(); // nobody waits for the good-bye
    return seconds;
}

// The same by lftp as it comes, in one process over one connection. Gives seconds.
double SendByLftp(const Target& target, const QString& folder, const QString& command) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", folder + ".."); // no settings but its own
    environment.insert("LFTP_HOME", folder + "../lftp");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    QElapsedTimer timer;
    timer.start();
    process.start("lftp", {"-c", QString("open -u anonymous,clave -p %1 127.0.0.1; cd %2; %3")
                                     .arg(target.Port)
                                     .arg(target.server.Home(), command)});
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        qFatal("lftp: %s", process.readAllStandardError().constData());
    }
    return double(timer.nsecsElapsed()) / 1e9;
}

std::map<QByteArray, int> CountCommands(const Target& target) {
    std::map<QByteArray, int> counts;
    for (const QByteArray& command : target.server.Commands()) {
        ++counts[command.split(' ').first().toUpper()];
    }
    counts.erase("QUIT"); // nobody waits for it
    return counts;
}

// Whether a file cost two commands, and the session no more than it has to.
bool ProperCommands(const Target& target, int files) {
    const std::map<QByteArray, int> counts = CountCommands(target);
    int all = 0;
    for (const auto& [command, count] : counts) {
        all += count;
    }
    return all == kSessionCommands + int(kFileCommands.size()) * files &&
           std::all_of(kFileCommands.begin(), kFileCommands.end(),
                       [&](const QByteArray& command) { return counts.at(command) == files; });
}

// One site by both programs in turn.
void Compare(int count, int bytes, int delay, int repetitions) {
    std::vector<OutputFile> files = MakeSite(count, bytes);
    const QTemporaryDir place;
    const QString folder = place.path() + "/site/";
    QDir().mkpath(folder);
    WriteSite(files, folder);
    std::vector<double> own, theirs, ratios, starts;
    bool proper = true;
    for (int round = 0; round < repetitions; ++round) {
        for (const bool program : {round % 2 == 0, round % 2 != 0}) {
            const Target target(delay);
            if (program) {
                own.push_back(SendByProgram(target, files));
                proper = proper && ProperCommands(target, count);
            } else {
                starts.push_back(SendByLftp(target, folder, "pwd"));
                theirs.push_back(SendByLftp(target, folder, "mput *"));
            }
            target.Check(files);
        }
        ratios.push_back(own.back() / theirs.back());
    }
    std::printf("%5d files of %2d KB, %2d ms: program %7.3f s, lftp %7.3f s (%.3f s of it its "
                "start), ratio %.2f (%.2f to %.2f); %.2f ms a file against %.2f; EPSV and STOR "
                "alone: %s\n",
                count, bytes / 1024, delay, Median(own), Median(theirs), Median(starts),
                Median(ratios), *std::min_element(ratios.begin(), ratios.end()),
                *std::max_element(ratios.begin(), ratios.end()), Median(own) * 1000 / count,
                Median(theirs) * 1000 / count, proper ? "yes" : "NO");
}

void MeasureMemory() {
    for (const int count : {200, 200, 2000, 20000}) { // the first one is for warming up
        std::vector<OutputFile> files = MakeSite(count, 1024);
        const Target target(0);
        ForgetPeak();
        const int before = Memory("VmRSS:");
        SendByProgram(target, files);
        std::printf("%5d files of 1 KB: peak of memory %d KB above the start\n", count,
                    Memory("VmHWM:") - before);
    }
}

void MeasureControlFile() {
    constexpr int kCount = 20000;
    const QTemporaryDir store;
    SetStoreFolder(store.path() + "/");
    std::vector<OutputFile> files = MakeSite(kCount, 16);
    const auto time = [](const char* what, const auto& work) {
        QElapsedTimer timer;
        timer.start();
        work();
        std::printf("control file, %d %s: %.3f s\n", kCount, what,
                    double(timer.nsecsElapsed()) / 1e9);
    };
    const auto mark = [&](bool expected) {
        for (const OutputFile& file : files) {
            if (IsFileUnchanged(file.Name, file.Md5) != expected) {
                qFatal("%s is marked wrongly", qPrintable(file.Name));
            }
        }
    };
    const auto record = [&] {
        for (const OutputFile& file : files) {
            RecordFileSent(file.Name, file.Md5);
        }
    };
    ResetControlFile();
    time("new ones recorded", record);
    ResetControlFile();
    time("read and marked as unchanged", [&] { mark(true); });
    for (OutputFile& file : files) {
        file.Md5 = MD5Bytes(file.Md5);
    }
    time("marked as changed", [&] { mark(false); });
    time("known ones recorded", record);
}

} // namespace

int main(int argc, char** argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    MainForm form;
    form.show();
    SetStorage(kStorageFTP, {});
    const QString obstacle = RealServer::Obstacle(kKind);
    const bool served = obstacle.isEmpty();
    const bool compared = served && !QStandardPaths::findExecutable("lftp").isEmpty();
    if (!compared) {
        std::printf("Not all is measured: %s\n", served ? "lftp is missing" : qPrintable(obstacle));
    }
    const int delayed = argc > 2 ? atoi(argv[2]) : kDelayedFiles;
    const auto wanted = [&](const char* part) { return argc < 2 || qstrcmp(argv[1], part) == 0; };
    if (wanted("control")) {
        MeasureControlFile();
    }
    if (served && wanted("memory")) {
        MeasureMemory();
    }
    if (compared && wanted("near")) {
        Compare(200, 60 << 10, 0, kRepetitions);
        Compare(2000, 8 << 10, 0, kRepetitions);
    }
    if (compared && wanted("far")) {
        Compare(std::min(200, delayed), 60 << 10, kDelay, kDelayedRepetitions);
        Compare(std::min(2000, delayed), 8 << 10, kDelay, kDelayedRepetitions);
    }
}
