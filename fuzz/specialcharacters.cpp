// sc.dat: the codes of each character and what the grid shows of them.

#include "assistants/SpecialCharacters.h"
#include "Fuzz.h"

void Try(Input &input) {
  const QString path = Path(QStringLiteral("sc.dat"));
  const auto bytes = input.ConsumeRemainingBytes<char>();
  PutFile(path, QByteArrayView(bytes.data(), qsizetype(bytes.size())));
  const QStringList pictures = SpecialCharacters::Pictures(path);
  Require(pictures.size() <= SpecialCharacters::Count, "the grid is no larger");
  for (const QString &picture : pictures) {
    Require(picture.toUcs4().size() <= 1, "a cell shows one character");
  }
  for (const int number : {-1, 0, 1, int(pictures.size()), int(pictures.size()) + 1}) {
    Require(SpecialCharacters::Read(path, number).has_value() ==
                (number >= 1 && number <= pictures.size()),
            "the characters that are shown have codes");
  }
}
