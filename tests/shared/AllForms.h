#pragma once

#include <QList>

class QWidget;

/// Shows every form that opens over the main window, one function each; each returns what it has
/// shown, or null if that went while it opened.
const QList<QWidget *(*)()> &AllForms();
