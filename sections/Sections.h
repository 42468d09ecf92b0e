#pragma once

/// The collectors of the thirteen section pages. Each one queries anew and writes the page of F1.
namespace ostrelum {

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

} // namespace ostrelum
