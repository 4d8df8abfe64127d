#include "toolkit/DocumentColours.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <utility>

void DocumentColours::Set(int start, int end, ColourSpans::Colour colour) {
  if (start >= end) return;
  spans_.Set(start, end, colour);
  const bool first = setTo_ <= setFrom_;
  setFrom_ = first ? start : std::min(setFrom_, start);
  setTo_ = first ? end : std::max(setTo_, end);
}

void DocumentColours::Show() {
  if (setTo_ <= setFrom_) return;
  ShowBetween(setFrom_, std::exchange(setTo_, setFrom_));
}

// A document that was never coloured, as every one is when it is loaded, has no formats to look at.
void DocumentColours::Follow(int position, int removed, int added) {
  spans_.Edited(position, removed, added);
  if (setTo_ > setFrom_) {
    setFrom_ = std::min(setFrom_, position);
    setTo_ = std::max(setTo_, position + removed) + added - removed;
  }
  if (everShown_) ShowBetween(position, position + added);
}

void DocumentColours::ShowBetween(int start, int end) {
  for (QTextBlock block = document_->findBlock(start); block.isValid() && block.position() <= end;
       block = block.next()) {
    ShowIn(block);
  }
}

void DocumentColours::ShowIn(const QTextBlock &block) {
  QList<QTextLayout::FormatRange> formats;
  const int start = block.position();
  for (const auto &span : spans_.Within(start, start + block.length() - 1)) {
    QTextCharFormat format;
    format.setForeground(QColor(QRgb(span.colour)));
    formats.append({span.start - start, span.end - span.start, format});
  }
  QTextLayout &layout = *block.layout();
  if (formats == layout.formats()) return;
  everShown_ = true;
  layout.setFormats(formats);
  document_->markContentsDirty(start, block.length());
}
