#include "housecheck.h"
#include "writercheck.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <gtest/gtest.h>

namespace {

// Folders beside the house: they may need all of it.
const QStringList kBeside = {"tests", "bench",   "tools",    "cmake",
                             "build", "designs", "delivery", "docs"};

QString ReadText(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

SourceTexts ReadHouse() {
    const QDir top(SOURCE_FOLDER);
    SourceTexts texts;
    for (const QString& folder : top.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QDirIterator files(top.filePath(folder),
                           {"*.h", "*.hpp", "*.inc", "*.cpp", "*.cc", "CMakeLists.txt"},
                           QDir::Files, QDirIterator::Subdirectories);
        while (!kBeside.contains(folder) && files.hasNext()) {
            const QString path = files.next();
            texts.insert(top.relativeFilePath(path), ReadText(path));
        }
    }
    return texts;
}

} // namespace

TEST(House, StandsAsTheReadmeDrawsIt) {
    const QMap<QString, int> floors = ReadFloors(ReadText(SOURCE_FOLDER "/README.md"));
    const SourceTexts texts = ReadHouse();
    ASSERT_GT(floors.size(), 10);
    ASSERT_GT(texts.size(), 200);
    EXPECT_EQ(FindHouseFaults(floors, texts).join("\n").toStdString(), "");
}

TEST(House, EveryFaultIsToldWithItsLines) {
    const QMap<QString, int> floors = ReadFloors("| floor | folder |\n| 1 | `low/` | x |\n"
                                                 "| 1 | `beside/` | x |\n| 2 | `high/` | x |\n");
    const SourceTexts sound = {
        {"low/a.h", "#include <QString>\n"},
        {"low/a.cpp", "#include \"low/a.h\"\n#include \"low/b.h\"\n"},
        {"low/b.h", ""},
        {"beside/c.h", "// #include \"high/d.h\"\n"},
        {"high/d.h", "\n#include \"low/a.h\"\n"},
        {"high/CMakeLists.txt", "add_wing(high\n SOURCES d.cpp\n USES low)\n"}};
    const struct {
        const char* file;
        const char* text;
        const char* fault;
    } cases[] = {
        {"low/b.h", "", ""},
        {"low/b.h", "#include \"high/d.h\"",
         "low/b.h:1 (floor 1) needs high/d (floor 2) and high/d.h:2 needs low/a"},
        {"low/b.h", "  # include <high/d.h>",
         "low/b.h:1 (floor 1) needs high/d (floor 2) and high/d.h:2 needs low/a"},
        {"low/b.h", "#include \"../high/d.cpp\"",
         "low/b.h:1 (floor 1) needs high/d (floor 2) and high/d.h:2 needs low/a"},
        {"low/CMakeLists.txt", "target_link_libraries(low PUBLIC high)",
         "low/CMakeLists.txt:1 (floor 1) needs high (floor 2) and high/d.h:2 needs low/a"},
        {"beside/c.h", "\n\n#include \"low/b.h\"", "beside/c.h:3 (floor 1) needs low/b (floor 1)"},
        {"low/b.h", "#include \"low/a.h\"",
         "a circle: low/a.cpp:2 needs low/b, low/b.h:1 needs low/a"},
        {"low/CMakeLists.txt", "add_wing(low\n    USES Qt6::Core\n    high)",
         "low/CMakeLists.txt:3 (floor 1) needs high (floor 2) and high/d.h:2 needs low/a"},
        {"new/e.h", "", "new/ has sources and no row in the table"},
    };
    for (const auto& fault : cases) {
        SourceTexts texts = sound;
        texts[fault.file] = fault.text;
        EXPECT_EQ(FindHouseFaults(floors, texts).join("\n").toStdString(), fault.fault)
            << fault.file << ": " << fault.text;
    }
    QMap<QString, int> more = floors;
    more["gone"] = 3;
    EXPECT_EQ(FindHouseFaults(more, sound).join("\n").toStdString(),
              "the table has gone/, which has no sources");
}

TEST(House, ProcessWideValuesAreWrittenByTheirOwnersAlone) {
    EXPECT_EQ(FindForeignWrites(ReadHouse()).join("\n").toStdString(), "");
}

TEST(House, AForeignWriteIsToldWithItsLine) {
    const SourceTexts owner = {
        {"low/a.h", "extern int Count; // Count = 1\nextern const int Fixed;\n"
                    "extern std::vector<Row>\n    Rows;\nextern QString Name;\n"},
        {"low/a.cpp", "int Count = 0;\nvoid SetCount() { Count = 1; Rows.clear(); }\n"}};
    const std::pair<const char*, const char*> cases[] = {
        {"Count = 1;", "Count"},
        {"++Count;", "Count"},
        {"Count += 2;", "Count"},
        {"Rows[i].Text = {};", "Rows"},
        {"Rows[0].Text.clear();", "Rows"},
        {"auto kept = std::move(Rows);", "Rows"},
        {"for (Row& row : Rows) {", "Rows"},
        {"Row& row = Rows[2];", "Rows"},
        {"Name.replace(1, 2, text);", "Name"},
        {"Fill(3, &Name);", "Name"},
        {"if (Count == 1 && Rows.size() >= 2) {", nullptr},
        {"row.Count = 1; box->Name = Name; Recount = Count;", nullptr},
        {"for (const Row& row : Rows) { // Rows = {}", nullptr},
        {"Show(\"Count = 1\", Name.left(2)); SetCount();", nullptr},
    };
    for (const auto& [line, value] : cases) {
        SourceTexts texts = owner;
        texts["high/b.cpp"] = QStringLiteral("\n%1\n").arg(line);
        const QString fault = value == nullptr
                                  ? QString()
                                  : QStringLiteral("high/b.cpp:2 writes %1 of low/a.h").arg(value);
        EXPECT_EQ(FindForeignWrites(texts).join("\n").toStdString(), fault.toStdString()) << line;
    }
}
