#include "Text.h"

#include <algorithm>

namespace winplayer {

std::wstring fromAnsi(const std::string& bytes) {
    if (bytes.empty())
        return {};
    const int n = MultiByteToWideChar(CP_ACP, 0, bytes.data(), int(bytes.size()), nullptr, 0);
    std::wstring text(size_t(n), L'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), int(bytes.size()), text.data(), n);
    return text;
}

std::unique_ptr<Gdiplus::FontFamily> fontFamily(const std::wstring& wanted) {
    for (const wchar_t* name : {wanted.c_str(), L"Arial", L"Segoe UI", L"Tahoma"}) {
        auto family = std::make_unique<Gdiplus::FontFamily>(name);
        if (family->GetLastStatus() == Gdiplus::Ok && family->IsAvailable())
            return family;
    }
    const Gdiplus::FontFamily* generic = Gdiplus::FontFamily::GenericSansSerif();
    return std::unique_ptr<Gdiplus::FontFamily>(generic ? generic->Clone() : nullptr);
}

namespace {

// Drawn by hand: not every GDI+ underlines what it draws.
void underline(Gdiplus::Graphics& g, const std::wstring& text, const Gdiplus::Font& font,
               const Gdiplus::FontFamily& family, const Gdiplus::RectF& box,
               const Gdiplus::StringFormat& format, const TextStyle& style) {
    Gdiplus::RectF shown;
    g.MeasureString(text.c_str(), INT(text.size()), &font, Gdiplus::PointF(0.0f, 0.0f), &format,
                    &shown);
    // Centred as the text is; a line cut with an ellipsis fills its box.
    const float width = std::min(shown.Width, box.Width);
    const float left = box.X + (box.Width - width) / 2.0f, right = left + width;
    const float em = float(family.GetEmHeight(Gdiplus::FontStyleRegular));
    const float ascent = style.PixelSize * family.GetCellAscent(Gdiplus::FontStyleRegular) / em;
    const float line = style.PixelSize * family.GetLineSpacing(Gdiplus::FontStyleRegular) / em;
    const float top = style.Middle ? box.Y + (box.Height - line) / 2.0f : box.Y;
    const float y = top + ascent + 1.5f;
    const Gdiplus::Pen shadow(style.Shadow, 1.0f), ink(style.Color, 1.0f);
    g.DrawLine(&shadow, left + 1.0f, y + 1.0f, right + 1.0f, y + 1.0f);
    g.DrawLine(&ink, left, y, right, y);
}

} // namespace

void drawShadowedText(Gdiplus::Graphics& g, const std::wstring& text, const Gdiplus::RectF& box,
                      const TextStyle& style) {
    if (text.empty())
        return;
    const auto family = fontFamily(style.Font);
    if (!family)
        return; // a machine without a single font shows the pictures alone
    const Gdiplus::Font font(family.get(), style.PixelSize, Gdiplus::FontStyleRegular,
                             Gdiplus::UnitPixel);
    Gdiplus::StringFormat format(Gdiplus::StringFormat::GenericTypographic());
    format.SetAlignment(Gdiplus::StringAlignmentCenter);
    format.SetLineAlignment(style.Middle ? Gdiplus::StringAlignmentCenter
                                         : Gdiplus::StringAlignmentNear);
    if (style.Ellipsis) {
        format.SetFormatFlags(format.GetFormatFlags() | Gdiplus::StringFormatFlagsNoWrap);
        format.SetTrimming(Gdiplus::StringTrimmingEllipsisCharacter);
    }
    g.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
    const Gdiplus::SolidBrush shadow(style.Shadow);
    const Gdiplus::SolidBrush ink(style.Color);
    Gdiplus::RectF shifted = box;
    shifted.Offset(1.0f, 1.0f);
    g.DrawString(text.c_str(), INT(text.size()), &font, shifted, &format, &shadow);
    if (style.ShadowInPlace)
        g.DrawString(text.c_str(), INT(text.size()), &font, box, &format, &shadow);
    g.DrawString(text.c_str(), INT(text.size()), &font, box, &format, &ink);
    if (style.Underline)
        underline(g, text, font, *family, box, format, style);
}

} // namespace winplayer
