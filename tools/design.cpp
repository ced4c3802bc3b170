#include "tools/design.h"

#include "site/transforms.h"
#include "text/ansi.h"
#include "tools/wordtable.h"

#include <QFileInfo>
#include <algorithm>

namespace {

constexpr char kItemMark[] = "<!--ITEM-->";
constexpr char kItemEndMark[] = "<!--/ITEM-->";

const QStringList kBodyKeys{"file", "text", "head", "middle", "tail", "words"};
const QStringList kTextExtensions{"html", "htm", "js", "css", "txt"};

QStringList NamesIn(const QString& list) {
    QStringList names;
    for (const QString& name : list.split(',')) {
        if (!name.trimmed().isEmpty()) {
            names += name.trimmed();
        }
    }
    return names;
}

// A mark that stands alone on its line stands for the whole line.
struct MarkRange {
    qsizetype start;
    qsizetype end;
};

MarkRange RangeOf(const QString& text, const QString& mark) {
    MarkRange range{text.indexOf(mark), 0};
    range.end = range.start + mark.size();
    qsizetype lineStart = range.start;
    while (lineStart > 0 && text[lineStart - 1] == ' ') {
        --lineStart;
    }
    qsizetype lineEnd = range.end;
    while (lineEnd < text.size() && text[lineEnd] == ' ') {
        ++lineEnd;
    }
    const bool startsLine = lineStart == 0 || text[lineStart - 1] == '\n';
    const bool endsLine = lineEnd == text.size() || text[lineEnd] == '\r';
    if (startsLine && endsLine) {
        range.start = lineStart;
        range.end = qMin(lineEnd + 2, text.size());
    }
    return range;
}

class SectionReader {
public:
    SectionReader(const QString& newFolder, const ManifestPart& part, PackReport& newReport)
        : folder(newFolder), report(newReport) {
        section.source = part;
    }

    // False, with errors, where the section can't be made.
    bool Read() {
        const ManifestPart& source = section.source;
        section.kind = FindDesignKind(source.Text("kind"));
        if (section.kind == nullptr) {
            report.Error(source.Place("kind"),
                         source.Has("kind")
                             ? "tipo de sección desconocido: «" + source.Text("kind") + "»"
                             : "falta el tipo de la sección (kind)");
            return false;
        }
        section.name = source.Text("name");
        section.params = source.Text("params");
        if (!section.params.isEmpty() && !section.params.endsWith(';')) {
            section.params += ';';
        }
        ReadBody();
        return true;
    }

    DesignSection section;

private:
    void ReadBody() {
        const ManifestPart& source = section.source;
        const bool inPieces = source.Has("head") || source.Has("middle") || source.Has("tail");
        if (source.Has("words")) {
            ReadWords();
        } else if (section.kind->body == BodyUse::List && inPieces) {
            ReadPieces();
        } else if (source.Has("file") || source.Has("text")) {
            ReadWhole();
        } else if (section.kind->body != BodyUse::None) {
            report.Error(source.Place("kind"),
                         "la sección no tiene contenido (file, text o words)");
        }
        CheckBodyKeys(inPieces);
    }

    void CheckBodyKeys(bool inPieces) {
        const ManifestPart& source = section.source;
        const int sources = int(inPieces) + int(source.Has("file")) + int(source.Has("text")) +
                            int(source.Has("words"));
        if (sources > 1) {
            report.Error(source.Place("kind"), "la sección tiene más de un contenido");
        }
        if (source.Has("words") && section.kind->number != kKindLanguages) {
            report.Error(source.Place("words"), "solo una sección «words» tiene tabla de palabras");
        }
        if (inPieces && section.kind->body != BodyUse::List) {
            report.Error(source.Place("kind"), "solo las listas tienen head, middle y tail");
        }
    }

    void ReadWords() {
        const SourcePlace place = section.source.Place("words");
        section.text = ReadSourceText(folder, section.source.Text("words"), place, report);
        const WordSection words = ReadWordTable(section.text, place, report);
        section.name = words.languages;
        section.body = ToAnsi(words.body);
    }

    void ReadPieces() {
        std::array<QString, 3> pieces;
        const std::array<QString, 3> keys{"head", "middle", "tail"};
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (section.source.Has(keys[i])) {
                const SourceText text = ReadSourceText(folder, section.source.Text(keys[i]),
                                                       section.source.Place(keys[i]), report);
                pieces[i] = JoinLines(text);
                section.text.lines.insert(section.text.lines.end(), text.lines.begin(),
                                          text.lines.end());
            }
        }
        SetPieces(pieces[0], pieces[1], pieces[2]);
    }

    void ReadWhole() {
        const ManifestPart& source = section.source;
        const QString file = source.Text("file");
        if (section.kind->number == kKindCopiedFile && section.name.isEmpty()) {
            section.name = QFileInfo(file).fileName();
        }
        if (source.Has("text")) {
            section.text = TextFromManifest(source.Lines("text"), source.Place("text"), report);
        } else if (IsRaw(file)) {
            section.body =
                ReadSourceBytes(folder, file, source.Place("file"), report).value_or(QByteArray());
            return;
        } else {
            section.text = ReadSourceText(folder, file, source.Place("file"), report);
        }
        const QString joined = JoinLines(section.text);
        if (section.kind->body == BodyUse::List && !section.params.contains("START=")) {
            SplitAtMarks(joined);
        } else {
            section.body = ToAnsi(joined);
        }
    }

    bool IsRaw(const QString& file) const {
        const bool isText = kTextExtensions.contains(QFileInfo(file).suffix().toLower());
        return section.source.IsYes("raw") || section.kind->body == BodyUse::Picture ||
               (section.kind->body == BodyUse::File && !isText);
    }

    void SplitAtMarks(const QString& text) {
        const SourcePlace place = section.source.Place("file");
        if (text.count(kItemMark) != 1 || text.count(kItemEndMark) != 1 ||
            text.indexOf(kItemMark) > text.indexOf(kItemEndMark)) {
            report.Error(place, QString("la lista necesita una marca %1 y después una marca %2")
                                    .arg(kItemMark, kItemEndMark));
            return;
        }
        const MarkRange item = RangeOf(text, kItemMark);
        const MarkRange itemEnd = RangeOf(text, kItemEndMark);
        SetPieces(text.left(item.start), text.mid(item.end, itemEnd.start - item.end),
                  text.mid(itemEnd.end));
    }

    void SetPieces(const QString& head, const QString& middle, const QString& tail) {
        for (const QString& piece : {head, middle, tail}) {
            if (piece.size() > std::numeric_limits<qint16>::max()) {
                report.Error(section.source.Place("kind"),
                             "una pieza de la lista pasa de 32767 caracteres");
            }
        }
        section.params = QString("START=%1;MIDDLE=%2;END=%3;")
                             .arg(head.size())
                             .arg(middle.size())
                             .arg(tail.size()) +
                         section.params;
        section.body = ToAnsi(head + middle + tail);
    }

    QString folder;
    PackReport& report;
};

int ReadLimit(const ManifestPart& header, const QString& key, PackReport& report) {
    if (!header.Has(key)) {
        return 0;
    }
    bool isNumber = false;
    const int limit = header.Text(key).toInt(&isNumber);
    if (!isNumber || limit < 0 || limit > 255) {
        report.Error(header.Place(key), "«" + key + "» debe ser un número de 0 a 255");
    }
    return limit;
}

} // namespace

bool DesignSection::IsPerLanguage() const {
    const QString extension = QFileInfo(name).suffix().toLower();
    const bool copied = kind->number == kKindCopiedFile;
    return copied ? extension == "html" || extension == "js" : kind->perLanguage;
}

bool DesignSection::IsFinished() const {
    const QString extension = QFileInfo(name).suffix().toLower();
    return extension == "html" || extension == "js" || extension == "css";
}

const DesignSection* Design::Find(int kind) const {
    const auto found = std::find_if(sections.begin(), sections.end(), [kind](const auto& section) {
        return section.kind->number == kind;
    });
    return found == sections.end() ? nullptr : &*found;
}

Design ReadDesign(const QString& folder, PackReport& report) {
    const DesignManifest manifest = ReadManifest(folder, report);
    Design design;
    design.source = manifest.header;
    design.name = manifest.header.Text("name");
    design.description = manifest.header.Text("description");
    design.customFiles = NamesIn(manifest.header.Text("customfiles"));
    if (!design.customFiles.isEmpty()) {
        design.description += " CUSTOMFILES=" + design.customFiles.join(',') + ";";
    }
    design.textNames = NamesIn(manifest.header.Text("texts"));
    design.maxEmph1 = ReadLimit(manifest.header, "maxemph1", report);
    design.maxEmph2 = ReadLimit(manifest.header, "maxemph2", report);
    design.scrambled = manifest.header.IsYes("scrambled");
    for (const ManifestPart& part : manifest.sections) {
        SectionReader reader(folder, part, report);
        if (reader.Read()) {
            design.sections.push_back(std::move(reader.section));
        }
    }
    return design;
}
