#include "site/template.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "site/outputs.h"
#include "tests/support/boxes.h"
#include "tests/support/files.h"
#include "tests/support/templatebuilder.h"

#include <QBuffer>
#include <QFile>
#include <gtest/gtest.h>

namespace {

constexpr char kUnknownFormat[] = "Error: no se reconoce el formato de la plantilla seleccionada";
constexpr char kDamaged[] = "Se ha producido un error al abrir la plantilla de diseño";

// Of the first section, in the file.
constexpr int kPositionAt = kHeaderSize + 29;

QByteArray Little(qint32 value, int size) {
    QByteArray bytes;
    for (int i = 0; i < size; ++i) {
        bytes += char(value >> 8 * i);
    }
    return bytes;
}

bool LoadBytes(const QByteArray& bytes) {
    QBuffer file;
    file.setData(bytes);
    file.open(QIODevice::ReadOnly);
    ResetTemplateState();
    TemplateContent design;
    const bool read = ReadTemplate(file, design);
    UseTemplate(std::move(design));
    return read;
}

} // namespace

TEST(Template, EveryFieldOfHeaderTableAndBodiesIsRead) {
    TemplateBuilder()
        .Name("Título")
        .Description("Claro. CUSTOMFILES=a.txt;")
        .Emphasis(200, 100)
        .Scrambled(2)
        .Add(kKindProductPage, "p%LID%.html", "A=1;", "¿Qué?")
        .Add(kKindHomePage, "", "", "")
        .Load();
    EXPECT_EQ(TemplateHeader.Name.size(), 50);
    EXPECT_EQ(TemplateHeader.Name.trimmed(), "Título");
    EXPECT_EQ(TemplateHeader.Description.trimmed(), "Claro. CUSTOMFILES=a.txt;");
    EXPECT_EQ(TemplateHeader.MaxEmph1, 200);
    EXPECT_EQ(TemplateHeader.MaxEmph2, 100);
    EXPECT_EQ(TemplateHeader.SectionCount, 2);
    EXPECT_EQ(TemplateSections[0].Name, QString("p%LID%.html").leftJustified(25));
    EXPECT_EQ(TemplateSections[0].Params, QString("A=1;").leftJustified(200));
    EXPECT_EQ(SectionBodies[0], QByteArray("\xBFQu\xE9?")); // 2 is not scrambled
    EXPECT_EQ(SectionBodies[1], QByteArray(1, '\0'));
    EXPECT_EQ(SectionBodies[100], QByteArray(1, '\0'));
}

TEST(Template, ScrambledBodiesAreComplementedAndMayOverlap) {
    const QByteArray body("\x00\xFF<p>", 5);
    QByteArray bytes = TemplateBuilder()
                           .Scrambled(1)
                           .AddBytes(kKindCopiedFile, "a", "", body)
                           .AddBytes(kKindCopiedFile, "b", "", "xyz")
                           .Bytes();
    EXPECT_EQ(bytes.mid(kHeaderSize + 2 * kSectionSize, 2), QByteArray("\xFF\x00", 2));
    bytes.replace(kPositionAt + kSectionSize, 4, Little(kHeaderSize + 2 * kSectionSize + 1, 4));
    ASSERT_TRUE(LoadBytes(bytes));
    EXPECT_EQ(SectionBodies[0], body);
    EXPECT_EQ(SectionBodies[1], body.left(3));
}

TEST(Template, FilesThatLieAboutThemselvesAreRefusedWithABox) {
    const QByteArray good = TemplateBuilder().Add(kKindHomePage, "", "", "0123456789").Bytes();
    ASSERT_TRUE(LoadBytes(good));
    for (const QStringList& row : ReadTable(TABLES, "bytes kept of a design, number put in")) {
        SCOPED_TRACE(row.join(' ').toStdString());
        QByteArray bytes = good.left(row[0].toInt());
        bytes.replace(row[1].toInt(), row[2].toInt(), Little(row[3].toInt(), row[2].toInt()));
        BoxAnswers boxes;
        EXPECT_FALSE(LoadBytes(bytes));
        ASSERT_EQ(boxes.Texts(), row[4] == "unknown" ? kUnknownFormat : kDamaged);
        EXPECT_EQ(boxes.seen[0].icon, QMessageBox::Warning);
        EXPECT_EQ(boxes.seen[0].title, AppName);
        EXPECT_EQ(SectionBodies[0], QByteArray(1, '\0'));
    }
}

TEST(Template, ManySectionsOverOneLargeBodyAreRefusedBeforeMemoryIsTaken) {
    TemplateBuilder builder;
    builder.AddBytes(kKindCopiedFile, "a", "", QByteArray(11 << 20, 'x'));
    for (int i = 1; i < kMaxSections; ++i) {
        builder.AddBytes(kKindCopiedFile, "b", "", "y");
    }
    QByteArray bytes = builder.Bytes();
    for (int i = 1; i < kMaxSections; ++i) {
        const QByteArray place = bytes.mid(kPositionAt, 8);
        bytes.replace(kPositionAt + i * kSectionSize, 8, place);
    }
    BoxAnswers boxes;
    EXPECT_FALSE(LoadBytes(bytes));
    EXPECT_EQ(boxes.Texts(), kDamaged);
}

TEST(Template, SectionsAreFoundFirstLastAndAll) {
    TemplateBuilder design;
    for (const int kind : {kKindZoneBlock, kKindZoneBlock, kKindProductPicture, kKindZoneBlock,
                           kKindZoneBlock, kKindProductPicture}) {
        design.Add(kind, "", "", "");
    }
    design.Load();
    EXPECT_EQ(FindSection(kKindZoneBlock), 0);
    EXPECT_EQ(FindSection(kKindHomePage), 65535);
    EXPECT_EQ(FindSections(kKindZoneBlock), std::vector<int>{3}); // 1 is skipped: it follows a hit
    EXPECT_EQ(FindSections(kKindHomePage), std::vector<int>{65535});
    EXPECT_EQ(AllSections(kKindZoneBlock), (std::vector<int>{0, 1, 3, 4}));
    IndexImageSections();
    EXPECT_EQ(ImageSections, (std::vector<int>{2, 5}));
    ResetTemplateState();
    IndexImageSections();
    EXPECT_EQ(ImageSections, std::vector<int>{65535});
}

TEST(Template, ListBodiesAreCutByTheirLengths) {
    for (const QStringList& row : ReadTable(TABLES, "lengths, and the parts of 0123456789")) {
        TemplateBuilder().Add(kKindZoneList, "", row[0], "0123456789").Load();
        const SectionParts parts = SplitSectionBody(0);
        EXPECT_EQ(parts.head + "|" + parts.middle + "|" + parts.tail,
                  row.mid(1).join('|').toLatin1())
            << row[0].toStdString();
    }
    EXPECT_EQ(SplitSectionBody(kNoSection).head, "");
}

TEST(Template, CustomFilesAreCopiedFromTheStoreFolderAlone) {
    QTemporaryDir folder;
    QTemporaryDir elsewhere;
    LoadSettings();
    SetStoreFolder(folder.path());
    WriteFile(DBpath + "robots.txt", "User-agent: *");
    WriteFile(DBpath + "empty.txt", "");
    WriteFile(DBpath + DBname, "store");
    WriteFile(DBpath + DBname + "-journal", "journal");
    WriteFile(elsewhere.filePath("secret"), "secret");
    QFile::link(DBpath + DBname, DBpath + "link.txt");
    const QString names =
        "robots.txt , empty.txt,,missing, Zandora.zdb,ZANDORA.ZDB-JOURNAL,link.txt,../" +
        QFileInfo(elsewhere.path()).fileName() + "/secret,..";
    TemplateBuilder().Description("CUSTOMFILES=" + names + ";").Load();
    CopyCustomFiles();
    ASSERT_EQ(OutputFiles.size(), 1u);
    EXPECT_EQ(OutputFiles[0].Name, "robots.txt");
    EXPECT_EQ(OutputFiles[0].Lang, "");
    EXPECT_EQ(OutputFiles[0].Data, "User-agent: *");
}
