#pragma once

#include "model/Document.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace zentor {

// The pictures a package is made of, as the generator asks for them. Each result is the
// JPEG (quality 95) that would land in the temporary picture, or nothing when no picture
// could be written; the generator then reads back whatever the temporary picture held.
class PackagePictures {
public:
    virtual ~PackagePictures() = default;

    // The picture at `path` (already resolved) stretched to exactly width x height, for the
    // package's entry `entry`.
    virtual std::optional<QByteArray> resample(int entry, const QString& path, int width,
                                               int height) = 0;

    // Page 1..8 of the document, as the page compositor renders it.
    virtual std::optional<QByteArray> renderPage(const Document& doc, int page) = 0;

    // Called on the generating thread once page `page` has been written to the package,
    // for what rendering a page changes in the document itself.
    virtual void pageWritten(Document& doc, int page) {
        (void)doc;
        (void)page;
    }

    // True when both calls may run on several threads at once (each call only reads the
    // document and shares nothing else).
    virtual bool reentrant() const { return false; }
};

} // namespace zentor
