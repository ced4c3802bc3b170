// Hashes of generated files and the control file that says what was last sent.
#pragma once

#include <QByteArray>

// The hash of a finished file as 32 lower-case hexadecimal digits: MD5 (RFC 1321) with this
// program's own message handling, which every existing control file relies on. The last byte takes
// no part; the padding differs from the RFC where (size - 1) mod 64 is 56 or more.
QByteArray MD5Bytes(const QByteArray& data);
