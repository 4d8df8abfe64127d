#pragma once

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPrinter>
#include <QTimer>

#include "monkey/Dice.h"
#include "toolkit/Dialogs.h"

/// Dialogs that are answered at random. A message box stands for a moment like a real one, and the
/// monkey may press its keys and buttons.
class RandomDialogs : public Dialogs {
 public:
  /// The folder is the one that files are chosen in.
  RandomDialogs(Dice &dice, QString folder) : dice_(dice), folder_(std::move(folder)) {}

  Answer Message(const QString &text, Buttons buttons, Icon, const QString &title) override {
    QMessageBox box(QMessageBox::NoIcon, title, QString(), StandardButtons(buttons),
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    QTimer ender;
    ender.callOnTimeout([this, &box, left = 1 + dice_.Below(4)]() mutable {
      if (--left == 0) dice_.Of(box.buttons())->click();
    });
    ender.start(0);
    switch (box.exec()) {
      case QMessageBox::Yes:
        return Answer::Yes;
      case QMessageBox::No:
        return Answer::No;
      case QMessageBox::Ok:
        return Answer::Ok;
      default:
        break;
    }
    return buttons == Buttons::Ok ? Answer::Ok
                                  : (buttons == Buttons::YesNo ? Answer::No : Answer::Cancel);
  }

  std::optional<QString> OpenFile(const FileRequest &) override {
    if (dice_.OneIn(5)) return std::nullopt;
    if (dice_.OneIn(8)) return folder_ + QStringLiteral("/not there.html");
    const QStringList names = QDir(folder_).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    return names.isEmpty() ? folder_ : folder_ + u'/' + dice_.Of(names);
  }

  std::optional<QString> SaveFile(const FileRequest &request) override {
    if (dice_.OneIn(2)) return OpenFile(request);
    static const QStringList endings{QStringLiteral("html"), QStringLiteral("java"),
                                     QStringLiteral("txt")};
    return folder_ + QStringLiteral("/new &%1.").arg(dice_.Below(20)) + dice_.Of(endings);
  }

  std::optional<QColor> Colour(const QColor &) override {
    if (dice_.OneIn(3)) return std::nullopt;
    return QColor(dice_.Below(256), dice_.Below(256), dice_.Below(256));
  }

  std::optional<PrintChoice> Print(PrintRange range) override {
    if (dice_.OneIn(3)) return std::nullopt;
    auto device = std::make_unique<QPrinter>();
    device->setOutputFormat(QPrinter::PdfFormat);
    device->setOutputFileName(folder_ + QStringLiteral("/print.pdf"));
    return PrintChoice{range, 1 + dice_.Below(2), MakePrinter(std::move(device))};
  }

 private:
  static QMessageBox::StandardButtons StandardButtons(Buttons buttons) {
    switch (buttons) {
      case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
      case Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
      case Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
      default:
        return QMessageBox::Ok;
    }
  }

  Dice &dice_;
  const QString folder_;
};
