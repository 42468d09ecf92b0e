#pragma once

#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Events.h"

#include <cstdint>

/// What the skin offers to the rest of the program.
namespace ostrelum::inline skin {

/// Splits a colour 0x00BBGGRR into BaseR, BaseG and BaseB.
void SplitColor(std::int32_t color);

/// Makes SkinR, SkinG and SkinB of the base bytes and Shine.
void MakeSkinColor();

/// Replaces what the box shows by the tinted form of its stored picture, which must be grey.
void Tint(PictureBox& pic);

/// Tints the five skin pictures of the main window.
void tint_skin();

/// Starts the cross-fade of the page picture to the one of the page on show.
void start_cross_fade();

/// The panel for language, colour, shine and transparency, and the button that closes either panel.
extern const HandlerTable customise_panel_handlers;

/// The tick of the cross-fade.
extern const HandlerTable cross_fade_handlers;

} // namespace ostrelum::inline skin
