// FTP servers as providers run them, each started by a test on the loopback with a folder of its
// own: pyftpdlib, ProFTPD, vsftpd and Pure-FTPd. They run as an ordinary user, also when the tests
// run as root; Pure-FTPd alone needs root and is left out without it.
#pragma once

#include "tests/support/serverprocess.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

enum class ServerKind { Pyftpdlib, ProFTPD, Vsftpd, PureFTPd };

// The account that every server knows. vsftpd knows visitors without an account alone.
inline constexpr char kServerUser[] = "ana";
inline constexpr char kServerPassword[] = "cláve ñ@/:%";

struct ServerChoices {
    QByteArray host = "127.0.0.1"; // or "::1"
    bool littleRoom = false;       // 300,000 bytes at the most
};

class RealServer {
public:
    // Why it can't run here, for the reader of the test's output; empty if it can.
    static QString Obstacle(ServerKind kind);

    explicit RealServer(ServerKind kind);

    // The port of its control connection; 0, after ten seconds, if it says nothing there.
    int Start(const ServerChoices& choices);

    // Path of the folder that is its visitors' own, as they have to name it, with a "/" at its end.
    QString Home() const;

    // A folder below that one, with all levels. One that is locked takes no files.
    void MakeFolder(const QString& path, bool locked = false);

    // All files in such a folder by name. pyftpdlib is set to keep names in UTF-8, as a server does
    // that knows Windows-1252; the others keep the bytes that they are sent.
    QMap<QString, QByteArray> Files(const QString& path) const;

    // All commands so far, as they came; Pure-FTPd keeps no such list.
    QList<QByteArray> Commands() const;

    bool KeepsCommands() const { return kind != ServerKind::PureFTPd; }

private:
    QByteArray OnDisk(const QString& path) const;

    ServerKind kind;
    ServerProcess server;
};
