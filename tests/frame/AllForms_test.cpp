#include <QApplication>
#include <QLabel>
#include <QRegularExpression>
#include <QToolButton>

#include "shared/AllForms.h"
#include "shared/StencilFormsTest.h"
#include "stencils/LoadStencilTrees.h"

namespace {

// Every window of the program, each page of it, at a size of letters. The scale factor is that of
// the process.
class AllFormsTest : public StencilFormsTest, public testing::WithParamInterface<int> {
 protected:
  // The main window has been made before, so it is made anew with the letters.
  AllFormsTest() {
    mForms::DestroyAll();
    QFont font = before;
    font.setPointSizeF(font.pointSizeF() * GetParam());
    QApplication::setFont(font);
    PutStencils(stencils, Words("aaaa aabb"));
    main = Default<mdiMain>();
    main->timloadStencils->stop();
    main->resize(1280, 760);
    main->show();
    LoadStencilTrees(true, true);
    Open(QStringLiteral("page.html"), "<html>\r\n<body>\r\n</body>\r\n</html>\r\n");
    DoEvents();
  }
  ~AllFormsTest() override {
    mForms::DestroyAll();
    QApplication::setFont(before);
  }

  void LookAtPages(QWidget *form) {
    auto *pages = form->findChild<QTabBar *>();
    const int count = pages && pages->isVisible() ? pages->count() : 1;
    for (int page = 0; page < count; ++page) {
      if (count > 1) pages->setCurrentIndex(page);
      DoEvents();
      LookAt(form, form->metaObject()->className() + QString::number(page));
    }
  }

  static void LookAt(QWidget *form, const QString &name) {
    for (QWidget *widget : form->findChildren<QWidget *>()) {
      if (!widget->isVisible() || widget->isWindow() || IsPartOfAnother(widget)) continue;
      const QString where =
          name + u' ' + widget->metaObject()->className() + u' ' + widget->objectName();
      if (widget->focusPolicy() != Qt::NoFocus) {
        const QAccessibleInterface *access = QAccessible::queryAccessibleInterface(widget);
        EXPECT_NE(access->text(QAccessible::Name).trimmed(), QString()) << qPrintable(where);
      }
      EXPECT_EQ(Needed(widget).expandedTo(widget->size()), widget->size())
          << qPrintable(where) << " is cut";
      for (QObject *other : widget->parent()->children()) LookForOverlap(widget, other, where);
    }
  }

  // What the toolkit puts together itself: the inside of boxes, lists, bars.
  static bool IsPartOfAnother(const QWidget *widget) {
    bool part = widget->objectName().startsWith(QStringLiteral("qt_"));
    for (; !widget->isWindow(); widget = widget->parentWidget()) {
      const QWidget *up = widget->parentWidget();
      for (const char *whole :
           {"QComboBox", "QTabBar", "QMdiSubWindow", "QToolBar", "QAbstractScrollArea"}) {
        part = part || (up->inherits(whole) && !up->inherits("QMdiArea"));
      }
    }
    return part;
  }

  // The room that a text of the program's own asks for; nothing for what the user fills.
  static QSize Needed(const QWidget *widget) {
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
      if (label->wordWrap()) return {0, label->heightForWidth(label->width())};
      return label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ? QSize()
                                                                            : label->sizeHint();
    }
    const auto *tool = qobject_cast<const QToolButton *>(widget);
    if (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly) return {};  // shows no text
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
      return button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
    }
    const bool titled = widget->inherits("QGroupBox") || widget->inherits("QTabBar");
    return titled ? widget->minimumSizeHint() : QSize();
  }

  // Markers, what stands on a picture or in a title, and tabs that hang on their page.
  static bool MayLieOver(const QWidget *widget) {
    static const QRegularExpression names(
        QStringLiteral("^(shp.*|imgfrmInfo|cmdTagDescriptionLarge)$"));
    return names.match(widget->objectName()).hasMatch() || widget->inherits("DrawnTabStrip");
  }

  static void LookForOverlap(const QWidget *widget, const QObject *object, const QString &where) {
    const auto *other = qobject_cast<const QWidget *>(object);
    if (!other || other <= widget || !other->isVisible() || other->isWindow()) return;
    if (widget->parentWidget()->inherits("QSplitter")) return;
    if (MayLieOver(widget) || MayLieOver(other)) return;
    EXPECT_FALSE(widget->geometry().intersects(other->geometry()))
        << qPrintable(where) << " lies over " << qPrintable(other->objectName());
  }

 private:
  const QFont before = QApplication::font();
};

TEST_P(AllFormsTest, NothingIsCutCoveredOrWithoutAName) {
  LookAtPages(main);
  for (const auto show : AllForms()) {
    QPointer<QWidget> form = show();
    DoEvents();
    ASSERT_TRUE(form && form->isVisible());
    LookAtPages(form);
    form->hide();
  }
}

INSTANTIATE_TEST_SUITE_P(Letters, AllFormsTest, testing::Values(1, 2));

}  // namespace
