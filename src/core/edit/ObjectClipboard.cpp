#include "edit/ObjectClipboard.h"

#include "edit/DragGeometry.h"
#include "edit/ObjectList.h"
#include "io/RecordCodec.h"
#include "model/TabMap.h"

namespace zentor {

namespace {

constexpr char Tag[] = "VZOBJ1";
constexpr int TagSize = int(sizeof(Tag)) - 1;
constexpr int PasteOffset = 10;

// Whether an object of the table already sits at (left, top) on `tab`.
template <class Table> bool Occupied(const Table& table, int tab, int left, int top) {
    for (size_t i = 1; i < table.size(); ++i)
        if (table[i].TabNo == tab && table[i].Left == left && table[i].Top == top)
            return true;
    return false;
}

// Places a pasted element: offset from its old place until that place is free on the page.
template <class E, class Table>
void PlacePasted(E& e, const Table& table, int tab, int frameW, int frameH) {
    IntRect r{e.Left, e.Top, e.Width, e.Height};
    // A few steps at most: past that the copies would leave the page anyway.
    for (int step = 0; step < 64; ++step) {
        r = MoveByDelta(r, PasteOffset, PasteOffset);
        MoveAdd(r, frameW, frameH);
        if (!Occupied(table, tab, r.Left, r.Top))
            break;
    }
    e.Left = r.Left, e.Top = r.Top, e.Width = r.Width, e.Height = r.Height;
}

// Decodes the record into `slot` of its table, placed and named as a new object of `tab`.
template <class Table, class E = typename Table::value_type>
void Put(Table& table, int slot, QByteArrayView record, void (*decode)(QByteArrayView, E&), int tab,
         const ScriptHeader& header, const char* namePrefix) {
    E e;
    decode(record, e);
    PlacePasted(e, table, tab, header.FrameWidth, header.FrameHeight);
    e.TabNo = tab;
    e.Name = QString::fromLatin1(namePrefix) + QString::number(slot);
    table[size_t(slot)] = e;
}

} // namespace

QByteArray CopyObject(const Document& doc, int kind, int slot) {
    QByteArray record;
    if (kind == KindImage && slot >= 1 && slot <= MaxImages && inUse(doc.Images[slot]))
        record = EncodeImage(doc.Images[slot]);
    else if (kind == KindText && slot >= 1 && slot <= MaxTexts && inUse(doc.Texts[slot]))
        record = EncodeText(doc.Texts[slot]);
    else
        return {};
    QByteArray clip(Tag, TagSize);
    clip.append(char(kind));
    return clip + record;
}

PasteResult PasteObject(Document& doc, QByteArrayView clip, int currentTab) {
    PasteResult result;
    if (currentTab < 1 || currentTab > 7)
        return result;
    result.outcome = PasteResult::Outcome::NotAnObject;
    if (clip.size() <= TagSize || clip.first(TagSize) != QByteArrayView(Tag, TagSize))
        return result;
    const int kind = clip[TagSize];
    const QByteArrayView record = clip.sliced(TagSize + 1);
    if ((kind == KindImage && record.size() != RecordSize::Image) ||
        (kind == KindText && record.size() != RecordSize::Text) ||
        (kind != KindImage && kind != KindText))
        return result;
    result.kind = kind;
    const int slot = GetArrNo(doc, kind);
    if (slot == 0) {
        result.outcome = PasteResult::Outcome::TableFull;
        return result;
    }
    if (kind == KindImage)
        Put(doc.Images, slot, record, DecodeImage, currentTab, doc.Header, "image ");
    else
        Put(doc.Texts, slot, record, DecodeText, currentTab, doc.Header, "text ");
    result.outcome = PasteResult::Outcome::Pasted;
    result.slot = slot;
    return result;
}

void RemoveObject(Document& doc, int kind, int slot) {
    if (kind == KindImage && slot >= 1 && slot <= MaxImages)
        doc.Images[slot] = doc.Images[0];
    else if (kind == KindText && slot >= 1 && slot <= MaxTexts)
        doc.Texts[slot] = doc.Texts[0];
}

QString TableFullText(int kind) {
    return kind == KindImage
               ? QStringLiteral("A résumé holds at most %1 images; delete one to make room.")
                     .arg(MaxImages)
               : QStringLiteral("A résumé holds at most %1 texts; delete one to make room.")
                     .arg(MaxTexts);
}

} // namespace zentor
