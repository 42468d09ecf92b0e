#pragma once

#include "platform/toolkit/Form.h"

#include <cstdint>
#include <string>

namespace ostrelum::inline frame {

/// Values of MainForm::Seccion: the sections in the order of the left column, and the panels.
enum PageNumber : std::uint8_t {
    SummaryPage = 1,
    UserPage,
    ComputerPage,
    SystemPage,
    ProcessorPage,
    MemoryPage,
    DrivesPage,
    FirmwarePage,
    DisplayPage,
    InputPage,
    RemovablePage,
    DiscsPage,
    HardwarePage,
    CustomisePanel = 90,
    AboutPanel = 91,
};

inline constexpr int section_count = HardwarePage;

/// Client area of the main window, the program's largest.
inline constexpr int main_form_width = 777;
inline constexpr int main_form_height = 553;

/// The main window. The names are those of the design table in MainForm.cpp.
class MainForm : public Form {
public:
    ControlArray<PictureBox, 4> S;
    ControlArray<PictureBox, 4> Corner;
    PictureBox MenuLogo;
    Label LOpc;
    ControlArray<Label, section_count> LMenu;
    PictureBox BM;
    Label LMenu2;
    PictureBox PesBMenu;

    Label Titulo;
    Line LineTit;
    PictureBox Ico;
    ControlArray<Label, 12> LT;
    ControlArray<Label, 12> L;
    Line Line1;
    Line Line2;
    Label LNoDrive;
    PictureBox Iaviso;
    Label Laviso;
    Line LineInf;
    Label Labelmi;
    PictureBox TapaBorde;

    PictureBox PicPersonalizar;
    Label LTPers1;
    ComboBox LangList;
    Label LTPers2;
    Label LPers1;
    PictureBox Spectrum;
    Line LineP1;
    Line LineP2;
    PictureBox Arrow;
    ScrollBar Scroll1;
    Label LPers2;
    ScrollBar Scroll2;
    Line LineP3;
    Label LTPers3;
    CheckBox CheckTrans;
    ScrollBar Scroll3;
    Label LPers3;
    PictureBox PicInformacion;
    PictureBox Logo;
    Label LTInfo1;
    Label LInfo1;
    Label LTInfo2;
    Label LInfo2;
    Label LTInfo3;
    Label LInfo3;
    Line LineI;
    Label LTra;
    Label LTra1;
    Label LTra2;
    CommandButton BAceptar;

    PopupMenu MenuOps;
    MenuItem Personalizar;
    MenuItem CrearInforme;
    MenuItem SepOps1;
    MenuItem Informacion;
    MenuItem VisitWeb;
    MenuItem SepOps2;
    MenuItem Quit;
    PopupMenu MenuCopy;
    MenuItem Copy;
    MenuItem CopyAll;

    Timer Timer1;
    Timer TLoad;
    Timer TUnload;
    Timer TAlphaB;

    /// Page on show, a PageNumber; 0 until the first section has run.
    std::uint8_t Seccion = 0;
    /// Section to go back to when a panel closes.
    std::uint8_t SeccionPrev = 0;
    /// A panel is open: navigation, the options menu and the changes of the mouse cursor are off.
    bool PanelOpen = false;
    /// The customise panel has been filled: only now its controls act.
    bool PanelReady = false;
    /// Row hit by the last right click on a row, 1 to 12; 0 before the first.
    std::uint8_t CopyRow = 0;
    /// Removable drives, or loaded CD/DVD drives, that the last visit to section 11 or 12 found.
    std::uint8_t MediaCount = 0;
    /// CD/DVD drives without a disc that the last visit to section 12 found.
    std::uint8_t EmptyDrives = 0;
    /// Settings as they stood when the customise panel opened.
    std::string LangAtOpen;
    std::int32_t HueAtOpen = 0;
    std::int32_t ShineAtOpen = 0;
    bool ChkAtOpen = false;
    std::int32_t TransAtOpen = 0;
};

inline MainForm F1;

/// Gives F1 the look of its design, its handlers and the first values of its fields.
void load_main_form();

} // namespace ostrelum::inline frame
