#pragma once

/// Fills the stencil trees of the main window behind the small "please wait" window: the standard
/// library, the self-built stencils, or both.
void LoadStencilTrees(bool standard, bool selfBuilded);
