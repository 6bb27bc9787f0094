#pragma once
// A hub in a temporary folder and the container over it with every page registered, without a
// window: what the page tests and the page benchmarks drive pages through. The hub's files are
// written before the profiles are loaded, as a hub is set up before the program starts.

#include <optional>
#include <sstream>
#include <vector>

#include "pages/pages.h"
#include "shell/container.h"
#include "shell/scripted_host.h"
#include "shell/startup.h"
#include "support/temp_hub.h"

namespace qb::test {

// A scripted host that keeps each dialog as the page set it up: what the tests of a page's
// dialogs read.
class RecordingHost : public shell::ScriptedHost {
  public:
    using ScriptedHost::ScriptedHost;
    shell::DialogResult ShowDialog(const shell::DialogRequest& request) override {
        requests.push_back(request);
        return ScriptedHost::ShowDialog(request);
    }
    std::vector<shell::DialogRequest> requests;
};

struct PageHarness {
    // Pages and rebuilds behave as `version`.
    explicit PageHarness(store::ProgramVersion version = store::kBuildVersion)
        : container{files, host, registry, version} {
        pages::RegisterAllPages(registry);
    }

    // Presses a button of one of the page's toolbars as a click does; false where it is off.
    static bool Click(shell::Page& page, const char* toolbar, const char* button) {
        return static_cast<shell::Toolbar*>(page.Find(toolbar))->UserClick(button);
    }

    // A hub of `profiles` profiles and the tree a start's rebuild writes for them: one area of
    // it, or every area without one.
    void BuildFor(int profiles, std::optional<store::Area> area = std::nullopt) {
        hub.Write("cfg/Profiles.xml", ProfilesXml(profiles));
        container.LoadProfiles();
        store::BuilderRegistry builders;
        pages::RegisterAllBuilders(builders);
        store::BuildRun run{.files = files,
                            .lastProfile = container.Profiles().LastNumber(),
                            .version = container.Version(),
                            .profileNames = container.Profiles().Names()};
        if (area) {
            builders.BuildArea(*area, run);
        } else {
            shell::RebuildSettings(run, builders);
        }
    }

    TempHub hub;
    store::TableFiles files{hub.ProgramFolder()};
    std::ostringstream transcript;
    RecordingHost host{transcript};
    shell::PageRegistry registry;
    shell::Container container;
};

}  // namespace qb::test
