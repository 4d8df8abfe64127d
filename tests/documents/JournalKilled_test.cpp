#include <QCoreApplication>
#include <QDir>
#include <QMap>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <csignal>

#include "base/mFolders.h"
#include "documents/JournalFile.h"
#include "frame/Preferences.h"
#include "shared/Files.h"

namespace {

// The real program, offscreen, in which a typist works.
class KilledTest : public testing::Test {
 protected:
  KilledTest() {
    const QDir delivered(QStringLiteral(TAGWRIGHT_DATA_DIR));
    for (const QString &name :
         delivered.entryList({QStringLiteral("*.dat"), QStringLiteral("*.htf")})) {
      QFile::copy(delivered.filePath(name), folder.filePath(name));
    }
    Preferences record = StandardPreferences();
    record.ShowStartWindow = false;
    EXPECT_TRUE(WritePreferencesFile(folder.filePath(QStringLiteral("preferences.dat")), record));
    PutFile(page, bytes);
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable :
         {"TAGWRIGHT_FOLDER", "XDG_STATE_HOME", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME"}) {
      environment.insert(QLatin1String(variable), folder.path());
    }
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(TAGWRIGHT_TEST_PLUGINS));
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  }
  ~KilledTest() override {
    program.kill();
    program.waitForFinished();
  }

  void Start(const QString &role, const QStringList &arguments = {}) {
    auto environment = program.processEnvironment();
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("typist:") + role);
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(TAGWRIGHT_PROGRAM), arguments);
    opened.clear();
    told.clear();
    kept.clear();
    NextLineIs("ready");
  }

  // Hears the typist out up to that line. False if it falls silent.
  bool NextLineIs(const QByteArray &line) {
    while (Next()) {
      if (last == line) return true;
    }
    return false;
  }

  bool Next() {
    while (!program.canReadLine()) {
      if (!program.waitForReadyRead(60'000) && !program.canReadLine()) return false;
    }
    last = program.readLine().trimmed();
    const QList<QByteArray> words = last.split(' ');
    if (words[0] == "open") opened[words[1]] = words.value(2);
    if (words[0] == "open" || words[0] == "text") told[words[1]] << words.value(2);
    if (words[0] == "kept") {
      for (auto it = told.cbegin(); it != told.cend(); ++it) kept[it.key()] = it.value().size() - 1;
    }
    return true;
  }

  void HearTheRest() {
    program.waitForFinished(60'000);
    while (program.canReadLine()) Next();
  }

  // The documents are there as they were told last, or after what was last told to be kept.
  void ExpectBack(const QMap<QByteArray, QByteArrayList> &before,
                  const QMap<QByteArray, qsizetype> &keptBefore) {
    EXPECT_EQ(opened.keys(), before.keys());
    for (auto it = opened.cbegin(); it != opened.cend(); ++it) {
      EXPECT_GE(before[it.key()].lastIndexOf(it.value()), keptBefore.value(it.key(), 0))
          << "lost: " << QByteArray::fromBase64(it.value()).toStdString();
    }
    EXPECT_EQ(FileBytes(page), bytes);
  }

  const QTemporaryDir folder;
  const QString page = folder.filePath(QStringLiteral("page.html"));
  const QByteArray bytes = "<p>\xA0one</p>\r\n<p>two</p>\r\n";
  QProcess program;
  QByteArray last;
  QMap<QByteArray, QByteArray> opened;    // text by name, at the start
  QMap<QByteArray, QByteArrayList> told;  // texts by name, from the start on
  QMap<QByteArray, qsizetype> kept;       // the one of them that was kept last
};

TEST_F(KilledTest, AtAnyMomentWhatWasTypedIsBackToTheLetter) {
  auto random = QRandomGenerator::securelySeeded();
  Start(QStringLiteral("type"), {page});
  ASSERT_TRUE(NextLineIs("kept"));
  for (int kill = 0; kill < 20; ++kill) {
    for (int lines = random.bounded(100); lines > 0; --lines) ASSERT_TRUE(Next());
    program.kill();
    HearTheRest();
    const auto before = told;
    const auto keptBefore = kept;
    Start(QStringLiteral("type"));
    SCOPED_TRACE(kill);
    ASSERT_EQ(before.size(), 2);
    ExpectBack(before, keptBefore);
  }
}

// Without a question, whatever stands in the way.
TEST_F(KilledTest, ASignalWritesTheJournalAndEndsTheProgram) {
  Start(QStringLiteral("hangup"), {page});
  for (const char *role : {"dialog", "pump", "hangup"}) {
    HearTheRest();
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
    const auto before = told;
    QMap<QByteArray, qsizetype> all;
    for (auto it = before.cbegin(); it != before.cend(); ++it)
      all[it.key()] = it.value().size() - 1;
    Start(QLatin1String(role));
    SCOPED_TRACE(role);
    ExpectBack(before, all);
  }
}

TEST_F(KilledTest, ASecondSignalEndsAProgramThatHangs) {
  Start(QStringLiteral("hang"));
  ASSERT_TRUE(NextLineIs("hanging"));
  const auto pid = pid_t(program.processId());
  kill(pid, SIGTERM);
  EXPECT_FALSE(program.waitForFinished(200));
  kill(pid, SIGHUP);
  EXPECT_TRUE(program.waitForFinished(60'000));
  EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
}

}  // namespace
