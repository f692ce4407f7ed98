#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace zentor {

// What a PDF's information dictionary says about it.
struct PdfDocumentInfo {
    QString Title;
    QString Author;
    QString Creator;
    QString Producer;
};

// Joins PDFs as QPdfWriter writes them (a classic cross-reference table, no object
// streams) into one document with their pages in the order given: objects renumbered, one
// page tree, one information dictionary. A picture that several parts embed with the same
// bytes is kept once. Empty when a part cannot be read.
QByteArray JoinPdfs(const std::vector<QByteArray>& parts, const PdfDocumentInfo& info);

// A PDF text string that holds any character: UTF-16BE with its byte-order mark, in hex.
QByteArray PdfTextString(const QString& s);

} // namespace zentor
