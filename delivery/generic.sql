-- The fields of the generic catalogue, useful to most shops: text (T), option lists (O) and yes/no
-- (B). It has no internal fields.

INSERT INTO ProductFieldDef (FieldDefId, Type, Caption, ToolTipText, DefaultValue, Choices) VALUES
    (0, 'T', 'ESMarca#ENBrand#DEMarke#FRMarque',
     'Marca o fabricante', '', ''),
    (1, 'T', 'ESModelo#ENModel#DEModell#FRModèle',
     'Modelo, serie o colección', '', ''),
    (2, 'T', 'ESMaterial#ENMaterial#DEMaterial#FRMatière',
     'De qué está hecho', '', ''),
    (3, 'T', 'ESColor#ENColour#DEFarbe#FRCouleur',
     'Color o acabado', '', ''),
    (4, 'T', 'ESMedidas#ENDimensions#DEMaße#FRDimensions',
     'Medidas con su unidad, por ejemplo 20 x 30 cm', '', ''),
    (5, 'T', 'ESPeso#ENWeight#DEGewicht#FRPoids',
     'Peso con su unidad, por ejemplo 1,2 kg', '', ''),
    (6, 'T', 'ESContenido#ENContents#DEInhalt#FRContenance',
     'Capacidad o número de piezas, por ejemplo 350 ml o 6 piezas', '', ''),
    (7, 'O', 'ESEstado#ENCondition#DEZustand#FRÉtat',
     'Estado de conservación', '0',
     'ESNuevo#ENNew#DENeu#FRNeuf'
     || '|ESComo nuevo#ENAs new#DENeuwertig#FRComme neuf'
     || '|ESReacondicionado#ENRefurbished#DEÜberholt#FRReconditionné'
     || '|ESSegunda mano#ENSecond hand#DEGebraucht#FROccasion'
     || '|ESAntigüedad#ENAntique#DEAntiquität#FRAntiquité'),
    (8, 'O', 'ESDisponibilidad#ENAvailability#DEVerfügbarkeit#FRDisponibilité',
     'Si hay existencias', '0',
     'ESEn existencias#ENIn stock#DEAuf Lager#FREn stock'
     || '|ESÚltimas unidades#ENLast items#DELetzte Stücke#FRDerniers articles'
     || '|ESPor encargo#ENMade to order#DEAuf Bestellung#FRSur commande'
     || '|ESPróximamente#ENComing soon#DEDemnächst#FRProchainement'
     || '|ESAgotado#ENSold out#DEAusverkauft#FRÉpuisé'),
    (9, 'O', 'ESPlazo de entrega#ENDelivery time#DELieferzeit#FRDélai de livraison',
     'Tiempo desde el pedido hasta la entrega', '0',
     'ES1 a 2 días#EN1 to 2 days#DE1 bis 2 Tage#FR1 à 2 jours'
     || '|ES3 a 5 días#EN3 to 5 days#DE3 bis 5 Tage#FR3 à 5 jours'
     || '|ES1 a 2 semanas#EN1 to 2 weeks#DE1 bis 2 Wochen#FR1 à 2 semaines'
     || '|ES3 a 4 semanas#EN3 to 4 weeks#DE3 bis 4 Wochen#FR3 à 4 semaines'
     || '|ESSólo recogida en tienda#ENCollection from the shop only#DENur Abholung im Laden'
     || '#FRRetrait en magasin uniquement'),
    (10, 'B', 'ESHecho a mano#ENHandmade#DEHandarbeit#FRFait main',
     'Marque la casilla si es un producto artesanal', '0', ''),
    (11, 'B', 'ESSe puede personalizar#ENCan be personalised#DEPersonalisierbar#FRPersonnalisable',
     'Marque la casilla si admite nombre, fecha o medidas especiales', '0', '');
