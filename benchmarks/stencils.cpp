#include <unistd.h>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <cstdio>

#include "Compare.h"
#include "Keys.h"
#include "base/mAnsi.h"
#include "frame/mdiMain.h"
#include "stencils/FillStencilTree.h"
#include "stencils/StencilFiles.h"
#include "stencils/mStencilBuilder.h"
#include "toolkit/DoEvents.h"

namespace {

constexpr int library = 1096;
constexpr int most = 32767;
constexpr int quickBarEntries = 100;
constexpr qint64 block = 1 << 20;

// So many keys, level by level, each behind its parent's.
QStringList TreeKeys(int count) {
  QStringList keys{StencilFiles::RootKey};
  for (qsizetype parent = 0; keys.size() <= count; ++parent) {
    for (char16_t letter = u'a'; letter <= u'z' && keys.size() <= count; ++letter) {
      keys << keys[parent] + QString(2, letter);
    }
  }
  keys.removeFirst();
  return keys;
}

void WriteLibrary(const QString &path, const QStringList &keys) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) qFatal("no library");
  StencilRecord record;
  record.TextCaption.Set(QStringLiteral("caption"));
  record.Description.Set(QStringLiteral("What the fragment is for, in a few words."));
  record.HtmlSource.Set(QStringLiteral("<p>some mark-up</p>\r\n").repeated(20));
  for (const QString &key : keys) {
    record.Header.Set(QStringLiteral("Entry ") + key);
    record.ParentKey.Set(key.chopped(2));
    record.Key.Set(key);
    file.write(reinterpret_cast<const char *>(&record), sizeof record);
  }
}

// Reads a file in large pieces and nothing else.
qint64 ReadPlainly(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return 0;
  QByteArray piece(block, '\0');
  qint64 sum = 0;
  for (qint64 got = 1; got > 0; sum += got) got = file.read(piece.data(), block);
  return sum;
}

// Reads a file and writes the same bytes anew, flushed and renamed over it.
void CopyPlainly(const QString &path, const QString &scratch) {
  QFile in(path);
  QFile out(scratch);
  if (!in.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || !out.open(QIODevice::WriteOnly)) {
    qFatal("no copy");
  }
  QByteArray piece(block, '\0');
  for (qint64 got = in.read(piece.data(), block); got > 0; got = in.read(piece.data(), block)) {
    out.write(piece.constData(), got);
  }
  out.flush();
  fsync(out.handle());
  std::rename(qPrintable(scratch), qPrintable(path));
}

double Milliseconds(const std::function<void()> &work) {
  return Seconds(work) * 1000;
}

void FillBare(QTreeWidget &tree, const QString &path) {
  tree.clear();
  ReadPlainly(path);
  QHash<QString, QTreeWidgetItem *> nodes;
  nodes[StencilFiles::RootKey] = new QTreeWidgetItem(&tree, {QStringLiteral("root")});
  for (const QString &key : TreeKeys(library)) {
    nodes[key] = new QTreeWidgetItem(nodes[key.chopped(2)], {QStringLiteral("Entry ") + key});
  }
}

// Fills the tree with events let through; the longest time in milliseconds that one had to wait.
double LongestWait(KeyedTree &tree, const QString &path) {
  QElapsedTimer clock;
  qint64 longest = 0;
  const auto taken = [&] { longest = std::max(longest, clock.nsecsElapsed()), clock.start(); };
  QTimer click;
  click.callOnTimeout(taken);
  click.start(0);
  clock.start();
  FillStencilTree(tree, path, QStringLiteral("root"), [] {
    DoEventsInLoop();
    return true;
  });
  taken();
  return double(longest) / 1e6;
}

void BenchTreeFill(const QString &path) {
  WriteLibrary(path, TreeKeys(library));
  KeyedTree &tree = *Default<mdiMain>()->trwStencils;
  QTreeWidget bare;
  bare.setHeaderHidden(true);
  bare.resize(tree.size());
  bare.show();
  DoEvents();
  const auto fill = [&](const std::function<bool()> &goOn) {
    return Milliseconds([&] { FillStencilTree(tree, path, QStringLiteral("root"), goOn); });
  };
  Compare(
      QStringLiteral("a tree of 1,096 stencils, fast"), QStringLiteral("ms"), 2,
      [&] { return fill({}); }, [&] { return Milliseconds([&] { FillBare(bare, path); }); });
  Compare(
      QStringLiteral("the same with events let through, against fast"), QStringLiteral("ms"), 3,
      [&] {
        return fill([] {
          DoEventsInLoop();
          return true;
        });
      },
      [&] { return fill({}); });
  WriteLibrary(path, TreeKeys(most));
  Measure(QStringLiteral("longest wait for a click while 32,767 fill a tree"), QStringLiteral("ms"),
          50, [&] { return LongestWait(tree, path); });
}

void BenchScans(const QString &path) {
  const QStringList keys = TreeKeys(most);
  WriteLibrary(path, keys);
  const auto plain = [&] { return Milliseconds([&] { ReadPlainly(path); }); };
  Compare(
      QStringLiteral("finding the last of 32,767 stencils"), QStringLiteral("ms"), 2,
      [&] { return Milliseconds([&] { StencilFiles::FindStencil(path, keys.last()); }); }, plain);
  Compare(
      QStringLiteral("a new key below a full node of 32,767"), QStringLiteral("ms"), 2,
      [&] {
        return Milliseconds([&] { StencilFiles::NextFreeStencilKey(path, StencilFiles::RootKey); });
      },
      plain);
}

void BenchCompacting(const QTemporaryDir &folder, const QString &path) {
  const QString scratch = folder.filePath(StencilFiles::Scratch);
  const QString bar = folder.filePath(StencilFiles::QuickBar);
  const QStringList keys = TreeKeys(most);
  QFile entries(bar);
  if (!entries.open(QIODevice::WriteOnly)) qFatal("no quick bar");
  for (int i = 0; i < quickBarEntries; ++i) {
    entries.write(keys[i * (most / quickBarEntries)].toLatin1().leftJustified(100));
  }
  entries.close();
  Compare(
      QStringLiteral("compacting 32,767 stencils, 100 in the quick bar"), QStringLiteral("ms"), 3,
      [&] {
        return Milliseconds([&] { mStencilBuilder::CompactSelfBuiltFiles(path, bar, scratch); });
      },
      [&] {
        return Milliseconds([&] {
          CopyPlainly(path, scratch);
          CopyPlainly(bar, scratch);
        });
      });
}

void BenchInserting() {
  constexpr int insertions = 40;
  const QByteArray page = Page(10 << 20);
  RichTextBox &ours = OpenDocument(page);
  QPlainTextEdit &bare = OpenBare(page);
  const QString source = QStringLiteral("<p>some mark-up</p>\r\n").repeated(20);
  const auto insert = [&](QPlainTextEdit &box, const std::function<void()> &step) {
    TurnTo(box);
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(box.document()->characterCount() / 2);
    box.setTextCursor(cursor);
    DoEvents();
    return Milliseconds([&] {
             for (int i = 0; i < insertions; ++i) {
               step();
               DoEvents();
             }
           }) /
           insertions;
  };
  Compare(
      QStringLiteral("inserting a stencil into 10 MB, beyond the scan"), QStringLiteral("ms"), 1.5,
      [&] {
        return insert(ours, [&] {
          ours.SetSelLength(0);
          ours.SetSelText(source);
          ours.ensureCursorVisible();
        });
      },
      [&] {
        return insert(bare, [&] {
          bare.insertPlainText(source);
          bare.ensureCursorVisible();
        });
      });
  Close(ours);
  Close(bare);
}

}  // namespace

void BenchStencils() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(StencilFiles::SelfBuilt);
  BenchTreeFill(path);
  BenchScans(path);
  BenchCompacting(folder, path);
  BenchInserting();
}
