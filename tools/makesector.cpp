// Makes a flavour file from its nine lines: makesector LINES.txt sector.dat
//
// LINES.txt is UTF-8: flavour brand (four characters), sector, program name, noun, plural, gender
// ("M" is masculine), caption and tip of the category field, caption of the logo box ("[N/A]" hides
// it). sector.dat holds them in Windows-1252, separated by CR LF, every byte complemented against
// 255, and one more byte at the end, which readers cut.
#include "core/flavour.h"
#include "platform/fileops.h"
#include "text/ansi.h"

#include <QFile>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kBrandLength = 4;
constexpr char kCutByte = '\0';

[[nodiscard]] int Fail(const QString& text) {
    std::fprintf(stderr, "makesector: %s\n", qUtf8Printable(text));
    return EXIT_FAILURE;
}

// The lines without their ends; the file's last line end and a byte order mark don't count.
QStringList SplitLines(const QByteArray& bytes) {
    QString text = QString::fromUtf8(bytes).replace("\r\n", "\n");
    if (text.startsWith(QChar::ByteOrderMark)) {
        text.remove(0, 1);
    }
    if (text.endsWith('\n')) {
        text.chop(1);
    }
    return text.split('\n');
}

// What is wrong with the lines, in words for whoever wrote them; empty if nothing.
QString FaultOf(const QStringList& lines) {
    if (lines.size() != kFlavourLines) {
        return QStringLiteral("el fichero tiene %1 líneas y debe tener %2")
            .arg(lines.size())
            .arg(kFlavourLines);
    }
    for (int line = 0; line < kFlavourLines; ++line) {
        if (lines[line].trimmed().isEmpty()) {
            return QStringLiteral("la línea %1 está vacía").arg(line + 1);
        }
        if (lines[line].contains('\r') || FromAnsi(ToAnsi(lines[line])) != lines[line]) {
            return QStringLiteral("la línea %1 tiene un carácter que no existe en Windows-1252")
                .arg(line + 1);
        }
    }
    if (lines[0].size() != kBrandLength) {
        return QStringLiteral("la línea 1 debe tener %1 caracteres").arg(kBrandLength);
    }
    return {};
}

QByteArray SectorBytes(const QStringList& lines) {
    QByteArray bytes = ToAnsi(lines.join("\r\n"));
    for (char& byte : bytes) {
        byte = static_cast<char>(~byte);
    }
    return bytes + kCutByte;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        return Fail("uso: makesector LINEAS.txt sector.dat");
    }
    const QString source = QFile::decodeName(argv[1]);
    const QString target = QFile::decodeName(argv[2]);
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly)) {
        return Fail(QStringLiteral("no se puede leer %1: %2").arg(source, file.errorString()));
    }
    const QByteArray bytes = file.readAll();
    if (!bytes.isValidUtf8()) {
        return Fail(source + ": el fichero no está en UTF-8");
    }
    const QStringList lines = SplitLines(bytes);
    const QString fault = FaultOf(lines);
    if (!fault.isEmpty()) {
        return Fail(source + ": " + fault);
    }
    if (!ReplaceFile(target, SectorBytes(lines))) {
        return Fail("no se puede escribir " + target);
    }
    return EXIT_SUCCESS;
}
