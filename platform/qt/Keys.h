#pragma once

#include "platform/toolkit/Focus.h"

#include <QKeyEvent>

/// Keys and buttons of the toolkit as the program knows them.
namespace ostrelum::qt_platform {

Key key_of(const QKeyEvent& event);

/// As an Event counts them.
int number_of(Qt::MouseButtons buttons);
int number_of(Qt::KeyboardModifiers modifiers);

} // namespace ostrelum::qt_platform
