#pragma once

#include "model/Document.h"
#include "model/ProcessContext.h"

#include <QString>

namespace zentor {

inline constexpr const char* SupportEmail = "support@vitara-zentor.example";
inline constexpr const char* HomePage = "https://www.vitara-zentor.example/";

// The names of the built-in pictures, slots 1..11 (0 and 12 stay empty).
inline constexpr int ResImageCount = 13;
QString ResImageName(int slot);
inline constexpr int ResBorder = 9;
inline constexpr int ResLogo = 10;
inline constexpr int ResHired = 11;

// Resets every table and fills in the defaults; fields not listed stay NUL.
void NewDocument(Document& doc, const ProcessContext& ctx);

} // namespace zentor
