#include "tools/wordtable.h"

#include <vector>

namespace {

constexpr QChar kSameInAll = '=';

QStringList Columns(const QString& line) {
    QStringList columns;
    for (const QString& column : line.split('|')) {
        columns += column.trimmed();
    }
    return columns;
}

bool IsRow(const QString& line) {
    return !line.trimmed().isEmpty() && !line.startsWith('#');
}

// The columns of a row below the first; of a word for all languages as many as there are languages.
QStringList RowColumns(const QString& line, qsizetype width) {
    if (!line.startsWith(kSameInAll)) {
        return Columns(line);
    }
    QStringList row = Columns(line.mid(1));
    if (row.size() == 2) {
        row += QStringList(qMax(qsizetype(0), width - 2), row.last());
    }
    return row;
}

bool CheckRow(const QStringList& row, qsizetype width, const SourcePlace& place,
              PackReport& report) {
    if (row.size() != width) {
        report.Error(place, QString("hay %1 columnas en vez de %2").arg(row.size()).arg(width));
        return false;
    }
    if (row.first().isEmpty()) {
        report.Error(place, "falta la etiqueta");
        return false;
    }
    if (row.join(QString()).contains('#')) {
        report.Error(place, "las palabras no pueden contener «#»");
        return false;
    }
    return true;
}

} // namespace

WordSection ReadWordTable(const SourceText& table, const SourcePlace& wanted, PackReport& report) {
    QStringList languages;
    std::vector<QStringList> columns; // tags, then the words of each language
    for (const SourceLine& line : table.lines) {
        if (!IsRow(line.text)) {
            continue;
        }
        const qsizetype width = qsizetype(columns.size());
        const QStringList row = RowColumns(line.text, width);
        if (columns.empty()) {
            languages = row.mid(1);
            columns.resize(std::size_t(row.size()));
        } else if (CheckRow(row, width, line.place, report)) {
            for (qsizetype i = 0; i < row.size(); ++i) {
                columns[std::size_t(i)] += row[i];
            }
        }
    }
    if (languages.isEmpty()) {
        report.Error(wanted, "la tabla de palabras no dice ningún idioma");
    }
    QStringList lists;
    for (const QStringList& column : columns) {
        lists += column.join('#');
    }
    return {languages.join('|'), lists.join('|')};
}
