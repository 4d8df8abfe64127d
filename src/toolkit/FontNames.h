#pragma once

#include <QStringList>

/// The families of the system's fonts in its own order, each once. The toolkit adds the maker in
/// brackets where several have a family of that name, which no page or other program knows.
QStringList FontNames();
