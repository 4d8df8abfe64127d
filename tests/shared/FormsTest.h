#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>

#include "base/mFolders.h"
#include "documents/FileCommands.h"
#include "documents/mEditors.h"
#include "frame/mPublic.h"
#include "frame/mdiMain.h"
#include "shared/Files.h"
#include "shared/ScriptedDialogs.h"
#include "toolkit/DoEvents.h"
#include "toolkit/EndProgram.h"

/// A main window on the offscreen platform, over a program folder of the process's own that holds
/// the delivered data files. Dialogs are scripted, and ending the process is only counted.
class FormsTest : public testing::Test {
 protected:
  FormsTest() {
    SetLoopPumpInterval(0);
    SetEndProgram([this] { ++ended; });
    main = Default<mdiMain>();
    main->timloadStencils->stop();
    main->show();
    DoEvents();
  }

  ~FormsTest() override {
    mForms::DestroyAll();
    mPublic::aEditorState = {};
    mPublic::iActualEditor = 0;
    mPublic::bAppClosing = false;
    SetEndProgram({});
  }

  QString Path(const QString &name) const { return folder.filePath(name); }

  QString Write(const QString &name, const QByteArray &bytes) {
    PutFile(Path(name), bytes);
    return Path(name);
  }

  QByteArray Read(const QString &name) const { return FileBytes(Path(name)); }

  /// Opens a file of that content in the next free slot and returns its window.
  frmHTMLChild *Open(const QString &name, const QByteArray &bytes) {
    FileCommands::LoadFileIntoNewEditor(Write(name, bytes));
    return mEditors::Active();
  }

  /// Types letters into a document as a user does.
  void Type(frmHTMLChild *editor, const QString &text) { QTest::keyClicks(editor->txthtml, text); }

  QTemporaryDir folder;
  ScriptedDialogs &dialogs = ScriptedDialogs::Install();
  QPointer<mdiMain> main;
  int ended = 0;
};
