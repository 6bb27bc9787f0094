#pragma once
// A hub in a temporary folder and the container over it with every page registered, without a
// window: what the page tests and the page benchmarks drive pages through. The hub's files are
// written before the profiles are loaded, as a hub is set up before the program starts.

#include <sstream>

#include "pages/pages.h"
#include "shell/container.h"
#include "shell/scripted_host.h"
#include "support/temp_hub.h"

namespace qb::test {

struct PageHarness {
    PageHarness() { pages::RegisterAllPages(registry); }

    // Presses a button of one of the page's toolbars as a click does; false where it is off.
    static bool Click(shell::Page& page, const char* toolbar, const char* button) {
        return static_cast<shell::Toolbar*>(page.Find(toolbar))->UserClick(button);
    }

    TempHub hub;
    store::TableFiles files{hub.ProgramFolder()};
    std::ostringstream transcript;
    shell::ScriptedHost host{transcript};
    shell::PageRegistry registry;
    shell::Container container{files, host, registry};
};

}  // namespace qb::test
