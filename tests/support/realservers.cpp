#include "tests/support/realservers.h"

#include "tests/support/files.h"
#include "text/ansi.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <grp.h>
#include <linux/capability.h>
#include <pwd.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uid_t kNobody = 65534;  // who runs a server that root starts
constexpr int kLongestRun = 100;  // seconds, after which a forgotten server ends by itself
constexpr int kStartWait = 10000; // milliseconds

// Below the ports that the system hands out by itself.
constexpr int kFirstPort = 12000;
constexpr int kLastPort = 32000;
constexpr int kPassivePorts = 100; // behind the control port

// A server with little room has a small disk, where one can be mounted, or else a bound on its
// files, in bytes. ProFTPD would end its session at that bound, so it is told a lower one.
constexpr char kSmallDisk[] = "size=64k,mode=777";
constexpr char kSmallFiles[] = "MaxStoreFileSize 200 Kb\n";
constexpr rlim_t kFileBound = 300000;

// kServerPassword in Windows-1252, as crypt(3) keeps it.
constexpr char kPasswordHash[] =
    "$6$casa$CnriW34UMT38Vh402F2o65cm0/Q9zFls/spVDqFjYLh9vwGtf4U2Mr66Lx"
    "ais51boSlfsfAPo/AbB0cylwYty1";

bool IsRoot() {
    return geteuid() == 0;
}

uid_t UserOfServers() {
    return IsRoot() ? kNobody : geteuid();
}

// Pure-FTPd ends at once without these rights of root's, which some containers withhold.
bool MayRunPureFTPd() {
    constexpr quint64 kRights = 1ULL << CAP_DAC_READ_SEARCH | 1ULL << CAP_SYS_NICE;
    QFile status("/proc/self/status");
    const QByteArray text = status.open(QIODevice::ReadOnly) ? status.readAll() : QByteArray();
    const QByteArray label = "CapEff:\t";
    const QByteArray rights = text.mid(text.indexOf(label) + label.size(), 16);
    return (rights.toULongLong(nullptr, 16) & kRights) == kRights;
}

QString Program(const QString& name) {
    return SERVERS_FOLDER "/usr/" + name;
}

int FreePort(const QByteArray& host) {
    for (;;) {
        const int port = QRandomGenerator::global()->bounded(kFirstPort, kLastPort);
        if (QTcpServer().listen(QHostAddress(QString::fromLatin1(host)), quint16(port))) {
            return port;
        }
    }
}

// In the new process, before the server's program replaces it. A small disk goes with it.
void ConfineServer(const QByteArray& home, bool asRoot, bool littleRoom) {
    if (littleRoom && (unshare(CLONE_NEWNS) != 0 ||
                       mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
                       mount("tmpfs", home.constData(), "tmpfs", 0, kSmallDisk) != 0)) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit bound{kFileBound, kFileBound};
        setrlimit(RLIMIT_FSIZE, &bound);
    }
    if (IsRoot() && !asRoot) {
        const gid_t group = kNobody;
        if (setgroups(1, &group) != 0 || setgid(group) != 0 || setuid(kNobody) != 0) {
            _exit(EXIT_FAILURE);
        }
    }
    prctl(PR_SET_PDEATHSIG, SIGTERM);
}

} // namespace

QString RealServer::Obstacle(ServerKind kind) {
    if (kind == ServerKind::PureFTPd && !(IsRoot() && MayRunPureFTPd())) {
        return "Pure-FTPd runs for root alone, and in a container with all of root's rights";
    }
    if (kind == ServerKind::ProFTPD && getpwuid(UserOfServers()) == nullptr) {
        return "ProFTPD runs for a user with a name alone";
    }
    const char* const kPrograms[] = {
        "/usr/lib/python3/dist-packages/pyftpdlib", SERVERS_FOLDER "/usr/sbin/proftpd",
        SERVERS_FOLDER "/usr/sbin/vsftpd", SERVERS_FOLDER "/usr/sbin/pure-ftpd"};
    const QString program = kPrograms[static_cast<int>(kind)];
    return QFile::exists(program) ? QString() : program + " is missing: ./test provides it";
}

RealServer::RealServer(ServerKind kindOfServer) : kind(kindOfServer) {
    chmod(folder.path().toUtf8().constData(), 0755);
    MakeFolder({});
}

RealServer::~RealServer() {
    if (process.processId() > 0) {
        kill(pid_t(-process.processId()), SIGKILL); // the group, sessions and all
    }
    process.waitForFinished();
    std::error_code ignored; // a folder of an earlier test harms none
    std::filesystem::remove_all(folder.path().toStdString(), ignored);
}

int RealServer::Start(const ServerChoices& choices) {
    const int port = FreePort(choices.host);
    QStringList command = Prepare(port, choices);
    const QByteArray home = OnDisk({});
    const bool asRoot = kind == ServerKind::PureFTPd;
    if (IsRoot() && chown(folder.path().toUtf8().constData(), kNobody, kNobody) != 0) {
        return 0;
    }
    process.setChildProcessModifier([home, asRoot, littleRoom = choices.littleRoom] {
        ConfineServer(home, asRoot, littleRoom);
    });
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("timeout", QStringList{QString::number(kLongestRun)} + command);
    QTcpSocket visitor;
    const auto ended = [this] { return process.state() == QProcess::NotRunning; };
    const auto speaks = [&] {
        visitor.connectToHost(QString::fromLatin1(choices.host), quint16(port));
        return visitor.waitForConnected() && visitor.waitForReadyRead();
    };
    if (!QTest::qWaitFor([&] { return ended() || speaks(); }, kStartWait) || ended()) {
        qWarning().noquote() << process.readAll();
        return 0;
    }
    return port;
}

QString RealServer::Home() const {
    const bool confined = kind == ServerKind::Pyftpdlib || kind == ServerKind::PureFTPd;
    return confined ? "/" : folder.path() + "/home/";
}

void RealServer::MakeFolder(const QString& path, bool locked) {
    const std::filesystem::path home = OnDisk({}).toStdString();
    std::filesystem::path made = OnDisk(path).toStdString();
    std::filesystem::create_directories(made);
    chmod(made.c_str(), locked ? 0555 : 0755);
    for (; IsRoot() && made.string().size() >= home.string().size(); made = made.parent_path()) {
        if (chown(made.c_str(), kNobody, kNobody) != 0) {
            qFatal("No folder for the server");
        }
    }
}

QMap<QString, QByteArray> RealServer::Files(const QString& path) const {
    QMap<QString, QByteArray> files;
    for (const auto& entry : std::filesystem::directory_iterator(OnDisk(path).toStdString())) {
        if (entry.is_regular_file()) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string content(std::istreambuf_iterator<char>(file), {});
            const auto name = QByteArray::fromStdString(entry.path().filename());
            files[kind == ServerKind::Pyftpdlib ? QString::fromUtf8(name) : FromAnsi(name)] =
                QByteArray::fromStdString(content);
        }
    }
    return files;
}

QList<QByteArray> RealServer::Commands() const {
    // What stands before a command in a line, and behind it.
    const struct {
        QByteArray before;
        QByteArray after;
    } kLines[] = {{"<- ", ""}, {"", ""}, {"FTP command: Client \"127.0.0.1\", \"", "\""}, {"", ""}};
    const auto& [before, after] = kLines[static_cast<int>(kind)];
    QList<QByteArray> commands;
    QFile log(folder.filePath("commands.log"));
    if (log.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : log.readAll().trimmed().split('\n')) {
            const auto at = line.indexOf(before);
            if (at >= 0) {
                commands.push_back(line.mid(at + before.size()).chopped(after.size()));
            }
        }
    }
    return commands;
}

QStringList RealServer::Prepare(int port, const ServerChoices& choices) {
    switch (kind) {
    case ServerKind::Pyftpdlib:
        return PreparePyftpdlib(port, choices);
    case ServerKind::ProFTPD:
        return PrepareProFTPD(port, choices);
    case ServerKind::Vsftpd:
        return PrepareVsftpd(port, choices);
    case ServerKind::PureFTPd:
        return PreparePureFTPd(port, choices);
    }
    return {};
}

QStringList RealServer::PreparePyftpdlib(int port, const ServerChoices& choices) {
    return {"/usr/bin/python3",
            "-W",
            "ignore",
            Write("server.py", ReadFile(SETTINGS_FOLDER "/pyftpdlib.py")),
            choices.host,
            QString::number(port),
            QString::number(port + kPassivePorts),
            folder.filePath("home"),
            folder.filePath("commands.log"),
            kServerUser,
            kServerPassword};
}

// A settings file with the server's place in it and `more` behind.
QString RealServer::WriteSettings(const QString& name, int port, const ServerChoices& choices,
                                  const QByteArray& more) {
    const passwd* user = getpwuid(UserOfServers());
    const std::pair<const char*, QByteArray> kPlaces[] = {
        {"@HOST@", choices.host},
        {"@PORT@", QByteArray::number(port)},
        {"@FIRST@", QByteArray::number(port + 1)},
        {"@LAST@", QByteArray::number(port + kPassivePorts)},
        {"@USER@", user->pw_name},
        {"@GROUP@", getgrgid(user->pw_gid)->gr_name},
        {"@FOLDER@", folder.path().toUtf8()},
        {"@WELCOME@", Write("welcome", ReadFile(SETTINGS_FOLDER "/welcome")).toUtf8()},
    };
    QByteArray settings = ReadFile(SETTINGS_FOLDER "/" + name);
    for (const auto& [mark, value] : kPlaces) {
        settings.replace(mark, value);
    }
    return Write("server.conf", settings + more);
}

QStringList RealServer::PrepareProFTPD(int port, const ServerChoices& choices) {
    const passwd* user = getpwuid(UserOfServers());
    const QByteArray ids =
        QByteArray::number(user->pw_uid) + ":" + QByteArray::number(user->pw_gid);
    const QByteArray rest =
        QByteArray(":") + kPasswordHash + ":" + ids + "::" + OnDisk({}) + ":/bin/sh\n";
    Write("accounts", QByteArray(kServerUser) + rest + "anonymous" + rest);
    return {CopyProgram("proftpd"), "-n", "-c",
            WriteSettings("proftpd.conf", port, choices, choices.littleRoom ? kSmallFiles : "")};
}

QStringList RealServer::PrepareVsftpd(int port, const ServerChoices& choices) {
    const QByteArray listen = choices.host.contains(':')
                                  ? "listen=NO\nlisten_ipv6=YES\nlisten_address6="
                                  : "listen=YES\nlisten_address=";
    return {CopyProgram("vsftpd"),
            WriteSettings("vsftpd.conf", port, choices, listen + choices.host + "\n")};
}

QStringList RealServer::PreparePureFTPd(int port, const ServerChoices& choices) {
    const QByteArray ids = QByteArray::number(kNobody) + ":" + QByteArray::number(kNobody);
    const QString accounts = Write("accounts", QByteArray(kServerUser) + ":" + kPasswordHash + ":" +
                                                   ids + "::" + OnDisk({}) + "/./::::::::::::\n");
    const QString index = folder.filePath("accounts.pdb");
    QProcess::execute(Program("bin/pure-pw"), {"mkdb", index, "-f", accounts});
    return {Program("sbin/pure-ftpd"),
            "--noanonymous",
            "--dontresolve",
            "--bind",
            choices.host + "," + QByteArray::number(port),
            "--passiveportrange",
            QString("%1:%2").arg(port + 1).arg(port + kPassivePorts),
            "--login",
            "puredb:" + index,
            "--pidfile",
            folder.filePath("pid")};
}

// Into the server's folder, since its user may not reach the build's.
QString RealServer::CopyProgram(const QString& name) {
    QString copy = folder.filePath(name);
    QFile::copy(Program("sbin/" + name), copy);
    chmod(copy.toUtf8().constData(), 0755);
    return copy;
}

// Into the server's own file, which nobody else reads.
QString RealServer::Write(const char* name, const QByteArray& content) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        fchmod(file.handle(), 0600) != 0 ||
        (IsRoot() && fchown(file.handle(), kNobody, kNobody) != 0)) {
        qFatal("No file for the server");
    }
    return file.fileName();
}

QByteArray RealServer::OnDisk(const QString& path) const {
    const QByteArray name = kind == ServerKind::Pyftpdlib ? path.toUtf8() : ToAnsi(path);
    return folder.path().toUtf8() + "/home" + (path.isEmpty() ? "" : "/") + name;
}
