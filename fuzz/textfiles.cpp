// Documents as files: any bytes are loaded, written as they were, and printed so that the
// file's length settles.

#include "Fuzz.h"
#include "base/mAnsi.h"
#include "documents/DocumentText.h"
#include "toolkit/RichTextBox.h"

namespace {

// A lone CR or LF is written as CR LF.
QByteArray WithLineEnds(QByteArray bytes) {
  return bytes.replace("\r\n", "\n").replace('\r', '\n').replace("\n", "\r\n");
}

}  // namespace

void Try(Input &input) {
  const QString path = Path(QStringLiteral("document.htm"));
  const auto bytes = input.ConsumeRemainingBytesAsString();
  PutFile(path, bytes);
  static RichTextBox box;
  Require(box.LoadFile(path), "any file is loaded");
  Require(box.SaveFile(path), "a document is written");
  Require(FileBytes(path) == WithLineEnds(QByteArray::fromStdString(bytes)),
          "loading and saving keeps all bytes");
  Require(box.TextLength() == box.Text().size(), "positions count the text's characters");

  const QByteArray printed = PrintedText(box.Text());
  PutFile(path, printed);
  Require(box.LoadFile(path), "a printed document is loaded");
  Require(PrintedText(box.Text()) == PrintedText(mAnsi::FromAnsi(printed)), "and is what it was");
  Require(PrintedText(box.Text()).size() <= printed.size(), "printing again makes it no longer");
}
