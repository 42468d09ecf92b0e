#pragma once

#include <QString>

#include <string>

namespace ostrelum::qt_platform {

/// The program's UTF-8 as the toolkit takes it.
inline QString qt_text(const std::string& text)
{
    return QString::fromStdString(text);
}

} // namespace ostrelum::qt_platform
