#pragma once

#include <QByteArray>
#include <QString>

/// What a save prints of a document's text (CR LF line ends throughout): the text without the
/// blanks at both ends and without one line end at its end, followed by a line end. So a file keeps
/// its length however often it is opened and saved, and empty lines at its end survive.
QByteArray PrintedText(const QString &text);
