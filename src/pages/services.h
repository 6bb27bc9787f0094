#pragma once
// What the front ends lend the pages beyond files and prompts.

#include "hublink/sessions.h"

namespace qb::pages {

struct PageServices {
    // The portal page's hub sessions: real sockets in the window and `quillbook-cli portal`, a
    // recorder in the drives. Without it the portal page isn't offered.
    hublink::SessionsFactory hubLink;
};

}  // namespace qb::pages
