#include "tests/support/userhome.h"

#include "tests/support/files.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 120'000; // milliseconds
constexpr char kSettings[] = "config/Lumenta/settings.ini";

} // namespace

ToolRun RunTool(const QString& program, const QStringList& arguments,
                const QProcessEnvironment& environment) {
    QProcess tool;
    tool.setProcessEnvironment(environment);
    tool.start(program, arguments);
    EXPECT_TRUE(tool.waitForFinished(kPatience)) << program.toStdString();
    EXPECT_EQ(tool.exitStatus(), QProcess::NormalExit) << program.toStdString();
    return {tool.exitCode(), QString::fromUtf8(tool.readAllStandardOutput()),
            QString::fromUtf8(tool.readAllStandardError())};
}

void WriteAgencyFlavour(const QString& folder) {
    QByteArray file = "ZAND\r\nINMO\r\nZandora\r\nInmueble\r\nInmuebles\r\nM\r\nZona\r\nZona del "
                      "inmueble\r\n[N/A]\r\n";
    std::transform(file.begin(), file.end(), file.begin(), std::bit_not<char>());
    WriteFile(folder + "/sector.dat", file + '\0');
}

UserHome::UserHome() {
    for (const char* folder : {"config/Lumenta", "config/Zandora", "run", "data"}) {
        QDir(home.path()).mkpath(folder);
    }
    QFile::setPermissions(Path("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString UserHome::Write(const QString& name, const QByteArray& bytes) const {
    return WriteFile(Path(name), bytes);
}

QByteArray UserHome::Read(const QString& name) const {
    return ReadFile(Path(name));
}

void UserHome::MakeCatalogue(const QString& folder, const QByteArray& statements) const {
    QDir(home.path()).mkpath(folder);
    const QString more = Write("more.sql", statements);
    const QString delivery = DELIVERY "/";
    const ToolRun made =
        RunTool(MAKESTORE, {Path(folder) + "/Zandora.zdb", delivery + "schema.sql",
                            delivery + "languages.sql", delivery + "texts.sql", more});
    EXPECT_EQ(made.code, 0) << made.complaint.toStdString();
}

void UserHome::Settings(const QByteArray& lines, const QString& folder,
                        const QString& application) const {
    Write("config/" + application + "/settings.ini",
          "[Params]\nDBpath=" + Path(folder).toUtf8() + "/\n" + lines);
}

QByteArray UserHome::SettingsText() const {
    return Read(kSettings);
}

QProcessEnvironment UserHome::Environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", Path("config"));
    environment.insert("XDG_RUNTIME_DIR", Path("run"));
    return environment;
}
