#pragma once

#include <QString>
#include <array>
#include <functional>

/// Where the tags that divide a page first stand in its text, regardless of case. Kept up to date
/// as the text changes: an edit costs a search around itself, and one of what lies behind it only
/// where it destroys a first occurrence. Positions are those of the text's characters, from 0; a
/// line end may count as any number of them.
class Landmarks {
 public:
  enum Landmark { HeadStart, HeadEnd, BodyStart, BodyEnd, Count };

  /// Reads a piece of the text as it is now.
  using Reader = std::function<QString(int start, int length)>;

  /// Follows an edit: removed characters at the position gave way to added ones. length is the
  /// text's new length.
  void Edited(int position, int removed, int added, int length, const Reader &read);

  /// Position of the first "<head", "</head", "<body" or "</body", -1 if there is none.
  int Position(Landmark landmark) const { return first_[landmark]; }

 private:
  using Wanted = std::array<bool, Count>;

  void Search(Wanted &wanted, int start, int end, int length, const Reader &read);

  std::array<int, Count> first_{-1, -1, -1, -1};
};
