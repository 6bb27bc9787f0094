#pragma once
// The portal's two hub sessions and the chat relay between them, as a state machine with no I/O:
// the socket adapter feeds it what the hubs send and what happened to the connections, and takes
// back what to send and what to close. Every byte sequence a hub may send can so be run in a
// plain unit test, and the adapter stays small.
//
// Slot 1 is row 1 of the page's hub list, slot 2 row 2. The slots share one processing flag, the
// operator list and the user counters, as the user list they would feed is one.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "hublink/portal_values.h"

namespace qb::hublink {

inline constexpr int kSlots = 2;
// A hub that sends more than this without a "|" is cut off: no hub line is that long, and the
// buffer would otherwise grow with whatever the hub sends.
inline constexpr std::size_t kMaxLineBytes = std::size_t{1} << 20;

// What the adapter is to do with a slot's sockets.
struct Action {
    enum class Kind {
        Send,      // write `bytes` on the hub connection, if it is connected
        Close,     // close the hub connection and the listener
        CloseUdp,  // close the UDP socket
    };
    Kind kind;
    int slot;
    std::string bytes;
};

// What a person watching the sessions may want to know.
struct Event {
    enum class Kind {
        Connecting,  // text: the hub's host and port
        Connected,
        Line,  // a line from the hub, as the relay sees it: command, blank, arguments, "|"
        LoggedIn,
        NickRefused,  // the hub refused the nick; it is tried again
        BadPassword,
        Relayed,       // text: what was sent to the other hub
        CutOff,        // the hub abused the link and was disconnected; text says how
        ListenFailed,  // text: why the client port couldn't be bound; the session goes on
        Closed,        // text: why
        UdpError,      // code and text: the socket's error
    };
    Kind kind;
    int slot;
    std::string text;
    int code = 0;
};

class HubLink {
  public:
    explicit HubLink(const PortalValues& values) : values_(values) {}

    // Bytes that arrived on a slot's connection. Whole lines are handled at once; the text
    // behind the last "|" waits for the next arrival.
    void Receive(int slot, std::string_view bytes);
    // The connection closed or failed: the close handler. The receive buffer is kept.
    void ConnectionLost(int slot, std::string_view why);
    // The hub abused the link (a line too long to hold, a hub that stops reading): its
    // connection goes with the receive buffer, and the user is told `why` ("sent more than ...").
    void CutOff(int slot, std::string_view why);
    // The user unticked the row: "$Quit" with the row's text, then the close handler, then the
    // UDP socket closes.
    void Stop(int slot, std::string_view rowText);
    // A UDP packet arrived on the slot's client port; it is only noted.
    void UdpPacket(int slot, std::string_view packet);
    // Asks each logged-in hub for a user's info line.
    void GetInfo(std::string_view nick);
    // An event of the adapter's own, queued with the others.
    void Note(Event event) { events_.push_back(std::move(event)); }

    std::vector<Action> TakeActions();
    std::vector<Event> TakeEvents();

    bool LoggedIn(int slot) const { return At(slot).loggedIn; }
    // Bytes waiting for their "|", and the most there ever were.
    std::size_t Buffered(int slot) const { return At(slot).buffer.size(); }
    std::size_t BufferPeak(int slot) const { return At(slot).peak; }
    bool UdpSeen() const { return udpSeen_ == "True"; }
    std::size_t OperatorCount() const { return operators_.size(); }

    // The info line the bot shows in the hubs' user lists.
    std::string InfoLine() const;

  private:
    struct Slot {
        std::string buffer;
        std::size_t peak = 0;
        bool loggedIn = false;
    };
    Slot& At(int slot);
    const Slot& At(int slot) const;

    void RunCommands(int slot);
    void HandleLine(int slot, std::string_view line);
    void AddChatText(std::string_view line, int slot);
    void PasswordRule(int slot, std::string_view command);
    void LoginBurst(int slot);
    void Send(int slot, std::string bytes);

    // The user list the sessions would keep: nothing reads it, but the hub's commands still
    // update it as they always did.
    void AddOp(std::string_view nick);
    void RemoveUser(std::string_view nick);
    void ClearList();
    void AddUser(std::string_view nick);
    static bool IsNickConnected(std::string_view) { return true; }

    const PortalValues& values_;
    std::array<Slot, kSlots> slots_;
    bool processing_ = false;
    std::vector<std::string> operators_;
    std::string userCount_ = "0";
    int counters_[2] = {0, 0};
    std::string udpSeen_;
    std::vector<Action> actions_;
    std::vector<Event> events_;
};

}  // namespace qb::hublink
