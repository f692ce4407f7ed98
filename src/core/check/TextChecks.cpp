#include "check/CheckDocument.h"
#include "check/Contrast.h"
#include "model/Document.h"
#include "render/PageCompositor.h"
#include "render/ResImages.h"
#include "render/TextDraw.h"
#include "render/TextLayout.h"

#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>
#include <future>
#include <optional>

namespace zentor {

namespace {

TextBoxLayout Layout(const TextElement& t) {
    return LayoutTextBox(t.Text.text(), t.Left, t.Top, t.Width, t.Height, t.FontName.trimmed(),
                         t.FontSize, t.FontStyle, t.Align, t.LineAlign);
}

Finding About(FindingKind kind, const TextElement& t, int slot) {
    Finding f;
    f.kind = kind;
    f.tab = t.TabNo;
    f.objectKind = 2;
    f.slot = slot;
    f.object = ObjectLabel(t.Name.text(), 2, slot);
    return f;
}

// Samples taken across a line's rectangle at most this far apart, in pixels: enough to see
// a photo's light and dark parts, few enough for many long texts.
constexpr int SampleStep = 2;

// The contrast the text has over most of what lies under it: the weakest tenth of the
// samples (a stray highlight in a photo) does not decide.
constexpr double WeakShare = 0.1;

// How the text stands out from its own shadow, which outlines every glyph; nothing without
// one.
std::optional<double> ShadowContrast(const TextElement& t) {
    if (t.FontShadow == 0)
        return std::nullopt;
    const QRgb colour = QRgb(uint32_t(t.FontColor));
    const QRgb shadow = QRgb(ShadowColorFor(uint32_t(t.FontColor)));
    return ContrastRatio(RelativeLuminance(Over(colour, shadow)), RelativeLuminance(shadow));
}

// A text its shadow makes readable whatever lies under it: its page need not be drawn.
bool ReadableByShadow(const TextElement& t) {
    const auto ratio = ShadowContrast(t);
    return ratio && *ratio >= RequiredContrast(t.FontSize, t.FontStyle);
}

std::optional<double> TextContrast(const TextElement& t, const TextBoxLayout& layout,
                                   const QImage& backdrop) {
    const QRgb colour = QRgb(uint32_t(t.FontColor));
    const QRect box = QRectF(t.Left, t.Top, t.Width, t.Height).toAlignedRect();
    std::vector<double> ratios;
    for (const TextBoxLine& line : layout.lines) {
        QRect r = line.rect.toAlignedRect() & backdrop.rect();
        if (t.Width > 0 && t.Height > 0)
            r &= box;
        for (int y = r.top(); y <= r.bottom(); y += SampleStep) {
            const auto* row = reinterpret_cast<const QRgb*>(backdrop.constScanLine(y));
            for (int x = r.left(); x <= r.right(); x += SampleStep) {
                const QRgb under = row[x];
                ratios.push_back(ContrastRatio(RelativeLuminance(Over(colour, under)),
                                               RelativeLuminance(under)));
            }
        }
    }
    if (ratios.empty())
        return std::nullopt;
    const auto weak = ratios.begin() + ptrdiff_t(double(ratios.size() - 1) * WeakShare);
    std::nth_element(ratios.begin(), weak, ratios.end());
    return std::max(*weak, ShadowContrast(t).value_or(0.0));
}

void CheckFit(const TextElement& t, int slot, const TextBoxLayout& layout,
              std::vector<Finding>& out) {
    const int cut = layout.linesTotal - layout.linesVisible;
    if (cut > 0) {
        Finding f = About(FindingKind::Overflow, t, slot);
        f.message = QStringLiteral("%1 of %2 lines do not fit the box; make it taller or the "
                                   "text shorter")
                        .arg(cut)
                        .arg(layout.linesTotal);
        out.push_back(std::move(f));
    }
    if (layout.wordTooWide) {
        Finding f = About(FindingKind::Overflow, t, slot);
        f.message = QStringLiteral("a word is wider than the box and is broken; make the box "
                                   "wider or the font smaller");
        out.push_back(std::move(f));
    }
}

// A page's texts laid out once for both kinds: a text that does not fit its box, and one
// hard to read over what lies under it.
std::vector<Finding> CheckPageTexts(const Document& doc, int tab, PictureCache* cache) {
    std::vector<Finding> out;
    const auto onPage = [tab](const TextElement& t) { return t.TabNo == tab; };
    // Drawing the page (decoding its pictures) is most of the work: a page whose texts all
    // stand out from their own shadows is not drawn.
    const bool needsBackdrop =
        std::any_of(doc.Texts.begin() + 1, doc.Texts.end(),
                    [&](const TextElement& t) { return onPage(t) && !ReadableByShadow(t); });
    const ResImages noBadge; // the content pages carry no built-in picture
    const QImage backdrop =
        needsBackdrop
            ? RenderPageImage(doc, tab, noBadge, cache, false).convertToFormat(QImage::Format_RGB32)
            : QImage();
    for (int slot = 1; slot <= MaxTexts; ++slot) {
        const TextElement& t = doc.Texts[size_t(slot)];
        if (!onPage(t))
            continue;
        const TextBoxLayout layout = Layout(t);
        CheckFit(t, slot, layout, out);
        if (backdrop.isNull() || ReadableByShadow(t))
            continue;
        const auto ratio = TextContrast(t, layout, backdrop);
        const double needed = RequiredContrast(t.FontSize, t.FontStyle);
        if (!ratio || *ratio >= needed)
            continue;
        Finding f = About(FindingKind::Contrast, t, slot);
        f.message = QStringLiteral("the text stands out %1:1 from what lies under it; at "
                                   "least %2:1 is needed to read it")
                        .arg(std::floor(*ratio * 10) / 10, 0, 'f', 1)
                        .arg(needed, 0, 'f', needed == 3.0 ? 0 : 1);
        out.push_back(std::move(f));
    }
    return out;
}

} // namespace

// The pages on all cores, their findings in page order.
void CheckTexts(const Document& doc, PictureCache* cache, std::vector<Finding>& out) {
    std::array<std::future<std::vector<Finding>>, SlideShowTab> pages;
    for (int tab = 1; tab < SlideShowTab; ++tab) {
        const bool hasText = std::any_of(doc.Texts.begin() + 1, doc.Texts.end(),
                                         [tab](const TextElement& t) { return t.TabNo == tab; });
        if (hasText)
            pages[size_t(tab)] = std::async(
                std::launch::async, [&doc, tab, cache] { return CheckPageTexts(doc, tab, cache); });
    }
    for (auto& page : pages)
        if (page.valid())
            for (Finding& f : page.get())
                out.push_back(std::move(f));
}

} // namespace zentor
