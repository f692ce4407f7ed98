#pragma once
#include <windows.h>
// GDI+ wants min/max from windows.h, which NOMINMAX-free builds provide.
#include <gdiplus.h>

#include <memory>
#include <string>

namespace winplayer {

// Decodes a JPEG, PNG, ICO or BMP held in memory; null when the bytes are no picture.
std::unique_ptr<Gdiplus::Bitmap> decodePicture(const void* bytes, size_t size);

// A picture carried in this program's resources (RCDATA), null when missing.
std::unique_ptr<Gdiplus::Bitmap> builtInPicture(int id);

// Writes the bitmap as PNG; false when the file cannot be written.
bool savePng(Gdiplus::Bitmap& bitmap, const std::wstring& path);

// Draws `picture` stretched to the rectangle, smoothly, at `alpha` (0..1) over what is there.
void drawStretched(Gdiplus::Graphics& g, Gdiplus::Bitmap* picture, const Gdiplus::Rect& to,
                   float alpha = 1.0f);

} // namespace winplayer
