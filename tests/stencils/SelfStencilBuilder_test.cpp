#include <QClipboard>
#include <QTimer>

#include "shared/StencilFormsTest.h"
#include "stencils/QuickBar.h"
#include "stencils/frmSelfStencilBuilder.h"

using Qt::StringLiterals::operator""_s;
using enum Dialogs::Answer;

class SelfStencilBuilderTest : public StencilFormsTest {
 protected:
  void Open(const char *keys, const char *barKeys = "") {
    PutStencils(stencils, Words(keys));
    PutQuickBar(bar, Words(barKeys));
    form = Default<frmSelfStencilBuilder>();
  }
  void Choose(int node) {
    KeyedTree *tree = form->trwStencils;
    tree->expandAll();
    const QRect place = tree->visualItemRect(tree->Node(node));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place.center());
  }
  // Presses a button, gives the answer and returns the question.
  QString Press(QPushButton *button, Dialogs::Answer answer = Ok) {
    dialogs.answers = {answer};
    button->click();
    return std::exchange(dialogs.messages, {}).join(u'\n');
  }
  // Whether the button for the quick bar and the other controls that a change disables are enabled.
  QString Enabled() const {
    return QString::number(form->cmdAddtoQuick->isEnabled()) +
           QString::number(form->cmdSave->isEnabled() && form->trwStencils->isEnabled());
  }
  QString Boxes() const {
    return form->txtHeader->text() + form->txthtmlSource->Text() + form->txtTextCaption->text() +
           form->txtDescription->Text();
  }
  // The ordinal of the current node.
  int Current() const { return form->trwStencils->Ordinal(form->trwStencils->currentItem()); }

  QPointer<frmSelfStencilBuilder> form;
};

TEST_F(SelfStencilBuilderTest, ANodeShowsItsRecordAndTheRootLeavesTheBoxesAlone) {
  Open("aaaa aaaaaa aabb");
  EXPECT_FALSE(form->trwStencils->Node(2)->isExpanded());
  QTest::keyClicks(form->cboHirarchieSteps, u"2"_s);
  EXPECT_TRUE(form->trwStencils->Node(2)->isExpanded());
  Choose(3);
  QTest::keyClick(form->trwStencils, Qt::Key_Down);
  Choose(1);
  EXPECT_EQ(Boxes(), u"Haabb<aabb>cap Haabbhelp Haabb");
}

TEST_F(SelfStencilBuilderTest, GenerateMakesAChildOfTheSelectedNode) {
  Open("");
  form->txtHeader->setText(u"   "_s);
  EXPECT_EQ(Press(form->cmdSave),
            u"Self Stencil Builder Message|You must enter an entry header before you can generate "
            u"an entry!|0");
  form->txtHeader->setText(u" \u2192 top "_s);
  form->txthtmlSource->SetText(u"  <p>\n\u00A0\r</p>\r\n "_s);
  form->txthtmlSource->document()->setModified(true);  // as if it were typed
  form->txtTextCaption->setText(u"c"_s);
  form->txtDescription->SetText(u"d"_s);
  form->cmdSave->click();
  EXPECT_EQ(FileBytes(stencils),
            QByteArray("? top").leftJustified(100) +
                QByteArray("<p>\r\n\xA0\r\n</p>\r\n").leftJustified(1500) +
                QByteArray("c").leftJustified(100) + QByteArray("d").leftJustified(750) +
                QByteArray("aa").leftJustified(100) + QByteArray("aaaa").leftJustified(100));
  EXPECT_EQ(Boxes(), u"");
  Choose(2);
  form->txtHeader->setText(u"below"_s);
  form->cmdSave->click();
  EXPECT_EQ(KeysIn(stencils), u"aaaa aaaaaa");
  EXPECT_EQ(Current(), 2);
  form->cmdOk->click();
  EXPECT_EQ(main->trwSelfBuildedStencils->NodeCount(), 3) << "the main window shows them";
}

TEST_F(SelfStencilBuilderTest, AFullNodeLeavesTheControlsGrey) {
  QByteArray keys;
  for (char letter = 'a'; letter <= 'z'; ++letter) keys += "aa" + QByteArray(2, letter) + ' ';
  Open(keys.constData());
  form->txtHeader->setText(u"one more"_s);
  EXPECT_EQ(Press(form->cmdSave),
            u"Self Stencil Builder Message|The entry you have selected is full and could not take "
            u"any more sub-entries!\r\nPlease select another top-entry and try again.|0");
  EXPECT_EQ(Enabled(), u"00");
}

TEST_F(SelfStencilBuilderTest, OverwriteChangesTheSelectedRecordInPlace) {
  Open("aaaa aabb aacc");
  const QByteArray before = FileBytes(stencils);
  StencilRecord changed = Stencil(u"aabb"_s, u"Haabb"_s, u"<aabb>"_s);
  changed.Description.Set(u"new");
  const QByteArray after = before.left(2650) + Bytes(changed) + before.mid(2 * 2650);
  for (const auto &[node, answer, bytes] :
       {std::tuple{3, No, before}, {1, Yes, before}, {3, Yes, after}}) {
    Choose(node);
    form->txtDescription->SetText(u"new"_s);
    EXPECT_EQ(Press(form->cmdOverwriteSelection, answer),
              u"Self Stencil Builder Overwrite ReQuest|Do you want to overwrite the selected "
              u"entry?|1");
    EXPECT_EQ(FileBytes(stencils), bytes);
    EXPECT_EQ(Current(), node);
  }
}

TEST_F(SelfStencilBuilderTest, OverwriteKeepsWhatTheBoxesCantHoldUntilItIsEdited) {
  PutFile(stencils, Bytes(Stencil(u"aaaa"_s, u"header"_s, u"x\n"_s.repeated(750))));
  const QByteArray before = FileBytes(stencils);
  form = Default<frmSelfStencilBuilder>();
  Choose(2);
  Press(form->cmdOverwriteSelection, Yes);
  EXPECT_EQ(FileBytes(stencils), before);
  QTest::keyClick(form->txthtmlSource, Qt::Key_Delete);
  Press(form->cmdOverwriteSelection, Yes);
  EXPECT_EQ(FileBytes(stencils).mid(100, 6), "\r\nx\r\nx");
}

TEST_F(SelfStencilBuilderTest, DeleteTakesWhatIsBelowAndSelectsTheNodeBefore) {
  Open("aaaa aabb aabbaa aacc", "aabbaa aacc");
  const QByteArray before = FileBytes(stencils);
  Choose(3);
  EXPECT_EQ(Press(form->cmdDelete, No),
            u"Self Stencil Builder Delete ReQuest|Do you want to delete this entry an all of its "
            u"sub entries?|1");
  EXPECT_EQ(FileBytes(stencils), before);
  Press(form->cmdDelete, Yes);
  EXPECT_EQ(KeysIn(stencils) + u'|' + QuickBar::Keys(bar).join(u' '), u"aaaa aacc|aacc");
  EXPECT_EQ(Current(), 2);
}

TEST_F(SelfStencilBuilderTest, TheQuickBarTakesAnEntryOnceAndAHundredInAll) {
  Open("aaaa");
  Choose(2);
  EXPECT_EQ(Press(form->cmdAddtoQuick), u"");
  EXPECT_EQ(Press(form->cmdAddtoQuick),
            u"Self Stencil Building Window Message|The Selected Entry is still in the Quickbar!|0");
  PutQuickBar(bar, QStringList(99, u"aabb"_s));
  EXPECT_EQ(Press(form->cmdAddtoQuick), u"");
  EXPECT_EQ(Enabled(), u"11");
  EXPECT_EQ(FileBytes(bar).sliced(9900), QByteArray("aaaa").leftJustified(100));
  EXPECT_EQ(Press(form->cmdAddtoQuick),
            u"Quickbar Editor Window|Quickbar could only contains 100 entries and you have reached "
            u"the margin!|0");
  EXPECT_EQ(Enabled(), u"10");
}

TEST_F(SelfStencilBuilderTest, ABoxTakesNoMoreThanItsFieldHolds) {
  Open("");
  LimitedTextBox &box = *form->txtDescription;
  box.SetText(QString(748, u'x'));
  box.moveCursor(QTextCursor::Start);
  QGuiApplication::clipboard()->setText(u"a\nb"_s);
  box.paste();
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_EQ(box.Text(), u'a' + QString(748, u'x')) << "a line end has no room";
  QTest::keyClicks(&box, u"no"_s);
  EXPECT_EQ(box.Text().size(), 750);
  EXPECT_EQ(form->txthtmlSource->MaxLength(), 1500);
  EXPECT_EQ(form->txtHeader->maxLength() + form->txtTextCaption->maxLength(), 200);
}

TEST_F(SelfStencilBuilderTest, AFormClosedInTheMiddleOfAChangeEndsIt) {
  mPublic::recPreferences.ForceDatabaseLoading = true;  // holds the painting meanwhile
  ASSERT_TRUE(mPublic::WritePreferences());
  for (const auto button :
       {&frmSelfStencilBuilder::cmdSave, &frmSelfStencilBuilder::cmdOverwriteSelection,
        &frmSelfStencilBuilder::cmdDelete}) {
    Open("aaaa aabb aacc");
    Choose(3);
    QTimer::singleShot(0, form, [this] { form->close(); });
    Press((*form).*button, Yes);
    ASSERT_TRUE(form && form->IsUnloaded());
    EXPECT_TRUE(form->trwStencils->updatesEnabled());
    EXPECT_EQ(Enabled(), u"00") << "the handler ended there";
    EXPECT_FALSE(QFile::exists(Path(StencilFiles::Scratch)));
  }
}
