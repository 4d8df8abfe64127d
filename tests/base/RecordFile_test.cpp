#include "base/RecordFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>

#include "base/FixedText.h"
#include "shared/Files.h"
#include "shared/Limits.h"

namespace {

using Field = FixedText<4>;
using Big = FixedText<3000>;

Field FieldOf(const char *four) {
  Field field;
  std::copy_n(four, 4, field.bytes);
  return field;
}

QByteArray BytesOf(const Field &field) {
  return {field.bytes, 4};
}

class RecordFileTest : public testing::Test {
 protected:
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("records"));
  const RecordFile<Field> file{path};
};

TEST_F(RecordFileTest, CountRoundsHalvesToEven) {
  EXPECT_EQ(file.Count(), 0);
  const qint64 counts[] = {0, 0, 0, 1, 1, 1, 2, 2, 2, 2, 2, 3};  // by length in bytes
  for (int length = 0; length < 12; ++length) {
    PutFile(path, QByteArray(length, 'x'));
    EXPECT_EQ(file.Count(), counts[length]) << length;
  }
  EXPECT_EQ(RecordFile<Field>(folder.path()).Count(), 0);
}

TEST_F(RecordFileTest, WhatTheFileLacksReadsAsNul) {
  Field field = FieldOf("keep");
  EXPECT_FALSE(file.Get(1, field));
  PutFile(path, "onetwo3");
  EXPECT_FALSE(file.Get(0, field));
  EXPECT_EQ(BytesOf(field), "keep");
  EXPECT_TRUE(file.Get(2, field));
  EXPECT_EQ(BytesOf(field), QByteArray("wo3\0", 4));
  EXPECT_TRUE(file.Get(1000, field));
  EXPECT_EQ(BytesOf(field), QByteArray(4, '\0'));
}

TEST_F(RecordFileTest, PutsInPlaceAndAppendsBehindWhatCounts) {
  EXPECT_TRUE(file.Append(FieldOf("aaaa")));
  EXPECT_TRUE(file.Append(FieldOf("bbbb")));
  EXPECT_TRUE(file.Put(1, FieldOf("AAAA")));
  EXPECT_EQ(FileBytes(path), "AAAAbbbb");
  EXPECT_TRUE(file.Put(4, FieldOf("dddd")));
  EXPECT_EQ(FileBytes(path), QByteArray("AAAAbbbb\0\0\0\0dddd", 16));
  EXPECT_FALSE(file.Put(0, FieldOf("zero")));
  EXPECT_FALSE(file.Put(std::numeric_limits<qint64>::max(), FieldOf("far.")));
  PutFile(path, "AAAAb");  // a remainder that doesn't count is written over
  EXPECT_TRUE(file.Append(FieldOf("bbbb")));
  EXPECT_EQ(FileBytes(path), "AAAAbbbb");
  PutFile(path, "AAAAbbb");  // one that counts is left
  EXPECT_TRUE(file.Append(FieldOf("cccc")));
  EXPECT_EQ(FileBytes(path), QByteArray("AAAAbbb\0cccc", 12));
}

TEST_F(RecordFileTest, AWriteThatFailsLeavesNoHalfRecord) {
  PutFile(path, "aaaabbbb");
  {
    const FullDisk disk(11);
    EXPECT_FALSE(file.Append(FieldOf("cccc")));
  }
  EXPECT_EQ(FileBytes(path), "aaaabbbb");
  EXPECT_FALSE(
      RecordFile<Field>(folder.filePath(QStringLiteral("gone/x"))).Append(FieldOf("cccc")));
  ASSERT_EQ(mkfifo(qPrintable(folder.filePath(QStringLiteral("pipe"))), 0600), 0);
  const RecordFile<Field> pipe(folder.filePath(QStringLiteral("pipe")));
  Field field;
  EXPECT_FALSE(pipe.Put(1, FieldOf("cccc")) || pipe.Get(1, field));
}

TEST_F(RecordFileTest, ScanWalksOverBlocksAndStopsWhenTold) {
  constexpr int records = 1000;  // three blocks, the last one not full and its last record cut
  QByteArray bytes;
  for (int i = 1; i <= records; ++i) bytes += QByteArray::number(i).leftJustified(sizeof(Big));
  bytes.chop(1000);
  PutFile(path, bytes);
  const RecordFile<Big> big(path);
  const auto scan = [&](qint64 first, qint64 last) {
    qint64 next = std::max<qint64>(first, 1);
    big.Scan(first, [&](qint64 n, const Big &record) {
      EXPECT_EQ(n, next++);
      EXPECT_EQ(mText::Val(record.Trimmed()), double(n));
      EXPECT_EQ(record.bytes[sizeof(Big) - 1], n == records ? '\0' : ' ');
      return n < last;
    });
    return next - 1;
  };
  EXPECT_EQ(scan(-3, records), records);
  EXPECT_EQ(scan(777, records + 5), records);
  EXPECT_EQ(scan(350, 351), 351);
  EXPECT_EQ(scan(records + 1, records + 1), records);
  RecordFile<Big>(folder.path()).Scan(1, [](qint64, const Big &) -> bool {
    ADD_FAILURE();
    return false;
  });
}

}  // namespace
