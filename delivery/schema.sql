-- The tables of a catalogue store (Zandora.zdb), a line a column.
--
-- Texts that users type are COLLATE SPANISH, the collation that the program's own connection
-- provides, so that "=", ORDER BY and GROUP BY go by Spanish usage. No index stands on such a
-- column: any other SQLite tool can therefore add and change rows. Codes are COLLATE NOCASE.
-- Dates are ISO 8601 texts to the second ('2024-03-18T17:05:00'), so that they sort.
-- No UNIQUE but Products' key: child rows are committed before their product, in an order of the
-- program's own.

PRAGMA application_id = 1280658737;      -- "LUM1": tells a catalogue from any other SQLite file
PRAGMA user_version = 1;                 -- version of this schema

-- One row a product (a property in the real-estate catalogue).
CREATE TABLE Products (
    ProductId     INTEGER PRIMARY KEY,             -- 10001 and up: highest in use + 1
    ProductRef    TEXT COLLATE SPANISH,            -- unique, at most 10 of A-Z 0-9 - _
    PriceAmount   REAL DEFAULT 0,                  -- 0: price on request
    PriceCurrency TEXT COLLATE NOCASE DEFAULT 'EUR',
    IsNew         INTEGER DEFAULT 0,               -- 0 published, 1 on the home page, 2 archived
    SaleZone      TEXT COLLATE SPANISH,            -- zone, the same in every language
    LastUpdate    TEXT                             -- last change that the web site must show
);

-- The values of a product's fields.
CREATE TABLE ProductFields (
    ProductId     INTEGER NOT NULL,                -- owner
    FieldDefId    INTEGER NOT NULL,                -- which field: a row of ProductFieldDef
    FieldValue    TEXT COLLATE SPANISH             -- text; check box 0 or 1; option list: index
);
CREATE INDEX ProductFieldsByProduct ON ProductFields (ProductId, FieldDefId);

-- The fields that this catalogue's products have.
CREATE TABLE ProductFieldDef (
    FieldDefId    INTEGER NOT NULL,                -- dense from 0; internal fields come last
    Type          TEXT COLLATE NOCASE NOT NULL,    -- B yes/no, O option list, I internal, else text
    Choices       TEXT COLLATE SPANISH,            -- option list: ESRojo#ENRed|ESVerde#ENGreen
    Caption       TEXT COLLATE SPANISH,            -- ESColor#ENColour; internal field: plain text
    ToolTipText   TEXT COLLATE SPANISH,            -- in Spanish
    DefaultValue  TEXT COLLATE SPANISH             -- value of a new product, as in ProductFields
);

-- The pictures of the products; their files lie beside the store.
CREATE TABLE Pictures (
    ProductId     INTEGER NOT NULL,                -- owner
    ProdPictureId INTEGER NOT NULL,                -- number within the product, from 1
    PictureId     INTEGER,                         -- ProductId * 100 + ProdPictureId
    OrderInForm   INTEGER,                         -- place in the album, dense from 0
    PicturePath   TEXT COLLATE NOCASE,             -- 'Pic1000101.dat': file in the store's folder
    LastUpdate    TEXT                             -- last change of the picture
);
CREATE INDEX PicturesByProduct ON Pictures (ProductId);

-- Every text that exists per language.
CREATE TABLE MultiLangFields (
    TableName     TEXT COLLATE NOCASE NOT NULL,    -- Products, Pictures or CorpInfo
    ItemId        TEXT COLLATE NOCASE NOT NULL,    -- ProductId or PictureId as text; CorpInfo: '0'
    LangCode      TEXT COLLATE NOCASE NOT NULL,    -- two letters
    FieldDefId    INTEGER NOT NULL,                -- which text: a row of MultiLangFieldDef
    FieldValue    TEXT COLLATE SPANISH             -- the text; lines end in CR LF
);
CREATE INDEX MultiLangFieldsByItem
    ON MultiLangFields (TableName, ItemId, LangCode, FieldDefId);

-- The categories in use, which the editor suggests at each key. The engine's own order of bytes, so
-- that other tools can write the table.
CREATE INDEX CategoriesInUse
    ON MultiLangFields (LangCode, FieldValue COLLATE BINARY)
    WHERE TableName='Products' AND FieldDefId=2;

-- What the texts per language are; FieldName in upper case is their tag in a design.
CREATE TABLE MultiLangFieldDef (
    TableName     TEXT COLLATE NOCASE NOT NULL,    -- as in MultiLangFields
    FieldDefId    INTEGER NOT NULL,                -- dense from 0 within the table
    FieldName     TEXT COLLATE NOCASE NOT NULL     -- ShortDesc is %%SHORTDESC%% in a design
);

-- The languages that a user can choose from.
CREATE TABLE Languages (
    LangCode      TEXT COLLATE NOCASE NOT NULL,    -- two letters
    Caption       TEXT COLLATE SPANISH,            -- the language's name in Spanish
    Priority      INTEGER NOT NULL                 -- lower ones stand first
);

-- The company: exactly one row.
CREATE TABLE CorpInfo (
    Name          TEXT COLLATE SPANISH,            -- trade name
    CIF           TEXT COLLATE SPANISH,            -- tax number
    Phone         TEXT COLLATE SPANISH,
    Fax           TEXT COLLATE SPANISH,
    Cellular      TEXT COLLATE SPANISH,
    Address       TEXT COLLATE SPANISH,            -- street, may have several lines
    PostalCode    TEXT COLLATE SPANISH,
    Zone          TEXT COLLATE SPANISH,            -- town
    CorpLogo      TEXT COLLATE NOCASE,             -- 'CorpLogo.dat' in the store's folder, or empty
    ExtraPicture  TEXT COLLATE NOCASE,             -- 'ExtraImage.dat', the premises, or empty
    ContactEmail  TEXT COLLATE SPANISH,
    FindUsMap     TEXT COLLATE NOCASE,             -- 'FindUsMap.dat', or empty
    MRinfo0       TEXT COLLATE SPANISH,            -- mercantile register: town
    MRinfo1       TEXT COLLATE SPANISH,            -- volume
    MRinfo2       TEXT COLLATE SPANISH,            -- book
    MRinfo3       TEXT COLLATE SPANISH,            -- folio
    MRinfo4       TEXT COLLATE SPANISH,            -- section
    MRinfo5       TEXT COLLATE SPANISH,            -- sheet
    MRinfo6       TEXT COLLATE SPANISH,            -- entry
    LastUpdate    TEXT                             -- last change of the company's data
);
