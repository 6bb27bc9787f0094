#pragma once
// The sessions as the portal page drives them: a tick starts a slot, an untick stops it, and what
// happens comes back as events. The desktop window and `quillbook-cli portal` use real sockets
// (hublink/qt), the drives a recorder that writes down what it was asked.

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "hublink/hub_link.h"
#include "hublink/portal_values.h"

namespace qb::hublink {

// Where a slot connects: the row's address split at its colon, and the row's client port.
struct HubEndpoint {
    std::string host;
    std::string port;
    std::string clientPort;
};

class Sessions {
  public:
    virtual ~Sessions() = default;
    // Closes whatever the slot had open, binds the client port and connects to the hub.
    virtual void Start(int slot, const HubEndpoint& hub) = 0;
    // Sends "$Quit" with the row's text and closes the slot.
    virtual void Stop(int slot, std::string_view rowText) = 0;
    virtual bool LoggedIn(int slot) const = 0;

    std::function<void(const Event&)> onEvent;
};

using SessionsFactory = std::function<std::unique_ptr<Sessions>(const PortalValues&)>;

// Writes one line for each thing it is asked and each action the session takes; opens nothing.
class RecordingSessions : public Sessions {
  public:
    RecordingSessions(const PortalValues& values, std::ostream& out) : link_(values), out_(out) {}
    void Start(int slot, const HubEndpoint& hub) override;
    void Stop(int slot, std::string_view rowText) override;
    bool LoggedIn(int slot) const override { return link_.LoggedIn(slot); }

  private:
    void Flush();
    HubLink link_;
    std::ostream& out_;
};

}  // namespace qb::hublink
