CREATE TABLE Products (ProductId INTEGER PRIMARY KEY, ProductRef TEXT COLLATE SPANISH,
 PriceAmount REAL NOT NULL DEFAULT 0, IsNew INTEGER NOT NULL DEFAULT 0,
 SaleZone TEXT COLLATE SPANISH);
CREATE TABLE Texts (TableName TEXT COLLATE NOCASE, ItemId TEXT COLLATE NOCASE,
 FieldDefId INTEGER, FieldValue TEXT COLLATE SPANISH);
INSERT INTO Products VALUES
 (10001, 'A-1', 10.5, 1, 'Ávila'),
 (10002, 'B-2', 20, 0, NULL),
 (10003, 'C-3', 30, 0, 'ávila');
INSERT INTO Texts VALUES
 ('Products', '10001', 0, 'Casa'),
 ('Products', '10001', 1, 'Lejos'),
 ('Products', '10002', 0, 'Piso'),
 ('Pictures', '10001', 0, 'Foto'),
 ('Products', NULL, 0, 'Nadie');
