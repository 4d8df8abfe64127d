#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "Compare.h"
#include "Keys.h"
#include "assistants/FormatText.h"
#include "assistants/FramesetLayouts.h"
#include "assistants/FramesetText.h"
#include "assistants/HorRuleText.h"
#include "assistants/ImageText.h"
#include "assistants/LinkSchemes.h"
#include "assistants/ListText.h"
#include "assistants/MetaTagsText.h"
#include "assistants/TableText.h"
#include "assistants/frmColors.h"
#include "assistants/frmFontcolors.h"
#include "assistants/frmInsertFrame.h"
#include "assistants/frmInsertHorRule.h"
#include "assistants/frmInsertImage.h"
#include "assistants/frmInsertLink.h"
#include "assistants/frmInsertList.h"
#include "assistants/frmInsertTable.h"
#include "assistants/frmMetaTags.h"
#include "assistants/frmSpecialCharacters.h"
#include "documents/Insertion.h"
#include "frame/mdiMain.h"
#include "toolkit/DoEvents.h"
#include "toolkit/RichTextBox.h"

namespace {

constexpr int insertions = 40;

double Milliseconds(const std::function<void()> &work) {
  return Seconds(work) * 1000;
}

// Puts the caret into the middle of the text.
void ToMiddle(QPlainTextEdit &box) {
  TurnTo(box);
  QTextCursor cursor = box.textCursor();
  cursor.setPosition(box.document()->characterCount() / 2);
  box.setTextCursor(cursor);
  DoEvents();
}

void InsertBare(QPlainTextEdit &box, const QString &text) {
  box.insertPlainText(text);
  box.ensureCursorVisible();
  DoEvents();
}

// ---- the largest table

QString BuildTable() {
  TableText table;
  table.rows = table.cols = 200;
  return *table.Build([] {
    DoEventsInLoop();
    return true;
  });
}

void BenchTable() {
  const QByteArray page = Page(100 << 10);
  RichTextBox &ours = OpenDocument(page);
  QPlainTextEdit &bare = OpenBare(page);
  const QString text = BuildTable();
  const auto insertBare = [&] {
    ToMiddle(bare);
    const double took = Milliseconds([&] { InsertBare(bare, text); });
    bare.undo();
    return took;
  };
  Compare(
      QStringLiteral("a table of 200 by 200, inserted and drawn"), QStringLiteral("ms"), 1.3,
      [&] {
        ToMiddle(ours);
        const double took = Milliseconds([] {
          Insertion::ReplaceSelection(BuildTable());
          DoEvents();
        });
        ours.undo();
        return took;
      },
      insertBare);
  Compare(
      QStringLiteral("the building of its text against that insertion"), QStringLiteral("ms"), 0.1,
      [] { return Milliseconds([] { BuildTable(); }); }, insertBare);
  Close(ours);
  Close(bare);
}

// ---- the others in a large document

struct Writing {
  const char *name;
  QString text;  // what the bare widget inserts
  std::function<void()> write;
};

QString Frameset() {
  const auto &slots = FramesetLayouts()[12].slots;
  return BuildFramesetText(12, QStringList(qsizetype(slots.size()), QStringLiteral("a.html")),
                           FrameSourceTable(slots.size() + 1));
}

QString List() {
  ListText list;
  list.noOfItems = QStringLiteral("10");
  return list.Build();
}

QString MetaBlock() {
  std::array<MetaTagsText::Entry, 10> entries;
  for (auto &entry : entries) entry = {true, QStringLiteral("text"), QStringLiteral("more")};
  return MetaTagsText::Block(entries);
}

QString Link() {
  return LinkSchemes(MakerEndpoints::Configured())[0];
}

void BenchInserting() {
  const FormatText font = FormatText::OfFont(0, QStringLiteral("Serif"), QStringLiteral("#FF0000"));
  const Writing writings[] = {
      {"a frameset", Frameset(), [] { Insertion::ReplaceSelection(Frameset()); }},
      {"a list", List(), [] { Insertion::ReplaceSelection(List()); }},
      {"an image", ImageText().Tag(), [] { Insertion::ReplaceSelection(ImageText().Tag()); }},
      {"a link", Link(), [] { Insertion::ReplaceSelection(Link()); }},
      {"a rule", HorRuleText().Tag(), [] { Insertion::PutInFrontAndPass(HorRuleText().Tag()); }},
      {"meta tags", MetaBlock(), [] { Insertion::PutInFront(MetaBlock()); }},
      {"a special character", QStringLiteral("&eacute;"),
       [] { Insertion::ReplaceSelection(QStringLiteral("&eacute;")); }},
      {"a colour", QStringLiteral("#FF0000"),
       [] { Insertion::ReplaceSelection(QStringLiteral("#FF0000")); }},
      {"font settings", font.opening + font.closing,
       [&font] { Insertion::Surround(font.opening, font.closing); }},
  };
  const QByteArray page = Page(10 << 20);
  RichTextBox &ours = OpenDocument(page);
  QPlainTextEdit &bare = OpenBare(page);
  const auto each = [](QPlainTextEdit &box, const std::function<void()> &step) {
    ToMiddle(box);
    return Milliseconds([&step] {
             for (int i = 0; i < insertions; ++i) step();
           }) /
           insertions;
  };
  for (const Writing &writing : writings) {
    Compare(
        QLatin1String(writing.name) + QStringLiteral(" into 10 MB"), QStringLiteral("ms"), 1.5,
        [&] {
          return each(ours, [&writing] {
            writing.write();
            DoEvents();
          });
        },
        [&] { return each(bare, [&] { InsertBare(bare, writing.text); }); });
  }
  Close(ours);
  Close(bare);
}

// ---- opening

// A control of the kind that the name says, as it comes; an empty widget for kinds of our own.
QWidget *BareControl(const QString &kind, QWidget *parent) {
  if (kind == QLatin1String("QLabel")) return new QLabel(QStringLiteral("text"), parent);
  if (kind == QLatin1String("QLineEdit")) return new QLineEdit(parent);
  if (kind == QLatin1String("QComboBox")) return new QComboBox(parent);
  if (kind == QLatin1String("QCheckBox")) return new QCheckBox(QStringLiteral("text"), parent);
  if (kind == QLatin1String("QRadioButton"))
    return new QRadioButton(QStringLiteral("text"), parent);
  if (kind == QLatin1String("QPushButton")) return new QPushButton(QStringLiteral("text"), parent);
  if (kind == QLatin1String("QGroupBox")) return new QGroupBox(QStringLiteral("text"), parent);
  return new QWidget(parent);
}

template <class F>
void BenchForm() {
  QStringList kinds;
  const auto openOurs = [&kinds] {
    return Milliseconds([&kinds] {
      auto *form = Default<F>();
      form->show();
      DoEvents();
      kinds.clear();
      for (const QWidget *child : form->template findChildren<QWidget *>()) {
        kinds << QString::fromLatin1(child->metaObject()->className());
      }
    });
  };
  Compare(
      QStringLiteral("opening %1").arg(QLatin1String(F::staticMetaObject.className())),
      QStringLiteral("ms"), 3,
      [&] {
        const double took = openOurs();
        Unload(*Default<F>());
        DoEvents();
        return took;
      },
      [&kinds] {
        QDialog dialog(Default<mdiMain>());
        return Milliseconds([&] {
          auto *layout = new QGridLayout(&dialog);
          constexpr int columns = 4;
          for (int i = 0; i < int(kinds.size()); ++i) {
            layout->addWidget(BareControl(kinds[i], &dialog), i / columns, i % columns);
          }
          dialog.show();
          DoEvents();
        });
      });
}

}  // namespace

void BenchAssistants() {
  BenchTable();
  BenchInserting();
  BenchForm<frmInsertFrame>();
  BenchForm<frmInsertTable>();
  BenchForm<frmInsertList>();
  BenchForm<frmInsertImage>();
  BenchForm<frmInsertLink>();
  BenchForm<frmInsertHorRule>();
  BenchForm<frmMetaTags>();
  BenchForm<frmColors>();
  BenchForm<frmFontcolors>();
  BenchForm<frmSpecialCharacters>();
}
