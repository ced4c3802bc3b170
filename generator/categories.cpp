#include "generator/categories.h"

#include "generator/choices.h"
#include "generator/fieldvalues.h"
#include "site/tagtext.h"
#include "site/template.h"
#include "site/transforms.h"
#include "site/weblangs.h"
#include "text/ansi.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char kSubrowOpen[] = "<!--SUBCATEGORY";
constexpr char kSubrowClose[] = "SUBCATEGORY-->";

// All values of one text in one language, sorted by code units, each once.
QStringList ReadCategoryValues(Recordset& texts, const QString& fieldRef, const QString& lang) {
    const QString table = NthField(fieldRef, 1, u"."_s);
    const QString field = NthField(fieldRef, 2, u"."_s);
    const int valueColumn = texts.Column(u"FieldValue");
    QStringList values;
    texts.SetFilter({{u"TableName", table}, {u"FieldDefId", field}, {u"LangCode", lang}});
    for (; texts.HasRow(); texts.MoveNext()) {
        const QString value = texts.Text(valueColumn);
        values.append(value.isEmpty() ? u"(Sin Categoria)"_s : value);
    }
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
    return values;
}

void AddToTree(CategoryTree& tree, const QString& value) {
    const QString name = NthField(value, 1, u"/"_s);
    const QString subname = NthField(value, 2, u"/"_s);
    if (tree.Categories.empty() || tree.Categories.back().Name != name) {
        tree.Categories.push_back({CategoryHash(ToAnsi(name)), name, {}});
    }
    const QByteArray code = CategoryHash(ToAnsi(value));
    if (subname.isEmpty()) {
        tree.Categories.back().Code = code;
    } else {
        tree.Categories.back().Subcategories.push_back({code, subname});
    }
}

// A category's row and, inside it, the marked row of its subcategories.
struct CategoryRows {
    explicit CategoryRows(const QByteArray& middle) {
        qsizetype from = 0;
        const QByteArray marked = FirstBetween(middle, kSubrowOpen, kSubrowClose, from);
        QByteArray rest = middle;
        rest.replace(kSubrowOpen + marked + kSubrowClose, QByteArray());
        row = TagText(rest);
        subrow = TagText(marked);
    }
    TagText row;
    TagText subrow;
};

QByteArray ExpandRow(TagText row, const QByteArray& code, const QString& name) {
    row.Replace("%%CHOICEVALUE%%"_ba, code);
    row.Replace("%%CHOICE%%"_ba, ToAnsi(name));
    return row.Text();
}

QByteArray TreeText(const SectionParts& parts, const CategoryRows& rows, const CategoryTree& tree) {
    QByteArray text = parts.head;
    for (const Category& category : tree.Categories) {
        text += ExpandRow(rows.row, category.Code, category.Name);
        for (const Subcategory& subcategory : category.Subcategories) {
            text += ExpandRow(rows.subrow, subcategory.Code, subcategory.Name);
        }
    }
    return text + parts.tail;
}

} // namespace

QByteArray CategoryHash(QByteArrayView ansi) {
    qint64 sum = 0;
    for (const char character : ansi) {
        sum += static_cast<unsigned char>(character) - 65;
    }
    const qint64 mean = ansi.isEmpty() ? 0 : sum / ansi.size();
    const QByteArray hash =
        QByteArray::number(static_cast<quint32>(mean), 16) + QByteArray::number(ansi.size(), 16);
    return hash.toUpper();
}

std::vector<CategoryTree> BuildCategoryItems(SiteSnapshot& snapshot, int section) {
    const QString fieldRef = GetParam(TemplateSections[section].Params, u"FIELDDEFID"_s);
    std::vector<CategoryTree> trees;
    for (const QString& lang : WebLangs) {
        CategoryTree tree{lang, {}};
        for (const QString& value : ReadCategoryValues(snapshot[kSnapLangFields], fieldRef, lang)) {
            AddToTree(tree, value);
        }
        trees.push_back(std::move(tree));
    }
    return trees;
}

void BuildCategoryTrees(SiteSnapshot& snapshot) {
    for (const int section : AllSections(kKindCategoryTree)) {
        const SectionParts parts = SplitSectionBody(section);
        const CategoryRows rows(parts.middle);
        for (const CategoryTree& tree : BuildCategoryItems(snapshot, section)) {
            AddChoiceBlock(
                {ToAnsi(TemplateSections[section].Name), TreeText(parts, rows, tree), tree.Lang});
        }
    }
}
