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
  std::function<bool()> agrees = [] { return true; };
  QList<UnloadMode> asked;

  bool QueryUnload(UnloadMode by) override {
    asked << by;
    return agrees();
  }
};

TEST(mFormsTest, ADefaultInstanceLivesUntilItAgreesToGo) {
  mForms::UnloadDefaults({"frmSample"});
  EXPECT_EQ(mForms::Find(QStringLiteral("frmSample")), nullptr) << "asking makes none";
  QPointer<frmSample> form = Default<frmSample>();
  EXPECT_EQ(Default<frmSample>(), form);
  auto *timer = new QTimer(form);
  timer->start(1);
  form->show();

  form->agrees = [] { return false; };
  QTest::keyClick(form, Qt::Key_Escape);
  EXPECT_FALSE(form->close());
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(form->asked, QList<UnloadMode>(2, UnloadMode::ControlMenu));

  form->agrees = [form] { return !Unload(*form); };  // it is being asked
  EXPECT_TRUE(Unload(*form));
  EXPECT_TRUE(form->IsUnloaded() && !form->isVisible() && !timer->isActive());
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
      inner.quit();
    });
    inner.exec();
    EXPECT_TRUE(form);
    outer.quit();
  });
  outer.exec();
  mForms::DestroyLaidAside();
  EXPECT_FALSE(form);
}

}  // namespace

#include "mForms_test.moc"
