// The project loader on arbitrary bytes: it must read as far as the bytes go, never past
// the tables, and what it read must save again.
#include "FuzzSupport.h"

#include "io/ProjectJson.h"
#include "io/ScriptFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace zentor;
    auto doc = fuzz::FreshDocument();
    const QByteArray bytes = fuzz::Bytes(data, size);
    LoadScriptBytes(*doc, bytes);
    const QByteArray saved = SerializeScript(*doc);
    // What was saved loads back to the same bytes.
    auto again = fuzz::FreshDocument();
    LoadScriptBytes(*again, saved);
    if (SerializeScript(*again) != saved)
        __builtin_trap();
    ProjectToJson(*doc, doc->Header.TextCount, doc->Header.ImageCount);
    return 0;
}
