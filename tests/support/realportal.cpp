#include "tests/support/realportal.h"

#include "tests/support/files.h"

#include <algorithm>

QByteArray PortalRequest::Value(const QByteArray& field) const {
    const auto isIt = [&](const auto& known) { return known.first == field; };
    const auto found = std::find_if(fields.begin(), fields.end(), isIt);
    return found == fields.end() ? QByteArray() : found->second;
}

int RealPortal::Start() {
    return server.Start("127.0.0.1", {kPortalUser, kPortalPassword, "0"}, [](QTcpSocket& visitor) {
        visitor.write("GET /index.php HTTP/1.0\r\n\r\n");
        return visitor.waitForReadyRead() && visitor.readLine().contains(" 200 ");
    });
}

QList<PortalRequest> RealPortal::Requests() const {
    QList<PortalRequest> requests;
    for (const QByteArray& line : ReadFile(server.File("received/log")).split('\n')) {
        const auto words = line.split(' '); // status, method, address, fields
        if (words.size() < 4) {
            continue;
        }
        PortalRequest& request = requests.emplaceBack();
        request.status = words[0].toInt();
        request.address = words[2];
        for (const QByteArray& item : words[3].split('&')) {
            const qsizetype sign = item.indexOf('=');
            const QByteArray name = QByteArray::fromPercentEncoding(item.left(sign));
            const QByteArray value = item.mid(sign + 1);
            if (value.startsWith('@')) {
                request.files.emplaceBack(
                    name, ReadFile(server.File("received/fotos/" + QString(value.mid(1)))));
            } else {
                request.fields.emplaceBack(name, QByteArray::fromPercentEncoding(value));
            }
        }
    }
    return requests;
}
