#include "documents/frmHTMLChild.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QShortcut>
#include <QTextCursor>
#include <QTimer>

#include "base/WholeFile.h"
#include "base/mText.h"
#include "documents/DocumentName.h"
#include "documents/DocumentText.h"
#include "documents/EditorEvents.h"
#include "documents/LineNumbers.h"
#include "documents/OpenFilesTree.h"
#include "documents/SaveQuestion.h"
#include "documents/mEditors.h"
#include "frame/mPublic.h"
#include "toolkit/DoEvents.h"

namespace {

// Pixels round the text. The two boxes stand three pixels apart in height; these put their lines
// level.
constexpr int textMargin = 4;
constexpr int lineNumberMargin = 1;

// Tag colours are made for black on white, whatever the desktop's scheme. All windows share one
// palette with nothing left to inherit: the toolkit keeps pictures of scroll bars by their palette,
// and never forgets what it has called them.
QPalette Paper() {
  static QPalette paper;
  static qint64 madeFrom = 0;
  const QPalette desktop = QApplication::palette();
  if (desktop.cacheKey() == madeFrom) return paper;
  madeFrom = desktop.cacheKey();
  paper = desktop;
  for (int group = 0; group < QPalette::NColorGroups; ++group) {
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
      const auto of = QPalette::ColorGroup(group);
      const auto as = QPalette::ColorRole(role);
      paper.setBrush(of, as, desktop.brush(of, as));
    }
  }
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  return paper;
}

void SetUpBox(RichTextBox &box, const char *name, int margin) {
  box.setObjectName(QLatin1String(name));
  box.setFont(QFont(QStringLiteral("Courier New"), 10));
  box.setFrameShape(QFrame::NoFrame);
  box.SetMargin(margin, margin);
}

// Pumps events. Whether the window is still there then.
bool StandsAfterEvents(const QPointer<frmHTMLChild> &editor) {
  DoEvents();
  return editor && !editor->IsUnloaded();
}

}  // namespace

frmHTMLChild::frmHTMLChild() : client_(new QWidget) {
  setObjectName(QStringLiteral("frmHTMLChild"));
  setAttribute(Qt::WA_DeleteOnClose, false);
  txthtml = new RichTextBox(client_);
  SetUpBox(*txthtml, "txthtml", textMargin);
  txthtml->setAccessibleName(QStringLiteral("Document"));
  txthtml->SetForeignReplacement([this](char32_t codePoint) {
    return DocumentName::IsJava(caption_) ? ForeignText::JavaEscape(codePoint)
                                          : ForeignText::NumericReference(codePoint);
  });
  rtfLineNumber = new RichTextBox(client_);
  SetUpBox(*rtfLineNumber, "rtfLineNumber", lineNumberMargin);
  rtfLineNumber->setReadOnly(true);
  rtfLineNumber->setUndoRedoEnabled(false);
  rtfLineNumber->setFocusPolicy(Qt::NoFocus);
  rtfLineNumber->setTextInteractionFlags(Qt::NoTextInteraction);
  rtfLineNumber->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  rtfLineNumber->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  cmdDummy = new QPushButton(client_);
  cmdDummy->setObjectName(QStringLiteral("cmdDummy"));
  cmdDummy->hide();

  UsePaper();
  client_->setBackgroundRole(QPalette::Base);
  client_->setAutoFillBackground(true);
  setWidget(client_);
  client_->setFocusProxy(txthtml);
  client_->setMouseTracking(true);
  client_->installEventFilter(this);
  new EditorEvents(this);
  journal = new DocumentJournal(this);
  rtfLineNumber->viewport()->installEventFilter(this);
  // The toolkit's own window menu has this key on some desktops, and that only while it can be
  // seen; a key that two have does nothing.
  const QKeySequence close(Qt::CTRL | Qt::Key_F4);
  for (QAction *entry : systemMenu()->actions()) {
    QList<QKeySequence> keys = entry->shortcuts();
    if (keys.removeAll(close) > 0) entry->setShortcuts(keys);
  }
  auto *closeKey = new QShortcut(close, this);
  closeKey->setContext(Qt::WidgetWithChildrenShortcut);
  connect(closeKey, &QShortcut::activated, this, &QWidget::close);
  connect(txthtml, &RichTextBox::Edited, this, &frmHTMLChild::FollowLandmarks);
  connect(txthtml, &RichTextBox::textChanged, this, &mEditors::TakeActiveFromFront);
}

void frmHTMLChild::Load() {
  if (auto *editor = mEditors::Active()) editor->firstNumberedLine = 1;
}

void frmHTMLChild::SetCaption(const QString &caption) {
  caption_ = caption;
  // A title would show "[*]" as the mark of a modified window.
  QString title = caption;
  setWindowTitle(title.replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

int frmHTMLChild::Slot() const {
  return int(mText::Val(Tag));
}

void frmHTMLChild::GotFocus() {
  if (!IsUnloaded()) mPublic::iActualEditor = Slot();
}

// ---- layout, in pixels of the client area

void frmHTMLChild::PlaceBoxes() {
  const QPointer<frmHTMLChild> self(this);
  const auto gone = [&self] { return !self || self->IsUnloaded(); };
  rtfLineNumber->setGeometry(-1, 2, 54, mEditors::Area().height() - 16);
  DoEvents();
  if (gone()) return;
  rtfLineNumber->setPlainText(LineNumberText(1, AllLineNumbers));
  txthtml->setGeometry(55, -1, client_->width() - rtfLineNumber->width(), client_->height() + 1);
  DoEvents();
}

// Lets no events run and closes nothing: the toolkit sizes a window in the middle of its work on
// all of them, and loses count when one comes or goes there.
void frmHTMLChild::Resize() {
  if (IsUnloaded()) return;
  if (Slot() == 0) {
    QTimer::singleShot(0, this, [this] { Unload(*this); });
    return;
  }
  if (mPublic::bAppClosing || Slot() < 0) return;
  mPublic::iActualEditor = Slot();
  // The outline is still that of the old size; the window gets the new one when this is over.
  clearMask();
  txthtml->setGeometry(51, -1, client_->width() - 50, client_->height() + 2);
  txthtml->viewport()->update();
  rtfLineNumber->setFont(txthtml->font());
  rtfLineNumber->setGeometry(-1, 2, 54, client_->height() - 16);
  rtfLineNumber->setPlainText(LineNumberText(1, AllLineNumbers));
  // The numbers begin at 1 now, which is wrong for a text that is scrolled.
  firstNumberedLine = 0;
  SyncLineNumbers(AllLineNumbers);
}

void frmHTMLChild::PlaceText() {
  const QPointer<frmHTMLChild> self(this);
  txthtml->move(53, txthtml->y());
  if (!StandsAfterEvents(self)) return;
  txthtml->move(txthtml->x(), -1);
  if (!StandsAfterEvents(self)) return;
  txthtml->resize(txthtml->width(), client_->height() + 2);
  if (!StandsAfterEvents(self)) return;
  txthtml->resize(client_->width() - 52, txthtml->height());
  DoEvents();
}

void frmHTMLChild::SyncLineNumbers(int count) {
  const int first = txthtml->FirstVisibleLine();
  if (first == firstNumberedLine) return;
  firstNumberedLine = first;
  rtfLineNumber->setPlainText(LineNumberText(first + 1, count));
}

void frmHTMLChild::RepairLayout() {
  const QSize right(client_->width() - 50, client_->height() + 2);
  if (txthtml->size() != right) txthtml->resize(right);
  DoEvents();
}

// ---- events

bool frmHTMLChild::eventFilter(QObject *watched, QEvent *event) {
  if (watched == rtfLineNumber->viewport()) {
    if (event->type() != QEvent::Wheel) return false;
    QCoreApplication::sendEvent(txthtml->viewport(), event);
    return true;
  }
  if (watched == client_ && event->type() == QEvent::Resize) {
    Resize();
  } else if (watched == client_ && event->type() == QEvent::MouseMove) {
    RepairLayout();
  }
  return FormOf::eventFilter(watched, event);
}

void frmHTMLChild::changeEvent(QEvent *event) {
  FormOf::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) UsePaper();
}

void frmHTMLChild::UsePaper() {
  for (QWidget *widget :
       std::initializer_list<QWidget *>{client_, txthtml, txthtml->verticalScrollBar(),
                                        txthtml->horizontalScrollBar(), rtfLineNumber}) {
    widget->setPalette(Paper());
  }
}

void frmHTMLChild::FollowLandmarks(int position, int removed, int added) {
  QTextDocument *document = txthtml->document();
  landmarks.Edited(position, removed, added, document->characterCount() - 1,
                   [document](int start, int length) {
                     QTextCursor piece(document);
                     piece.setPosition(start);
                     piece.setPosition(start + length, QTextCursor::KeepAnchor);
                     return piece.selectedText();
                   });
}

// ---- closing

bool frmHTMLChild::QueryUnload(UnloadMode) {
  const int slot = Slot();
  if (slot <= 0) return true;
  mPublic::EditorState &state = mPublic::aEditorState[slot];
  mPublic::iActualEditor = slot;
  bool agreed = true;
  if (!state.changed) {
    state.open = false;
  } else {
    mEditors::BringToTop(*this);
    DoEvents();
    if (DocumentName::IsUnsaved(caption_)) {
      // Dropped without a question. The slot stays marked as changed for its next document.
      state.open = false;
    } else {
      switch (AskWhetherToSave()) {
        case Dialogs::Answer::Yes:
          // The text must not go down with a file that couldn't be written.
          if (!journal->Saved(WriteWholeFile(caption_, PrintedText(txthtml->Text())))) return false;
          state = {};
          break;
        case Dialogs::Answer::No:
          journal->GivenUp();
          state = {};
          break;
        default:
          agreed = false;
      }
    }
  }
  RebuildOpenFilesTree();
  mPublic::SelectFirstOpenEditor();
  return agreed;
}

void frmHTMLChild::Unloaded() {
  journal->Closed();
  mEditors::TakeFromArea(*this);
}
