#pragma once

#include <QByteArray>

#include "stencils/StencilRecord.h"

/// One stencil as a row of the export: the header with its padding, then source, caption and help
/// text without theirs, each with the separator behind it, and two line ends. Nothing is quoted;
/// line ends inside a text stay.
QByteArray ExportRow(const StencilRecord &record, const QByteArray &separator);
