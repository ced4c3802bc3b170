// Catalogues for tests: rows given as text in the test become a real store in a folder of its own,
// opened through the program's cursors.
//
// One row a line: what it is, then its values, separated by ";". Blanks around a value don't count,
// missing values and NULL are Null, "\n" is a line end (CR LF).
//   def; FieldDefId; Type; Caption; Choices; DefaultValue
//   product; ProductId; ProductRef; PriceAmount; IsNew; SaleZone; LastUpdate; currency, else EUR
//   field; ProductId; FieldDefId; FieldValue
//   fields; ProductId; value of field 0; of field 1; ...
//   picture; ProductId; ProdPictureId; OrderInForm
//   language; LangCode; Caption; Priority
//   textdef; TableName; FieldDefId; FieldName
//   text; TableName; ItemId; LangCode; FieldDefId; FieldValue
//   texts; TableName; ItemId; LangCode; value of text 0; of text 1; ...
//   corp; column of the company's row; value
#pragma once

#include "store/snapshot.h"

#include <QString>
#include <QTemporaryDir>

// Definitions of an agency's catalogue: the six fields that the portal reads, and its two texts.
extern const char kAgencyFields[];

class TestCatalogue {
public:
    // The settings are read anew and get this catalogue's folder; the company's data are loaded.
    explicit TestCatalogue(const QString& rows);
    ~TestCatalogue();

    QString Folder() const; // with a trailing "/"

    // Taken when first asked for.
    SiteSnapshot& Snapshot();

private:
    QTemporaryDir folder;
    SiteSnapshot snapshot;
};
