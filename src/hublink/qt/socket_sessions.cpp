#include "hublink/qt/socket_sessions.h"

#include <QTimer>
#include <algorithm>
#include <charconv>
#include <optional>
#include <stdexcept>
#include <utility>

namespace qb::hublink {
namespace {

// How long a closed connection may take to send what is left before it is cut.
constexpr int kCloseGraceMs = 2000;

// A port number written as digits alone, 0 to 65535.
std::optional<quint16> PortNumber(const std::string& text) {
    unsigned value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size() || value > 65535) {
        return std::nullopt;
    }
    return static_cast<quint16>(value);
}

std::string Utf8(const QString& text) {
    return text.toStdString();
}

}  // namespace

SocketSessions::SocketSessions(const PortalValues& values) : link_(values) {
    for (auto& slot : slots_)
        slot = std::make_unique<Slot>();
    for (int slot = 1; slot <= kSlots; ++slot) {
        connect(&At(slot).udp, &QUdpSocket::readyRead, this, [this, slot] { ReadUdp(slot); });
    }
}

SocketSessions::~SocketSessions() {
    // The sockets go with the page, with no word to the hubs.
    for (auto& slot : slots_) {
        if (slot->connection != nullptr) {
            slot->connection->disconnect(this);
            slot->connection->abort();
        }
        slot->udp.disconnect(this);
    }
}

SocketSessions::Slot& SocketSessions::At(int slot) const {
    if (slot < 1 || slot > kSlots) throw std::out_of_range("no hub slot " + std::to_string(slot));
    return *slots_[static_cast<size_t>(slot - 1)];
}

quint16 SocketSessions::ListenPort(int slot) const {
    const Slot& s = At(slot);
    return s.listener.isListening() ? s.listener.serverPort() : 0;
}

int SocketSessions::Closing() const {
    int count = 0;
    for (const auto& socket : closing_)
        count += socket.isNull() ? 0 : 1;
    return count;
}

quint16 SocketSessions::UdpPort(int slot) const {
    const Slot& s = At(slot);
    return s.udp.state() == QAbstractSocket::BoundState ? s.udp.localPort() : 0;
}

void SocketSessions::Start(int slot, const HubEndpoint& hub) {
    Slot& s = At(slot);
    if (s.connection != nullptr) {
        s.connection->disconnect(this);
        s.connection->abort();
        s.connection->deleteLater();
        s.connection = nullptr;
    }
    s.listener.close();
    s.udp.close();
    link_.Note({Event::Kind::Connecting, slot, hub.host + ":" + hub.port});
    Bind(slot, hub.clientPort);
    Connect(slot, hub);
    Flush();
}

void SocketSessions::Stop(int slot, std::string_view rowText) {
    link_.Stop(slot, rowText);
    Flush();
}

void SocketSessions::Bind(int slot, const std::string& clientPort) {
    // The listener and the UDP socket only hold the client port: no peer is ever served, and
    // the hub can't tell whether they are there. So a port that can't be had doesn't stop the
    // session.
    Slot& s = At(slot);
    const auto port = PortNumber(clientPort);
    if (!port) {
        link_.Note({Event::Kind::ListenFailed, slot,
                    "client port \"" + clientPort + "\" is not a port number"});
        return;
    }
    if (!s.listener.listen(QHostAddress::Any, *port)) {
        link_.Note({Event::Kind::ListenFailed, slot,
                    "client port " + clientPort + ": " + Utf8(s.listener.errorString())});
    }
    if (!s.udp.bind(QHostAddress::Any, *port)) {
        link_.Note({Event::Kind::ListenFailed, slot,
                    "UDP port " + clientPort + ": " + Utf8(s.udp.errorString())});
    }
}

void SocketSessions::Connect(int slot, const HubEndpoint& hub) {
    Slot& s = At(slot);
    const auto port = PortNumber(hub.port);
    if (!port || *port == 0) {
        link_.ConnectionLost(slot, "the hub port \"" + hub.port + "\" is not a port number");
        return;
    }
    auto* socket = new QTcpSocket(this);
    socket->setReadBufferSize(4 * kReadChunk);
    s.connection = socket;
    connect(socket, &QTcpSocket::connected, this, [this, slot] {
        link_.Note({Event::Kind::Connected, slot, {}});
        Flush();
    });
    connect(socket, &QTcpSocket::readyRead, this, [this, slot] { ReadConnection(slot); });
    connect(socket, &QTcpSocket::disconnected, this,
            [this, slot] { Lost(slot, QStringLiteral("closed by the hub")); });
    connect(socket, &QAbstractSocket::errorOccurred, this,
            [this, slot, socket] { Lost(slot, socket->errorString()); });
    socket->connectToHost(QString::fromLatin1(hub.host.data(), static_cast<int>(hub.host.size())),
                          *port);
}

void SocketSessions::ReadConnection(int slot) {
    Slot& s = At(slot);
    QTcpSocket* socket = s.connection;
    while (socket != nullptr && socket == s.connection &&
           socket->state() == QAbstractSocket::ConnectedState && socket->bytesAvailable() > 0) {
        const QByteArray chunk = socket->read(kReadChunk);
        link_.Receive(slot, std::string_view(chunk.constData(), static_cast<size_t>(chunk.size())));
        Flush();
    }
}

void SocketSessions::ReadUdp(int slot) {
    Slot& s = At(slot);
    char packet[65536];
    while (s.udp.hasPendingDatagrams()) {
        const qint64 size = s.udp.readDatagram(packet, sizeof packet);
        if (size < 0) {
            link_.Note({Event::Kind::UdpError, slot, Utf8(s.udp.errorString()),
                        static_cast<int>(s.udp.error())});
            break;
        }
        link_.UdpPacket(slot, std::string_view(packet, static_cast<size_t>(size)));
    }
    Flush();
}

void SocketSessions::Lost(int slot, const QString& why) {
    if (At(slot).connection == nullptr) return;
    link_.ConnectionLost(slot, Utf8(why));
    Flush();
}

void SocketSessions::DropConnection(Slot& s) {
    QTcpSocket* socket = std::exchange(s.connection, nullptr);
    if (socket == nullptr) return;
    socket->disconnect(this);
    if (socket->state() == QAbstractSocket::UnconnectedState) {
        socket->deleteLater();
        return;
    }
    std::erase_if(closing_, [](const auto& closed) { return closed.isNull(); });
    closing_.emplace_back(socket);
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    QTimer::singleShot(kCloseGraceMs, socket, [socket] { socket->abort(); });
    socket->disconnectFromHost();
}

void SocketSessions::Flush() {
    std::array<bool, kSlots + 1> stalled{};
    for (const Action& action : link_.TakeActions()) {
        Slot& s = At(action.slot);
        switch (action.kind) {
            case Action::Kind::Send: {
                // A hub that is gone is simply not told.
                if (s.connection == nullptr ||
                    s.connection->state() != QAbstractSocket::ConnectedState) {
                    break;
                }
                const auto size = static_cast<qint64>(action.bytes.size());
                if (s.connection->bytesToWrite() + size > kMaxPendingWrite) {
                    stalled[static_cast<size_t>(action.slot)] = true;
                    break;
                }
                s.connection->write(action.bytes.data(), size);
                s.writePeak = std::max(s.writePeak, s.connection->bytesToWrite());
                break;
            }
            case Action::Kind::Close:
                DropConnection(s);
                s.listener.close();
                break;
            case Action::Kind::CloseUdp:
                s.udp.close();
                break;
        }
    }
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (stalled[static_cast<size_t>(slot)] && At(slot).connection != nullptr) {
            link_.CutOff(slot, "stopped reading, with more than 4 MiB waiting to be sent to it");
        }
    }
    for (const Event& event : link_.TakeEvents()) {
        if (onEvent) onEvent(event);
    }
    // The cut's own actions (closing the connection) are carried out now.
    if (std::any_of(stalled.begin(), stalled.end(), [](bool cut) { return cut; })) Flush();
}

SessionsFactory SocketSessionsFactory() {
    return [](const PortalValues& values) { return std::make_unique<SocketSessions>(values); };
}

}  // namespace qb::hublink
