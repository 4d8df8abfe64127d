#include <QMap>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <csignal>

#include "frame/Preferences.h"
#include "shared/Files.h"

// The real program, offscreen, in which a typist works.
struct KilledTest : testing::Test {
  KilledTest() {
    QProcess::execute("sh", {"-c", "cp " TAGWRIGHT_DATA_DIR "/*.dat " TAGWRIGHT_DATA_DIR "/*.htf " +
                                       folder.path()});
    Preferences record = StandardPreferences();
    record.ShowStartWindow = false;
    EXPECT_TRUE(WritePreferencesFile(folder.filePath("preferences.dat"), record));
    PutFile(page, bytes);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  }

  void Start(const QString &role, const QString &file = {}) {
    QStringList words{"QT_QPA_PLATFORM=offscreen", "QT_PLUGIN_PATH=" TAGWRIGHT_TEST_PLUGINS,
                      "QT_QPA_GENERIC_PLUGINS=typist:" + role};
    for (const char *variable : {"TAGWRIGHT_FOLDER=", "XDG_STATE_HOME=", "XDG_RUNTIME_DIR="}) {
      words << variable + folder.path();
    }
    program.start("env", words << before << TAGWRIGHT_PROGRAM << file);
    told.clear();
    EXPECT_TRUE(Hear(99, "ready"));
  }

  // Hears so many lines of the typist, or up to that one. False if he falls silent.
  bool Hear(int lines, const QByteArray &until) {
    for (QByteArray word; lines > 0 && word != until; --lines) {
      while (!program.canReadLine()) {
        if (!program.waitForReadyRead(60'000) && !program.canReadLine()) return false;
      }
      const auto words = program.readLine().trimmed().split(' ');
      word = words[0];
      if (word == "open" || word == "text") told[words[1]] << words.value(2);
      if (word == "kept") ForgetAllButTheLast();
    }
    return true;
  }

  void ForgetAllButTheLast() {
    for (QByteArrayList &texts : told) texts = {texts.last()};
  }

  // The documents are there as they were told last, or after what was last told to be kept.
  void ExpectBack(const QString &role) {
    const auto before = told;
    Start(role);
    EXPECT_EQ(told.keys(), before.keys());
    for (auto it = told.cbegin(); it != told.cend(); ++it) {
      EXPECT_TRUE(before[it.key()].contains(it->first()));
    }
    EXPECT_EQ(FileBytes(page), bytes);
  }

  const QTemporaryDir folder;
  const QString page = folder.filePath("page.html");
  const QByteArray bytes = "<p>\xA0one</p>\r\n<p>two</p>\r\n";
  QStringList before;  // what the program is started through
  QProcess program;
  QMap<QByteArray, QByteArrayList> told;  // texts by name, from the one that was kept last on
};

TEST_F(KilledTest, AtAnyMomentWhatWasTypedIsBackToTheLetter) {
  auto random = QRandomGenerator::securelySeeded();
  Start("type", page);
  ASSERT_TRUE(Hear(999, "kept"));
  for (int kill = 0; kill < 20; ++kill) {
    ASSERT_TRUE(Hear(random.bounded(100), "-"));
    program.kill();
    EXPECT_FALSE(Hear(INT_MAX, "-"));
    program.waitForFinished();
    ASSERT_EQ(told.size(), 2) << kill;
    ExpectBack("type");
  }
}

// Without a question, whatever stands in the way.
TEST_F(KilledTest, ASignalWritesTheJournalAndEndsTheProgram) {
  Start("hangup", page);
  for (const char *role : {"dialog", "pump", "hangup"}) {
    EXPECT_FALSE(Hear(INT_MAX, "-"));
    program.waitForFinished();
    EXPECT_TRUE(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0) << role;
    ForgetAllButTheLast();
    ExpectBack(role);
  }
}

TEST_F(KilledTest, AJournalBeyondTheSizeOfFilesEndsNothing) {
  PutFile(page, QByteArray("line\r\n").repeated(5000));
  before = QStringList{"prlimit", "--fsize=16384"};
  Start("hangup", page);
  EXPECT_FALSE(Hear(INT_MAX, "-"));
  program.waitForFinished();
  EXPECT_TRUE(program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0);
}

TEST_F(KilledTest, ASecondSignalEndsAProgramThatHangs) {
  Start("hang");
  ASSERT_TRUE(Hear(99, "hanging"));
  for (const int request : {SIGTERM, SIGHUP}) kill(pid_t(program.processId()), request);
  EXPECT_FALSE(program.waitForFinished(200)) << "both are one request, a session's end";
  kill(pid_t(program.processId()), SIGTERM);
  EXPECT_TRUE(program.waitForFinished(60'000));
  EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
}
