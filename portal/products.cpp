#include "portal/products.h"

#include "core/settings.h"
#include "generator/fieldvalues.h"
#include "platform/events.h"
#include "portal/login.h"
#include "portal/photos.h"
#include "portal/pool.h"
#include "portal/request.h"
#include "store/langvalues.h"
#include "text/ansi.h"
#include "text/numbers.h"

using namespace Qt::StringLiterals;

namespace {

// Of the portal, whatever the languages of the site.
constexpr char16_t kPortalLanguage[] = u"ES";

// Places of the public fields that the portal reads, and of the texts.
enum PortalField {
    kFieldSurface = 0,
    kFieldType = 1,
    kFieldSingleRooms = 2,
    kFieldDoubleRooms = 3,
    kFieldBathrooms = 4,
    kFieldToilets = 5
};
enum PortalText { kTextTitle = 0, kTextDescription = 1 };

constexpr double kPesetasPerEuro = 166.386;

// As a web page has it, but for the words that stand for yes and no, which stay.
QString ValueAt(const FieldList& fields, PortalField place) {
    const size_t index = place;
    const bool empty = index >= fields.size() || fields[index].Value.isEmpty();
    return empty ? u"&nbsp;"_s : fields[index].Value;
}

QString TextAt(const FieldList& texts, PortalText place) {
    const size_t index = place;
    return index < texts.size() ? texts[index].Value : QString();
}

// Empty where the product has no price.
QString Price(const Recordset& product, double factor) {
    const Cell amount = product.Value(u"PriceAmount");
    return IsNull(amount) ? QString() : NumberText(CellNumber(amount) * factor);
}

QString FormOf(const Recordset& product, FieldSources& sources) {
    const QString id = product.Text(u"ProductId");
    const QString language = QString::fromUtf16(kPortalLanguage);
    FieldList fields;
    LoadProductFields(sources, id, language, 0, fields);
    const FieldList texts =
        LoadLangFields(sources, id, TextTableName(TextTable::Products), language);
    return u"ProductId="_s + id + u"&ProductRef="_s + product.Text(u"ProductRef") +
           u"&ShortDesc="_s + TextAt(texts, kTextTitle) + u"&Superficie="_s +
           ValueAt(fields, kFieldSurface) + u"&TipoInmueble="_s +
           QString::number(PortalPropertyType(ValueAt(fields, kFieldType))) + u"&HabInd="_s +
           ValueAt(fields, kFieldSingleRooms) + u"&HabDob="_s + ValueAt(fields, kFieldDoubleRooms) +
           u"&Banos="_s + ValueAt(fields, kFieldBathrooms) + u"&Aseos="_s +
           ValueAt(fields, kFieldToilets) + u"&SaleZoneUsr="_s + product.Text(u"SaleZone") +
           u"&LongDesc="_s + TextAt(texts, kTextDescription) + u"&PriceAmount="_s +
           Price(product, 1) + u"&PriceInPta="_s + Price(product, kPesetasPerEuro);
}

QByteArray SaveRequest(const Recordset& product, FieldSources& sources) {
    QByteArray body =
        ToAnsi(FormOf(product, sources)) + "+Ptas&AgentId=" + PortalAgentId + "&Mode=1&EditPhotos=";
    body.replace(' ', '+');
    return HeaderOf({"POST /save_inmueble.php HTTP/1.0", QByteArray("Accept: ") + kPortalAccept,
                     "Accept-Language: es", "Content-Type: application/x-www-form-urlencoded",
                     QByteArray("User-Agent: ") + kPortalUserAgent,
                     "Cookie: " + OneLine(PortalCookie), "Host: " + ToAnsi(PortalHost),
                     "Content-Length: " + QByteArray::number(body.size()),
                     "Cache-Control: no-cache"}) +
           body;
}

// Cookie and user agent share a line, here alone.
QByteArray DeleteRequest(const QString& item) {
    const bool product = item.startsWith(QLatin1Char(char(DeletedItem::Product)));
    const QByteArray page = product ? "/borrar_inmueble.php" : "/borrar_foto.php";
    const QByteArray id = OneLine(PortalAgentId + '-' + ToAnsi(item.mid(1)));
    return HeaderOf({"GET " + page + "?id=" + id + " HTTP/1.0",
                     QByteArray("Accept: ") + kPortalAccept, "Accept-Language: es",
                     "Accept-Encoding: deflate",
                     "Cookie: " + OneLine(PortalCookie) + "User-Agent: " + kPortalUserAgent,
                     "Host: " + ToAnsi(PortalHost), "Cache-Control: no-cache"});
}

} // namespace

void QueueProducts(SiteSnapshot& snapshot) {
    ResetPortalJobs();
    FieldSources sources(snapshot);
    Recordset& products = snapshot[kSnapProducts];
    products.ClearFilter();
    for (products.MoveFirst(); products.HasRow() && !PortalGivenUp(); products.MoveNext()) {
        const QString id = products.Text(u"ProductId");
        if (IsOnPortal(id)) {
            continue;
        }
        PortalQueueRequest(products.Text(u"ProductRef"), SaveRequest(products, sources), false);
        QueuePictures(id, snapshot[kSnapPictures], PortalCookie);
        DoEvents();
    }
}

void QueueDeletions() {
    if (DeletedItems.isEmpty()) {
        return;
    }
    for (const QString& item : DeletedItems.split(u'|')) {
        PortalQueueRequest("Eliminar", DeleteRequest(item), false);
    }
}

bool IsOnPortal(const QString& productId) {
    const QByteArray mark = "<!--ProductId=" + ToAnsi(productId) + "-->";
    const std::string_view page(PortalLoginPage.constData(), size_t(PortalLoginPage.size()));
    return page.find(mark.constData()) != std::string_view::npos;
}

int PortalPropertyType(const QString& text) {
    static const QHash<QString, int> kNumbers = {
        {"OBRA NUEVA", 0}, {"VENTA", 1},           {"PISOS", 1},
        {"CASAS", 2},      {"FINCAS RUSTICAS", 8}, {"LOCALES", 9},
        {"TERRENOS", 3},   {"GARAGES", 10},        {"ALQUILER", 4},
    };
    return kNumbers.value(text.toUpper(), 1);
}
