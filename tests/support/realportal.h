// The property portal as an operator runs it: PHP scripts behind nginx, all of it from Debian,
// started by a test on the loopback. Gives back what PHP understood of each request.
#pragma once

#include "tests/support/serverprocess.h"

#include <QByteArray>
#include <QList>
#include <QString>

// The agent whom it knows, and the number that it gives him.
inline constexpr char kPortalUser[] = "ana@example.com";
inline constexpr char kPortalPassword[] = "secreta";
inline constexpr char kPortalAgent[] = "1234";

struct PortalRequest {
    QByteArray address;                              // such as "save_inmueble.php"
    int status = 0;                                  // of the answer
    QList<std::pair<QByteArray, QByteArray>> fields; // $_GET and $_POST, in PHP's order
    QList<std::pair<QByteArray, QByteArray>> files;  // $_FILES: field names and contents

    // Empty for a field that there is not.
    QByteArray Value(const QByteArray& field) const;
};

class RealPortal {
public:
    // Why it can't run here, for the reader of the test's output; empty if it can.
    static QString Obstacle() { return ServerProcess::Obstacle("portal"); }

    // Its port on 127.0.0.1; 0, after ten seconds, if it answers nothing there.
    int Start();

    // All requests so far, in the order in which PHP had done with them; several at a time may
    // overtake each other.
    QList<PortalRequest> Requests() const;

private:
    ServerProcess server{"portal"};
};
