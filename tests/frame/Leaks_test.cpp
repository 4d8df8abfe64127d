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
// holds only grows. Caches come and go, so the least of each quarter of the rounds counts.
void ExpectNoGrowth(const std::function<void()> &openAndClose) {
  constexpr int quarter = 25;
  constexpr size_t withinFifty = 2000;  // less than the smallest object in each round
  std::array<size_t, 4> least;
  least.fill(SIZE_MAX);
  for (int round = 0; round < 4 * quarter; ++round) {
    openAndClose();
    size_t &now = least[size_t(round / quarter)];
    now = std::min(now, __sanitizer_get_current_allocated_bytes());
  }
  EXPECT_LE(least[3], least[1] + withinFifty);
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
