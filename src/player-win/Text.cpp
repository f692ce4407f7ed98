#include "Text.h"

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

void drawShadowedText(Gdiplus::Graphics& g, const std::wstring& text, const Gdiplus::RectF& box,
                      const TextStyle& style) {
    if (text.empty())
        return;
    const auto family = fontFamily(style.Font);
    if (!family)
        return; // a machine without a single font shows the pictures alone
    const Gdiplus::Font font(family.get(), style.PixelSize,
                             style.Underline ? Gdiplus::FontStyleUnderline
                                             : Gdiplus::FontStyleRegular,
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
}

} // namespace winplayer
