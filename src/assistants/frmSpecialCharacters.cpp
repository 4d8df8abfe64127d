#include "assistants/frmSpecialCharacters.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "assistants/SpecialCharacters.h"
#include "base/mFolders.h"
#include "base/mText.h"
#include "documents/Insertion.h"
#include "frame/mdiMain.h"

namespace {

constexpr int characterPoints = 12;
constexpr QSize smallestCell(28, 24);
constexpr int roundCharacter = 4;  // pixels above and below it together

QString FilePath() {
  return mFolders::InProgramFolder(QStringLiteral("sc.dat"));
}

// Cells of the same shape for letters of any size.
QSize CellSize(const QFont &font) {
  const int height = std::max(QFontMetrics(font).height() + roundCharacter, smallestCell.height());
  return {smallestCell.width() * height / smallestCell.height(), height};
}

QStringList CellPictures() {
  QStringList pictures = SpecialCharacters::Pictures(FilePath());
  pictures.resize(SpecialCharacters::Count);
  return pictures;
}

}  // namespace

frmSpecialCharacters::frmSpecialCharacters() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  const QStringList pictures = CellPictures();
  QFont font = picSpecialCharacters->font();
  font.setPointSize(characterPoints);
  picSpecialCharacters->setFont(font);
  picSpecialCharacters->SetCells(
      SpecialCharacters::PerRow, CellSize(font), pictures,
      [this, pictures](QPainter &painter, const QRect &cell, int number) {
        const QPalette &colours = picSpecialCharacters->palette();
        painter.fillRect(cell, colours.base());
        painter.setPen(colours.color(QPalette::Midlight));
        painter.drawRect(cell.adjusted(0, 0, -1, -1));
        painter.setPen(colours.color(QPalette::Text));
        painter.drawText(cell, Qt::AlignCenter, pictures[number - 1]);
      });
  connect(picSpecialCharacters, &CellGrid::CellDown, this, &frmSpecialCharacters::Pick);
  connect(cmdEmpty, &QPushButton::clicked, txtCodeContainer, &QLineEdit::clear);
  connect(cmdInsertCodeIntoEditor, &QPushButton::clicked, this,
          &frmSpecialCharacters::cmdInsertCodeIntoEditor_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmSpecialCharacters::Pick(int cell, Qt::MouseButton button) {
  const auto codes = SpecialCharacters::Read(FilePath(), cell);
  if (!codes) return;
  if (button == Qt::LeftButton) {
    txthtmlname->setText(codes->html);
    txtUniCodeName->setText(codes->unicode);
  } else if (button == Qt::RightButton) {
    const QString &code = opthtml_0->isChecked() ? codes->html : codes->unicode;
    txtCodeContainer->setText(mText::Trim(txtCodeContainer->text()) + code);
  }
}

void frmSpecialCharacters::cmdInsertCodeIntoEditor_Click() {
  Insertion::ReplaceSelection(mText::Trim(txtCodeContainer->text()));
}
