#include <QClipboard>
#include <QGuiApplication>
#include <QTimer>

#include "shared/FormsTest.h"
#include "shared/Stencils.h"
#include "stencils/FillStencilTree.h"
#include "stencils/QuickBar.h"
#include "stencils/frmSelfStencilBuilder.h"

namespace {

using Answer = Dialogs::Answer;

QString Text(const char *latin) {
  return QString::fromLatin1(latin);
}

class SelfStencilBuilderTest : public FormsTest {
 protected:
  SelfStencilBuilderTest() { Prefer(false); }
  ~SelfStencilBuilderTest() override {
    mPublic::recPreferences = StandardPreferences();
    mPublic::WritePreferences();
  }

  void Prefer(bool fast) {
    mPublic::recPreferences = StandardPreferences();
    mPublic::recPreferences.SelfStencilsOtherPath = true;
    mPublic::recPreferences.OtherStencilsPath.Set(folder.path());
    mPublic::recPreferences.ForceDatabaseLoading = fast;
    ASSERT_TRUE(mPublic::WritePreferences());
  }
  void Open(const QString &keys, const QString &barKeys = {}) {
    PutStencils(path, keys.split(u' ', Qt::SkipEmptyParts));
    PutQuickBar(bar, barKeys.split(u' ', Qt::SkipEmptyParts));
    form = Default<frmSelfStencilBuilder>();
    form->trwStencils->expandAll();
  }
  void Choose(int node) {
    const QRect place = form->trwStencils->visualItemRect(form->trwStencils->Node(node));
    QTest::mouseClick(form->trwStencils->viewport(), Qt::LeftButton, {}, place.center());
  }
  // Which of the controls that a change disables are enabled, one letter each.
  QString Enabled() const {
    QString enabled;
    if (form->cmdAddtoQuick->isEnabled()) enabled += u'q';
    if (form->cmdSave->isEnabled()) enabled += u's';
    if (form->cmdOverwriteSelection->isEnabled()) enabled += u'o';
    if (form->cmdDelete->isEnabled()) enabled += u'd';
    if (form->trwStencils->isEnabled()) enabled += u't';
    return enabled;
  }
  QString Selected() const { return StencilTag(form->trwStencils->currentItem()); }
  QString Asked() { return dialogs.messages.isEmpty() ? QString() : dialogs.messages.takeLast(); }

  const QString path = Path(StencilFiles::SelfBuilt);
  const QString bar = Path(StencilFiles::QuickBar);
  const QString all = QStringLiteral("qsodt");
  QPointer<frmSelfStencilBuilder> form;
};

TEST_F(SelfStencilBuilderTest, TheTreeShowsTheFileEvenWhereARecordIsOutOfPlace) {
  QByteArray bytes;
  for (const auto &record :
       {Stencil(Text("aaaa"), Text("section")), Stencil({}, Text("blanked")),
        Stencil(Text("aaaaaa"), Text("leaf"), Text("<b>")), Stencil(Text("zzzz"), Text("orphan")),
        Stencil(Text("aabb"), Text("later"), Text("<i>")), Stencil(Text("aacc"), Text("last"))}) {
    bytes += Bytes(record);
  }
  PutFile(path, bytes);
  form = Default<frmSelfStencilBuilder>();
  ASSERT_TRUE(form->isVisible() && form->isModal());
  struct Case {
    const char *text, *tag;
    int image;
  };
  const Case nodes[] = {{"Self Builded Stencils", "aa", 4},
                        {"section", "aaaa", 4},
                        {"leaf", "aaaaaa", 2},
                        {"later", "", 0},
                        {"last", "", 0}};
  ASSERT_EQ(form->trwStencils->NodeCount(), 5);
  for (int i = 0; i < 5; ++i) {
    const QTreeWidgetItem *node = form->trwStencils->Node(i + 1);
    EXPECT_EQ(node->text(0), Text(nodes[i].text));
    EXPECT_EQ(StencilTag(node), Text(nodes[i].tag));
    EXPECT_EQ(node->icon(0).cacheKey(), mdiMain::TreeImages().value(nodes[i].image - 1).cacheKey());
  }
  EXPECT_EQ(form->cboHirarchieSteps->count(), 6) << "every record counts here";
  EXPECT_TRUE(form->trwStencils->Node(1)->isExpanded());
  EXPECT_FALSE(form->trwStencils->Node(2)->isExpanded());
  QTest::keyClicks(form->cboHirarchieSteps, Text("2"));
  EXPECT_TRUE(form->trwStencils->Node(2)->isExpanded());
}

TEST_F(SelfStencilBuilderTest, FillingEndsWithItsTree) {
  PutStencils(path, {Text("aaaa"), Text("aabb")});
  auto *tree = new KeyedTree;
  int calls = 0;
  FillStencilTree(*tree, path, Text("root"), [&] {
    delete tree;
    return ++calls > 0;
  });
  EXPECT_EQ(calls, 1);
}

TEST_F(SelfStencilBuilderTest, ANodeShowsItsRecordAndTheRootLeavesTheBoxesAlone) {
  Open(Text("aaaa aabb"));
  Choose(2);
  QTest::keyClick(form->trwStencils, Qt::Key_Down);
  EXPECT_EQ(form->txtHeader->text(), Text("Haabb"));
  Choose(1);
  EXPECT_EQ(form->txthtmlSource->Text(), Text("<aabb>"));
  EXPECT_EQ(form->txtTextCaption->text(), Text("cap Haabb"));
  EXPECT_EQ(form->txtDescription->Text(), Text("help Haabb"));
}

TEST_F(SelfStencilBuilderTest, GenerateMakesAChildOfTheSelectedNode) {
  Open({});
  EXPECT_EQ(form->cboHirarchieSteps->currentText(), Text("none"));
  form->txtHeader->setText(Text("   "));
  dialogs.answers = {Answer::Ok};
  form->cmdSave->click();
  EXPECT_EQ(Asked(), Text("Self Stencil Builder Message|You must enter an entry header before you "
                          "can generate an entry!|0"));
  EXPECT_EQ(FileBytes(path), QByteArray());
  EXPECT_EQ(Enabled(), all);

  form->txtHeader->setText(QStringLiteral(" \u2192 top "));
  form->txthtmlSource->SetText(QStringLiteral("  <p>\n\u00A0\r</p>\r\n "));
  form->txthtmlSource->document()->setModified(true);  // as if it were typed
  form->txtTextCaption->setText(Text("c"));
  form->txtDescription->SetText(Text("d"));
  form->cmdSave->click();
  EXPECT_EQ(FileBytes(path),
            QByteArray("? top").leftJustified(100) +
                QByteArray("<p>\r\n\xA0\r\n</p>\r\n").leftJustified(1500) +
                QByteArray("c").leftJustified(100) + QByteArray("d").leftJustified(750) +
                QByteArray("aa").leftJustified(100) + QByteArray("aaaa").leftJustified(100));
  EXPECT_EQ(form->txtHeader->text() + form->txthtmlSource->Text() + form->txtTextCaption->text() +
                form->txtDescription->Text(),
            QString());
  EXPECT_EQ(form->focusWidget(), form->txtHeader);
  EXPECT_EQ(Enabled(), all);

  Choose(2);
  form->txtHeader->setText(Text("below"));
  form->cmdSave->click();
  EXPECT_EQ(KeysIn(path), Text("aaaa aaaaaa"));
  EXPECT_EQ(Selected(), Text("aaaa"));
  EXPECT_TRUE(form->trwStencils->Node(2)->isExpanded());
  EXPECT_EQ(form->cboHirarchieSteps->count(), 2);
}

TEST_F(SelfStencilBuilderTest, AFullNodeLeavesTheControlsGrey) {
  QStringList keys;
  for (char16_t letter = u'a'; letter <= u'z'; ++letter) keys << Text("aa") + QString(2, letter);
  Open(keys.join(u' '));
  form->txtHeader->setText(Text("one more"));
  dialogs.answers = {Answer::Ok};
  form->cmdSave->click();
  EXPECT_EQ(Asked(), Text("Self Stencil Builder Message|The entry you have selected is full and "
                          "could not take any more sub-entries!\r\nPlease select another "
                          "top-entry and try again.|0"));
  EXPECT_EQ(Enabled(), QString());
  EXPECT_EQ(StencilFiles::StencilCount(path), 26);
  form->close();
  Open(Text("aaaa"));
  EXPECT_EQ(Enabled(), all);
}

TEST_F(SelfStencilBuilderTest, OverwriteChangesTheSelectedRecordInPlace) {
  Open(Text("aaaa aabb aacc"));
  const QByteArray before = FileBytes(path);
  const auto overwrite = [this](int node, Answer answer) {
    Choose(node);
    form->txtHeader->clear();
    form->txtDescription->SetText(Text("new"));
    dialogs.answers = {answer};
    form->cmdOverwriteSelection->click();
    EXPECT_EQ(Asked(), Text("Self Stencil Builder Overwrite ReQuest|Do you want to overwrite the "
                            "selected entry?|1"));
    EXPECT_EQ(Enabled(), all);
  };
  overwrite(3, Answer::No);
  overwrite(1, Answer::Yes);
  EXPECT_EQ(FileBytes(path), before);
  overwrite(3, Answer::Yes);
  StencilRecord changed = Stencil(Text("aabb"), Text("Haabb"), Text("<aabb>"));
  changed.Header.Set({});
  changed.Description.Set(u"new");
  EXPECT_EQ(FileBytes(path), before.left(2650) + Bytes(changed) + before.mid(2 * 2650));
  EXPECT_EQ(form->trwStencils->Node(3)->text(0), QString());
  EXPECT_EQ(Selected(), Text("aabb"));
  EXPECT_EQ(form->txtDescription->Text(), Text("new"));
}

TEST_F(SelfStencilBuilderTest, OverwriteKeepsWhatTheBoxesCantHoldUntilItIsEdited) {
  const StencilRecord full = Stencil(Text("aaaa"), Text("header"), Text("x\n").repeated(750));
  PutFile(path, Bytes(full));
  form = Default<frmSelfStencilBuilder>();
  const auto overwrite = [this] {
    dialogs.answers = {Answer::Yes};
    form->cmdOverwriteSelection->click();
    return FileBytes(path);
  };
  Choose(2);
  EXPECT_EQ(overwrite(), Bytes(full));
  QTest::keyClick(form->txthtmlSource, Qt::Key_Delete);
  EXPECT_EQ(overwrite().mid(100, 6), "\r\nx\r\nx");
}

TEST_F(SelfStencilBuilderTest, DeleteTakesWhatIsBelowAndSelectsTheNodeBefore) {
  struct Case {
    int node;
    Answer answer;
    const char *keys, *quickBar, *selected, *steps;
  };
  for (const auto &row :
       {Case{3, Answer::No, "aaaa aabb aabbaa aacc", "aabbaa aacc", "aabb", "1"},
        Case{3, Answer::Yes, "aaaa aacc", "aacc", "aaaa", "1"},
        Case{2, Answer::Yes, "aabb aabbaa aacc", "aabbaa aacc", "aa", "1"},
        Case{1, Answer::Yes, "", "", "", "none"}, Case{0, Answer::Yes, "", "", "", "none"}}) {
    Open(Text("aaaa aabb aabbaa aacc"), Text("aabbaa aacc"));
    if (row.node > 0) {
      Choose(row.node);
    } else {
      form->trwStencils->setCurrentItem(nullptr);
    }
    dialogs.answers = {row.answer};
    form->cmdDelete->click();
    EXPECT_EQ(Asked(), Text("Self Stencil Builder Delete ReQuest|Do you want to delete this entry "
                            "an all of its sub entries?|1"));
    EXPECT_EQ(KeysIn(path), Text(row.keys)) << row.node;
    EXPECT_EQ(QuickBar::Keys(bar).join(u' '), Text(row.quickBar)) << row.node;
    EXPECT_EQ(Selected(), Text(row.selected)) << row.node;
    EXPECT_EQ(form->cboHirarchieSteps->currentText(), Text(row.steps)) << row.node;
    EXPECT_EQ(form->trwStencils->NodeCount(), StencilFiles::StencilCount(path) + 1);
    EXPECT_EQ(Enabled(), all);
    Unload(*form);
  }
}

TEST_F(SelfStencilBuilderTest, TheQuickBarTakesAnEntryOnceAndAHundredInAll) {
  Open(Text("aaaa"));
  Choose(2);
  form->cmdAddtoQuick->click();
  EXPECT_EQ(QuickBar::Keys(bar), QStringList{Text("aaaa")});
  dialogs.answers = {Answer::Ok, Answer::Ok};
  form->cmdAddtoQuick->click();
  EXPECT_EQ(Asked(), Text("Self Stencil Building Window Message|The Selected Entry is still in "
                          "the Quickbar!|0"));
  EXPECT_EQ(Enabled(), all);
  PutQuickBar(bar, QStringList(100, Text("aabb")));
  form->cmdAddtoQuick->click();
  EXPECT_EQ(Asked(), Text("Quickbar Editor Window|Quickbar could only contains 100 entries and you "
                          "have reached the margin!|0"));
  EXPECT_EQ(Enabled(), Text("q"));
}

TEST_F(SelfStencilBuilderTest, ABoxTakesNoMoreThanItsFieldHolds) {
  Open({});
  LimitedTextBox &box = *form->txtDescription;
  const auto paste = [&box](const QString &text) {
    QGuiApplication::clipboard()->setText(text);
    box.paste();
  };
  box.SetText(QString(748, u'x'));
  box.moveCursor(QTextCursor::Start);
  paste(Text("ab\n"));
  EXPECT_EQ(box.Text(), Text("ab") + QString(748, u'x'));
  EXPECT_EQ(box.textCursor().position(), 2) << "the caret is behind what was put in";
  QTest::keyClicks(&box, Text("no"));
  QTest::keyClick(&box, Qt::Key_Backspace);
  QTest::keyClick(&box, Qt::Key_Return);
  QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(box.Text().size(), 749) << "a line end has no room";
  QTest::keyClick(&box, Qt::Key_Right, Qt::ShiftModifier);
  QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(box.Text(), Text("a\r\n") + QString(747, u'x')) << "the selection makes room";
  QTest::keyClick(&box, Qt::Key_Left, Qt::ShiftModifier);
  paste(QStringLiteral("\U0001F600\U0001F600"));
  EXPECT_EQ(box.Text(), QStringLiteral("a\U0001F600") + QString(747, u'x'));
  QInputMethodEvent composed;
  composed.setCommitString(Text("two"));
  QCoreApplication::sendEvent(&box, &composed);
  EXPECT_EQ(box.Text().size(), 750);
  box.undo();
  EXPECT_EQ(box.Text().size(), 750) << "a refused key left no step behind";

  form->txthtmlSource->SetText(QString(2000, u'y'));
  form->txtHeader->setText(QString(101, u'h'));
  form->txtTextCaption->setText(QString(101, u'c'));
  EXPECT_EQ(form->txthtmlSource->document()->characterCount() - 1, 1500);
  EXPECT_EQ((form->txtHeader->text() + form->txtTextCaption->text()).size(), 200);
}

// Counts how often the window that stands during a load is shown.
class LoadCounter : public QObject {
 public:
  LoadCounter() { qApp->installEventFilter(this); }
  int loads = 0;

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override {
    if (event->type() == QEvent::Show && watched->objectName() == Text("frmDatabaseIsLoading"))
      ++loads;
    return false;
  }
};

TEST_F(SelfStencilBuilderTest, TheMainTreeIsFilledAtTheCloseAndTwiceAfterOk) {
  LoadCounter counter;
  Open(Text("aaaa"));
  EXPECT_EQ(counter.loads, 1);
  form->cmdOk->click();
  EXPECT_EQ(counter.loads, 3);
  DoEvents();
  Open(Text("aaaa"));
  QTest::keyClick(form, Qt::Key_Escape);
  EXPECT_EQ(counter.loads, 5);
  EXPECT_TRUE(!form || form->IsUnloaded());
}

TEST_F(SelfStencilBuilderTest, AFormClosedInTheMiddleOfAChangeEndsIt) {
  for (const bool fast : {false, true}) {
    Prefer(fast);
    for (QPushButton *frmSelfStencilBuilder::*button :
         {&frmSelfStencilBuilder::cmdSave, &frmSelfStencilBuilder::cmdOverwriteSelection,
          &frmSelfStencilBuilder::cmdDelete}) {
      Open(Text("aaaa aabb aacc"));
      Choose(3);
      dialogs.answers = {Answer::Yes};
      QTimer::singleShot(0, form, [this] { form->close(); });
      ((*form).*button)->click();
      ASSERT_TRUE(form && form->IsUnloaded());
      EXPECT_TRUE(form->trwStencils->updatesEnabled());
      EXPECT_EQ(Enabled(), QString()) << "the handler ended there";
      EXPECT_FALSE(QFile::exists(Path(StencilFiles::Scratch)));
    }
  }
}

}  // namespace
