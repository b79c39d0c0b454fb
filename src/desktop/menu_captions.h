#pragma once

#include <QString>
#include <string>

namespace desktop {

// The caption with "&" before its first letter that is not yet in `taken`, which then is.
QString with_shortcut(const std::string& caption, QString& taken);

}  // namespace desktop
