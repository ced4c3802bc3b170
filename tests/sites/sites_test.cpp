// Whole sites, compared byte for byte. Each folder beside this file is a case: a catalogue, designs
// as packdesign reads them, and every file that must come out. The real button makes the sites.
// README.md says how a case is written and how its expected files are made anew.
#include "app/workflow.h"
#include "core/settings.h"
#include "forms/mainform.h"
#include "platform/dialogs.h"
#include "publish/generate.h"
#include "site/abort.h"
#include "store/snapshot.h"
#include "tests/support/files.h"
#include "tests/support/program.h"
#include "text/ansi.h"
#include "tools/designfile.h"

#include <QDir>
#include <gtest/gtest.h>
#include <map>

namespace {

constexpr char kUpdate[] = "SITES_UPDATE"; // in the environment: expected files are written anew

const std::map<QString, PreviewPage> kPreviews{{"product", PreviewPage::Product},
                                               {"layout", PreviewPage::Layout},
                                               {"find us", PreviewPage::FindUs},
                                               {"about us", PreviewPage::AboutUs}};

using Files = std::map<QString, QByteArray>; // name and bytes

std::vector<std::string> CaseNames() {
    std::vector<std::string> names;
    for (const QString& name : QDir(CASES).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        names.push_back(name.toStdString());
    }
    return names;
}

Files ReadFolder(const QString& folder) {
    Files files;
    for (const QString& name : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
        files[name] = ReadFile(folder + '/' + name);
    }
    return files;
}

// What another day or version would change gives way to a word. A run may see midnight.
Files WithoutTheMoment(Files files, const QDate& begun) {
    for (auto& [name, bytes] : files) {
        for (const QDate& day : {begun, QDate::currentDate()}) {
            bytes.replace(day.toString("dd/MM/yyyy").toLatin1(), "{TODAY}");
        }
        bytes.replace(VERSION, "{VERSION}");
    }
    return files;
}

// The first line in which both differ, as a reader sees it; of pictures the byte.
std::string FirstDifference(const QByteArray& expected, const QByteArray& made) {
    const auto [wanted, found] =
        std::mismatch(expected.begin(), expected.end(), made.begin(), made.end());
    const qsizetype place = wanted - expected.begin();
    if (expected.contains('\0')) {
        return "byte " + std::to_string(place);
    }
    const qsizetype start = expected.left(place).lastIndexOf('\n') + 1;
    const auto line = [start](const QByteArray& text) {
        return FromAnsi(text.mid(start, text.indexOf('\n', start) - start)).toStdString();
    };
    return "line " + std::to_string(expected.left(place).count('\n') + 1) +
           "\n  expected: " + line(expected) + "\n  made:     " + line(made);
}

void Compare(const Files& expected, const Files& made) {
    for (const auto& [name, bytes] : expected) {
        const auto found = made.find(name);
        if (found == made.end()) {
            ADD_FAILURE() << "missing: " << name.toStdString();
        } else if (found->second != bytes) {
            ADD_FAILURE() << "differs: " << name.toStdString() << ", "
                          << FirstDifference(bytes, found->second);
        }
    }
    for (const auto& [name, bytes] : made) {
        EXPECT_TRUE(expected.count(name)) << "surplus: " << name.toStdString();
    }
}

class Sites : public testing::TestWithParam<std::string> {
protected:
    // Lines of catalogue.txt are rows of the catalogue, steps (">") or comments ("#").
    void SetUp() override {
        SetUnattended(); // nobody looks at the finished site
        QString rows;
        for (const QString& line :
             QString::fromUtf8(ReadFile(Case() + "catalogue.txt")).split('\n')) {
            if (line.startsWith('>')) {
                steps += line;
            } else if (!line.startsWith('#')) {
                rows += line + '\n';
            }
        }
        program = std::make_unique<TestProgram>(rows);
        const QDir data(Case() + "data");
        for (const QString& name : data.entryList(QDir::Files | QDir::Hidden)) {
            QFile::copy(data.filePath(name), program->Folder() + name);
        }
        UseDesign("design");
    }

    static QString Case() { return QString(CASES "/%1/").arg(GetParam().c_str()); }

    // The packer's checks, which warn of what would surprise a maker of designs, are left out.
    void UseDesign(const QString& name) {
        PackReport report;
        const Design design = ReadDesign(Case() + name, report);
        EXPECT_FALSE(report.HasErrors()) << report.Lines().join('\n').toStdString();
        WriteFile(program->Folder() + "Default.zdt", EncodeDesign(design));
    }

    void Do(const QString& step) {
        SCOPED_TRACE(step.toStdString());
        QStringList words;
        for (const QString& word : step.mid(1).split(';')) {
            words += word.trimmed();
        }
        words.resize(5);
        const QString what = words[0];
        if (what == "design") {
            UseDesign(words[1]);
        } else if (what == "languages") {
            SetUserLangs(words[1], words[2]);
            SetUICurrentLang(words[3]);
        } else if (what == "colours") {
            SetColorSet(words[1].toInt());
        } else if (what == "logo") {
            SaveShowAPIlogo(words[1] == "shown");
        } else if (what == "published") {
            published = words[1];
            frmMain->optAllOrChanged[words[2] == "changed" ? kPublishChanged : kPublishAll]
                ->setChecked(true);
        } else if (what == "site") {
            MakeSite(words[1]);
        } else if (what == "preview") {
            MakePreview(words[1], words[2], {kPreviews.at(words[3]), words[4]});
        } else {
            ADD_FAILURE() << "unknown step";
        }
    }

    void MakeSite(const QString& name) {
        const QString folder = program->Folder() + "web/";
        QDir(folder).removeRecursively();
        SetStorage(kStorageLocal, folder);
        SetLastWebUpdate(published);
        cmdUpdateWeb_Click(kPublishUpdate);
        EXPECT_EQ(LastOutcome, PublishOutcome::Delivered);
        Check(name, folder);
    }

    void MakePreview(const QString& name, const QString& page, const PreviewRequest& request) {
        const QString folder = program->Folder() + "temp/";
        QDir(folder).removeRecursively();
        SetAbortPublish(true); // a run that was cancelled may lie behind
        SiteSnapshot snapshot;
        TakeSiteSnapshot(snapshot);
        const QString shown = GeneratePreviewPage(request, TemplPath, snapshot);
        EXPECT_EQ(shown.toStdString(), page.isEmpty() ? "" : (folder + page).toStdString());
        Check(name, folder);
    }

    void Check(const QString& name, const QString& folder) {
        const QString expected = Case() + "expected/" + name;
        checked += name;
        const Files made = WithoutTheMoment(ReadFolder(folder), begun);
        if (!qEnvironmentVariableIsSet(kUpdate)) {
            Compare(ReadFolder(expected), made);
            return;
        }
        QDir(expected).removeRecursively();
        QDir().mkpath(expected);
        for (const auto& [file, bytes] : made) {
            WriteFile(expected + '/' + file, bytes);
        }
    }

    MemoryDisk memory;
    std::unique_ptr<TestProgram> program;
    QStringList steps;
    QStringList checked; // names of those that made files
    QString published;   // LastWebUpdate before a run
    QDate begun = QDate::currentDate();
};

INSTANTIATE_TEST_SUITE_P(All, Sites, testing::ValuesIn(CaseNames()),
                         [](const auto& tested) { return tested.param; });

} // namespace

TEST_P(Sites, ComeOutByteForByte) {
    for (const QString& step : steps) {
        Do(step);
    }
    EXPECT_FALSE(checked.isEmpty());
    for (const QString& name :
         QDir(Case() + "expected").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        EXPECT_TRUE(checked.contains(name)) << "no step makes " << name.toStdString();
    }
    if (qEnvironmentVariableIsSet(kUpdate)) {
        GTEST_SKIP() << "the expected files have been written anew: review them";
    }
}

TEST(SiteCases, AreFound) {
    EXPECT_FALSE(CaseNames().empty());
}
