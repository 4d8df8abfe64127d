#pragma once

#include "HtmlDtd.h"

/// What is wrong at a place of a page.
struct MarkUpFault {
  qsizetype position;
  QString message;
};

/// The first element or attribute that the document type doesn't have, or the first tag that never
/// ends. Doesn't look into comments, scripts and style sheets, nor at what stands in what.
std::optional<MarkUpFault> FirstUnknownMarkUp(const QString &page, const HtmlDtd &dtd);
