#include "Picture.h"

#include <shlwapi.h>

#include <vector>

namespace winplayer {

std::unique_ptr<Gdiplus::Bitmap> decodePicture(const void* bytes, size_t size) {
    if (size == 0 || size > UINT_MAX)
        return nullptr;
    IStream* stream = SHCreateMemStream(static_cast<const BYTE*>(bytes), UINT(size));
    if (!stream)
        return nullptr;
    std::unique_ptr<Gdiplus::Bitmap> decoded(Gdiplus::Bitmap::FromStream(stream));
    // The decoder may read lazily from the stream, so keep a copy that owns its pixels.
    std::unique_ptr<Gdiplus::Bitmap> copy;
    if (decoded && decoded->GetLastStatus() == Gdiplus::Ok && decoded->GetWidth() > 0) {
        copy = std::make_unique<Gdiplus::Bitmap>(decoded->GetWidth(), decoded->GetHeight(),
                                                 PixelFormat32bppPARGB);
        Gdiplus::Graphics g(copy.get());
        g.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
        g.DrawImage(decoded.get(), 0, 0, decoded->GetWidth(), decoded->GetHeight());
    }
    decoded.reset();
    stream->Release();
    return copy;
}

std::unique_ptr<Gdiplus::Bitmap> builtInPicture(int id) {
    HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(id), MAKEINTRESOURCEW(10)); // RCDATA
    HGLOBAL loaded = found ? LoadResource(nullptr, found) : nullptr;
    const void* bytes = loaded ? LockResource(loaded) : nullptr;
    if (!bytes)
        return nullptr;
    return decodePicture(bytes, SizeofResource(nullptr, found));
}

static bool pngEncoder(CLSID& clsid) {
    UINT count = 0, size = 0;
    Gdiplus::GetImageEncodersSize(&count, &size);
    if (size == 0)
        return false;
    std::vector<unsigned char> buffer(size);
    auto* codecs = reinterpret_cast<Gdiplus::ImageCodecInfo*>(buffer.data());
    Gdiplus::GetImageEncoders(count, size, codecs);
    for (UINT i = 0; i < count; ++i) {
        if (wcscmp(codecs[i].MimeType, L"image/png") == 0) {
            clsid = codecs[i].Clsid;
            return true;
        }
    }
    return false;
}

bool savePng(Gdiplus::Bitmap& bitmap, const std::wstring& path) {
    CLSID clsid;
    return pngEncoder(clsid) && bitmap.Save(path.c_str(), &clsid, nullptr) == Gdiplus::Ok;
}

void drawStretched(Gdiplus::Graphics& g, Gdiplus::Bitmap* picture, const Gdiplus::Rect& to,
                   float alpha) {
    if (!picture || alpha <= 0.0f)
        return;
    g.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    g.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    // Edge pixels are repeated, not blended with the transparent outside.
    Gdiplus::ImageAttributes attributes;
    attributes.SetWrapMode(Gdiplus::WrapModeTileFlipXY);
    if (alpha < 1.0f) {
        Gdiplus::ColorMatrix m = {{{1, 0, 0, 0, 0},
                                   {0, 1, 0, 0, 0},
                                   {0, 0, 1, 0, 0},
                                   {0, 0, 0, alpha, 0},
                                   {0, 0, 0, 0, 1}}};
        attributes.SetColorMatrix(&m);
    }
    g.DrawImage(picture, to, 0, 0, INT(picture->GetWidth()), INT(picture->GetHeight()),
                Gdiplus::UnitPixel, &attributes);
}

} // namespace winplayer
