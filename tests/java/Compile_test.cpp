#include <QDir>
#include <QStandardPaths>

#include "base/TemporaryFolder.h"
#include "base/mPlatform.h"
#include "java/frmDebuggingInfo.h"
#include "shared/FormsTest.h"
#include "shared/ScriptedPrograms.h"

namespace {

using Qt::Literals::StringLiterals::operator""_s;
using Answer = Dialogs::Answer;

class CompileTest : public FormsTest {
 protected:
  CompileTest() {
    QDir(temporary).removeRecursively();
    SetPaths(u"/opt/javac"_s, u"viewer"_s);
  }
  ~CompileTest() override {
    Programs::Set(nullptr);
    SetPaths({}, {});
  }

  static void SetPaths(const QString &compiler, const QString &viewer) {
    mPublic::recPreferences.CompilerPath.Set(compiler);
    mPublic::recPreferences.AppletViewerPath.Set(viewer);
    mPublic::WritePreferences();
  }

  static frmDebuggingInfo *Window() {
    return static_cast<frmDebuggingInfo *>(mForms::Find(u"frmDebuggingInfo"_s));
  }

  // Compiles a source with scripted programs and returns the window.
  frmDebuggingInfo *Run() {
    if (TemporaryFolder::Look(temporary) != TemporaryFolder::State::Usable) {
      EXPECT_TRUE(TemporaryFolder::Make(temporary));
    }
    if (!mPublic::AnyEditorOpen()) Open(u"T.java"_s, "class T {}");
    main->mnuJavaCompile->trigger();
    return Window();
  }

  static QStringList Headings(const frmDebuggingInfo &form) {
    QStringList headings;
    for (int column = 0; column < 4; ++column) {
      headings << form.flgDebuggingInfo->horizontalHeaderItem(column)->text();
    }
    return headings;
  }

  static QStringList Rows(const frmDebuggingInfo &form) {
    QStringList rows;
    for (int row = 0; row < form.flgDebuggingInfo->rowCount(); ++row) {
      QStringList cells;
      for (int column = 0; column < 4; ++column) {
        const QTableWidgetItem *item = form.flgDebuggingInfo->item(row, column);
        cells << (item ? item->text() : QString());
      }
      rows << cells.join(u'|');
    }
    return rows;
  }

  const QString temporary = mPlatform::Current().temporaryFolder;
  const QString output = frmDebuggingInfo::CompilerFile();
  const QStringList headings{u"No."_s, u"Line"_s, u"Compiler Message"_s, u"Source Code"_s};
  const QStringList noHeadings{QString(), QString(), QString(), QString()};
  const QStringList noRows{u"|||"_s};
  const QByteArray oneError = "T.java:3: error: m\n source\n ^\n1 error\n";
  ScriptedPrograms *programs = &ScriptedPrograms::Install();
};

// ---- the commands

TEST_F(CompileTest, OnlyAJavaFileIsCompiledAndOnlyWithACompiler) {
  main->mnuJavaCompile->trigger();
  main->mnuJavaAppletViewer->trigger();
  Open(u"page.html"_s, "");
  main->mnuJavaCompile->trigger();
  mEditors::Active()->SetCaption(u"<unsaved>"_s);
  main->mnuJavaCompile->trigger();
  EXPECT_TRUE(dialogs.messages.isEmpty());

  SetPaths({}, {});
  Open(u"a.JAVA.txt"_s, "");
  int opened = 0;
  QObject::connect(main->mnuOptionsPreferences, &QAction::triggered, main, [&] { ++opened; });
  main->mnuOptionsPreferences->setEnabled(true);
  dialogs.answers = {Answer::Yes, Answer::No, Answer::No};
  main->mnuJavaCompile->trigger();
  EXPECT_EQ(opened, 1);
  main->mnuJavaCompile->trigger();
  main->mnuJavaAppletViewer->trigger();
  EXPECT_EQ(opened, 1);
  const QString question =
      u"Information|No Path for %1 found!\r\n"
      "Do You want to open the preferences window?|1"_s;
  EXPECT_EQ(dialogs.messages, (QStringList{question.arg(u"javac.exe"), question.arg(u"javac.exe"),
                                           question.arg(u"appletviewer.exe")}));
  EXPECT_TRUE(programs->started.isEmpty());
  EXPECT_FALSE(Window());
}

TEST_F(CompileTest, TheTemporaryFolderIsMadeAfterTheQuestionAlone) {
  const QString source = u"-x $(touch y);`z` \"q\".java"_s;
  Open(source, "");
  dialogs.answers = {Answer::Cancel, Answer::Ok};
  main->mnuJavaCompile->trigger();
  EXPECT_FALSE(QFileInfo::exists(temporary));
  EXPECT_TRUE(programs->started.isEmpty());
  main->mnuJavaCompile->trigger();
  EXPECT_EQ(TemporaryFolder::Look(temporary), TemporaryFolder::State::Usable);
  EXPECT_EQ(dialogs.messages.last(),
            u"Temporary data question|The local folder %1 is necessary for temporary data?\r\n"
            "Press OK to generate it, Cancel to end compilation.|3"_s.arg(temporary));
  ASSERT_EQ(programs->started.size(), 1);
  const Programs::Command &command = programs->started.first();
  EXPECT_EQ(command.program + u' ' + command.arguments.join(u' '),
            u"/opt/javac -Xstdout "_s + output + u' ' + Path(source));
  EXPECT_EQ(command.environment.value(u"LC_MESSAGES"_s), u"C"_s);
  EXPECT_TRUE(Window()->isVisible());
  EXPECT_EQ(Window()->windowTitle(), u"Informations for "_s + Path(source));
}

TEST_F(CompileTest, AForeignFolderIsNeitherUsedNorTouched) {
  const QByteArray theirs("theirs");
  Write(u"compiler.dat"_s, theirs);
  QDir().mkpath(QFileInfo(temporary).path());
  ASSERT_TRUE(QFile::link(folder.path(), temporary));
  Open(u"T.java"_s, "");
  main->mnuJavaCompile->trigger();
  EXPECT_TRUE(programs->started.isEmpty());
  dialogs.answers = {Answer::Yes};
  main->close();
  EXPECT_EQ(Read(u"compiler.dat"_s), theirs);
  QFile::remove(temporary);
}

TEST_F(CompileTest, TheViewerStartsInTheDocumentsFolder) {
  const QString here = QDir::currentPath();
  dialogs.answers = {Answer::Ok, Answer::Ok};
  Open(u"notes.txt"_s, "");
  main->mnuJavaAppletViewer->trigger();
  mEditors::Active()->SetCaption(u"<unsaved>"_s);
  main->mnuJavaAppletViewer->trigger();
  EXPECT_EQ(dialogs.messages,
            QStringList(2, u"Information|Active Editor Document is no html one!|0"_s));
  EXPECT_TRUE(programs->started.isEmpty());

  const QString viewer = Write(u"my viewer"_s, "");
  QFile::setPermissions(viewer, QFile::ReadOwner | QFile::ExeOwner);
  SetPaths({}, viewer + u" -debug"_s);
  const QString page = u"-a page;$(x).HTM"_s;
  Open(page, "");
  main->picJava->PressCell(2);
  ASSERT_EQ(programs->started.size(), 1);
  const Programs::Command &command = programs->started.first();
  EXPECT_EQ(command.program, viewer);
  EXPECT_EQ(command.arguments, (QStringList{u"-debug"_s, Path(page)}));
  EXPECT_EQ(command.folder, folder.path());
  EXPECT_EQ(QDir::currentPath(), here);
}

// ---- the window

TEST_F(CompileTest, ARunEndsInItsRowsAndASecondOneBeginsAnew) {
  programs->outcomes = {Programs::Outcome::NotFound};
  QPointer<frmDebuggingInfo> form = Run();
  ASSERT_TRUE(form) << "a missing compiler is no reason to keep it back";
  EXPECT_TRUE(form->timTimer->isActive());
  EXPECT_EQ(form->timTimer->interval(), 1000);
  EXPECT_EQ(Headings(*form), noHeadings);
  form->ReadCompilerOutput();
  EXPECT_TRUE(form->timTimer->isActive());
  EXPECT_EQ(Headings(*form), headings);
  PutFile(output, oneError);
  form->ReadCompilerOutput();
  EXPECT_FALSE(form->timTimer->isActive());
  EXPECT_EQ(Rows(*form), QStringList{u"1|3|error: m|source"_s});
  EXPECT_EQ(Headings(*form), headings);
  EXPECT_EQ(form->txtDebuggingInfoOutput->toPlainText(), QString::fromLatin1(oneError));
  EXPECT_EQ(Run(), form);
  EXPECT_FALSE(QFile::exists(output));
  EXPECT_EQ(Rows(*form), noRows);
  EXPECT_EQ(Headings(*form), noHeadings);
  EXPECT_TRUE(form->txtDebuggingInfoOutput->toPlainText().isEmpty());
  EXPECT_TRUE(form->timTimer->isActive());
  QTest::keyClick(form, Qt::Key_Escape);
  EXPECT_FALSE(form->timTimer->isActive());
  EXPECT_FALSE(Window());
}

TEST_F(CompileTest, PollingGivesUpAtThe42ndTickAndCountsAnewInEachRun) {
  for (int run = 0; run < 2; ++run) {
    frmDebuggingInfo *form = Run();
    for (int tick = 0; tick <= 40; ++tick) {
      form->ReadCompilerOutput();
      ASSERT_TRUE(form->timTimer->isActive()) << tick;
      if (run == 0 && tick == 20) form = Run(), run = 1, tick = -1;
    }
    form->ReadCompilerOutput();
    EXPECT_FALSE(form->timTimer->isActive());
    EXPECT_EQ(Rows(*form), noRows);
    EXPECT_EQ(Headings(*form), noHeadings);
  }
  RunMode = 0;
  Window()->timTimer->start();
  Window()->ReadCompilerOutput();
  EXPECT_FALSE(Window()->timTimer->isActive());
}

TEST_F(CompileTest, AnUnchangedFileIsNotReadAgain) {
  frmDebuggingInfo *form = Run();
  const auto putAt = [this](const QByteArray &bytes, qint64 second) {
    PutFile(output, bytes);
    QFile file(output);
    EXPECT_TRUE(file.open(QIODevice::ReadWrite));
    EXPECT_TRUE(
        file.setFileTime(QDateTime::fromSecsSinceEpoch(second), QFileDevice::FileModificationTime));
  };
  putAt(QByteArray(oneError.size(), 'x'), 1000);
  form->ReadCompilerOutput();
  putAt(oneError, 1000);
  form->ReadCompilerOutput();
  EXPECT_TRUE(form->timTimer->isActive()) << "same size, same time";
  putAt(oneError, 1001);
  form->ReadCompilerOutput();
  EXPECT_FALSE(form->timTimer->isActive());
}

TEST_F(CompileTest, AFloodIsCutAndALateRunOrCloseStopsTheFilling) {
  frmDebuggingInfo *form = Run();
  QFile flood(output);
  ASSERT_TRUE(flood.open(QIODevice::WriteOnly));
  flood.write(oneError.repeated(10));
  ASSERT_TRUE(flood.resize(500'000'000));  // full of holes
  flood.close();
  form->ReadCompilerOutput();
  EXPECT_TRUE(form->timTimer->isActive()) << "its end is far beyond what is looked at";

  PutFile(output, oneError.repeated(50));
  bool again = true;
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, main, [&] {
    const QTableWidgetItem *item = form->flgDebuggingInfo->item(20, 0);
    if (!item) return;
    user.stop();
    if (again) {
      Run();
    } else {
      form->close();
    }
  });
  user.start(0);
  form->ReadCompilerOutput();
  EXPECT_EQ(Rows(*form), noRows);
  EXPECT_TRUE(form->timTimer->isActive());
  again = false;
  PutFile(output, oneError.repeated(50));
  user.start(0);
  form->ReadCompilerOutput();
  EXPECT_TRUE(form->IsUnloaded());
  EXPECT_FALSE(form->timTimer->isActive());
}

TEST_F(CompileTest, LiesAlongTheBottomOfTheWorkAreaWithItsViewsInside) {
  for (const bool panel : {true, false}) {
    main->picRightWindows->setVisible(panel);
    DoEvents();
    const frmDebuggingInfo &form = *Run();
    const int height = main->frameGeometry().height() - main->cbrTop->height() - 50;
    const int width = main->frameGeometry().width() - main->cbrLeft->width() - 13 -
                      (panel ? main->picRightWindows->width() : 0);
    const QRect area(main->mdiArea->mapToGlobal(QPoint()), main->mdiArea->size());
    EXPECT_EQ(form.frameGeometry().size(), QSize(std::min(width, area.width()), height / 4));
    EXPECT_EQ(form.pos(),
              QPoint(area.left(), area.top() + std::min(height, area.height()) - height / 4));
    EXPECT_EQ(form.flgDebuggingInfo->size(), form.size() - QSize(10, 46));
    EXPECT_EQ(form.txtDebuggingInfoOutput->size(), form.size() - QSize(10, 46));
  }
  frmDebuggingInfo &form = *Window();
  form.ReadCompilerOutput();
  const int grid = form.flgDebuggingInfo->width();
  EXPECT_EQ(form.flgDebuggingInfo->columnWidth(0), grid * 6 / 100);
  EXPECT_EQ(form.flgDebuggingInfo->columnWidth(3), grid * 44 / 100);
  const int inTabs = form.height() - 8;
  QTest::mousePress(form.picDebuggingInfoTab, Qt::LeftButton, {}, QPoint(100, inTabs));
  EXPECT_TRUE(form.txtDebuggingInfoOutput->isVisible() && !form.flgDebuggingInfo->isVisible());
  QTest::mousePress(form.picDebuggingInfoTab, Qt::LeftButton, {}, QPoint(40, inTabs - 14));
  EXPECT_TRUE(form.txtDebuggingInfoOutput->isVisible()) << "above the tabs";
  QTest::keyClick(form.picDebuggingInfoTab, Qt::Key_Left);
  EXPECT_TRUE(!form.txtDebuggingInfoOutput->isVisible() && form.flgDebuggingInfo->isVisible());
}

TEST_F(CompileTest, TheOutputOfAProgramIsShownForAsLongAsItRuns) {
  frmDebuggingInfo &form = *Run();
  RunMode = 2;
  form.ReadCompilerOutput();
  EXPECT_TRUE(form.timTimer->isActive());
  EXPECT_TRUE(form.txtDebuggingInfoOutput->isVisible() && !form.flgDebuggingInfo->isVisible());
  EXPECT_EQ(form.picDebuggingInfoTab->ActiveTab(), 2);
  PutFile(mFolders::Join(temporary, u"run.dat"_s), "  hello\n");
  form.ReadCompilerOutput();
  EXPECT_EQ(form.txtDebuggingInfoOutput->toPlainText(), u"hello\n"_s);
  EXPECT_TRUE(form.timTimer->isActive());
}

// ---- a real compiler

TEST_F(CompileTest, WhateverTheCompilerDoesTheWindowGoesOnPolling) {
  Programs::Set(nullptr);
  struct Case {
    const char *script;
    qint64 bytes;  // that the output comes to
  };
  for (const auto &[script, bytes] : {
           Case{"exit 1", -1},
           {"exec sleep 2", -1},
           {"exec head -c 500000000 /dev/zero > \"$2\"", 500'000'000},
       }) {
    const QString path = Write(u"compiler"_s, QByteArray("#!/bin/sh\n") + script + '\n');
    ASSERT_TRUE(
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    SetPaths(path, {});
    frmDebuggingInfo *form = Run();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return bytes < 0 || QFileInfo(output).size() >= bytes; }, 60'000));
    for (int tick = 0; tick < 3; ++tick) form->ReadCompilerOutput();
    EXPECT_TRUE(form->timTimer->isActive()) << script;
    EXPECT_EQ(Rows(*form), noRows) << script;
  }
  QFile::remove(output);
}

TEST_F(CompileTest, ARealCompilersErrorsBecomeRows) {
  const QString compiler = QStandardPaths::findExecutable(u"javac"_s);
  if (compiler.isEmpty()) GTEST_SKIP() << "there is no javac";
  Programs::Set(nullptr);
  SetPaths(compiler, {});
  QByteArray many("class T {\n");
  for (int i = 0; i < 120; ++i) many += " int a" + QByteArray::number(i) + " = b;\n";
  const QByteArray withWarnings =
      "import java.util.*;\nclass T {\n"
      "  List<String> f() { return new ArrayList(); }\n"
      "  Integer g() { return new Integer(2); }\n  int h() { return c; }\n}\n";
  const struct {
    const char *name;
    QByteArray source;
    int rows;
    QString last;
  } cases[] = {
      {"T.java", withWarnings, 1, u"1|5|error: cannot find symbol|int h() { return c; }"_s},
      {"M.java", many + "}\n", 120, u"120|121|error: cannot find symbol|int a119 = b;"_s},
      {"U.java", "class U { int ü = \"ü\"; }\n", 1, {}},
      {"W.java", "class W { int \xFC = \"\xFC\"; }\n", 1, {}},
      {"$(x);`y`.java", "class X { int a = b; }\n", 1,
       u"1|1|error: cannot find symbol|class X { int a = b; }"_s},
  };
  for (const auto &known : cases) {
    Open(QLatin1String(known.name), known.source);
    frmDebuggingInfo &form = *Run();
    const auto ended = [this] {
      const QByteArray bytes = FileBytes(output);
      return bytes.endsWith(" error\n") || bytes.endsWith(" errors\n");
    };
    EXPECT_TRUE(QTest::qWaitFor(ended, 120'000)) << known.name << FileBytes(output).constData();
    form.ReadCompilerOutput();
    ASSERT_EQ(form.flgDebuggingInfo->rowCount(), known.rows) << known.name;
    const QString last = Rows(form).last();
    if (known.last.isEmpty()) {
      EXPECT_TRUE(last.startsWith(u"1|1|error: incompatible types: ")) << qPrintable(last);
    } else {
      EXPECT_EQ(last, known.last);
    }
  }
}

}  // namespace
