#pragma once

#include <QTcpServer>
#include <QTcpSocket>

#include "text/Text.h"

namespace ostrel::test {

/// A web server on this machine that counts who comes. It answers with one page; without one, and to those
/// who ask for "/never", it never does.
class LocalServer {
public:
    explicit LocalServer(QByteArray page = {}) : page_(std::move(page)) {
        server_.listen(QHostAddress::LocalHost);
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            QTcpSocket* socket = server_.nextPendingConnection();
            ++visits;
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                if (socket->readAll().startsWith("GET /never ") || page_.isEmpty()) return;
                socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n\r\n" +
                              page_);
                socket->disconnectFromHost();
            });
        });
    }
    Text Address() const { return "http://127.0.0.1:" + std::to_string(server_.serverPort()) + "/"; }
    quint16 Port() const { return server_.serverPort(); }

    int visits = 0;

private:
    QTcpServer server_;
    QByteArray page_;
};

} // namespace ostrel::test
