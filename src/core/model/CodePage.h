#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <memory>

namespace zentor {

// The single-byte (or multi-byte) code page that document strings are stored in.
// The ANSI code page Windows picks for the user's language (see CodePageCheck.h) unless
// ZENTOR_CODEPAGE names another one (e.g. "1250", "CP932", "ISO-8859-2").
class CodePage {
public:
    virtual ~CodePage() = default;

    // Encodes at most maxBytes bytes, cutting at a character boundary; characters the
    // code page lacks become '?'.
    virtual QByteArray encode(QStringView text, int maxBytes) const = 0;
    virtual QString decode(QByteArrayView bytes) const = 0;
    virtual QString name() const = 0;

    // The code page of this process, chosen once from the environment.
    static const CodePage& active();
    // Makes a code page by name: "1252"/"CP1252"/"windows-1252" use the built-in table,
    // anything else goes through iconv. Returns nullptr for an unknown name.
    static std::unique_ptr<CodePage> create(const QString& name);
    // For tests: replaces the active code page (nullptr restores the environment's choice).
    static void overrideActive(std::unique_ptr<CodePage> page);
};

} // namespace zentor
