#include "render/PageContent.h"

#include "io/FileUtil.h"
#include "model/Document.h"
#include "render/PictureCache.h"
#include "render/TextDraw.h"

#include <QPainter>

namespace zentor {

void DrawPageObjects(QPainter& p, const Document& doc, int tab, PictureCache* cache,
                     bool withTexts) {
    for (int i = 1; i <= MaxImages; ++i) {
        const ImageElement& img = doc.Images[size_t(i)];
        if (img.TabNo != tab)
            continue;
        DrawPictureFile(p, ResolvePath(doc.ScriptPath, img.FileName.trimmed()),
                        BoxRect(img.Left, img.Top, img.Width, img.Height), cache);
    }
    if (withTexts)
        DrawPageTexts(p, doc, tab, TextPasses::All);
}

void DrawPageTexts(QPainter& p, const Document& doc, int tab, TextPasses passes) {
    for (int i = 1; i <= MaxTexts; ++i) {
        const TextElement& t = doc.Texts[size_t(i)];
        if (t.TabNo == tab)
            DrawTextElement(p, t, passes);
    }
}

} // namespace zentor
