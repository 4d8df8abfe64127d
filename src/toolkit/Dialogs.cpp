#include "toolkit/Dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>

#include "toolkit/FileFilter.h"

namespace {

class PlatformDialogs : public Dialogs {
 public:
  Answer Message(const QString &text, Buttons buttons, Icon icon, const QString &title) override {
    QMessageBox box(QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setWindowTitle(title);
    box.setIcon(BoxIcon(icon));
    box.setStandardButtons(BoxButtons(buttons));
    MakeRoomForTitle(box);
    switch (box.exec()) {
      case QMessageBox::Yes:
        return Answer::Yes;
      case QMessageBox::No:
        return Answer::No;
      case QMessageBox::Ok:
        return Answer::Ok;
      default:
        return ClosedWithoutButton(buttons);
    }
  }

  std::optional<QString> OpenFile(const FileRequest &request) override {
    return Choose(request, QFileDialog::AcceptOpen,
                  request.mayBeNew ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  }

  std::optional<QString> SaveFile(const FileRequest &request) override {
    return Choose(request, QFileDialog::AcceptSave, QFileDialog::AnyFile);
  }

  std::optional<QColor> Colour(const QColor &start) override {
    const QColor chosen = QColorDialog::getColor(start, QApplication::activeWindow());
    return chosen.isValid() ? std::optional(chosen) : std::nullopt;
  }

  std::optional<PrintChoice> Print(PrintRange range) override {
    // Looking for printers can take a while, so it waits for this moment.
    auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QPrintDialog dialog(device.get(), QApplication::activeWindow());
    const bool selected = range == PrintRange::Selection;
    QPrintDialog::PrintDialogOptions options =
        QPrintDialog::PrintToFile | QPrintDialog::PrintShowPageSize;
    if (selected) options |= QPrintDialog::PrintSelection;
    dialog.setOptions(options);
    dialog.setPrintRange(selected ? QPrintDialog::Selection : QPrintDialog::AllPages);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    const int copies = device->copyCount();
    device->setCopyCount(1);  // else each of the caller's copies would be as many again
    return PrintChoice{ChosenRange(dialog.printRange()), copies, MakePrinter(std::move(device))};
  }

 private:
  // A box is as wide as its text, which can be shorter than its title with the frame's buttons.
  static void MakeRoomForTitle(QMessageBox &box) {
    constexpr int frameButtons = 160;  // pixels
    auto *layout = qobject_cast<QGridLayout *>(box.layout());
    if (!layout) return;
    const int title = QFontMetrics(QApplication::font("QMdiSubWindowTitleBar"))
                          .horizontalAdvance(box.windowTitle());
    layout->addItem(new QSpacerItem(title + frameButtons, 0), layout->rowCount(), 0, 1,
                    layout->columnCount());
  }

  static PrintRange ChosenRange(QPrintDialog::PrintRange range) {
    switch (range) {
      case QPrintDialog::AllPages:
        return PrintRange::All;
      case QPrintDialog::Selection:
        return PrintRange::Selection;
      default:
        return PrintRange::Pages;
    }
  }

  static QMessageBox::Icon BoxIcon(Icon icon) {
    switch (icon) {
      case Icon::Information:
        return QMessageBox::Information;
      case Icon::Question:
        return QMessageBox::Question;
      case Icon::Critical:
        return QMessageBox::Critical;
      default:
        return QMessageBox::NoIcon;
    }
  }

  static QMessageBox::StandardButtons BoxButtons(Buttons buttons) {
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

  static Answer ClosedWithoutButton(Buttons buttons) {
    switch (buttons) {
      case Buttons::Ok:
        return Answer::Ok;
      case Buttons::YesNo:
        return Answer::No;
      default:
        return Answer::Cancel;
    }
  }

  std::optional<QString> Choose(const FileRequest &request, QFileDialog::AcceptMode mode,
                                QFileDialog::FileMode files) {
    QFileDialog dialog(QApplication::activeWindow());
    dialog.setAcceptMode(mode);
    dialog.setFileMode(files);
    // The desktops' own open dialogs refuse a name that doesn't exist.
    dialog.setOption(QFileDialog::DontUseNativeDialog, request.mayBeNew);
    dialog.setNameFilters(NameFilters(request.filter));
    // The dialogs of a session share their folder: the next one begins where the last one ended.
    if (!lastFolder_.isEmpty()) dialog.setDirectory(lastFolder_);
    if (!request.fileName.isEmpty()) {
      const QFileInfo file(request.fileName);
      dialog.setDirectory(file.absolutePath());
      dialog.selectFile(file.fileName());
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    lastFolder_ = dialog.directory().absolutePath();
    return dialog.selectedFiles().constFirst();
  }

  QString lastFolder_;
};

std::unique_ptr<Dialogs> &InUse() {
  static std::unique_ptr<Dialogs> dialogs;
  return dialogs;
}

}  // namespace

Dialogs &Dialogs::Current() {
  if (!InUse()) InUse() = std::make_unique<PlatformDialogs>();
  return *InUse();
}

void Dialogs::Set(std::unique_ptr<Dialogs> dialogs) {
  InUse() = std::move(dialogs);
}
