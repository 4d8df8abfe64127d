#include "toolkit/mForms.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include "toolkit/DoEvents.h"

namespace {

class frmSample : public DialogForm {
  Q_OBJECT

 public:
  bool agrees = true;
  int asked = 0;
  int loaded = 0;
  UnloadMode mode = UnloadMode::Code;
  std::function<void()> whileAsked;

  void Load() override { ++loaded; }
  bool QueryUnload(UnloadMode by) override {
    ++asked;
    mode = by;
    if (whileAsked) whileAsked();
    return agrees;
  }
};

TEST(mFormsTest, ADefaultInstanceLivesUntilItAgreesToGo) {
  mForms::UnloadDefaults({"frmSample"});
  EXPECT_EQ(mForms::Find(QStringLiteral("frmSample")), nullptr) << "asking makes none";
  QPointer<frmSample> form = Default<frmSample>();
  EXPECT_EQ(Default<frmSample>(), form);
  EXPECT_EQ(form->loaded, 1);
  auto *timer = new QTimer(form);
  timer->start(1);
  form->show();

  form->agrees = false;
  QTest::keyClick(form, Qt::Key_Escape);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(form->mode, UnloadMode::ControlMenu);
  EXPECT_FALSE(form->close());
  EXPECT_EQ(form->asked, 2);

  form->agrees = true;
  form->whileAsked = [form] { EXPECT_FALSE(Unload(*form)) << "it is being asked"; };
  EXPECT_TRUE(Unload(*form));
  EXPECT_TRUE(form->IsUnloaded());
  EXPECT_FALSE(form->isVisible());
  EXPECT_FALSE(timer->isActive());
  EXPECT_NE(Default<frmSample>(), form) << "the next use makes a new one";
  DoEvents();
  EXPECT_TRUE(form) << "a handler that pumps may still be on the stack";
  QTRY_VERIFY(!form);
  mForms::UnloadDefaults({"frmSample"});
}

TEST(mFormsTest, AFormIsNotDestroyedInsideANestedLoop) {
  QPointer<frmSample> form = Default<frmSample>();
  QEventLoop outer;
  QTimer::singleShot(0, &outer, [&] {
    QEventLoop inner;
    Unload(*form);
    QTimer::singleShot(0, &inner, [&] {
      mForms::DestroyLaidAside();
      EXPECT_TRUE(form);
      inner.quit();
    });
    inner.exec();
    outer.quit();
  });
  outer.exec();
  mForms::DestroyLaidAside();
  EXPECT_FALSE(form);
}

}  // namespace

#include "mForms_test.moc"
