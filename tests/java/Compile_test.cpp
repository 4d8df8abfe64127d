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
  ~CompileTest() override { Programs::Set(nullptr); }

  static void SetPaths(const QString &compiler, const QString &viewer) {
    mPublic::recPreferences.CompilerPath.Set(compiler);
    mPublic::recPreferences.AppletViewerPath.Set(viewer);
    mPublic::WritePreferences();
  }

  // Compiles the active document, or one of the test's, and returns the window.
  frmDebuggingInfo *Run() {
    TemporaryFolder::Make(temporary);
    if (!mPublic::AnyEditorOpen()) Open(u"T.java"_s, "class T {}");
    main->mnuJavaCompile->trigger();
    return static_cast<frmDebuggingInfo *>(mForms::Find(u"frmDebuggingInfo"_s));
  }

  // What the programs were started with since the last look.
  QString Started() {
    QStringList words;
    for (const auto &command : std::exchange(programs->started, {})) {
      words << command.folder << command.program << command.arguments;
    }
    return words.join(u'|');
  }

  // A heading and the cells.
  static QString Grid(const frmDebuggingInfo &form) {
    QString text = form.flgDebuggingInfo->horizontalHeaderItem(2)->text();
    for (const auto *item : form.flgDebuggingInfo->findItems({}, Qt::MatchContains)) {
      text += u'|' + (item ? item->text() : QString());
    }
    return text;
  }

  const QString temporary = mPlatform::Current().temporaryFolder;
  const QString output = frmDebuggingInfo::CompilerFile();
  const QByteArray oneError = "T.java:3: error: m\n source\n ^\n1 error\n";
  ScriptedPrograms *programs = &ScriptedPrograms::Install();
};

TEST_F(CompileTest, OnlyAJavaFileIsCompiledAndOnlyWithACompiler) {
  Open(u"page.html"_s, "");
  main->mnuJavaCompile->trigger();
  SetPaths({}, {});
  Open(u"a.JAVA.txt"_s, "");
  int opened = 0;
  QObject::connect(main->mnuOptionsPreferences, &QAction::triggered, main, [&] { ++opened; });
  dialogs.answers = {Answer::Yes, Answer::No};
  main->mnuJavaCompile->trigger();
  main->mnuJavaAppletViewer->trigger();
  EXPECT_EQ(opened, 1);
  const QString question =
      u"Information|No Path for %1 found!\r\n"
      "Do You want to open the preferences window?|1"_s;
  EXPECT_EQ(dialogs.messages,
            (QStringList{question.arg(u"javac.exe"), question.arg(u"appletviewer.exe")}));
  EXPECT_EQ(Started(), QString());
}

TEST_F(CompileTest, TheTemporaryFolderIsMadeAfterTheQuestionAlone) {
  const QString source = u"-x $(touch y);`z`[*] \"q\".java"_s;
  Open(source, "");
  dialogs.answers = {Answer::Cancel, Answer::Ok};
  main->mnuJavaCompile->trigger();
  EXPECT_FALSE(QFileInfo::exists(temporary));
  EXPECT_EQ(Started(), QString());
  main->mnuJavaCompile->trigger();
  EXPECT_EQ(dialogs.messages.last(),
            u"Temporary data question|The local folder %1 is necessary for temporary data?\r\n"
            "Press OK to generate it, Cancel to end compilation.|3"_s.arg(temporary));
  EXPECT_EQ(programs->started.value(0).environment.value(u"LC_MESSAGES"_s), u"C"_s);
  EXPECT_EQ(Started(),
            u"|/opt/javac|-Xstdout|"_s + output + u'|' + Path(source).replace(u' ', u'|'));
  EXPECT_TRUE(Default<frmDebuggingInfo>()->windowTitle().endsWith(u";`z`[*][*] \"q\".java"));

  ASSERT_TRUE(QDir(temporary).removeRecursively() && QFile::link(folder.path(), temporary));
  Write(u"compiler.dat"_s, "theirs");
  main->mnuJavaCompile->trigger();
  EXPECT_EQ(Started() + Read(u"compiler.dat"_s), u"theirs"_s) << "a foreign folder isn't touched";
  QFile::remove(temporary);
}

TEST_F(CompileTest, TheViewerStartsInTheDocumentsFolder) {
  dialogs.answers = {Answer::Ok};
  Open(u"notes.txt"_s, "");
  main->mnuJavaAppletViewer->trigger();
  EXPECT_EQ(dialogs.messages.join(u'#'), u"Information|Active Editor Document is no html one!|0"_s);
  EXPECT_EQ(Started(), QString());
  const QString viewer = Write(u"my viewer"_s, "");
  QFile::setPermissions(viewer, QFile::ReadOwner | QFile::ExeOwner);
  SetPaths({}, viewer + u" -debug"_s);
  Open(u"-a page;$(x).HTM"_s, "");
  main->picJava->PressCell(2);
  EXPECT_EQ(Started(), folder.path() + u'|' + viewer + u"|-debug|"_s + Path(u"-a page;$(x).HTM"_s));
}

TEST_F(CompileTest, ARunEndsInItsRowsAndASecondOneBeginsAnew) {
  programs->outcomes = {Programs::Outcome::NotFound};
  frmDebuggingInfo *form = Run();
  ASSERT_TRUE(form) << "a missing compiler is no reason to keep it back";
  form->ReadCompilerOutput();
  EXPECT_TRUE(form->timTimer->isActive());
  PutFile(output, oneError);
  form->ReadCompilerOutput();
  EXPECT_FALSE(form->timTimer->isActive());
  EXPECT_EQ(Grid(*form), u"Compiler Message|1|3|error: m|source"_s);
  EXPECT_EQ(form->txtDebuggingInfoOutput->toPlainText(), QString::fromLatin1(oneError));
  EXPECT_EQ(Run(), form);
  EXPECT_FALSE(QFile::exists(output));
  EXPECT_EQ(Grid(*form) + form->txtDebuggingInfoOutput->toPlainText(), u"||||"_s);
  EXPECT_TRUE(form->timTimer->isActive());
  QTest::keyClick(form, Qt::Key_Escape);
  EXPECT_FALSE(form->timTimer->isActive());
}

TEST_F(CompileTest, PollingGivesUpAtThe42ndTickAndCountsAnewInEachRun) {
  for (const int ticks : {20, 42, 42}) {
    frmDebuggingInfo *form = Run();
    for (int tick = 1; tick <= ticks; ++tick) {
      form->ReadCompilerOutput();
      ASSERT_EQ(form->timTimer->isActive(), tick < 42) << tick;
    }
    EXPECT_EQ(Grid(*form), ticks == 42 ? u"||||"_s : u"Compiler Message||||"_s);
  }
}

TEST_F(CompileTest, AnUnchangedFileIsNotReadAgain) {
  frmDebuggingInfo *form = Run();
  const auto put = [this](const QByteArray &bytes, int second) {
    PutFile(output, bytes);
    QFile file(output);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::fromSecsSinceEpoch(second), QFileDevice::FileModificationTime);
  };
  put(QByteArray(oneError.size(), 'x'), 1000);
  for (const int second : {1000, 1001}) {
    form->ReadCompilerOutput();
    put(oneError, second);
    form->ReadCompilerOutput();
    EXPECT_EQ(form->timTimer->isActive(), second == 1000) << "same size, same time";
  }
}

TEST_F(CompileTest, WhateverTheCompilerDoesTheWindowGoesOnPolling) {
  Programs::Set(nullptr);
  const qint64 flood = 500'000'000;
  for (const char *script : {"exit 1", "exec sleep 2", "exec head -c 500000000 /dev/zero >$2"}) {
    const QString compiler = Write(u"compiler"_s, QByteArray("#!/bin/sh\n") + script + '\n');
    QFile::setPermissions(compiler, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    SetPaths(compiler, {});
    frmDebuggingInfo *form = Run();
    if (qstrlen(script) > 20) {
      EXPECT_TRUE(QTest::qWaitFor([&] { return QFileInfo(output).size() == flood; }, 60'000));
    }
    form->ReadCompilerOutput();
    EXPECT_TRUE(form->timTimer->isActive()) << script;
    EXPECT_EQ(Grid(*form), u"Compiler Message||||"_s) << script;
  }
  QFile::remove(output);
}

TEST_F(CompileTest, AFloodIsCutAndALateRunOrCloseStopsTheFilling) {
  frmDebuggingInfo *form = Run();
  PutFile(output, oneError);
  ASSERT_TRUE(QFile::resize(output, 500'000'000));  // full of holes
  form->ReadCompilerOutput();
  EXPECT_TRUE(form->timTimer->isActive()) << "its end is far beyond what is looked at";

  QTimer user;
  std::function<void()> act = [this] { Run(); };
  QObject::connect(&user, &QTimer::timeout, main, [&] {
    if (form->flgDebuggingInfo->item(20, 0)) std::exchange(act, [form] { form->close(); })();
  });
  user.start(0);
  for (const bool runs : {true, false}) {
    PutFile(output, oneError.repeated(50));
    form->ReadCompilerOutput();
    EXPECT_EQ(form->timTimer->isActive(), runs);
    EXPECT_FALSE(form->flgDebuggingInfo->item(49, 0));
  }
  EXPECT_TRUE(form->IsUnloaded());
}

TEST_F(CompileTest, LiesAlongTheBottomOfTheWorkAreaWithTwoViews) {
  frmDebuggingInfo &form = *Run();
  const int height = main->frameGeometry().height() - main->cbrTop->height() - 50;
  const QPoint corner = main->mdiArea->mapToGlobal(QPoint());
  EXPECT_EQ(form.frameGeometry().height(), height / 4);
  EXPECT_EQ(form.pos(), corner + QPoint(0, std::min(height, main->mdiArea->height()) - height / 4));
  QTest::mousePress(form.picDebuggingInfoTab, Qt::LeftButton, {}, QPoint(100, form.height() - 8));
  EXPECT_TRUE(form.txtDebuggingInfoOutput->isVisible() && !form.flgDebuggingInfo->isVisible());
  QTest::keyClick(form.picDebuggingInfoTab, Qt::Key_Left);
  EXPECT_TRUE(!form.txtDebuggingInfoOutput->isVisible() && form.flgDebuggingInfo->isVisible());
}

TEST_F(CompileTest, ARealCompilersErrorsBecomeRows) {
  const QString compiler = QStandardPaths::findExecutable(u"javac"_s);
  if (compiler.isEmpty()) GTEST_SKIP() << "there is no javac";
  Programs::Set(nullptr);
  SetPaths(compiler, {});
  const QString missing = u"Compiler Message|1|%1|error: cannot find symbol|%2"_s;
  for (const auto &[name, source, grid] :
       {std::tuple(u"T.java"_s, "class T {\n  int ü = new Integer(2);\n  int h = c;\n}\n",
                   missing.arg(3).arg(u"int h = c;"_s)),
        {u"$(x);`y`.java"_s, "class X { int \xFC = b; }\n",
         missing.arg(1).arg(u"class X { int ü = b; }"_s)}}) {
    Open(name, source);
    frmDebuggingInfo &form = *Run();
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return FileBytes(output).endsWith(" error\n"); }, 120'000));
    form.ReadCompilerOutput();
    EXPECT_EQ(Grid(form), grid);
  }
  QByteArray many("class M {\n");
  for (int i = 0; i < 120; ++i) many += " int a" + QByteArray::number(i) + " = b;\n";
  Open(u"M.java"_s, many + "}\n");
  frmDebuggingInfo &form = *Run();
  EXPECT_TRUE(QTest::qWaitFor([this] { return FileBytes(output).endsWith(" errors\n"); }, 120'000));
  form.ReadCompilerOutput();
  EXPECT_EQ(form.flgDebuggingInfo->rowCount(), 120) << "beyond the compiler's own limit";
}

}  // namespace
