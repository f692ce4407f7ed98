#include "export/PdfJoin.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QHash>

#include <algorithm>
#include <array>
#include <climits>
#include <functional>
#include <map>

namespace zentor {
namespace {

struct PdfObject {
    QByteArray head; // the dictionary or value, up to and with "stream" and its line end
    QByteArray body; // a stream's bytes and "endstream", or nothing; copied as they are
};

struct PdfPart {
    std::map<int, PdfObject> objects;
    int root = 0;
    int info = 0;
    int pages = 0;
    std::vector<int> kids;
};

// Qt's views have no clamping `mid`.
QByteArrayView Mid(QByteArrayView b, qsizetype at, qsizetype n = -1) {
    at = std::clamp<qsizetype>(at, 0, b.size());
    n = n < 0 ? b.size() - at : std::min(n, b.size() - at);
    return b.sliced(at, n);
}

bool IsSpace(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t' || c == '\f' || c == '\0';
}

bool IsDelimiter(char c) {
    return IsSpace(c) || QByteArrayView("()<>[]{}/%").contains(c);
}

// A whole number at `at` (after blanks); `at` moves past it. -1 when there is none.
qint64 ReadNumber(QByteArrayView b, qsizetype& at) {
    while (at < b.size() && IsSpace(b[at]))
        ++at;
    qint64 n = -1;
    while (at < b.size() && b[at] >= '0' && b[at] <= '9' && n < (qint64(1) << 40))
        n = (n < 0 ? 0 : n * 10) + (b[at++] - '0');
    return n;
}

// `head` with every indirect reference "N G R" outside strings replaced by what `ref`
// makes of N.
QByteArray MapReferences(QByteArrayView head, const std::function<QByteArray(int)>& ref) {
    QByteArray out;
    out.reserve(head.size() + 16);
    qsizetype i = 0;
    while (i < head.size()) {
        const char c = head[i];
        if (c == '(') { // a literal string: nested brackets, backslash escapes
            const qsizetype start = i++;
            for (int depth = 1; i < head.size() && depth > 0; ++i) {
                if (head[i] == '\\')
                    ++i;
                else if (head[i] == '(')
                    ++depth;
                else if (head[i] == ')')
                    --depth;
            }
            out += Mid(head, start, std::min(i, head.size()) - start);
            continue;
        }
        if (c == '<' && i + 1 < head.size() && head[i + 1] == '<') { // a dictionary
            out += "<<";
            i += 2;
            continue;
        }
        if (c == '<') { // a hex string
            const qsizetype end = head.indexOf('>', i);
            const qsizetype stop = end < 0 ? head.size() : end + 1;
            out += Mid(head, i, stop - i);
            i = stop;
            continue;
        }
        if (c >= '0' && c <= '9' && (i == 0 || IsDelimiter(head[i - 1]))) {
            qsizetype at = i;
            const qint64 number = ReadNumber(head, at);
            qsizetype after = at;
            const qint64 generation = ReadNumber(head, after);
            while (after < head.size() && IsSpace(head[after]))
                ++after;
            if (generation >= 0 && at < head.size() && IsSpace(head[at]) && after < head.size() &&
                head[after] == 'R' && (after + 1 == head.size() || IsDelimiter(head[after + 1])) &&
                number <= INT_MAX) {
                out += ref(int(number)) + " 0 R";
                i = after + 1;
                continue;
            }
            out += Mid(head, i, at - i);
            i = at;
            continue;
        }
        out += c;
        ++i;
    }
    return out;
}

std::vector<int> References(QByteArrayView b) {
    std::vector<int> found;
    MapReferences(b, [&](int n) {
        found.push_back(n);
        return QByteArray();
    });
    return found;
}

// The first reference after `key` in `dict`, 0 when there is none.
int ReferenceAfter(QByteArrayView dict, QByteArrayView key) {
    const qsizetype at = dict.indexOf(key);
    if (at < 0)
        return 0;
    const std::vector<int> refs = References(Mid(dict, at + key.size()));
    return refs.empty() ? 0 : refs.front();
}

bool ReadPart(const QByteArray& pdf, PdfPart& part) {
    const qsizetype startxref = pdf.lastIndexOf("startxref");
    if (startxref < 0)
        return false;
    qsizetype at = startxref + 9;
    const qint64 xref = ReadNumber(pdf, at);
    if (xref <= 0 || xref >= startxref || !Mid(pdf, xref).startsWith("xref"))
        return false;
    at = xref + 4;
    const qint64 first = ReadNumber(pdf, at);
    const qint64 count = ReadNumber(pdf, at);
    while (at < pdf.size() && IsSpace(pdf[at]))
        ++at;
    if (first != 0 || count < 1 || at + count * 20 > startxref)
        return false;
    std::map<qint64, int> byOffset; // offset -> object number
    for (int i = 0; i < count; ++i, at += 20) {
        if (pdf[at + 17] != 'n')
            continue;
        qsizetype o = at;
        byOffset[ReadNumber(pdf, o)] = i;
    }
    const QByteArrayView trailer = Mid(pdf, at, startxref - at);
    part.root = ReferenceAfter(trailer, "/Root");
    part.info = ReferenceAfter(trailer, "/Info");
    for (auto it = byOffset.begin(); it != byOffset.end(); ++it) {
        const auto next = std::next(it);
        const qint64 end = next == byOffset.end() ? xref : next->first;
        if (it->first <= 0 || end <= it->first)
            return false;
        QByteArrayView bytes = Mid(pdf, it->first, end - it->first);
        const QByteArray header = QByteArray::number(it->second) + " 0 obj";
        if (!bytes.startsWith(header))
            return false;
        bytes = Mid(bytes, header.size());
        PdfObject obj;
        qsizetype stream = bytes.indexOf("stream");
        while (stream > 0 && bytes[stream - 1] == 'd') // "endstream" in a value: look on
            stream = bytes.indexOf("stream", stream + 6);
        if (stream >= 0) {
            qsizetype body = stream + 6;
            if (body < bytes.size() && bytes[body] == '\r')
                ++body;
            if (body < bytes.size() && bytes[body] == '\n')
                ++body;
            obj.head = bytes.first(body).toByteArray();
            obj.body = Mid(bytes, body).toByteArray();
        } else {
            obj.head = bytes.toByteArray();
        }
        part.objects[it->second] = std::move(obj);
    }
    const auto root = part.objects.find(part.root);
    if (root == part.objects.end())
        return false;
    part.pages = ReferenceAfter(root->second.head, "/Pages");
    const auto pages = part.objects.find(part.pages);
    if (pages == part.objects.end())
        return false;
    const QByteArrayView tree = pages->second.head;
    const qsizetype kids = tree.indexOf("/Kids");
    const qsizetype close = kids < 0 ? -1 : tree.indexOf(']', kids);
    if (close < 0)
        return false;
    part.kids = References(Mid(tree, kids, close - kids));
    return !part.kids.empty();
}

// A name for a picture and everything it refers to, the same for the same bytes whatever
// the objects are numbered.
QByteArray Fingerprint(const PdfPart& part, int number, int depth = 0) {
    const auto it = part.objects.find(number);
    if (it == part.objects.end() || depth > 4)
        return QByteArray::number(number) + '?';
    const QByteArray head = MapReferences(
        it->second.head, [&](int n) { return '<' + Fingerprint(part, n, depth + 1) + '>'; });
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(head);
    hash.addData(it->second.body);
    return hash.result().toHex();
}

bool IsPicture(const PdfObject& obj) {
    return !obj.body.isEmpty() && obj.head.contains("/Subtype /Image");
}

// The entries of a resource dictionary as QPdfWriter writes it ("/Font <<" then one "/Name
// value" a line, ">>"), added to `merged` (kind -> name -> value; the first of a name
// stays). False when it is not in that shape.
bool MergeResources(QByteArrayView dict,
                    std::map<QByteArray, std::map<QByteArray, QByteArray>>& merged) {
    std::map<QByteArray, QByteArray>* kind = nullptr;
    for (QByteArrayView line : QByteArrayView(dict).toByteArray().split('\n')) {
        line = line.trimmed();
        if (line.isEmpty() || line == "<<" || line == "endobj")
            continue;
        if (line == ">>") {
            kind = nullptr;
            continue;
        }
        if (!line.startsWith('/'))
            return false;
        const qsizetype space = line.indexOf(' ');
        if (space < 0)
            return false;
        const QByteArray key = line.first(space).toByteArray();
        const QByteArrayView value = line.sliced(space + 1).trimmed();
        if (value == "<<")
            kind = &merged[key];
        else if (kind)
            kind->emplace(key, value.toByteArray());
        else
            return false;
    }
    return true;
}

QByteArray StreamObject(QByteArrayView content) {
    return "\n<<\n/Length " + QByteArray::number(content.size()) + "\n>>\nstream\n" +
           content.toByteArray() + "endstream\nendobj\n";
}

// The page object that lays part `part`'s pages one over another: their contents in order,
// each inside its own saved graphics state (every page of QPdfWriter starts by setting up
// its own coordinates), the unread layer inside an empty actual text; their resources,
// links and the first page's media box. `number` renumbers the part's objects; `shared`
// numbers the five small streams that go between the layers. Empty when the pages are not
// as QPdfWriter writes them.
QByteArray LayeredPage(const PdfPart& part, const PdfLayers& layers,
                       const std::function<int(int)>& number, int shared) {
    const auto head = [&](int n) -> QByteArrayView {
        const auto it = part.objects.find(n);
        return it == part.objects.end() ? QByteArrayView() : QByteArrayView(it->second.head);
    };
    const auto ref = [&](int n) { return QByteArray::number(n) + " 0 R"; };
    const auto mapped = [&](QByteArrayView h) {
        return MapReferences(h, [&](int n) { return QByteArray::number(number(n)); });
    };
    std::map<QByteArray, std::map<QByteArray, QByteArray>> resources;
    QByteArray contents, annots;
    for (size_t i = 0; i < part.kids.size(); ++i) {
        const QByteArrayView page = head(part.kids[i]);
        const int content = ReferenceAfter(page, "/Contents");
        if (page.isEmpty() || content == 0 ||
            !MergeResources(mapped(head(ReferenceAfter(page, "/Resources"))), resources))
            return QByteArray();
        contents += ' ' + ref(shared + (i == 0 ? 0 : 1));
        if (int(i) == layers.UnreadLayer)
            contents += ' ' + ref(shared + 2);
        contents += ' ' + ref(number(content));
        if (int(i) == layers.UnreadLayer)
            contents += ' ' + ref(shared + 3);
        for (int link : References(head(ReferenceAfter(page, "/Annots"))))
            annots += ' ' + ref(number(link));
    }
    contents += ' ' + ref(shared + 4);
    const QByteArrayView first = head(part.kids.front());
    const qsizetype box = first.indexOf("/MediaBox");
    const qsizetype boxEnd = box < 0 ? -1 : first.indexOf(']', box);
    if (boxEnd < 0)
        return QByteArray();
    QByteArray dict;
    for (const auto& [kind, entries] : resources) {
        dict += kind + " <<\n";
        for (const auto& [name, value] : entries)
            dict += name + ' ' + value + '\n';
        dict += ">>\n";
    }
    return "\n<<\n/Type /Page\n/Parent 3 0 R\n/Contents [" + contents + " ]\n/Resources <<\n" +
           dict + ">>\n/Annots [" + annots + " ]\n" +
           first.sliced(box, boxEnd + 1 - box).toByteArray() + "\n>>";
}

// What goes between the layers: before the first, between two, around the unread one,
// after the last.
const std::array<QByteArrayView, 5> LayerSeams = {
    "q\n", "Q\nq\n", "/Span << /ActualText () >> BDC\n", "EMC\n", "Q\n"};

} // namespace

QByteArray PdfTextString(const QString& s) {
    QByteArray hex = "<FEFF";
    for (const QChar c : s)
        hex += QByteArray::number(c.unicode() | 0x10000, 16).mid(1).toUpper();
    return hex + '>';
}

QByteArray JoinPdfs(const std::vector<QByteArray>& parts, const PdfDocumentInfo& info,
                    const std::map<size_t, PdfLayers>& layered) {
    std::vector<PdfPart> read(parts.size());
    for (size_t k = 0; k < parts.size(); ++k)
        if (!ReadPart(parts[k], read[k]))
            return QByteArray();

    // New numbers: 1 the information, 2 the catalogue, 3 the page tree, then each part's
    // objects after the previous part's.
    constexpr int InfoObject = 1, RootObject = 2, PagesObject = 3;
    std::vector<QHash<int, int>> renumber(read.size());
    std::vector<QHash<int, bool>> skip(read.size());
    QHash<QByteArray, int> pictures; // fingerprint -> new number
    int base = PagesObject;
    for (size_t k = 0; k < read.size(); ++k) {
        const PdfPart& part = read[k];
        for (const auto& [number, obj] : part.objects) {
            renumber[k][number] = base + number;
            if (number == part.root || number == part.info || number == part.pages) {
                skip[k][number] = true;
            } else if (IsPicture(obj)) {
                const QByteArray print = Fingerprint(part, number);
                const auto seen = pictures.constFind(print);
                if (seen != pictures.constEnd()) {
                    renumber[k][number] = *seen;
                    skip[k][number] = true;
                } else {
                    pictures.insert(print, base + number);
                }
            }
        }
        renumber[k][part.pages] = PagesObject;
        if (layered.count(k)) {
            // One page stands for all of them, its resources and links written into it.
            for (size_t i = 0; i < part.kids.size(); ++i) {
                const QByteArrayView page = part.objects.at(part.kids[i]).head;
                skip[k][ReferenceAfter(page, "/Resources")] = true;
                skip[k][ReferenceAfter(page, "/Annots")] = true;
                if (i > 0)
                    skip[k][part.kids[i]] = true;
            }
        }
        base += part.objects.rbegin()->first;
    }
    const int seams = base + 1; // the streams between layers, when there are layers
    const int size = seams + (layered.empty() ? 0 : int(LayerSeams.size()));

    QByteArray out = "%PDF-1.4\n%\xe2\xe3\xcf\xd3\n";
    std::vector<qsizetype> offsets(size_t(size), 0);
    const auto write = [&](int number, const QByteArray& head, const QByteArray& body) {
        offsets[size_t(number)] = out.size();
        out += QByteArray::number(number) + " 0 obj" + head + body;
        if (body.isEmpty() && !head.contains("endobj"))
            out += "\nendobj\n";
    };
    const QString date = QDateTime::currentDateTimeUtc().toString("yyyyMMddHHmmss");
    write(InfoObject,
          "\n<<\n/Title " + PdfTextString(info.Title) + "\n/Author " + PdfTextString(info.Author) +
              "\n/Creator " + PdfTextString(info.Creator) + "\n/Producer " +
              PdfTextString(info.Producer) + "\n/CreationDate (D:" + date.toLatin1() + "Z)\n>>",
          {});
    write(RootObject, "\n<<\n/Type /Catalog\n/Pages 3 0 R\n>>", {});
    QByteArray kids;
    int pageCount = 0;
    for (size_t k = 0; k < read.size(); ++k)
        for (int kid : read[k].kids) {
            kids += ' ' + QByteArray::number(renumber[k].value(kid)) + " 0 R";
            ++pageCount;
            if (layered.count(k))
                break;
        }
    write(PagesObject,
          "\n<<\n/Type /Pages\n/Kids [" + kids + " ]\n/Count " + QByteArray::number(pageCount) +
              "\n>>",
          {});
    for (size_t k = 0; k < read.size(); ++k) {
        const QHash<int, int>& map = renumber[k];
        const auto layers = layered.find(k);
        for (const auto& [number, obj] : read[k].objects) {
            if (skip[k].value(number))
                continue;
            if (layers != layered.end() && number == read[k].kids.front()) {
                const QByteArray page = LayeredPage(
                    read[k], layers->second, [&](int n) { return map.value(n, 0); }, seams);
                if (page.isEmpty())
                    return QByteArray();
                write(map.value(number), page, {});
                continue;
            }
            // A reference to an object the part lacks stays dangling, as it was.
            write(
                map.value(number),
                MapReferences(obj.head, [&](int n) { return QByteArray::number(map.value(n, 0)); }),
                obj.body);
        }
    }

    for (size_t i = 0; !layered.empty() && i < LayerSeams.size(); ++i)
        write(seams + int(i), StreamObject(LayerSeams[i]), {});

    const qsizetype xref = out.size();
    out += "xref\n0 " + QByteArray::number(size) + '\n';
    for (int i = 0; i < size; ++i) {
        if (offsets[size_t(i)] == 0)
            out += "0000000000 65535 f \n";
        else
            out += QByteArray::number(offsets[size_t(i)]).rightJustified(10, '0') + " 00000 n \n";
    }
    out += "trailer\n<<\n/Size " + QByteArray::number(size) + "\n/Info 1 0 R\n/Root 2 0 R\n>>\n";
    out += "startxref\n" + QByteArray::number(xref) + "\n%%EOF\n";
    return out;
}

} // namespace zentor
