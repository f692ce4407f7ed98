#include "Picture.h"

#include <shlwapi.h>

namespace winplayer {

std::unique_ptr<Gdiplus::Bitmap> decodePicture(const std::vector<unsigned char>& bytes) {
    IStream* stream = SHCreateMemStream(bytes.data(), UINT(bytes.size()));
    if (!stream)
        return nullptr;
    std::unique_ptr<Gdiplus::Bitmap> decoded(Gdiplus::Bitmap::FromStream(stream));
    // The decoder may read lazily from the stream, so keep a copy that owns its pixels.
    std::unique_ptr<Gdiplus::Bitmap> copy;
    if (decoded && decoded->GetLastStatus() == Gdiplus::Ok) {
        copy = std::make_unique<Gdiplus::Bitmap>(decoded->GetWidth(), decoded->GetHeight(),
                                                 PixelFormat32bppARGB);
        Gdiplus::Graphics g(copy.get());
        g.DrawImage(decoded.get(), 0, 0, decoded->GetWidth(), decoded->GetHeight());
    }
    decoded.reset();
    stream->Release();
    return copy;
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

std::unique_ptr<Gdiplus::FontFamily> fontFamily(const std::wstring& wanted) {
    for (const wchar_t* name : {wanted.c_str(), L"Segoe UI", L"Tahoma", L"Arial"}) {
        auto family = std::make_unique<Gdiplus::FontFamily>(name);
        if (family->GetLastStatus() == Gdiplus::Ok)
            return family;
    }
    return std::unique_ptr<Gdiplus::FontFamily>(Gdiplus::FontFamily::GenericSansSerif()->Clone());
}

} // namespace winplayer
