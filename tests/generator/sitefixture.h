// What the tests of the page builders share: a catalogue and a design given as text, loaded as the
// driver loads them, and the files that come out.
#pragma once

#include "tests/support/catalogue.h"
#include "tests/support/templatebuilder.h"

#include <QString>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>

class MainForm;

class SiteFixture : public testing::Test {
protected:
    // The passes show their progress on the main form.
    static void SetUpTestSuite();
    static void TearDownTestSuite();

    // Every list of the generator is empty, the languages are those of `langs`, the first of which
    // is the site's main language and the one shown in the editor.
    void Load(const TemplateBuilder& design, const QString& rows, const QString& langs = "ES");

    SiteSnapshot& Snapshot() { return catalogue->Snapshot(); }

    // Names of the files made, without blanks around them, in order, joined by a blank.
    static std::string Names();

    // The bytes of the file of that name; the test fails if there isn't just one.
    static std::string Output(const QString& name, const QString& lang);

    std::optional<TestCatalogue> catalogue;

private:
    QString loadedRows;
    static std::unique_ptr<MainForm> form;
};
