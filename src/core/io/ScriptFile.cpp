#include "io/ScriptFile.h"

#include "io/FileUtil.h"
#include "io/RecordCodec.h"

#include <QFile>

#include <algorithm>

namespace zentor {

namespace {

constexpr qint64 kMaxProjectSize = RecordSize::Header + RecordSize::Profile + 8 * RecordSize::Tab +
                                   MaxTexts * RecordSize::Text + MaxImages * RecordSize::Image;

// Hands out the file's records in order; a record cut short by the end of the file comes
// back zero-filled behind the bytes present, one wholly past the end not at all.
class RecordCursor {
public:
    explicit RecordCursor(QByteArrayView bytes) : bytes_(bytes) {}
    // Returns false when nothing of the record is left; `complete` tells a cut record.
    bool next(int size, QByteArray& out, bool& complete) {
        if (pos_ >= bytes_.size())
            return false;
        const qsizetype have = std::min<qsizetype>(size, bytes_.size() - pos_);
        out = QByteArray(size, '\0');
        std::copy_n(bytes_.data() + pos_, have, out.data());
        pos_ += have;
        complete = have == size;
        return true;
    }

private:
    QByteArrayView bytes_;
    qsizetype pos_ = 0;
};

} // namespace

QByteArray SerializeScript(Document& doc) {
    doc.Header.TextCount = int32_t(std::count_if(doc.Texts.begin() + 1, doc.Texts.end(),
                                                 [](const TextElement& t) { return inUse(t); }));
    doc.Header.ImageCount = int32_t(std::count_if(doc.Images.begin() + 1, doc.Images.end(),
                                                  [](const ImageElement& e) { return inUse(e); }));

    QByteArray out;
    out.reserve(RecordSize::Header + RecordSize::Profile + 8 * RecordSize::Tab +
                doc.Header.TextCount * RecordSize::Text +
                doc.Header.ImageCount * RecordSize::Image);
    out += EncodeHeader(doc.Header);
    out += EncodeProfile(doc.Profile);
    for (int i = 1; i <= 8; ++i)
        out += EncodeTab(doc.Tabs[i]);
    for (int i = 1; i <= MaxTexts; ++i)
        if (inUse(doc.Texts[i]))
            out += EncodeText(doc.Texts[i]);
    for (int i = 1; i <= MaxImages; ++i)
        if (inUse(doc.Images[i]))
            out += EncodeImage(doc.Images[i]);
    return out;
}

bool SaveScript(Document& doc, const QString& path) {
    if (!WriteFileAtomically(path, SerializeScript(doc)))
        return false;
    doc.ScriptPath = path;
    doc.Dirty = false;
    return true;
}

LoadReport LoadScriptBytes(Document& doc, QByteArrayView bytes) {
    LoadReport report;
    report.opened = true;
    report.fileSize = bytes.size();
    RecordCursor cursor(bytes);
    QByteArray rec;
    bool complete = false;

    bool all = true;
    if (cursor.next(RecordSize::Header, rec, complete))
        DecodeHeader(rec, doc.Header);
    all = all && complete;
    if (all && cursor.next(RecordSize::Profile, rec, complete))
        DecodeProfile(rec, doc.Profile);
    all = all && complete;
    for (int i = 1; i <= 8 && all && cursor.next(RecordSize::Tab, rec, complete); ++i) {
        DecodeTab(rec, doc.Tabs[i]);
        ++report.tabsRead;
        all = complete;
    }
    all = all && report.tabsRead == 8;
    doc.Tabs[8].Name = "Slide Show";

    // The counts come from the file and may be anything: never past the tables, and a
    // negative count reads nothing.
    const int texts = std::clamp<int32_t>(doc.Header.TextCount, 0, MaxTexts);
    const int images = std::clamp<int32_t>(doc.Header.ImageCount, 0, MaxImages);
    for (int i = 1; i <= texts && all && cursor.next(RecordSize::Text, rec, complete); ++i) {
        DecodeText(rec, doc.Texts[i]);
        ++report.textsRead;
        all = complete;
    }
    all = all && report.textsRead == texts;
    for (int i = 1; i <= images && all && cursor.next(RecordSize::Image, rec, complete); ++i) {
        DecodeImage(rec, doc.Images[i]);
        ++report.imagesRead;
        all = complete;
    }
    report.complete = all && report.imagesRead == images && texts == doc.Header.TextCount &&
                      images == doc.Header.ImageCount;
    return report;
}

LoadReport LoadScript(Document& doc, const QString& path) {
    LoadReport report;
    if (!IsRegularFile(path))
        return report;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return report;
    // A project is never larger than full tables; whatever follows is not read.
    const QByteArray bytes = file.read(kMaxProjectSize);
    report = LoadScriptBytes(doc, bytes);
    report.fileSize = file.size();
    doc.ScriptPath = path;
    return report;
}

} // namespace zentor
