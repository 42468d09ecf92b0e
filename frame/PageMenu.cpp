#include "figures/Platform.h"
#include "frame/F1Events.h"
#include "frame/MainForm.h"

#include <array>
#include <cstdint>

/// The menu that a right click on the page brings up.
namespace ostrelum::inline frame {
namespace {

/// Bit i for row i.
using RowSet = std::uint16_t;

template <class... Rows>
constexpr RowSet rows(Rows... row)
{
    return static_cast<RowSet>((0 | ... | (1 << row)));
}

constexpr RowSet all_but(RowSet kept)
{
    return static_cast<RowSet>(rows(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12) & ~kept);
}

/// By section: the rows that have nothing to copy.
constexpr std::array<RowSet, 14> NotCopied{
    0,
    rows(1, 2, 7, 8, 9),
    rows(11, 12),
    all_but(rows(1, 2, 3, 4, 5, 6)),
    rows(12),
    rows(10, 11, 12),
    rows(9, 10, 11, 12),
    rows(10, 11, 12),
    all_but(rows(1, 2, 3, 4, 5)),
    rows(5, 12),
    rows(3, 9, 10, 11, 12),
    rows(9, 10, 11, 12),
    rows(8, 9, 10, 11, 12),
    rows(4, 7),
};

bool panel_on_show()
{
    return F1.Seccion == CustomisePanel || F1.Seccion == AboutPanel;
}

bool media_missing()
{
    return (F1.Seccion == 11 || F1.Seccion == 12) && F1.MediaCount == 0;
}

bool can_copy(int row)
{
    return F1.Seccion >= NotCopied.size() || (NotCopied[F1.Seccion] >> row & 1) == 0;
}

void pop_up()
{
    platform.toolkit->popup(F1, F1.MenuCopy, std::nullopt, nullptr);
}

void Form_MouseDown(int button, int, int, int)
{
    if (button != RightButton || panel_on_show() || media_missing())
        return;
    F1.Copy.Enabled = false;
    pop_up();
}

void TapaBorde_MouseDown(int button, int shift, int x, int y)
{
    Form_MouseDown(button, shift, x, y);
}

void LT_MouseDown(int index, int button, int, int, int)
{
    if (button != RightButton || panel_on_show())
        return;
    F1.Copy.Enabled = can_copy(index);
    F1.CopyRow = static_cast<std::uint8_t>(index);
    pop_up();
}

void L_MouseDown(int index, int button, int shift, int x, int y)
{
    LT_MouseDown(index, button, shift, x, y);
}

constexpr Handler table[] = {
    OSTRELUM_ON(Form_MouseDown),
    OSTRELUM_ON(TapaBorde_MouseDown),
    OSTRELUM_ON(LT_MouseDown),
    OSTRELUM_ON(L_MouseDown),
};

} // namespace

const HandlerTable page_menu_handlers{table};

} // namespace ostrelum::inline frame
