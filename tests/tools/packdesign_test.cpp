#include "site/template.h"
#include "tests/support/files.h"
#include "tests/support/testpictures.h"
#include "tools/designfile.h"
#include "tools/tagchecks.h"

#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>

namespace {

// A design that nothing can be said against.
const QByteArray kManifest = "# Prueba\n"
                             "name = Prueba\n"
                             "[section]\n"
                             "kind = home\n"
                             "file = home.html\n"
                             "[section]\n"
                             "kind = words\n"
                             "words = words.txt\n"
                             "[section]\n"
                             "kind = preview\n"
                             "file = preview.jpg\n";
const QByteArray kWords = "tag | ES | EN\n"
                          "%%ACONSULTAR%% | Consultar | Ask\n"
                          "# comentario\n"
                          "%SI% | Sí | Yes\n"
                          "%NO% | No |\n";
const QByteArray kHome = "<head><meta charset=\"windows-1252\"></head>\n";

class DesignFolder {
public:
    DesignFolder() {
        Write("design.ini", kManifest);
        Write("words.txt", kWords);
        Write("home.html", kHome);
        Write("preview.jpg", MakeJpeg(FourFields({32, 24})));
    }

    void Write(const QString& name, const QByteArray& content) {
        WriteFile(folder.filePath(name), content);
    }

    // Appends to the manifest; the first line appended is line 12.
    void Add(const QByteArray& lines) { Write("design.ini", kManifest + lines); }

    QString Path() const { return folder.path(); }

    QStringList Findings() const {
        PackReport report;
        PackDesign(folder.path(), false, report);
        return report.Lines();
    }

private:
    QTemporaryDir folder;
};

void Load(QByteArray bytes) {
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    ResetTemplateState();
    TemplateContent design;
    ASSERT_TRUE(ReadTemplate(file, design));
    UseTemplate(std::move(design));
}

} // namespace

TEST(PackDesign, WhatIsPackedIsWhatTheProgramReads) {
    DesignFolder design;
    design.Write("design.ini", "name = Diseño\n"
                               "description = Uno\n"
                               "  dos\n"
                               "customfiles = robots.txt, a.ico\n"
                               "maxemph1 = 6\n"
                               "maxemph2 = 4\n" +
                                   kManifest.mid(kManifest.indexOf("[section]")) +
                                   "[section]\n"
                                   "kind = zones\n"
                                   "name = %%ZONAS%%\n"
                                   "params = X=1\n"
                                   "file = zones.html\n"
                                   "[section]\n"
                                   "kind = 22\n"
                                   "name = %%IDIOMAS%%\n"
                                   "text = <p><!--ITEM-->%LID%\n"
                                   "  # <!--/ITEM--></p>\n"
                                   "[section]\n"
                                   "kind = copy\n"
                                   "file = icon.svg\n"
                                   "[section]\n"
                                   "kind = product-picture\n"
                                   "name = p%%PICTUREID%%.jpg\n"
                                   "params = RESIZE=4X3;\n");
    design.Write("words.txt", kWords + "=%%TEL%% | Tel.\n");
    design.Write("home.html", kHome + "<!--#include pie.html-->\nfin");
    design.Write("pie.html", "\xEF\xBB\xBF"
                             "año €\r\n");
    design.Write("zones.html", "<ul>\n  <!--ITEM-->\n<li>%%SALEZONE%%</li>\n<!--/ITEM-->\n</ul>\n");
    design.Write("icon.svg", "<svg>ñ</svg>\n");
    PackReport report;
    const QByteArray plain = PackDesign(design.Path(), false, report);
    EXPECT_EQ(report.Lines(), QStringList());
    const QByteArray scrambled = PackDesign(design.Path(), true, report);
    EXPECT_NE(plain.right(20), scrambled.right(20));
    for (const QByteArray& bytes : {plain, scrambled}) {
        Load(bytes);
        EXPECT_EQ(TemplateHeader.Name.trimmed(), "Diseño");
        EXPECT_EQ(TemplateHeader.Description.trimmed(), "Uno dos CUSTOMFILES=robots.txt,a.ico;");
        EXPECT_EQ(TemplateHeader.MaxEmph1 * 1000 + TemplateHeader.MaxEmph2, 6004);
        EXPECT_EQ(SectionBodies[0], "<head><meta charset=\"windows-1252\"></head>\r\n"
                                    "a\xF1o \x80\r\nfin");
        EXPECT_EQ(TemplateSections[1].Name.trimmed(), "ES|EN");
        EXPECT_EQ(SectionBodies[1], "%%ACONSULTAR%%#%SI%#%NO%#%%TEL%%|Consultar#S\xED#No#Tel."
                                    "|Ask#Yes##Tel.");
        EXPECT_EQ(TemplateSections[3].Params.trimmed(), "START=6;MIDDLE=23;END=7;X=1;");
        EXPECT_EQ(SplitSectionBody(3).middle, "<li>%%SALEZONE%%</li>\r\n");
        EXPECT_EQ(SplitSectionBody(3).tail, "</ul>\r\n");
        EXPECT_EQ(SplitSectionBody(4).middle, "%LID%\r\n# ");
        EXPECT_EQ(TemplateSections[5].Name.trimmed(), "icon.svg");
        EXPECT_EQ(SectionBodies[5], "<svg>ñ</svg>\n");
        EXPECT_EQ(TemplateSections[6].LastIndex, -1);
    }
}

TEST(PackDesign, MistakesInTheManifestAreToldWithTheirLine) {
    const struct {
        QByteArray lines; // from line 12 on
        QString finding;
    } kCases[] = {
        {"", ""},
        {"basura\n", "design.ini:12: error: se esperaba «clave = valor» o «[section]»"},
        {"[section]\n  x\n",
         "design.ini:13: error: la línea empieza por blancos y no continúa nada|"
         "design.ini:12: error: falta el tipo de la sección (kind)"},
        {"color = 1\n", "design.ini:12: error: clave desconocida: «color»"},
        {"kind = copy\n", "design.ini:12: error: la clave «kind» ya está en la línea 10"},
        {"raw = sí\n", "design.ini:12: error: «raw» solo puede ser «yes» o «no»"},
        {"[section]\nkind = 29\n", "design.ini:13: error: tipo de sección desconocido: «29»"},
        {"[section]\nkind = copy\nfile = no.css\n",
         "design.ini:14: error: no se puede leer el fichero «no.css»"},
        {"[section]\nkind = page\nname = p%LID%.html\n",
         "design.ini:13: error: la sección no tiene contenido (file, text o words)"},
        {"[section]\nkind = page\nname = p%LID%.html\ntext = a\nfile = home.html\n",
         "design.ini:13: error: la sección tiene más de un contenido"},
        {"[section]\nkind = page\nname = p%LID%.html\nhead = home.html\ntext = a\n",
         "design.ini:13: error: la sección tiene más de un contenido|"
         "design.ini:13: error: solo las listas tienen head, middle y tail"},
        {"[section]\nkind = zones\nname = %%Z%%\ntext = <!--/ITEM--><!--ITEM-->\n",
         "design.ini:12: error: la lista necesita una marca <!--ITEM--> y después una marca "
         "<!--/ITEM-->"},
        {"[section]\nkind = copy\nname = 12345678901234567890123.css\ntext = a\n",
         "design.ini:14: error: son 27 caracteres y caben 25"},
        {"[section]\nkind = copy\nname = ../a.css\ntext = a\n",
         "design.ini:14: error: «../a.css» no puede ser el nombre de un fichero"},
        {"[section]\nkind = page\ntext = a\n",
         "design.ini:12: error: falta el nombre de la sección (name)"},
        {"[section]\nkind = logo\nname = logo.jpg\nparams = LEGENDA=" + QByteArray(200, 'x') + "\n",
         "design.ini:15: error: son 209 caracteres y caben 200|"
         "design.ini:15: aviso: sin OPTIMALSIZE no se hace la foto"},
        {"[section]\nkind = product-picture\nname = %%PICTUREID%%.jpg\nparams = RESIZE=4x3;\n",
         "design.ini:15: error: «4x3» no es un tamaño como 460X345"},
        {"[section]\nkind = product-picture\nname = p.jpg\n",
         "design.ini:14: aviso: sin %%PICTUREID%% en el nombre, cada foto sobrescribe a la "
         "anterior|design.ini:12: aviso: sin RESIZE ni OPTIMALSIZE no se hace ninguna foto"},
        {"[section]\nkind = zones\nname = %%Z%%\ntext = a\n"
         "params = BACKEND=1;START=1;MIDDLE=0;END=0;\n",
         "design.ini:16: error: el parámetro «END» se encuentra antes, dentro de otro nombre o "
         "valor"},
        {"[section]\nkind = copy\ntext = a\nname = a.css\nparams = nada;\n",
         "design.ini:16: error: «nada» no tiene la forma CLAVE=valor;"},
        {"[section]\nkind = choices\nname = %%C%%\ntext = <!--ITEM--><!--/ITEM-->\n",
         "design.ini:12: error: falta FIELDDEFID=número;"},
        {"[section]\nkind = categories\nname = %%C%%\nparams = FIELDDEFID=2;\n"
         "text = <!--ITEM--><!--/ITEM-->\n",
         "design.ini:15: error: falta FIELDDEFID=tabla.número;, como Products.2"},
        {"[section]\nkind = no-picture\nfile = home.html\n",
         "design.ini:14: error: No se puede leer la imagen home.html: no es una imagen JPEG, GIF "
         "ni "
         "BMP."},
        {"[section]\nkind = home\nfile = home.html\n",
         "design.ini:13: aviso: ya hay una sección «home» y solo cuenta la primera"},
        {"[section]\nkind = emphasis1\nname = %%E%%\ntext = <!--ITEM--><!--/ITEM-->\n",
         "design.ini:13: aviso: los destacados necesitan las dos secciones: emphasis1 y emphasis2"},
        {"[section]\nkind = page\nname = p.html\ntext = a\n",
         "design.ini:14: aviso: sin %LID% en el nombre, cada idioma sobrescribe al anterior"},
        {"[section]\nkind = page\nname = p%LID%.xml\ntext = a\n",
         "design.ini:14: aviso: las etiquetas solo se sustituyen en ficheros .html, .js y .css"},
        {"[section]\nkind = copy\nname = p%LID%.css\ntext = a\n",
         "design.ini:14: aviso: %LID% no se sustituye en este nombre"},
        {"[section]\nkind = product\nname = p%FK%%LID%.html\ntext = a\n",
         "design.ini:14: aviso: sin %%PRID%% en el nombre, varios productos pueden compartir "
         "página|design.ini:14: aviso: con %FK% el nombre es distinto en cada idioma y puede pasar "
         "de 60 caracteres: entonces se envía siempre"},
        {"[section]\nkind = copy\nname = a.css\ntext = a\n"
         "[section]\nkind = copy\nname = a.css\ntext = b\n",
         "design.ini:18: aviso: otra sección escribe también el fichero «a.css»"},
        {"[section]\nkind = copy\nname = indexES.html\ntext = a\n",
         "design.ini:14: aviso: sin %LID% en el nombre, cada idioma sobrescribe al anterior|"
         "design.ini:14: aviso: otra sección escribe también el fichero «indexES.html»"},
        {"[section]\nkind = logo\nname = a.jpg\nparams = OPTIMALSIZE=9X9;\n"
         "[section]\nkind = map\nname = a.jpg\nparams = OPTIMALSIZE=9X9;\n",
         "design.ini:18: aviso: otra sección escribe también el fichero «a.jpg»"},
        {"[section]\nkind = page\nname = p%LID%%%PRID%%.html\ntext = a\n",
         "design.ini:14: aviso: %%PRID%% no se sustituye en este nombre"},
    };
    for (const auto& row : kCases) {
        DesignFolder design;
        design.Add(row.lines);
        EXPECT_EQ(design.Findings().join('|').toStdString(), row.finding.toStdString())
            << row.lines.toStdString();
    }
}

TEST(PackDesign, HeaderAndTableLimitsAreErrors) {
    const QByteArray sections = kManifest.mid(kManifest.indexOf("[section]"));
    const struct {
        QByteArray header;
        QString finding;
    } kCases[] = {
        {"", "design.ini:1: error: el diseño no tiene nombre (name)"},
        {"name = " + QByteArray(51, 'n') + "\n",
         "design.ini:1: error: son 51 caracteres y caben 50"},
        {"name = a\ndescription = " + QByteArray(498, 'd') + "\n",
         "design.ini:2: error: son 498 caracteres y caben 497"},
        {"name = a\ndescription = ver CUSTOMFILES=x;\n",
         "design.ini:2: error: la descripción no puede contener «CUSTOMFILES»"},
        {"name = a\nmaxemph1 = 256\n",
         "design.ini:2: error: «maxemph1» debe ser un número de 0 a 255|"
         "design.ini:1: error: la suma de maxemph1 y maxemph2 pasa de 255"},
        {"name = a\nmaxemph1 = 200\nmaxemph2 = 56\n",
         "design.ini:3: error: la suma de maxemph1 y maxemph2 pasa de 255"},
        {"name = a\ncustomfiles = ../x, " + QByteArray(61, 'n') + "\n",
         "design.ini:2: error: «../x» no es un nombre de fichero|design.ini:2: aviso: «" +
             QString(61, 'n') + "» pasa de 60 caracteres y se enviará siempre"},
    };
    DesignFolder design;
    for (const auto& row : kCases) {
        design.Write("design.ini", row.header + sections);
        EXPECT_EQ(design.Findings().join('|').toStdString(), row.finding.toStdString());
    }
    design.Add(
        QByteArray("[section]\nkind = copy\nname = a\nraw = yes\nfile = home.html\n").repeated(99));
    EXPECT_TRUE(design.Findings().contains("design.ini:503: error: hay 102 secciones y caben 101"));
}

TEST(PackDesign, WhatASiteCannotDoWithoutIsMissed) {
    DesignFolder design;
    design.Write("design.ini", "name = a\n[section]\nkind = copy\ntext = x\nname = a.css\n"
                               "[section]\nkind = home\nfile = home.html\n");
    EXPECT_EQ(design.Findings(),
              QStringList({"design.ini: aviso: el diseño no tiene palabras: %%ACONSULTAR%%, %SI% y "
                           "%NO% quedarán en las páginas",
                           "design.ini:7: aviso: la página de inicio no se publica si es la "
                           "segunda sección",
                           "design.ini: aviso: el diseño no tiene vista previa (preview)"}));
    design.Write("design.ini", kManifest.left(kManifest.indexOf("[section]")) +
                                   kManifest.mid(kManifest.indexOf("[section]\nkind = words")));
    EXPECT_EQ(design.Findings(),
              QStringList({"design.ini: error: falta la página de inicio (home)"}));
}

TEST(PackDesign, MistakesInTextsAreToldWithTheirLine) {
    const struct {
        const char* file;
        QByteArray content;
        QString finding;
    } kCases[] = {
        {"home.html", "a\nb → c\n",
         "home.html:2: error: el carácter U+2192 (→) no existe en Windows-1252"},
        {"home.html", "a\n\xE1\n", "home.html:2: error: el texto no está en UTF-8"},
        {"home.html", "<!--#include home.html-->\n",
         "home.html:1: error: los ficheros se incluyen unos a otros sin fin"},
        {"home.html", "<!--#include no.html-->\n",
         "home.html:1: error: no se puede leer el fichero «no.html»"},
        {"home.html", "<html>\n<head>\n<meta charset=\"utf-8\">",
         "home.html:2: aviso: la página no dice su juego de caracteres: <meta "
         "charset=\"windows-1252\">"},
        {"home.html", "\n<script src=\"a.js\" type=\"module\">",
         "home.html:2: aviso: un guion no puede ser un módulo: el programa pone delante un "
         "comentario que los módulos no admiten"},
        {"home.html", "%%LASTUPDATE%%",
         "home.html:1: aviso: %%LASTUPDATE%% cambia la página, y la hace enviar, todos los días"},
        {"home.html", "%%NADA%%", "home.html:1: aviso: etiqueta desconocida: %%NADA%%"},
        {"home.html", "%%PRODUCTREF%%",
         "home.html:1: aviso: %%PRODUCTREF%% no se sustituye en esta sección"},
        {"home.html", "%%FIELDDEF3%%%%CORPINFO.MRINFO.6%%%%ACONSULTAR%%%%ABOUTTEXT%%%LID%", ""},
        {"words.txt", kWords + "%%W%%|a\n", "words.txt:6: error: hay 2 columnas en vez de 3"},
        {"words.txt", kWords + "|a|b\n", "words.txt:6: error: falta la etiqueta"},
        {"words.txt", kWords + "%%W%%|a#|b\n",
         "words.txt:6: error: las palabras no pueden contener «#»"},
        {"words.txt", "t|ES\n%SI%|Sí\n%%ACONSULTAR%%|x\n",
         "design.ini:8: aviso: falta la palabra de %NO%"},
        {"words.txt", "# nada\n",
         "design.ini:8: error: la tabla de palabras no dice ningún idioma|"
         "design.ini:6: error: falta el nombre de la sección (name)|"
         "design.ini:8: error: hay 1 idiomas y 0 listas de palabras|"
         "design.ini:8: aviso: falta la palabra de %%ACONSULTAR%%|"
         "design.ini:8: aviso: falta la palabra de %SI%|"
         "design.ini:8: aviso: falta la palabra de %NO%"},
    };
    for (const auto& row : kCases) {
        DesignFolder design;
        design.Write(row.file, row.content);
        EXPECT_EQ(design.Findings().join('|').toStdString(), row.finding.toStdString())
            << row.content.toStdString();
    }
}

// A list enters a page at its own step: what the page's earlier steps replace stays inside it.
TEST(PackDesign, TagsThatNothingReplacesAreMissedPerSection) {
    const struct {
        const char* kind;
        QString text;
        QString stays;
    } kCases[] = {
        {"emphasis1", "%%PRID%%%%12%%%%SHORTDESC%%%%HOMETITLE%%%%ACONSULTAR%%%LID%", ""},
        {"emphasis1", "%%PRODUCTREF%%", "%%PRODUCTREF%%"},
        {"emphasis1", "%%CORPINFO.NAME%%", "%%CORPINFO.NAME%%"},
        {"emphasis1", "%%FIELDDEF1%%", "%%FIELDDEF1%%"},
        {"zones", "%%SALEZONE%%%%SALEZONEID%%%%CORPINFO.NAME%%%%FIELDDEF1%%%LID%", ""},
        {"choices", "%%CHOICE%%%%CHOICEVALUE%%%%FIELDDEF1%%%LID%", ""},
        {"choices", "%%VERSION%%", "%%VERSION%%"},
        {"pictures", "%%PICTUREID%%%%PRODUCTID%%%%PICTITLE%%%%MAINPICTUREID%%%%VERSION%%%LID%", ""},
        {"pictures", "%%PRID%%", "%%PRID%%"},
        {"product", "%%PRODUCTREF%%%%LISTA%%%%FIELDDEF1%%", ""},
        {"product", "%%PICTUREID%%", "%%PICTUREID%%"},
        {"home", "%%LISTA%%", "%%LISTA%%"},
        {"data", "%%LISTPRODUCTID%%%%LIST3%%.ID%%LISTSHORTDESC%%%LID%", ""},
        {"css", "%%CORPINFO.NAME%%", ""},
        {"css", "%%FIELDDEF1%%", "%%FIELDDEF1%%"},
        {"css", "%LID%", "%LID%"},
        {"txt", "%%VERSION%%", "%%VERSION%%"},
    };
    for (const auto& row : kCases) {
        const QString kind(row.kind);
        Design design;
        // The page's picture block is a list that the design has.
        DesignSection list;
        list.kind = FindDesignKind("pictures");
        list.name = "%%LISTA%%";
        design.sections.push_back(list);
        DesignSection section;
        const bool copied = kind == "css" || kind == "txt";
        section.kind = FindDesignKind(copied ? "copy" : kind);
        section.name = copied ? "a." + kind : kind == "data" ? "d%LID%.js" : "a%LID%.html";
        section.text.lines = {{row.text, {"a", 1}}};
        design.sections.push_back(section);
        PackReport report;
        CheckTags(design, report);
        const QString expected =
            row.stays.isEmpty() ? QString()
                                : "a:1: aviso: " + row.stays + " no se sustituye en esta sección";
        EXPECT_EQ(report.Lines().join('|').toStdString(), expected.toStdString()) << row.kind;
    }
}

TEST(PackDesign, ColourSetsAreCheckedNameByName) {
    const QByteArray sets = "PARAMS=c-ink,c-bg;\nNUMBERSOFSTYLES=2;\n"
                            "COLORSSTYLE1=000000,111111,222222;\nCOLORSSTYLE2=000000,1,2;\n"
                            "<!--STYLE0 c-ink=#000;c-bg=#fff; STYLE0-->\n";
    const struct {
        QByteArray body;
        QString finding;
    } kCases[] = {
        {sets + "<!--STYLE1 c-ink=#000;c-bg=#fff; STYLE1-->",
         "c.txt:1: aviso: COLORSSTYLE2 no son tres colores como 402010,F8F0E8,FFFFFF"},
        {sets, "c.txt:1: aviso: COLORSSTYLE2 no son tres colores como 402010,F8F0E8,FFFFFF|"
               "c.txt:1: aviso: falta el juego de colores STYLE1: si se elige, los colores quedan "
               "vacíos"},
        {"PARAMS=c,c-bg;NUMBERSOFSTYLES=1;COLORSSTYLE1=000000,111111,222222;"
         "<!--STYLE0 c-bg=#1;c=#2; STYLE0--><!--STYLE1 c=#1;x=#2; STYLE1-->",
         "c.txt:1: error: el color «c» es parte de «c-bg»|"
         "c.txt:1: error: el parámetro «c» se encuentra antes, dentro de otro nombre o valor|"
         "c.txt:1: error: el color «c-bg» no tiene valor en STYLE1"},
        {"nada", "c.txt:1: error: PARAMS no dice los nombres de los colores"},
    };
    for (const auto& row : kCases) {
        DesignFolder design;
        design.Add("[section]\nkind = colors\nfile = c.txt\n");
        design.Write("c.txt", row.body);
        EXPECT_EQ(design.Findings().join('|').toStdString(), row.finding.toStdString());
    }
    DesignFolder design;
    design.Write("c.txt", "PARAMS=c-ink;NUMBERSOFSTYLES=1;COLORSSTYLE1=000000,111111,222222;"
                          "<!--STYLE0 c-ink=1; STYLE0--><!--STYLE1 c-ink=2; STYLE1-->");
    design.Add("[section]\nkind = colors\nfile = c.txt\n[section]\nkind = zones\nname = %%Z%%\n"
               "text = <!--ITEM-->c-ink<!--/ITEM-->\n");
    EXPECT_EQ(design.Findings(), QStringList({"design.ini:18: aviso: los colores no se sustituyen "
                                              "dentro de una lista: «c-ink»"}));
}

TEST(PackDesign, ProgramWritesTheFileOnlyWithoutErrors) {
    DesignFolder design;
    const QString output = design.Path() + "/out.zdt";
    const auto run = [](const QStringList& arguments) {
        QProcess process;
        process.start(PACKDESIGN, arguments);
        EXPECT_TRUE(process.waitForFinished());
        return std::make_pair(process.exitCode(),
                              QString::fromUtf8(process.readAllStandardError()));
    };
    EXPECT_EQ(run({"--scramble", design.Path(), output}), std::make_pair(0, QString()));
    Load(ReadFile(output));
    EXPECT_EQ(TemplateHeader.Scrambled, 1);
    QFile::remove(output);
    design.Add("basura\n");
    EXPECT_EQ(run({design.Path(), output}),
              std::make_pair(1, design.Path() +
                                    "/design.ini:12: error: se esperaba «clave = valor» "
                                    "o «[section]»\n"));
    EXPECT_FALSE(QFile::exists(output));
    EXPECT_EQ(run({}).first, 2);
}
