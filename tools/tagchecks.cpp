#include "tools/tagchecks.h"

#include "tools/taguse.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace {

const QRegularExpression& TagPattern() {
    static const QRegularExpression pattern("%%[A-Za-z0-9_.]+%%");
    return pattern;
}

// A page of its own, not a piece of one.
bool IsPage(const DesignSection& section) {
    const bool isHtml = section.kind->body == BodyUse::Text
                            ? section.kind->number != kKindDataList &&
                                  section.kind->number != kKindLanguages &&
                                  section.kind->number != kKindColorSets
                            : QFileInfo(section.name).suffix().toLower() == "html";
    return isHtml && section.kind->body != BodyUse::List;
}

bool IsScript(const DesignSection& section) {
    return section.kind->name == NameUse::File && section.name.toLower().endsWith(".js");
}

const SourceLine* FindLine(const DesignSection& section, const QRegularExpression& pattern) {
    for (const SourceLine& line : section.text.lines) {
        if (pattern.match(line.text).hasMatch()) {
            return &line;
        }
    }
    return nullptr;
}

void CheckPageTraps(const DesignSection& section, PackReport& report) {
    static const QRegularExpression head("<head\\b", QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression charset("charset\\s*=\\s*[\"']?(windows-1252|cp1252|"
                                            "iso-8859-1|latin1)",
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression module("<script\\b[^>]*type\\s*=\\s*[\"']?module",
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression date("%%LASTUPDATE%%");
    const SourceLine* headLine = FindLine(section, head);
    if (headLine != nullptr && FindLine(section, charset) == nullptr) {
        report.Warning(headLine->place, "la página no dice su juego de caracteres: <meta "
                                        "charset=\"windows-1252\">");
    }
    if (const SourceLine* line = FindLine(section, module)) {
        report.Warning(line->place, "un guion no puede ser un módulo: el programa pone delante un "
                                    "comentario que los módulos no admiten");
    }
    if (const SourceLine* line = FindLine(section, date)) {
        report.Warning(line->place,
                       "%%LASTUPDATE%% cambia la página, y la hace enviar, todos los días");
    }
}

void CheckScriptTraps(const DesignSection& section, PackReport& report) {
    static const QRegularExpression moduleWord("^\\s*(import\\s*[\"'{*\\w]|export\\s)");
    if (const SourceLine* line = FindLine(section, moduleWord)) {
        report.Warning(line->place, "un guion no puede ser un módulo: el programa pone delante un "
                                    "comentario que los módulos no admiten");
    }
}

void CheckTagsOfLines(const TagUse& use, const DesignSection& section, PackReport& report) {
    for (const SourceLine& line : section.text.lines) {
        for (const auto& match : TagPattern().globalMatch(line.text)) {
            switch (use.FateIn(section, match.captured())) {
            case TagFate::Replaced:
                break;
            case TagFate::Unknown:
                report.Warning(line.place, "etiqueta desconocida: " + match.captured());
                break;
            case TagFate::Stays:
                report.Warning(line.place, match.captured() + " no se sustituye en esta sección");
                break;
            }
        }
        if (line.text.contains("%LID%") && !use.KnowsLanguage(section)) {
            report.Warning(line.place, "%LID% no se sustituye en esta sección");
        }
    }
}

void CheckTagsOfName(const DesignSection& section, PackReport& report) {
    const QStringList known = TagsOfFileName(section);
    for (const auto& match : TagPattern().globalMatch(section.name)) {
        if (!known.contains(match.captured())) {
            report.Warning(section.source.Place("name"),
                           match.captured() + " no se sustituye en este nombre");
        }
    }
}

} // namespace

void CheckTags(const Design& design, PackReport& report) {
    const TagUse use(design);
    for (const DesignSection& section : design.sections) {
        const int kind = section.kind->number;
        if (kind == kKindLanguages || kind == kKindColorSets) {
            continue;
        }
        CheckTagsOfLines(use, section, report);
        if (section.kind->name == NameUse::File) {
            CheckTagsOfName(section, report);
        }
        if (IsPage(section)) {
            CheckPageTraps(section, report);
        } else if (IsScript(section)) {
            CheckScriptTraps(section, report);
        }
    }
}
