// Makes a catalogue store from SQL files: makestore STORE.zdb FILE.sql [FILE.sql ...]
//
// The files are read as UTF-8 and run in the order given. The store grows in a folder of its own
// beside its place and is moved there when it is whole, so that even a killed run leaves no half
// store. A store that exists is left alone. Exit code 0 when the store was made, 1 when it wasn't,
// 2 when the arguments are wrong.
#include "engine/storeengine.h"

#include <QFile>
#include <QStringDecoder>
#include <QStringList>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

// The text of a file, or nothing after a complaint: unreadable, or not UTF-8.
std::optional<QString> ReadStatements(const QString& path, QString& complaint) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        complaint = path + ": no se puede leer: " + file.errorString();
        return std::nullopt;
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(file.readAll());
    if (decoder.hasError()) {
        complaint = path + ": no es texto UTF-8";
        return std::nullopt;
    }
    return text;
}

// Fills a new store; the complaint stays empty when all went well.
QString FillStore(StoreConnection& store, const QStringList& files) {
    for (const QString& path : files) {
        QString complaint;
        const std::optional<QString> statements = ReadStatements(path, complaint);
        if (!statements) {
            return complaint;
        }
        try {
            store.Execute(*statements);
        } catch (const StoreError& error) {
            return path + ": " + error.Text();
        }
    }
    return {};
}

// Makes the store at its place, or leaves that place as it was.
QString MakeStore(const QString& path, const QStringList& files) {
    if (QFile::exists(path)) {
        return path + ": ya existe y no se sobrescribe";
    }
    const QTemporaryDir workshop(path + ".XXXXXX");
    if (!workshop.isValid()) {
        return path + ": no se puede crear: " + workshop.errorString();
    }
    const QString unfinished = workshop.filePath("Zandora.zdb");
    QString complaint;
    try {
        complaint = FillStore(*StoreConnection::Create(unfinished), files);
    } catch (const StoreError& error) {
        return path + ": " + error.Text();
    }
    if (complaint.isEmpty() && !QFile::rename(unfinished, path)) {
        complaint = path + ": no se puede crear";
    }
    return complaint;
}

} // namespace

int main(int argc, char* argv[]) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    QTextStream errors(stderr);
    if (arguments.size() < 2) {
        errors << "Uso: makestore ALMACÉN.zdb FICHERO.sql [FICHERO.sql ...]\n";
        return 2;
    }
    const QString complaint = MakeStore(arguments.first(), arguments.mid(1));
    if (complaint.isEmpty())
        return 0;
    errors << "makestore: " << complaint << '\n';
    return 1;
}
