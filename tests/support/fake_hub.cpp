#include "support/fake_hub.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

namespace qb::test {

bool WaitUntil(const std::function<bool()>& done, int ms) {
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > ms) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
    }
    return true;
}

FakeHub::FakeHub() {
    server_.listen(QHostAddress::LocalHost, 0);
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
        QTcpSocket* socket = server_.nextPendingConnection();
        if (client_ != nullptr) {
            socket->abort();
            socket->deleteLater();
            return;
        }
        client_ = socket;
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            if (stalled_) return;
            const QByteArray bytes = socket->readAll();
            received_.append(bytes.constData(), static_cast<size_t>(bytes.size()));
        });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, [this] { gone_ = true; });
    });
}

FakeHub::~FakeHub() {
    if (client_ != nullptr) {
        client_->disconnect();
        client_->abort();
    }
}

std::string FakeHub::Address() const {
    return "127.0.0.1:" + std::to_string(server_.serverPort());
}

void FakeHub::StopReading() {
    stalled_ = true;
    // Qt would go on reading into a buffer of its own; a small one leaves the bytes with the
    // system, whose buffers fill and push back on the client.
    if (client_ != nullptr) client_->setReadBufferSize(1);
}

bool FakeHub::WaitForClient() {
    return WaitUntil([this] { return client_ != nullptr; });
}

void FakeHub::Send(std::string_view bytes) {
    client_->write(bytes.data(), static_cast<qint64>(bytes.size()));
}

void FakeHub::Drop() {
    client_->disconnectFromHost();
}

void FakeHub::Stream(std::size_t total, const std::function<std::string(std::size_t)>& chunk) {
    std::size_t sent = 0;
    while (sent < total && !gone_) {
        if (client_->bytesToWrite() < 256 * 1024) {
            std::string piece = chunk(sent);
            if (piece.size() > total - sent) piece.resize(total - sent);
            Send(piece);
            sent += piece.size();
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}

bool FakeHub::WaitFor(std::string_view bytes, std::size_t from) {
    return WaitUntil([&] { return received_.find(bytes, from) != std::string::npos; });
}

std::size_t FakeHub::Count(std::string_view bytes) const {
    std::size_t count = 0;
    for (size_t at = received_.find(bytes); at != std::string::npos;
         at = received_.find(bytes, at + bytes.size())) {
        ++count;
    }
    return count;
}

bool FakeHub::LogIn(std::string_view nick) {
    if (!WaitForClient()) return false;
    const std::size_t mark = Mark();
    Send("$Lock " + std::string(kLock) + "|$HubName Fake|");
    if (!WaitFor("$ValidateNick " + std::string(nick) + "|", mark)) return false;
    Send("$Hello " + std::string(nick) + "|");
    return WaitFor("$GetNickList|", mark);
}

}  // namespace qb::test
