#pragma once

#include <QString>
#include <functional>

inline const QString standardStencils = QStringLiteral("Standard Stencils - html 4.01");
inline const QString selfBuildedStencils = QStringLiteral("Self Builded Stencils");

/// Fills the stencil trees of the main window behind the small "please wait" window: the standard
/// library, the self-built stencils, or both.
void LoadStencilTrees(bool standard, bool selfBuilded);

/// Shows the small "please wait" window, lets it be painted, does the work and takes it away.
void BehindWaitWindow(const std::function<void()> &work);
