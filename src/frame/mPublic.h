#pragma once

#include <QString>
#include <array>

#include "frame/Preferences.h"

/// The state that all forms share, and the helpers over it. The windows themselves stand in
/// documents/mEditors.h, so that this much needs no window.
namespace mPublic {

/// Slots 1 to LastSlot hold documents; slot 0 never does.
constexpr int LastSlot = 100;

/// What is known of a slot apart from its window. All four states occur: a slot whose unsaved
/// document was dropped with changes stays marked as changed for its next document.
struct EditorState {
  bool open = false;
  bool changed = false;  ///< the user has typed since the last save
};

extern std::array<EditorState, LastSlot + 1> aEditorState;

/// The slot that commands act on, 0 when no document is open.
extern int iActualEditor;

/// Set once the user has confirmed quitting.
extern bool bAppClosing;

/// The last record read. Nobody trusts it for longer than a handler: whoever needs a setting calls
/// ReadPreferences first.
extern Preferences recPreferences;

/// Red, green, blue and grey level of the tag colours.
extern std::array<qint16, 4> aFormatColor;

/// Which tags are coloured: 1 borders, 2 header, 3 body; 1 is on, 0 is off. Index 0 isn't used.
extern std::array<quint8, 4> TagHighlight;

/// Whether any of the three is on.
bool AnyTagHighlight();

/// The language of the program's texts, kept for a translation: 1 English, 2 German. No text
/// depends on it yet.
extern int iLanguage;

/// Shown by the about box.
extern QString strAppTitle;

/// The path of preferences.dat.
QString PreferencesPath();

/// Reads preferences.dat of the program folder into recPreferences; keeps the old values if it
/// can't.
void ReadPreferences();

/// Writes recPreferences. False, with the old file whole and the reason in error, if that failed.
bool WritePreferences(QString *error = nullptr);

bool AnyEditorOpen();
int CountOpenEditors();

/// The first slot that is free, 0 when all are taken.
int FirstFreeSlot();

/// Walks the open slots with a counter that lives between calls. Mode -1 resets it and returns 0.
/// Mode 0 moves it one on first; then, as with any other mode, the next open slot from the counter
/// upward is stored and returned, or the counter as it stands when there is none.
int NextOpenEditor(int mode);

/// Makes the lowest open slot the active one, 0 when none is open.
void SelectFirstOpenEditor();

}  // namespace mPublic
