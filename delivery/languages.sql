-- The languages that a user can choose from, as the program names them. The configuration offers
-- those of them that the chosen design has.

INSERT INTO Languages (LangCode, Caption, Priority) VALUES
    ('ES', 'Español',   1),
    ('EN', 'Inglés',    2),
    ('DE', 'Alemán',    3),
    ('FR', 'Francés',   4),
    ('CA', 'Catalán',   5),
    ('IT', 'Italiano',  6),
    ('PT', 'Portugués', 7);
