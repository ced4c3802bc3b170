#include "tools/designchecks.h"

#include "images/picturefile.h"
#include "site/outputs.h"
#include "site/transforms.h"
#include "text/ansi.h"
#include "tools/colorchecks.h"
#include "tools/paramchecks.h"

#include <QSet>
#include <algorithm>

namespace {

constexpr int kTitleSize = 50;
constexpr int kDescriptionSize = 497;
constexpr int kNameSize = 25;
constexpr int kParamsSize = 200;
constexpr int kSureNameSize = 60; // longer names are sent at every publication
constexpr int kLostIndex = 1;     // of the table: a home page there is never published

void CheckSize(const QString& text, int size, const SourcePlace& place, PackReport& report) {
    if (text.size() > size) {
        report.Error(place, QString("son %1 caracteres y caben %2").arg(text.size()).arg(size));
    }
}

void CheckHeader(const Design& design, PackReport& report) {
    const ManifestPart& header = design.source;
    if (design.name.isEmpty()) {
        report.Error(header.Place("name"), "el diseño no tiene nombre (name)");
    }
    CheckCharacters(design.description, header.Place("description"), report);
    CheckSize(design.name, kTitleSize, header.Place("name"), report);
    CheckSize(design.description, kDescriptionSize, header.Place("description"), report);
    if (GetParam(design.description, "CUSTOMFILES") != design.customFiles.join(',')) {
        report.Error(header.Place("description"), "la descripción no puede contener «CUSTOMFILES»");
    }
    if (design.maxEmph1 + design.maxEmph2 > 255) {
        report.Error(header.Place("maxemph2"), "la suma de maxemph1 y maxemph2 pasa de 255");
    }
    for (const QString& name : design.customFiles) {
        if (!IsPlainFileName(name)) {
            report.Error(header.Place("customfiles"), "«" + name + "» no es un nombre de fichero");
        } else if (name.size() > kSureNameSize) {
            report.Warning(header.Place("customfiles"),
                           "«" + name + "» pasa de 60 caracteres y se enviará siempre");
        }
    }
}

void CheckFileName(const Design& design, const DesignSection& section, PackReport& report) {
    const SourcePlace place = section.source.Place("name");
    const int kind = section.kind->number;
    if (!IsPlainFileName(section.name)) {
        report.Error(place, "«" + section.name + "» no puede ser el nombre de un fichero");
        return;
    }
    const DesignSection* words = design.Find(kKindLanguages);
    const bool severalLanguages = words == nullptr || words->name.contains('|');
    if (section.IsPerLanguage() && severalLanguages && !section.name.contains("%LID%")) {
        report.Warning(place, "sin %LID% en el nombre, cada idioma sobrescribe al anterior");
    }
    if (section.kind->perLanguage && !section.IsFinished()) {
        report.Warning(place, "las etiquetas solo se sustituyen en ficheros .html, .js y .css");
    }
    if (!section.IsPerLanguage() && kind != kKindLayoutPage && section.name.contains("%LID%")) {
        report.Warning(place, "%LID% no se sustituye en este nombre");
    }
    const bool ofProduct = kind == kKindProductPage || kind == kKindLayoutPage;
    if (ofProduct && !section.name.contains("%%PRID%%") &&
        !section.name.contains("%%PRODUCTID%%")) {
        report.Warning(place,
                       "sin %%PRID%% en el nombre, varios productos pueden compartir página");
    }
    const bool ofPicture = kind == kKindProductPicture || kind == kKindPicturePage;
    if (ofPicture && !section.name.contains("%%PICTUREID%%")) {
        report.Warning(place,
                       "sin %%PICTUREID%% en el nombre, cada foto sobrescribe a la anterior");
    }
    if (section.name.contains("%FK%")) {
        report.Warning(place, "con %FK% el nombre es distinto en cada idioma y puede pasar de 60 "
                              "caracteres: entonces se envía siempre");
    }
}

void CheckName(const Design& design, const DesignSection& section, PackReport& report) {
    const SourcePlace place = section.source.Place("name");
    CheckCharacters(section.name, place, report);
    CheckSize(section.name, kNameSize, place, report);
    if (section.kind->name == NameUse::None) {
        return;
    }
    if (section.name.isEmpty()) {
        report.Error(place, "falta el nombre de la sección (name)");
    } else if (section.kind->name == NameUse::File) {
        CheckFileName(design, section, report);
    }
}

void CheckPicture(const DesignSection& section, PackReport& report) {
    if (section.kind->body != BodyUse::Picture || section.body.isEmpty()) {
        return;
    }
    try {
        ReadPictureBytes(section.body, section.source.Text("file"));
    } catch (const PictureError& error) {
        report.Error(section.source.Place("file"), error.Text());
    }
}

void CheckWords(const Design& design, PackReport& report) {
    const DesignSection* section = design.Find(kKindLanguages);
    if (section == nullptr) {
        report.Warning({kManifestName, 0}, "el diseño no tiene palabras: %%ACONSULTAR%%, %SI% y "
                                           "%NO% quedarán en las páginas");
        return;
    }
    const SourcePlace place = section->source.Place("words");
    const QList<QByteArray> lists = section->body.split('|');
    const QList<QByteArray> tags = lists.first().split('#');
    const qsizetype languages = section->name.count('|') + 1;
    if (lists.size() - 1 != languages) {
        report.Error(
            place,
            QString("hay %1 idiomas y %2 listas de palabras").arg(languages).arg(lists.size() - 1));
    }
    for (const QByteArray& list : lists.mid(1)) {
        const qsizetype words = list.count('#') + 1;
        if (words > tags.size()) {
            report.Error(place, "un idioma tiene más palabras que etiquetas");
        } else if (words < tags.size()) {
            report.Warning(place, "un idioma tiene menos palabras que etiquetas");
        }
    }
    for (const char* tag : {"%%ACONSULTAR%%", "%SI%", "%NO%"}) {
        if (!tags.contains(tag)) {
            report.Warning(place, QString("falta la palabra de %1").arg(tag));
        }
    }
}

// Sections that are found by their kind alone: which of several counts.
void CheckRepeated(const Design& design, PackReport& report) {
    QSet<int> seen;
    for (const DesignSection& section : design.sections) {
        const int kind = section.kind->number;
        if (seen.contains(kind) && !section.kind->repeatable) {
            report.Warning(section.source.Place("kind"),
                           kind == kKindZoneBlock
                               ? "hay varias secciones «zone-block»: solo cuenta una de las últimas"
                               : QString("ya hay una sección «%1» y solo cuenta la primera")
                                     .arg(section.kind->word));
        }
        seen.insert(kind);
    }
}

// The files of the site that a section writes. Layout pages exist in previews only, and zone pages
// are named by their zone.
QStringList WrittenNames(const DesignSection& section, const QStringList& languages) {
    const int kind = section.kind->number;
    QStringList names;
    if (kind == kKindHomePage) {
        names = {"index.html", "index%LID%.html"};
    } else if (section.kind->name == NameUse::File && kind != kKindLayoutPage &&
               kind != kKindZonePage) {
        names = {section.name};
    }
    QStringList written;
    for (const QString& name : names) {
        const bool resolved = kind == kKindHomePage || section.IsFinished();
        for (const QString& language :
             section.IsPerLanguage() && resolved ? languages : QStringList("%LID%")) {
            written.append(QString(name).replace("%LID%", language));
        }
    }
    written.removeDuplicates();
    return written;
}

// Two sections that write one file: the later one is what the site gets.
void CheckSameNames(const Design& design, PackReport& report) {
    const DesignSection* words = design.Find(kKindLanguages);
    const QStringList languages =
        words == nullptr ? QStringList("%LID%") : SplitFields(words->name, "|");
    QSet<QString> seen;
    for (const DesignSection& section : design.sections) {
        if (!section.kind->repeatable && design.Find(section.kind->number) != &section) {
            continue;
        }
        const QStringList names = WrittenNames(section, languages);
        const auto twice = std::find_if(names.begin(), names.end(), [&seen](const QString& name) {
            return seen.contains(name);
        });
        if (twice != names.end()) {
            report.Warning(section.source.Place("name"),
                           "otra sección escribe también el fichero «" + *twice + "»");
        }
        seen.unite(QSet<QString>(names.begin(), names.end()));
    }
}

void CheckTogether(const Design& design, PackReport& report) {
    const SourcePlace whole{kManifestName, 0};
    const DesignSection* home = design.Find(kKindHomePage);
    if (home == nullptr) {
        report.Error(whole, "falta la página de inicio (home)");
    } else if (home - design.sections.data() == kLostIndex) {
        report.Warning(home->source.Place("kind"),
                       "la página de inicio no se publica si es la segunda sección");
    }
    const DesignSection* first = design.Find(kKindEmphasis1);
    const DesignSection* second = design.Find(kKindEmphasis2);
    if ((first == nullptr) != (second == nullptr)) {
        report.Warning((first != nullptr ? first : second)->source.Place("kind"),
                       "los destacados necesitan las dos secciones: emphasis1 y emphasis2");
    }
    const DesignSection* picturePage = design.Find(kKindPicturePage);
    if (picturePage != nullptr && design.Find(kKindPictureBlock) == nullptr) {
        report.Warning(picturePage->source.Place("kind"),
                       "sin sección «pictures» no se hace ninguna página de foto");
    }
    if (design.Find(kKindPreview) == nullptr) {
        report.Warning(whole, "el diseño no tiene vista previa (preview)");
    }
}

void CheckTotals(const Design& design, PackReport& report) {
    if (design.sections.size() > std::size_t(kMaxSections)) {
        report.Error(
            design.sections[kMaxSections].source.Place("kind"),
            QString("hay %1 secciones y caben %2").arg(design.sections.size()).arg(kMaxSections));
    }
    qint64 bytes = 0;
    for (const DesignSection& section : design.sections) {
        bytes += section.body.size();
    }
    if (bytes > kMaxBodies) {
        report.Error({kManifestName, 0}, "el diseño pasa de 1 GB");
    }
}

} // namespace

void CheckDesign(const Design& design, PackReport& report) {
    CheckHeader(design, report);
    for (const DesignSection& section : design.sections) {
        CheckName(design, section, report);
        CheckSize(section.params, kParamsSize, section.source.Place("params"), report);
        CheckParams(section, report);
        CheckPicture(section, report);
    }
    CheckWords(design, report);
    CheckColorSets(design, report);
    CheckRepeated(design, report);
    CheckSameNames(design, report);
    CheckTogether(design, report);
    CheckTotals(design, report);
}
