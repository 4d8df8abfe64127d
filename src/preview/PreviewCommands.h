#pragma once

/// Shows the active document in another application: a saved one from its file, an unsaved one from
/// a file of temporary data. Runs with errors ignored, but a question that is cancelled ends it.
void ShowPreview();

/// Opens the help manual in the application that shows pages.
void HelpManual();
