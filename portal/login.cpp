#include "portal/login.h"

#include "core/settings.h"
#include "portal/pool.h"
#include "portal/request.h"
#include "site/steps.h"
#include "site/transforms.h"
#include "text/ansi.h"

#include <optional>

QByteArray PortalCookie;
QByteArray PortalAgentId;
QByteArray PortalLoginPage;
int PortalLoginStatus = 0;

namespace {

constexpr char kAgentMark[] = "AgentId=";
constexpr char kCommentEnd[] = "-->";

// Two of the names have a blank in front of the hyphen, here and in no other request.
QByteArray LoginRequest(const QByteArray& body) {
    return HeaderOf({"POST /area_privada.php HTTP/1.0", QByteArray("Accept: ") + kPortalAccept,
                     "Accept -Language: es", "Content-Type: application/x-www-form-urlencoded",
                     "Accept -Encoding: gzip , deflate",
                     QByteArray("User-Agent: ") + kPortalUserAgent, "Host: " + ToAnsi(PortalHost),
                     "Content-Length: " + QByteArray::number(body.size()),
                     "Cache-Control: no-cache"}) +
           body;
}

// "1234" of "AgentId=1234-->" and of "AgentId=1234=x-->"; nothing without the comment.
std::optional<QByteArray> AgentIn(const QByteArray& page) {
    const qsizetype start = page.indexOf(kAgentMark);
    const qsizetype end = start < 0 ? -1 : page.indexOf(kCommentEnd, start);
    if (end < 0) {
        return {};
    }
    return page.mid(start, end - start).split('=').at(1);
}

int StatusOf(const QByteArray& response) {
    const QByteArray start = response.left(response.indexOf('\r'));
    return start.startsWith("HTTP/") ? start.split(' ').value(1).toInt() : 0;
}

} // namespace

void ResetPortalLogin() {
    PortalCookie.clear();
    PortalLoginStatus = 0;
}

bool PortalLogin(const QString& user, const QString& password) {
    PortalLoginPage.clear();
    ReportActivity(QString("Entrando en %1...").arg(VSname));
    const QByteArray body = "email=" + ToAnsi(user) + "&password=" + ToAnsi(password);
    const QByteArray response = PortalExchange(LoginRequest(body));
    PortalLoginStatus = StatusOf(response);
    const std::optional<QByteArray> agent = AgentIn(response);
    if (!agent) {
        return false;
    }
    PortalAgentId = *agent;
    PortalCookie = ReadHeaderValue("Set-Cookie", response);
    SetPortalLoggedIn();
    PortalLoginPage = response;
    return true;
}

QByteArray PortalExchange(const QByteArray& request) {
    TcpSocket& socket = wskPortal(0);
    if (socket.State() != kSocketClosed) {
        socket.Close();
    }
    socket.SetLocalPort(0);
    PortalConnect(0);
    for (;;) {
        const int before = PortalSockets[0].Broken;
        const auto broken = [before] { return PortalSockets[0].Broken != before; };
        const auto over = [&socket, broken] {
            return PortalHostNotFound || broken() || socket.State() == kSocketClosed ||
                   socket.State() == kSocketPeerClosing;
        };
        WaitForPortal([&] { return over() || socket.State() == kSocketConnected; });
        if (socket.State() == kSocketConnected) {
            SendOnPortal(request);
            WaitForPortal([&] { return over() || PortalSendDone; });
            WaitForPortal(over);
        }
        if (PortalHostNotFound || PortalGivenUp()) {
            return {};
        }
        if (!broken()) {
            return PortalSockets[0].Received;
        }
        ReportActivity(QString("%1 no responde. Se vuelve a intentar...").arg(VSname));
    }
}

QByteArray ReadHeaderValue(const QByteArray& name, const QByteArray& response) {
    for (qsizetype start = 0; start < response.size();) {
        qsizetype end = response.indexOf(kPortalLineEnd, start);
        end = end < 0 ? response.size() : end;
        const auto line = QByteArrayView(response).sliced(start, end - start);
        const qsizetype colon = line.indexOf(':');
        const auto key = colon < 0 ? line : line.first(colon);
        if (key.compare(name, Qt::CaseInsensitive) == 0) {
            return colon < 0 ? QByteArray() : TrimBlanks(line.sliced(colon + 1).toByteArray());
        }
        start = end + static_cast<qsizetype>(sizeof kPortalLineEnd) - 1;
    }
    return {};
}
