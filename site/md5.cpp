#include "site/md5.h"

#include <QtEndian>
#include <array>
#include <cstring>
#include <md5.h>

namespace {

constexpr quint32 kBlock = 64;       // bytes of an MD5 block
constexpr quint32 kLengthPlace = 56; // where a block's length field begins

// The hash state and its 64-byte buffer. The buffer is never cleared: a block that is closed
// without padding takes what the block before left in it into the hash.
class Digest {
public:
    Digest() { MD5Init(&context); }

    void Add(const quint8* data, quint32 size) {
        while (size > 0) {
            const quint32 part = std::min(size, kBlock - position);
            // Only the last whole block has to be left in the buffer.
            if (part == kBlock && size >= 2 * kBlock) {
                MD5Transform(context.state, data);
            } else {
                std::memcpy(buffer.data() + position, data, part);
                position += part;
                if (position == kBlock) {
                    MD5Transform(context.state, buffer.data());
                    position = 0;
                }
            }
            data += part;
            size -= part;
        }
    }

    void MoveTo(quint32 newPosition) { position = newPosition; }

    QByteArray Hexadecimal() const {
        QByteArray digits;
        for (const quint32 word : context.state) {
            const quint32 low = qToLittleEndian(word);
            digits += QByteArray(reinterpret_cast<const char*>(&low), sizeof low).toHex();
        }
        return digits;
    }

private:
    MD5_CTX context;
    std::array<quint8, kBlock> buffer{};
    quint32 position = 0; // of the next byte in the buffer
};

} // namespace

QByteArray MD5Bytes(const QByteArray& data) {
    const auto length = static_cast<quint32>(std::max<qsizetype>(data.size() - 1, 0));
    const quint32 rest = length % kBlock;

    Digest digest;
    digest.Add(reinterpret_cast<const quint8*>(data.constData()), length);

    static constexpr std::array<quint8, kBlock> kPadding{0x80};
    if (rest <= kLengthPlace) {
        digest.Add(kPadding.data(), kLengthPlace - rest);
    } else if (length < kBlock + kLengthPlace) {
        digest.Add(kPadding.data(), kBlock + kLengthPlace - length);
    } else {
        digest.MoveTo(kLengthPlace); // the length goes over whatever stands there
    }

    std::array<quint8, 8> bits{};
    qToLittleEndian<quint32>(length * 8, bits.data());
    digest.Add(bits.data(), bits.size());
    return digest.Hexadecimal();
}
