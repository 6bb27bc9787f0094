#pragma once
// A Direct Connect hub for the tests and the benchmark: it listens on a free loopback port, takes
// one client, writes down every byte the client sends and sends whatever a test tells it to.

#include <QTcpServer>
#include <QTcpSocket>
#include <functional>
#include <string>
#include <string_view>

namespace qb::test {

// Runs the event loop until `done` holds or `ms` pass; true when it holds.
bool WaitUntil(const std::function<bool()>& done, int ms = 10000);

class FakeHub {
  public:
    FakeHub();
    ~FakeHub();
    FakeHub(const FakeHub&) = delete;
    FakeHub& operator=(const FakeHub&) = delete;

    // "127.0.0.1:PORT", as the portal's hub list writes it.
    std::string Address() const;
    bool WaitForClient();
    bool HasClient() const { return client_ != nullptr; }
    bool ClientGone() const { return gone_; }
    bool WaitUntilGone() {
        return WaitUntil([this] { return gone_; });
    }

    void Send(std::string_view bytes);
    // The hub closes the client's connection.
    void Drop();
    // The hub reads nothing more from the client, as a hub that hangs would.
    void StopReading();
    // Sends `total` bytes made by `chunk` (called with the offset of each piece) without holding
    // more than a few pieces at a time; stops early when the client goes.
    void Stream(std::size_t total, const std::function<std::string(std::size_t)>& chunk);

    // Every byte the client sent, and a mark to look behind.
    const std::string& Received() const { return received_; }
    std::size_t Mark() const { return received_.size(); }
    void Forget() { received_.clear(); }
    std::string Since(std::size_t mark) const { return received_.substr(mark); }
    bool WaitFor(std::string_view bytes, std::size_t from = 0);
    // How often `bytes` appears in what the client sent.
    std::size_t Count(std::string_view bytes) const;

    // The lock and the key a client must answer it with, worked out by hand from the published
    // algorithm (see lock_key_test).
    static constexpr std::string_view kLock = "Lock Pk=FakeHub";
    static constexpr std::string_view kKey =
        "\x14"
        "2\xC0\x80";

    // Lock, nick check and hello: the client's login burst ends with "$GetNickList|".
    bool LogIn(std::string_view nick);

  private:
    QTcpServer server_;
    QTcpSocket* client_ = nullptr;
    std::string received_;
    bool gone_ = false;
    bool stalled_ = false;
};

}  // namespace qb::test
