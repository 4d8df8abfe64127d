#include "preview/PreviewWay.h"

#include <gtest/gtest.h>

using Qt::StringLiterals::operator""_s;

namespace {

bool IsExecutable(const QString &program) {
  return program == u"/opt/my viewers/Tagwright" || program == u"/opt/tagwright/view";
}

TEST(PreviewWayTest, ThePreferencesChoose) {
  constexpr auto nothing = PreviewWay::Nothing, command = PreviewWay::BindingCommand,
                 browser = PreviewWay::Browser, application = PreviewWay::Application;
  struct Case {
    int binding;
    QStringView extension, application, path;
    PreviewWay way;
  };
  for (const Case &c : {
           Case{0, u"html", u"", u"/p.html", browser},
           {1, u"php", u"view", u"/p.php", application},  // only -1 is true
           {-1, u"PHP", u"view", u"/page.php", command},
           {-1, u" php ", u"", u"/a.Phpx/page.html", command},
           {-1, u"", u"", u"/page.html", command},
           {-1, u"php", u"view", u"/php", nothing},
           // The program itself, by its name.
           {-1, u"php", u"/usr/bin/TagWright", u"/p.php", nothing},
           {0, u"", u"/opt/my viewers/Tagwright -x", u"/p.html", nothing},
           {0, u"", u"/opt/tagwright/view tagwright", u"/p.html", application},
           {0, u"", u"tagwrights", u"/p.html", application},
       }) {
    Preferences record = StandardPreferences();
    record.FileBinding.raw = qint16(c.binding);
    record.FileExtension.Set(c.extension);
    record.OtherPreViewer = !c.application.isEmpty();
    record.ApplicationPath.Set(c.application);
    EXPECT_EQ(ChoosePreviewWay(record, c.path.toString(), mPlatform::Current(), &IsExecutable),
              c.way)
        << c.binding << qPrintable(c.application.toString());
  }
}

TEST(PreviewWayTest, AFolderOfTheUsersOwnGetsNoSecondSeparator) {
  Preferences record = StandardPreferences();
  EXPECT_EQ(PreviewFile(record, mPlatform::Original()), u"C:\\Temp\\0001.html"_s);
  record.TemporaryPathStandard = false;
  for (const QString &folder : {u"/x"_s, u"/x/ "_s}) {
    record.OtherTemporaryPath.Set(folder);
    EXPECT_EQ(PreviewFile(record, mPlatform::Current()), u"/x/0001.html"_s);
  }
}

}  // namespace
