#include "tools/designmanifest.h"

#include "tools/designtext.h"

namespace {

const QStringList kHeaderKeys{"name",     "description", "customfiles", "maxemph1",
                              "maxemph2", "scrambled",   "texts"};
const QStringList kSectionKeys{"kind", "name",   "params", "file",  "text",
                               "head", "middle", "tail",   "words", "raw"};
const QStringList kYesNoKeys{"scrambled", "raw"};

class ManifestReader {
public:
    explicit ManifestReader(PackReport& newReport) : report(newReport) { manifest.header.line = 1; }

    void ReadLine(const SourceLine& source) {
        const QString line = source.text;
        if (line.trimmed().isEmpty() || line.startsWith('#')) {
            return;
        }
        if (line[0].isSpace()) {
            Continue(line.trimmed(), source.place);
        } else if (line.trimmed() == "[section]") {
            manifest.sections.push_back({source.place.line, {}});
            lastKey.clear();
        } else {
            StartKey(line, source.place);
        }
    }

    DesignManifest manifest;

private:
    ManifestPart& Current() {
        return manifest.sections.empty() ? manifest.header : manifest.sections.back();
    }

    void Continue(const QString& text, const SourcePlace& place) {
        if (lastKey.isEmpty()) {
            report.Error(place, "la línea empieza por blancos y no continúa nada");
            return;
        }
        QString& value = Current().values[lastKey].text;
        value += value.isEmpty() ? text : "\n" + text;
    }

    void StartKey(const QString& line, const SourcePlace& place) {
        lastKey.clear();
        const qsizetype equals = line.indexOf('=');
        const QString key = line.left(equals).trimmed();
        const QStringList& known = manifest.sections.empty() ? kHeaderKeys : kSectionKeys;
        if (equals < 0) {
            report.Error(place, "se esperaba «clave = valor» o «[section]»");
        } else if (!known.contains(key)) {
            report.Error(place, "clave desconocida: «" + key + "»");
        } else if (Current().Has(key)) {
            report.Error(place, "la clave «" + key + "» ya está en la línea " +
                                    QString::number(Current().values[key].line));
        } else {
            lastKey = key;
            Current().values[key] = {line.mid(equals + 1).trimmed(), place.line};
            CheckYesNo(key, place);
        }
    }

    void CheckYesNo(const QString& key, const SourcePlace& place) {
        const QString value = Current().Text(key);
        if (kYesNoKeys.contains(key) && value != "yes" && value != "no") {
            report.Error(place, "«" + key + "» solo puede ser «yes» o «no»");
        }
    }

    PackReport& report;
    QString lastKey;
};

} // namespace

QString ManifestPart::Text(const QString& key) const {
    return Lines(key).replace('\n', ' ');
}

SourcePlace ManifestPart::Place(const QString& key) const {
    return {kManifestName, Has(key) ? values[key].line : line};
}

DesignManifest ReadManifest(const QString& folder, PackReport& report) {
    ManifestReader reader(report);
    const SourceText text = ReadSourceText(folder, kManifestName, {kManifestName, 0}, report);
    for (const SourceLine& line : text.lines) {
        reader.ReadLine(line);
    }
    return reader.manifest;
}
