#include "site/md5.h"

#include <QCryptographicHash>
#include <gtest/gtest.h>

namespace {

// Bytes 3, 10, 17, ... modulo 256.
QByteArray Sample(int size) {
    QByteArray data(size, '\0');
    for (int i = 0; i < size; ++i) {
        data[i] = static_cast<char>(i * 7 + 3);
    }
    return data;
}

QByteArray StandardHash(const QByteArray& data) {
    return QCryptographicHash::hash(data, QCryptographicHash::Md5).toHex();
}

} // namespace

TEST(MD5Bytes, IsTheStandardHashOfAllButTheLastByteWhilePaddingIsStandard) {
    for (int size : {1, 2, 55, 56, 58, 60, 64, 65, 120, 129, 184}) {
        EXPECT_EQ(MD5Bytes(Sample(size)), StandardHash(Sample(size - 1))) << size << " bytes";
    }
}

TEST(MD5Bytes, KeepsTheOldPaddingWhereExistingControlFilesHoldIt) {
    // From a second, independent implementation: no padding at 56, none beyond it past 120.
    const struct {
        int size;
        const char* hash;
    } kCases[] = {
        {57, "30e31e588d28a25fdbe827c7d37aa308"},  {121, "74a2f863f34aa0b7b01e4a82a27509f8"},
        {122, "50759334b3bf8eb0be84c8f3fed4b75b"}, {128, "fa8c225369080a7fc683da254b7884fc"},
        {190, "d671da08ef6fddeb369ddc079292dd74"},
    };
    for (const auto& expected : kCases) {
        EXPECT_EQ(MD5Bytes(Sample(expected.size)), expected.hash) << expected.size << " bytes";
    }
}
