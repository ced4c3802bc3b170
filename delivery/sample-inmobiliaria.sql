-- A sample catalogue of an estate agency: twenty-four properties between Peñíscola and Altea, of
-- every type, in Spanish, English, German and French. It has what real agencies have: homes without
-- a picture, with one and with eight, floor plans, rents, one without a price, one reserved, one
-- sold and archived, zones with an apostrophe and with quotes, and the agency's own notes on owners
-- and clients. The agency, its people, addresses and numbers are invented.

UPDATE CorpInfo SET
    Name = 'Alcor y Mar',
    CIF = 'B00000000',
    Phone = '965 000 024',
    Fax = '965 000 025',
    Cellular = '600 000 024',
    Address = 'Avenida de los Pinares, 24',
    PostalCode = '03730',
    Zone = 'Jávea (Alicante)',
    CorpLogo = 'CorpLogo.dat',
    ExtraPicture = 'ExtraImage.dat',
    ContactEmail = 'oficina@example.com',
    FindUsMap = 'FindUsMap.dat',
    MRinfo0 = 'Alicante',
    MRinfo1 = '1024',
    MRinfo2 = '0',
    MRinfo3 = '24',
    MRinfo4 = '8',
    MRinfo5 = 'A-00000',
    MRinfo6 = '1',
    LastUpdate = '2026-10-21T10:00:00';

INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('CorpInfo', '0', 'ES', 0,
        'Somos una agencia pequeña, de cuatro personas, que trabaja desde 1996 entre Peñíscola '
        || 'y Altea. Sólo llevamos casas que hemos visitado, medido y fotografiado nosotros, y de '
        || 'cada una le diremos también lo que no sale en las fotos. Le acompañamos en la notaría, '
        || 'con los suministros y, si hace falta, con el fontanero. Hablamos español, valenciano, '
        || 'inglés, alemán y francés.'),
    ('CorpInfo', '0', 'ES', 1,
        'La oficina está en la Avenida de los Pinares, entre el pueblo y la playa del Arenal, '
        || 'con aparcamiento delante de la puerta. De lunes a viernes de 9.30 a 14 y de 16.30 a '
        || '19.30 horas; los sábados, de 10 a 13.30. Fuera de ese horario atendemos con cita, '
        || 'también en su hotel.'),
    ('CorpInfo', '0', 'ES', 2, 'Casas con mar, monte y vecinos'),
    ('CorpInfo', '0', 'ES', 3, 'Quiénes somos'),
    ('CorpInfo', '0', 'EN', 0,
        'We are a small agency of four people, at work between Peñíscola and Altea since 1996. '
        || 'We only offer homes that we have visited, measured and photographed ourselves, and of '
        || 'each one we will also tell you what the photographs do not show. We go with you to the '
        || 'notary, help with the utilities and, if need be, with the plumber. We speak Spanish, '
        || 'Valencian, English, German and French.'),
    ('CorpInfo', '0', 'EN', 1,
        'The office is on Avenida de los Pinares, between the village and the Arenal beach, '
        || 'with parking in front of the door. Monday to Friday from 9.30 to 14 and from 16.30 to '
        || '19.30; Saturdays from 10 to 13.30. Outside these hours we see you by appointment, also '
        || 'at your hotel.'),
    ('CorpInfo', '0', 'EN', 2, 'Homes with sea, hills and neighbours'),
    ('CorpInfo', '0', 'EN', 3, 'Who we are'),
    ('CorpInfo', '0', 'DE', 0,
        'Wir sind eine kleine Agentur mit vier Personen und arbeiten seit 1996 zwischen '
        || 'Peñíscola und Altea. Wir bieten nur Häuser an, die wir selbst besucht, vermessen und '
        || 'fotografiert haben, und sagen Ihnen zu jedem auch, was die Fotos nicht zeigen. Wir '
        || 'begleiten Sie zum Notar, helfen bei den Anschlüssen und, wenn nötig, mit dem Klempner. '
        || 'Wir sprechen Spanisch, Valencianisch, Englisch, Deutsch und Französisch.'),
    ('CorpInfo', '0', 'DE', 1,
        'Das Büro liegt in der Avenida de los Pinares, zwischen Ort und Arenal-Strand, mit '
        || 'Parkplatz vor der Tür. Montag bis Freitag von 9.30 bis 14 und von 16.30 bis 19.30 Uhr, '
        || 'samstags von 10 bis 13.30 Uhr. Außerhalb dieser Zeiten nach Vereinbarung, auch in '
        || 'Ihrem Hotel.'),
    ('CorpInfo', '0', 'DE', 2, 'Häuser mit Meer, Bergen und Nachbarn'),
    ('CorpInfo', '0', 'DE', 3, 'Wer wir sind'),
    ('CorpInfo', '0', 'FR', 0,
        'Nous sommes une petite agence de quatre personnes, active depuis 1996 entre Peñíscola '
        || 'et Altea. Nous ne proposons que des maisons que nous avons visitées, mesurées et '
        || 'photographiées nous-mêmes, et nous vous dirons aussi ce que les photos ne montrent '
        || 'pas. Nous vous accompagnons chez le notaire, pour les compteurs et, au besoin, avec le '
        || 'plombier. Nous parlons espagnol, valencien, anglais, allemand et français.'),
    ('CorpInfo', '0', 'FR', 1,
        'L''agence se trouve Avenida de los Pinares, entre le village et la plage de l''Arenal, '
        || 'avec parking devant la porte. Du lundi au vendredi de 9 h 30 à 14 h et de 16 h 30 à 19 '
        || 'h 30 ; le samedi de 10 h à 13 h 30. En dehors de ces heures, sur rendez-vous, '
        || 'également à votre hôtel.'),
    ('CorpInfo', '0', 'FR', 2, 'Des maisons avec la mer, les collines et des voisins'),
    ('CorpInfo', '0', 'FR', 3, 'Qui sommes-nous');

-- JV-101  Villa mediterránea con piscina
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10001, 'JV-101', 685000, 1, 'Jávea-Arenal', '2026-10-19T12:10:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10001, 0, '285'), (10001, 1, '1'), (10001, 2, '1'), (10001, 3, '4'), (10001, 4, '3'),
    (10001, 5, '1'), (10001, 6, '240'), (10001, 7, '1.050'), (10001, 8, ''), (10001, 9, '2006'),
    (10001, 10, ''), (10001, 11, '2'), (10001, 12, '5'), (10001, 13, '4'), (10001, 14, '3'),
    (10001, 15, '0'), (10001, 16, '1'), (10001, 17, '1'), (10001, 18, '1'), (10001, 19, '1'),
    (10001, 20, '1'), (10001, 21, '1'), (10001, 22, 'Camino de los Almendros, 12'),
    (10001, 23, '0000000BC5900S0001AA'), (10001, 24, 'En la oficina'), (10001, 25, '650.000'),
    (10001, 26, 'Hipoteca pendiente de 120.000 euros'), (10001, 27, 'Peter Brandt'),
    (10001, 28, '600 000 101'), (10001, 29, 'brandt@example.com'),
    (10001, 30, '12/10: le gustó; vuelve con su mujer'), (10001, 31, 'Amparo Ferrer Ivars'),
    (10001, 32, '600 000 201'), (10001, 33, 'Calle Mayor, 3, Gata'), (10001, 34, '4 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10001', 'ES', 0, 'Villa mediterránea con piscina'),
    ('Products', '10001', 'ES', 1,
        'Villa de dos plantas en parcela llana y ajardinada, a diez minutos a pie de la playa '
        || 'del Arenal. En la planta baja, salón con salida al porche y a la piscina, cocina '
        || 'independiente y un dormitorio con baño; arriba, cuatro dormitorios más y un balcón con '
        || 'vistas al Montgó. Reformada en 2021, con placas solares y riego por goteo. El jardín, '
        || 'con riego y seto en todo el perímetro, se mantiene casi solo.'),
    ('Products', '10001', 'ES', 2, 'Venta/Villas'),
    ('Products', '10001', 'EN', 0, 'Mediterranean villa with pool'),
    ('Products', '10001', 'EN', 1,
        'Two-storey villa on a level, landscaped plot ten minutes on foot from the Arenal '
        || 'beach. Downstairs there is a living room that opens onto the porch and the pool, a '
        || 'separate kitchen and a bedroom with bathroom; upstairs, four more bedrooms and a '
        || 'balcony facing the Montgó. Renovated in 2021, with solar panels and drip irrigation. '
        || 'The garden, watered and hedged all around, almost looks after itself.'),
    ('Products', '10001', 'EN', 2, 'For sale/Villas'),
    ('Products', '10001', 'DE', 0, 'Mediterrane Villa mit Pool'),
    ('Products', '10001', 'DE', 1,
        'Zweigeschossige Villa auf ebenem, angelegtem Grundstück, zehn Gehminuten vom '
        || 'Arenal-Strand. Im Erdgeschoss Wohnzimmer mit Zugang zu Veranda und Pool, separate '
        || 'Küche und ein Schlafzimmer mit Bad; oben vier weitere Schlafzimmer und ein Balkon mit '
        || 'Blick auf den Montgó. 2021 renoviert, mit Solaranlage und Tropfbewässerung. Der '
        || 'Garten, bewässert und rundum von einer Hecke umgeben, pflegt sich fast von selbst.'),
    ('Products', '10001', 'DE', 2, 'Kauf/Villen'),
    ('Products', '10001', 'FR', 0, 'Villa méditerranéenne avec piscine'),
    ('Products', '10001', 'FR', 1,
        'Villa de deux étages sur un terrain plat et paysager, à dix minutes à pied de la plage '
        || 'de l''Arenal. Au rez-de-chaussée, un séjour ouvert sur le porche et la piscine, une '
        || 'cuisine indépendante et une chambre avec salle de bains ; à l''étage, quatre autres '
        || 'chambres et un balcon face au Montgó. Rénovée en 2021, avec panneaux solaires et '
        || 'arrosage goutte à goutte. Le jardin, arrosé et clos d''une haie, s''entretient presque '
        || 'tout seul.'),
    ('Products', '10001', 'FR', 2, 'Vente/Villas'),
    ('Pictures', '1000101', 'ES', 0, 'La casa desde el jardín'),
    ('Pictures', '1000101', 'ES', 1, 'El porche da sombra en las horas de más calor.'),
    ('Pictures', '1000101', 'EN', 0, 'The house from the garden'),
    ('Pictures', '1000101', 'EN', 1, 'The porch gives shade in the hottest hours.'),
    ('Pictures', '1000101', 'DE', 0, 'Das Haus vom Garten aus'),
    ('Pictures', '1000101', 'DE', 1, 'Die Veranda spendet in den heißesten Stunden Schatten.'),
    ('Pictures', '1000101', 'FR', 0, 'La maison depuis le jardin'),
    ('Pictures', '1000101', 'FR', 1, 'Le porche donne de l''ombre aux heures les plus chaudes.'),
    ('Pictures', '1000102', 'ES', 0, 'Salón'),
    ('Pictures', '1000102', 'ES', 1, 'Ventanal con salida directa a la piscina.'),
    ('Pictures', '1000102', 'EN', 0, 'Living room'),
    ('Pictures', '1000102', 'EN', 1, 'Glass doors lead straight to the pool.'),
    ('Pictures', '1000102', 'DE', 0, 'Wohnzimmer'),
    ('Pictures', '1000102', 'DE', 1, 'Große Fenstertüren führen direkt zum Pool.'),
    ('Pictures', '1000102', 'FR', 0, 'Séjour'),
    ('Pictures', '1000102', 'FR', 1, 'Baie vitrée donnant directement sur la piscine.'),
    ('Pictures', '1000103', 'ES', 0, 'Cocina'),
    ('Pictures', '1000103', 'ES', 1, 'Isla de granito con tres taburetes y ventana al jardín.'),
    ('Pictures', '1000103', 'EN', 0, 'Kitchen'),
    ('Pictures', '1000103', 'EN', 1,
        'Granite island with three stools and a window on the garden.'),
    ('Pictures', '1000103', 'DE', 0, 'Küche'),
    ('Pictures', '1000103', 'DE', 1, 'Granitinsel mit drei Hockern und Fenster zum Garten.'),
    ('Pictures', '1000103', 'FR', 0, 'Cuisine'),
    ('Pictures', '1000103', 'FR', 1,
        'Îlot de granit avec trois tabourets et fenêtre sur le jardin.'),
    ('Pictures', '1000104', 'ES', 0, 'Dormitorio principal'),
    ('Pictures', '1000104', 'ES', 1, 'Armario de pared a pared y luz de mañana.'),
    ('Pictures', '1000104', 'EN', 0, 'Main bedroom'),
    ('Pictures', '1000104', 'EN', 1, 'Wall-to-wall wardrobe and morning light.'),
    ('Pictures', '1000104', 'DE', 0, 'Hauptschlafzimmer'),
    ('Pictures', '1000104', 'DE', 1, 'Schrank von Wand zu Wand und Morgenlicht.'),
    ('Pictures', '1000104', 'FR', 0, 'Chambre principale'),
    ('Pictures', '1000104', 'FR', 1, 'Armoire d''un mur à l''autre et lumière du matin.'),
    ('Pictures', '1000105', 'ES', 0, 'Terraza'),
    ('Pictures', '1000105', 'ES', 1, 'Pérgola de madera y el Montgó al fondo.'),
    ('Pictures', '1000105', 'EN', 0, 'Terrace'),
    ('Pictures', '1000105', 'EN', 1, 'Timber pergola with the Montgó behind.'),
    ('Pictures', '1000105', 'DE', 0, 'Terrasse'),
    ('Pictures', '1000105', 'DE', 1, 'Holzpergola, im Hintergrund der Montgó.'),
    ('Pictures', '1000105', 'FR', 0, 'Terrasse'),
    ('Pictures', '1000105', 'FR', 1, 'Pergola de bois et le Montgó au fond.'),
    ('Pictures', '1000106', 'ES', 0, 'Plano'),
    ('Pictures', '1000106', 'ES', 1, 'Planta baja; superficies útiles orientativas.'),
    ('Pictures', '1000106', 'EN', 0, 'Floor plan'),
    ('Pictures', '1000106', 'EN', 1, 'Ground floor; usable areas are approximate.'),
    ('Pictures', '1000106', 'DE', 0, 'Grundriss'),
    ('Pictures', '1000106', 'DE', 1, 'Erdgeschoss, Nutzflächen ohne Gewähr.'),
    ('Pictures', '1000106', 'FR', 0, 'Plan'),
    ('Pictures', '1000106', 'FR', 1, 'Rez-de-chaussée ; surfaces utiles indicatives.'),
    ('Pictures', '1000107', 'ES', 0, 'Baño'),
    ('Pictures', '1000107', 'ES', 1, 'El de la planta alta, con bañera y ventana.'),
    ('Pictures', '1000107', 'EN', 0, 'Bathroom'),
    ('Pictures', '1000107', 'EN', 1, 'The one upstairs, with bathtub and window.'),
    ('Pictures', '1000107', 'DE', 0, 'Bad'),
    ('Pictures', '1000107', 'DE', 1, 'Im Obergeschoss, mit Wanne und Fenster.'),
    ('Pictures', '1000107', 'FR', 0, 'Salle de bains'),
    ('Pictures', '1000107', 'FR', 1, 'Celle de l''étage, avec baignoire et fenêtre.'),
    ('Pictures', '1000108', 'ES', 0, 'Dormitorio de invitados'),
    ('Pictures', '1000108', 'ES', 1, 'El de la planta baja, junto al baño.'),
    ('Pictures', '1000108', 'EN', 0, 'Guest bedroom'),
    ('Pictures', '1000108', 'EN', 1, 'The one on the ground floor, beside the bathroom.'),
    ('Pictures', '1000108', 'DE', 0, 'Gästezimmer'),
    ('Pictures', '1000108', 'DE', 1, 'Im Erdgeschoss, neben dem Bad.'),
    ('Pictures', '1000108', 'FR', 0, 'Chambre d''amis'),
    ('Pictures', '1000108', 'FR', 1, 'Celle du rez-de-chaussée, à côté de la salle de bains.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10001, 1, 1000101, 0, 'Pic1000101.dat', '2026-10-19T12:10:00'),
    (10001, 2, 1000102, 1, 'Pic1000102.dat', '2026-10-19T12:10:00'),
    (10001, 3, 1000103, 2, 'Pic1000103.dat', '2026-10-19T12:10:00'),
    (10001, 4, 1000104, 3, 'Pic1000104.dat', '2026-10-19T12:10:00'),
    (10001, 5, 1000105, 4, 'Pic1000105.dat', '2026-10-19T12:10:00'),
    (10001, 6, 1000106, 5, 'Pic1000106.dat', '2026-10-19T12:10:00'),
    (10001, 7, 1000107, 6, 'Pic1000107.dat', '2026-10-19T12:10:00'),
    (10001, 8, 1000108, 7, 'Pic1000108.dat', '2026-10-19T12:10:00');

-- JV-102  Ático con terraza frente al mar
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10002, 'JV-102', 420000, 1, 'Jávea-Puerto', '2026-10-16T09:30:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10002, 0, '128'), (10002, 1, '2'), (10002, 2, '0'), (10002, 3, '3'), (10002, 4, '2'),
    (10002, 5, '0'), (10002, 6, '104'), (10002, 7, ''), (10002, 8, '6'), (10002, 9, '2018'),
    (10002, 10, '145'), (10002, 11, '0'), (10002, 12, '4'), (10002, 13, '4'), (10002, 14, '2'),
    (10002, 15, '1'), (10002, 16, '1'), (10002, 17, '1'), (10002, 18, '1'), (10002, 19, '0'),
    (10002, 20, '1'), (10002, 21, '1'), (10002, 22, 'Avenida del Puerto, 40, 6.º A'),
    (10002, 23, '0000000BC5900S0002BB'), (10002, 24, 'Conserje del edificio'),
    (10002, 25, '405.000'), (10002, 26, 'Sin cargas'), (10002, 27, 'Claire Dubois'),
    (10002, 28, '600 000 102'), (10002, 29, 'dubois@example.com'),
    (10002, 30, '15/10: visita con arquitecto'), (10002, 31, 'Promociones Tossal'),
    (10002, 32, '600 000 202'), (10002, 33, 'Calle Colón, 18, Valencia'), (10002, 34, '3 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10002', 'ES', 0, 'Ático con terraza frente al mar'),
    ('Products', '10002', 'ES', 1,
        'Última planta de un edificio moderno en primera línea del puerto. El salón se abre por '
        || 'completo a una terraza de 46 metros cuadrados, con toldo y suelo de madera, desde la '
        || 'que se ven salir las barcas. Tres dormitorios dobles, dos baños, cocina equipada, '
        || 'plaza de garaje doble y piscina comunitaria en la azotea. Se puede vivir todo el año: '
        || 'la calefacción va por bomba de calor.'),
    ('Products', '10002', 'ES', 2, 'Venta/Áticos'),
    ('Products', '10002', 'EN', 0, 'Penthouse with terrace facing the sea'),
    ('Products', '10002', 'EN', 1,
        'Top floor of a modern building on the front line of the port. The living room opens '
        || 'completely onto a terrace of 46 square metres, with awning and timber deck, from which '
        || 'you can watch the boats leave. Three double bedrooms, two bathrooms, fitted kitchen, a '
        || 'double parking space and a shared pool on the roof. Fit for the whole year: it is '
        || 'heated by a heat pump.'),
    ('Products', '10002', 'EN', 2, 'For sale/Penthouses'),
    ('Products', '10002', 'DE', 0, 'Penthouse mit Meerblickterrasse'),
    ('Products', '10002', 'DE', 1,
        'Oberstes Geschoss eines modernen Gebäudes in erster Linie am Hafen. Das Wohnzimmer '
        || 'öffnet sich ganz zu einer 46 Quadratmeter großen Terrasse mit Markise und Holzboden, '
        || 'von der man die Boote auslaufen sieht. Drei Doppelzimmer, zwei Bäder, Einbauküche, '
        || 'doppelter Stellplatz und Gemeinschaftspool auf dem Dach. Das ganze Jahr bewohnbar: '
        || 'Geheizt wird mit einer Wärmepumpe.'),
    ('Products', '10002', 'DE', 2, 'Kauf/Dachwohnungen'),
    ('Products', '10002', 'FR', 0, 'Attique avec terrasse face à la mer'),
    ('Products', '10002', 'FR', 1,
        'Dernier étage d''un immeuble moderne en première ligne du port. Le séjour s''ouvre '
        || 'entièrement sur une terrasse de 46 mètres carrés, avec store et plancher de bois, '
        || 'd''où l''on voit partir les bateaux. Trois chambres doubles, deux salles de bains, '
        || 'cuisine équipée, place de parking double et piscine commune sur le toit. Habitable '
        || 'toute l''année : le chauffage est assuré par une pompe à chaleur.'),
    ('Products', '10002', 'FR', 2, 'Vente/Attiques'),
    ('Pictures', '1000201', 'ES', 0, 'La terraza y el mar'),
    ('Pictures', '1000201', 'ES', 1, 'Barandilla de vidrio y toldo en todo el frente.'),
    ('Pictures', '1000201', 'EN', 0, 'The terrace and the sea'),
    ('Pictures', '1000201', 'EN', 1, 'Glass railing and awning along the whole front.'),
    ('Pictures', '1000201', 'DE', 0, 'Die Terrasse und das Meer'),
    ('Pictures', '1000201', 'DE', 1, 'Glasgeländer und Markise über die ganze Front.'),
    ('Pictures', '1000201', 'FR', 0, 'La terrasse et la mer'),
    ('Pictures', '1000201', 'FR', 1, 'Garde-corps en verre et store sur toute la façade.'),
    ('Pictures', '1000202', 'ES', 0, 'Salón'),
    ('Pictures', '1000202', 'ES', 1, 'Al abrir el ventanal se suma a la terraza.'),
    ('Pictures', '1000202', 'EN', 0, 'Living room'),
    ('Pictures', '1000202', 'EN', 1, 'Open the glass doors and it joins the terrace.'),
    ('Pictures', '1000202', 'DE', 0, 'Wohnzimmer'),
    ('Pictures', '1000202', 'DE', 1, 'Bei offenen Fenstertüren eins mit der Terrasse.'),
    ('Pictures', '1000202', 'FR', 0, 'Séjour'),
    ('Pictures', '1000202', 'FR', 1, 'Baie ouverte, il se prolonge sur la terrasse.'),
    ('Pictures', '1000203', 'ES', 0, 'El edificio'),
    ('Pictures', '1000203', 'ES', 1, 'Seis plantas y comercios en los bajos.'),
    ('Pictures', '1000203', 'EN', 0, 'The building'),
    ('Pictures', '1000203', 'EN', 1, 'Six floors, with shops below.'),
    ('Pictures', '1000203', 'DE', 0, 'Das Gebäude'),
    ('Pictures', '1000203', 'DE', 1, 'Sechs Stockwerke, unten Geschäfte.'),
    ('Pictures', '1000203', 'FR', 0, 'L''immeuble'),
    ('Pictures', '1000203', 'FR', 1, 'Six étages, commerces au rez-de-chaussée.'),
    ('Pictures', '1000204', 'ES', 0, 'Dormitorio principal'),
    ('Pictures', '1000204', 'ES', 1, 'Azul como lo que se ve por la ventana.'),
    ('Pictures', '1000204', 'EN', 0, 'Main bedroom'),
    ('Pictures', '1000204', 'EN', 1, 'Blue like the view from its window.'),
    ('Pictures', '1000204', 'DE', 0, 'Hauptschlafzimmer'),
    ('Pictures', '1000204', 'DE', 1, 'Blau wie der Blick aus dem Fenster.'),
    ('Pictures', '1000204', 'FR', 0, 'Chambre principale'),
    ('Pictures', '1000204', 'FR', 1, 'Bleue comme ce qu''on voit de sa fenêtre.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10002, 1, 1000201, 0, 'Pic1000201.dat', '2026-10-16T09:30:00'),
    (10002, 2, 1000202, 1, 'Pic1000202.dat', '2026-10-16T09:30:00'),
    (10002, 3, 1000203, 2, 'Pic1000203.dat', '2026-10-16T09:30:00'),
    (10002, 4, 1000204, 3, 'Pic1000204.dat', '2026-10-16T09:30:00');

-- JV-103  Piso con vigas de madera en el casco antiguo
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10003, 'JV-103', 189000, 0, 'Jávea-Casco antiguo', '2026-09-30T17:00:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10003, 0, '112'), (10003, 1, '0'), (10003, 2, '0'), (10003, 3, '3'), (10003, 4, '1'),
    (10003, 5, '0'), (10003, 6, '93'), (10003, 7, ''), (10003, 8, '2'), (10003, 9, '1968'),
    (10003, 10, '30'), (10003, 11, '2'), (10003, 12, '6'), (10003, 13, '1'), (10003, 14, '5'),
    (10003, 15, '0'), (10003, 16, '0'), (10003, 17, '0'), (10003, 18, '1'), (10003, 19, '0'),
    (10003, 20, '0'), (10003, 21, '1'), (10003, 22, 'Plaza de Baix, 6, 2.º'),
    (10003, 23, '0000000BC5900S0003CC'), (10003, 24, 'Vecina del primero'), (10003, 25, '180.000'),
    (10003, 26, 'Sin cargas'), (10003, 27, 'Laura Montaner'), (10003, 28, '600 000 103'),
    (10003, 29, 'montaner@example.com'), (10003, 30, '2/10 y 9/10'),
    (10003, 31, 'Hermanos Bisbal'), (10003, 32, '600 000 203'),
    (10003, 33, 'Calle Nueva, 21, Jávea'), (10003, 34, '4 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10003', 'ES', 0, 'Piso con vigas de madera en el casco antiguo'),
    ('Products', '10003', 'ES', 1,
        'Segundo piso de una finca de cuatro vecinos, a dos calles del mercado. Salón comedor '
        || 'con vigas de madera y suelo de barro cocido, abierto a una terraza de ocho metros; '
        || 'cocina reformada con sitio para comer, tres dormitorios dobles y un baño amplio. Un '
        || 'pasillo ancho separa la zona de día de la de noche. Sin ascensor, con gastos de '
        || 'comunidad muy bajos.'),
    ('Products', '10003', 'ES', 2, 'Venta/Pisos'),
    ('Products', '10003', 'EN', 0, 'Flat with timber beams in the old town'),
    ('Products', '10003', 'EN', 1,
        'Second-floor flat in a house of four neighbours, two streets from the market. Living '
        || 'and dining room with timber beams and terracotta floor, open to a terrace of eight '
        || 'metres; renovated kitchen with room to eat, three double bedrooms and a large '
        || 'bathroom. A wide hall keeps the day rooms apart from the bedrooms. No lift, and very '
        || 'low community fees.'),
    ('Products', '10003', 'EN', 2, 'For sale/Flats'),
    ('Products', '10003', 'DE', 0, 'Altbauwohnung mit Holzbalken'),
    ('Products', '10003', 'DE', 1,
        'Wohnung im zweiten Stock eines Hauses mit vier Parteien, zwei Straßen vom Markt. Wohn- '
        || 'und Esszimmer mit Holzbalken und Terrakottaboden, offen zu einer Terrasse von acht '
        || 'Metern; renovierte Wohnküche, drei Doppelzimmer und ein großes Bad. Ein breiter Flur '
        || 'trennt Wohn- und Schlafbereich. Kein Aufzug, sehr niedriges Hausgeld.'),
    ('Products', '10003', 'DE', 2, 'Kauf/Wohnungen'),
    ('Products', '10003', 'FR', 0, 'Appartement aux poutres de bois dans la vieille ville'),
    ('Products', '10003', 'FR', 1,
        'Au deuxième étage d''une maison de quatre voisins, à deux rues du marché. Séjour aux '
        || 'poutres de bois et sol de terre cuite, ouvert sur une terrasse de huit mètres ; '
        || 'cuisine rénovée où l''on peut manger, trois chambres doubles et une grande salle de '
        || 'bains. Un large couloir sépare le jour de la nuit. Sans ascenseur, charges très '
        || 'faibles.'),
    ('Products', '10003', 'FR', 2, 'Vente/Appartements'),
    ('Pictures', '1000301', 'ES', 0, 'El edificio'),
    ('Pictures', '1000301', 'ES', 1, 'El segundo, con contraventanas verdes.'),
    ('Pictures', '1000301', 'EN', 0, 'The building'),
    ('Pictures', '1000301', 'EN', 1, 'The second floor, with the green shutters.'),
    ('Pictures', '1000301', 'DE', 0, 'Das Gebäude'),
    ('Pictures', '1000301', 'DE', 1, 'Der zweite Stock mit den grünen Läden.'),
    ('Pictures', '1000301', 'FR', 0, 'L''immeuble'),
    ('Pictures', '1000301', 'FR', 1, 'Le deuxième, aux volets verts.'),
    ('Pictures', '1000302', 'ES', 0, 'Salón'),
    ('Pictures', '1000302', 'ES', 1, 'Vigas de madera recuperadas y suelo de barro.'),
    ('Pictures', '1000302', 'EN', 0, 'Living room'),
    ('Pictures', '1000302', 'EN', 1, 'Salvaged timber beams and a terracotta floor.'),
    ('Pictures', '1000302', 'DE', 0, 'Wohnzimmer'),
    ('Pictures', '1000302', 'DE', 1, 'Alte Holzbalken und Terrakottaboden.'),
    ('Pictures', '1000302', 'FR', 0, 'Séjour'),
    ('Pictures', '1000302', 'FR', 1, 'Poutres de bois récupérées et terre cuite.'),
    ('Pictures', '1000303', 'ES', 0, 'Cocina'),
    ('Pictures', '1000303', 'ES', 1, 'Muebles nuevos en verde salvia, mesa para cuatro.'),
    ('Pictures', '1000303', 'EN', 0, 'Kitchen'),
    ('Pictures', '1000303', 'EN', 1, 'New units in sage green, table for four.'),
    ('Pictures', '1000303', 'DE', 0, 'Küche'),
    ('Pictures', '1000303', 'DE', 1, 'Neue Möbel in Salbeigrün, Tisch für vier.'),
    ('Pictures', '1000303', 'FR', 0, 'Cuisine'),
    ('Pictures', '1000303', 'FR', 1, 'Meubles neufs vert sauge, table pour quatre.'),
    ('Pictures', '1000304', 'ES', 0, 'Plano'),
    ('Pictures', '1000304', 'ES', 1, 'La terraza da al salón; superficies orientativas.'),
    ('Pictures', '1000304', 'EN', 0, 'Floor plan'),
    ('Pictures', '1000304', 'EN', 1, 'The terrace adjoins the living room; areas are approximate.'),
    ('Pictures', '1000304', 'DE', 0, 'Grundriss'),
    ('Pictures', '1000304', 'DE', 1, 'Die Terrasse liegt am Wohnzimmer, Flächen ohne Gewähr.'),
    ('Pictures', '1000304', 'FR', 0, 'Plan'),
    ('Pictures', '1000304', 'FR', 1, 'La terrasse jouxte le séjour ; surfaces indicatives.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10003, 1, 1000301, 0, 'Pic1000301.dat', '2026-09-30T17:00:00'),
    (10003, 2, 1000302, 1, 'Pic1000302.dat', '2026-09-30T17:00:00'),
    (10003, 3, 1000303, 2, 'Pic1000303.dat', '2026-09-30T17:00:00'),
    (10003, 4, 1000304, 3, 'Pic1000304.dat', '2026-09-30T17:00:00');

-- JV-104  Parcela urbana con vistas al mar
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10004, 'JV-104', 260000, 0, 'Jávea-Costa Nova', '2026-07-11T10:45:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10004, 0, '1.200'), (10004, 1, '6'), (10004, 2, ''), (10004, 3, ''), (10004, 4, ''),
    (10004, 5, ''), (10004, 6, ''), (10004, 7, '1.200'), (10004, 8, ''), (10004, 9, ''),
    (10004, 10, ''), (10004, 11, '0'), (10004, 12, '4'), (10004, 13, '0'), (10004, 14, '8'),
    (10004, 15, '0'), (10004, 16, '0'), (10004, 17, '0'), (10004, 18, '0'), (10004, 19, '0'),
    (10004, 20, '0'), (10004, 21, '0'), (10004, 22, 'Urbanización Costa Nova, parcela 88'),
    (10004, 23, '0000000BC5900S0004DD'), (10004, 24, 'No hay'), (10004, 25, '245.000'),
    (10004, 26, 'Sin cargas'), (10004, 27, ''), (10004, 28, ''), (10004, 29, ''), (10004, 30, ''),
    (10004, 31, 'Inversiones Cap Prim'), (10004, 32, '600 000 204'),
    (10004, 33, 'Avenida de la Libertad, 7, Jávea'), (10004, 34, '5 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10004', 'ES', 0, 'Parcela urbana con vistas al mar'),
    ('Products', '10004', 'ES', 1,
        'Parcela de 1.200 metros cuadrados en la última curva de la urbanización, con pinos '
        || 'adultos y el mar de frente. Todos los servicios a pie de parcela y edificabilidad del '
        || '25 por ciento. Se entrega estudio topográfico y anteproyecto de vivienda.'),
    ('Products', '10004', 'ES', 2, 'Venta/Terrenos'),
    ('Products', '10004', 'EN', 0, 'Building plot with sea views'),
    ('Products', '10004', 'EN', 1,
        'Plot of 1,200 square metres on the last bend of the development, with mature pines and '
        || 'the sea ahead. All services at the boundary and a building ratio of 25 per cent. A '
        || 'topographic survey and a preliminary design are included.'),
    ('Products', '10004', 'EN', 2, 'For sale/Land'),
    ('Products', '10004', 'DE', 0, 'Baugrundstück mit Meerblick'),
    ('Products', '10004', 'DE', 1,
        'Grundstück von 1.200 Quadratmetern in der letzten Kurve der Siedlung, mit alten Pinien '
        || 'und freiem Blick aufs Meer. Alle Anschlüsse an der Grundstücksgrenze, Bebaubarkeit 25 '
        || 'Prozent. Vermessung und Vorentwurf sind inbegriffen.'),
    ('Products', '10004', 'DE', 2, 'Kauf/Grundstücke'),
    ('Products', '10004', 'FR', 0, 'Terrain à bâtir avec vue sur la mer'),
    ('Products', '10004', 'FR', 1,
        'Terrain de 1 200 mètres carrés au dernier virage du lotissement, avec des pins adultes '
        || 'et la mer en face. Tous les réseaux en limite de parcelle et constructibilité de 25 '
        || 'pour cent. Relevé topographique et avant-projet fournis.'),
    ('Products', '10004', 'FR', 2, 'Vente/Terrains'),
    ('Pictures', '1000401', 'ES', 0, 'La parcela y el mar'),
    ('Pictures', '1000401', 'ES', 1, 'Pinos adultos y el mar, sin nada delante.'),
    ('Pictures', '1000401', 'EN', 0, 'The plot and the sea'),
    ('Pictures', '1000401', 'EN', 1, 'Mature pines and the sea, with nothing in front.'),
    ('Pictures', '1000401', 'DE', 0, 'Das Grundstück und das Meer'),
    ('Pictures', '1000401', 'DE', 1, 'Alte Pinien und das Meer, unverbaut.'),
    ('Pictures', '1000401', 'FR', 0, 'Le terrain et la mer'),
    ('Pictures', '1000401', 'FR', 1, 'Pins adultes et la mer, sans vis-à-vis.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10004, 1, 1000401, 0, 'Pic1000401.dat', '2026-07-11T10:45:00');

-- DN-201  Adosado con jardín y piscina comunitaria
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10005, 'DN-201', 228000, 0, 'Dénia-La Xara', '2026-10-05T16:20:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10005, 0, '96'), (10005, 1, '1'), (10005, 2, '2'), (10005, 3, '1'), (10005, 4, '1'),
    (10005, 5, '0'), (10005, 6, '78'), (10005, 7, '160'), (10005, 8, ''), (10005, 9, '2003'),
    (10005, 10, '38'), (10005, 11, '0'), (10005, 12, '5'), (10005, 13, '4'), (10005, 14, '4'),
    (10005, 15, '0'), (10005, 16, '1'), (10005, 17, '1'), (10005, 18, '1'), (10005, 19, '1'),
    (10005, 20, '1'), (10005, 21, '1'), (10005, 22, 'Calle de los Naranjos, 15'),
    (10005, 23, '0000000BC7500S0005EE'), (10005, 24, 'En la oficina'), (10005, 25, '238.000'),
    (10005, 26, 'Hipoteca pendiente de 60.000 euros'), (10005, 27, 'Familia Soler'),
    (10005, 28, '600 000 105'), (10005, 29, 'soler@example.com'), (10005, 30, '8/10: piden plano'),
    (10005, 31, 'Vicente Roselló'), (10005, 32, '600 000 205'),
    (10005, 33, 'Calle Diana, 9, Dénia'), (10005, 34, '4 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10005', 'ES', 0, 'Adosado con jardín y piscina comunitaria'),
    ('Products', '10005', 'ES', 1,
        'Casa adosada en una hilera de ocho, con jardín delantero y patio trasero. Abajo, salón '
        || 'de 24 metros, cocina y entrada; arriba, un dormitorio doble de 17 metros, dos '
        || 'individuales y el baño. Suelo de madera en toda la casa y pérgola en la puerta. La '
        || 'piscina y la pista de tenis son de la comunidad; el colegio queda a cinco minutos a '
        || 'pie.'),
    ('Products', '10005', 'ES', 2, 'Venta/Casas'),
    ('Products', '10005', 'EN', 0, 'Terraced house with garden and shared pool'),
    ('Products', '10005', 'EN', 1,
        'House in a row of eight, with a front garden and a rear patio. Downstairs, a living '
        || 'room of 24 metres, kitchen and hall; upstairs, a double bedroom of 17 metres, two '
        || 'singles and the bathroom. Wooden floors throughout and a pergola at the door. The pool '
        || 'and the tennis court belong to the community; the school is five minutes away on foot.'),
    ('Products', '10005', 'EN', 2, 'For sale/Houses'),
    ('Products', '10005', 'DE', 0, 'Reihenhaus mit Garten und Gemeinschaftspool'),
    ('Products', '10005', 'DE', 1,
        'Haus in einer Zeile von acht, mit Vorgarten und hinterem Hof. Unten Wohnzimmer von 24 '
        || 'Metern, Küche und Diele; oben ein Doppelzimmer von 17 Metern, zwei Einzelzimmer und '
        || 'das Bad. Holzböden im ganzen Haus und Pergola vor der Tür. Pool und Tennisplatz '
        || 'gehören der Gemeinschaft, die Schule ist fünf Gehminuten entfernt.'),
    ('Products', '10005', 'DE', 2, 'Kauf/Häuser'),
    ('Products', '10005', 'FR', 0, 'Maison mitoyenne avec jardin et piscine commune'),
    ('Products', '10005', 'FR', 1,
        'Maison dans une rangée de huit, avec jardin devant et patio derrière. En bas, séjour '
        || 'de 24 mètres, cuisine et entrée ; à l''étage, une chambre double de 17 mètres, deux '
        || 'simples et la salle de bains. Parquet dans toute la maison et pergola devant la porte. '
        || 'La piscine et le court de tennis sont communs ; l''école est à cinq minutes à pied.'),
    ('Products', '10005', 'FR', 2, 'Vente/Maisons'),
    ('Pictures', '1000501', 'ES', 0, 'Fachada y jardín delantero'),
    ('Pictures', '1000501', 'ES', 1, 'La de la puerta azul.'),
    ('Pictures', '1000501', 'EN', 0, 'Front and small garden'),
    ('Pictures', '1000501', 'EN', 1, 'The one with the blue door.'),
    ('Pictures', '1000501', 'DE', 0, 'Fassade und Vorgarten'),
    ('Pictures', '1000501', 'DE', 1, 'Das mit der blauen Tür.'),
    ('Pictures', '1000501', 'FR', 0, 'Façade et jardinet'),
    ('Pictures', '1000501', 'FR', 1, 'Celle à la porte bleue.'),
    ('Pictures', '1000502', 'ES', 0, 'Salón'),
    ('Pictures', '1000502', 'ES', 1, 'Da al patio trasero, con sol por la tarde.'),
    ('Pictures', '1000502', 'EN', 0, 'Living room'),
    ('Pictures', '1000502', 'EN', 1, 'It opens onto the rear patio, with afternoon sun.'),
    ('Pictures', '1000502', 'DE', 0, 'Wohnzimmer'),
    ('Pictures', '1000502', 'DE', 1, 'Zum hinteren Hof, mit Nachmittagssonne.'),
    ('Pictures', '1000502', 'FR', 0, 'Séjour'),
    ('Pictures', '1000502', 'FR', 1, 'Il donne sur le patio arrière, soleil l''après-midi.'),
    ('Pictures', '1000503', 'ES', 0, 'Dormitorio doble'),
    ('Pictures', '1000503', 'ES', 1, 'Diecisiete metros y armario empotrado.'),
    ('Pictures', '1000503', 'EN', 0, 'Double bedroom'),
    ('Pictures', '1000503', 'EN', 1, 'Seventeen metres and a built-in wardrobe.'),
    ('Pictures', '1000503', 'DE', 0, 'Doppelzimmer'),
    ('Pictures', '1000503', 'DE', 1, 'Siebzehn Meter und Einbauschrank.'),
    ('Pictures', '1000503', 'FR', 0, 'Chambre double'),
    ('Pictures', '1000503', 'FR', 1, 'Dix-sept mètres et placard intégré.'),
    ('Pictures', '1000504', 'ES', 0, 'Plano'),
    ('Pictures', '1000504', 'ES', 1, 'Las dos plantas; superficies orientativas.'),
    ('Pictures', '1000504', 'EN', 0, 'Floor plan'),
    ('Pictures', '1000504', 'EN', 1, 'Both floors; areas are approximate.'),
    ('Pictures', '1000504', 'DE', 0, 'Grundriss'),
    ('Pictures', '1000504', 'DE', 1, 'Beide Geschosse, Flächen ohne Gewähr.'),
    ('Pictures', '1000504', 'FR', 0, 'Plan'),
    ('Pictures', '1000504', 'FR', 1, 'Les deux niveaux ; surfaces indicatives.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10005, 1, 1000501, 0, 'Pic1000501.dat', '2026-10-05T16:20:00'),
    (10005, 2, 1000502, 1, 'Pic1000502.dat', '2026-10-05T16:20:00'),
    (10005, 3, 1000503, 2, 'Pic1000503.dat', '2026-10-05T16:20:00'),
    (10005, 4, 1000504, 3, 'Pic1000504.dat', '2026-10-05T16:20:00');

-- GA-202  Piso junto al puerto deportivo
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10006, 'GA-202', 235000, 0, 'Gandia-Grau', '2026-10-01T11:11:11');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10006, 0, '110'), (10006, 1, '0'), (10006, 2, '1'), (10006, 3, '2'), (10006, 4, '2'),
    (10006, 5, '0'), (10006, 6, '92'), (10006, 7, ''), (10006, 8, '3'), (10006, 9, '1994'),
    (10006, 10, '75'), (10006, 11, '0'), (10006, 12, '4'), (10006, 13, '1'), (10006, 14, '4'),
    (10006, 15, '1'), (10006, 16, '1'), (10006, 17, '0'), (10006, 18, '1'), (10006, 19, '0'),
    (10006, 20, '0'), (10006, 21, '1'), (10006, 22, 'Calle Alcalde Morant, 22, 3.º B'),
    (10006, 23, '0000000BC7500S0006FF'), (10006, 24, 'Propietario'), (10006, 25, '228.000'),
    (10006, 26, 'Sin cargas'), (10006, 27, 'Sven Lindqvist'), (10006, 28, '600 000 106'),
    (10006, 29, 'lindqvist@example.com'), (10006, 30, '3/10'), (10006, 31, 'Carmen Pastor'),
    (10006, 32, '600 000 206'), (10006, 33, 'Calle Mayor, 31, Gandia'), (10006, 34, '3,5 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10006', 'ES', 0, 'Piso junto al puerto deportivo'),
    ('Products', '10006', 'ES', 1,
        'Reservado hasta la firma ante notario; si quiere, le avisamos si vuelve a quedar '
        || 'libre. Tercero exterior con balcones a una calle arbolada, a dos minutos de los '
        || 'amarres. Salón comedor de 28 metros con el mar al fondo, cocina con tendedero, tres '
        || 'dormitorios y dos baños, uno de ellos recién reformado en azulejo verde. Plaza de '
        || 'garaje en el mismo edificio y autobús a la puerta.'),
    ('Products', '10006', 'ES', 2, 'Venta/Pisos'),
    ('Products', '10006', 'EN', 0, 'Flat next to the marina'),
    ('Products', '10006', 'EN', 1,
        'Reserved until the deed is signed; we will gladly tell you if it becomes free again. '
        || 'Third-floor flat with balconies over a tree-lined street, two minutes from the '
        || 'moorings. Living and dining room of 28 metres with the sea in the distance, kitchen '
        || 'with drying area, three bedrooms and two bathrooms, one of them newly renovated in '
        || 'green tiles. Parking space in the building and a bus stop at the door.'),
    ('Products', '10006', 'EN', 2, 'For sale/Flats'),
    ('Products', '10006', 'DE', 0, 'Wohnung am Jachthafen'),
    ('Products', '10006', 'DE', 1,
        'Reserviert bis zum Notartermin; gern sagen wir Ihnen Bescheid, falls sie wieder frei '
        || 'wird. Wohnung im dritten Stock mit Balkonen zu einer baumbestandenen Straße, zwei '
        || 'Minuten von den Liegeplätzen. Wohn- und Esszimmer von 28 Metern mit dem Meer in der '
        || 'Ferne, Küche mit Trockenplatz, drei Schlafzimmer und zwei Bäder, eines davon frisch in '
        || 'grünen Fliesen. Stellplatz im Haus, Bushaltestelle vor der Tür.'),
    ('Products', '10006', 'DE', 2, 'Kauf/Wohnungen'),
    ('Products', '10006', 'FR', 0, 'Appartement près du port de plaisance'),
    ('Products', '10006', 'FR', 1,
        'Réservé jusqu''à la signature chez le notaire ; nous vous préviendrons volontiers '
        || 's''il se libère. Troisième étage avec balcons sur une rue arborée, à deux minutes des '
        || 'pontons. Séjour de 28 mètres avec la mer au loin, cuisine avec séchoir, trois chambres '
        || 'et deux salles de bains, dont une tout juste refaite en carreaux verts. Place de '
        || 'parking dans l''immeuble et arrêt de bus à la porte.'),
    ('Products', '10006', 'FR', 2, 'Vente/Appartements'),
    ('Pictures', '1000601', 'ES', 0, 'El edificio'),
    ('Pictures', '1000601', 'ES', 1, 'Fachada pintada el año pasado.'),
    ('Pictures', '1000601', 'EN', 0, 'The building'),
    ('Pictures', '1000601', 'EN', 1, 'The front was painted last year.'),
    ('Pictures', '1000601', 'DE', 0, 'Das Gebäude'),
    ('Pictures', '1000601', 'DE', 1, 'Die Fassade wurde letztes Jahr gestrichen.'),
    ('Pictures', '1000601', 'FR', 0, 'L''immeuble'),
    ('Pictures', '1000601', 'FR', 1, 'Façade repeinte l''an dernier.'),
    ('Pictures', '1000602', 'ES', 0, 'Salón'),
    ('Pictures', '1000602', 'ES', 1, 'Veintiocho metros, con el mar al fondo.'),
    ('Pictures', '1000602', 'EN', 0, 'Living room'),
    ('Pictures', '1000602', 'EN', 1, 'Twenty-eight metres, with the sea in the distance.'),
    ('Pictures', '1000602', 'DE', 0, 'Wohnzimmer'),
    ('Pictures', '1000602', 'DE', 1, 'Achtundzwanzig Meter, in der Ferne das Meer.'),
    ('Pictures', '1000602', 'FR', 0, 'Séjour'),
    ('Pictures', '1000602', 'FR', 1, 'Vingt-huit mètres, la mer au loin.'),
    ('Pictures', '1000603', 'ES', 0, 'Baño'),
    ('Pictures', '1000603', 'ES', 1, 'Azulejo artesano y mueble de roble.'),
    ('Pictures', '1000603', 'EN', 0, 'Bathroom'),
    ('Pictures', '1000603', 'EN', 1, 'Handmade tiles and an oak unit.'),
    ('Pictures', '1000603', 'DE', 0, 'Bad'),
    ('Pictures', '1000603', 'DE', 1, 'Handgemachte Fliesen und Eichenmöbel.'),
    ('Pictures', '1000603', 'FR', 0, 'Salle de bains'),
    ('Pictures', '1000603', 'FR', 1, 'Carreaux artisanaux et meuble en chêne.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10006, 1, 1000601, 0, 'Pic1000601.dat', '2026-10-01T11:11:11'),
    (10006, 2, 1000602, 1, 'Pic1000602.dat', '2026-10-01T11:11:11'),
    (10006, 3, 1000603, 2, 'Pic1000603.dat', '2026-10-01T11:11:11');

-- DN-203  Local comercial en calle peatonal
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10007, 'DN-203', 145000, 0, 'Dénia-Centro', '2026-08-22T13:05:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10007, 0, '86'), (10007, 1, '5'), (10007, 2, ''), (10007, 3, ''), (10007, 4, '0'),
    (10007, 5, '1'), (10007, 6, '80'), (10007, 7, ''), (10007, 8, '0'), (10007, 9, '1955'),
    (10007, 10, '25'), (10007, 11, '2'), (10007, 12, '5'), (10007, 13, '4'), (10007, 14, '4'),
    (10007, 15, '0'), (10007, 16, '0'), (10007, 17, '1'), (10007, 18, '0'), (10007, 19, '0'),
    (10007, 20, '0'), (10007, 21, '1'), (10007, 22, 'Calle Marqués de Campo, 48, bajo'),
    (10007, 23, '0000000BC7500S0007GG'), (10007, 24, 'En la oficina'), (10007, 25, '138.000'),
    (10007, 26, 'Sin cargas'), (10007, 27, 'Óptica Mar'), (10007, 28, '600 000 107'),
    (10007, 29, 'optica@example.com'), (10007, 30, '25/8 y 1/9'),
    (10007, 31, 'Herederos de J. Devesa'), (10007, 32, '600 000 207'),
    (10007, 33, 'Calle Patricio, 5, Dénia'), (10007, 34, '5 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10007', 'ES', 0, 'Local comercial en calle peatonal'),
    ('Products', '10007', 'ES', 1,
        'Local a pie de calle con dos escaparates, persiana eléctrica y techo de tres metros y '
        || 'medio. Instalación de luz nueva, aseo adaptado y pequeño almacén al fondo. Paso '
        || 'constante de gente todo el año; sirve para comercio, despacho o taller de artesanía.'),
    ('Products', '10007', 'ES', 2, 'Venta/Locales'),
    ('Products', '10007', 'EN', 0, 'Shop in a pedestrian street'),
    ('Products', '10007', 'EN', 1,
        'Street-level shop with two display windows, electric shutter and ceilings of three and '
        || 'a half metres. New wiring, accessible toilet and a small store room at the back. '
        || 'People pass by all year round; suits retail, an office or a craft workshop.'),
    ('Products', '10007', 'EN', 2, 'For sale/Shops'),
    ('Products', '10007', 'DE', 0, 'Ladenlokal in der Fußgängerzone'),
    ('Products', '10007', 'DE', 1,
        'Ladenlokal zu ebener Erde mit zwei Schaufenstern, elektrischem Rollladen und '
        || 'dreieinhalb Metern Raumhöhe. Neue Elektrik, barrierefreies WC und kleines Lager im '
        || 'hinteren Teil. Das ganze Jahr über belebt; geeignet für Handel, Büro oder '
        || 'Kunsthandwerk.'),
    ('Products', '10007', 'DE', 2, 'Kauf/Ladenlokale'),
    ('Products', '10007', 'FR', 0, 'Local commercial en rue piétonne'),
    ('Products', '10007', 'FR', 1,
        'Local au niveau de la rue avec deux vitrines, rideau électrique et trois mètres et '
        || 'demi de hauteur. Électricité neuve, toilettes accessibles et petite réserve au fond. '
        || 'Passage toute l''année ; convient à un commerce, un bureau ou un atelier.'),
    ('Products', '10007', 'FR', 2, 'Vente/Locaux'),
    ('Pictures', '1000701', 'ES', 0, 'Escaparates'),
    ('Pictures', '1000701', 'ES', 1, 'Se entrega vacío y pintado.'),
    ('Pictures', '1000701', 'EN', 0, 'Display windows'),
    ('Pictures', '1000701', 'EN', 1, 'Handed over empty and painted.'),
    ('Pictures', '1000701', 'DE', 0, 'Schaufenster'),
    ('Pictures', '1000701', 'DE', 1, 'Übergabe leer und gestrichen.'),
    ('Pictures', '1000701', 'FR', 0, 'Vitrines'),
    ('Pictures', '1000701', 'FR', 1, 'Remis vide et peint.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10007, 1, 1000701, 0, 'Pic1000701.dat', '2026-08-22T13:05:00');

-- DN-204  Plaza de garaje en el centro
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10008, 'DN-204', 19500, 0, 'Dénia-Centro', '2026-06-18T09:00:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10008, 0, '12'), (10008, 1, '7'), (10008, 2, ''), (10008, 3, ''), (10008, 4, ''),
    (10008, 5, ''), (10008, 6, '12'), (10008, 7, ''), (10008, 8, '-1'), (10008, 9, '2009'),
    (10008, 10, '8'), (10008, 11, '0'), (10008, 12, '0'), (10008, 13, '0'), (10008, 14, '8'),
    (10008, 15, '1'), (10008, 16, '1'), (10008, 17, '0'), (10008, 18, '0'), (10008, 19, '0'),
    (10008, 20, '0'), (10008, 21, '0'), (10008, 22, 'Calle Sandunga, 30, plaza 21'),
    (10008, 23, '0000000BC7500S0008HH'), (10008, 24, 'Mando en la oficina'), (10008, 25, '18.500'),
    (10008, 26, 'Sin cargas'), (10008, 27, ''), (10008, 28, ''), (10008, 29, ''), (10008, 30, ''),
    (10008, 31, 'Ramón Catalá'), (10008, 32, '600 000 208'),
    (10008, 33, 'Calle Sandunga, 28, Dénia'), (10008, 34, '6 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10008', 'ES', 0, 'Plaza de garaje en el centro'),
    ('Products', '10008', 'ES', 1,
        'Plaza amplia, de cinco metros por dos y medio, junto a la columna y sin maniobra. '
        || 'Puerta automática con mando, cámaras y ascensor a la calle. Preinstalación para punto '
        || 'de recarga. Es la número 21, la que se ve vacía en la fotografía; al lado, con el '
        || 'coche rojo, la del mismo propietario, que no se vende.'),
    ('Products', '10008', 'ES', 2, 'Venta/Garajes'),
    ('Products', '10008', 'EN', 0, 'Parking space in the centre'),
    ('Products', '10008', 'EN', 1,
        'Generous space of five metres by two and a half, beside a column and easy to enter. '
        || 'Automatic gate with remote control, cameras and a lift to the street. Ready for a '
        || 'charging point. It is number 21, the empty one in the photograph; the next one, with '
        || 'the red car, belongs to the same owner and is not for sale.'),
    ('Products', '10008', 'EN', 2, 'For sale/Garages'),
    ('Products', '10008', 'DE', 0, 'Garagenstellplatz im Zentrum'),
    ('Products', '10008', 'DE', 1,
        'Großzügiger Stellplatz, fünf mal zweieinhalb Meter, neben einer Säule und leicht '
        || 'anzufahren. Automatisches Tor mit Fernbedienung, Kameras und Aufzug zur Straße. '
        || 'Vorbereitet für eine Ladestation. Es ist die Nummer 21, auf dem Foto die leere; der '
        || 'Platz daneben mit dem roten Auto gehört demselben Eigentümer und steht nicht zum '
        || 'Verkauf.'),
    ('Products', '10008', 'DE', 2, 'Kauf/Garagen'),
    ('Products', '10008', 'FR', 0, 'Place de parking au centre'),
    ('Products', '10008', 'FR', 1,
        'Place spacieuse, cinq mètres sur deux et demi, à côté d''un pilier et sans manoeuvre. '
        || 'Porte automatique avec télécommande, caméras et ascenseur vers la rue. Pré-équipée '
        || 'pour une borne de recharge. C''est le numéro 21, vide sur la photo ; la voisine, avec '
        || 'la voiture rouge, appartient au même propriétaire et n''est pas à vendre.'),
    ('Products', '10008', 'FR', 2, 'Vente/Garages'),
    ('Pictures', '1000801', 'ES', 0, 'Plaza 21'),
    ('Pictures', '1000801', 'ES', 1, 'Luz con detector de presencia.'),
    ('Pictures', '1000801', 'EN', 0, 'Space 21'),
    ('Pictures', '1000801', 'EN', 1, 'Lighting with motion sensor.'),
    ('Pictures', '1000801', 'DE', 0, 'Stellplatz 21'),
    ('Pictures', '1000801', 'DE', 1, 'Licht mit Bewegungsmelder.'),
    ('Pictures', '1000801', 'FR', 0, 'Place 21'),
    ('Pictures', '1000801', 'FR', 1, 'Éclairage à détecteur de présence.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10008, 1, 1000801, 0, 'Pic1000801.dat', '2026-06-18T09:00:00');

-- GA-205  Piso amueblado en alquiler todo el año
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10009, 'GA-205', 850, 0, 'Gandia-Centro', '2026-10-20T08:50:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10009, 0, '88'), (10009, 1, '8'), (10009, 2, '1'), (10009, 3, '2'), (10009, 4, '1'),
    (10009, 5, '1'), (10009, 6, '76'), (10009, 7, ''), (10009, 8, '4'), (10009, 9, '1988'),
    (10009, 10, '55'), (10009, 11, '2'), (10009, 12, '3'), (10009, 13, '1'), (10009, 14, '5'),
    (10009, 15, '1'), (10009, 16, '0'), (10009, 17, '0'), (10009, 18, '1'), (10009, 19, '0'),
    (10009, 20, '0'), (10009, 21, '1'), (10009, 22, 'Avenida de Alicante, 61, 4.º D, Gandia'),
    (10009, 23, '0000000BC7500S0009JJ'), (10009, 24, 'En la oficina'), (10009, 25, '825'),
    (10009, 26, 'Sin cargas'), (10009, 27, 'Marta Gil'), (10009, 28, '600 000 109'),
    (10009, 29, 'gil@example.com'), (10009, 30, '21/10 a las 18 h'), (10009, 31, 'Josefa Mulet'),
    (10009, 32, '600 000 209'), (10009, 33, 'Partida Madrigueres, 4, Dénia'),
    (10009, 34, 'Una mensualidad');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10009', 'ES', 0, 'Piso amueblado en alquiler todo el año'),
    ('Products', '10009', 'ES', 1,
        'Cuarto con ascensor cerca del hospital, reformado y amueblado. Tres dormitorios, salón '
        || 'con balcón, cocina completa y calefacción de gas. Contrato de larga duración; fianza '
        || 'de dos meses. Disponible desde el primero de diciembre. Casa de ladrillo con portero '
        || 'por las mañanas, cocina blanca con mesa para cuatro y salón de suelo de madera.'),
    ('Products', '10009', 'ES', 2, 'Alquiler/Pisos'),
    ('Products', '10009', 'EN', 0, 'Furnished flat to let all year'),
    ('Products', '10009', 'EN', 1,
        'Fourth-floor flat with lift near the hospital, renovated and furnished. Three '
        || 'bedrooms, living room with balcony, full kitchen and gas heating. Long-term contract; '
        || 'deposit of two months. Available from the first of December. Brick building with a '
        || 'caretaker in the mornings, white kitchen with a table for four and a living room with '
        || 'wooden floor.'),
    ('Products', '10009', 'EN', 2, 'To let/Flats'),
    ('Products', '10009', 'DE', 0, 'Möblierte Wohnung, ganzjährig zu vermieten'),
    ('Products', '10009', 'DE', 1,
        'Wohnung im vierten Stock mit Aufzug nahe dem Krankenhaus, renoviert und möbliert. Drei '
        || 'Schlafzimmer, Wohnzimmer mit Balkon, komplette Küche und Gasheizung. Langfristiger '
        || 'Vertrag, zwei Monatsmieten Kaution. Frei ab dem ersten Dezember. Backsteinhaus, '
        || 'vormittags mit Hausmeister, weiße Küche mit Tisch für vier und Wohnzimmer mit '
        || 'Holzboden.'),
    ('Products', '10009', 'DE', 2, 'Miete/Wohnungen'),
    ('Products', '10009', 'FR', 0, 'Appartement meublé en location à l''année'),
    ('Products', '10009', 'FR', 1,
        'Quatrième étage avec ascenseur près de l''hôpital, rénové et meublé. Trois chambres, '
        || 'séjour avec balcon, cuisine complète et chauffage au gaz. Contrat de longue durée ; '
        || 'caution de deux mois. Libre à partir du premier décembre. Immeuble de brique avec '
        || 'gardien le matin, cuisine blanche avec table pour quatre et séjour à parquet.'),
    ('Products', '10009', 'FR', 2, 'Location/Appartements'),
    ('Pictures', '1000901', 'ES', 0, 'El edificio'),
    ('Pictures', '1000901', 'ES', 1, 'El cuarto, con balcón a la avenida.'),
    ('Pictures', '1000901', 'EN', 0, 'The building'),
    ('Pictures', '1000901', 'EN', 1, 'The fourth floor, with a balcony on the avenue.'),
    ('Pictures', '1000901', 'DE', 0, 'Das Gebäude'),
    ('Pictures', '1000901', 'DE', 1, 'Der vierte Stock mit Balkon zur Allee.'),
    ('Pictures', '1000901', 'FR', 0, 'L''immeuble'),
    ('Pictures', '1000901', 'FR', 1, 'Le quatrième, avec balcon sur l''avenue.'),
    ('Pictures', '1000902', 'ES', 0, 'Salón'),
    ('Pictures', '1000902', 'ES', 1, 'Con todos los muebles de la fotografía.'),
    ('Pictures', '1000902', 'EN', 0, 'Living room'),
    ('Pictures', '1000902', 'EN', 1, 'With all the furniture in the photograph.'),
    ('Pictures', '1000902', 'DE', 0, 'Wohnzimmer'),
    ('Pictures', '1000902', 'DE', 1, 'Mit allen Möbeln auf dem Foto.'),
    ('Pictures', '1000902', 'FR', 0, 'Séjour'),
    ('Pictures', '1000902', 'FR', 1, 'Avec tous les meubles de la photo.'),
    ('Pictures', '1000903', 'ES', 0, 'Cocina'),
    ('Pictures', '1000903', 'ES', 1, 'Horno, placa, nevera y mesa para cuatro.'),
    ('Pictures', '1000903', 'EN', 0, 'Kitchen'),
    ('Pictures', '1000903', 'EN', 1, 'Oven, hob, fridge and a table for four.'),
    ('Pictures', '1000903', 'DE', 0, 'Küche'),
    ('Pictures', '1000903', 'DE', 1, 'Ofen, Kochfeld, Kühlschrank und Tisch für vier.'),
    ('Pictures', '1000903', 'FR', 0, 'Cuisine'),
    ('Pictures', '1000903', 'FR', 1, 'Four, plaque, réfrigérateur et table pour quatre.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10009, 1, 1000901, 0, 'Pic1000901.dat', '2026-10-20T08:50:00'),
    (10009, 2, 1000902, 1, 'Pic1000902.dat', '2026-10-20T08:50:00'),
    (10009, 3, 1000903, 2, 'Pic1000903.dat', '2026-10-20T08:50:00');

-- MO-301  Villa de diseño con piscina y terraza cubierta
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10010, 'MO-301', 1.25e+06, 1, 'Moraira-El Portet', '2026-10-21T10:00:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10010, 0, '295'), (10010, 1, '1'), (10010, 2, '0'), (10010, 3, '4'), (10010, 4, '4'),
    (10010, 5, '1'), (10010, 6, '248'), (10010, 7, '1.400'), (10010, 8, ''), (10010, 9, '2024'),
    (10010, 10, ''), (10010, 11, '1'), (10010, 12, '5'), (10010, 13, '6'), (10010, 14, '1'),
    (10010, 15, '0'), (10010, 16, '1'), (10010, 17, '1'), (10010, 18, '1'), (10010, 19, '1'),
    (10010, 20, '1'), (10010, 21, '1'), (10010, 22, 'Calle del Mar Azul, 2'),
    (10010, 23, '0000000BC4900S0010KK'), (10010, 24, 'Caja de llaves en obra'),
    (10010, 25, '1.195.000'), (10010, 26, 'Préstamo promotor'), (10010, 27, 'Jan de Vries'),
    (10010, 28, '600 000 110'), (10010, 29, 'devries@example.com'),
    (10010, 30, '20/10: oferta verbal'), (10010, 31, 'Blau Arquitectura'),
    (10010, 32, '600 000 210'), (10010, 33, 'Carretera de Moraira, 112, Teulada'),
    (10010, 34, '3 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10010', 'ES', 0, 'Villa de diseño con piscina y terraza cubierta'),
    ('Products', '10010', 'ES', 1,
        'Casa recién terminada, de líneas limpias, hormigón blanco y piedra del lugar. La '
        || 'planta principal es un solo espacio de cocina, comedor y salón con ventanales que se '
        || 'esconden en el muro; delante, la terraza y una piscina de doce metros. Suelo radiante, '
        || 'domótica y calificación energética A. Abajo queda el dormitorio principal con '
        || 'vestidor, un despacho y el lavadero; arriba, tres dormitorios más con baño.'),
    ('Products', '10010', 'ES', 2, 'Venta/Villas'),
    ('Products', '10010', 'EN', 0, 'Designer villa with pool and covered terrace'),
    ('Products', '10010', 'EN', 1,
        'Newly finished house of clean lines, white concrete and local stone. The main floor is '
        || 'a single space of kitchen, dining and living room with panes that slide into the wall; '
        || 'in front, the terrace and a pool of twelve metres. Underfloor heating, home automation '
        || 'and energy rating A. The main bedroom with dressing room, a study and the laundry are '
        || 'on this floor; upstairs, three more bedrooms with bathroom.'),
    ('Products', '10010', 'EN', 2, 'For sale/Villas'),
    ('Products', '10010', 'DE', 0, 'Designvilla mit Pool und überdachter Terrasse'),
    ('Products', '10010', 'DE', 1,
        'Neu fertiggestelltes Haus mit klaren Linien, weißem Beton und Naturstein. Das '
        || 'Hauptgeschoss ist ein einziger Raum aus Küche, Ess- und Wohnbereich, dessen Scheiben '
        || 'in der Wand verschwinden; davor Terrasse und zwölf Meter langer Pool. Fußbodenheizung, '
        || 'Smarthome und Energieklasse A. Hier liegen auch das Hauptschlafzimmer mit Ankleide, '
        || 'ein Arbeitszimmer und der Waschraum; oben drei weitere Schlafzimmer mit Bad.'),
    ('Products', '10010', 'DE', 2, 'Kauf/Villen'),
    ('Products', '10010', 'FR', 0, 'Villa contemporaine avec piscine et terrasse couverte'),
    ('Products', '10010', 'FR', 1,
        'Maison tout juste terminée, aux lignes épurées, béton blanc et pierre locale. Le '
        || 'niveau principal est un seul espace de cuisine, salle à manger et séjour dont les '
        || 'baies disparaissent dans le mur ; devant, la terrasse et une piscine de douze mètres. '
        || 'Chauffage au sol, domotique et classe énergétique A. Au même niveau, la chambre '
        || 'principale avec dressing, un bureau et la buanderie ; à l''étage, trois autres '
        || 'chambres avec salle de bains.'),
    ('Products', '10010', 'FR', 2, 'Vente/Villas'),
    ('Pictures', '1001001', 'ES', 0, 'Fachada sur'),
    ('Pictures', '1001001', 'ES', 1, 'La planta alta vuela sobre la terraza.'),
    ('Pictures', '1001001', 'EN', 0, 'South front'),
    ('Pictures', '1001001', 'EN', 1, 'The upper floor overhangs the terrace.'),
    ('Pictures', '1001001', 'DE', 0, 'Südfassade'),
    ('Pictures', '1001001', 'DE', 1, 'Das Obergeschoss kragt über die Terrasse aus.'),
    ('Pictures', '1001001', 'FR', 0, 'Façade sud'),
    ('Pictures', '1001001', 'FR', 1, 'L''étage est en surplomb de la terrasse.'),
    ('Pictures', '1001002', 'ES', 0, 'Salón'),
    ('Pictures', '1001002', 'ES', 1, 'Suelo continuo de piedra gris, dentro y fuera.'),
    ('Pictures', '1001002', 'EN', 0, 'Living room'),
    ('Pictures', '1001002', 'EN', 1, 'The same grey stone floor inside and out.'),
    ('Pictures', '1001002', 'DE', 0, 'Wohnzimmer'),
    ('Pictures', '1001002', 'DE', 1, 'Durchgehender grauer Steinboden, innen wie außen.'),
    ('Pictures', '1001002', 'FR', 0, 'Séjour'),
    ('Pictures', '1001002', 'FR', 1, 'Le même sol de pierre grise, dedans et dehors.'),
    ('Pictures', '1001003', 'ES', 0, 'Cocina'),
    ('Pictures', '1001003', 'ES', 1, 'Frentes lacados en azul y encimera de cuarzo.'),
    ('Pictures', '1001003', 'EN', 0, 'Kitchen'),
    ('Pictures', '1001003', 'EN', 1, 'Blue lacquered fronts and a quartz worktop.'),
    ('Pictures', '1001003', 'DE', 0, 'Küche'),
    ('Pictures', '1001003', 'DE', 1, 'Blau lackierte Fronten und Quarzplatte.'),
    ('Pictures', '1001003', 'FR', 0, 'Cuisine'),
    ('Pictures', '1001003', 'FR', 1, 'Façades laquées bleues et plan en quartz.'),
    ('Pictures', '1001004', 'ES', 0, 'Dormitorio principal'),
    ('Pictures', '1001004', 'ES', 1, 'El principal, con vestidor y baño propio.'),
    ('Pictures', '1001004', 'EN', 0, 'Main bedroom'),
    ('Pictures', '1001004', 'EN', 1, 'The main one, with dressing room and bathroom.'),
    ('Pictures', '1001004', 'DE', 0, 'Hauptschlafzimmer'),
    ('Pictures', '1001004', 'DE', 1, 'Das Hauptschlafzimmer, mit Ankleide und Bad.'),
    ('Pictures', '1001004', 'FR', 0, 'Chambre principale'),
    ('Pictures', '1001004', 'FR', 1, 'La principale, avec dressing et salle de bains.'),
    ('Pictures', '1001005', 'ES', 0, 'Baño'),
    ('Pictures', '1001005', 'ES', 1, 'Ducha a ras de suelo y luz natural.'),
    ('Pictures', '1001005', 'EN', 0, 'Bathroom'),
    ('Pictures', '1001005', 'EN', 1, 'Walk-in shower and daylight.'),
    ('Pictures', '1001005', 'DE', 0, 'Bad'),
    ('Pictures', '1001005', 'DE', 1, 'Flache Dusche und Tageslicht.'),
    ('Pictures', '1001005', 'FR', 0, 'Salle de bains'),
    ('Pictures', '1001005', 'FR', 1, 'Douche à l''italienne et lumière naturelle.'),
    ('Pictures', '1001006', 'ES', 0, 'Plano'),
    ('Pictures', '1001006', 'ES', 1, 'Planta principal; superficies orientativas.'),
    ('Pictures', '1001006', 'EN', 0, 'Floor plan'),
    ('Pictures', '1001006', 'EN', 1, 'Main floor; areas are approximate.'),
    ('Pictures', '1001006', 'DE', 0, 'Grundriss'),
    ('Pictures', '1001006', 'DE', 1, 'Hauptgeschoss, Flächen ohne Gewähr.'),
    ('Pictures', '1001006', 'FR', 0, 'Plan'),
    ('Pictures', '1001006', 'FR', 1, 'Niveau principal ; surfaces indicatives.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10010, 1, 1001001, 0, 'Pic1001001.dat', '2026-10-21T10:00:00'),
    (10010, 2, 1001002, 1, 'Pic1001002.dat', '2026-10-21T10:00:00'),
    (10010, 3, 1001003, 2, 'Pic1001003.dat', '2026-10-21T10:00:00'),
    (10010, 4, 1001004, 3, 'Pic1001004.dat', '2026-10-21T10:00:00'),
    (10010, 5, 1001005, 4, 'Pic1001005.dat', '2026-10-21T10:00:00'),
    (10010, 6, 1001006, 5, 'Pic1001006.dat', '2026-10-21T10:00:00');

-- AF-302  Casa de una planta con jardín
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10011, 'AF-302', 315000, 0, 'L''Alfàs del Pi', '2026-05-29T18:30:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10011, 0, '136'), (10011, 1, '1'), (10011, 2, '1'), (10011, 3, '2'), (10011, 4, '2'),
    (10011, 5, '0'), (10011, 6, '120'), (10011, 7, '420'), (10011, 8, ''), (10011, 9, '1982'),
    (10011, 10, ''), (10011, 11, '0'), (10011, 12, '4'), (10011, 13, '7'), (10011, 14, '5'),
    (10011, 15, '0'), (10011, 16, '1'), (10011, 17, '0'), (10011, 18, '1'), (10011, 19, '1'),
    (10011, 20, '0'), (10011, 21, '1'), (10011, 22, 'Camino del Cometa, 19, L''Alfàs del Pi'),
    (10011, 23, '0000000BC4900S0011LL'), (10011, 24, 'En la oficina'), (10011, 25, '299.000'),
    (10011, 26, 'Sin cargas'), (10011, 27, 'Rosa Carbonell'), (10011, 28, '600 000 111'),
    (10011, 29, 'carbonell@example.com'), (10011, 30, '6/6'), (10011, 31, 'Ingrid Hoffmann'),
    (10011, 32, '600 000 211'), (10011, 33, 'Bremen'), (10011, 34, '5 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10011', 'ES', 0, 'Casa de una planta con jardín'),
    ('Products', '10011', 'ES', 1,
        'Todo en una planta, sin un solo escalón: salón con chimenea, cocina con despensa, tres '
        || 'dormitorios y porche orientado al sureste. El jardín está plantado con adelfas, '
        || 'lavanda y dos palmeras. Hay sitio y permiso para una piscina de ocho metros.'),
    ('Products', '10011', 'ES', 2, 'Venta/Casas'),
    ('Products', '10011', 'EN', 0, 'Single-storey house with garden'),
    ('Products', '10011', 'EN', 1,
        'Everything on one level, without a single step: living room with fireplace, kitchen '
        || 'with pantry, three bedrooms and a porch facing south-east. The garden is planted with '
        || 'oleander, lavender and two palm trees. There is room and permission for a pool of '
        || 'eight metres.'),
    ('Products', '10011', 'EN', 2, 'For sale/Houses'),
    ('Products', '10011', 'DE', 0, 'Ebenerdiges Haus mit Garten'),
    ('Products', '10011', 'DE', 1,
        'Alles auf einer Ebene, ohne eine einzige Stufe: Wohnzimmer mit Kamin, Küche mit '
        || 'Speisekammer, drei Schlafzimmer und Veranda nach Südosten. Der Garten ist mit '
        || 'Oleander, Lavendel und zwei Palmen bepflanzt. Platz und Genehmigung für einen Pool von '
        || 'acht Metern sind vorhanden.'),
    ('Products', '10011', 'DE', 2, 'Kauf/Häuser'),
    ('Products', '10011', 'FR', 0, 'Maison de plain-pied avec jardin'),
    ('Products', '10011', 'FR', 1,
        'Tout de plain-pied, sans une seule marche : séjour avec cheminée, cuisine avec '
        || 'cellier, trois chambres et porche orienté au sud-est. Le jardin est planté de '
        || 'lauriers-roses, de lavande et de deux palmiers. Il y a la place et le permis pour une '
        || 'piscine de huit mètres.'),
    ('Products', '10011', 'FR', 2, 'Vente/Maisons'),
    ('Pictures', '1001101', 'ES', 0, 'La casa y su jardín'),
    ('Pictures', '1001101', 'ES', 1, 'Todo en una planta y el porche a la derecha.'),
    ('Pictures', '1001101', 'EN', 0, 'The house and its garden'),
    ('Pictures', '1001101', 'EN', 1, 'All on one level, with the porch on the right.'),
    ('Pictures', '1001101', 'DE', 0, 'Das Haus und sein Garten'),
    ('Pictures', '1001101', 'DE', 1, 'Alles ebenerdig, rechts die Veranda.'),
    ('Pictures', '1001101', 'FR', 0, 'La maison et son jardin'),
    ('Pictures', '1001101', 'FR', 1, 'Tout de plain-pied, le porche à droite.'),
    ('Pictures', '1001102', 'ES', 0, 'Cocina'),
    ('Pictures', '1001102', 'ES', 1, 'Frentes de roble y despensa detrás de la puerta.'),
    ('Pictures', '1001102', 'EN', 0, 'Kitchen'),
    ('Pictures', '1001102', 'EN', 1, 'Oak fronts, with a pantry behind the door.'),
    ('Pictures', '1001102', 'DE', 0, 'Küche'),
    ('Pictures', '1001102', 'DE', 1, 'Eichenfronten, hinter der Tür die Speisekammer.'),
    ('Pictures', '1001102', 'FR', 0, 'Cuisine'),
    ('Pictures', '1001102', 'FR', 1, 'Façades de chêne et cellier derrière la porte.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10011, 1, 1001101, 0, 'Pic1001101.dat', '2026-05-29T18:30:00'),
    (10011, 2, 1001102, 1, 'Pic1001102.dat', '2026-05-29T18:30:00');

-- MO-303  Apartamento con gran terraza y piscina comunitaria
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10012, 'MO-303', 198000, 0, 'Moraira-Centro', '2026-09-12T12:00:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10012, 0, '78'), (10012, 1, '0'), (10012, 2, '0'), (10012, 3, '2'), (10012, 4, '1'),
    (10012, 5, '0'), (10012, 6, '66'), (10012, 7, ''), (10012, 8, '3'), (10012, 9, '2011'),
    (10012, 10, '90'), (10012, 11, '0'), (10012, 12, '5'), (10012, 13, '4'), (10012, 14, '3'),
    (10012, 15, '1'), (10012, 16, '1'), (10012, 17, '1'), (10012, 18, '1'), (10012, 19, '1'),
    (10012, 20, '1'), (10012, 21, '1'), (10012, 22, 'Calle Dr. Calatayud, 70, 2.º F'),
    (10012, 23, '0000000BC4900S0012MM'), (10012, 24, 'Conserje'), (10012, 25, '190.000'),
    (10012, 26, 'Sin cargas'), (10012, 27, ''), (10012, 28, ''), (10012, 29, ''), (10012, 30, ''),
    (10012, 31, 'Michel Laurent'), (10012, 32, '600 000 212'), (10012, 33, 'Lyon'),
    (10012, 34, '4 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10012', 'ES', 0, 'Apartamento con gran terraza y piscina comunitaria'),
    ('Products', '10012', 'ES', 1,
        'Dos dormitorios, salón con cocina americana y, sobre todo, una terraza de madera con '
        || 'toldo desde la que se ve la sierra de punta a punta. El edificio, blanco y de sólo '
        || 'tres alturas, tiene piscina de verano, otra climatizada y conserje. A la playa se '
        || 'llega andando en un cuarto de hora, todo en llano. Garaje y trastero incluidos en el '
        || 'precio.'),
    ('Products', '10012', 'ES', 2, 'Venta/Pisos'),
    ('Products', '10012', 'EN', 0, 'Apartment with large terrace and shared pool'),
    ('Products', '10012', 'EN', 1,
        'Two bedrooms, living room with open kitchen and, above all, a timber terrace with '
        || 'awning from which you see the mountains from end to end. The building, white and of '
        || 'only three storeys, has a summer pool, a heated one and a caretaker. The beach is a '
        || 'quarter of an hour away on foot, all on the level. Garage and storage room are '
        || 'included in the price.'),
    ('Products', '10012', 'EN', 2, 'For sale/Flats'),
    ('Products', '10012', 'DE', 0, 'Apartment mit großer Terrasse und Gemeinschaftspool'),
    ('Products', '10012', 'DE', 1,
        'Zwei Schlafzimmer, Wohnzimmer mit offener Küche und vor allem eine Holzterrasse mit '
        || 'Markise, von der man die ganze Bergkette sieht. Das weiße Haus mit nur drei '
        || 'Obergeschossen hat ein Sommerbecken, ein beheiztes Becken und einen Hausmeister. Zum '
        || 'Strand geht man eine Viertelstunde, immer eben. Garage und Abstellraum sind im Preis '
        || 'enthalten.'),
    ('Products', '10012', 'DE', 2, 'Kauf/Wohnungen'),
    ('Products', '10012', 'FR', 0, 'Appartement avec grande terrasse et piscine commune'),
    ('Products', '10012', 'FR', 1,
        'Deux chambres, séjour avec cuisine ouverte et, surtout, une terrasse en bois avec '
        || 'store d''où l''on voit la montagne d''un bout à l''autre. L''immeuble, blanc et de '
        || 'trois étages seulement, a une piscine d''été, une autre chauffée et un gardien. La '
        || 'plage est à un quart d''heure à pied, en terrain plat. Garage et débarras compris dans '
        || 'le prix.'),
    ('Products', '10012', 'FR', 2, 'Vente/Appartements'),
    ('Pictures', '1001201', 'ES', 0, 'El edificio'),
    ('Pictures', '1001201', 'ES', 1, 'Blanco, de tres alturas, con conserje.'),
    ('Pictures', '1001201', 'EN', 0, 'The building'),
    ('Pictures', '1001201', 'EN', 1, 'White, three storeys high, with a caretaker.'),
    ('Pictures', '1001201', 'DE', 0, 'Das Gebäude'),
    ('Pictures', '1001201', 'DE', 1, 'Weiß, drei Stockwerke, mit Hausmeister.'),
    ('Pictures', '1001201', 'FR', 0, 'L''immeuble'),
    ('Pictures', '1001201', 'FR', 1, 'Blanc, trois étages, avec gardien.'),
    ('Pictures', '1001202', 'ES', 0, 'Terraza'),
    ('Pictures', '1001202', 'ES', 1, 'Madera, toldo y la sierra de punta a punta.'),
    ('Pictures', '1001202', 'EN', 0, 'Terrace'),
    ('Pictures', '1001202', 'EN', 1, 'Timber, awning and the mountains from end to end.'),
    ('Pictures', '1001202', 'DE', 0, 'Terrasse'),
    ('Pictures', '1001202', 'DE', 1, 'Holz, Markise und die ganze Bergkette.'),
    ('Pictures', '1001202', 'FR', 0, 'Terrasse'),
    ('Pictures', '1001202', 'FR', 1, 'Bois, store et la montagne d''un bout à l''autre.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10012, 1, 1001201, 0, 'Pic1001201.dat', '2026-09-12T12:00:00'),
    (10012, 2, 1001202, 1, 'Pic1001202.dat', '2026-09-12T12:00:00');

-- BE-401  Finca de piedra entre olivos
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10013, 'BE-401', 495000, 1, 'Benissa-Partida Lleus', '2026-10-14T15:40:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10013, 0, '240'), (10013, 1, '4'), (10013, 2, '1'), (10013, 3, '4'), (10013, 4, '2'),
    (10013, 5, '1'), (10013, 6, '202'), (10013, 7, '14.000'), (10013, 8, ''), (10013, 9, '1890'),
    (10013, 10, ''), (10013, 11, '2'), (10013, 12, '5'), (10013, 13, '7'), (10013, 14, '6'),
    (10013, 15, '0'), (10013, 16, '1'), (10013, 17, '1'), (10013, 18, '0'), (10013, 19, '1'),
    (10013, 20, '0'), (10013, 21, '0'), (10013, 22, 'Partida Lleus, 44'),
    (10013, 23, '0000000BC3900S0013NN'), (10013, 24, 'Guardés'), (10013, 25, '470.000'),
    (10013, 26, 'Servidumbre de paso del vecino'), (10013, 27, 'Emma Clarke'),
    (10013, 28, '600 000 113'), (10013, 29, 'clarke@example.com'),
    (10013, 30, '17/10: segunda visita'), (10013, 31, 'Familia Ivars Torres'),
    (10013, 32, '600 000 213'), (10013, 33, 'Calle San Antonio, 2, Benissa'), (10013, 34, '4 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10013', 'ES', 0, 'Finca de piedra entre olivos'),
    ('Products', '10013', 'ES', 1,
        'Casa de labor de finales del siglo XIX, rehabilitada con muros de piedra vista, vigas '
        || 'de mobila y suelos de barro cocido. En la planta baja, salón con chimenea, cocina con '
        || 'despensa, dos dormitorios y un almacén de 23 metros; bajo la cubierta, tres '
        || 'dormitorios más. Pozo propio, luz de red y catorce mil metros de olivar en producción, '
        || 'con almazara cooperativa a tres kilómetros.'),
    ('Products', '10013', 'ES', 2, 'Venta/Casas de campo'),
    ('Products', '10013', 'EN', 0, 'Stone farmhouse among olive trees'),
    ('Products', '10013', 'EN', 1,
        'Farmhouse of the late nineteenth century, restored with exposed stone walls, pine '
        || 'beams and terracotta floors. On the ground floor, a living room with fireplace, '
        || 'kitchen with pantry, two bedrooms and a store of 23 metres; under the roof, three more '
        || 'bedrooms. Its own well, mains electricity and fourteen thousand metres of productive '
        || 'olive grove, with a cooperative mill three kilometres away.'),
    ('Products', '10013', 'EN', 2, 'For sale/Country houses'),
    ('Products', '10013', 'DE', 0, 'Steinfinca zwischen Olivenbäumen'),
    ('Products', '10013', 'DE', 1,
        'Bauernhaus vom Ende des 19. Jahrhunderts, restauriert mit Natursteinwänden, '
        || 'Kiefernbalken und Terrakottaböden. Im Erdgeschoss Wohnzimmer mit Kamin, Küche mit '
        || 'Speisekammer, zwei Schlafzimmer und ein Lager von 23 Metern; unter dem Dach drei '
        || 'weitere Schlafzimmer. Eigener Brunnen, Netzstrom und vierzehntausend Meter tragender '
        || 'Olivenhain, die Genossenschaftsmühle ist drei Kilometer entfernt.'),
    ('Products', '10013', 'DE', 2, 'Kauf/Landhäuser'),
    ('Products', '10013', 'FR', 0, 'Mas en pierre parmi les oliviers'),
    ('Products', '10013', 'FR', 1,
        'Ferme de la fin du XIXe siècle, restaurée avec murs de pierre apparente, poutres en '
        || 'pin et sols de terre cuite. Au rez-de-chaussée, séjour avec cheminée, cuisine avec '
        || 'cellier, deux chambres et une remise de 23 mètres ; sous le toit, trois autres '
        || 'chambres. Puits propre, électricité du réseau et quatorze mille mètres d''oliveraie en '
        || 'production, avec un moulin coopératif à trois kilomètres.'),
    ('Products', '10013', 'FR', 2, 'Vente/Maisons de campagne'),
    ('Pictures', '1001301', 'ES', 0, 'La casa y el almacén'),
    ('Pictures', '1001301', 'ES', 1, 'Piedra de la propia finca.'),
    ('Pictures', '1001301', 'EN', 0, 'The house and the store'),
    ('Pictures', '1001301', 'EN', 1, 'Stone from the estate itself.'),
    ('Pictures', '1001301', 'DE', 0, 'Das Haus und der Speicher'),
    ('Pictures', '1001301', 'DE', 1, 'Stein vom eigenen Land.'),
    ('Pictures', '1001301', 'FR', 0, 'La maison et la remise'),
    ('Pictures', '1001301', 'FR', 1, 'Pierre du domaine.'),
    ('Pictures', '1001302', 'ES', 0, 'Salón'),
    ('Pictures', '1001302', 'ES', 1, 'Vigas de mobila de más de cien años.'),
    ('Pictures', '1001302', 'EN', 0, 'Living room'),
    ('Pictures', '1001302', 'EN', 1, 'Pine beams more than a hundred years old.'),
    ('Pictures', '1001302', 'DE', 0, 'Wohnzimmer'),
    ('Pictures', '1001302', 'DE', 1, 'Über hundert Jahre alte Kiefernbalken.'),
    ('Pictures', '1001302', 'FR', 0, 'Séjour'),
    ('Pictures', '1001302', 'FR', 1, 'Poutres de pin plus que centenaires.'),
    ('Pictures', '1001303', 'ES', 0, 'Cocina'),
    ('Pictures', '1001303', 'ES', 1, 'Con despensa fresca todo el año.'),
    ('Pictures', '1001303', 'EN', 0, 'Kitchen'),
    ('Pictures', '1001303', 'EN', 1, 'With a pantry that is cool all year.'),
    ('Pictures', '1001303', 'DE', 0, 'Küche'),
    ('Pictures', '1001303', 'DE', 1, 'Mit ganzjährig kühler Speisekammer.'),
    ('Pictures', '1001303', 'FR', 0, 'Cuisine'),
    ('Pictures', '1001303', 'FR', 1, 'Avec un cellier frais toute l''année.'),
    ('Pictures', '1001304', 'ES', 0, 'Dormitorio de la planta baja'),
    ('Pictures', '1001304', 'ES', 1, 'En la planta baja, con el sol de la mañana.'),
    ('Pictures', '1001304', 'EN', 0, 'Ground-floor bedroom'),
    ('Pictures', '1001304', 'EN', 1, 'On the ground floor, with the morning sun.'),
    ('Pictures', '1001304', 'DE', 0, 'Schlafzimmer im Erdgeschoss'),
    ('Pictures', '1001304', 'DE', 1, 'Im Erdgeschoss, mit Morgensonne.'),
    ('Pictures', '1001304', 'FR', 0, 'Chambre du rez-de-chaussée'),
    ('Pictures', '1001304', 'FR', 1, 'Au rez-de-chaussée, soleil du matin.'),
    ('Pictures', '1001305', 'ES', 0, 'Plano'),
    ('Pictures', '1001305', 'ES', 1, 'Planta baja con el almacén; superficies orientativas.'),
    ('Pictures', '1001305', 'EN', 0, 'Floor plan'),
    ('Pictures', '1001305', 'EN', 1, 'Ground floor with the store; areas are approximate.'),
    ('Pictures', '1001305', 'DE', 0, 'Grundriss'),
    ('Pictures', '1001305', 'DE', 1, 'Erdgeschoss mit Lager, Flächen ohne Gewähr.'),
    ('Pictures', '1001305', 'FR', 0, 'Plan'),
    ('Pictures', '1001305', 'FR', 1, 'Rez-de-chaussée avec la remise ; surfaces indicatives.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10013, 1, 1001301, 0, 'Pic1001301.dat', '2026-10-14T15:40:00'),
    (10013, 2, 1001302, 1, 'Pic1001302.dat', '2026-10-14T15:40:00'),
    (10013, 3, 1001303, 2, 'Pic1001303.dat', '2026-10-14T15:40:00'),
    (10013, 4, 1001304, 3, 'Pic1001304.dat', '2026-10-14T15:40:00'),
    (10013, 5, 1001305, 4, 'Pic1001305.dat', '2026-10-14T15:40:00');

-- BE-402  Olivar en producción
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10014, 'BE-402', 48000, 0, 'Benissa-Partida Lleus', '2026-04-03T09:15:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10014, 0, '9.500'), (10014, 1, '6'), (10014, 2, ''), (10014, 3, ''), (10014, 4, ''),
    (10014, 5, ''), (10014, 6, ''), (10014, 7, '9.500'), (10014, 8, ''), (10014, 9, ''),
    (10014, 10, ''), (10014, 11, '0'), (10014, 12, '5'), (10014, 13, '0'), (10014, 14, '8'),
    (10014, 15, '0'), (10014, 16, '0'), (10014, 17, '0'), (10014, 18, '0'), (10014, 19, '0'),
    (10014, 20, '0'), (10014, 21, '0'), (10014, 22, 'Polígono 12, parcela 210'),
    (10014, 23, '0000000BC3900S0014PP'), (10014, 24, 'No hay'), (10014, 25, '43.000'),
    (10014, 26, 'Sin cargas'), (10014, 27, ''), (10014, 28, ''), (10014, 29, ''), (10014, 30, ''),
    (10014, 31, 'Tomás Crespo'), (10014, 32, '600 000 214'),
    (10014, 33, 'Calle Purísima, 11, Benissa'), (10014, 34, '6 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10014', 'ES', 0, 'Olivar en producción'),
    ('Products', '10014', 'ES', 1,
        'Nueve mil quinientos metros con ciento veinte olivos adultos, plantados en hileras a '
        || 'los dos lados de un camino de grava. Agua de riego dos veces por semana, tierra recién '
        || 'labrada y las piedras de un antiguo bancal apartadas junto a la entrada. No es '
        || 'edificable; se permite caseta de aperos. Ideal para quien quiera hacer su propio '
        || 'aceite.'),
    ('Products', '10014', 'ES', 2, 'Venta/Terrenos'),
    ('Products', '10014', 'EN', 0, 'Productive olive grove'),
    ('Products', '10014', 'EN', 1,
        'Nine thousand five hundred metres with a hundred and twenty mature olive trees, '
        || 'planted in rows on both sides of a gravel lane. Irrigation water twice a week, freshly '
        || 'worked soil and the stones of an old terrace set aside by the entrance. Building is '
        || 'not allowed, but a tool shed is. Ideal for anyone who wants to make their own oil.'),
    ('Products', '10014', 'EN', 2, 'For sale/Land'),
    ('Products', '10014', 'DE', 0, 'Bewirtschafteter Olivenhain'),
    ('Products', '10014', 'DE', 1,
        'Neuntausendfünfhundert Meter mit hundertzwanzig ausgewachsenen Olivenbäumen, in Reihen '
        || 'zu beiden Seiten eines Schotterwegs. Wasser zweimal pro Woche, frisch bearbeiteter '
        || 'Boden und die Steine einer alten Terrasse neben der Einfahrt. Nicht bebaubar, ein '
        || 'Geräteschuppen ist erlaubt. Ideal für alle, die ihr eigenes Öl machen wollen.'),
    ('Products', '10014', 'DE', 2, 'Kauf/Grundstücke'),
    ('Products', '10014', 'FR', 0, 'Oliveraie en production'),
    ('Products', '10014', 'FR', 1,
        'Neuf mille cinq cents mètres avec cent vingt oliviers adultes, plantés en rangs des '
        || 'deux côtés d''un chemin de gravier. Eau d''arrosage deux fois par semaine, terre '
        || 'fraîchement travaillée et les pierres d''une ancienne terrasse rangées près de '
        || 'l''entrée. Non constructible ; un abri à outils est permis. Idéal pour qui veut faire '
        || 'sa propre huile.'),
    ('Products', '10014', 'FR', 2, 'Vente/Terrains'),
    ('Pictures', '1001401', 'ES', 0, 'El olivar'),
    ('Pictures', '1001401', 'ES', 1, 'El camino central se recorre en coche.'),
    ('Pictures', '1001401', 'EN', 0, 'The olive grove'),
    ('Pictures', '1001401', 'EN', 1, 'The middle lane can be driven.'),
    ('Pictures', '1001401', 'DE', 0, 'Der Olivenhain'),
    ('Pictures', '1001401', 'DE', 1, 'Der Mittelweg ist befahrbar.'),
    ('Pictures', '1001401', 'FR', 0, 'L''oliveraie'),
    ('Pictures', '1001401', 'FR', 1, 'Chemin central carrossable.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10014, 1, 1001401, 0, 'Pic1001401.dat', '2026-04-03T09:15:00');

-- OL-403  Casa rural encalada con almacén y olivos
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10015, 'OL-403', 365000, 0, 'Oliva-Partida "Els Racons"', '2026-08-08T11:25:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10015, 0, '230'), (10015, 1, '4'), (10015, 2, '2'), (10015, 3, '3'), (10015, 4, '2'),
    (10015, 5, '0'), (10015, 6, '198'), (10015, 7, '6.200'), (10015, 8, ''), (10015, 9, '1925'),
    (10015, 10, ''), (10015, 11, '0'), (10015, 12, '6'), (10015, 13, '7'), (10015, 14, '6'),
    (10015, 15, '0'), (10015, 16, '1'), (10015, 17, '1'), (10015, 18, '0'), (10015, 19, '1'),
    (10015, 20, '0'), (10015, 21, '0'), (10015, 22, 'Partida Els Racons, 8'),
    (10015, 23, '0000000BC3900S0015QQ'), (10015, 24, 'En la oficina'), (10015, 25, '350.000'),
    (10015, 26, 'Sin cargas'), (10015, 27, 'Thomas Keller'), (10015, 28, '600 000 115'),
    (10015, 29, 'keller@example.com'), (10015, 30, '12/8'), (10015, 31, 'Teresa Baidal'),
    (10015, 32, '600 000 215'), (10015, 33, 'Calle de la Virgen, 40, Oliva'), (10015, 34, '4 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10015', 'ES', 0, 'Casa rural encalada con almacén y olivos'),
    ('Products', '10015', 'ES', 1,
        'En la partida que aquí todos llaman "Els Racons", a diez minutos de las playas de '
        || 'Oliva, casa encalada de dos plantas con almacén adosado y una pérgola de madera ante '
        || 'la puerta. Salón con vigas oscuras, suelo de barro en toda la casa, cinco dormitorios '
        || 'y dos baños. Seis mil metros de tierra con olivos viejos, que un vecino cuida a cambio '
        || 'de la mitad de la cosecha.'),
    ('Products', '10015', 'ES', 2, 'Venta/Casas de campo'),
    ('Products', '10015', 'EN', 0, 'Whitewashed country house with store and olive trees'),
    ('Products', '10015', 'EN', 1,
        'In the hamlet that everyone here calls "Els Racons", ten minutes from the beaches of '
        || 'Oliva: a whitewashed two-storey house with an adjoining store and a timber pergola '
        || 'before the door. Living room with dark beams, terracotta floors throughout, five '
        || 'bedrooms and two bathrooms. Six thousand metres of land with old olive trees, which a '
        || 'neighbour tends in exchange for half the crop.'),
    ('Products', '10015', 'EN', 2, 'For sale/Country houses'),
    ('Products', '10015', 'DE', 0, 'Weißes Landhaus mit Lager und Olivenbäumen'),
    ('Products', '10015', 'DE', 1,
        'In der Flur, die hier alle "Els Racons" nennen, zehn Minuten von den Stränden von '
        || 'Oliva: weiß gekalktes Haus auf zwei Ebenen mit angebautem Lager und Holzpergola vor '
        || 'der Tür. Wohnzimmer mit dunklen Balken, Terrakottaböden im ganzen Haus, fünf '
        || 'Schlafzimmer und zwei Bäder. Sechstausend Meter Land mit alten Olivenbäumen, die ein '
        || 'Nachbar gegen die halbe Ernte pflegt.'),
    ('Products', '10015', 'DE', 2, 'Kauf/Landhäuser'),
    ('Products', '10015', 'FR', 0,
        'Maison de campagne blanchie à la chaux, avec remise et oliviers'),
    ('Products', '10015', 'FR', 1,
        'Au lieu-dit que tout le monde ici appelle "Els Racons", à dix minutes des plages '
        || 'd''Oliva : maison blanchie à la chaux sur deux niveaux, avec remise attenante et '
        || 'pergola de bois devant la porte. Séjour aux poutres sombres, terre cuite dans toute la '
        || 'maison, cinq chambres et deux salles de bains. Six mille mètres de terre avec de vieux '
        || 'oliviers, qu''un voisin entretient contre la moitié de la récolte.'),
    ('Products', '10015', 'FR', 2, 'Vente/Maisons de campagne'),
    ('Pictures', '1001501', 'ES', 0, 'La casa encalada'),
    ('Pictures', '1001501', 'ES', 1, 'La pérgola se cubre de parra en verano.'),
    ('Pictures', '1001501', 'EN', 0, 'The whitewashed house'),
    ('Pictures', '1001501', 'EN', 1, 'In summer a vine covers the pergola.'),
    ('Pictures', '1001501', 'DE', 0, 'Das weiß gekalkte Haus'),
    ('Pictures', '1001501', 'DE', 1, 'Im Sommer bedeckt Wein die Pergola.'),
    ('Pictures', '1001501', 'FR', 0, 'La maison blanchie à la chaux'),
    ('Pictures', '1001501', 'FR', 1, 'En été, une vigne couvre la pergola.'),
    ('Pictures', '1001502', 'ES', 0, 'Dormitorio principal'),
    ('Pictures', '1001502', 'ES', 1, 'Suelo de barro y armario de obra.'),
    ('Pictures', '1001502', 'EN', 0, 'Main bedroom'),
    ('Pictures', '1001502', 'EN', 1, 'Terracotta floor and built-in wardrobe.'),
    ('Pictures', '1001502', 'DE', 0, 'Hauptschlafzimmer'),
    ('Pictures', '1001502', 'DE', 1, 'Terrakottaboden und Einbauschrank.'),
    ('Pictures', '1001502', 'FR', 0, 'Chambre principale'),
    ('Pictures', '1001502', 'FR', 1, 'Terre cuite et placard maçonné.'),
    ('Pictures', '1001503', 'ES', 0, 'Salón'),
    ('Pictures', '1001503', 'ES', 1, 'Vigas oscuras, muros de medio metro.'),
    ('Pictures', '1001503', 'EN', 0, 'Living room'),
    ('Pictures', '1001503', 'EN', 1, 'Dark beams, walls half a metre thick.'),
    ('Pictures', '1001503', 'DE', 0, 'Wohnzimmer'),
    ('Pictures', '1001503', 'DE', 1, 'Dunkle Balken, halbmeterdicke Mauern.'),
    ('Pictures', '1001503', 'FR', 0, 'Séjour'),
    ('Pictures', '1001503', 'FR', 1, 'Poutres sombres, murs d''un demi-mètre.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10015, 1, 1001501, 0, 'Pic1001501.dat', '2026-08-08T11:25:00'),
    (10015, 2, 1001502, 1, 'Pic1001502.dat', '2026-08-08T11:25:00'),
    (10015, 3, 1001503, 2, 'Pic1001503.dat', '2026-08-08T11:25:00');

-- AF-404  Villa familiar cerca del colegio
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10016, 'AF-404', 398000, 0, 'L''Alfàs del Pi', '2026-10-09T19:05:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10016, 0, '218'), (10016, 1, '1'), (10016, 2, '0'), (10016, 3, '4'), (10016, 4, '3'),
    (10016, 5, '0'), (10016, 6, '190'), (10016, 7, '850'), (10016, 8, ''), (10016, 9, '1999'),
    (10016, 10, ''), (10016, 11, '0'), (10016, 12, '5'), (10016, 13, '2'), (10016, 14, '4'),
    (10016, 15, '0'), (10016, 16, '1'), (10016, 17, '1'), (10016, 18, '1'), (10016, 19, '1'),
    (10016, 20, '1'), (10016, 21, '1'), (10016, 22, 'Calle Montemar, 27, L''Alfàs del Pi'),
    (10016, 23, '0000000BC3900S0016RR'), (10016, 24, 'Propietario'), (10016, 25, '385.000'),
    (10016, 26, 'Hipoteca pendiente de 95.000 euros'), (10016, 27, 'Familia Orts'),
    (10016, 28, '600 000 116'), (10016, 29, 'orts@example.com'), (10016, 30, '11/10 y 18/10'),
    (10016, 31, 'Andrew Mills'), (10016, 32, '600 000 216'),
    (10016, 33, 'Calle Montemar, 27, L''Alfàs del Pi'), (10016, 34, '4 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10016', 'ES', 0, 'Villa familiar cerca del colegio'),
    ('Products', '10016', 'ES', 1,
        'Cuatro dormitorios dobles, dos de ellos con baño, y un sótano de sesenta metros que '
        || 'hoy es sala de juegos. Piscina vallada, huerto con riego y garaje para dos coches. '
        || 'Calle sin salida, tranquila, con parada de autobús escolar en la esquina. Arriba, una '
        || 'terraza con pérgola mira a la sierra.'),
    ('Products', '10016', 'ES', 2, 'Venta/Villas'),
    ('Products', '10016', 'EN', 0, 'Family villa near the school'),
    ('Products', '10016', 'EN', 1,
        'Four double bedrooms, two of them with bathroom, and a basement of sixty metres that '
        || 'is now a playroom. Fenced pool, watered vegetable garden and garage for two cars. A '
        || 'quiet dead-end street with a school bus stop on the corner. Upstairs, a terrace with '
        || 'pergola looks out to the mountains.'),
    ('Products', '10016', 'EN', 2, 'For sale/Villas'),
    ('Products', '10016', 'DE', 0, 'Familienvilla nahe der Schule'),
    ('Products', '10016', 'DE', 1,
        'Vier Doppelzimmer, zwei davon mit Bad, und ein sechzig Meter großer Keller, heute '
        || 'Spielzimmer. Eingezäunter Pool, bewässerter Gemüsegarten und Garage für zwei Autos. '
        || 'Ruhige Sackgasse mit Schulbushaltestelle an der Ecke. Oben blickt eine Terrasse mit '
        || 'Pergola auf die Berge.'),
    ('Products', '10016', 'DE', 2, 'Kauf/Villen'),
    ('Products', '10016', 'FR', 0, 'Villa familiale près de l''école'),
    ('Products', '10016', 'FR', 1,
        'Quatre chambres doubles, dont deux avec salle de bains, et un sous-sol de soixante '
        || 'mètres devenu salle de jeux. Piscine clôturée, potager arrosé et garage pour deux '
        || 'voitures. Impasse tranquille, avec arrêt de bus scolaire au coin. À l''étage, une '
        || 'terrasse avec pergola regarde la montagne.'),
    ('Products', '10016', 'FR', 2, 'Vente/Villas'),
    ('Pictures', '1001601', 'ES', 0, 'La casa desde el jardín'),
    ('Pictures', '1001601', 'ES', 1, 'Piscina de ocho metros con zona de hamacas.'),
    ('Pictures', '1001601', 'EN', 0, 'The house from the garden'),
    ('Pictures', '1001601', 'EN', 1, 'Pool of eight metres with room for loungers.'),
    ('Pictures', '1001601', 'DE', 0, 'Das Haus vom Garten aus'),
    ('Pictures', '1001601', 'DE', 1, 'Pool von acht Metern mit Liegefläche.'),
    ('Pictures', '1001601', 'FR', 0, 'La maison depuis le jardin'),
    ('Pictures', '1001601', 'FR', 1, 'Piscine de huit mètres avec espace transats.'),
    ('Pictures', '1001602', 'ES', 0, 'Baño'),
    ('Pictures', '1001602', 'ES', 1, 'Bañera, ventana y mueble de roble.'),
    ('Pictures', '1001602', 'EN', 0, 'Bathroom'),
    ('Pictures', '1001602', 'EN', 1, 'Bathtub, window and oak unit.'),
    ('Pictures', '1001602', 'DE', 0, 'Bad'),
    ('Pictures', '1001602', 'DE', 1, 'Wanne, Fenster und Eichenmöbel.'),
    ('Pictures', '1001602', 'FR', 0, 'Salle de bains'),
    ('Pictures', '1001602', 'FR', 1, 'Baignoire, fenêtre et meuble en chêne.'),
    ('Pictures', '1001603', 'ES', 0, 'Terraza de la planta alta'),
    ('Pictures', '1001603', 'ES', 1, 'En la planta alta, con pérgola y vistas a la sierra.'),
    ('Pictures', '1001603', 'EN', 0, 'Upstairs terrace'),
    ('Pictures', '1001603', 'EN', 1, 'Upstairs, with pergola and mountain views.'),
    ('Pictures', '1001603', 'DE', 0, 'Terrasse im Obergeschoss'),
    ('Pictures', '1001603', 'DE', 1, 'Im Obergeschoss, mit Pergola und Bergblick.'),
    ('Pictures', '1001603', 'FR', 0, 'Terrasse de l''étage'),
    ('Pictures', '1001603', 'FR', 1, 'À l''étage, avec pergola et vue sur la montagne.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10016, 1, 1001601, 0, 'Pic1001601.dat', '2026-10-09T19:05:00'),
    (10016, 2, 1001602, 1, 'Pic1001602.dat', '2026-10-09T19:05:00'),
    (10016, 3, 1001603, 2, 'Pic1001603.dat', '2026-10-09T19:05:00');

-- CA-501  Residencial de obra nueva junto a la laguna
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10017, 'CA-501', 289000, 1, 'Calpe-La Laguna', '2026-10-18T10:20:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10017, 0, '112'), (10017, 1, '3'), (10017, 2, '0'), (10017, 3, '3'), (10017, 4, '1'),
    (10017, 5, '0'), (10017, 6, '93'), (10017, 7, ''), (10017, 8, '1-5'), (10017, 9, '2027'),
    (10017, 10, '110'), (10017, 11, '4'), (10017, 12, '4'), (10017, 13, '6'), (10017, 14, '1'),
    (10017, 15, '1'), (10017, 16, '1'), (10017, 17, '1'), (10017, 18, '1'), (10017, 19, '1'),
    (10017, 20, '1'), (10017, 21, '1'), (10017, 22, 'Avenida de la Laguna, s/n'),
    (10017, 23, '0000000BC4800S0017SS'), (10017, 24, 'Caseta de obra'), (10017, 25, '289.000'),
    (10017, 26, 'Préstamo promotor subrogable'), (10017, 27, 'Lista de espera: 6'),
    (10017, 28, ''), (10017, 29, ''), (10017, 30, 'Jornada de puertas abiertas el 7/11'),
    (10017, 31, 'Promotora Ifach Sol'), (10017, 32, '600 000 217'),
    (10017, 33, 'Avenida de Europa, 12, Calpe'), (10017, 34, '2,5 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10017', 'ES', 0,
        'Residencial de obra nueva junto a la laguna: viviendas de tres dormitorios con '
        || 'terraza, garaje y trastero'),
    ('Products', '10017', 'ES', 1,
        'Veinticuatro viviendas de tres dormitorios con terraza de ocho metros, garaje y '
        || 'trastero. La cocina se entrega montada, con isla y frentes de roble, y el baño, con '
        || 'plato de ducha y mampara. Aerotermia, placas solares y piscina en el jardín. Entrega '
        || 'prevista para el verano de 2027; el precio es el de la vivienda tipo de la primera '
        || 'planta, la del plano.'),
    ('Products', '10017', 'ES', 2, 'Venta/Obra nueva'),
    ('Products', '10017', 'EN', 0,
        'New development by the lagoon: three-bedroom homes with terrace, garage and storage room'),
    ('Products', '10017', 'EN', 1,
        'Twenty-four homes with three bedrooms, a terrace of eight metres, garage and storage '
        || 'room. The kitchen is handed over fitted, with island and oak fronts, and the bathroom '
        || 'with walk-in shower and glass screen. Air-source heating, solar panels and a pool in '
        || 'the garden. Delivery is planned for summer 2027; the price is that of the standard '
        || 'first-floor home, the one in the plan.'),
    ('Products', '10017', 'EN', 2, 'For sale/New developments'),
    ('Products', '10017', 'DE', 0,
        'Neubauanlage an der Lagune: Wohnungen mit drei Schlafzimmern, Terrasse, Garage und '
        || 'Abstellraum'),
    ('Products', '10017', 'DE', 1,
        'Vierundzwanzig Wohnungen mit drei Schlafzimmern, acht Quadratmeter großer Terrasse, '
        || 'Garage und Abstellraum. Die Küche wird fertig montiert übergeben, mit Insel und '
        || 'Eichenfronten, das Bad mit Dusche und Glaswand. Luftwärmepumpe, Solaranlage und Pool '
        || 'im Garten. Übergabe im Sommer 2027 geplant; der Preis gilt für den Wohnungstyp im '
        || 'ersten Stock, den der Grundriss zeigt.'),
    ('Products', '10017', 'DE', 2, 'Kauf/Neubau'),
    ('Products', '10017', 'FR', 0,
        'Résidence neuve près de la lagune : logements de trois chambres avec terrasse, garage '
        || 'et débarras'),
    ('Products', '10017', 'FR', 1,
        'Vingt-quatre logements de trois chambres avec terrasse de huit mètres, garage et '
        || 'débarras. La cuisine est livrée montée, avec îlot et façades de chêne, et la salle de '
        || 'bains avec douche et paroi de verre. Pompe à chaleur, panneaux solaires et piscine '
        || 'dans le jardin. Livraison prévue à l''été 2027 ; le prix est celui du logement type du '
        || 'premier étage, celui du plan.'),
    ('Products', '10017', 'FR', 2, 'Vente/Neuf'),
    ('Pictures', '1001701', 'ES', 0, 'Imagen del proyecto'),
    ('Pictures', '1001701', 'ES', 1, 'Recreación del arquitecto; puede variar.'),
    ('Pictures', '1001701', 'EN', 0, 'Image of the project'),
    ('Pictures', '1001701', 'EN', 1, 'Architect''s impression; it may vary.'),
    ('Pictures', '1001701', 'DE', 0, 'Ansicht des Projekts'),
    ('Pictures', '1001701', 'DE', 1, 'Visualisierung, Änderungen vorbehalten.'),
    ('Pictures', '1001701', 'FR', 0, 'Image du projet'),
    ('Pictures', '1001701', 'FR', 1, 'Vue d''architecte, non contractuelle.'),
    ('Pictures', '1001702', 'ES', 0, 'Cocina'),
    ('Pictures', '1001702', 'ES', 1, 'Así se entrega, electrodomésticos incluidos.'),
    ('Pictures', '1001702', 'EN', 0, 'Kitchen'),
    ('Pictures', '1001702', 'EN', 1, 'As handed over, appliances included.'),
    ('Pictures', '1001702', 'DE', 0, 'Küche'),
    ('Pictures', '1001702', 'DE', 1, 'So wird sie übergeben, samt Geräten.'),
    ('Pictures', '1001702', 'FR', 0, 'Cuisine'),
    ('Pictures', '1001702', 'FR', 1, 'Livrée ainsi, électroménager compris.'),
    ('Pictures', '1001703', 'ES', 0, 'Baño'),
    ('Pictures', '1001703', 'ES', 1, 'Plato de ducha, mampara y azulejo blanco.'),
    ('Pictures', '1001703', 'EN', 0, 'Bathroom'),
    ('Pictures', '1001703', 'EN', 1, 'Shower tray, glass screen and white tiles.'),
    ('Pictures', '1001703', 'DE', 0, 'Bad'),
    ('Pictures', '1001703', 'DE', 1, 'Duschwanne, Glaswand und weiße Fliesen.'),
    ('Pictures', '1001703', 'FR', 0, 'Salle de bains'),
    ('Pictures', '1001703', 'FR', 1, 'Receveur, paroi de verre et carreaux blancs.'),
    ('Pictures', '1001704', 'ES', 0, 'Plano'),
    ('Pictures', '1001704', 'ES', 1, 'Primera planta; superficies orientativas.'),
    ('Pictures', '1001704', 'EN', 0, 'Floor plan'),
    ('Pictures', '1001704', 'EN', 1, 'First floor; areas are approximate.'),
    ('Pictures', '1001704', 'DE', 0, 'Grundriss'),
    ('Pictures', '1001704', 'DE', 1, 'Erster Stock, Flächen ohne Gewähr.'),
    ('Pictures', '1001704', 'FR', 0, 'Plan'),
    ('Pictures', '1001704', 'FR', 1, 'Premier étage ; surfaces indicatives.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10017, 1, 1001701, 0, 'Pic1001701.dat', '2026-10-18T10:20:00'),
    (10017, 2, 1001702, 1, 'Pic1001702.dat', '2026-10-18T10:20:00'),
    (10017, 3, 1001703, 2, 'Pic1001703.dat', '2026-10-18T10:20:00'),
    (10017, 4, 1001704, 3, 'Pic1001704.dat', '2026-10-18T10:20:00');

-- PE-502  Ático dúplex con solárium
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10018, 'PE-502', 365000, 0, 'Peñíscola-Playa Norte', '2026-09-25T14:14:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10018, 0, '140'), (10018, 1, '2'), (10018, 2, '0'), (10018, 3, '3'), (10018, 4, '2'),
    (10018, 5, '1'), (10018, 6, '118'), (10018, 7, ''), (10018, 8, '6'), (10018, 9, '2005'),
    (10018, 10, '130'), (10018, 11, '0'), (10018, 12, '6'), (10018, 13, '4'), (10018, 14, '3'),
    (10018, 15, '1'), (10018, 16, '1'), (10018, 17, '1'), (10018, 18, '1'), (10018, 19, '0'),
    (10018, 20, '1'), (10018, 21, '1'), (10018, 22, 'Avenida Papa Luna, 9, 6.º'),
    (10018, 23, '0000000BC4800S0018TT'), (10018, 24, 'En la oficina'), (10018, 25, '350.000'),
    (10018, 26, 'Sin cargas'), (10018, 27, 'Anna Kowalska'), (10018, 28, '600 000 118'),
    (10018, 29, 'kowalska@example.com'), (10018, 30, '29/9'), (10018, 31, 'Luis Avargues'),
    (10018, 32, '600 000 218'), (10018, 33, 'Calle Mayor, 1, Benicarló'), (10018, 34, '4 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10018', 'ES', 0, 'Ático dúplex con solárium'),
    ('Products', '10018', 'ES', 1,
        'Abajo, salón, cocina y dos dormitorios; arriba, el dormitorio principal con baño y un '
        || 'solárium de cuarenta metros con ducha y vistas a la bahía. Doble orientación, aire por '
        || 'conductos y trastero. La comunidad incluye piscina y gimnasio. El comedor de fuera '
        || 'tiene pérgola y barandilla de vidrio, y el mar delante.'),
    ('Products', '10018', 'ES', 2, 'Venta/Áticos'),
    ('Products', '10018', 'EN', 0, 'Duplex penthouse with sun deck'),
    ('Products', '10018', 'EN', 1,
        'Downstairs, living room, kitchen and two bedrooms; upstairs, the main bedroom with '
        || 'bathroom and a sun deck of forty metres with a shower and views over the bay. Double '
        || 'aspect, ducted air conditioning and storage room. Pool and gym are shared. The outdoor '
        || 'dining area has a pergola, a glass railing and the sea in front.'),
    ('Products', '10018', 'EN', 2, 'For sale/Penthouses'),
    ('Products', '10018', 'DE', 0, 'Maisonette-Penthouse mit Sonnendeck'),
    ('Products', '10018', 'DE', 1,
        'Unten Wohnzimmer, Küche und zwei Schlafzimmer; oben das Hauptschlafzimmer mit Bad und '
        || 'ein vierzig Meter großes Sonnendeck mit Dusche und Blick über die Bucht. Zwei '
        || 'Himmelsrichtungen, Klimaanlage und Abstellraum. Pool und Fitnessraum gehören zur '
        || 'Anlage. Der Essplatz im Freien hat eine Pergola, ein Glasgeländer und das Meer vor '
        || 'sich.'),
    ('Products', '10018', 'DE', 2, 'Kauf/Dachwohnungen'),
    ('Products', '10018', 'FR', 0, 'Attique en duplex avec solarium'),
    ('Products', '10018', 'FR', 1,
        'En bas, séjour, cuisine et deux chambres ; en haut, la chambre principale avec salle '
        || 'de bains et un solarium de quarante mètres avec douche et vue sur la baie. Double '
        || 'orientation, climatisation gainable et débarras. Piscine et salle de sport communes. '
        || 'Le coin repas extérieur a une pergola, un garde-corps en verre et la mer devant.'),
    ('Products', '10018', 'FR', 2, 'Vente/Attiques'),
    ('Pictures', '1001801', 'ES', 0, 'La terraza y el mar'),
    ('Pictures', '1001801', 'ES', 1, 'La bahía entera desde la mesa.'),
    ('Pictures', '1001801', 'EN', 0, 'The terrace and the sea'),
    ('Pictures', '1001801', 'EN', 1, 'The whole bay from the table.'),
    ('Pictures', '1001801', 'DE', 0, 'Die Terrasse und das Meer'),
    ('Pictures', '1001801', 'DE', 1, 'Die ganze Bucht vom Tisch aus.'),
    ('Pictures', '1001801', 'FR', 0, 'La terrasse et la mer'),
    ('Pictures', '1001801', 'FR', 1, 'Toute la baie depuis la table.'),
    ('Pictures', '1001802', 'ES', 0, 'Salón'),
    ('Pictures', '1001802', 'ES', 1, 'Suelo de madera y el mar por la ventana.'),
    ('Pictures', '1001802', 'EN', 0, 'Living room'),
    ('Pictures', '1001802', 'EN', 1, 'Wooden floor and the sea through the window.'),
    ('Pictures', '1001802', 'DE', 0, 'Wohnzimmer'),
    ('Pictures', '1001802', 'DE', 1, 'Holzboden und das Meer im Fenster.'),
    ('Pictures', '1001802', 'FR', 0, 'Séjour'),
    ('Pictures', '1001802', 'FR', 1, 'Parquet et la mer par la fenêtre.'),
    ('Pictures', '1001803', 'ES', 0, 'El edificio'),
    ('Pictures', '1001803', 'ES', 1, 'Segunda línea de playa, calle tranquila.'),
    ('Pictures', '1001803', 'EN', 0, 'The building'),
    ('Pictures', '1001803', 'EN', 1, 'Second line from the beach, quiet street.'),
    ('Pictures', '1001803', 'DE', 0, 'Das Gebäude'),
    ('Pictures', '1001803', 'DE', 1, 'Zweite Strandreihe, ruhige Straße.'),
    ('Pictures', '1001803', 'FR', 0, 'L''immeuble'),
    ('Pictures', '1001803', 'FR', 1, 'Deuxième ligne de plage, rue calme.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10018, 1, 1001801, 0, 'Pic1001801.dat', '2026-09-25T14:14:00'),
    (10018, 2, 1001802, 1, 'Pic1001802.dat', '2026-09-25T14:14:00'),
    (10018, 3, 1001803, 2, 'Pic1001803.dat', '2026-09-25T14:14:00');

-- PE-503  Apartamento reformado a un paso de la playa
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10019, 'PE-503', 112000, 0, 'Peñíscola-Playa Norte', '2026-07-30T20:10:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10019, 0, '52'), (10019, 1, '0'), (10019, 2, '0'), (10019, 3, '1'), (10019, 4, '1'),
    (10019, 5, '0'), (10019, 6, '44'), (10019, 7, ''), (10019, 8, '5'), (10019, 9, '1979'),
    (10019, 10, '45'), (10019, 11, '2'), (10019, 12, '3'), (10019, 13, '3'), (10019, 14, '6'),
    (10019, 15, '1'), (10019, 16, '0'), (10019, 17, '0'), (10019, 18, '1'), (10019, 19, '0'),
    (10019, 20, '1'), (10019, 21, '1'), (10019, 22, 'Avenida Papa Luna, 116, 5.º G'),
    (10019, 23, '0000000BC4800S0019UU'), (10019, 24, 'En la oficina'), (10019, 25, '106.000'),
    (10019, 26, 'Sin cargas'), (10019, 27, ''), (10019, 28, ''), (10019, 29, ''), (10019, 30, ''),
    (10019, 31, 'Nuria Femenía'), (10019, 32, '600 000 219'),
    (10019, 33, 'Calle Purísima, 8, Vinaròs'), (10019, 34, '5 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10019', 'ES', 0, 'Apartamento reformado a un paso de la playa'),
    ('Products', '10019', 'ES', 1,
        'Un dormitorio de verdad, con armario de cuatro puertas y salida al balcón, y una sala '
        || 'bien aprovechada con la cocina nueva en un lado. El balcón tiene vista lateral al mar '
        || 'y sol de mañana. Se vende amueblado y con licencia de alquiler turístico en vigor, y '
        || 'la comunidad cuida la piscina. Muy buena rentabilidad en verano.'),
    ('Products', '10019', 'ES', 2, 'Venta/Pisos'),
    ('Products', '10019', 'EN', 0, 'Renovated apartment a step from the beach'),
    ('Products', '10019', 'EN', 1,
        'A real bedroom, with a four-door wardrobe and access to the balcony, and a well-used '
        || 'living room with the new kitchen on one side. The balcony has a side view of the sea '
        || 'and the morning sun. Sold furnished and with a valid holiday rental licence; the '
        || 'community looks after the pool. Very good returns in summer.'),
    ('Products', '10019', 'EN', 2, 'For sale/Flats'),
    ('Products', '10019', 'DE', 0, 'Renoviertes Apartment am Strand'),
    ('Products', '10019', 'DE', 1,
        'Ein richtiges Schlafzimmer mit viertürigem Schrank und Zugang zum Balkon und ein gut '
        || 'genutzter Wohnraum mit der neuen Küche an der Seite. Der Balkon hat seitlichen '
        || 'Meerblick und Morgensonne. Möbliert und mit gültiger Ferienvermietungslizenz; um den '
        || 'Pool kümmert sich die Gemeinschaft. Im Sommer sehr gute Rendite.'),
    ('Products', '10019', 'DE', 2, 'Kauf/Wohnungen'),
    ('Products', '10019', 'FR', 0, 'Appartement rénové à deux pas de la plage'),
    ('Products', '10019', 'FR', 1,
        'Une vraie chambre, avec armoire à quatre portes et accès au balcon, et une pièce à '
        || 'vivre bien exploitée avec la cuisine neuve sur un côté. Le balcon a une vue latérale '
        || 'sur la mer et le soleil du matin. Vendu meublé et avec licence de location touristique '
        || 'en vigueur ; la copropriété entretient la piscine. Très bonne rentabilité en été.'),
    ('Products', '10019', 'FR', 2, 'Vente/Appartements'),
    ('Pictures', '1001901', 'ES', 0, 'El edificio'),
    ('Pictures', '1001901', 'ES', 1, 'El quinto, con ascensor.'),
    ('Pictures', '1001901', 'EN', 0, 'The building'),
    ('Pictures', '1001901', 'EN', 1, 'The fifth floor, with a lift.'),
    ('Pictures', '1001901', 'DE', 0, 'Das Gebäude'),
    ('Pictures', '1001901', 'DE', 1, 'Der fünfte Stock, mit Aufzug.'),
    ('Pictures', '1001901', 'FR', 0, 'L''immeuble'),
    ('Pictures', '1001901', 'FR', 1, 'Le cinquième, avec ascenseur.'),
    ('Pictures', '1001902', 'ES', 0, 'Dormitorio principal'),
    ('Pictures', '1001902', 'ES', 1, 'Armario de cuatro puertas y salida al balcón.'),
    ('Pictures', '1001902', 'EN', 0, 'Main bedroom'),
    ('Pictures', '1001902', 'EN', 1, 'Four-door wardrobe and access to the balcony.'),
    ('Pictures', '1001902', 'DE', 0, 'Hauptschlafzimmer'),
    ('Pictures', '1001902', 'DE', 1, 'Viertüriger Schrank und Zugang zum Balkon.'),
    ('Pictures', '1001902', 'FR', 0, 'Chambre principale'),
    ('Pictures', '1001902', 'FR', 1, 'Armoire à quatre portes et accès au balcon.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10019, 1, 1001901, 0, 'Pic1001901.dat', '2026-07-30T20:10:00'),
    (10019, 2, 1001902, 1, 'Pic1001902.dat', '2026-07-30T20:10:00');

-- CA-504  Local de ladrillo visto en alquiler
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10020, 'CA-504', 1200, 0, 'Calpe-La Laguna', '2026-10-12T12:12:12');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10020, 0, '120'), (10020, 1, '8'), (10020, 2, ''), (10020, 3, ''), (10020, 4, '0'),
    (10020, 5, '2'), (10020, 6, '112'), (10020, 7, ''), (10020, 8, '0'), (10020, 9, '1990'),
    (10020, 10, '40'), (10020, 11, '2'), (10020, 12, '5'), (10020, 13, '4'), (10020, 14, '4'),
    (10020, 15, '0'), (10020, 16, '0'), (10020, 17, '1'), (10020, 18, '0'), (10020, 19, '0'),
    (10020, 20, '0'), (10020, 21, '1'), (10020, 22, 'Avenida Gabriel Miró, 33, bajo'),
    (10020, 23, '0000000BC4800S0020VV'), (10020, 24, 'En la oficina'), (10020, 25, '1.100'),
    (10020, 26, 'Sin cargas'), (10020, 27, 'Forn de Pa'), (10020, 28, '600 000 120'),
    (10020, 29, 'forn@example.com'), (10020, 30, '14/10'),
    (10020, 31, 'Comunidad de bienes Sapena'), (10020, 32, '600 000 220'),
    (10020, 33, 'Avenida Gabriel Miró, 35, Calpe'), (10020, 34, 'Una mensualidad');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10020', 'ES', 0, 'Local de ladrillo visto en alquiler'),
    ('Products', '10020', 'ES', 1,
        'Local de ladrillo visto con nueve metros de fachada, dos escaparates, salida de humos '
        || 'y dos aseos. Se alquila sin traspaso, con tres meses de carencia para obras. La acera '
        || 'es ancha y el ayuntamiento permite terraza. Apto para cafetería, panadería o estudio; '
        || 'el propietario prefiere un contrato de cinco años o más.'),
    ('Products', '10020', 'ES', 2, 'Alquiler/Locales'),
    ('Products', '10020', 'EN', 0, 'Brick shop premises to let'),
    ('Products', '10020', 'EN', 1,
        'Brick premises with nine metres of frontage, two display windows, smoke outlet and two '
        || 'toilets. To let without premium, with three rent-free months for building work. The '
        || 'pavement is wide and the town hall allows tables outside. Suits a café, a bakery or a '
        || 'studio; the owner prefers a contract of five years or more.'),
    ('Products', '10020', 'EN', 2, 'To let/Shops'),
    ('Products', '10020', 'DE', 0, 'Backstein-Ladenlokal zu vermieten'),
    ('Products', '10020', 'DE', 1,
        'Backsteinlokal mit neun Metern Front, zwei Schaufenstern, Rauchabzug und zwei '
        || 'Toiletten. Zu vermieten ohne Ablöse, mit drei mietfreien Monaten für den Umbau. Der '
        || 'Gehweg ist breit, und die Gemeinde erlaubt Tische im Freien. Geeignet für Café, '
        || 'Bäckerei oder Studio; der Eigentümer wünscht einen Vertrag über mindestens fünf Jahre.'),
    ('Products', '10020', 'DE', 2, 'Miete/Ladenlokale'),
    ('Products', '10020', 'FR', 0, 'Local commercial en brique à louer'),
    ('Products', '10020', 'FR', 1,
        'Local en brique avec neuf mètres de façade, deux vitrines, évacuation de fumées et '
        || 'deux toilettes. À louer sans pas-de-porte, avec trois mois de franchise pour travaux. '
        || 'Le trottoir est large et la mairie autorise une terrasse. Convient à un café, une '
        || 'boulangerie ou un studio ; le propriétaire préfère un bail d''au moins cinq ans.'),
    ('Products', '10020', 'FR', 2, 'Location/Locaux'),
    ('Pictures', '1002001', 'ES', 0, 'Escaparates'),
    ('Pictures', '1002001', 'ES', 1, 'Rótulo y toldo permitidos.'),
    ('Pictures', '1002001', 'EN', 0, 'Display windows'),
    ('Pictures', '1002001', 'EN', 1, 'Sign and awning allowed.'),
    ('Pictures', '1002001', 'DE', 0, 'Schaufenster'),
    ('Pictures', '1002001', 'DE', 1, 'Schild und Markise erlaubt.'),
    ('Pictures', '1002001', 'FR', 0, 'Vitrines'),
    ('Pictures', '1002001', 'FR', 1, 'Enseigne et store autorisés.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10020, 1, 1002001, 0, 'Pic1002001.dat', '2026-10-12T12:12:12');

-- AL-601  Residencia singular sobre la bahía
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10021, 'AL-601', 0, 1, 'Altea-Sierra de Bernia', '2026-10-17T17:17:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10021, 0, '430'), (10021, 1, '1'), (10021, 2, '1'), (10021, 3, '5'), (10021, 4, '6'),
    (10021, 5, '1'), (10021, 6, '372'), (10021, 7, '2.300'), (10021, 8, ''), (10021, 9, '2020'),
    (10021, 10, ''), (10021, 11, '0'), (10021, 12, '4'), (10021, 13, '6'), (10021, 14, '1'),
    (10021, 15, '0'), (10021, 16, '1'), (10021, 17, '1'), (10021, 18, '1'), (10021, 19, '1'),
    (10021, 20, '1'), (10021, 21, '1'), (10021, 22, 'Calle del Acebuche, 1'),
    (10021, 23, '0000000BC5800S0021WW'), (10021, 24, 'Sólo con el propietario'),
    (10021, 25, '2.100.000'), (10021, 26, 'Sin cargas'), (10021, 27, 'Confidencial'),
    (10021, 28, '600 000 121'), (10021, 29, 'cliente@example.com'), (10021, 30, 'Pendiente'),
    (10021, 31, 'Confidencial'), (10021, 32, '600 000 221'), (10021, 33, 'Confidencial'),
    (10021, 34, '3 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10021', 'ES', 0, 'Residencia singular sobre la bahía'),
    ('Products', '10021', 'ES', 1,
        'Casa de autor en la sierra de Bernia, suspendida sobre la bahía de Altea. Madera, cal '
        || 'y vidrio; seis dormitorios, biblioteca, casa de invitados y un jardín mediterráneo que '
        || 'casi no pide agua. El precio se comunica a interesados con cita previa.'),
    ('Products', '10021', 'ES', 2, 'Venta/Villas'),
    ('Products', '10021', 'EN', 0, 'Exceptional residence above the bay'),
    ('Products', '10021', 'EN', 1,
        'Architect-designed house on the Bernia range, suspended above the bay of Altea. '
        || 'Timber, lime and glass; six bedrooms, a library, a guest house and a Mediterranean '
        || 'garden that needs hardly any water. The price is given on request, by appointment.'),
    ('Products', '10021', 'EN', 2, 'For sale/Villas'),
    ('Products', '10021', 'DE', 0, 'Außergewöhnliches Anwesen über der Bucht'),
    ('Products', '10021', 'DE', 1,
        'Architektenhaus in der Sierra de Bernia, schwebend über der Bucht von Altea. Holz, '
        || 'Kalk und Glas; sechs Schlafzimmer, Bibliothek, Gästehaus und ein mediterraner Garten, '
        || 'der kaum Wasser braucht. Der Preis wird Interessenten nach Vereinbarung mitgeteilt.'),
    ('Products', '10021', 'DE', 2, 'Kauf/Villen'),
    ('Products', '10021', 'FR', 0, 'Résidence d''exception au-dessus de la baie'),
    ('Products', '10021', 'FR', 1,
        'Maison d''architecte dans la sierra de Bernia, suspendue au-dessus de la baie '
        || 'd''Altea. Bois, chaux et verre ; six chambres, bibliothèque, maison d''amis et un '
        || 'jardin méditerranéen qui ne demande presque pas d''eau. Prix communiqué sur '
        || 'rendez-vous.'),
    ('Products', '10021', 'FR', 2, 'Vente/Villas'),
    ('Pictures', '1002101', 'ES', 0, 'Fachada sur'),
    ('Pictures', '1002101', 'ES', 1, 'Hormigón blanco y lamas de madera.'),
    ('Pictures', '1002101', 'EN', 0, 'South front'),
    ('Pictures', '1002101', 'EN', 1, 'White concrete and timber slats.'),
    ('Pictures', '1002101', 'DE', 0, 'Südfassade'),
    ('Pictures', '1002101', 'DE', 1, 'Weißer Beton und Holzlamellen.'),
    ('Pictures', '1002101', 'FR', 0, 'Façade sud'),
    ('Pictures', '1002101', 'FR', 1, 'Béton blanc et lames de bois.'),
    ('Pictures', '1002102', 'ES', 0, 'La terraza y el mar'),
    ('Pictures', '1002102', 'ES', 1, 'La bahía de Altea desde el comedor de verano.'),
    ('Pictures', '1002102', 'EN', 0, 'The terrace and the sea'),
    ('Pictures', '1002102', 'EN', 1, 'The bay of Altea from the summer dining room.'),
    ('Pictures', '1002102', 'DE', 0, 'Die Terrasse und das Meer'),
    ('Pictures', '1002102', 'DE', 1, 'Die Bucht von Altea vom Sommeresszimmer aus.'),
    ('Pictures', '1002102', 'FR', 0, 'La terrasse et la mer'),
    ('Pictures', '1002102', 'FR', 1, 'La baie d''Altea depuis la salle à manger d''été.'),
    ('Pictures', '1002103', 'ES', 0, 'Salón con vistas'),
    ('Pictures', '1002103', 'ES', 1, 'Orientado al mar por los dos lados.'),
    ('Pictures', '1002103', 'EN', 0, 'Living room with a view'),
    ('Pictures', '1002103', 'EN', 1, 'It looks to the sea on two sides.'),
    ('Pictures', '1002103', 'DE', 0, 'Wohnzimmer mit Aussicht'),
    ('Pictures', '1002103', 'DE', 1, 'Meerblick nach zwei Seiten.'),
    ('Pictures', '1002103', 'FR', 0, 'Séjour avec vue'),
    ('Pictures', '1002103', 'FR', 1, 'Tourné vers la mer des deux côtés.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10021, 1, 1002101, 0, 'Pic1002101.dat', '2026-10-17T17:17:00'),
    (10021, 2, 1002102, 1, 'Pic1002102.dat', '2026-10-17T17:17:00'),
    (10021, 3, 1002103, 2, 'Pic1002103.dat', '2026-10-17T17:17:00');

-- AL-602  Adosado blanco con terraza sobre los tejados
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10022, 'AL-602', 275000, 0, 'Altea-Cap Negret', '2026-09-03T10:30:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10022, 0, '118'), (10022, 1, '1'), (10022, 2, '1'), (10022, 3, '2'), (10022, 4, '1'),
    (10022, 5, '1'), (10022, 6, '98'), (10022, 7, '90'), (10022, 8, ''), (10022, 9, '1998'),
    (10022, 10, ''), (10022, 11, '2'), (10022, 12, '4'), (10022, 13, '4'), (10022, 14, '5'),
    (10022, 15, '0'), (10022, 16, '0'), (10022, 17, '0'), (10022, 18, '1'), (10022, 19, '0'),
    (10022, 20, '0'), (10022, 21, '1'), (10022, 22, 'Partida Cap Negret, 14'),
    (10022, 23, '0000000BC5800S0022XX'), (10022, 24, 'En la oficina'), (10022, 25, '262.000'),
    (10022, 26, 'Sin cargas'), (10022, 27, 'Giulia Ricci'), (10022, 28, '600 000 122'),
    (10022, 29, 'ricci@example.com'), (10022, 30, '10/9'), (10022, 31, 'Pilar Llorens'),
    (10022, 32, '600 000 222'), (10022, 33, 'Calle San Miguel, 4, Altea'), (10022, 34, '4 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10022', 'ES', 0, 'Adosado blanco con terraza sobre los tejados'),
    ('Products', '10022', 'ES', 1,
        'En una hilera de casas blancas con contraventanas de madera, a un paseo del casco '
        || 'antiguo y a otro del mar. Abajo, salón con porche y cocina a un patio con limonero; '
        || 'arriba, tres dormitorios, baño y la escalera a una terraza con toldo que mira por '
        || 'encima de los tejados hasta la sierra. Calle con poco tráfico y aparcamiento sin '
        || 'problema.'),
    ('Products', '10022', 'ES', 2, 'Venta/Casas'),
    ('Products', '10022', 'EN', 0, 'White terraced house with a terrace over the roofs'),
    ('Products', '10022', 'EN', 1,
        'In a row of white houses with wooden shutters, one stroll from the old town and '
        || 'another from the sea. Downstairs, a living room with porch and a kitchen onto a patio '
        || 'with a lemon tree; upstairs, three bedrooms, a bathroom and the stairs to a terrace '
        || 'with awning that looks over the roofs as far as the mountains. A street with little '
        || 'traffic and easy parking.'),
    ('Products', '10022', 'EN', 2, 'For sale/Houses'),
    ('Products', '10022', 'DE', 0, 'Weißes Reihenhaus mit Terrasse über den Dächern'),
    ('Products', '10022', 'DE', 1,
        'In einer Zeile weißer Häuser mit Holzläden, einen Spaziergang von der Altstadt und '
        || 'einen vom Meer entfernt. Unten Wohnzimmer mit Veranda und Küche zum Hof mit '
        || 'Zitronenbaum; oben drei Schlafzimmer, Bad und die Treppe zu einer Terrasse mit '
        || 'Markise, von der man über die Dächer bis zu den Bergen sieht. Verkehrsarme Straße, '
        || 'Parkplätze kein Problem.'),
    ('Products', '10022', 'DE', 2, 'Kauf/Häuser'),
    ('Products', '10022', 'FR', 0, 'Maison mitoyenne blanche avec terrasse sur les toits'),
    ('Products', '10022', 'FR', 1,
        'Dans une rangée de maisons blanches aux volets de bois, à une promenade de la vieille '
        || 'ville et à une autre de la mer. En bas, séjour avec porche et cuisine sur un patio '
        || 'avec un citronnier ; à l''étage, trois chambres, une salle de bains et l''escalier '
        || 'vers une terrasse avec store qui regarde par-dessus les toits jusqu''à la montagne. '
        || 'Rue peu passante, stationnement facile.'),
    ('Products', '10022', 'FR', 2, 'Vente/Maisons'),
    ('Pictures', '1002201', 'ES', 0, 'Fachada y jardín delantero'),
    ('Pictures', '1002201', 'ES', 1, 'La segunda de la hilera.'),
    ('Pictures', '1002201', 'EN', 0, 'Front and small garden'),
    ('Pictures', '1002201', 'EN', 1, 'The second in the row.'),
    ('Pictures', '1002201', 'DE', 0, 'Fassade und Vorgarten'),
    ('Pictures', '1002201', 'DE', 1, 'Das zweite in der Zeile.'),
    ('Pictures', '1002201', 'FR', 0, 'Façade et jardinet'),
    ('Pictures', '1002201', 'FR', 1, 'La deuxième de la rangée.'),
    ('Pictures', '1002202', 'ES', 0, 'Terraza'),
    ('Pictures', '1002202', 'ES', 1, 'Por encima de los tejados, hasta la sierra.'),
    ('Pictures', '1002202', 'EN', 0, 'Terrace'),
    ('Pictures', '1002202', 'EN', 1, 'Over the roofs, as far as the mountains.'),
    ('Pictures', '1002202', 'DE', 0, 'Terrasse'),
    ('Pictures', '1002202', 'DE', 1, 'Über die Dächer bis zu den Bergen.'),
    ('Pictures', '1002202', 'FR', 0, 'Terrasse'),
    ('Pictures', '1002202', 'FR', 1, 'Par-dessus les toits, jusqu''à la montagne.'),
    ('Pictures', '1002203', 'ES', 0, 'Dormitorio principal'),
    ('Pictures', '1002203', 'ES', 1, 'Suelo de barro cocido y armario empotrado.'),
    ('Pictures', '1002203', 'EN', 0, 'Main bedroom'),
    ('Pictures', '1002203', 'EN', 1, 'Terracotta floor and built-in wardrobe.'),
    ('Pictures', '1002203', 'DE', 0, 'Hauptschlafzimmer'),
    ('Pictures', '1002203', 'DE', 1, 'Terrakottaboden und Einbauschrank.'),
    ('Pictures', '1002203', 'FR', 0, 'Chambre principale'),
    ('Pictures', '1002203', 'FR', 1, 'Terre cuite et placard intégré.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10022, 1, 1002201, 0, 'Pic1002201.dat', '2026-09-03T10:30:00'),
    (10022, 2, 1002202, 1, 'Pic1002202.dat', '2026-09-03T10:30:00'),
    (10022, 3, 1002203, 2, 'Pic1002203.dat', '2026-09-03T10:30:00');

-- AL-603  Piso grande para reformar
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10023, 'AL-603', 128000, 0, 'Altea-Casco antiguo', '2026-03-14T13:20:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10023, 0, '102'), (10023, 1, '0'), (10023, 2, '2'), (10023, 3, '2'), (10023, 4, '1'),
    (10023, 5, '0'), (10023, 6, '88'), (10023, 7, ''), (10023, 8, '1'), (10023, 9, '1972'),
    (10023, 10, '20'), (10023, 11, '3'), (10023, 12, '1'), (10023, 13, '0'), (10023, 14, '7'),
    (10023, 15, '0'), (10023, 16, '0'), (10023, 17, '0'), (10023, 18, '1'), (10023, 19, '0'),
    (10023, 20, '0'), (10023, 21, '0'), (10023, 22, 'Calle La Mar, 80, 1.º'),
    (10023, 23, '0000000BC5800S0023YY'), (10023, 24, 'En la oficina'), (10023, 25, '118.000'),
    (10023, 26, 'Pendiente de herencia'), (10023, 27, ''), (10023, 28, ''), (10023, 29, ''),
    (10023, 30, ''), (10023, 31, 'Herederos de A. Beneyto'), (10023, 32, '600 000 223'),
    (10023, 33, 'Calle La Mar, 80, Altea'), (10023, 34, '5 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10023', 'ES', 0, 'Piso grande para reformar'),
    ('Products', '10023', 'ES', 1,
        'Primero sin ascensor en calle ancha, con cuatro dormitorios y balcón a toda la '
        || 'fachada. Instalaciones antiguas y distribución de la época: es una obra completa, pero '
        || 'la estructura está sana y la fachada se rehabilitó hace cinco años. Se enseña con '
        || 'cita; todavía no hay fotografías.'),
    ('Products', '10023', 'ES', 2, 'Venta/Pisos'),
    ('Products', '10023', 'EN', 0, 'Large flat to renovate'),
    ('Products', '10023', 'EN', 1,
        'First floor without lift in a wide street, with four bedrooms and a balcony along the '
        || 'whole front. Old installations and a layout of its time: it needs a complete '
        || 'renovation, but the structure is sound and the façade was restored five years ago. '
        || 'Shown by appointment; there are no photographs yet.'),
    ('Products', '10023', 'EN', 2, 'For sale/Flats'),
    ('Products', '10023', 'DE', 0, 'Große Wohnung zum Renovieren'),
    ('Products', '10023', 'DE', 1,
        'Erster Stock ohne Aufzug in einer breiten Straße, vier Schlafzimmer und ein Balkon '
        || 'über die ganze Front. Alte Leitungen und ein Grundriss seiner Zeit: eine '
        || 'Komplettrenovierung, aber die Substanz ist gesund und die Fassade wurde vor fünf '
        || 'Jahren saniert. Besichtigung nach Vereinbarung; noch keine Fotos.'),
    ('Products', '10023', 'DE', 2, 'Kauf/Wohnungen'),
    ('Products', '10023', 'FR', 0, 'Grand appartement à rénover'),
    ('Products', '10023', 'FR', 1,
        'Premier étage sans ascenseur dans une rue large, avec quatre chambres et un balcon sur '
        || 'toute la façade. Installations anciennes et distribution d''époque : rénovation '
        || 'complète, mais la structure est saine et la façade a été refaite il y a cinq ans. '
        || 'Visite sur rendez-vous ; pas encore de photos.'),
    ('Products', '10023', 'FR', 2, 'Vente/Appartements');

-- AL-604  Villa con jardín y vistas al casco antiguo
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10024, 'AL-604', 540000, 2, 'Altea-Cap Negret', '2026-02-20T10:00:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10024, 0, '260'), (10024, 1, '1'), (10024, 2, '0'), (10024, 3, '4'), (10024, 4, '3'),
    (10024, 5, '1'), (10024, 6, '225'), (10024, 7, '900'), (10024, 8, ''), (10024, 9, '2001'),
    (10024, 10, ''), (10024, 11, '0'), (10024, 12, '6'), (10024, 13, '2'), (10024, 14, '4'),
    (10024, 15, '0'), (10024, 16, '1'), (10024, 17, '1'), (10024, 18, '1'), (10024, 19, '1'),
    (10024, 20, '0'), (10024, 21, '1'), (10024, 22, 'Partida Cap Negret, 5'),
    (10024, 23, '0000000BC5800S0024ZZ'), (10024, 24, 'Entregadas al comprador'),
    (10024, 25, '520.000'), (10024, 26, 'Canceladas'), (10024, 27, 'Familia Janssen'),
    (10024, 28, '600 000 124'), (10024, 29, 'janssen@example.com'), (10024, 30, 'Vendida el 18/2'),
    (10024, 31, 'Antonio Zaragozí'), (10024, 32, '600 000 224'),
    (10024, 33, 'Calle Filarmónica, 6, Altea'), (10024, 34, '4 %');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10024', 'ES', 0, 'Villa con jardín y vistas al casco antiguo'),
    ('Products', '10024', 'ES', 1,
        'Villa vendida en febrero. Se conserva la ficha para uso interno, con los datos de '
        || 'comprador y propietario, por si vuelve al mercado: la familia la usa sólo en verano y '
        || 'preguntó por el alquiler de invierno. Crema por fuera, con contraventanas azules y '
        || 'camino de grava.'),
    ('Products', '10024', 'ES', 2, 'Venta/Villas'),
    ('Products', '10024', 'EN', 0, 'Villa with garden and views of the old town'),
    ('Products', '10024', 'EN', 1,
        'Villa sold in February. The file is kept for internal use, with the details of buyer '
        || 'and owner, in case it returns to the market: the family uses it only in summer and '
        || 'asked about letting it in winter. Cream outside, with blue shutters and a gravel path.'),
    ('Products', '10024', 'EN', 2, 'For sale/Villas'),
    ('Products', '10024', 'DE', 0, 'Villa mit Garten und Blick auf die Altstadt'),
    ('Products', '10024', 'DE', 1,
        'Im Februar verkaufte Villa. Das Exposé bleibt für den internen Gebrauch erhalten, mit '
        || 'den Daten von Käufer und Eigentümer, falls sie wieder auf den Markt kommt: Die Familie '
        || 'nutzt sie nur im Sommer und hat nach einer Wintervermietung gefragt. Außen '
        || 'cremefarben, mit blauen Läden und Kiesweg.'),
    ('Products', '10024', 'DE', 2, 'Kauf/Villen'),
    ('Products', '10024', 'FR', 0, 'Villa avec jardin et vue sur la vieille ville'),
    ('Products', '10024', 'FR', 1,
        'Villa vendue en février. La fiche est conservée pour usage interne, avec les '
        || 'coordonnées de l''acheteur et du propriétaire, au cas où elle reviendrait sur le '
        || 'marché : la famille ne l''utilise qu''en été et s''est renseignée sur une location '
        || 'd''hiver. Crème à l''extérieur, avec volets bleus et allée de gravier.'),
    ('Products', '10024', 'FR', 2, 'Vente/Villas'),
    ('Pictures', '1002401', 'ES', 0, 'La casa desde el jardín'),
    ('Pictures', '1002401', 'ES', 1, 'Fotografía del día de la venta.'),
    ('Pictures', '1002401', 'EN', 0, 'The house from the garden'),
    ('Pictures', '1002401', 'EN', 1, 'Photograph of the day of the sale.'),
    ('Pictures', '1002401', 'DE', 0, 'Das Haus vom Garten aus'),
    ('Pictures', '1002401', 'DE', 1, 'Foto vom Tag des Verkaufs.'),
    ('Pictures', '1002401', 'FR', 0, 'La maison depuis le jardin'),
    ('Pictures', '1002401', 'FR', 1, 'Photo du jour de la vente.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10024, 1, 1002401, 0, 'Pic1002401.dat', '2026-02-20T10:00:00');
