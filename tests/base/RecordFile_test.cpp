#include "base/RecordFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>

#include "base/FixedText.h"
#include "shared/Files.h"
#include "shared/Limits.h"

using Field = FixedText<4>;

class RecordFileTest : public testing::Test {
 protected:
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("records"));
  const RecordFile<Field> file{path};
  Field field{{'c', 'c', 'c', 'c'}};
};

TEST_F(RecordFileTest, CountRoundsHalvesToEven) {
  const qint64 counts[] = {0, 0, 0, 1, 1, 1, 2, 2, 2, 2, 2, 3};  // by length in bytes
  for (int length = 0; length < 12; ++length) {
    PutFile(path, QByteArray(length, 'x'));
    EXPECT_EQ(file.Count(), counts[length]) << length;
  }
}

TEST_F(RecordFileTest, WhatTheFileLacksReadsAsNul) {
  PutFile(path, "onetwo3");
  EXPECT_TRUE(!file.Get(0, field) && field.TrimmedBytes() == "cccc");
  EXPECT_TRUE(file.Get(2, field) && field.TrimmedBytes() == QByteArray("wo3\0", 4));
  EXPECT_TRUE(file.Get(1000, field) && field.TrimmedBytes() == QByteArray(4, '\0'));
}

TEST_F(RecordFileTest, PutsInPlaceAndAppendsBehindWhatCounts) {
  // -1: append; '-' for NUL
  EXPECT_TRUE(file.Append(field) && !file.Put(std::numeric_limits<qint64>::max(), field));
  const std::tuple<const char *, int, const char *> cases[] = {
      {"aaaabbbb", 1, "ccccbbbb"}, {"aaaa", 3, "aaaa----cccc"}, {"aaaa", -1, "aaaacccc"},
      {"aaaab", -1, "aaaacccc"},   {"aaab", 0, "aaab"},         {"aaaabbb", -1, "aaaabbb-cccc"}};
  for (const auto &[before, n, after] : cases) {
    PutFile(path, before);
    EXPECT_EQ(n < 0 ? file.Append(field) : file.Put(n, field), n != 0);
    EXPECT_EQ(FileBytes(path).replace('\0', '-'), after);
  }
}

TEST_F(RecordFileTest, AWriteThatFailsLeavesNoHalfRecord) {
  PutFile(path, "aaaabbbb");
  const FullDisk disk(11);
  EXPECT_FALSE(file.Append(field));
  EXPECT_EQ(FileBytes(path), "aaaabbbb");
  const QString pipe = folder.filePath(QStringLiteral("pipe"));
  ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
  for (const QString &none : {pipe, folder.path(), folder.filePath(QStringLiteral("gone/x"))}) {
    const RecordFile<Field> noFile(none);
    EXPECT_FALSE(noFile.Count() || noFile.Put(1, field) || noFile.Get(1, field))
        << qPrintable(none);
  }
}

TEST_F(RecordFileTest, ScanWalksOverBlocksAndStopsWhenTold) {
  using Big = FixedText<3000>;
  constexpr int records = 1000;  // three blocks, the last one not full and its last record cut
  QByteArray bytes;
  for (int i = 1; i <= records; ++i) bytes += QByteArray::number(i).leftJustified(sizeof(Big));
  bytes.chop(1000);
  PutFile(path, bytes);
  const int ranges[][2] = {{-3, records}, {777, 1005}, {350, 351}, {1001, 1001}};
  for (const auto &[first, last] : ranges) {
    qint64 next = std::max(first, 1);
    RecordFile<Big>(path).Scan(first, [&](qint64 n, const Big &record) {
      EXPECT_TRUE(n == next++ && mText::Val(record.Trimmed()) == double(n)) << n;
      EXPECT_EQ(record.bytes[sizeof(Big) - 1], n == records ? '\0' : ' ');
      return n < last;
    });
    EXPECT_EQ(next - 1, std::min(last, records)) << first;
  }
}
