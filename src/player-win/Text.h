#pragma once
#include "Picture.h"

#include <memory>
#include <string>

namespace winplayer {

// The package's texts are bytes of the Windows ANSI code page of the author's machine;
// this machine's code page is the best guess at it.
std::wstring fromAnsi(const std::string& bytes);

// The first installed of `wanted`, "Arial", "Segoe UI" and "Tahoma", else the system's
// sans-serif; null when there is no font at all.
std::unique_ptr<Gdiplus::FontFamily> fontFamily(const std::wstring& wanted);

struct TextStyle {
    std::wstring Font = L"Arial";
    float PixelSize = 16.0f;
    Gdiplus::Color Color = Gdiplus::Color(255, 255, 255, 255);
    Gdiplus::Color Shadow = Gdiplus::Color(255, 0, 0, 0);
    bool ShadowInPlace = true; // the shadow drawn once more unshifted gives a dark rim
    bool Middle = false;       // centred vertically rather than at the top
    bool Ellipsis = false;     // one line, cut with "…" when it does not fit
    bool Underline = false;
};

// One line centred in `box`, antialiased, over its shadow shifted a pixel right and down.
void drawShadowedText(Gdiplus::Graphics& g, const std::wstring& text, const Gdiplus::RectF& box,
                      const TextStyle& style);

} // namespace winplayer
