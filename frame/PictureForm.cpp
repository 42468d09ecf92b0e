#include "frame/PictureForm.h"

#include "frame/Pictures.h"
#include "platform/toolkit/Designer.h"

namespace ostrelum::inline frame {
namespace {

constexpr int PageSide = 48;
constexpr int AlertSide = 35;
constexpr int SmallSide = 16;

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
    PICTURE(Sec1, PageSide);
    PICTURE(Sec2, PageSide);
    PICTURE(Sec3, PageSide);
    PICTURE(Sec4, PageSide);
    PICTURE(Sec5, PageSide);
    PICTURE(Sec6, PageSide);
    PICTURE(Sec7, PageSide);
    PICTURE(Sec8, PageSide);
    PICTURE(Sec9, PageSide);
    PICTURE(Sec10, PageSide);
    PICTURE(Sec11a, PageSide);
    PICTURE(Sec11b, PageSide);
    PICTURE(Sec12a, PageSide);
    PICTURE(Sec12b, PageSide);
    PICTURE(Sec13, PageSide);
    PICTURE(IOpc, PageSide);
    PICTURE(IAC, PageSide);
    PICTURE(Ok, AlertSide);
    PICTURE(Info, AlertSide);
    PICTURE(Alerta, AlertSide);
    PICTURE(Made, SmallSide);
}

PictureForm& FirstUse::get()
{
    if (!form_)
        form_ = std::make_unique<PictureForm>();
    return *form_;
}

} // namespace ostrelum::inline frame
