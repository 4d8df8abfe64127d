#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QMdiArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

#include "shared/AllForms.h"
#include "shared/StencilFormsTest.h"
#include "stencils/LoadStencilTrees.h"

namespace {

// A colour scheme and a size of letters, in which every form must read.
struct Look {
  const char *name;
  bool dark;
  double letters;
};

// Every window of the program in one look, each page of it; TAGWRIGHT_PICTURES names a folder for a
// picture of each. The scale factor is that of the process.
class AllFormsTest : public StencilFormsTest, public testing::WithParamInterface<Look> {
 protected:
  // The main window has been made before, so it is made anew in the look.
  AllFormsTest() {
    mForms::DestroyAll();
    QPalette palette = before.palette;
    if (GetParam().dark) {
      palette = QPalette(QColor(53, 53, 53), QColor(40, 40, 40));
      palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    }
    QApplication::setPalette(palette);
    QFont font = before.font;
    font.setPointSizeF(font.pointSizeF() * GetParam().letters);
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
    QApplication::setPalette(before.palette);
    QApplication::setFont(before.font);
  }

  void LookAtPages(QWidget *form) {
    auto *pages = form->findChild<QTabBar *>();
    const int count = pages && pages->isVisible() ? pages->count() : 1;
    for (int page = 0; page < count; ++page) {
      if (count > 1) pages->setCurrentIndex(page);
      DoEvents();
      const QString name = QLatin1String(form->metaObject()->className()) +
                           (page > 0 ? QString::number(page) : QString());
      LookAt(form, name);
      Save(form, name);
    }
  }

  static void Save(QWidget *form, const QString &name) {
    const QString folder = qEnvironmentVariable("TAGWRIGHT_PICTURES");
    if (folder.isEmpty()) return;
    form->grab().save(QStringLiteral("%1/%2-%3-%4.png")
                          .arg(folder, name, QLatin1String(GetParam().name))
                          .arg(form->devicePixelRatioF()));
  }

  static void LookAt(QWidget *form, const QString &name) {
    for (QWidget *widget : form->findChildren<QWidget *>()) {
      if (!widget->isVisible() || widget->isWindow() || IsPartOfAnother(widget)) continue;
      const QString where = name + u' ' + QLatin1String(widget->metaObject()->className()) + u' ' +
                            widget->objectName();
      if (widget->focusPolicy() != Qt::NoFocus) {
        const QAccessibleInterface *access = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(access->text(QAccessible::Name).trimmed().isEmpty())
            << qPrintable(where) << " has no name";
      }
      const QSize missing = Needed(widget) - widget->size();
      EXPECT_LE(missing.width(), 0) << qPrintable(where) << " is cut";
      EXPECT_LE(missing.height(), 0) << qPrintable(where) << " is cut";
      for (QObject *other : widget->parent()->children()) LookForOverlap(widget, other, where);
    }
  }

  // What the toolkit puts together itself: the inside of boxes, lists, bars.
  static bool IsPartOfAnother(const QWidget *widget) {
    if (widget->objectName().startsWith(QStringLiteral("qt_"))) return true;
    for (const QWidget *up = widget->parentWidget(); up && !widget->isWindow();
         widget = up, up = up->parentWidget()) {
      if (qobject_cast<const QComboBox *>(up) || qobject_cast<const QTabBar *>(up) ||
          qobject_cast<const QMdiSubWindow *>(up) || qobject_cast<const QToolBar *>(up)) {
        return true;
      }
      if (qobject_cast<const QAbstractScrollArea *>(up) && !qobject_cast<const QMdiArea *>(up)) {
        return true;
      }
    }
    return false;
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
    if (qobject_cast<const QGroupBox *>(widget) || qobject_cast<const QTabBar *>(widget)) {
      return widget->minimumSizeHint();
    }
    return {};
  }

  // Markers, what stands on a picture or in a title, and tabs that hang on their page.
  static bool MayLieOver(const QWidget *widget) {
    return widget->objectName().startsWith(QStringLiteral("shp")) ||
           widget->objectName() == QStringLiteral("imgfrmInfo") ||
           widget->objectName() == QStringLiteral("cmdTagDescriptionLarge") ||
           qobject_cast<const DrawnTabStrip *>(widget);
  }

  static void LookForOverlap(const QWidget *widget, const QObject *object, const QString &where) {
    const auto *other = qobject_cast<const QWidget *>(object);
    if (!other || other <= widget || !other->isVisible() || other->isWindow()) return;
    if (qobject_cast<const QSplitter *>(widget->parentWidget())) return;
    if (MayLieOver(widget) || MayLieOver(other)) return;
    EXPECT_FALSE(widget->geometry().intersects(other->geometry()))
        << qPrintable(where) << " lies over " << qPrintable(other->objectName());
  }

 private:
  struct {
    QPalette palette = QApplication::palette();
    QFont font = QApplication::font();
  } const before;
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

INSTANTIATE_TEST_SUITE_P(Looks, AllFormsTest,
                         testing::Values(Look{"light", false, 1}, Look{"dark", true, 1},
                                         Look{"large", false, 2}),
                         [](const auto &info) { return std::string(info.param.name); });

}  // namespace
