#pragma once

#include <QString>
#include <string>
#include <string_view>

// Text on its way between the tool (code page 1252) and the screen.
namespace desktop {

// Any text has a form on the screen.
QString to_screen(std::string_view text);
// With "?" for each character that the code page has not got.
std::string from_screen(const QString& text);

// With "\n" for each CR LF, CR and LF, and with `pairs_turned` for each LF CR as well.
QString normalize_newlines(QString text, bool pairs_turned = false);

// For captions in which Qt would take "&" for the mark of a shortcut.
QString escape_ampersands(QString caption);

// Never taken for markup; a long text is broken into lines.
QString as_tool_tip(const std::string& text);

}  // namespace desktop
