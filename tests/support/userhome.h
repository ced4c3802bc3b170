// A user of whom nothing else on the machine knows, with settings and catalogues of his own, and
// the programs that he runs.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// What a program came to. It is given a bounded time; the test fails if that isn't enough or if it
// crashes.
struct ToolRun {
    int code = -1;
    QString said;      // on standard output
    QString complaint; // on standard error
};

ToolRun RunTool(const QString& program, const QStringList& arguments,
                const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());

// Puts the flavour file of the agencies, which are called Zandora, into a folder.
void WriteAgencyFlavour(const QString& folder);

class UserHome {
public:
    // With the folders of the settings and of the session, and "data" for a catalogue.
    UserHome();

    QString Path(const QString& name = {}) const { return home.filePath(name); }
    QString Write(const QString& name, const QByteArray& bytes) const;
    QByteArray Read(const QString& name) const;

    // A delivered catalogue without rows in a folder, and then these statements.
    void MakeCatalogue(const QString& folder, const QByteArray& statements = {}) const;

    // Lines of the section Params, and of others behind it. The folder's catalogue is in use.
    void Settings(const QByteArray& lines, const QString& folder = "data",
                  const QString& application = "Lumenta") const;
    QByteArray SettingsText() const;

    // That of a program that he runs.
    QProcessEnvironment Environment() const;

private:
    QTemporaryDir home;
};
