#include "tests/generator/sitefixture.h"

#include "core/settings.h"
#include "forms/mainform.h"
#include "generator/generation.h"
#include "site/abort.h"
#include "site/outputs.h"
#include "site/transforms.h"
#include "text/numbers.h"

std::unique_ptr<MainForm> SiteFixture::form;

void SiteFixture::SetUpTestSuite() {
    UseNumberLocale(QLocale(QLocale::Spanish, QLocale::Spain));
    form = std::make_unique<MainForm>();
}

void SiteFixture::TearDownTestSuite() {
    form.reset();
}

void SiteFixture::Load(const TemplateBuilder& design, const QString& rows, const QString& langs) {
    if (!catalogue || rows != loadedRows) {
        catalogue.reset(); // no two stores at once: the program has one set of cursors
        catalogue.emplace(rows);
        loadedRows = rows;
    }
    SetUserLangs(langs, langs.left(2));
    SetUICurrentLang(langs.left(2));
    SetAbortPublish(false);
    ResetGeneration();
    design.Load();
}

std::string SiteFixture::Names() {
    QStringList names;
    for (const OutputFile& file : OutputFiles) {
        names.append(TrimBlanks(file.Name));
    }
    return names.join(u' ').toStdString();
}

std::string SiteFixture::Output(const QString& name, const QString& lang) {
    std::vector<std::string> found;
    for (const OutputFile& file : OutputFiles) {
        if (TrimBlanks(file.Name) == name && file.Lang == lang) {
            found.push_back(file.Data.toStdString());
        }
    }
    EXPECT_EQ(found.size(), 1u) << qPrintable(name + ' ' + lang);
    return found.empty() ? std::string() : found.front();
}
