#pragma once

#include <QString>
#include <functional>
#include <optional>

/// Where a phrase was found in a file of stencils.
struct StencilHit {
  qint64 record;  ///< 1-based
  QString key;
  QString parentKey;
};

/// Searches a phrase in header, source, caption and help text of the records from first on, each
/// field by itself and with its padding. Records without a key are passed over; an empty phrase
/// hits the first one that has a key. goOn is called for each record and ends the search by false.
std::optional<StencilHit> SearchStencils(const QString &path, const QString &phrase,
                                         Qt::CaseSensitivity sensitivity, qint64 first,
                                         const std::function<bool()> &goOn);
