#include "core/flavour.h"

#include "platform/notify.h"
#include "text/ansi.h"

#include <QFile>
#include <QFileInfo>
#include <array>

QString AppBrand;
QString AppSector;
QString AppName;
QString ProdSing;
QString ProdPlur;
QString ProdGender;
QString CategoryCaption;
QString CategoryTip;
QString LogoCaption;

namespace {

constexpr char kSectorFile[] = "sector.dat";
constexpr int kScrambleMask = 255;

// In the order of the file's lines.
struct FlavourValue {
    QString* value;
    const char* defaultText;
};

constexpr std::array<FlavourValue, kFlavourLines> kValues{{
    {&AppBrand, "LUM_"},
    {&AppSector, "PROD"},
    {&AppName, "Lumenta"},
    {&ProdSing, "Producto"},
    {&ProdPlur, "Productos"},
    {&ProdGender, "M"},
    {&CategoryCaption, "Categoría"},
    {&CategoryTip, "Familia/Subfamilia de Productos a la que pertenece %PDETSING% %PRODSING%"},
    {&LogoCaption, kNotAvailable},
}};

} // namespace

QStringList ReadSectorLines(const QByteArray& bytes) {
    QByteArray plain = bytes.chopped(bytes.isEmpty() ? 0 : 1);
    for (char& byte : plain) {
        byte = static_cast<char>(kScrambleMask - static_cast<unsigned char>(byte));
    }
    return FromAnsi(plain).split(QStringLiteral("\r\n"));
}

bool LoadFlavour(const QString& folder) {
    for (const FlavourValue& entry : kValues) {
        *entry.value = QString::fromUtf8(entry.defaultText);
    }
    QFile file(folder + kSectorFile);
    const bool exists = QFileInfo(file).isFile();
    const QStringList lines =
        exists && file.open(QIODevice::ReadOnly) ? ReadSectorLines(file.readAll()) : QStringList();
    if (lines.size() >= kFlavourLines) {
        for (int line = 0; line < kFlavourLines; ++line) {
            *kValues[line].value = lines[line];
        }
    }
    SetErrorTitle(AppName);
    return exists;
}

bool IsGenericFlavour() {
    return AppBrand == u"LUM_" && AppSector == u"PROD";
}

bool IsRealEstateFlavour() {
    return AppBrand == u"ZAND" && AppSector == u"INMO";
}

bool HasLogoBox() {
    return LogoCaption != QLatin1StringView(kNotAvailable);
}
