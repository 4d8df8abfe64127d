#pragma once

class ToolStrip;

/// What the buttons of picHtmlTextOptions do: 1 to 3 switch the tag colours on and off, 4 to 6 set
/// the font size of the active document, 7 and 8 make the colours fainter and stronger, 9 has a
/// tooltip only. What is already coloured stays until its line is coloured again.
namespace TextOptions {

void Press(ToolStrip &strip, int button);

}  // namespace TextOptions
