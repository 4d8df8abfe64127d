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
  ToolStrip strip{Qt::Vertical,
                  {QStringLiteral("One"), QStringLiteral("Two <2>"), QStringLiteral("Three")}};
  QList<int> pressed;
};

TEST_F(ToolStripTest, TheButtonIsTheOneUnderThePointer) {
  for (int pixel = 0; pixel < 3 * ToolStrip::Cell; ++pixel) {
    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(23, pixel));
    EXPECT_EQ(pressed.takeLast(), pixel / ToolStrip::Cell + 1) << pixel;
  }
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
  QStringList edges;  // of the cell, the upper and the lower one
  const auto look = [&] {
    const QImage now = strip.grab().toImage();
    edges << now.pixelColor(10, 24).name() + now.pixelColor(10, 47).name();
  };
  for (const int place : {10, 30}) QTest::mouseMove(&strip, QPoint(10, place));
  look();
  QTest::mousePress(&strip, Qt::LeftButton, {}, QPoint(10, 30));
  look();
  EXPECT_EQ(edges.join(u' '), QStringLiteral("#ffffff#969696 #969696#ffffff"));
  QTest::mouseRelease(&strip, Qt::LeftButton, {}, QPoint(10, 30));
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&strip, &leave);
  EXPECT_EQ(strip.grab().toImage(), before);
  strip.SetSquare(2, QColor(80, 0, 0));
  EXPECT_NE(strip.grab().toImage(), before);
}

TEST_F(ToolStripTest, PicturesStandOnOneFaceInWholePixels) {
  strip.setPalette(QColor(40, 40, 40));
  strip.clearFocus();
  strip.PSet(6, 30, 0x0000FF);
  for (const double scale : {1.0, 1.5, 2.0}) {
    QImage picture((QSizeF(strip.size()) * scale).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    strip.render(&picture);
    QMap<QRgb, int> points;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) ++points[picture.pixel(x, y)];
    }
    EXPECT_EQ(points.keys(), (QList<QRgb>{qRgb(224, 224, 224), qRgb(255, 0, 0)})) << scale;
    EXPECT_EQ(points[qRgb(255, 0, 0)], int(scale) * int(scale)) << scale;
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
  for (int i = 0; i < 3; ++i) {
    QAccessibleInterface *button = bar->childAt(5, i * ToolStrip::Cell + 5);
    EXPECT_EQ(button->role(), QAccessible::PushButton);
    EXPECT_EQ(button->text(QAccessible::Name), strip.ToolTips()[i]);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  }
  EXPECT_EQ(pressed, (QList<int>{1, 2, 3}));
}

}  // namespace
