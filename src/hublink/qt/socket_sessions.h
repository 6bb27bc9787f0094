#pragma once
// The hub link's sockets on Qt Network: per slot the hub connection, a listener and a UDP socket
// on the row's client port. The sessions themselves are HubLink's; this only moves bytes.

#include <QObject>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>
#include <array>
#include <memory>
#include <vector>

#include "hublink/hub_link.h"
#include "hublink/sessions.h"

namespace qb::hublink {

class SocketSessions : public QObject, public Sessions {
  public:
    // Reads at most this much of a connection at a time, and lets Qt hold at most four times as
    // much: with HubLink's limit on a line, a hub can't make a slot hold much more than 1 MiB.
    static constexpr qint64 kReadChunk = 64 * 1024;
    // What may wait to be written to a hub. A hub that stops reading while the other floods it
    // with chat would otherwise make us hold the whole flood.
    static constexpr qint64 kMaxPendingWrite = 4 * 1024 * 1024;

    explicit SocketSessions(const PortalValues& values);
    ~SocketSessions() override;

    void Start(int slot, const HubEndpoint& hub) override;
    void Stop(int slot, std::string_view rowText) override;
    bool LoggedIn(int slot) const override { return link_.LoggedIn(slot); }

    const HubLink& Link() const { return link_; }
    // Where the slot's listener and UDP socket are bound; 0 when they aren't.
    quint16 ListenPort(int slot) const;
    quint16 UdpPort(int slot) const;
    // Connections that were closed and still send what was written to them.
    int Closing() const;
    // The most that ever waited to be written to the slot's hub.
    qint64 WritePeak(int slot) const { return At(slot).writePeak; }

  private:
    struct Slot {
        QTcpSocket* connection = nullptr;  // a new one for each connect, so that a closing
                                           // connection can't reach the next session
        QTcpServer listener;
        QUdpSocket udp;
        qint64 writePeak = 0;
    };
    Slot& At(int slot) const;
    void Bind(int slot, const std::string& clientPort);
    void Connect(int slot, const HubEndpoint& hub);
    void ReadConnection(int slot);
    void ReadUdp(int slot);
    void Lost(int slot, const QString& why);
    // Closes the connection once what is written has gone out.
    void DropConnection(Slot& s);
    // Carries out HubLink's actions and hands its events on.
    void Flush();

    HubLink link_;
    std::array<std::unique_ptr<Slot>, kSlots> slots_;
    std::vector<QPointer<QTcpSocket>> closing_;
};

// A factory for the portal page.
SessionsFactory SocketSessionsFactory();

}  // namespace qb::hublink
