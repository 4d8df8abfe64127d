#pragma once

#include <vector>

/// A frame, or a frameset that is divided into rows or columns.
struct FramePart {
  enum class Kind { Frame, Rows, Columns };

  static FramePart Rows(std::vector<int> percents, std::vector<FramePart> parts);
  static FramePart Cols(std::vector<int> percents, std::vector<FramePart> parts);
  FramePart(const char *frame, int sourceSlot, int attributeRow)
      : name(frame), slot(sourceSlot), row(attributeRow) {}

  Kind kind = Kind::Frame;

  // Of a frameset, as many of one as of the other.
  std::vector<int> percents;
  std::vector<FramePart> parts;

  // Of a frame. The name is fixed, whatever the slot that gives the file is called.
  const char *name = "";
  int slot = 0;  ///< from 0
  int row = 0;   ///< of the attribute table, from 1

 private:
  FramePart(Kind direction, std::vector<int> sizes, std::vector<FramePart> inner);
};

/// One line of the list for browsers without frames, as source slots.
struct FrameListEntry {
  int target;
  int text;
};

/// The ways of writing the block for browsers without frames.
enum class NoFramesForm { A, B, C, D };

/// One of the framesets that the assistant offers.
struct FramesetLayout {
  /// Where a layout departs from the rule.
  struct Odd {
    std::vector<const char *> tabs = {};       ///< in place of the slots' words
    std::vector<FrameListEntry> entries = {};  ///< in place of one entry to a slot
    bool keepsAttributes = false;              ///< choosing it leaves the attribute table alone
  };

  FramePart division;
  std::vector<const char *> slots;  ///< a word for each file, one tab and one attribute row to each
  NoFramesForm noFrames;
  Odd odd = {};

  const std::vector<const char *> &Tabs() const { return odd.tabs.empty() ? slots : odd.tabs; }
  std::vector<FrameListEntry> Entries() const;
};

/// All of them, in the order of their pictures.
///
/// Layouts 2, 3 and 11 ask for a row or a slot that they don't have, and so can't be written.
const std::vector<FramesetLayout> &FramesetLayouts();
