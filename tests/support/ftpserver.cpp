#include "tests/support/ftpserver.h"

#include "tests/support/files.h"
#include "tests/support/sockets.h"

#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

namespace {

const QHash<QByteArray, QList<QByteArray>> kUsualAnswers = {
    {"*", {"< 220-Welcome", "< 220 of two lines"}},
    {"USER", {"< 331 Password, please"}},
    {"PASS", {"< 230 Come in"}},
    {"PWD", {"< 257 \"/\" it is"}},
    {"CWD", {"< 250 There"}},
    {"MKD", {"< 257 Made"}},
    {"TYPE", {"< 200 Fine"}},
    {"EPSV", {"< 229 Here (|||PORT|)"}},
    {"STOR", {"< 150 Go on", "= *", "< 226 Kept"}},
    {"QUIT", {"< 221 Bye", "! close"}},
};

QByteArray Shown(const QByteArray& bytes) {
    return bytes.size() > 300 ? QByteArray::number(bytes.size()) + " bytes" : Escaped(bytes);
}

} // namespace

class FtpSessions : public QObject {
public:
    void Listen() {
        control.listen(QHostAddress::LocalHost);
        connect(&control, &QTcpServer::newConnection, this, &FtpSessions::Accept);
        connect(&passive, &QTcpServer::newConnection, this, &FtpSessions::AcceptFile);
    }

    void Advance();

    FtpRecord record;
    QHash<QByteArray, QList<QByteArray>> answers;
    QList<QByteArray> script; // what is left of it
    bool strict = false;
    QTcpServer control{this};

private:
    void Accept();
    void AcceptFile();
    void Happen(const QByteArray& line, const QByteArray& verb);
    void LookAtFile();
    void Say(QByteArray reply, bool deaf);

    QTcpServer passive{this};
    QPointer<QTcpSocket> session;
    QPointer<QTcpSocket> transfer;
    QByteArray received;
};

int FtpRecord::Count(const QByteArray& verb) const {
    return static_cast<int>(
        std::count_if(commands.begin(), commands.end(), [&verb](const QByteArray& command) {
            return command.split(' ').first() == verb;
        }));
}

FtpServer::FtpServer(const QList<QByteArray>& script) : sessions(new FtpSessions) {
    sessions->answers = kUsualAnswers;
    sessions->script = script;
    sessions->strict = !script.isEmpty();
    sessions->moveToThread(&thread);
    QObject::connect(&thread, &QThread::finished, sessions, &QObject::deleteLater);
    thread.start();
    Do([this] {
        sessions->Listen();
        port = sessions->control.serverPort();
    });
}

FtpServer::~FtpServer() {
    thread.quit();
    thread.wait();
}

void FtpServer::Do(const std::function<void()>& act) const {
    QMetaObject::invokeMethod(sessions, act, Qt::BlockingQueuedConnection);
}

void FtpServer::Answer(const QByteArray& verb, const QList<QByteArray>& lines) {
    Do([&] { sessions->answers[verb] = lines; });
}

void FtpServer::Behave() {
    Do([this] { sessions->answers = kUsualAnswers; });
}

void FtpServer::Play(const QList<QByteArray>& lines) {
    Do([&] {
        sessions->script = lines;
        sessions->Advance();
    });
}

FtpRecord FtpServer::Record() const {
    FtpRecord copy;
    Do([&] { copy = sessions->record; });
    return copy;
}

void FtpServer::ForgetCommands() {
    Do([this] { sessions->record.commands.clear(); });
}

void FtpSessions::Accept() {
    session = control.nextPendingConnection();
    ++record.sessions;
    connect(session, &QTcpSocket::readyRead, this, [this, from = session.data()] {
        while (from->canReadLine()) {
            const QByteArray command = from->readLine().chopped(2);
            record.commands.push_back(command);
            Happen("> " + Escaped(command), command.split(' ').first());
        }
    });
    Happen("* connected", "*");
}

// One of the things that a script waits for.
void FtpSessions::Happen(const QByteArray& line, const QByteArray& verb) {
    record.transcript += line;
    if (!strict) {
        script = answers.value(verb, {"< 500 What?"});
    } else if (script.value(0) != line) {
        script = {"! close"};
    } else {
        script.removeFirst();
    }
    Advance();
}

void FtpSessions::Advance() {
    while (!script.isEmpty() && (script[0][0] == '<' || script[0][0] == '!')) {
        const QByteArray line = script.takeFirst();
        record.transcript += line;
        if (line[0] == '<') {
            Say(Unescaped(line.mid(2)), script.value(0) == "! deaf");
        } else if (line == "! close") {
            session->disconnectFromHost();
        } else if (line != "! deaf") {
            ResetSocket(transfer);
            ResetSocket(line == "! reset" ? session : nullptr);
        }
    }
    LookAtFile();
}

// A port that nobody shall find open is closed before it is told.
void FtpSessions::Say(QByteArray reply, bool deaf) {
    if (reply.contains("PORT")) {
        received.clear();
        transfer = nullptr;
        passive.close();
        passive.listen(QHostAddress::LocalHost);
        const int port = passive.serverPort();
        if (deaf) {
            passive.close();
        }
        const QByteArray low = QByteArray::number(port % 256);
        reply.replace("PORT,PORT", QByteArray::number(port / 256) + ',' + low);
        reply.replace("PORT", QByteArray::number(port));
    }
    session->write(reply + "\r\n");
    session->flush();
}

void FtpSessions::AcceptFile() {
    transfer = passive.nextPendingConnection();
    passive.close();
    connect(transfer, &QTcpSocket::readyRead, this, &FtpSessions::LookAtFile);
    connect(transfer, &QTcpSocket::disconnected, this, &FtpSessions::LookAtFile);
    LookAtFile();
}

// Whether the file that is waited for has come. The peer may have sent it before it is asked about.
void FtpSessions::LookAtFile() {
    if (!script.value(0).startsWith("= ") || transfer == nullptr) {
        return;
    }
    received += transfer->readAll();
    const bool ended = transfer->state() == QAbstractSocket::UnconnectedState;
    if (script[0] == "= some" ? !received.isEmpty() : ended) {
        record.files[record.commands.last().mid(5)] = received;
        const QByteArray line = script[0] == "= some" ? "= some" : "= " + Shown(received);
        record.transcript += line;
        script = strict && script[0] != line ? QList<QByteArray>{"! close"} : script.mid(1);
        Advance();
    }
}
