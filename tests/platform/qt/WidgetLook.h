#pragma once

#include "tests/platform/toolkit/conformance/Driver.h"

#include <QWidget>

namespace ostrelum::qt_platform {

/// The fields that each kind of widget has.
conformance::Look look_of(const QWidget& widget);

} // namespace ostrelum::qt_platform
