// The JSON `pack` reads: any text, parsed and applied over the default document, must
// either be refused with a message or give a document that saves.
#include "FuzzSupport.h"

#include "io/ProjectJson.h"
#include "io/ScriptFile.h"

#include <QJsonDocument>
#include <QJsonObject>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace zentor;
    const QJsonDocument json = QJsonDocument::fromJson(fuzz::Bytes(data, size));
    if (!json.isObject())
        return 0;
    auto doc = fuzz::FreshDocument();
    if (ApplyProjectJson(json.object(), *doc).isEmpty())
        SerializeScript(*doc);
    return 0;
}
