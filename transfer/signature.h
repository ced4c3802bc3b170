// Signatures of files that come over the network: Ed25519 (RFC 8032).
#pragma once

#include <QByteArray>
#include <QString>

inline constexpr int kSignatureLength = 64; // bytes

// Whether `signature` is that of the file's whole content under a public key, the base64 text of
// its 32 bytes. False for a key or a signature that is none, and for a file that can't be read or
// is empty.
bool IsSigned(const QString& path, const QByteArray& signature, const QString& key);
