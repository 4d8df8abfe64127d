#pragma once

#include "shared/FormsTest.h"

/// Assistants over a document "one two three", in which "two" is selected.
class AssistantTest : public FormsTest {
 protected:
  AssistantTest() { Select(); }

  void Select() {
    text->SetText(QStringLiteral("one two three"));
    text->SetSelStart(4);
    text->SetSelLength(3);
  }
  /// The dialog that the command shows.
  template <class F>
  F *Show(QAction *command) {
    command->trigger();
    DoEvents();
    return static_cast<F *>(mForms::Find(QLatin1String(F::staticMetaObject.className())));
  }

  RichTextBox *const text = Open(QStringLiteral("page.html"), "")->txthtml;
};
