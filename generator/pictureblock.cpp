#include "generator/pictureblock.h"

#include "site/outputs.h"
#include "site/transforms.h"
#include "store/langvalues.h"
#include "text/ansi.h"

using namespace Qt::StringLiterals;

namespace {

struct PictureRow {
    QString pictureId;
    QString productId;
    QString number; // within the product
};

QByteArray ExpandPicture(TagText text, const PictureRow& row, const QString& lang,
                         const FieldList& texts) {
    text.Replace("%%PICTUREID%%"_ba, ToAnsi(row.pictureId));
    text.Replace("%%PRODUCTID%%"_ba, ToAnsi(row.productId));
    text.Replace("%%PRODPICTUREID%%"_ba, ToAnsi(row.number));
    text.Replace("%LID%"_ba, ToAnsi(lang));
    ReplaceFields(text, texts, EmptyShows::Nothing);
    return text.Text();
}

QString PicturePageName(QString name, const PictureRow& row, const QString& lang) {
    return name.replace(u"%%PICTUREID%%"_s, row.pictureId)
        .replace(u"%%PRODUCTID%%"_s, row.productId)
        .replace(u"%LID%"_s, lang);
}

} // namespace

PictureFrames::PictureFrames() {
    const int block = FindSection(kKindPictureBlock);
    const int page = FindSection(kKindPicturePage);
    HasBlock = block != kNoSection;
    HasPage = page != kNoSection;
    if (HasBlock) {
        SectionParts parts = SplitSectionBody(block);
        TagName = ToAnsi(TemplateSections[block].Name);
        Head = parts.head;
        Middle = TagText(parts.middle);
        Tail = parts.tail;
    }
    if (HasPage) {
        PageName = TemplateSections[page].Name;
        Page = TagText(SectionBodies[page]);
    }
}

QByteArray BuildPictureBlock(const PictureFrames& frames, const QString& productId,
                             const QString& lang, FieldSources& sources, Recordset& pictures) {
    if (!frames.HasBlock) {
        return {};
    }
    QByteArray text = frames.Head;
    bool first = true;
    for (pictures.SetFilter({{u"ProductId", productId}}); pictures.HasRow(); pictures.MoveNext()) {
        const PictureRow row{pictures.Text(u"PictureId"), productId,
                             pictures.Text(u"ProdPictureId")};
        const FieldList texts =
            LoadLangFields(sources, row.pictureId, TextTableName(TextTable::Pictures), lang);
        if (!first) {
            text += ExpandPicture(frames.Middle, row, lang, texts);
        }
        if (frames.HasPage) {
            AddOutputFile({PicturePageName(frames.PageName, row, lang),
                           lang,
                           {},
                           false,
                           TextToBytes(ExpandPicture(frames.Page, row, lang, texts))});
        }
        first = false;
    }
    return text + frames.Tail;
}
