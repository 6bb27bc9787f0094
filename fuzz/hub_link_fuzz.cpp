// Whatever two hubs send: the input's first byte picks how it is cut into arrivals, and each
// arrival goes to the slot its first byte names. The sessions must never crash nor hold more
// than a line's limit, and every action must name a slot.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "hublink/hub_link.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace qb::hublink;
    if (size == 0) return 0;
    FixedValues values;
    values.username = "Portal";
    values.description = "a bot";
    values.hubs = {{"a:1", "pw", "2", "a:1"}, {"b:1", "", "", "b:1"}};
    values.ignored = {"Alice"};
    HubLink link(values);
    const size_t piece = 1 + data[0] % 64;
    std::string_view input(reinterpret_cast<const char*>(data) + 1, size - 1);
    while (!input.empty()) {
        const int slot = 1 + static_cast<unsigned char>(input[0]) % 2;
        const std::string_view arrival = input.substr(0, piece);
        input.remove_prefix(arrival.size());
        link.Receive(slot, arrival);
        if (link.Buffered(slot) > kMaxLineBytes) std::abort();
        for (const Action& action : link.TakeActions()) {
            if (action.slot < 1 || action.slot > kSlots) std::abort();
        }
        link.TakeEvents();
    }
    link.Stop(1, "a:1");
    return 0;
}
