// packdesign: packs the folder of a design into the one file that the program reads.
#include "tools/designfile.h"

#include "platform/fileops.h"

#include <QCoreApplication>
#include <QDir>
#include <cstdio>

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUse = 2;

void Say(const QString& line) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(line));
}

int Pack(const QString& folder, const QString& output, bool scramble) {
    PackReport report;
    const QByteArray file = PackDesign(folder, scramble, report);
    for (const QString& line : report.Lines()) {
        Say(QDir(folder).filePath(line));
    }
    if (report.HasErrors()) {
        return kFailed;
    }
    if (!ReplaceFile(output, file)) {
        Say(output + ": error: no se puede escribir el fichero");
        return kFailed;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool scramble = arguments.removeAll("--scramble") > 0;
    if (arguments.size() != 2 || arguments[0].startsWith("--")) {
        Say("Uso: packdesign [--scramble] CARPETA SALIDA.zdt");
        return kWrongUse;
    }
    return Pack(arguments[0], arguments[1], scramble);
}
