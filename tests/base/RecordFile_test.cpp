#include "base/RecordFile.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "base/FixedText.h"
#include "shared/Files.h"
#include "shared/Limits.h"

using Field = FixedText<4>;

struct RecordFileTest : testing::Test {
  const QTemporaryDir folder;
  const QString path = folder.filePath("records");
  const RecordFile<Field> file{path};
  Field field{{'c', 'c', 'c', 'c'}};
};

TEST_F(RecordFileTest, CountsHalvesToEvenAndReadsWhatTheFileLacksAsNul) {
  QString counts;
  for (int length = 0; length < 12; ++length) {
    PutFile(path, QByteArray(length, 'x'));
    counts += QString::number(file.Count());
  }
  EXPECT_EQ(counts, "000111222223");
  PutFile(path, "onetwo3");
  EXPECT_TRUE(!file.Get(0, field) && field.TrimmedBytes() == "cccc");
  EXPECT_TRUE(file.Get(2, field) && field.TrimmedBytes() == QByteArray("wo3\0", 4));
}

TEST_F(RecordFileTest, PutsInPlaceAndAppendsBehindWhatCounts) {
  // -1: append; '-' for NUL
  EXPECT_TRUE(file.Append(field) && !file.Put(std::numeric_limits<qint64>::max(), field));
  const std::tuple<const char *, int, const char *> cases[] = {{"aaaabbbb", 1, "ccccbbbb"},
                                                               {"aaaa", 3, "aaaa----cccc"},
                                                               {"aaaab", -1, "aaaacccc"},
                                                               {"aaab", 0, "aaab"},
                                                               {"aaaabbb", -1, "aaaabbb-cccc"}};
  for (const auto &[before, n, after] : cases) {
    PutFile(path, before);
    EXPECT_EQ(n < 0 ? file.Append(field) : file.Put(n, field), n != 0);
    EXPECT_EQ(FileBytes(path).replace('\0', '-'), after);
  }
  const FullDisk disk(15);
  EXPECT_TRUE(!file.Append(field) && FileBytes(path).size() == 12) << "no half record";
}

TEST_F(RecordFileTest, ScanWalksOverBlocksAndStopsWhenTold) {
  using Big = FixedText<3000>;
  QByteArray bytes;  // three blocks, the last one not full and its last record cut
  for (int i = 1; i <= 1000; ++i) bytes += QByteArray::number(i).leftJustified(sizeof(Big));
  bytes.chop(1000);
  PutFile(path, bytes);
  const RecordFile<Big> records(path);
  qint64 next = 350;
  records.Scan(350, [&](qint64 n, const Big &record) {
    EXPECT_TRUE(n == next++ && mText::Val(record.Trimmed()) == double(n)) << n;
    EXPECT_EQ(record.bytes[sizeof(Big) - 1], n == 1000 ? '\0' : ' ');
    return true;
  });
  EXPECT_EQ(next, 1001);
  records.Scan(-3, [&next](qint64 n, const Big &) { return (next = n) < 2; });
  EXPECT_EQ(next, 2) << "from the first one until it is told to stop";
}
