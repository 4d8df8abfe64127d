#include <gtest/gtest.h>

#include <QFile>

using Qt::StringLiterals::operator""_s;

namespace {

/// A delivered file as the build has just made it.
QString Delivered(const QString &name) {
  return u"" TAGWRIGHT_DATA_DIR "/"_s + name;
}

}  // namespace

// The start-up test of the program refuses a folder in which one of these lengths differs.
TEST(DeliveredFiles, HaveTheLengthsThatTheStartLooksFor) {
  const struct {
    const char *name;
    qint64 bytes;
  } files[] = {
      {"File0001.dat", 13248}, {"File0002.dat", 17652}, {"File0003.dat", 2328},
      {"File0004.dat", 7884},  {"File0005.dat", 9168},  {"File0006.dat", 2640},
      {"File0007.dat", 288},   {"File0009.dat", 2556},
  };
  for (const auto &[name, bytes] : files) {
    EXPECT_EQ(QFile(Delivered(QString::fromLatin1(name))).size(), bytes) << name;
  }
}
