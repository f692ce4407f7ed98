#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <vector>

namespace zentor {

// What a PDF's information dictionary says about it.
struct PdfDocumentInfo {
    QString Title;
    QString Author;
    QString Creator;
    QString Producer;
};

// A part whose pages are the layers of one page, bottom first. The words drawn on layer
// `UnreadLayer` are seen but not read: text readers skip them (an empty actual text), as
// they should a shadow's.
struct PdfLayers {
    int UnreadLayer = -1;
};

// Joins PDFs as QPdfWriter writes them (a classic cross-reference table, no object
// streams) into one document with their pages in the order given: objects renumbered, one
// page tree, one information dictionary. A part listed in `layered` (by index) gives one
// page made of its pages laid one over another. A picture that several parts embed with
// the same bytes is kept once. Empty when a part cannot be read.
QByteArray JoinPdfs(const std::vector<QByteArray>& parts, const PdfDocumentInfo& info,
                    const std::map<size_t, PdfLayers>& layered = {});

// A PDF text string that holds any character: UTF-16BE with its byte-order mark, in hex.
QByteArray PdfTextString(const QString& s);

} // namespace zentor
