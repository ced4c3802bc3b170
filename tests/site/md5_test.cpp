#include "site/md5.h"

#include "tests/support/files.h"

#include <QCryptographicHash>
#include <gtest/gtest.h>

namespace {

// Bytes 3, 10, 17, ... modulo 256.
QByteArray Sample(int size) {
    QByteArray data;
    while (data.size() < size) {
        data += char(data.size() * 7 + 3);
    }
    return data;
}

} // namespace

TEST(MD5Bytes, IsTheStandardHashOfAllButTheLastByteWhilePaddingIsStandard) {
    for (int size : {1, 2, 55, 56, 58, 60, 64, 65, 120, 129, 184}) {
        const auto hash = QCryptographicHash::hash(Sample(size - 1), QCryptographicHash::Md5);
        EXPECT_EQ(MD5Bytes(Sample(size)), hash.toHex()) << size << " bytes";
    }
}

// The hashes come from a second, independent implementation.
TEST(MD5Bytes, KeepsTheOldPaddingWhereExistingControlFilesHoldIt) {
    for (const QStringList& row : ReadTable(TABLES, "sizes without whole padding, and the hash")) {
        EXPECT_EQ(MD5Bytes(Sample(row[0].toInt())), row[1].toLatin1()) << row[0].toStdString();
    }
}
