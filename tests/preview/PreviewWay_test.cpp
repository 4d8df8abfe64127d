#include "preview/PreviewWay.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>

#include "base/TemporaryFolder.h"
#include "shared/Files.h"

namespace {

const Platform there = mPlatform::Original();
const Platform here = [] {
  Platform platform = mPlatform::Current();
  platform.temporaryFolder = QStringLiteral("/c/tagwright");
  return platform;
}();

bool IsExecutable(const QString &program) {
  return program == QLatin1String("/opt/my viewers/Tagwright") ||
         program == QLatin1String("/opt/tagwright/view");
}

TEST(PreviewWayTest, ThePreferencesChoose) {
  constexpr auto nothing = PreviewWay::Nothing, command = PreviewWay::BindingCommand,
                 browser = PreviewWay::Browser, application = PreviewWay::Application;
  struct Case {
    int binding;
    const char *extension;
    bool otherPreViewer;
    const char *application, *path;
    PreviewWay way, wayThere;
  };
  for (const Case &c : std::initializer_list<Case>{
           {0, "", false, "", "/p.html", browser, browser},
           {0, "html", false, "tagwright.exe", "/p.html", browser, browser},
           {0, "", true, "", "/p.html", application, application},
           {1, "php", true, "view", "/p.php", application, application},
           {-1, "php", false, "", "/page.php", command, command},
           {-1, "PHP", true, "view", "/page.php", command, command},
           {-1, " php ", false, "", "/a.Phpx/page.html", command, command},
           {-1, "", false, "", "/page.html", command, command},
           {-1, "", false, "", "/page", browser, browser},
           {-1, "php", false, "", "/page.html", browser, browser},
           {-1, "php", false, "tagwright.exe", "/page.html", browser, browser},
           {-1, "php", true, "view", "/page.html", nothing, nothing},
           {-1, "php", true, "view", "/php", nothing, nothing},
           // The program itself, by its name on either platform.
           {0, "", true, "C:\\x\\TagWright.EXE /a", "/p.html", application, nothing},
           {-1, "php", true, "x tagwright.exe", "/p.php", command, nothing},
           {0, "", true, "tagwright", "/p.html", nothing, application},
           {0, "", true, "TAGWRIGHT -x", "/p.html", nothing, application},
           {-1, "php", false, "/usr/bin/tagwright", "/p.php", nothing, command},
           {0, "", true, "/opt/my viewers/Tagwright -x", "/p.html", nothing, application},
           {0, "", true, "/opt/tagwright/view tagwright", "/p.html", application, application},
           {0, "", true, "tagwrights", "/p.html", application, application},
       }) {
    Preferences record = StandardPreferences();
    record.FileBinding.raw = qint16(c.binding);
    record.FileExtension.Set(QString::fromLatin1(c.extension));
    record.OtherPreViewer = c.otherPreViewer;
    record.ApplicationPath.Set(QString::fromLatin1(c.application));
    const QString path = QLatin1String(c.path);
    EXPECT_EQ(ChoosePreviewWay(record, path, here, &IsExecutable), c.way)
        << c.binding << c.extension << c.otherPreViewer << c.application << c.path;
    EXPECT_EQ(ChoosePreviewWay(record, path, there, &IsExecutable), c.wayThere)
        << c.binding << c.extension << c.otherPreViewer << c.application << c.path;
  }
}

TEST(PreviewWayTest, AFolderOfTheUsersOwnGetsNoSecondSeparator) {
  Preferences record = StandardPreferences();
  EXPECT_EQ(PreviewFile(record, there), QStringLiteral("C:\\Temp\\0001.html"));
  EXPECT_EQ(PreviewFile(record, here), QStringLiteral("/c/tagwright/0001.html"));
  record.TemporaryPathStandard = false;
  for (const auto &[folder, file] : {std::pair("D:\\x", "D:\\x\\0001.html"),
                                     {" D:\\x\\ ", "D:\\x\\0001.html"},
                                     {"D:\\x/", "D:\\x/\\0001.html"}}) {
    record.OtherTemporaryPath.Set(QString::fromLatin1(folder));
    EXPECT_EQ(PreviewFile(record, there), QLatin1String(file));
  }
  record.OtherTemporaryPath.Set(u"/x/");
  EXPECT_EQ(PreviewFile(record, here), QStringLiteral("/x/0001.html"));
}

TEST(TemporaryFolderTest, OnlyARealFolderOfOurOwnIsUsable) {
  using TemporaryFolder::State;
  const QTemporaryDir folder;
  const QString made = folder.filePath(QStringLiteral("above/made"));
  EXPECT_EQ(TemporaryFolder::Look(made), State::Missing);
  EXPECT_TRUE(TemporaryFolder::Make(made));
  EXPECT_TRUE(TemporaryFolder::Make(made)) << "it is there already";
  struct stat entry;
  ASSERT_EQ(stat(QFile::encodeName(made).constData(), &entry), 0);
  EXPECT_EQ(entry.st_mode & 07777, 0700u);
  EXPECT_EQ(TemporaryFolder::Look(made), State::Usable);
  const QString link = folder.filePath(QStringLiteral("link"));
  const QString file = folder.filePath(QStringLiteral("file"));
  ASSERT_TRUE(QFile::link(made, link));
  PutFile(file, "");
  const QString inFile = file + QStringLiteral("/x");
  for (const QString &foreign : {link, file, inFile, QStringLiteral("/proc/1")}) {
    if (foreign == QLatin1String("/proc/1") && geteuid() == 0) continue;  // init's, so ours
    EXPECT_EQ(TemporaryFolder::Look(foreign), State::Foreign) << qPrintable(foreign);
    EXPECT_FALSE(TemporaryFolder::Make(foreign)) << qPrintable(foreign);
  }
  if (geteuid() != 0) return;
  ASSERT_EQ(chown(QFile::encodeName(made).constData(), 12345, 12345), 0);
  EXPECT_EQ(TemporaryFolder::Look(made), State::Foreign) << "somebody else's";
}

}  // namespace
