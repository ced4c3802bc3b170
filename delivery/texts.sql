-- What texts exist per language, with the tag of each in a design, and the company's row, still
-- empty. The number of texts of a table is fixed in the program: it creates them as a set.

INSERT INTO MultiLangFieldDef (TableName, FieldDefId, FieldName) VALUES
    ('Products', 0, 'ShortDesc'),    -- "Descrip. breve:", the title; pages are named by it
    ('Products', 1, 'LongDesc'),     -- "Observaciones:", the description
    ('Products', 2, 'Category'),     -- "Categoría:", as Category or Category/Subcategory
    ('Pictures', 0, 'PicTitle'),     -- "Título:"
    ('Pictures', 1, 'PicComments'),  -- "Comentarios:"
    ('CorpInfo', 0, 'AboutText'),    -- "Comentario:", what the company says of itself
    ('CorpInfo', 1, 'FindUsText'),   -- "Situación y Horarios:", how to get there and when
    ('CorpInfo', 2, 'HomeTitle'),    -- "Título Portada:", heading of the home page
    ('CorpInfo', 3, 'AboutTitle');   -- "Quienes somos:", heading of the page about the company

INSERT INTO CorpInfo (Name, CIF, Phone, Fax, Cellular, Address, PostalCode, Zone, CorpLogo,
                      ExtraPicture, ContactEmail, FindUsMap, MRinfo0, MRinfo1, MRinfo2, MRinfo3,
                      MRinfo4, MRinfo5, MRinfo6)
VALUES ('', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '', '');
