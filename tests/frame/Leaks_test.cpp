#include <QApplication>
#include <QPointer>

#include "frame/ProgramIcon.h"
#include "shared/AllForms.h"
#include "shared/StencilFormsTest.h"

// Of the sanitizers' runtime; the compiler brings no header for it.
extern "C" size_t __sanitizer_get_current_allocated_bytes();

namespace {

class LeaksTest : public StencilFormsTest {
 protected:
  // Shows a form, closes it, and lets it be destroyed as the event loop would.
  void OpenAndClose(QWidget *(*show)()) {
    const QPointer<QWidget> form = show();
    ASSERT_TRUE(form);
    DoEvents();
    dialogs.answers = {Dialogs::Answer::Yes};  // the memo pad asks
    Unload(*dynamic_cast<Form *>(form.data()));
    dialogs.messages.clear();
    mForms::DestroyLaidAside();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(form);
  }
};

// Lost memory is what the leak checker finds at the end of the process; memory that something still
// holds only grows.
TEST_F(LeaksTest, FormsGiveBackAllTheyTook) {
  PutStencils(stencils, Words("aaaa aabb"));
  const QByteArray library = FileBytes(StencilFiles::StandardPath());
  PutStencils(StencilFiles::StandardPath(), Words("aaaa aabb"));
  constexpr int rounds = 100;
  constexpr size_t mostGrown = 64 * rounds;  // bytes
  for (const auto show : AllForms()) {
    OpenAndClose(show);
    const QByteArray name = QByteArray::number(AllForms().indexOf(show));
    size_t after = 0;
    for (int round = 1; round < rounds; ++round) {
      OpenAndClose(show);
      if (round == rounds / 2) after = __sanitizer_get_current_allocated_bytes();
    }
    EXPECT_LE(__sanitizer_get_current_allocated_bytes(), after + mostGrown)
        << "form " << name.constData();
  }
  PutFile(StencilFiles::StandardPath(), library);
}

TEST_F(LeaksTest, DocumentsGiveBackAllTheyTook) {
  QApplication::setWindowIcon(ProgramIcon());  // or each window has one of its own
  constexpr int rounds = 100;
  size_t after = 0;
  for (int round = 1; round <= rounds; ++round) {
    frmHTMLChild *editor = Open(QStringLiteral("a.html"), QByteArray(500, 'x'));
    editor->txthtml->SetSelText(QStringLiteral("<b>typed</b>"));
    Unload(*editor);
    QCoreApplication::processEvents();
    if (round == rounds / 2) after = __sanitizer_get_current_allocated_bytes();
  }
  EXPECT_LE(__sanitizer_get_current_allocated_bytes(), after + 64 * rounds);
}

}  // namespace
