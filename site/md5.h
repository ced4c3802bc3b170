// The hash of a generated file, by which publishing tells what has changed.
#pragma once

#include <QByteArray>

// 32 lower-case hexadecimal digits: MD5 (RFC 1321) with this program's own message handling, which
// every existing control file relies on. The last byte takes no part; the padding differs from the
// RFC where (size - 1) mod 64 is 56 or more.
QByteArray MD5Bytes(const QByteArray& data);
