#include "HomeLayout.h"

#include <cctype>

namespace zentor::show {
namespace {

std::string Trimmed(const std::string& s) {
    size_t b = 0;
    size_t e = s.size();
    while (b < e && (s[b] == ' ' || s[b] == '\t'))
        ++b;
    while (e > b && (s[e - 1] == ' ' || s[e - 1] == '\t'))
        --e;
    return s.substr(b, e - b);
}

bool HasScheme(const std::string& s) {
    const size_t colon = s.find("://");
    if (colon == std::string::npos || colon == 0)
        return false;
    for (size_t i = 0; i < colon; ++i)
        if (!std::isalpha(static_cast<unsigned char>(s[i])))
            return false;
    return true;
}

} // namespace

std::string ContactLink(ContactKind kind, const std::string& text) {
    const std::string t = Trimmed(text);
    if (t.empty())
        return {};
    if (kind == ContactKind::Email)
        return t.compare(0, 7, "mailto:") == 0 ? t : "mailto:" + t;
    if (kind == ContactKind::Website)
        return HasScheme(t) ? t : "http://" + t;
    return {};
}

HomeLayout LayoutHome(const ShowProfile& profile, int frameWidth, int frameHeight) {
    HomeLayout layout;
    layout.Ring = RingRects(frameWidth, frameHeight);
    const int left = RoundHalfEven((frameWidth - HomeBlockWidth) / 2.0);
    const int top = RoundHalfEven(frameHeight / 2.0) + HomeBlockGap;
    const std::pair<ContactKind, const std::string*> fields[] = {
        {ContactKind::Phone, &profile.Phone},
        {ContactKind::Email, &profile.Email},
        {ContactKind::Website, &profile.Website},
        {ContactKind::Address, &profile.Address},
        {ContactKind::PostCode, &profile.PostCode}};
    int y = top;
    for (const auto& [kind, field] : fields) {
        std::string text = Trimmed(*field);
        if (text.empty())
            continue;
        HomeLine line;
        line.Kind = kind;
        line.Link = ContactLink(kind, text);
        line.Text = std::move(text);
        line.Rect = {left, y, left + HomeBlockWidth, y + HomeLineHeight};
        layout.Lines.push_back(std::move(line));
        y += HomeLineHeight;
    }
    if (!layout.Lines.empty())
        layout.Block = {left, top, left + HomeBlockWidth, y};
    return layout;
}

int LinkAt(const HomeLayout& layout, int x, int y) {
    for (size_t i = 0; i < layout.Lines.size(); ++i)
        if (!layout.Lines[i].Link.empty() && layout.Lines[i].Rect.contains(x, y))
            return int(i);
    return -1;
}

} // namespace zentor::show
