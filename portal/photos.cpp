#include "portal/photos.h"

#include "images/picture.h"
#include "pictures/productpictures.h"
#include "platform/events.h"
#include "portal/login.h"
#include "portal/pool.h"
#include "portal/request.h"
#include "text/ansi.h"

int PortalUnreadable = 0;

namespace {

constexpr char kBoundary[] = "7d6132346072c";

// The portal looks at the content, which is a JPEG, and not at the name.
constexpr char kFileName[] = R"(C:\Documents and Settings\Usuario\Escritorio\CountDown.gif)";

constexpr char kMostBytes[] = "500000"; // advice to the server, no more

const TemplateSectionRecord& PortalSize() {
    static const TemplateSectionRecord kSection{.Name = "imagefind.jpg",
                                                .Params = "OPTIMALSIZE=460X345;"};
    return kSection;
}

QByteArray Disposition(const QByteArray& name) {
    return R"(Content-Disposition: form-data; name=")" + name + '"';
}

QByteArray Lines(const QByteArrayList& lines) {
    return lines.join(kPortalLineEnd) + kPortalLineEnd;
}

QByteArray FileHead(int number) {
    return HeaderOf(
        {QByteArray("--") + kBoundary,
         Disposition("image" + QByteArray::number(number)) + R"(; filename=")" + kFileName + '"',
         "Content-Type: image/jpeg"});
}

QByteArray Field(const QByteArray& name, const QByteArray& value) {
    return Lines({QByteArray("--") + kBoundary, Disposition(name), "", value});
}

// What stands behind the pictures.
QByteArray Fields(const QByteArray& productId) {
    return Field("MAX_FILE_SIZE", kMostBytes) + Field("AgentId", PortalAgentId) +
           Field("ProductId", productId) + Field("EditPhotos", "") +
           Lines({kBoundary, Disposition("Sel"), ""}) + kPortalLineEnd + "--" + kBoundary + "--";
}

QByteArray RequestHeader(const QByteArray& cookie, qsizetype length) {
    return HeaderOf({"POST /save_fotos.php HTTP/1.1", QByteArray("Accept: ") + kPortalAccept,
                     "Accept-Language: es", "Accept-Encoding: gzip, deflate",
                     QByteArray("Content-Type: multipart/form-data; boundary=") + kBoundary,
                     QByteArray("User-Agent: ") + kPortalUserAgent, "Cookie: " + OneLine(cookie),
                     "Host: " + ToAnsi(PortalHost), "Connection: Keep-Alive",
                     "Content-Length: " + QByteArray::number(length), "Cache-Control: no-cache"});
}

QByteArray RenderedPicture(const Recordset& row) {
    try {
        return RenderProductPicture(row, PortalSize()).Data;
    } catch (const PictureError&) { // the home goes all the same; the page tells how many lack
        ++PortalUnreadable;
        return {};
    }
}

// The pieces of the body, in order.
QByteArrayList BodyOf(const QString& productId, Recordset& pictures) {
    QByteArrayList pieces;
    pictures.SetFilter({{u"ProductId", productId}});
    for (int number = 0; pictures.HasRow() && !PortalGivenUp(); pictures.MoveNext()) {
        pieces << FileHead(number++) << RenderedPicture(pictures) << kPortalLineEnd;
        DoEvents();
    }
    return pieces << Fields(ToAnsi(productId));
}

} // namespace

void QueuePictures(const QString& productId, Recordset& pictures, const QByteArray& cookie) {
    const QByteArrayList body = BodyOf(productId, pictures);
    qsizetype length = 0;
    for (const QByteArray& piece : body) {
        length += piece.size();
    }
    QByteArray request = RequestHeader(cookie, length);
    request.reserve(request.size() + length);
    for (const QByteArray& piece : body) {
        request += piece;
    }
    PortalQueueRequest("Fotografia", request, true);
}

void ResetPortalUnreadable() {
    PortalUnreadable = 0;
}
