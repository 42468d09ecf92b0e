#pragma once

/// The stages of a report. Each empties the slots of Datos that it uses, asks the management
/// service anew and writes the rows of its section.
namespace ostrelum::inline report {

void InfUser();
void InfComputer();
void InfOS();
void InfCPU();
void InfRAM();
void InfDisks();
void InfBIOS();
void InfDisplay();
/// Writes what InfDisplay has read.
void InfGraphics();
void InfKeyboard();
/// Writes what InfKeyboard has read.
void InfMouse();
void InfOther();

} // namespace ostrelum::inline report
