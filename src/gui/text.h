#pragma once
// The settings files are Windows-1252 bytes; the widgets speak QString. Every byte has its own
// character, so a text goes from file to widget and back byte for byte ("»«" stays two bytes).

#include <QString>
#include <string>

namespace qb::gui {

QString ToQt(const std::string& cp1252);
// Characters Windows-1252 can't hold become '?'.
std::string FromQt(const QString& text);

// A text shown on a menu entry or a label with a buddy, where Qt takes "&" as a shortcut mark:
// the pages' "Intros & Outros" shows its "&".
QString ToQtLiteral(const std::string& cp1252);

// Multi-line text: the files' CRLF line ends in the model, bare line feeds in a text widget.
QString ToQtLines(const std::string& cp1252);
std::string FromQtLines(const QString& text);

}  // namespace qb::gui
