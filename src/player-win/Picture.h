#pragma once
#include <windows.h>
// GDI+ wants min/max from windows.h, which NOMINMAX-free builds provide.
#include <gdiplus.h>

#include <memory>
#include <string>
#include <vector>

namespace winplayer {

// Decodes a JPEG or PNG held in memory; null when the bytes are no picture.
std::unique_ptr<Gdiplus::Bitmap> decodePicture(const std::vector<unsigned char>& bytes);

// Writes the bitmap as PNG; false when the file cannot be written.
bool savePng(Gdiplus::Bitmap& bitmap, const std::wstring& path);

// The first of the document's font, "Segoe UI", "Tahoma" and "Arial" that is installed.
std::unique_ptr<Gdiplus::FontFamily> fontFamily(const std::wstring& wanted);

} // namespace winplayer
