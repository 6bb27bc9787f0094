#pragma once
// The hub's $Lock challenge and the client's $Key answer, as every Direct Connect hub checks it.

#include <string>
#include <string_view>

namespace qb::hublink {

// The key for the argument text of a $Lock command. The text is cut at its first blank, so that
// the hub's " Pk=..." part goes. Bytes 0, 5, 36, 96, 124 and 126 of the key would break the
// protocol's framing, so they are written as "/%DCN000%/" and the like. An empty lock gives an
// empty key: there is nothing to compute from, and the hub decides whether to let the client in.
std::string LockToKey(std::string_view lockArguments);

}  // namespace qb::hublink
