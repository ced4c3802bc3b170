#include "transfer/signature.h"

#include <QFile>
#include <memory>
#include <openssl/evp.h>

namespace {

constexpr int kKeyLength = 32; // bytes

const unsigned char* Bytes(const QByteArray& bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.constData());
}

std::shared_ptr<EVP_PKEY> ReadKey(const QString& text) {
    const auto decoded = QByteArray::fromBase64Encoding(text.trimmed().toLatin1(),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    const bool sound = decoded && (*decoded).size() == kKeyLength;
    EVP_PKEY* key =
        sound ? EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, Bytes(*decoded), kKeyLength)
              : nullptr;
    return {key, EVP_PKEY_free};
}

} // namespace

bool IsSigned(const QString& path, const QByteArray& signature, const QString& key) {
    const std::shared_ptr<EVP_PKEY> publicKey = ReadKey(key);
    QFile file(path);
    if (publicKey == nullptr || signature.size() != kSignatureLength ||
        !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    // The algorithm wants all bytes at once; mapped, they need not lie in memory.
    const unsigned char* data = file.map(0, file.size());
    const std::shared_ptr<EVP_MD_CTX> context(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    return data != nullptr &&
           EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, publicKey.get()) == 1 &&
           EVP_DigestVerify(context.get(), Bytes(signature), size_t(signature.size()), data,
                            size_t(file.size())) == 1;
}
