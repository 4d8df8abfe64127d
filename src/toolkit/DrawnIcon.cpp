#include "toolkit/DrawnIcon.h"

#include <QIconEngine>
#include <QPainter>

namespace {

class Engine : public QIconEngine {
 public:
  Engine(int units, void (*draw)(QPainter &)) : units_(units), draw_(draw) {}

  void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(qreal(rect.width()) / units_, qreal(rect.height()) / units_);
    draw_(*painter);
    painter->restore();
  }

  QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }

  QIconEngine *clone() const override { return new Engine(*this); }

 private:
  int units_;
  void (*draw_)(QPainter &);
};

}  // namespace

QIcon DrawnIcon(int units, void (*draw)(QPainter &)) {
  return QIcon(new Engine(units, draw));
}
