#pragma once

#include "model/DefaultDocument.h"
#include "model/Document.h"
#include "model/ProcessContext.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <memory>

namespace zentor::fuzz {

// One context for the whole fuzzing run: the work folder under the system temp folder.
inline const ProcessContext& Context() {
    static const ProcessContext ctx = ProcessContext::create(QStringLiteral("/nonexistent"));
    return ctx;
}

// A fresh default document; held on the heap, the tables are large.
inline std::unique_ptr<Document> FreshDocument() {
    auto doc = std::make_unique<Document>();
    NewDocument(*doc, Context());
    return doc;
}

inline QByteArray Bytes(const uint8_t* data, size_t size) {
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

} // namespace zentor::fuzz
