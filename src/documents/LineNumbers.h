#pragma once

#include <QString>

/// The text of the line number column: "n:" and a line feed for each of count numbers from first
/// on.
QString LineNumberText(int first, int count);
