#include "base/ColourSpans.h"

#include <algorithm>

namespace {

ColourSpans::Span Shifted(ColourSpans::Span span, int shift) {
  return {span.start + shift, span.end + shift, span.colour};
}

}  // namespace

// Afterwards before_ holds exactly the spans that begin before the position.
void ColourSpans::MoveGap(int position) {
  while (!before_.empty() && before_.back().start >= position) {
    behind_.push_back(Shifted(before_.back(), -shift_));
    before_.pop_back();
  }
  while (!behind_.empty() && behind_.back().start + shift_ < position) {
    before_.push_back(Shifted(behind_.back(), shift_));
    behind_.pop_back();
  }
}

// With start and end alike it splits a span that reaches over them. Leaves the gap at start.
void ColourSpans::Clear(int start, int end) {
  MoveGap(start);
  if (!before_.empty() && before_.back().end > start) {
    Span &reachingIn = before_.back();
    if (reachingIn.end > end) {
      behind_.push_back(Shifted({end, reachingIn.end, reachingIn.colour}, -shift_));
    }
    reachingIn.end = start;
  }
  while (!behind_.empty() && behind_.back().start + shift_ < end) {
    if (behind_.back().end + shift_ > end) {
      behind_.back().start = end - shift_;
      break;
    }
    behind_.pop_back();
  }
}

void ColourSpans::Set(int start, int end, Colour colour) {
  if (start >= end) return;
  Clear(start, end);
  if (colour != Black) before_.push_back({start, end, colour});
}

void ColourSpans::Edited(int position, int removed, int added) {
  Clear(position, position + removed);
  shift_ += added - removed;
}

std::vector<ColourSpans::Span> ColourSpans::Within(int start, int end) const {
  std::vector<Span> found;
  if (start >= end) return found;
  const auto take = [&](const Span &span) {
    found.push_back({std::max(span.start, start), std::min(span.end, end), span.colour});
  };
  const auto endsBefore = [](int position) {
    return [position](const Span &span) { return span.end <= position; };
  };
  auto span = std::partition_point(before_.begin(), before_.end(), endsBefore(start));
  for (; span != before_.end() && span->start < end; ++span) take(*span);
  auto later = std::partition_point(behind_.rbegin(), behind_.rend(), endsBefore(start - shift_));
  for (; later != behind_.rend() && later->start + shift_ < end; ++later) {
    take(Shifted(*later, shift_));
  }
  return found;
}
