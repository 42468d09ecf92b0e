#include "frame/PictureForm.h"

#include "frame/Pictures.h"
#include "platform/toolkit/Designer.h"

namespace ostrelum::inline frame {
namespace {

constexpr int page_side = 48;
constexpr int alert_side = 35;
constexpr int small_side = 16;

PictureBox square(std::string_view name, int side)
{
    return {.Width = side, .Height = side, .Stored = art_picture(name)};
}

} // namespace

/// A row of the design: the control's name is the picture's too.
#define PICTURE(name, side) put.place(#name, name, square(#name, side))

PictureForm::PictureForm()
{
    Name = "F6";
    ClientWidth = 321;
    ClientHeight = 106;
    Designer put(*this);
    PICTURE(Sec1, page_side);
    PICTURE(Sec2, page_side);
    PICTURE(Sec3, page_side);
    PICTURE(Sec4, page_side);
    PICTURE(Sec5, page_side);
    PICTURE(Sec6, page_side);
    PICTURE(Sec7, page_side);
    PICTURE(Sec8, page_side);
    PICTURE(Sec9, page_side);
    PICTURE(Sec10, page_side);
    PICTURE(Sec11a, page_side);
    PICTURE(Sec11b, page_side);
    PICTURE(Sec12a, page_side);
    PICTURE(Sec12b, page_side);
    PICTURE(Sec13, page_side);
    PICTURE(IOpc, page_side);
    PICTURE(IAC, page_side);
    PICTURE(Ok, alert_side);
    PICTURE(Info, alert_side);
    PICTURE(Alerta, alert_side);
    PICTURE(Made, small_side);
}

PictureForm& FirstUse::get()
{
    if (!form_)
        form_ = std::make_unique<PictureForm>();
    return *form_;
}

} // namespace ostrelum::inline frame
