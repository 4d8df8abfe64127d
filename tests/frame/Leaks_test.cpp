#include <QApplication>
#include <QPointer>

#include "frame/ProgramIcon.h"
#include "shared/AllForms.h"
#include "shared/StencilFormsTest.h"

// Of the sanitizers' runtime; the compiler brings no header for it.
extern "C" size_t __sanitizer_get_current_allocated_bytes();

namespace {

using LeaksTest = StencilFormsTest;

// Lost memory is what the leak checker finds at the end of the process; memory that something still
// holds only grows. What the toolkit holds for the time of an animation is let go first.
void ExpectNoGrowth(const std::function<void()> &openAndClose) {
  constexpr int rounds = 50;
  constexpr size_t withinRounds = 2000;  // less than the smallest object in each round
  const auto heldAfterRounds = [&openAndClose] {
    for (int round = 0; round < rounds; ++round) openAndClose();
    QTest::qWait(300);
    return __sanitizer_get_current_allocated_bytes();
  };
  const size_t after = heldAfterRounds();
  EXPECT_LE(heldAfterRounds(), after + withinRounds);
}

TEST_F(LeaksTest, FormsGiveBackAllTheyTook) {
  PutStencils(stencils, Words("aaaa aabb"));
  PutStencils(StencilFiles::StandardPath(), Words("aaaa aabb"));
  for (const auto show : AllForms()) {
    SCOPED_TRACE(AllForms().indexOf(show));
    ExpectNoGrowth([&] {
      const QPointer<QWidget> form = show();
      DoEvents();
      dialogs.answers = {Dialogs::Answer::Yes};  // the memo pad asks
      Unload(*dynamic_cast<Form *>(form.data()));
      dialogs.messages.clear();
      mForms::DestroyLaidAside();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      EXPECT_FALSE(form);
    });
  }
}

TEST_F(LeaksTest, DocumentsGiveBackAllTheyTook) {
  QApplication::setWindowIcon(ProgramIcon());  // or each window has one of its own
  ExpectNoGrowth([this] {
    frmHTMLChild *editor = Open(QStringLiteral("a.html"), QByteArray(500, 'x'));
    editor->txthtml->SetSelText(QStringLiteral("<b>typed</b>"));
    Unload(*editor);
    QCoreApplication::processEvents();
  });
}

}  // namespace
