#include "hublink/portal_values.h"

#include <algorithm>

namespace qb::hublink {

std::string FixedValues::HubCell(int row, HubColumn column) const {
    if (row < 1 || row > static_cast<int>(hubs.size())) return {};
    const HubRow& hub = hubs[static_cast<size_t>(row - 1)];
    switch (column) {
        case HubColumn::Address:
            return hub.address;
        case HubColumn::Password:
            return hub.password;
        case HubColumn::ClientPort:
            return hub.clientPort;
        case HubColumn::HubName:
            return hub.hubName;
    }
    return {};
}

bool FixedValues::Ignores(std::string_view nick) const {
    return std::find(ignored.begin(), ignored.end(), nick) != ignored.end();
}

}  // namespace qb::hublink
