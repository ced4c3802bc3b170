#include "site/template.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "platform/dialogs.h"
#include "site/outputs.h"
#include "site/transforms.h"
#include "text/ansi.h"
#include "text/numbers.h"

#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QtEndian>
#include <algorithm>

namespace {

constexpr char kMagic[] = "KPF";
constexpr char kEmptyBody[1] = {'\0'};

// Cuts a fixed record into its fields, front to back.
class RecordReader {
public:
    explicit RecordReader(const QByteArray& record) : rest(record) {}

    QString Text(qsizetype size) { return FromAnsi(Next(size)); }
    int Byte() { return quint8(Next(1).front()); }
    int Int16() { return qFromLittleEndian<qint16>(Next(2).data()); }
    qint32 Int32() { return qFromLittleEndian<qint32>(Next(4).data()); }
    void Skip(qsizetype size) { Next(size); }

private:
    QByteArrayView Next(qsizetype size) {
        const QByteArrayView field = rest.first(size);
        rest = rest.sliced(size);
        return field;
    }

    QByteArrayView rest;
};

TemplateHeaderRecord ReadHeader(const QByteArray& record) {
    RecordReader fields(record);
    TemplateHeaderRecord header;
    header.Magic = fields.Text(3);
    header.Tag = fields.Text(4);
    header.Name = fields.Text(50);
    header.Description = fields.Text(497);
    header.Scrambled = fields.Byte();
    header.MaxEmph1 = fields.Byte();
    header.MaxEmph2 = fields.Byte();
    fields.Skip(2);
    header.SectionCount = fields.Int16();
    return header;
}

TemplateSectionRecord ReadSection(const QByteArray& record) {
    RecordReader fields(record);
    TemplateSectionRecord section;
    fields.Skip(4);
    section.Name = fields.Text(25);
    section.Position = fields.Int32();
    section.LastIndex = fields.Int32();
    section.Kind = fields.Int16();
    section.Params = fields.Text(200);
    return section;
}

bool RefuseTemplate(const QString& text) {
    MsgBox(text, BoxIcon::Warning, AppName);
    return false;
}

bool RefuseDamagedTemplate() {
    return RefuseTemplate("Se ha producido un error al abrir la plantilla de diseño");
}

bool HasBody(const TemplateSectionRecord& section) {
    return section.LastIndex != -1;
}

// Whether every body lies within the file, and together they are a sane amount of memory.
bool BodiesFit(const TemplateContent& design, qint64 fileSize) {
    qint64 total = 0;
    for (int i = 0; i < design.Header.SectionCount; ++i) {
        const TemplateSectionRecord& section = design.Sections[i];
        if (!HasBody(section)) {
            continue;
        }
        const qint64 size = qint64(section.LastIndex) + 1;
        if (size < 1 || section.Position < 1 || section.Position - 1 + size > fileSize) {
            return false;
        }
        total += size;
    }
    return total <= kMaxBodies;
}

void Complement(QByteArray& bytes) {
    std::transform(bytes.cbegin(), bytes.cend(), bytes.begin(), [](char byte) { return ~byte; });
}

int LengthParam(const QString& params, const QString& key) {
    return qMax<int>(LeadingInteger(GetParam(params, key)), 0);
}

} // namespace

TemplateHeaderRecord TemplateHeader;
SectionTable TemplateSections;
std::array<QByteArray, kMaxSections> SectionBodies;
std::vector<int> ImageSections;

TemplateContent::TemplateContent() {
    Bodies.fill(QByteArray(kEmptyBody, sizeof kEmptyBody));
}

void ResetTemplateState() {
    UseTemplate({});
    ClearOutputFiles();
}

bool LoadTemplateHeader(QIODevice& file, TemplateContent& design) {
    const QByteArray record = file.read(kHeaderSize);
    if (record.size() == kHeaderSize) {
        design.Header = ReadHeader(record);
    }
    if (design.Header.Magic != QLatin1StringView(kMagic)) {
        return RefuseTemplate("Error: no se reconoce el formato de la plantilla seleccionada");
    }
    return true;
}

bool LoadTemplateSections(QIODevice& file, TemplateContent& design) {
    const int count = design.Header.SectionCount;
    if (count < 0 || count > kMaxSections) {
        return RefuseDamagedTemplate();
    }
    const QByteArray table = file.read(qint64(count) * kSectionSize);
    if (table.size() != qsizetype(count) * kSectionSize) {
        return RefuseDamagedTemplate();
    }
    for (int i = 0; i < count; ++i) {
        design.Sections[i] = ReadSection(table.mid(qsizetype(i) * kSectionSize, kSectionSize));
    }
    return true;
}

bool LoadTemplateBodies(QIODevice& file, TemplateContent& design) {
    if (!BodiesFit(design, file.size())) {
        return RefuseDamagedTemplate();
    }
    for (int i = 0; i < design.Header.SectionCount; ++i) {
        const TemplateSectionRecord& section = design.Sections[i];
        if (!HasBody(section)) {
            continue;
        }
        const qint64 size = qint64(section.LastIndex) + 1;
        QByteArray body;
        if (file.seek(section.Position - 1)) {
            body = file.read(size);
        }
        if (body.size() != size) {
            return RefuseDamagedTemplate();
        }
        if (design.Header.Scrambled == 1) {
            Complement(body);
        }
        design.Bodies[i] = body;
    }
    return true;
}

bool ReadTemplate(QIODevice& file, TemplateContent& design) {
    return LoadTemplateHeader(file, design) && LoadTemplateSections(file, design) &&
           LoadTemplateBodies(file, design);
}

bool ReadTemplateFile(const QString& path, TemplateContent& design) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? ReadTemplate(file, design) : RefuseDamagedTemplate();
}

void UseTemplate(TemplateContent design) {
    TemplateHeader = std::move(design.Header);
    TemplateSections = std::move(design.Sections);
    SectionBodies = std::move(design.Bodies);
    ImageSections.clear();
}

bool LoadTemplateFile(const QString& path) {
    ResetTemplateState();
    TemplateContent design;
    if (!ReadTemplateFile(path, design)) {
        return false;
    }
    UseTemplate(std::move(design));
    return true;
}

void RenameSection(int section, const QString& name) {
    TemplateSections.at(section).Name = name;
}

int FindSection(int kind, const SectionTable& table) {
    for (int i = 0; i < kMaxSections; ++i) {
        if (table[i].Kind == kind) {
            return i;
        }
    }
    return kNoSection;
}

std::vector<int> FindSections(int kind) {
    std::vector<int> found{kNoSection};
    for (int i = 0; i < kMaxSections; ++i) {
        if (TemplateSections[i].Kind == kind) {
            found[0] = i;
            ++i;
        }
    }
    return found;
}

std::vector<int> AllSections(int kind, const SectionTable& table) {
    std::vector<int> found;
    for (int i = 0; i < kMaxSections; ++i) {
        if (table[i].Kind == kind) {
            found.push_back(i);
        }
    }
    return found;
}

SectionParts SplitSectionBody(int section) {
    if (section < 0 || section >= kMaxSections) {
        return {};
    }
    const QByteArray& body = SectionBodies[section];
    const QString& params = TemplateSections[section].Params;
    const int head = LengthParam(params, "START");
    const int middle = LengthParam(params, "MIDDLE");
    const int tail = LengthParam(params, "END");
    return {body.mid(0, head), body.mid(head, middle), body.mid(head + middle, tail)};
}

void IndexImageSections() {
    ImageSections = AllSections(kKindProductPicture);
    if (ImageSections.empty()) {
        ImageSections.push_back(kNoSection);
    }
}

void CopyCustomFiles() {
    const QString names = GetParam(TemplateHeader.Description, "CUSTOMFILES");
    if (names.isEmpty()) {
        return;
    }
    for (const QString& element : SplitFields(names, ",")) {
        const QString name = TrimBlanks(element);
        const QString path = DBpath + name;
        if (!IsPlainFileName(name) || !QFileInfo(path).isFile() || IsCatalogueFile(path)) {
            continue;
        }
        QFile file(path);
        if (file.open(QIODevice::ReadOnly) && file.size() > 0) {
            AddOutputFile(
                {.Name = name, .Lang = {}, .Md5 = {}, .SendNow = false, .Data = file.readAll()});
        }
    }
}
