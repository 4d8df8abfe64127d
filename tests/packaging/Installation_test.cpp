#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include "base/DataFiles.h"
#include "base/mFolders.h"
#include "shared/Files.h"
#include "shared/KilledAt.h"

using Qt::StringLiterals::operator""_s;

namespace {

/// What a program did and said.
struct Outcome {
  int status;
  QByteArray said;
};

Outcome RunProgram(const QString &program, const QStringList &arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(-1));
  return {process.exitCode(), process.readAll()};
}

/// The program, installed in a temporary folder, and the folder that its first start made for a
/// user. Its name is none for a careless script.
class InstallationTest : public testing::Test {
 protected:
  void SetUp() override {
    const Outcome install =
        RunProgram(QStringLiteral(TAGWRIGHT_CMAKE),
                   {u"--install"_s, QStringLiteral(TAGWRIGHT_BUILD), u"--prefix"_s, At(u"usr"_s)});
    ASSERT_EQ(install.status, 0) << install.said.constData();
    ASSERT_TRUE(mFolders::FillUserDataFolder(sources));
  }

  QString At(const QString &path) const { return folder.filePath(path); }
  QString User(const QString &name) const { return mFolders::Join(sources.userDataFolder, name); }
  QString Shared(const QString &name) const { return At(u"usr/share/tagwright/"_s + name); }

  Outcome Repair(const QStringList &arguments = {}) const {
    qunsetenv("TAGWRIGHT_FOLDER");
    qputenv("XDG_DATA_HOME", QFile::encodeName(QFileInfo(sources.userDataFolder).path()));
    return RunProgram(At(u"usr/bin/tagwright-repair"_s), arguments);
  }

  const QTemporaryDir folder;
  const mFolders::ProgramFolderSources sources{{},
                                               At(u"usr/bin"_s),
                                               At(u"-a 'b\" $(c)\n*/tagwright"_s),
                                               At(u"usr/bin/../share/tagwright"_s),
                                               DataFileNames()};
};

TEST_F(InstallationTest, AFirstStartFindsAllItNeeds) {
  EXPECT_EQ(mFolders::ChooseProgramFolder(sources), sources.userDataFolder);
  EXPECT_EQ(FirstDefectDataFile(sources.userDataFolder), std::nullopt);
  for (const QString &name : DataFileNames() + QStringList{u"help/index.htm"_s}) {
    EXPECT_GT(QFileInfo(User(name)).size(), 0) << qPrintable(name);
  }
  EXPECT_TRUE(QFileInfo(At(u"usr/bin/tagwright"_s)).isExecutable());
  // Where metafiles can't be drawn there is no helper to install.
  const QString helper = u"wmf2raster"_s;
  EXPECT_EQ(mFolders::HelperProgram(helper, QStringLiteral(TAGWRIGHT_BUILD)).isEmpty(),
            mFolders::HelperProgram(helper, sources.executableFolder).isEmpty());
}

TEST_F(InstallationTest, AnUpgradeReachesTheUser) {
  QFile::remove(Shared(u"sc.dat"_s));
  PutFile(Shared(u"sc.dat"_s), "newer");
  PutFile(Shared(u"preferences.dat"_s), "newer");
  EXPECT_EQ(FileBytes(User(u"sc.dat"_s)), "newer");
  EXPECT_EQ(QFileInfo(User(u"preferences.dat"_s)).size(), 3557);
}

TEST_F(InstallationTest, KilledInAFirstStartTheNextOneMakesTheFolder) {
  int moments = 0;
  for (bool killed = true; killed; ++moments) {
    ASSERT_TRUE(QDir(sources.userDataFolder).removeRecursively());
    killed = KilledAt(moments, [this] { mFolders::FillUserDataFolder(sources); });
    EXPECT_TRUE(mFolders::FillUserDataFolder(sources));
    EXPECT_EQ(FirstDefectDataFile(sources.userDataFolder), std::nullopt) << moments;
  }
  EXPECT_GT(moments, 11);
}

TEST_F(InstallationTest, ARepairPutsBackWhatIsDelivered) {
  PutFile(User(u"htLib0002.htf"_s), "mine");
  PutFile(User(u"preferences.dat"_s), QByteArray(3557, 'p'));
  EXPECT_FALSE(Repair().said.contains("put back"));
  EXPECT_EQ(FileBytes(User(u"preferences.dat"_s)), QByteArray(3557, 'p'));

  const QStringList names = QDir(Shared({})).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
  ASSERT_GT(names.size(), 11);
  using Put = void (*)(const QString &);
  for (const auto &[setAside, put] : std::initializer_list<std::pair<bool, Put>>{
           {false, [](const QString &) {}},
           {true, [](const QString &path) { PutFile(path, "cut"); }},
           {true, [](const QString &path) { QDir().mkpath(path + u"/in"_s); }},
           {false, [](const QString &path) { QFile::link(u"/nowhere"_s, path); }}}) {
    for (const QString &name : names) {
      ASSERT_TRUE(QFile::remove(User(name)));
      put(User(name));
    }
    const Outcome repair = Repair();
    EXPECT_EQ(repair.status, 0) << repair.said.constData();
    EXPECT_EQ(repair.said.count("put back"), names.size());
    EXPECT_EQ(repair.said.count("it is now"), setAside ? names.size() : 0);
    for (const QString &name : names) EXPECT_EQ(FileBytes(User(name)), FileBytes(Shared(name)));
    EXPECT_TRUE(QFileInfo::exists(User(u"help/index.htm"_s)));
    EXPECT_FALSE(QFileInfo(User(u"preferences.dat"_s)).isSymLink());
  }
  EXPECT_EQ(FileBytes(User(u"preferences.dat.damaged"_s)), "cut");
  EXPECT_TRUE(QFileInfo::exists(User(u"preferences.dat.damaged-2/in"_s)));
  EXPECT_EQ(FileBytes(User(u"htLib0002.htf"_s)), "mine");
  EXPECT_EQ(Repair({u"x"_s}).status, 2);

  QFile::remove(Shared(u"sc.dat"_s));
  const Outcome incomplete = Repair();
  EXPECT_EQ(incomplete.status, 1);
  EXPECT_TRUE(incomplete.said.contains("install the package"));
}

TEST_F(InstallationTest, ARepairMakesTheFolderThatTheEnvironmentNames) {
  qputenv("TAGWRIGHT_FOLDER", QFile::encodeName(At(u"other\n"_s)));
  EXPECT_EQ(RunProgram(At(u"usr/bin/tagwright-repair"_s), {}).status, 0);
  EXPECT_EQ(FirstDefectDataFile(At(u"other\n"_s)), std::nullopt);
}

}  // namespace
