#pragma once

#include <QString>
#include <cstddef>

#include "base/FixedText.h"
#include "base/LittleEndian.h"

/// A flag of the record: -1 on disk is true, anything else is false.
struct FlagField {
  LittleEndian<qint16> raw;
  operator bool() const { return raw == -1; }
  FlagField &operator=(bool on) {
    raw = on ? -1 : 0;
    return *this;
  }
};

/// The record of preferences.dat, byte for byte as it lies on disk: little-endian numbers, no
/// padding. All settings of the program; indices and ranges as told at each field.
struct Preferences {
  FlagField StandardImageSettings;
  FlagField OtherImageSettings;
  LittleEndian<qint32> ImageHeight;  ///< 0 small, 1 medium, 2 large, 3 big
  LittleEndian<qint32> ImageWidth;   ///< as ImageHeight
  quint8 ShowFilenames;              ///< 0 or 1
  quint8 ShowImageBorder;            ///< 0 or 1
  FlagField StandartWebBrowser;
  FlagField OtherPreViewer;
  FixedText<500> ApplicationPath;
  quint8 ShapeColor;  ///< 0 red, 1 green, 2 blue, 3 yellow
  FlagField UseAppStandard;
  FlagField UseOtherAppProperties;
  FlagField SelfStencilsStandardPath;
  FlagField SelfStencilsOtherPath;
  FixedText<500> OtherStencilsPath;
  LittleEndian<qint32> AppFontSize;  ///< 0 small, 1 normal, 2 large, 3 larger
  FlagField ShowStartWindow;
  FlagField reserved;  ///< written with the record, never read
  FlagField ForceDatabaseLoading;
  FlagField EditorStandardSettings;
  FixedText<500> EditorFontName;
  LittleEndian<qint16> EditorFontSize;  ///< points
  LittleEndian<qint16> TabulatorCount;  ///< blanks of one indent step
  FlagField TemporaryPathStandard;
  FixedText<500> OtherTemporaryPath;
  FlagField FileBinding;
  FixedText<10> FileExtension;
  FixedText<500> FileBindingCommand;
  FixedText<500> CompilerPath;
  FixedText<500> AppletViewerPath;
};

static_assert(sizeof(Preferences) == 3557);
static_assert(alignof(Preferences) == 1);
static_assert(offsetof(Preferences, ApplicationPath) == 18);
static_assert(offsetof(Preferences, OtherStencilsPath) == 527);
static_assert(offsetof(Preferences, ShowStartWindow) == 1031);
static_assert(offsetof(Preferences, EditorFontName) == 1039);
static_assert(offsetof(Preferences, OtherTemporaryPath) == 1545);
static_assert(offsetof(Preferences, FileBinding) == 2045);
static_assert(offsetof(Preferences, AppletViewerPath) == 3057);

/// The record that a new installation is delivered with.
Preferences StandardPreferences();

/// Reads record 1 of the file. False, with the record untouched, if the file can't be opened; a
/// missing rest of the record reads as NUL.
bool ReadPreferencesFile(const QString &path, Preferences &record);

/// Writes the record as the whole file. False, with the old file untouched and the reason in error,
/// if that fails.
bool WritePreferencesFile(const QString &path, const Preferences &record, QString *error = nullptr);

/// Font size in points of trees and panels: 8 unless the record asks for a size of its own, else 8,
/// 10, 12, 14 for the indices 0 to 3 and 0 for any other.
double PanelFontSize(const Preferences &record);

/// Font size in points of the panels' title labels: two points below the trees, 8 or smaller as it
/// is.
double TitleFontSize(double panelFontSize);
