#include "java/JavaCommands.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "base/TemporaryFolder.h"
#include "base/mPlatform.h"
#include "base/mText.h"
#include "documents/mEditors.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "java/CompileCommand.h"
#include "java/frmDebuggingInfo.h"
#include "toolkit/Dialogs.h"
#include "toolkit/DoEvents.h"
#include "toolkit/Programs.h"
#include "toolkit/WindowOnTop.h"

namespace JavaCommands {

namespace {

using Buttons = Dialogs::Buttons;
using Icon = Dialogs::Icon;
using Answer = Dialogs::Answer;

const QString information = QStringLiteral("Information");

// The active editor's file, or nothing if none is open.
QString ActiveFile() {
  const frmHTMLChild *editor = mPublic::AnyEditorOpen() ? mEditors::Active() : nullptr;
  return editor ? mText::Trim(editor->Caption()) : QString();
}

bool Contains(const QString &fileName, QStringView ending) {
  return mText::InStr(1, fileName, ending, Qt::CaseInsensitive) > 0;
}

void OfferPreferences(const QString &missing) {
  const QString text = QStringLiteral("No Path for %1 found!\r\n").arg(missing) +
                       QLatin1String("Do You want to open the preferences window?");
  if (Dialogs::Current().Message(text, Buttons::YesNo, Icon::Information, information) ==
      Answer::Yes) {
    Default<mdiMain>()->mnuOptionsPreferences->trigger();
  }
}

// Whether there is a temporary folder to work in; a missing one is made if the user agrees.
bool HaveTemporaryFolder() {
  const Platform &platform = mPlatform::Current();
  const auto state = TemporaryFolder::StateOf(platform.temporaryFolder);
  if (state != TemporaryFolder::State::Missing) return state == TemporaryFolder::State::Usable;
  const QString question = mPlatform::WithTemporaryFolder(
      QStringLiteral("The local folder C:\\TEMP is necessary for temporary data?\r\n"
                     "Press OK to generate it, Cancel to end compilation."),
      platform);
  return Dialogs::Current().Message(question, Buttons::OkCancel, Icon::None,
                                    QStringLiteral("Temporary data question")) == Answer::Ok &&
         TemporaryFolder::Make(platform.temporaryFolder);
}

QByteArray Bytes(const QString &path) {
  QFile file(path);
  return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

void Compile() {
  const QPointer<mdiMain> main = Default<mdiMain>();
  const QString fileName = ActiveFile();
  if (!Contains(fileName, u".java")) return;
  DeleteCompilerOutput();
  RunMode = 1;
  mPublic::ReadPreferences();
  const QString compiler = mPublic::recPreferences.CompilerPath.Trimmed();
  if (compiler.isEmpty()) return OfferPreferences(QStringLiteral("javac.exe"));
  if (!HaveTemporaryFolder()) return;
  DoEvents();
  DeleteCompilerOutput();
  const CompileCommand command =
      CompileCommand::For(compiler, frmDebuggingInfo::CompilerFile(), fileName, Bytes(fileName),
                          QProcessEnvironment::systemEnvironment());
  // A compiler that can't be started gives no output, and the window says so in its own time.
  Programs::Current().Start({.program = command.line.program,
                             .arguments = command.line.arguments,
                             .environment = command.environment});
  DoEvents();
  if (!main || main->IsUnloaded()) return;
  auto *form = Default<frmDebuggingInfo>();
  form->PlaceOverWorkArea();
  form->StartRun(fileName);
  form->show();
  DoEvents();
  if (!form->IsUnloaded()) SetWindowOnTop(*form, true);
}

void AppletViewer() {
  if (!mPublic::AnyEditorOpen()) return;
  mPublic::ReadPreferences();
  const QString viewer = mPublic::recPreferences.AppletViewerPath.Trimmed();
  if (viewer.isEmpty()) return OfferPreferences(QStringLiteral("appletviewer.exe"));
  const QString fileName = ActiveFile();
  if (!Contains(fileName, u".htm")) {
    Dialogs::Current().Message(QStringLiteral("Active Editor Document is no html one!"),
                               Buttons::Ok, Icon::Information, information);
    return;
  }
  const ProgramLine line = ProgramLine::OfCommand(viewer, [](const QString &program) {
    return !QStandardPaths::findExecutable(program).isEmpty();
  });
  Programs::Current().Start({.program = line.program,
                             .arguments = line.arguments + QStringList{fileName},
                             .folder = QFileInfo(fileName).path()});
}

// Nothing is deleted in a folder that isn't ours.
void DeleteCompilerOutput() {
  if (TemporaryFolder::StateOf(mPlatform::Current().temporaryFolder) ==
      TemporaryFolder::State::Usable) {
    QFile::remove(frmDebuggingInfo::CompilerFile());
  }
}

}  // namespace JavaCommands
