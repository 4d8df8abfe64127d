#pragma once

/// What assistive tools see of a ToolStrip: a tool bar whose children are push buttons.
namespace ToolStripAccessible {

/// Tells the toolkit of it; any number of times.
void Install();

}  // namespace ToolStripAccessible
