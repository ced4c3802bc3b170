#include "generator/emphasis.h"

#include "generator/siteproduct.h"
#include "site/template.h"
#include "site/weblangs.h"
#include "text/ansi.h"

std::vector<EmphasisBlock> EmphasisBlock1;
std::vector<EmphasisBlock> EmphasisBlock2;

namespace {

// The products of one language: rows and their count go on from the first block to the second.
class EmphasisWalk {
public:
    EmphasisWalk(SiteSnapshot& sets, FieldSources& fieldSources, const QString& language)
        : products(sets[kSnapProducts]), pictures(sets[kSnapPictures]), sources(fieldSources),
          reader(products), lang(language) {
        products.MoveFirst();
    }

    // The section of `kind` with products until `limit` have been shown in all; false without one.
    bool Fill(EmphasisBlock& block, int kind, int limit) {
        const int section = FindSection(kind);
        if (section == kNoSection) {
            return false;
        }
        const SectionParts parts = SplitSectionBody(section);
        const TagText middle(parts.middle);
        QByteArray text = parts.head;
        for (; products.HasRow() && shown + 1 <= limit; ++shown, products.MoveNext()) {
            text += ExpandListRow(middle, reader.Read(), lang, sources, pictures);
        }
        block = {ToAnsi(TemplateSections[section].Name), text + parts.tail, lang};
        return true;
    }

private:
    Recordset& products;
    Recordset& pictures;
    FieldSources& sources;
    SiteProductReader reader;
    QString lang;
    int shown = 0;
};

} // namespace

void ResetEmphasis() {
    EmphasisBlock1.clear();
    EmphasisBlock2.clear();
}

void BuildEmphasisBlocks(SiteSnapshot& snapshot) {
    EmphasisBlock1.assign(WebLangs.size(), {});
    EmphasisBlock2.assign(WebLangs.size(), {});
    snapshot[kSnapProducts].ClearFilter();
    if (snapshot[kSnapProducts].RecordCount() == 0) {
        return;
    }
    // The header keeps the capacities as bytes, and their sum is one too.
    const quint8 both = static_cast<quint8>(TemplateHeader.MaxEmph1 + TemplateHeader.MaxEmph2);
    FieldSources sources(snapshot);
    for (qsizetype place = 0; place < WebLangs.size(); ++place) {
        EmphasisWalk walk(snapshot, sources, WebLangs[place]);
        if (!walk.Fill(EmphasisBlock1[place], kKindEmphasis1, TemplateHeader.MaxEmph1) ||
            !walk.Fill(EmphasisBlock2[place], kKindEmphasis2, both)) {
            return;
        }
    }
}
