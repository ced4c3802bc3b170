// What tests' servers do with connections that no library offers by itself.
#pragma once

class QTcpSocket;

// Closes so that the peer sees a reset, not an end; nothing for nullptr.
void ResetSocket(QTcpSocket* socket);
