#include "preview/PreviewCommands.h"

#include <QFileInfo>
#include <QPointer>
#include <optional>

#include "base/ProgramLine.h"
#include "base/WholeFile.h"
#include "base/mFolders.h"
#include "base/mPlatform.h"
#include "documents/DocumentName.h"
#include "documents/DocumentText.h"
#include "documents/FileCommands.h"
#include "documents/OpenFilesTree.h"
#include "documents/mEditors.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "preview/PreviewWay.h"
#include "toolkit/Dialogs.h"
#include "toolkit/Programs.h"
#include "toolkit/TemporaryFolderQuestion.h"

namespace {

using Answer = Dialogs::Answer;
using Buttons = Dialogs::Buttons;

const QString noApplication = QStringLiteral("Could not find any preview application!");

Answer Ask(const QString &text, Buttons buttons, const QString &title,
           Dialogs::Icon icon = Dialogs::Icon::None) {
  return Dialogs::Current().Message(text, buttons, icon, title);
}

// False if the preview is to end.
bool SaveIfWanted(const QPointer<frmHTMLChild> &editor) {
  if (!mPublic::aEditorState[editor->Slot()].changed) return true;
  const Answer answer = Ask(QStringLiteral("Do you want to save this file before previewing?"),
                            Buttons::YesNoCancel, QStringLiteral("Question"));
  if (answer == Answer::Cancel || !editor || editor->IsUnloaded()) return false;
  if (answer == Answer::No) return true;
  if (!DocumentName::IsUnsaved(editor->Caption())) {
    // As it stands: what is shown is what was typed.
    editor->journal->Saved(editor->txthtml->SaveFile(editor->Caption()));
    mPublic::aEditorState[editor->Slot()].changed = false;
  } else if (!FileCommands::PrintUnderNewName(*editor, PrintedText(editor->txthtml->Text()))) {
    return false;
  }
  RebuildOpenFilesTree();
  return editor && !editor->IsUnloaded();
}

// Writes an unsaved document where it can be shown from; nothing if the preview is to end.
std::optional<QString> PrintUnsaved(const QPointer<frmHTMLChild> &editor,
                                    const Preferences &record) {
  if (record.TemporaryPathStandard &&
      !TemporaryFolderIsThere(
          QStringLiteral("The local folder C:\\TEMP is necessary for temporary data?\r\n"
                         "Press Ok to generate it, Cancel to quit Preview."),
          QStringLiteral("Temporary data questions"))) {
    return std::nullopt;
  }
  if (!editor || editor->IsUnloaded()) return std::nullopt;
  // An absolute path is no option to any program, whatever the folder's name begins with.
  QString path = PreviewFile(record, mPlatform::Current());
  if (QFileInfo(path).isRelative()) path = QFileInfo(path).absoluteFilePath();
  WriteWholeFile(path, PrintedText(editor->txthtml->Text()));
  return path;
}

Programs::Outcome Run(const QString &command, const QString &path) {
  auto [program, arguments] = ProgramLine::OfCommand(command, &Programs::IsExecutable);
  return Programs::Current().Start({.program = program, .arguments = arguments << path});
}

// This program may be the one bound to pages, but it is never the one that shows them.
std::optional<Programs::Application> Browser(const QString &path) {
  Programs &programs = Programs::Current();
  auto found = programs.BoundToFile(path);
  if (found && found->isThisProgram) found = programs.BoundToWeb();
  if (found && found->isThisProgram) found.reset();
  return found;
}

void ShowInBrowser(const QString &path) {
  if (const auto browser = Browser(path)) {
    Programs::Current().Open(path, *browser);
    return;
  }
  const Answer answer =
      Ask(noApplication + QStringLiteral("\r\nDo You want to open the preferences window?"),
          Buttons::YesNo, QStringLiteral("Information"));
  if (answer == Answer::Yes) Default<mdiMain>()->mnuOptionsPreferences->trigger();
}

void Show(const QString &path, const Preferences &record) {
  switch (ChoosePreviewWay(record, path, mPlatform::Current(), &Programs::IsExecutable)) {
    case PreviewWay::Nothing:
      break;
    case PreviewWay::BindingCommand:
      if (Run(record.FileBindingCommand.Trimmed(), path) != Programs::Outcome::Started) {
        Ask(QStringLiteral("File Binding does not exist or path is wrong!\r\nPlease try again!"),
            Buttons::Ok, QStringLiteral("File Binding Alert"), Dialogs::Icon::Information);
      }
      break;
    case PreviewWay::Browser:
      ShowInBrowser(path);
      break;
    case PreviewWay::Application:
      Run(record.ApplicationPath.Trimmed(), path);
      break;
  }
}

}  // namespace

void ShowPreview() {
  if (!mPublic::AnyEditorOpen()) return;
  mPublic::ReadPreferences();
  const Preferences record = mPublic::recPreferences;  // what the questions' loops leave alone
  const QPointer<frmHTMLChild> editor = mEditors::Active();
  if (!editor || !SaveIfWanted(editor)) return;
  const std::optional<QString> path =
      DocumentName::IsUnsaved(editor->Caption()) ? PrintUnsaved(editor, record) : editor->Caption();
  if (path) Show(*path, record);
}

void HelpManual() {
  const QString manual = mFolders::Join(mFolders::InProgramFolder(QStringLiteral("help")),
                                        QStringLiteral("index.htm"));
  if (const auto browser = Browser(manual)) {
    Programs::Current().Open(manual, *browser);
  } else {
    Ask(noApplication, Buttons::Ok, QStringLiteral("Information"));
  }
}
