#pragma once

#include "platform/toolkit/Form.h"

#include <array>
#include <string>

namespace ostrelum::inline report {

/// The report dialog. The names are those of the design table in ReportForm.cpp.
class ReportForm : public Form {
public:
    Label Desc1;
    Label Desc2;
    PictureBox Pic1;
    Label LStatus;
    Line BGLine;
    PictureBox BG;
    CommandButton BSave;
    CommandButton BClose;

    Timer Descargador;
    Timer TLoad;
    Timer TUnload;
    Timer TAlphaB;

    /// The body while the stages run, with its markers.
    std::string Tb;
    /// The finished documents: RTF, HTML, BBCode, plain text.
    std::string Tb1;
    std::string Tb2;
    std::string Tb3;
    std::string Tb4;

    /// Level of the fade of Pic1, 0 to 255; the last step goes above.
    int BlendLevel = 0;
    /// The fade-out has ended: the next close goes through.
    bool MayClose = false;
};

inline ReportForm F2;

/// The documents in the order of document_formats.
inline std::array<std::string*, 4> report_documents()
{
    return {&F2.Tb1, &F2.Tb2, &F2.Tb3, &F2.Tb4};
}

/// Gives F2 the look of its design, its handlers and the first values of its fields.
void load_report_form();

} // namespace ostrelum::inline report
