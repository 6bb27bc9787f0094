#include "hublink/hub_link.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "hublink/lock_key.h"
#include "hublink/nmdc_text.h"

namespace qb::hublink {
namespace {

// The operator list is never read back, and hubs resend it whole on every change; a cap keeps a
// hub that repeats it without end from filling memory.
constexpr std::size_t kMaxOperators = 10000;

// Calls `each` for every non-empty nick of a "$$"-separated list.
template <class F>
void ForEachNick(std::string_view list, F each) {
    while (!list.empty()) {
        const std::string_view nick = Before(list, "$$");
        list = After(list, "$$");
        if (!nick.empty()) each(nick);
    }
}

}  // namespace

HubLink::Slot& HubLink::At(int slot) {
    if (slot < 1 || slot > kSlots) throw std::out_of_range("no hub slot " + std::to_string(slot));
    return slots_[static_cast<size_t>(slot - 1)];
}

const HubLink::Slot& HubLink::At(int slot) const {
    return const_cast<HubLink*>(this)->At(slot);
}

std::vector<Action> HubLink::TakeActions() {
    return std::exchange(actions_, {});
}

std::vector<Event> HubLink::TakeEvents() {
    return std::exchange(events_, {});
}

std::string HubLink::InfoLine() const {
    // Mode "A", connection "Bot", status byte 8, no share: the bot is no file sharer.
    return "$MyINFO $ALL " + values_.Username() + " " + values_.Description() + "$A$Bot\x08$" +
           values_.Email() + "$0$|";
}

void HubLink::Send(int slot, std::string bytes) {
    actions_.push_back({Action::Kind::Send, slot, std::move(bytes)});
}

void HubLink::Receive(int slot, std::string_view bytes) {
    Slot& s = At(slot);
    // What would wait for its "|" once these bytes are in, measured before they are stored, so
    // that a hub can't make the buffer hold more than the limit.
    std::size_t waiting = 0;
    if (const size_t pipe = bytes.rfind('|'); pipe != std::string_view::npos) {
        waiting = bytes.size() - pipe - 1;
    } else {
        const size_t bufferPipe = s.buffer.rfind('|');
        waiting =
            bytes.size() +
            (bufferPipe == std::string::npos ? s.buffer.size() : s.buffer.size() - bufferPipe - 1);
    }
    if (waiting > kMaxLineBytes) {
        CutOff(slot, "sent more than 1 MiB without a \"|\"");
        return;
    }
    s.buffer.append(bytes);
    s.peak = std::max(s.peak, s.buffer.size());
    RunCommands(slot);
}

void HubLink::RunCommands(int slot) {
    // One flag for both slots: a loop that is running keeps the other slot's data waiting in its
    // buffer until that slot's next arrival.
    if (processing_) return;
    processing_ = true;
    Slot& s = At(slot);
    size_t start = 0;
    for (size_t pipe; (pipe = s.buffer.find('|', start)) != std::string::npos; start = pipe + 1) {
        HandleLine(slot, std::string_view(s.buffer).substr(start, pipe - start));
    }
    s.buffer.erase(0, start);
    processing_ = false;
}

void HubLink::HandleLine(int slot, std::string_view line) {
    const std::string_view command = Before(line, " ");
    const std::string_view arguments = After(line, " ");
    std::string chat;
    chat.reserve(line.size() + 2);
    chat.append(command).append(" ").append(arguments).append("|");
    events_.push_back({Event::Kind::Line, slot, chat});
    AddChatText(chat, slot);

    const std::string token = UpperAscii(command);
    Slot& s = At(slot);
    if (token == "$LOCK") {
        Send(slot, "$Key " + LockToKey(arguments) + "|");
        Send(slot, "$ValidateNick " + values_.Username() + "|");
    } else if (token == "$GETPASS" || token == "$BADPASS") {
        PasswordRule(slot, token);
    } else if (token == "$GETINFO") {
        if (Before(arguments, " ") == values_.Username()) Send(slot, InfoLine());
    } else if (token == "$HELLO") {
        if (s.loggedIn) {
            AddUser(arguments);
        } else {
            LoginBurst(slot);
        }
    } else if (token == "$LOGEDIN") {
        if (!s.loggedIn) LoginBurst(slot);
    } else if (token == "$OPLIST") {
        ForEachNick(arguments, [this](std::string_view nick) { AddOp(nick); });
    } else if (token == "$QUIT") {
        RemoveUser(arguments);
    } else if (token == "$MYINFO") {
        // The fields are read and let go: there is no user list to put them in.
        static_cast<void>(ParseMyInfo(arguments));
    } else if (token == "$NICKLIST") {
        ClearList();
        ForEachNick(arguments, [this](std::string_view nick) { AddUser(nick); });
    } else if (token == "$VALIDATEDENIDE") {
        // The same nick again: the hub decides how often.
        events_.push_back({Event::Kind::NickRefused, slot, {}});
        Send(slot, "$ValidateNick " + values_.Username() + "|");
    }
    // $HubName, $To:, $Search, $ForceMove and anything else: nothing. A moved client stays.
}

void HubLink::PasswordRule(int slot, std::string_view command) {
    if (command == "$BADPASS") {
        events_.push_back({Event::Kind::BadPassword, slot, {}});
        return;
    }
    // Both slots send row 1's password; slot 1 only when row 1 has a client port, slot 2 only
    // when the description is filled in. These are the rules the portal has always logged in by.
    const bool send = slot == 1 ? !values_.HubCell(1, HubColumn::ClientPort).empty()
                                : !values_.Description().empty();
    if (send) Send(slot, "$MyPass " + values_.HubCell(1, HubColumn::Password) + "|");
}

void HubLink::LoginBurst(int slot) {
    Send(slot, "$Version 1.0091|");
    Send(slot, InfoLine());
    Send(slot, "$GetNickList|");
    At(slot).loggedIn = true;
    events_.push_back({Event::Kind::LoggedIn, slot, {}});
}

void HubLink::AddChatText(std::string_view line, int slot) {
    const std::string username = values_.Username();
    // The bot's own text, relayed from the other hub: passing it on would send it back.
    if (line.size() >= username.size() + 2 && line[0] == '<' &&
        line.substr(1, username.size()) == username && line[username.size() + 1] == '>') {
        return;
    }
    if (!line.empty() && line.back() == '|') line.remove_suffix(1);
    if (!line.empty() && line.front() == '$') return;
    // The sender stands between the "<" and the leftmost ">"; a line without one has none and
    // is relayed all the same.
    std::string_view sender;
    if (const size_t close = line.find('>'); close != std::string_view::npos && close > 0) {
        sender = line.substr(1, close - 1);
    }
    if (values_.Ignores(sender)) return;
    const int other = slot == 1 ? 2 : 1;
    if (!At(other).loggedIn) return;
    if (sender == values_.HubCell(other, HubColumn::HubName)) return;
    std::string relayed;
    relayed.reserve(username.size() + line.size() + 4);
    relayed.append("<").append(username).append("> ").append(line).append("|");
    events_.push_back({Event::Kind::Relayed, slot, relayed});
    Send(other, std::move(relayed));
}

void HubLink::ConnectionLost(int slot, std::string_view why) {
    ClearList();
    At(slot).loggedIn = false;
    actions_.push_back({Action::Kind::Close, slot, {}});
    events_.push_back({Event::Kind::Closed, slot, std::string(why)});
}

void HubLink::CutOff(int slot, std::string_view why) {
    // Unlike a plain close, the cut drops the buffer: the next connection would only be cut off
    // again by what is left of this one.
    std::string().swap(At(slot).buffer);
    events_.push_back({Event::Kind::CutOff, slot, std::string(why)});
    ConnectionLost(slot, why);
}

void HubLink::Stop(int slot, std::string_view rowText) {
    // The row's text is the hub's address: that is what the hub is told, not the nick.
    Send(slot, "$Quit " + std::string(rowText) + "|");
    ConnectionLost(slot, "unticked");
    actions_.push_back({Action::Kind::CloseUdp, slot, {}});
}

void HubLink::UdpPacket(int, std::string_view packet) {
    if (!packet.empty()) udpSeen_ = "True";
}

void HubLink::GetInfo(std::string_view nick) {
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (At(slot).loggedIn) {
            Send(slot, "$GetINFO " + std::string(nick) + " " + values_.Username() + "|");
        }
    }
}

void HubLink::AddOp(std::string_view nick) {
    if (operators_.size() < kMaxOperators) operators_.emplace_back(nick);
}

void HubLink::RemoveUser(std::string_view nick) {
    const auto found = std::find(operators_.begin(), operators_.end(), nick);
    if (found != operators_.end()) operators_.erase(found);
}

void HubLink::ClearList() {
    counters_[0] = 0;
    counters_[1] = 0;
    userCount_ = "0";
}

void HubLink::AddUser(std::string_view nick) {
    // Every nick counts as connected, so a user is never counted nor asked for: the user list
    // this would fill doesn't exist.
    if (IsNickConnected(nick)) return;
    if (std::find(operators_.begin(), operators_.end(), nick) != operators_.end()) return;
    userCount_ = std::to_string(std::stoi(userCount_) + 1);
    GetInfo(nick);
}

}  // namespace qb::hublink
