#pragma once

#include <QString>
#include <string>

namespace desktop {

// The caption with "&" before its first letter that is not in `taken`. Adds the letter to `taken`.
QString with_shortcut(const std::string& caption, QString& taken);

}  // namespace desktop
