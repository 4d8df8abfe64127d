#pragma once

#include <QPlainTextEdit>

#include "toolkit/RichTextBox.h"

/// Presses and lets go of a key, and draws what it has changed.
void PressKey(QWidget &box, Qt::Key key, const QString &text = {});

/// Opens a document in an editor window of its own.
RichTextBox &OpenDocument(const QByteArray &bytes);

/// Opens the same text in a bare widget, in a window of the same place and size; its owner is the
/// window.
QPlainTextEdit &OpenBare(const QByteArray &bytes);

/// Brings the window of a box, ours or bare, to the front and gives the box the keyboard.
void TurnTo(QPlainTextEdit &box);

/// Closes the window of a box without a question.
void Close(QPlainTextEdit &box);

/// Milliseconds a key takes in a box, each drawn before the next, in a line of its own near the
/// middle of the text.
double TimeOfKey(QPlainTextEdit &box);
