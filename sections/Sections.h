#pragma once

#include "platform/toolkit/Events.h"

/// The collectors of the thirteen section pages, each of which queries anew and writes the page of
/// F1, and the live refresh.
namespace ostrelum::inline sections {

void SecSummary();
void SecUser();
void SecComputer();
void SecOS();
void SecCPU();
void SecRAM();
void SecDisks();
void SecBIOS();
void SecDisplay();
void SecInput();
void SecRemovable();
void SecOptical();
void SecOther();

/// The ticks of the pages whose figures change while they are open.
void refresh_user();
void refresh_system();
void refresh_memory();
void refresh_battery();

/// The timer that runs the tick of the page on show.
extern const HandlerTable live_refresh_handlers;

} // namespace ostrelum::inline sections
