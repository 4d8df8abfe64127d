#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <deque>
#include <functional>

#include "toolkit/Dialogs.h"

/// Dialogs that answer from a list and note what they were asked. An answer beyond the list fails
/// the test and cancels.
class ScriptedDialogs : public Dialogs {
 public:
  /// Puts fresh scripted dialogs in use and returns them; they live until the next Install.
  static ScriptedDialogs &Install() {
    auto dialogs = std::make_unique<ScriptedDialogs>();
    ScriptedDialogs &installed = *dialogs;
    Dialogs::Set(std::move(dialogs));
    return installed;
  }

  std::deque<Answer> answers;
  std::deque<std::optional<QString>> files;  ///< nothing is Cancel
  std::deque<std::optional<QColor>> colours;
  std::deque<std::optional<PrintChoice>> prints;
  QList<PrintRange> printRanges;    ///< of every print dialog
  QStringList messages;             ///< "title|text|buttons" of every message box
  QList<FileRequest> requests;      ///< of every file dialog
  std::function<void()> whileOpen;  ///< runs while a message box stands

  Answer Message(const QString &text, Buttons buttons, Icon, const QString &title) override {
    messages << title + u'|' + text + u'|' + QString::number(int(buttons));
    if (whileOpen) whileOpen();
    return Next(answers, Answer::Cancel);
  }
  std::optional<QString> OpenFile(const FileRequest &request) override {
    requests << request;
    return Next(files, std::optional<QString>());
  }
  std::optional<QString> SaveFile(const FileRequest &request) override { return OpenFile(request); }
  std::optional<QColor> Colour(const QColor &) override {
    return Next(colours, std::optional<QColor>());
  }
  std::optional<PrintChoice> Print(PrintRange range) override {
    printRanges << range;
    return Next(prints, std::optional<PrintChoice>());
  }

 private:
  template <class T>
  static T Next(std::deque<T> &list, T otherwise) {
    if (list.empty()) {
      ADD_FAILURE() << "a dialog nobody expected";
      return otherwise;
    }
    T next = std::move(list.front());
    list.pop_front();
    return next;
  }
};
