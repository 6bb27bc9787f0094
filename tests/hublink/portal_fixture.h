#pragma once
// The portal page over real sockets: a hub folder with a saved portal file, the page opened on
// it with the Qt sessions, and fake hubs for it to log on to.

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "hublink/portal_values.h"
#include "hublink/qt/socket_sessions.h"
#include "shell/container.h"
#include "shell/scripted_host.h"
#include "support/fake_hub.h"
#include "support/temp_hub.h"

namespace qb::test {

struct PortalFile {
    std::string username = "Portal";
    std::string description = "a bot";
    std::string email = "bot@example.org";
    std::string ip = "127.0.0.1";
    std::vector<hublink::HubRow> hubs;
    std::vector<std::string> nicks;
    // The file's text, as the page writes it.
    std::string Text() const;
};

class PortalFixture : public ::testing::Test {
  protected:
    PortalFixture();
    ~PortalFixture() override;

    // Saves `file` and opens the portal page on it.
    void Open(const PortalFile& file);
    // A file whose two rows are hub1 and hub2, both with client port 0 (any free port).
    PortalFile TwoHubs();
    // Opens TwoHubs() and logs the bot on to both.
    void LogInBoth();

    shell::Page& Page() const { return *page_; }
    shell::ListControl& Hubs() const;
    shell::TextBox& TextBox(int index) const;
    const hublink::HubLink& Link() const { return sessions_->Link(); }
    hublink::SocketSessions& Sessions() const { return *sessions_; }
    // Unticks and ticks so that the user would.
    void Tick(int row, bool on);

    FakeHub hub1;
    FakeHub hub2;
    TempHub folder;
    std::ostringstream transcript;

  private:
    store::TableFiles files_;
    shell::ScriptedHost host_;
    shell::PageRegistry registry_;
    std::unique_ptr<shell::Container> container_;
    shell::Page* page_ = nullptr;
    hublink::SocketSessions* sessions_ = nullptr;
};

}  // namespace qb::test
