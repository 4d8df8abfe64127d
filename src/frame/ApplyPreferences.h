#pragma once

/// Reads the preferences and gives the main window's trees and panels their font sizes.
void ApplyPreferences();
