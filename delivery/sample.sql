-- A sample catalogue for trying the program out: a pottery with its shop, fourteen products in
-- Spanish and English. It has what real catalogues have: featured products, one archived, one
-- without a price, one without pictures, one with five. The company, its people and its numbers
-- are invented.

UPDATE CorpInfo SET
    Name = 'Encina y Barro',
    CIF = 'B00000000',
    Phone = '941 000 014',
    Fax = '941 000 015',
    Cellular = '600 000 000',
    Address = 'Calle de la Cantarería, 14',
    PostalCode = '26370',
    Zone = 'Navarrete (La Rioja)',
    CorpLogo = 'CorpLogo.dat',
    ExtraPicture = 'ExtraImage.dat',
    ContactEmail = 'taller@example.com',
    FindUsMap = 'FindUsMap.dat',
    MRinfo0 = 'La Rioja',
    MRinfo1 = '512',
    MRinfo2 = '0',
    MRinfo3 = '88',
    MRinfo4 = '8',
    MRinfo5 = 'LO-0000',
    MRinfo6 = '1',
    LastUpdate = '2026-10-20T09:30:00';

INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('CorpInfo', '0', 'ES', 0,
        'Somos Inés y Mateo, alfareros en Navarrete desde 1998. Trabajamos con barro de la '
        || 'comarca, un torno cada uno y un horno de gas que encendemos dos veces al mes. Todo lo '
        || 'que ve en este catálogo ha pasado por nuestras manos: lo amasamos, lo torneamos, lo '
        || 'esmaltamos y lo envolvemos para que le llegue entero. Si algo se rompe por el camino, '
        || 'lo volvemos a hacer.'),
    ('CorpInfo', '0', 'ES', 1,
        'El taller está en la parte alta de Navarrete, a cien metros de la iglesia y a diez '
        || 'minutos de Logroño por la A-12. Se puede aparcar en la plaza. Abrimos de martes a '
        || 'viernes de 10 a 14 y de 17 a 20 horas, y los sábados de 10 a 14. Los días de hornada, '
        || 'primer y tercer jueves de mes, puede usted ver cómo se abre el horno a las seis de la '
        || 'tarde.'),
    ('CorpInfo', '0', 'ES', 2, 'Cerámica hecha a mano para usarla cada día'),
    ('CorpInfo', '0', 'ES', 3, 'Quiénes somos'),
    ('CorpInfo', '0', 'EN', 0,
        'We are Inés and Mateo, potters in Navarrete since 1998. We work with local clay, a '
        || 'wheel each and a gas kiln that we light twice a month. Everything in this catalogue '
        || 'has been through our hands: we wedge it, throw it, glaze it and wrap it so that it '
        || 'reaches you in one piece. If something breaks on the way, we make it again.'),
    ('CorpInfo', '0', 'EN', 1,
        'The workshop is in the upper part of Navarrete, a hundred metres from the church and '
        || 'ten minutes from Logroño on the A-12. You can park in the square. We are open Tuesday '
        || 'to Friday from 10 to 14 and from 17 to 20, and on Saturdays from 10 to 14. On firing '
        || 'days, the first and third Thursday of the month, come and watch the kiln being opened '
        || 'at six in the evening.'),
    ('CorpInfo', '0', 'EN', 2, 'Handmade pottery for every day'),
    ('CorpInfo', '0', 'EN', 3, 'Who we are');

-- TAZ-01  Taza Duna
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10001, 'TAZ-01', 16.5, 1, 'Mesa', '2026-10-12T18:20:05');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10001, 0, 'Encina y Barro'), (10001, 1, 'Duna'), (10001, 2, 'Gres'),
    (10001, 3, 'Crema moteado sobre barro visto'),
    (10001, 4, '9,5 cm de alto, 8,6 cm de diámetro'), (10001, 5, '340 g'), (10001, 6, '330 ml'),
    (10001, 7, '0'), (10001, 8, '0'), (10001, 9, '1'), (10001, 10, '1'), (10001, 11, '1');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10001', 'ES', 0, 'Taza Duna'),
    ('Products', '10001', 'ES', 1,
        'La taza con la que empezó todo. La torneamos en gres de chamota fina y la bañamos '
        || 'hasta dos dedos de la base, de modo que la mano siempre encuentra un trozo de barro '
        || 'desnudo, templado y un poco áspero. Los puntos oscuros no están pintados: son el '
        || 'hierro de la propia arcilla, que asoma por el esmalte en la segunda cocción, a 1.240 '
        || 'grados. El asa admite tres dedos y el borde es fino, para que el café llegue bien. '
        || 'Apta para lavavajillas y microondas.'),
    ('Products', '10001', 'ES', 2, 'Mesa/Tazas'),
    ('Products', '10001', 'EN', 0, 'Duna mug'),
    ('Products', '10001', 'EN', 1,
        'The mug that started it all. We throw it in fine stoneware and dip it down to two '
        || 'fingers above the foot, so your hand always finds a patch of bare clay, warm and '
        || 'slightly rough. The dark specks are not painted: they are the iron in the clay itself, '
        || 'which comes through the glaze in the second firing at 1,240 degrees. The handle takes '
        || 'three fingers and the lip is thin enough for good coffee. Safe in the dishwasher and '
        || 'the microwave.'),
    ('Products', '10001', 'EN', 2, 'Tableware/Mugs'),
    ('Pictures', '1000101', 'ES', 0, 'Taza Duna color crema'),
    ('Pictures', '1000101', 'ES', 1, 'El esmalte se detiene a dos dedos de la base.'),
    ('Pictures', '1000101', 'EN', 0, 'Duna mug in cream'),
    ('Pictures', '1000101', 'EN', 1, 'The glaze stops two fingers above the foot.'),
    ('Pictures', '1000102', 'ES', 0, 'Perfil de la taza'),
    ('Pictures', '1000102', 'ES', 1, 'Las estrías son la huella de los dedos en el torno.'),
    ('Pictures', '1000102', 'EN', 0, 'The mug in profile'),
    ('Pictures', '1000102', 'EN', 1, 'The rings are the marks of fingers on the wheel.'),
    ('Pictures', '1000103', 'ES', 0, 'Con café recién hecho'),
    ('Pictures', '1000103', 'ES', 1, 'Cabe un café largo con espacio para la leche.'),
    ('Pictures', '1000103', 'EN', 0, 'With fresh coffee'),
    ('Pictures', '1000103', 'EN', 1, 'Room for a long coffee and some milk.'),
    ('Pictures', '1000104', 'ES', 0, 'Los cuatro colores de la serie'),
    ('Pictures', '1000104', 'ES', 1, 'Crema, salvia, rosa viejo y azul niebla.'),
    ('Pictures', '1000104', 'EN', 0, 'The four colours of the range'),
    ('Pictures', '1000104', 'EN', 1, 'Cream, sage, old rose and misty blue.'),
    ('Pictures', '1000105', 'ES', 0, 'En la mesa del taller'),
    ('Pictures', '1000105', 'ES', 1, 'Combina con la vajilla de la misma serie.'),
    ('Pictures', '1000105', 'EN', 0, 'On the workshop table'),
    ('Pictures', '1000105', 'EN', 1, 'It goes with the plates of the same range.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10001, 1, 1000101, 0, 'Pic1000101.dat', '2026-10-12T18:20:05'),
    (10001, 2, 1000102, 1, 'Pic1000102.dat', '2026-10-12T18:20:05'),
    (10001, 3, 1000103, 2, 'Pic1000103.dat', '2026-10-12T18:20:05'),
    (10001, 4, 1000104, 3, 'Pic1000104.dat', '2026-10-12T18:20:05'),
    (10001, 5, 1000105, 4, 'Pic1000105.dat', '2026-10-12T18:20:05');

-- TAZ-02  Taza de desayuno Marea
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10002, 'TAZ-02', 19, 0, 'Mesa', '2026-09-28T10:05:40');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10002, 0, 'Encina y Barro'), (10002, 1, 'Marea'), (10002, 2, 'Gres'),
    (10002, 3, 'Azul mar con borde pardo'), (10002, 4, '8 cm de alto, 11 cm de diámetro'),
    (10002, 5, '410 g'), (10002, 6, '450 ml'), (10002, 7, '0'), (10002, 8, '0'), (10002, 9, '1'),
    (10002, 10, '1'), (10002, 11, '1');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10002', 'ES', 0, 'Taza de desayuno Marea'),
    ('Products', '10002', 'ES', 1,
        'Ancha y redonda, hecha para las mañanas sin prisa: caben un buen tazón de leche, un '
        || 'puñado de cereales o una sopa de media tarde. El azul sale de una mezcla nuestra de '
        || 'cobalto y ceniza de sarmiento, que en el horno se mueve, se acumula en las estrías y '
        || 'se retira de los bordes hasta dejarlos pardos. Por eso no hay dos iguales, ni siquiera '
        || 'en la misma hornada.'),
    ('Products', '10002', 'ES', 2, 'Mesa/Tazas'),
    ('Products', '10002', 'EN', 0, 'Marea breakfast mug'),
    ('Products', '10002', 'EN', 1,
        'Wide and round, made for unhurried mornings: it holds a proper bowl of milk, a handful '
        || 'of cereal or an afternoon soup. The blue comes from our own mix of cobalt and vine '
        || 'ash, which moves in the kiln, gathers in the rings and draws back from every edge '
        || 'until it breaks brown. That is why no two are alike, not even from the same firing.'),
    ('Products', '10002', 'EN', 2, 'Tableware/Mugs'),
    ('Pictures', '1000201', 'ES', 0, 'Taza Marea'),
    ('Pictures', '1000201', 'ES', 1, 'El azul cambia con cada hornada.'),
    ('Pictures', '1000201', 'EN', 0, 'Marea mug'),
    ('Pictures', '1000201', 'EN', 1, 'The blue changes with every firing.'),
    ('Pictures', '1000202', 'ES', 0, 'Pareja de tazas'),
    ('Pictures', '1000202', 'ES', 1, 'Las dos caras del mismo esmalte.'),
    ('Pictures', '1000202', 'EN', 0, 'A pair of mugs'),
    ('Pictures', '1000202', 'EN', 1, 'Two sides of the same glaze.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10002, 1, 1000201, 0, 'Pic1000201.dat', '2026-09-28T10:05:40'),
    (10002, 2, 1000202, 1, 'Pic1000202.dat', '2026-09-28T10:05:40');

-- PLA-01  Plato llano Nube
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10003, 'PLA-01', 24, 0, 'Mesa', '2026-09-15T12:30:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10003, 0, 'Encina y Barro'), (10003, 1, 'Nube'), (10003, 2, 'Gres blanco'),
    (10003, 3, 'Blanco con filo de hierro'), (10003, 4, '27 cm de diámetro, 2,5 cm de alto'),
    (10003, 5, '690 g'), (10003, 6, '1 pieza'), (10003, 7, '0'), (10003, 8, '0'), (10003, 9, '1'),
    (10003, 10, '1'), (10003, 11, '0');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10003', 'ES', 0, 'Plato llano Nube'),
    ('Products', '10003', 'ES', 1,
        'Un plato sereno para que mande la comida. La espiral que se ve bajo el esmalte es el '
        || 'camino del dedo, del centro hacia fuera, en una sola pasada; la luz la dibuja cuando '
        || 'el plato está vacío y desaparece en cuanto se sirve. El borde, levantado, recoge las '
        || 'salsas y lleva un filo de óxido de hierro pintado a pulso. Se apila bien y aguanta el '
        || 'uso de un restaurante: varios de La Rioja lo ponen a diario.'),
    ('Products', '10003', 'ES', 2, 'Mesa/Platos'),
    ('Products', '10003', 'EN', 0, 'Nube dinner plate'),
    ('Products', '10003', 'EN', 1,
        'A quiet plate that lets the food speak. The spiral under the glaze is the path of one '
        || 'finger from the middle outwards, in a single pass; light draws it while the plate is '
        || 'empty and it vanishes as soon as you serve. The raised rim keeps sauces in and carries '
        || 'a line of iron oxide painted freehand. It stacks well and stands up to restaurant use: '
        || 'several in La Rioja set their tables with it every day.'),
    ('Products', '10003', 'EN', 2, 'Tableware/Plates'),
    ('Pictures', '1000301', 'ES', 0, 'Plato Nube'),
    ('Pictures', '1000301', 'ES', 1, 'La espiral del torno, bajo el esmalte.'),
    ('Pictures', '1000301', 'EN', 0, 'Nube plate'),
    ('Pictures', '1000301', 'EN', 1, 'The spiral of the wheel under the glaze.'),
    ('Pictures', '1000302', 'ES', 0, 'Pila de cinco platos'),
    ('Pictures', '1000302', 'ES', 1, 'Ocupan poco en el armario.'),
    ('Pictures', '1000302', 'EN', 0, 'Stack of five'),
    ('Pictures', '1000302', 'EN', 1, 'They take up little room in the cupboard.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10003, 1, 1000301, 0, 'Pic1000301.dat', '2026-09-15T12:30:00'),
    (10003, 2, 1000302, 1, 'Pic1000302.dat', '2026-09-15T12:30:00');

-- PLA-02  Plato hondo Oliva
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10004, 'PLA-02', 22, 0, 'Mesa', '2026-09-15T12:41:10');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10004, 0, 'Encina y Barro'), (10004, 1, 'Oliva'), (10004, 2, 'Gres'),
    (10004, 3, 'Verde oliva'), (10004, 4, '23 cm de diámetro, 4,2 cm de alto'),
    (10004, 5, '620 g'), (10004, 6, '1 pieza'), (10004, 7, '0'), (10004, 8, '1'), (10004, 9, '1'),
    (10004, 10, '1'), (10004, 11, '0');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10004', 'ES', 0, 'Plato hondo Oliva'),
    ('Products', '10004', 'ES', 1,
        'Hondo de verdad, con ala ancha para apoyar la cuchara. El verde es un esmalte de cobre '
        || 'y ceniza que se escurre despacio hacia el fondo: claro y casi pardo en el borde, '
        || 'oscuro y vidriado donde se remansa. Con legumbres, con gazpacho o con fruta, siempre '
        || 'hace buen contraste. De esta hornada quedan pocas unidades; la próxima saldrá en '
        || 'invierno.'),
    ('Products', '10004', 'ES', 2, 'Mesa/Platos'),
    ('Products', '10004', 'EN', 0, 'Oliva soup plate'),
    ('Products', '10004', 'EN', 1,
        'Properly deep, with a broad rim to rest the spoon on. The green is a copper and ash '
        || 'glaze that runs slowly towards the well: pale and almost brown at the edge, dark and '
        || 'glassy where it pools. Lentils, gazpacho or fruit, everything stands out against it. '
        || 'Few are left from this firing; the next one comes out in winter.'),
    ('Products', '10004', 'EN', 2, 'Tableware/Plates'),
    ('Pictures', '1000401', 'ES', 0, 'Plato hondo Oliva'),
    ('Pictures', '1000401', 'ES', 1, 'El esmalte se remansa en el fondo.'),
    ('Pictures', '1000401', 'EN', 0, 'Oliva soup plate'),
    ('Pictures', '1000401', 'EN', 1, 'The glaze pools in the well.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10004, 1, 1000401, 0, 'Pic1000401.dat', '2026-09-15T12:41:10');

-- CUE-01  Cuenco Brasa
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10005, 'CUE-01', 18, 0, 'Mesa', '2026-08-30T17:15:22');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10005, 0, 'Encina y Barro'), (10005, 1, 'Brasa'), (10005, 2, 'Gres negro'),
    (10005, 3, 'Negro por fuera, rojo brasa por dentro'),
    (10005, 4, '14 cm de diámetro, 7 cm de alto'), (10005, 5, '430 g'), (10005, 6, '550 ml'),
    (10005, 7, '0'), (10005, 8, '0'), (10005, 9, '1'), (10005, 10, '1'), (10005, 11, '0');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10005', 'ES', 0, 'Cuenco Brasa'),
    ('Products', '10005', 'ES', 1,
        'Por fuera, carbón; por dentro, el rescoldo. El negro mate es un engobe de manganeso y '
        || 'el rojo, un esmalte de hierro que sólo da este color si el horno se enfría despacio: '
        || 'tres días con la puerta cerrada y paciencia. El pie torneado permite cogerlo lleno y '
        || 'caliente sin quemarse. Hay tres tamaños; el precio es el del mediano.'),
    ('Products', '10005', 'ES', 2, 'Mesa/Cuencos'),
    ('Products', '10005', 'EN', 0, 'Brasa bowl'),
    ('Products', '10005', 'EN', 1,
        'Charcoal outside, embers within. The matt black is a manganese slip, and the red an '
        || 'iron glaze that gives this colour only if the kiln cools slowly: three days with the '
        || 'door shut and some patience. The turned foot lets you lift it full and hot without '
        || 'burning your fingers. There are three sizes; the price is for the middle one.'),
    ('Products', '10005', 'EN', 2, 'Tableware/Bowls'),
    ('Pictures', '1000501', 'ES', 0, 'Cuenco Brasa'),
    ('Pictures', '1000501', 'ES', 1, 'El rojo se oscurece hacia el borde.'),
    ('Pictures', '1000501', 'EN', 0, 'Brasa bowl'),
    ('Pictures', '1000501', 'EN', 1, 'The red darkens towards the rim.'),
    ('Pictures', '1000502', 'ES', 0, 'Los tres tamaños'),
    ('Pictures', '1000502', 'ES', 1, 'De 11, 14 y 16 centímetros.'),
    ('Pictures', '1000502', 'EN', 0, 'The three sizes'),
    ('Pictures', '1000502', 'EN', 1, '11, 14 and 16 centimetres.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10005, 1, 1000501, 0, 'Pic1000501.dat', '2026-08-30T17:15:22'),
    (10005, 2, 1000502, 1, 'Pic1000502.dat', '2026-08-30T17:15:22');

-- ENS-01  Ensaladera Campo
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10006, 'ENS-01', 58, 1, 'Mesa', '2026-10-02T09:48:31');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10006, 0, 'Encina y Barro'), (10006, 1, 'Campo'), (10006, 2, 'Loza'),
    (10006, 3, 'Blanco con bandas azules'), (10006, 4, '29 cm de diámetro, 12 cm de alto'),
    (10006, 5, '1,9 kg'), (10006, 6, '3,5 l'), (10006, 7, '0'), (10006, 8, '0'), (10006, 9, '2'),
    (10006, 10, '1'), (10006, 11, '1');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10006', 'ES', 0, 'Ensaladera Campo'),
    ('Products', '10006', 'ES', 1,
        'La fuente grande de las comidas de domingo. Las bandas azules se pintan con el torno '
        || 'en marcha, apoyando un pincel de pelo largo cargado de cobalto: el pulso de ese día '
        || 'queda escrito para siempre en cada vuelta. Con ensalada para seis, con limones en la '
        || 'encimera o sola en medio de la mesa. Podemos pintar en el fondo un nombre o una fecha.'),
    ('Products', '10006', 'ES', 2, 'Mesa/Cuencos'),
    ('Products', '10006', 'EN', 0, 'Campo salad bowl'),
    ('Products', '10006', 'EN', 1,
        'The big bowl for Sunday lunches. The blue bands are painted while the wheel turns, '
        || 'with a long-haired brush full of cobalt: that day''s pulse stays written in every '
        || 'turn. With salad for six, with lemons on the worktop, or by itself in the middle of '
        || 'the table. We can paint a name or a date in the well.'),
    ('Products', '10006', 'EN', 2, 'Tableware/Bowls'),
    ('Pictures', '1000601', 'ES', 0, 'Ensaladera con limones'),
    ('Pictures', '1000601', 'ES', 1, 'Siete limones y aún sobra sitio.'),
    ('Pictures', '1000601', 'EN', 0, 'Bowl of lemons'),
    ('Pictures', '1000601', 'EN', 1, 'Seven lemons and room to spare.'),
    ('Pictures', '1000602', 'ES', 0, 'Ensaladera Campo'),
    ('Pictures', '1000602', 'ES', 1, 'Bandas de cobalto pintadas a torno.'),
    ('Pictures', '1000602', 'EN', 0, 'Campo salad bowl'),
    ('Pictures', '1000602', 'EN', 1, 'Cobalt bands painted on the wheel.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10006, 1, 1000601, 0, 'Pic1000601.dat', '2026-10-02T09:48:31'),
    (10006, 2, 1000602, 1, 'Pic1000602.dat', '2026-10-02T09:48:31');

-- JAR-01  Jarra de agua Fuente
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10007, 'JAR-01', 42, 0, 'Mesa', '2026-07-21T19:02:54');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10007, 0, 'Encina y Barro'), (10007, 1, 'Fuente'), (10007, 2, 'Barro rojo'),
    (10007, 3, 'Melado'), (10007, 4, '23 cm de alto, 15 cm de diámetro'), (10007, 5, '1,1 kg'),
    (10007, 6, '1,6 l'), (10007, 7, '0'), (10007, 8, '0'), (10007, 9, '1'), (10007, 10, '1'),
    (10007, 11, '1');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10007', 'ES', 0, 'Jarra de agua Fuente'),
    ('Products', '10007', 'ES', 1,
        'La jarra de siempre, con el vidriado melado que se usa en esta comarca desde hace '
        || 'siglos. Pico estirado a mano, que corta el chorro sin gotear, y un asa ancha que nace '
        || 'del cuello y muere en la panza, donde está el peso. El barro rojo mantiene el agua '
        || 'fresca más rato que el vidrio. El esmalte no lleva plomo.'),
    ('Products', '10007', 'ES', 2, 'Mesa/Jarras'),
    ('Products', '10007', 'EN', 0, 'Fuente water jug'),
    ('Products', '10007', 'EN', 1,
        'The jug as it has always been, with the honey glaze that this district has used for '
        || 'centuries. A spout pulled by hand that cuts the stream without dripping, and a broad '
        || 'handle that springs from the neck and ends on the belly, where the weight is. Red clay '
        || 'keeps water cool for longer than glass. The glaze is free of lead.'),
    ('Products', '10007', 'EN', 2, 'Tableware/Jugs'),
    ('Pictures', '1000701', 'ES', 0, 'Jarra Fuente'),
    ('Pictures', '1000701', 'ES', 1, 'Vidriado melado sobre barro rojo.'),
    ('Pictures', '1000701', 'EN', 0, 'Fuente jug'),
    ('Pictures', '1000701', 'EN', 1, 'Honey glaze over red clay.'),
    ('Pictures', '1000702', 'ES', 0, 'El pico'),
    ('Pictures', '1000702', 'ES', 1, 'Estirado con dos dedos cuando el barro aún está blando.'),
    ('Pictures', '1000702', 'EN', 0, 'The spout'),
    ('Pictures', '1000702', 'EN', 1, 'Pulled with two fingers while the clay is soft.'),
    ('Pictures', '1000703', 'ES', 0, 'Jarra y cuenco'),
    ('Pictures', '1000703', 'ES', 1, 'El cuenco pequeño se vende aparte.'),
    ('Pictures', '1000703', 'EN', 0, 'Jug and bowl'),
    ('Pictures', '1000703', 'EN', 1, 'The small bowl is sold separately.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10007, 1, 1000701, 0, 'Pic1000701.dat', '2026-07-21T19:02:54'),
    (10007, 2, 1000702, 1, 'Pic1000702.dat', '2026-07-21T19:02:54'),
    (10007, 3, 1000703, 2, 'Pic1000703.dat', '2026-07-21T19:02:54');

-- JRN-01  Jarrón Junco
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10008, 'JRN-01', 85, 1, 'Casa', '2026-10-18T11:33:18');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10008, 0, 'Encina y Barro'), (10008, 1, 'Junco'), (10008, 2, 'Gres'),
    (10008, 3, 'Verde salvia mate'), (10008, 4, '34 cm de alto, 16,6 cm de diámetro'),
    (10008, 5, '2,4 kg'), (10008, 6, '4 l'), (10008, 7, '0'), (10008, 8, '0'), (10008, 9, '1'),
    (10008, 10, '1'), (10008, 11, '0');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10008', 'ES', 0, 'Jarrón Junco'),
    ('Products', '10008', 'ES', 1,
        'Alto, de cuello estrecho, para ramas más que para flores: eucalipto, olivo, junco '
        || 'seco. El verde mate tiene el tacto de una piedra de río, y el cinturón de barro visto, '
        || 'encerado, marca el lugar por donde unimos las dos mitades, que se tornean por '
        || 'separado. Es la pieza más difícil de la casa: de cada cinco que entran al horno sale '
        || 'una a la tienda.'),
    ('Products', '10008', 'ES', 2, 'Decoración/Jarrones'),
    ('Products', '10008', 'EN', 0, 'Junco vase'),
    ('Products', '10008', 'EN', 1,
        'Tall and narrow-necked, for branches rather than flowers: eucalyptus, olive, dry '
        || 'reeds. The matt green feels like a river stone, and the belt of bare, waxed clay marks '
        || 'where we join the two halves, which are thrown apart. It is the hardest piece we make: '
        || 'of every five that go into the kiln, one reaches the shop.'),
    ('Products', '10008', 'EN', 2, 'Home/Vases'),
    ('Pictures', '1000801', 'ES', 0, 'Jarrón Junco con eucalipto'),
    ('Pictures', '1000801', 'ES', 1, 'Las ramas se sostienen solas en el cuello.'),
    ('Pictures', '1000801', 'EN', 0, 'Junco vase with eucalyptus'),
    ('Pictures', '1000801', 'EN', 1, 'The neck holds the branches upright.'),
    ('Pictures', '1000802', 'ES', 0, 'Jarrón Junco'),
    ('Pictures', '1000802', 'ES', 1, 'El cinturón de barro marca la unión.'),
    ('Pictures', '1000802', 'EN', 0, 'Junco vase'),
    ('Pictures', '1000802', 'EN', 1, 'The belt of clay marks the join.'),
    ('Pictures', '1000803', 'ES', 0, 'Detalle del esmalte'),
    ('Pictures', '1000803', 'ES', 1, 'Mate, con puntos de hierro.'),
    ('Pictures', '1000803', 'EN', 0, 'The glaze up close'),
    ('Pictures', '1000803', 'EN', 1, 'Matt, with specks of iron.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10008, 1, 1000801, 0, 'Pic1000801.dat', '2026-10-18T11:33:18'),
    (10008, 2, 1000802, 1, 'Pic1000802.dat', '2026-10-18T11:33:18'),
    (10008, 3, 1000803, 2, 'Pic1000803.dat', '2026-10-18T11:33:18');

-- JRN-02  Florero Gota
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10009, 'JRN-02', 38, 0, 'Casa', '2026-06-09T16:20:47');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10009, 0, 'Encina y Barro'), (10009, 1, 'Gota'), (10009, 2, 'Porcelana'),
    (10009, 3, 'Hueso, azul tinta o verde musgo'),
    (10009, 4, '13 cm de alto, 10,4 cm de diámetro'), (10009, 5, '380 g'), (10009, 6, '400 ml'),
    (10009, 7, '0'), (10009, 8, '0'), (10009, 9, '1'), (10009, 10, '1'), (10009, 11, '0');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10009', 'ES', 0, 'Florero Gota'),
    ('Products', '10009', 'ES', 1,
        'Para una sola flor, una espiga o nada. Está torneado en porcelana, tan fino en el '
        || 'cuello que a contraluz se transparenta, y bañado en esmaltes brillantes que se '
        || 'adelgazan en el borde. Queda bien solo en una repisa, pero pide compañía: muchos '
        || 'clientes se llevan uno y vuelven a por los otros dos.'),
    ('Products', '10009', 'ES', 2, 'Decoración/Jarrones'),
    ('Products', '10009', 'EN', 0, 'Gota bud vase'),
    ('Products', '10009', 'EN', 1,
        'For a single flower, an ear of grass or nothing at all. It is thrown in porcelain, so '
        || 'thin at the neck that light shines through, and dipped in bright glazes that thin out '
        || 'at the lip. It looks well alone on a shelf but asks for company: many customers take '
        || 'one home and come back for the other two.'),
    ('Products', '10009', 'EN', 2, 'Home/Vases'),
    ('Pictures', '1000901', 'ES', 0, 'Los tres colores'),
    ('Pictures', '1000901', 'ES', 1, 'Hueso, azul tinta y verde musgo.'),
    ('Pictures', '1000901', 'EN', 0, 'The three colours'),
    ('Pictures', '1000901', 'EN', 1, 'Bone, ink blue and moss green.'),
    ('Pictures', '1000902', 'ES', 0, 'Florero Gota azul tinta'),
    ('Pictures', '1000902', 'ES', 1, 'El borde pardo es el propio barro.'),
    ('Pictures', '1000902', 'EN', 0, 'Gota bud vase in ink blue'),
    ('Pictures', '1000902', 'EN', 1, 'The brown lip is the clay itself.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10009, 1, 1000901, 0, 'Pic1000901.dat', '2026-06-09T16:20:47'),
    (10009, 2, 1000902, 1, 'Pic1000902.dat', '2026-06-09T16:20:47');

-- LAM-01  Lámpara de mesa Luna
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10010, 'LAM-01', 0, 0, 'Casa', '2026-10-05T13:00:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10010, 0, 'Encina y Barro'), (10010, 1, 'Luna'), (10010, 2, 'Gres y lino'),
    (10010, 3, 'Blanco craquelado'), (10010, 4, '47 cm de alto, 31 cm de diámetro'),
    (10010, 5, '3,2 kg'), (10010, 6, 'Pie y pantalla; bombilla E27 no incluida'), (10010, 7, '0'),
    (10010, 8, '2'), (10010, 9, '3'), (10010, 10, '1'), (10010, 11, '1');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10010', 'ES', 0, 'Lámpara de mesa Luna'),
    ('Products', '10010', 'ES', 1,
        'Un pie rotundo y blanco, con un craquelado finísimo que entintamos a mano con té '
        || 'negro, y una pantalla de lino que cose una vecina del pueblo. La instalación eléctrica '
        || 'la hace un profesional y lleva interruptor en el cable. Se fabrica por encargo y en la '
        || 'altura que usted quiera, entre 35 y 60 centímetros; pídanos presupuesto con la medida '
        || 'y el color de la pantalla.'),
    ('Products', '10010', 'ES', 2, 'Decoración/Lámparas'),
    ('Products', '10010', 'EN', 0, 'Luna table lamp'),
    ('Products', '10010', 'EN', 1,
        'A round white body with a very fine crackle that we stain by hand with black tea, and '
        || 'a linen shade sewn by a neighbour in the village. The wiring is done by an electrician '
        || 'and has a switch on the lead. We make it to order in the height you want, between 35 '
        || 'and 60 centimetres; ask us for a quotation with the size and the colour of the shade.'),
    ('Products', '10010', 'EN', 2, 'Home/Lamps'),
    ('Pictures', '1001001', 'ES', 0, 'Lámpara Luna encendida'),
    ('Pictures', '1001001', 'ES', 1, 'El lino da una luz cálida.'),
    ('Pictures', '1001001', 'EN', 0, 'Luna lamp switched on'),
    ('Pictures', '1001001', 'EN', 1, 'Linen gives a warm light.'),
    ('Pictures', '1001002', 'ES', 0, 'Lámpara Luna de día'),
    ('Pictures', '1001002', 'ES', 1, 'Pie craquelado y pantalla de lino crudo.'),
    ('Pictures', '1001002', 'EN', 0, 'Luna lamp by day'),
    ('Pictures', '1001002', 'EN', 1, 'Crackled body and natural linen shade.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10010, 1, 1001001, 0, 'Pic1001001.dat', '2026-10-05T13:00:00'),
    (10010, 2, 1001002, 1, 'Pic1001002.dat', '2026-10-05T13:00:00');

-- MAC-01  Macetero Patio
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10011, 'MAC-01', 46, 0, 'Jardín', '2026-05-17T10:10:10');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10011, 0, 'Encina y Barro'), (10011, 1, 'Patio'), (10011, 2, 'Barro rojo'),
    (10011, 3, 'Terracota'), (10011, 4, '20 cm de alto, 24 cm de diámetro'), (10011, 5, '4,1 kg'),
    (10011, 6, 'Maceta y plato'), (10011, 7, '0'), (10011, 8, '0'), (10011, 9, '1'),
    (10011, 10, '1'), (10011, 11, '0');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10011', 'ES', 0, 'Macetero Patio'),
    ('Products', '10011', 'ES', 1,
        'Barro rojo sin esmaltar, poroso, para que las raíces respiren. La cenefa se peina con '
        || 'una caña cuando la pieza está a medio secar. Con el tiempo la cal del agua deja velos '
        || 'blancos en la pared: no es un defecto, es lo que lo convierte en una maceta de las de '
        || 'toda la vida. Resiste heladas de hasta seis grados bajo cero. Incluye el plato; la '
        || 'planta, no.'),
    ('Products', '10011', 'ES', 2, 'Jardín/Maceteros'),
    ('Products', '10011', 'EN', 0, 'Patio planter'),
    ('Products', '10011', 'EN', 1,
        'Unglazed red clay, porous, so that roots can breathe. The band is combed with a cane '
        || 'when the pot is half dry. In time, lime from the water leaves white veils on the wall: '
        || 'that is no flaw, it is what turns it into the kind of pot your grandmother had. It '
        || 'stands frost down to minus six degrees. The saucer is included; the plant is not.'),
    ('Products', '10011', 'EN', 2, 'Garden/Planters'),
    ('Pictures', '1001101', 'ES', 0, 'Macetero Patio con agave'),
    ('Pictures', '1001101', 'ES', 1, 'El agave agradece el barro poroso.'),
    ('Pictures', '1001101', 'EN', 0, 'Patio planter with an agave'),
    ('Pictures', '1001101', 'EN', 1, 'The agave likes porous clay.'),
    ('Pictures', '1001102', 'ES', 0, 'Los tres tamaños'),
    ('Pictures', '1001102', 'ES', 1, 'De 12, 17 y 24 centímetros de diámetro.'),
    ('Pictures', '1001102', 'EN', 0, 'The three sizes'),
    ('Pictures', '1001102', 'EN', 1, '12, 17 and 24 centimetres across.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10011, 1, 1001101, 0, 'Pic1001101.dat', '2026-05-17T10:10:10'),
    (10011, 2, 1001102, 1, 'Pic1001102.dat', '2026-05-17T10:10:10');

-- AZU-01  Azulejos Estrella
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10012, 'AZU-01', 72, 1, 'Casa', '2026-10-20T09:12:33');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10012, 0, 'Encina y Barro'), (10012, 1, 'Estrella'), (10012, 2, 'Loza'),
    (10012, 3, 'Azul, ocre y verde sobre blanco'), (10012, 4, '14 x 14 cm, 1,2 cm de grueso'),
    (10012, 5, '2,9 kg la caja'), (10012, 6, 'Caja de 9 azulejos'), (10012, 7, '0'),
    (10012, 8, '2'), (10012, 9, '3'), (10012, 10, '1'), (10012, 11, '1');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10012', 'ES', 0, 'Azulejos Estrella'),
    ('Products', '10012', 'ES', 1,
        'Una estrella de ocho puntas que se completa con sus vecinas: las rosetas sólo aparecen '
        || 'al juntar cuatro azulejos. Los pintamos uno a uno, a la cuerda seca, con cobalto, ocre '
        || 'y verde de cobre, así que el dibujo coincide siempre y el trazo nunca es igual. Sirven '
        || 'para frentes de cocina, contrahuellas y mesas de jardín. Cada caja cubre 0,18 metros '
        || 'cuadrados; para pedidos grandes preparamos una muestra sin cargo.'),
    ('Products', '10012', 'ES', 2, 'Decoración/Azulejos'),
    ('Products', '10012', 'EN', 0, 'Estrella tiles'),
    ('Products', '10012', 'EN', 1,
        'An eight-pointed star that is completed by its neighbours: the rosettes only appear '
        || 'where four tiles meet. We paint them one by one with cobalt, ochre and copper green, '
        || 'so the drawing always matches and the stroke is never the same. They suit kitchen '
        || 'walls, stair risers and garden tables. One box covers 0.18 square metres; for large '
        || 'orders we prepare a sample free of charge.'),
    ('Products', '10012', 'EN', 2, 'Home/Tiles'),
    ('Pictures', '1001201', 'ES', 0, 'Panel de nueve azulejos'),
    ('Pictures', '1001201', 'ES', 1, 'Una caja, colocada.'),
    ('Pictures', '1001201', 'EN', 0, 'Panel of nine tiles'),
    ('Pictures', '1001201', 'EN', 1, 'One box, laid out.'),
    ('Pictures', '1001202', 'ES', 0, 'El dibujo'),
    ('Pictures', '1001202', 'ES', 1, 'Cuatro colores sobre blanco roto.'),
    ('Pictures', '1001202', 'EN', 0, 'The drawing'),
    ('Pictures', '1001202', 'EN', 1, 'Four colours on off-white.'),
    ('Pictures', '1001203', 'ES', 0, 'Azulejos sueltos'),
    ('Pictures', '1001203', 'ES', 1, 'Grueso de 1,2 centímetros.'),
    ('Pictures', '1001203', 'EN', 0, 'Loose tiles'),
    ('Pictures', '1001203', 'EN', 1, 'They are 1.2 centimetres thick.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10012, 1, 1001201, 0, 'Pic1001201.dat', '2026-10-20T09:12:33'),
    (10012, 2, 1001202, 1, 'Pic1001202.dat', '2026-10-20T09:12:33'),
    (10012, 3, 1001203, 2, 'Pic1001203.dat', '2026-10-20T09:12:33');

-- BOT-01  Botijo blanco Era
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10013, 'BOT-01', 34, 2, 'Mesa', '2025-11-03T18:44:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10013, 0, 'Encina y Barro'), (10013, 1, 'Era'), (10013, 2, 'Barro blanco'),
    (10013, 3, 'Natural'), (10013, 4, '27 cm de alto, 22 cm de diámetro'), (10013, 5, '1,6 kg'),
    (10013, 6, '2,5 l'), (10013, 7, '0'), (10013, 8, '4'), (10013, 9, '3'), (10013, 10, '1'),
    (10013, 11, '0');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10013', 'ES', 0, 'Botijo blanco Era'),
    ('Products', '10013', 'ES', 1,
        'El botijo de la siega, con su boca, su pitorro y su asa redonda. El barro blanco, sin '
        || 'esmaltar, suda: el agua que se evapora por fuera enfría la de dentro. Se acabó la '
        || 'arcilla de la cantera vieja y con ella esta pieza; la guardamos en el catálogo por si '
        || 'volvemos a encontrar una tierra parecida.'),
    ('Products', '10013', 'ES', 2, 'Mesa/Jarras'),
    ('Products', '10013', 'EN', 0, 'Era water cooler'),
    ('Products', '10013', 'EN', 1,
        'The harvesters'' water cooler, with its mouth, its spout and its round handle. The '
        || 'white clay is unglazed and sweats: the water that evaporates outside cools the water '
        || 'inside. The clay of the old quarry ran out, and this piece with it; we keep it in the '
        || 'catalogue in case we find a similar earth again.'),
    ('Products', '10013', 'EN', 2, 'Tableware/Jugs'),
    ('Pictures', '1001301', 'ES', 0, 'Botijo blanco'),
    ('Pictures', '1001301', 'ES', 1, 'Tres líneas rayadas bajo el hombro.'),
    ('Pictures', '1001301', 'EN', 0, 'White water cooler'),
    ('Pictures', '1001301', 'EN', 1, 'Lines scratched under the shoulder.');
INSERT INTO Pictures (ProductId, ProdPictureId, PictureId, OrderInForm, PicturePath, LastUpdate)
VALUES
    (10013, 1, 1001301, 0, 'Pic1001301.dat', '2025-11-03T18:44:00');

-- CUR-01  Curso de iniciación al torno
INSERT INTO Products (ProductId, ProductRef, PriceAmount, IsNew, SaleZone, LastUpdate) VALUES
    (10014, 'CUR-01', 120, 0, 'Taller', '2026-10-08T20:00:00');
INSERT INTO ProductFields (ProductId, FieldDefId, FieldValue) VALUES
    (10014, 0, 'Encina y Barro'), (10014, 1, 'Taller'), (10014, 2, ''), (10014, 3, ''),
    (10014, 4, ''), (10014, 5, ''), (10014, 6, '4 sesiones de 2 horas y media'), (10014, 7, '0'),
    (10014, 8, '0'), (10014, 9, '4'), (10014, 10, '0'), (10014, 11, '0');
INSERT INTO MultiLangFields (TableName, ItemId, LangCode, FieldDefId, FieldValue) VALUES
    ('Products', '10014', 'ES', 0, 'Curso de iniciación al torno'),
    ('Products', '10014', 'ES', 1,
        'Cuatro tardes de sábado para aprender a centrar, abrir y levantar el barro. Grupos de '
        || 'seis personas, un torno para cada una, y todo incluido: arcilla, delantal, esmaltes y '
        || 'las dos cocciones. Al terminar se lleva usted entre tres y cinco piezas suyas, '
        || 'torcidas o derechas. No hace falta experiencia; sí ropa que se pueda manchar. También '
        || 'lo regalamos en forma de vale.'),
    ('Products', '10014', 'ES', 2, 'Talleres'),
    ('Products', '10014', 'EN', 0, 'Beginners'' course on the wheel'),
    ('Products', '10014', 'EN', 1,
        'Four Saturday afternoons to learn how to centre, open and raise the clay. Groups of '
        || 'six, a wheel each, and everything included: clay, apron, glazes and both firings. You '
        || 'go home with three to five pieces of your own, straight or crooked. No experience is '
        || 'needed, but do wear clothes that can get dirty. It is also available as a gift '
        || 'voucher.'),
    ('Products', '10014', 'EN', 2, 'Courses');
