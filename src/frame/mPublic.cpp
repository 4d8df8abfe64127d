#include "frame/mPublic.h"

#include <algorithm>

#include "base/mFolders.h"

namespace mPublic {

std::array<EditorState, LastSlot + 1> aEditorState;
int iActualEditor = 0;
bool bAppClosing = false;
Preferences recPreferences{};
std::array<qint16, 4> aFormatColor{};
std::array<quint8, 4> TagHighlight{};
int iLanguage = 1;
QString strAppTitle;

QString PreferencesPath() {
  return mFolders::InProgramFolder(QStringLiteral("preferences.dat"));
}

void ReadPreferences() {
  ReadPreferencesFile(PreferencesPath(), recPreferences);
}

bool WritePreferences(QString *error) {
  return WritePreferencesFile(PreferencesPath(), recPreferences, error);
}

bool AnyTagHighlight() {
  return std::count(TagHighlight.begin() + 1, TagHighlight.end(), 1) > 0;
}

bool AnyEditorOpen() {
  return CountOpenEditors() > 0;
}

int CountOpenEditors() {
  return int(std::count_if(aEditorState.begin() + 1, aEditorState.end(),
                           [](const EditorState &state) { return state.open; }));
}

int FirstFreeSlot() {
  for (int slot = 1; slot <= LastSlot; ++slot) {
    if (!aEditorState[slot].open) return slot;
  }
  return 0;
}

int NextOpenEditor(int mode) {
  static int counter = 0;
  if (mode == -1) return counter = 0;
  if (mode == 0) ++counter;
  for (int slot = std::max(counter, 0); slot <= LastSlot; ++slot) {
    if (aEditorState[slot].open) return counter = slot;
  }
  return counter;
}

void SelectFirstOpenEditor() {
  iActualEditor = 0;
  for (int slot = 1; slot <= LastSlot && iActualEditor == 0; ++slot) {
    if (aEditorState[slot].open) iActualEditor = slot;
  }
}

}  // namespace mPublic
