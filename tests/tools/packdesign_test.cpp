// The packer of designs. What it says of broken ones stands in tests/tools/designs: each .txt file
// holds cases that begin with "### name", followed by parts that begin with a line of their own:
//
//   >> FILE      what the file holds in place of that of the sound design (designs/sound)
//   >> FILE +    what the file has behind that
//   >> says      what the packer says
//   >> loads     what the program loads of the packed file: the header, and a section a paragraph
//
// A byte that is no text is written as \xHH.
#include "site/template.h"
#include "tests/support/files.h"
#include "tests/support/userhome.h"
#include "text/ansi.h"
#include "tools/designfile.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

QMap<QString, QByteArray> PartsOf(const TextCase& tested) {
    QMap<QString, QByteArray> parts;
    QString part;
    for (const QByteArray& line : tested.lines) {
        if (line.startsWith(">> ")) {
            part = line.mid(3);
            parts[part] = "";
        } else {
            parts[part] += Unescaped(line) + '\n';
        }
    }
    return parts;
}

// The sound design with what a case changes in it.
class DesignFolder {
public:
    explicit DesignFolder(const QMap<QString, QByteArray>& changes) {
        for (const QFileInfo& file : QDir(DESIGNS "/sound").entryInfoList(QDir::Files)) {
            QFile::copy(file.filePath(), folder.filePath(file.fileName()));
        }
        for (auto change = changes.begin(); change != changes.end(); ++change) {
            const QString path = folder.filePath(change.key().section(' ', 0, 0));
            const bool appends = change.key().endsWith(" +");
            WriteFile(path, (appends ? ReadFile(path) : QByteArray()) + change.value());
        }
    }

    QString Path() const { return folder.path(); }

    QString Findings() const {
        PackReport report;
        PackDesign(folder.path(), false, report);
        return report.Lines().isEmpty() ? QString() : report.Lines().join('\n') + '\n';
    }

private:
    QTemporaryDir folder;
};

QString Shown(const QByteArray& body) {
    const bool text = body.size() < 500 && !body.contains('\0');
    return text ? FromAnsi(body).replace("\r", "\\r") : QString("%1 bytes").arg(body.size());
}

QString Loaded(QByteArray bytes) {
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    ResetTemplateState();
    TemplateContent design;
    EXPECT_TRUE(ReadTemplate(file, design));
    UseTemplate(std::move(design));
    QStringList lines = {
        TemplateHeader.Name.trimmed(), TemplateHeader.Description.trimmed(),
        QString("%1 %2").arg(TemplateHeader.MaxEmph1).arg(TemplateHeader.MaxEmph2)};
    for (int i = 0; i < TemplateHeader.SectionCount; ++i) {
        const TemplateSectionRecord& section = TemplateSections[std::size_t(i)];
        lines << QString("\n%1 [%2] [%3] %4")
                     .arg(section.Kind)
                     .arg(section.Name.trimmed(), section.Params.trimmed())
                     .arg(section.LastIndex)
              << Shown(SectionBodies[std::size_t(i)]);
    }
    return lines.join('\n') + '\n';
}

void Check(const TextCase& tested) {
    SCOPED_TRACE(tested.name.toStdString());
    QMap<QString, QByteArray> changes = PartsOf(tested);
    const QByteArray said = changes.take("says");
    const QByteArray loaded = changes.take("loads");
    const DesignFolder design(changes);
    EXPECT_EQ(design.Findings().toStdString(), said.toStdString());
    for (const bool scramble : {false, true}) {
        PackReport report;
        const QByteArray packed = PackDesign(design.Path(), scramble, report);
        EXPECT_EQ(packed.isEmpty(), report.HasErrors());
        if (!loaded.isEmpty()) {
            EXPECT_EQ(Loaded(packed).toStdString(), loaded.toStdString());
            EXPECT_EQ(TemplateHeader.Scrambled, int(scramble));
            EXPECT_EQ(packed.contains("SALEZONE"), !scramble);
        }
    }
}

} // namespace

TEST(PackDesign, EveryDesignIsToldOfAndLoadedAsItsCaseSays) {
    for (const TextCase& tested : ReadCases(DESIGNS)) {
        Check(tested);
    }
}

TEST(PackDesign, MoreSectionsThanTheTableHoldsAreRefused) {
    const DesignFolder design(
        {{"design.ini +", QByteArray("[section]\nkind = copy\nname = a\nraw = yes\n"
                                     "file = home.html\n")
                              .repeated(99)}});
    EXPECT_TRUE(design.Findings().contains("design.ini:503: error: hay 102 secciones y caben 101"));
}

TEST(PackDesign, ProgramWritesTheFileOnlyWithoutErrors) {
    const DesignFolder sound({});
    const QString output = sound.Path() + "/out.zdt";
    EXPECT_EQ(RunTool(PACKDESIGN, {"--scramble", sound.Path(), output}).code, 0);
    EXPECT_TRUE(Loaded(ReadFile(output)).startsWith("Prueba\n"));
    EXPECT_EQ(TemplateHeader.Scrambled, 1);
    QFile::remove(output);
    const DesignFolder broken({{"design.ini +", "basura\n"}});
    const ToolRun refused = RunTool(PACKDESIGN, {broken.Path(), output});
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.complaint,
              broken.Path() + "/design.ini:12: error: se esperaba «clave = valor» o «[section]»\n");
    EXPECT_FALSE(QFile::exists(output));
    EXPECT_EQ(RunTool(PACKDESIGN, {}).code, 2);
}
