// What a browser sees in the mark-up that the assistants write.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "assistants/FormatText.h"
#include "assistants/FramesetLayouts.h"
#include "assistants/FramesetText.h"
#include "assistants/HorRuleText.h"
#include "assistants/ImageText.h"
#include "assistants/LinkSchemes.h"
#include "assistants/ListText.h"
#include "assistants/MetaTagsText.h"
#include "assistants/TableText.h"
#include "shared/Files.h"

namespace {

class InBrowserTest : public testing::Test {
 protected:
  void SetUp() override {
    browser_ = QStandardPaths::findExecutable(QStringLiteral("chromium"));
    if (browser_.isEmpty()) GTEST_SKIP() << "chromium is not installed";
    ASSERT_TRUE(folder_.isValid());
  }

  /// What a script finds in a page with that head and body; script is an expression that gives a
  /// text. A body that is a frameset is taken without a body element round it.
  QString Seen(const QString &head, const QString &body, const char *script) {
    const QString page = folder_.filePath(QStringLiteral("page.html"));
    const bool frameset = body.contains(QStringLiteral("<FRAMESET"));
    PutFile(page, (QStringLiteral("<html><head><script>onload = function() { "
                                  "document.documentElement.setAttribute('seen', '[' + ") +
                   QLatin1String(script) + QStringLiteral(" + ']'); }</script>") + head +
                   QStringLiteral("</head>") +
                   (frameset ? body : QStringLiteral("<body>") + body + QStringLiteral("</body>")) +
                   QStringLiteral("</html>"))
                      .toUtf8());
    QStringList arguments{
        QStringLiteral("--headless"),
        QStringLiteral("--disable-gpu"),
        QStringLiteral("--window-size=1000,800"),
        QStringLiteral("--user-data-dir=") + folder_.filePath(QStringLiteral("u")),
        QStringLiteral("--dump-dom"),
        QStringLiteral("file://") + page};
    if (geteuid() == 0) arguments.prepend(QStringLiteral("--no-sandbox"));  // it has none for root
    QProcess process;
    process.start(browser_, arguments);
    EXPECT_TRUE(process.waitForFinished(60'000));
    const QString dump = QString::fromUtf8(process.readAllStandardOutput());
    static const QRegularExpression seen(QStringLiteral("seen=\"\\[([^\"]*)\\]\""));
    const auto match = seen.match(dump);
    EXPECT_TRUE(match.hasMatch()) << dump.left(2000).toStdString();
    return match.captured(1);
  }

  QTemporaryDir folder_;

 private:
  QString browser_;
};

// A frame's place is told by its name and its share of the window in per cent.
void Shares(const FramePart &part, double width, double height, QStringList &shares) {
  if (part.kind == FramePart::Kind::Frame) {
    shares << QStringLiteral("%1 %2x%3")
                  .arg(QLatin1String(part.name))
                  .arg(qRound(width * 100))
                  .arg(qRound(height * 100));
    return;
  }
  for (size_t i = 0; i < part.parts.size(); ++i) {
    const double share = part.percents[i] / 100.0;
    const bool rows = part.kind == FramePart::Kind::Rows;
    Shares(part.parts[i], rows ? width : width * share, rows ? height * share : height, shares);
  }
}

TEST_F(InBrowserTest, FramesHaveTheirNamesAndSizes) {
  const char *const script =
      "[...document.querySelectorAll('frame')].map(f => f.name + ' ' + "
      "Math.round(f.offsetWidth / innerWidth * 100) + 'x' + "
      "Math.round(f.offsetHeight / innerHeight * 100)).join()";
  int working = 0;
  for (size_t index = 0; index < FramesetLayouts().size(); ++index) {
    const FramesetLayout &layout = FramesetLayouts()[index];
    const QStringList sources(qsizetype(layout.slots.size()), QStringLiteral("about:blank"));
    const QString text =
        BuildFramesetText(int(index), sources, FrameSourceTable(layout.slots.size() + 1));
    if (text.isEmpty()) continue;
    ++working;
    QStringList expected;
    Shares(layout.division, 1, 1, expected);
    const QStringList seen = Seen({}, text, script).split(u',');
    ASSERT_EQ(seen.size(), expected.size()) << index;
    for (qsizetype i = 0; i < seen.size(); ++i) {
      // The frames' borders take a few pixels.
      static const QRegularExpression parts(QStringLiteral("^(\\w+) (\\d+)x(\\d+)$"));
      const auto is = parts.match(seen[i]), should = parts.match(expected[i]);
      EXPECT_EQ(is.captured(1), should.captured(1)) << index;
      EXPECT_NEAR(is.captured(2).toInt(), should.captured(2).toInt(), 2) << index;
      EXPECT_NEAR(is.captured(3).toInt(), should.captured(3).toInt(), 2) << index;
    }
  }
  EXPECT_EQ(working, 23);
}

TEST_F(InBrowserTest, ATableHasItsRowsCellsAndLooks) {
  TableText table;
  table.rows = 3;
  table.cols = 4;
  table.background = QStringLiteral("05FF0A");
  table.width = {QStringLiteral("50"), true};
  table.height = {QStringLiteral("300"), false};
  table.border = 7;
  table.cellspacing = 9;
  table.frame = 4;
  table.rules = 1;
  EXPECT_EQ(Seen({}, *table.Build([] { return true; }),
                 "(t => [t.rows.length, t.querySelectorAll('td').length, t.offsetHeight, "
                 "Math.round(t.offsetWidth / document.body.offsetWidth * 100), t.border, "
                 "t.cellSpacing, t.bgColor].join())(document.querySelector('table'))"),
            QStringLiteral("3,12,300,50,7,9,#05FF0A"));
}

TEST_F(InBrowserTest, ListsHaveTheirItemsAndNumbering) {
  ListText list;
  list.noOfItems = QStringLiteral("3");
  list.startValue = QStringLiteral("4");
  list.bulletType = 1;
  QString body;
  for (const int kind : {0, 1, 2, 3, 4}) {
    list.kind = kind;
    body += list.Build();
  }
  EXPECT_EQ(Seen({}, body,
                 "[...document.body.children].map(l => [l.tagName, l.children.length, l.start, "
                 "getComputedStyle(l.children[0]).listStyleType].join(' ')).join()"),
            QStringLiteral("UL 3  square,OL 3 4 upper-roman,DL 6  disc,MENU 3  disc,DIR 3  disc"));
}

TEST_F(InBrowserTest, AnImageARuleAndLinksAreWhatTheySay) {
  ImageText image;
  image.source = QStringLiteral("data:image/gif;base64,R0lGODlhAQABAAAAACw=");
  image.dimensions = ImageText::Dimensions::Pixels;
  image.height = QStringLiteral("40");
  image.width = QStringLiteral("30");
  image.bordered = true;
  image.borderThick = QStringLiteral("5");
  image.alternativeText = QStringLiteral("a picture");
  EXPECT_EQ(Seen({}, image.Tag(),
                 "(i => [i.width, i.height, i.border, i.alt].join())(document.images[0])"),
            QStringLiteral("30,40,5,a picture"));

  HorRuleText rule;
  rule.align = 2;
  rule.noShade = true;
  rule.size = QStringLiteral("6");
  rule.width = QStringLiteral("50");
  EXPECT_EQ(Seen({}, rule.Tag(),
                 "(r => [r.align, r.noShade, r.size, r.width, Math.round(r.offsetWidth / "
                 "document.body.offsetWidth * 100)].join())(document.querySelector('hr'))"),
            QStringLiteral("right,true,6,50%,50"));

  QString links;
  for (const QString &scheme : LinkSchemes(MakerEndpoints::Configured())) links += scheme;
  EXPECT_EQ(Seen({}, links, "[...document.links].map(l => l.protocol).join()"),
            QStringLiteral("http:,ftp:,gopher:,telnet:,emailto:,file:"));
}

TEST_F(InBrowserTest, MetaTagsAreReadFromTheHead) {
  std::array<MetaTagsText::Entry, 10> entries;
  for (auto &entry : entries) entry = {true, QStringLiteral("3000"), QStringLiteral("about:blank")};
  EXPECT_EQ(Seen(MetaTagsText::Block(entries), QStringLiteral("<p>page</p>"),
                 "[...document.head.querySelectorAll('meta')].map(m => (m.name || m.httpEquiv) + "
                 "' ' + m.content).join()"),
            QStringLiteral("author 3000,description 3000,keywords 3000,date 3000,robots 3000,"
                           "charset 3000,expires 3000,refresh 3000,about:blank,editor 3000,"
                           "Set-Cookie "));
}

TEST_F(InBrowserTest, FormatButtonsGiveTheTextItsLook) {
  QString body;
  for (int button = 2; button <= 9; ++button) {
    const FormatText text = FormatText::OfButton(button);
    body += QStringLiteral("<div>") + text.opening + u'x' + text.closing + QStringLiteral("</div>");
  }
  const FormatText font = FormatText::OfFont(6, QStringLiteral("Arial"), QStringLiteral("#FF0000"));
  body += QStringLiteral("<div>") + font.opening + u'x' + font.closing + QStringLiteral("</div>");
  EXPECT_EQ(Seen({}, body,
                 "[...document.querySelectorAll('div')].map(d => d.children[0].tagName + "
                 "(d.children[0].align || '')).join() + ' ' + (f => f.fontFamily + ' ' + f.color + "
                 "' ' + f.fontSize)(getComputedStyle(document.querySelector('font font font')))"),
            QStringLiteral("B,I,U,STRIKE,P,Pleft,Pright,Pcenter,FONT Arial, Helvetica "
                           "rgb(255, 0, 0) 48px"));
}

}  // namespace
