// The catalogue's statements and what the engine runs in their place: "SELECT TOP n" becomes LIMIT,
// a text in double quotes a literal; the rest stays as it stands.
#pragma once

#include <QByteArray>
#include <QString>

struct StatementText {
    QByteArray sql; // UTF-8

    // The same with the row id as an additional last column. Empty unless each row of the result
    // is a row of one table: one table without join or subquery, no DISTINCT, GROUP BY, HAVING,
    // aggregate or compound.
    QByteArray sqlWithRowId;
};

// kErrStatement for a text that is no single SELECT statement or that breaks off in a quote, a
// bracket or a parenthesis.
StatementText TranslateStatement(const QString& statement);
