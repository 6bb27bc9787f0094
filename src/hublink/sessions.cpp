#include "hublink/sessions.h"

#include "store/cp1252.h"

namespace qb::hublink {

void RecordingSessions::Start(int slot, const HubEndpoint& hub) {
    out_ << "hub link: slot " << slot << " connects to " << store::Cp1252ToUtf8(hub.host)
         << " port " << store::Cp1252ToUtf8(hub.port) << ", client port "
         << store::Cp1252ToUtf8(hub.clientPort) << "\n";
}

void RecordingSessions::Stop(int slot, std::string_view rowText) {
    link_.Stop(slot, rowText);
    Flush();
}

void RecordingSessions::Flush() {
    for (const Action& action : link_.TakeActions()) {
        out_ << "hub link: slot " << action.slot;
        switch (action.kind) {
            case Action::Kind::Send:
                out_ << " sends " << store::Cp1252ToUtf8(action.bytes) << "\n";
                break;
            case Action::Kind::Close:
                out_ << " closes its connection and listener\n";
                break;
            case Action::Kind::CloseUdp:
                out_ << " closes its UDP socket\n";
                break;
        }
    }
    for (const Event& event : link_.TakeEvents()) {
        if (onEvent) onEvent(event);
    }
}

}  // namespace qb::hublink
