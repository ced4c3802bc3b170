#include "tests/support/sockets.h"

#include <QTcpSocket>
#include <sys/socket.h>

void ResetSocket(QTcpSocket* socket) {
    if (socket != nullptr) {
        const linger now{1, 0};
        setsockopt(static_cast<int>(socket->socketDescriptor()), SOL_SOCKET, SO_LINGER, &now,
                   sizeof now);
        socket->abort();
    }
}
