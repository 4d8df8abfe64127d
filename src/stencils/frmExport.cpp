#include "stencils/frmExport.h"

#include <QFile>
#include <algorithm>

#include "base/mAnsi.h"
#include "base/mText.h"
#include "frame/mdiMain.h"
#include "stencils/ExportRow.h"
#include "stencils/StencilFiles.h"
#include "toolkit/Dialogs.h"
#include "toolkit/DoEvents.h"
#include "toolkit/FocusMark.h"
#include "toolkit/UntrappedError.h"

namespace {

// False, after a message, if the file can't be opened or takes less than the row.
bool AppendRow(const QString &path, const QByteArray &row) {
  QFile file(path);
  bool good = file.open(QIODevice::Append | QIODevice::Unbuffered);
  // A write that stops short gives no reason yet; the one for the rest does.
  for (qint64 done = 0; good && done < row.size();) {
    const qint64 taken = file.write(row.constData() + done, row.size() - done);
    good = taken > 0;
    done += taken;
  }
  if (!good) ShowUntrappedError(path, file.errorString());
  return good;
}

}  // namespace

frmExport::frmExport() : DialogForm(Default<mdiMain>()) {
  setupUi(this);
  new FocusMark(lblPath);
  chkWhichDataColumns_ = {chkWhichDataColumns_0, chkWhichDataColumns_1, chkWhichDataColumns_2,
                          chkWhichDataColumns_3};
  cdgExportPath.MayBeNew = true;
  connect(cmdSelectPath, &QPushButton::clicked, this, &frmExport::cmdSelectPath_Click);
  connect(cmdOk, &QPushButton::clicked, this, &frmExport::cmdOk_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(*this); });
}

void frmExport::cmdSelectPath_Click() {
  cdgExportPath.ShowOpen();
  lblPath->setText(mText::Trim(cdgExportPath.FileName));
}

void frmExport::cmdOk_Click() {
  if (mText::Trim(lblPath->text()).isEmpty()) {
    Dialogs::Current().Message(QStringLiteral("You must select an output path!"),
                               Dialogs::Buttons::Ok, Dialogs::Icon::Information,
                               QStringLiteral("Export Information"));
    cmdSelectPath->setFocus();
    return;
  }
  const QByteArray separator = Separator();
  if (!AllColumnsTicked()) {
    Dialogs::Current().Message(QStringLiteral("You must select one Column at least!"),
                               Dialogs::Buttons::Ok, Dialogs::Icon::None,
                               QStringLiteral("Export Alert"));
    chkWhichDataColumns_[0]->setFocus();
    return;
  }
  // A disabled button passes the focus on, and a key pressed meanwhile would close the dialog.
  const bool hadFocus = focusWidget() == cmdOk;
  cmdOk->setEnabled(false);
  if (!AppendStencils(separator)) return;
  cmdOk->setEnabled(true);
  if (hadFocus) cmdOk->setFocus();
}

QByteArray frmExport::Separator() const {
  if (optSeparator_0->isChecked()) return ",\t";
  if (optSeparator_1->isChecked()) return "\t";
  if (optSeparator_2->isChecked()) return "\r\n";
  return mAnsi::ToAnsi(txtSeparator->text());
}

// All of them, whatever the message says.
bool frmExport::AllColumnsTicked() const {
  return std::all_of(chkWhichDataColumns_.begin(), chkWhichDataColumns_.end(),
                     [](const QCheckBox *column) { return column->isChecked(); });
}

// False if the form went meanwhile or the file refused a row.
bool frmExport::AppendStencils(const QByteArray &separator) {
  bool good = true;
  StencilFile(StencilFiles::ResolveDataFile(StencilFiles::SelfBuilt))
      .Scan(1, [&](qint64, const StencilRecord &record) {
        DoEventsInLoop();
        good =
            !IsUnloaded() && AppendRow(mText::Trim(lblPath->text()), ExportRow(record, separator));
        return good;
      });
  return good;
}
