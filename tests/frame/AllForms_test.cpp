#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTabBar>
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
    PutQuickBar(bar, Words("aaaa"));
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
      LookAtFocus(form, name);
    }
    for (DrawnTabStrip *strip : form->findChildren<DrawnTabStrip *>()) {
      for (int tab = strip->CellCount(); tab > 0 && strip->isVisible(); --tab) {
        strip->PressCell(tab);
        DoEvents();
        LookAt(form, form->objectName() + strip->objectName() + QString::number(tab));
      }
    }
  }

  // Wherever Tab leads, the form looks another way.
  void LookAtFocus(QWidget *form, const QString &name) {
    form->activateWindow();
    form->setAttribute(Qt::WA_KeyboardFocusChange);  // as the Tab key does
    for (QWidget *widget : form->findChildren<QWidget *>()) {
      const auto *button = qobject_cast<QPushButton *>(widget);
      if (button && button->isDefault()) continue;  // looks as if it had it anyway
      if (widget->inherits("CellGrid") || widget == main->picFontColor) continue;  // it opens one
      if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isEnabled() || widget->focusProxy() ||
          !widget->isVisible() || widget->isWindow() || IsPartOfAnother(widget)) {
        continue;
      }
      const auto seen = [form, widget] {
        DoEvents();
        return form->grab(QRect(widget->mapTo(form, QPoint()), widget->size())).toImage();
      };
      if (QWidget *before = QApplication::focusWidget()) before->clearFocus();
      const QImage without = seen();
      widget->setFocus(Qt::TabFocusReason);
      EXPECT_TRUE(seen() != without)
          << qPrintable(name + u' ' + widget->objectName()) << " no focus";
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
      const QWidget *room = widget->parentWidget();
      EXPECT_TRUE(room->rect().contains(widget->geometry()) || IsScrolled(widget))
          << qPrintable(where) << " sticks out";
      for (QObject *other : room->children()) LookForOverlap(widget, other, where);
    }
  }

  // What the toolkit puts together itself: the inside of boxes, lists, bars.
  static bool IsPartOfAnother(const QWidget *widget) {
    if (widget->objectName().startsWith(QStringLiteral("qt_"))) return true;
    for (const QWidget *up = widget->parentWidget(); up && !widget->isWindow();
         widget = up, up = up->parentWidget()) {
      for (const char *whole : {"QAbstractItemView", "QComboBox", "QPlainTextEdit", "QTabBar"}) {
        if (up->inherits(whole)) return true;
      }
    }
    return false;
  }

  // What is seen in part: what a window scrolls, and pieces of the editor's own edges.
  static bool IsScrolled(const QWidget *widget) {
    if (qobject_cast<const QLabel *>(widget) || widget->inherits("RichTextBox")) return true;
    return qobject_cast<const QAbstractScrollArea *>(widget->parentWidget()->parentWidget());
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
    if (qobject_cast<const QCheckBox *>(widget) || qobject_cast<const QRadioButton *>(widget)) {
      return widget->sizeHint();
    }
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
           widget->objectName() == QStringLiteral("rtfLineNumber") ||
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
