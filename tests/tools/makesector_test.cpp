// The maker of flavour files, run as a flavour's author runs it, and read back by the program.
#include "core/flavour.h"
#include "tests/support/files.h"
#include "tests/support/userhome.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

class MakeSector : public testing::Test {
protected:
    void TearDown() override { LoadFlavour("/nowhere/"); }

    QString Target() const { return home.filePath("sector.dat"); }

    // Exit code; what the tool complains of goes to `complaint`.
    int Run(const QString& lines) {
        const ToolRun run = RunTool(MAKESECTOR, {lines, Target()});
        complaint = run.complaint;
        return run.code;
    }

    QTemporaryDir home;
    QString complaint;
};

} // namespace

TEST_F(MakeSector, DeliveredLinesGiveTheRealEstateFlavour) {
    ASSERT_EQ(Run(REAL_ESTATE_LINES), 0) << complaint.toStdString();
    EXPECT_TRUE(LoadFlavour(home.path() + '/'));
    EXPECT_TRUE(IsRealEstateFlavour());
    EXPECT_EQ(AppName + ' ' + ProdPlur + ' ' + CategoryCaption, "Zandora Inmuebles Población-Zona");
    EXPECT_EQ(LogoCaption, "[N/A]"); // the last line loses nothing to the cut byte
}

TEST_F(MakeSector, FaultyLinesAreNamedAndNothingIsWritten) {
    const std::pair<QByteArray, const char*> cases[] = {
        {"ZAND\nINMO\n3\n4\n5\nM\n7\n8\n", "tiene 8 líneas"},
        {"ZAND\nINMO\n3\n4\n5\nM\n7\n8\n9\n10\n", "tiene 10 líneas"},
        {"ZAND\nINMO\n\n4\n5\nM\n7\n8\n9\n", "la línea 3 está vacía"},
        {"ZAND\nINMO\n日本\n4\n5\nM\n7\n8\n9\n", "la línea 3 tiene un carácter"},
        {"ZANDO\nINMO\n3\n4\n5\nM\n7\n8\n9\n", "la línea 1 debe tener 4 caracteres"},
        {"ZAND\nINMO\n\xF1\n4\n5\nM\n7\n8\n9\n", "no está en UTF-8"},
    };
    for (const auto& [lines, fault] : cases) {
        EXPECT_EQ(Run(WriteFile(home.filePath("lines.txt"), lines)), 1) << fault;
        EXPECT_TRUE(complaint.contains(fault)) << complaint.toStdString();
        EXPECT_FALSE(QFile::exists(Target()));
    }
    EXPECT_EQ(Run(home.filePath("missing.txt")), 1);
    EXPECT_TRUE(complaint.contains("no se puede leer")) << complaint.toStdString();
}
