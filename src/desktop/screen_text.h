#pragma once

#include <QString>
#include <string>
#include <string_view>

// Converts text between the tool (code page 1252) and the screen.
namespace desktop {

// Never fails.
QString to_screen(std::string_view text);
// Characters that the code page lacks become "?".
std::string from_screen(const QString& text);

// Replaces CR LF, CR and LF by "\n".
QString normalize_newlines(QString text);

// Doubles "&", which marks a shortcut in Qt's captions.
QString escape_ampersands(QString caption);

// Escapes markup, and breaks a long text into lines.
QString as_tool_tip(const std::string& text);

}  // namespace desktop
