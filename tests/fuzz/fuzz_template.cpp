// Design files come from anywhere: whatever their bytes say, the reader refuses them or what it
// loads can be used.
#include "platform/dialogs.h"
#include "site/styles.h"
#include "site/template.h"
#include "site/weblangs.h"

#include <QBuffer>

namespace {

// What the generator does with a loaded design before the catalogue comes in.
void UseDesign() {
    IndexImageSections();
    for (int i = 0; i < kMaxSections; ++i) {
        SplitSectionBody(i);
        FindSections(TemplateSections[i].Kind);
    }
    std::vector<StyleColor> colors;
    const int styles = FindSection(kKindColorSets);
    if (styles != kNoSection) {
        ReadColorSets(SectionBodies[styles]);
        ApplyStyle(SectionBodies[styles], 1, colors);
    }
    ResetWebLangs();
    try {
        LoadLanguageStrings();
        BuildLanguageSelector({"ES", "EN"});
    } catch (const std::exception&) {
        // Too many words are an error that ends a run.
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    if (!IsUnattended()) {
        SetUnattended();
    }
    QBuffer file;
    file.setData(reinterpret_cast<const char*>(data), qsizetype(size));
    file.open(QIODevice::ReadOnly);
    ResetTemplateState();
    TemplateContent design;
    if (ReadTemplate(file, design)) {
        UseTemplate(std::move(design));
        UseDesign();
    }
    return 0;
}
