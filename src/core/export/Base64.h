#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace zentor {

// Writes `bytes` in base64 at `out` (four digits for every three bytes, the last group
// padded with '='); returns the end of what it wrote.
char* Base64Into(char* out, QByteArrayView bytes);
// The same appended to `out`.
void AppendBase64(QByteArray& out, QByteArrayView bytes);

} // namespace zentor
