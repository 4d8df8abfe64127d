#include "toolkit/ToolStrip.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

namespace {

class ToolStripTest : public testing::Test {
 protected:
  ToolStripTest() {
    strip.show();
    strip.activateWindow();
    QCoreApplication::processEvents();
    QObject::connect(&strip, &ToolStrip::ButtonUp, &strip,
                     [this](int button) { pressed << button; });
  }
  QColor Pixel(int x, int y) { return strip.grab().toImage().pixelColor(x, y); }

  ToolStrip strip{Qt::Vertical,
                  {QStringLiteral("One"), QStringLiteral("Two <2>"), QStringLiteral("Three")}};
  QList<int> pressed;
};

TEST_F(ToolStripTest, TheButtonIsTheOneUnderThePointer) {
  for (int pixel = 0; pixel < 3 * ToolStrip::Cell; ++pixel) {
    QTest::mouseMove(&strip, QPoint(5, pixel));
    EXPECT_EQ(strip.MarkedButton(), pixel / ToolStrip::Cell + 1) << pixel;
    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(23, pixel));
    EXPECT_EQ(pressed.takeLast(), pixel / ToolStrip::Cell + 1) << pixel;
  }
  EXPECT_EQ(strip.toolTip(), QStringLiteral("Three"));
  QTest::mouseMove(&strip, QPoint(5, 30));
  EXPECT_EQ(strip.toolTip(), QStringLiteral("Two &lt;2&gt;"));
  QTest::mouseClick(&strip, Qt::RightButton, {}, QPoint(5, 5));
  QTest::mousePress(&strip, Qt::LeftButton, {}, QPoint(5, 5));
  QTest::mouseRelease(&strip, Qt::LeftButton, {}, QPoint(80, 5));
  EXPECT_TRUE(pressed.isEmpty()) << "neither another mouse button nor a release beside the strip";
}

TEST_F(ToolStripTest, ACellRisesUnderThePointerSinksWhenPressedAndLeavesNoTrace) {
  strip.PSet(6, 30, 0x0000FF);
  const QImage before = strip.grab().toImage();
  const QColor light(255, 255, 255), dark(150, 150, 150);
  QTest::mouseMove(&strip, QPoint(10, 10));
  QTest::mouseMove(&strip, QPoint(10, 30));
  EXPECT_EQ(Pixel(10, 24), light);
  EXPECT_EQ(Pixel(0, 30), light);
  EXPECT_EQ(Pixel(23, 30), dark);
  EXPECT_EQ(Pixel(10, 47), dark);
  EXPECT_EQ(Pixel(10, 0), before.pixelColor(10, 0)) << "the cell before isn't marked any more";
  QTest::mousePress(&strip, Qt::LeftButton, {}, QPoint(10, 30));
  EXPECT_EQ(Pixel(10, 24), dark);
  EXPECT_EQ(Pixel(23, 30), light);
  QTest::mouseRelease(&strip, Qt::LeftButton, {}, QPoint(10, 30));
  EXPECT_EQ(Pixel(10, 24), light);
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&strip, &leave);
  EXPECT_EQ(strip.grab().toImage(), before);
  strip.SetSquare(2, QColor(80, 0, 0));
  EXPECT_NE(strip.grab().toImage(), before);
  strip.SetSquare(2, {});
  EXPECT_EQ(strip.grab().toImage(), before);
}

TEST_F(ToolStripTest, PicturesStandOnOneFaceInWholePixels) {
  const QPalette night(QColor(40, 40, 40), QColor(40, 40, 40));
  strip.setPalette(night);
  strip.clearFocus();
  strip.PSet(6, 30, 0x0000FF);
  for (const double scale : {1.0, 1.5, 2.0}) {
    QImage picture((QSizeF(strip.size()) * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    strip.render(&picture);
    int red = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const QRgb point = picture.pixel(x, y);
        if (point == qRgb(255, 0, 0))
          ++red;
        else
          EXPECT_EQ(point, qRgb(224, 224, 224)) << scale << ' ' << x << ' ' << y;
      }
    }
    EXPECT_EQ(red, int(scale) * int(scale)) << scale;
  }
}

TEST_F(ToolStripTest, TheKeyboardMovesInsideAndPresses) {
  strip.setFocus(Qt::TabFocusReason);
  for (const auto key : {Qt::Key_Up, Qt::Key_Space, Qt::Key_Down, Qt::Key_Return, Qt::Key_Right,
                         Qt::Key_Down, Qt::Key_Enter, Qt::Key_Home, Qt::Key_Space, Qt::Key_End}) {
    QTest::keyClick(&strip, key);
  }
  EXPECT_EQ(pressed, (QList<int>{1, 2, 3, 1}));
  EXPECT_EQ(strip.CurrentCell(), 3);
  EXPECT_EQ(ToolStrip(Qt::Horizontal, {}).focusPolicy(), Qt::NoFocus) << "a picture is no stop";
}

TEST_F(ToolStripTest, AssistiveToolsSeePushButtons) {
  QAccessibleInterface *bar = QAccessible::queryAccessibleInterface(&strip);
  ASSERT_EQ(bar->childCount(), 3);
  for (int i = 0; i < 3; ++i) {
    QAccessibleInterface *button = bar->child(i);
    EXPECT_EQ(button->role(), QAccessible::PushButton);
    EXPECT_EQ(button->text(QAccessible::Name), strip.ToolTips()[i]);
    EXPECT_EQ(button->parent(), bar);
    EXPECT_EQ(bar->indexOfChild(button), i);
    const QPoint middle = button->rect().center();
    EXPECT_EQ(bar->childAt(middle.x(), middle.y()), button);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  }
  EXPECT_EQ(pressed, (QList<int>{1, 2, 3}));
  strip.setFocus();
  QTest::keyClick(&strip, Qt::Key_End);
  EXPECT_EQ(bar->focusChild(), bar->child(2));
  EXPECT_TRUE(bar->child(2)->state().focused);
}

}  // namespace
