#include "platform/windows/toolkit/Fonts.h"

#include "platform/windows/services/Wide.h"
#include "platform/windows/toolkit/Drawing.h"

#include <algorithm>
#include <cmath>

namespace ostrelum::windows_platform {
namespace {

constexpr double points_per_inch = 72;

OwnedFont make_font(const FontSpec& spec, Scale scale)
{
    LOGFONTW wanted{};
    // Negative: the height of the letters without the space between lines.
    wanted.lfHeight = -std::max(1L, std::lround(spec.Size * scale.dpi / points_per_inch));
    wanted.lfWeight = spec.Bold ? FW_BOLD : FW_NORMAL;
    wanted.lfItalic = spec.Italic;
    wanted.lfUnderline = spec.Underline;
    wanted.lfCharSet = DEFAULT_CHARSET;
    wanted.lfQuality = DEFAULT_QUALITY;
    const std::wstring name = wide(spec.Name);
    std::copy_n(name.begin(), std::min(name.size(), std::size(wanted.lfFaceName) - 1),
                wanted.lfFaceName);
    return OwnedFont(CreateFontIndirectW(&wanted));
}

/// The space before and behind a letter's ink; what leans out is below 0.
ABC space_round(HDC dc, wchar_t letter)
{
    ABC space{};
    return GetCharABCWidthsW(dc, letter, letter, &space) ? space : ABC{};
}

} // namespace

HFONT Fonts::get(const FontSpec& spec, Scale scale)
{
    const auto found = std::ranges::find_if(
        made_, [&](const Made& made) { return made.spec == spec && made.scale == scale; });
    if (found != made_.end())
        return found->font.get();
    made_.push_back({spec, scale, make_font(spec, scale)});
    return made_.back().font.get();
}

InkSize measure(std::wstring_view text, HFONT font)
{
    const HDC screen = GetDC(nullptr);
    InkSize size;
    {
        const Selected selected(screen, font);
        RECT place{};
        // An empty text is as high as a line.
        const std::wstring_view measured = text.empty() ? L" " : text;
        DrawTextW(screen, measured.data(), static_cast<int>(measured.size()), &place,
                  DT_CALCRECT | DT_NOPREFIX);
        size.text = {text.empty() ? 0 : place.right, place.bottom};
        if (!text.empty()) {
            size.left = std::max(0, -space_round(screen, text.front()).abcA);
            size.right = std::max(0, -space_round(screen, text.back()).abcC);
        }
    }
    ReleaseDC(nullptr, screen);
    return size;
}

} // namespace ostrelum::windows_platform
