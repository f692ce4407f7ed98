#pragma once

#include "model/FixedString.h"

#include <cstdint>

namespace zentor {

// The document records, field for field as the project file stores them. Sizes on disk
// (with alignment gaps) are in RecordSizes below; the io layer writes them field by field.

struct ScriptHeader {
    int32_t VersionMajor = 0;
    int32_t VersionMinor = 0;
    int32_t VersionRevision = 0;
    int32_t TextCount = 0;
    int32_t ImageCount = 0;
    FixedString<256> BackMusic;
    FixedString<256> BackPicture;
    int32_t MusicVolume = 0;
    int32_t AutoRepeat = 0;
    int32_t BackColor = 0; // 0x00BBGGRR
    int32_t ShowSpeed = 0;
    int32_t ShowAsRun = 0;
    int32_t KeepOnTime = 0;
    int32_t FrameWidth = 0;
    int32_t FrameHeight = 0;
    friend bool operator==(const ScriptHeader&, const ScriptHeader&) = default;
};

struct ProfileRecord {
    FixedString<256> UserIcon;
    FixedString<32> FirstName;
    FixedString<32> LastName;
    FixedString<16> Phone;
    FixedString<64> Email;
    FixedString<128> Website;
    FixedString<256> Address;
    FixedString<16> PostCode;
    friend bool operator==(const ProfileRecord&, const ProfileRecord&) = default;
};

struct ImageElement {
    int32_t TabNo = 0;
    int16_t Reserved = 0;
    FixedString<32> Name;
    FixedString<256> FileName;
    int32_t PicAlign = 0;
    int16_t Flag = 0;
    int32_t Left = 0;
    int32_t Top = 0;
    int32_t Width = 0;
    int32_t Height = 0;
    int32_t Extra = 0;
    friend bool operator==(const ImageElement&, const ImageElement&) = default;
};

struct TextElement {
    int32_t TabNo = 0;
    FixedString<32> Name;
    FixedString<4096> Text;
    int32_t Extra = 0;
    int32_t Left = 0;
    int32_t Top = 0;
    int32_t Width = 0;
    int32_t Height = 0;
    FixedString<31> FontName;
    int32_t FontSize = 0;
    int32_t FontStyle = 0;  // bold 1, italic 2, underline 4, strikeout 8
    int32_t Align = 0;      // 0 left, 1 centre, 2 right
    int32_t FontColor = 0;  // 0xAARRGGBB
    int16_t FontShadow = 0; // -1 shadow, 0 none
    int32_t TextHint = 0;
    int32_t LineAlign = 0; // 0 top, 1 centre, 2 bottom
    int32_t Extra2 = 0;
    friend bool operator==(const TextElement&, const TextElement&) = default;
};

struct TabRecord {
    ImageElement Picture;
    FixedString<256> Icon;
    FixedString<32> Name;
    int32_t Extra = 0;
    friend bool operator==(const TabRecord&, const TabRecord&) = default;
};

namespace RecordSize {
inline constexpr int Header = 564;
inline constexpr int Profile = 800;
inline constexpr int Image = 324;
inline constexpr int Tab = 616;
inline constexpr int Text = 4216;
} // namespace RecordSize

} // namespace zentor
