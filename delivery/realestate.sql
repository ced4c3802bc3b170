-- The fields of the real-estate catalogue: public ones first, then the agency's own.
--
-- The property portal takes fields 0 to 5 by their place, and reads field 1 by the Spanish text of
-- its choices, capitals aside: "Obra nueva", "Pisos", "Casas", "Fincas rusticas" without accent,
-- "Locales", "Terrenos", "Garages" and "Alquiler" have a number of their own there, any other text
-- counts as a flat.

INSERT INTO ProductFieldDef (FieldDefId, Type, Caption, ToolTipText, DefaultValue, Choices) VALUES
    (0, 'T', 'ESSuperficie#ENFloor area#DEWohnfläche#FRSurface',
     'Superficie construida en metros cuadrados', '', ''),
    (1, 'O', 'ESTipo de inmueble#ENProperty type#DEImmobilienart#FRType de bien',
     'Clase de inmueble u operación', '0',
     'ESPisos#ENFlats#DEWohnungen#FRAppartements'
     || '|ESCasas#ENHouses#DEHäuser#FRMaisons'
     || '|ESÁticos#ENPenthouses#DEDachwohnungen#FRAttiques'
     || '|ESObra nueva#ENNew developments#DENeubau#FRNeuf'
     || '|ESFincas rusticas#ENCountry properties#DELandgüter#FRPropriétés rurales'
     || '|ESLocales#ENCommercial premises#DEGewerberäume#FRLocaux commerciaux'
     || '|ESTerrenos#ENLand#DEGrundstücke#FRTerrains'
     || '|ESGarages#ENGarages#DEGaragen#FRGarages'
     || '|ESAlquiler#ENTo let#DEZur Miete#FRLocation'),
    (2, 'T', 'ESHabitaciones individuales#ENSingle bedrooms#DEEinzelzimmer#FRChambres simples',
     'Número de habitaciones individuales', '', ''),
    (3, 'T', 'ESHabitaciones dobles#ENDouble bedrooms#DEDoppelzimmer#FRChambres doubles',
     'Número de habitaciones dobles', '', ''),
    (4, 'T', 'ESBaños#ENBathrooms#DEBäder#FRSalles de bains',
     'Número de baños completos', '', ''),
    (5, 'T', 'ESAseos#ENToilets#DEGäste-WC#FRToilettes',
     'Número de aseos', '', ''),
    (6, 'T', 'ESSuperficie útil#ENUsable area#DENutzfläche#FRSurface utile',
     'Superficie útil en metros cuadrados', '', ''),
    (7, 'T', 'ESParcela#ENPlot#DEGrundstück#FRTerrain',
     'Superficie de la parcela en metros cuadrados', '', ''),
    (8, 'T', 'ESPlanta#ENFloor#DEEtage#FRÉtage',
     'Planta en la que se encuentra', '', ''),
    (9, 'T', 'ESAño de construcción#ENYear built#DEBaujahr#FRAnnée de construction',
     'Año en que se construyó o rehabilitó', '', ''),
    (10, 'T', 'ESGastos de comunidad#ENCommunity fees#DEHausgeld#FRCharges',
     'Gastos de comunidad al mes, en euros', '', ''),
    (11, 'O', 'ESEstado#ENCondition#DEZustand#FRÉtat',
     'Estado de conservación', '0',
     'ESBuen estado#ENGood#DEGut#FRBon état'
     || '|ESA estrenar#ENNever lived in#DEErstbezug#FRJamais habité'
     || '|ESReformado#ENRenovated#DERenoviert#FRRénové'
     || '|ESPara reformar#ENTo renovate#DERenovierungsbedürftig#FRÀ rénover'
     || '|ESEn construcción#ENUnder construction#DEIm Bau#FREn construction'),
    (12, 'O', 'ESOrientación#ENOrientation#DEAusrichtung#FROrientation',
     'Orientación de la fachada principal', '0',
     'ESSin indicar#ENNot stated#DEOhne Angabe#FRNon précisée'
     || '|ESNorte#ENNorth#DENorden#FRNord'
     || '|ESNoreste#ENNorth-east#DENordosten#FRNord-est'
     || '|ESEste#ENEast#DEOsten#FREst'
     || '|ESSureste#ENSouth-east#DESüdosten#FRSud-est'
     || '|ESSur#ENSouth#DESüden#FRSud'
     || '|ESSuroeste#ENSouth-west#DESüdwesten#FRSud-ouest'
     || '|ESOeste#ENWest#DEWesten#FROuest'
     || '|ESNoroeste#ENNorth-west#DENordwesten#FRNord-ouest'),
    (13, 'O', 'ESCalefacción#ENHeating#DEHeizung#FRChauffage',
     'Sistema de calefacción', '0',
     'ESSin calefacción#ENNone#DEKeine#FRAucun'
     || '|ESGas natural#ENMains gas#DEErdgas#FRGaz de ville'
     || '|ESGasóleo#ENOil#DEÖl#FRFioul'
     || '|ESEléctrica#ENElectric#DEElektrisch#FRÉlectrique'
     || '|ESBomba de calor#ENHeat pump#DEWärmepumpe#FRPompe à chaleur'
     || '|ESCentral#ENCommunal#DEZentralheizung#FRCollectif'
     || '|ESSuelo radiante#ENUnderfloor#DEFußbodenheizung#FRPar le sol'
     || '|ESChimenea o estufa#ENFireplace or stove#DEKamin oder Ofen#FRCheminée ou poêle'),
    (14, 'O', 'ESCertificado energético#ENEnergy rating#DEEnergieklasse#FRClasse énergétique',
     'Letra del certificado de eficiencia energética', '0',
     'ESEn trámite#ENPending#DEIn Bearbeitung#FREn cours'
     || '|ESA|ESB|ESC|ESD|ESE|ESF|ESG'
     || '|ESExento#ENExempt#DEBefreit#FRExempté'),
    (15, 'B', 'ESAscensor#ENLift#DEAufzug#FRAscenseur',
     'Marque la casilla si el edificio tiene ascensor', '0', ''),
    (16, 'B', 'ESPlaza de garaje#ENParking space#DEStellplatz#FRPlace de parking',
     'Marque la casilla si incluye garaje o plaza de aparcamiento', '0', ''),
    (17, 'B', 'ESTrastero#ENStorage room#DEAbstellraum#FRDébarras',
     'Marque la casilla si incluye trastero', '0', ''),
    (18, 'B', 'ESTerraza#ENTerrace#DETerrasse#FRTerrasse',
     'Marque la casilla si tiene terraza o balcón', '0', ''),
    (19, 'B', 'ESJardín#ENGarden#DEGarten#FRJardin',
     'Marque la casilla si tiene jardín propio o comunitario', '0', ''),
    (20, 'B', 'ESPiscina#ENSwimming pool#DESchwimmbad#FRPiscine',
     'Marque la casilla si tiene piscina propia o comunitaria', '0', ''),
    (21, 'B', 'ESAire acondicionado#ENAir conditioning#DEKlimaanlage#FRClimatisation',
     'Marque la casilla si tiene aire acondicionado', '0', '');

-- The agency's own notes, which never leave the catalogue: five on the property, four on the
-- client, four on the owner. Their captions are shown as they stand, in one language.
INSERT INTO ProductFieldDef (FieldDefId, Type, Caption, ToolTipText, DefaultValue, Choices) VALUES
    (22, 'I', 'Dirección exacta', 'Calle, número, piso y puerta', '', ''),
    (23, 'I', 'Referencia catastral', 'Referencia catastral de 20 caracteres', '', ''),
    (24, 'I', 'Llaves', 'Quién tiene las llaves', '', ''),
    (25, 'I', 'Precio mínimo', 'Precio mínimo que acepta el propietario', '', ''),
    (26, 'I', 'Cargas', 'Hipotecas, embargos u otras cargas', '', ''),
    (27, 'I', 'Nombre', 'Nombre del cliente interesado', '', ''),
    (28, 'I', 'Teléfono', 'Teléfono del cliente interesado', '', ''),
    (29, 'I', 'E-mail', 'Correo electrónico del cliente interesado', '', ''),
    (30, 'I', 'Visitas', 'Fechas y resultado de las visitas', '', ''),
    (31, 'I', 'Nombre', 'Nombre del propietario', '', ''),
    (32, 'I', 'Teléfono', 'Teléfono del propietario', '', ''),
    (33, 'I', 'Domicilio', 'Domicilio del propietario', '', ''),
    (34, 'I', 'Comisión', 'Comisión acordada con el propietario', '', '');
