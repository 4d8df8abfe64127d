#pragma once

#include <QStringList>
#include <vector>

/// What the user chose for one frame.
struct FrameAttributes {
  qint16 scrolling = 0;    ///< 0 yes, 1 no, 2 auto
  qint16 resize = 0;       ///< 0 yes, 1 no
  qint16 frameborder = 0;  ///< 1 if the box "Draw Frameborder" is ticked
  qint16 marginwidth = 0;  ///< pixels
  qint16 marginheight = 0;
};

/// Rows count from 1; row 0 stays idle.
using FrameSourceTable = std::vector<FrameAttributes>;

/// "scrolling=yes frameborder=1 marginwidth=0 marginheight=0". A ticked border box writes
/// frameborder=0, the reverse of its caption: documents have always been written so.
QString FrameAttributeText(const FrameAttributes &attributes);

/// The frameset of layout 0 to 25 with these files, one for each source slot. CR LF between its
/// lines and none at its end. Empty if the layout asks for a file or a row that isn't there.
QString BuildFramesetText(int index, const QStringList &sources, const FrameSourceTable &table);
