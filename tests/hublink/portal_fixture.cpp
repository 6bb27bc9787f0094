#include "hublink/portal_fixture.h"

#include "pages/pages.h"

namespace qb::test {

std::string PortalFile::Text() const {
    std::string text = "tPortalSettings = {\r\n\ttUser = {\r\n";
    text += "\t\tsUsername = \"" + username + "\",\r\n";
    text += "\t\tsDescription = \"" + description + "\",\r\n";
    text += "\t\tsEmail = \"" + email + "\",\r\n";
    text += "\t\tsClientIP = \"" + ip + "\",\r\n\t},\r\n\ttHubs = {\r\n";
    for (size_t i = 0; i < hubs.size(); ++i) {
        text += "\t\t[" + std::to_string(i + 1) + "] = {\r\n";
        text += "\t\t\tsHubAddress = \"" + hubs[i].address + "\",\r\n";
        text += "\t\t\tsClientPassword = \"" + hubs[i].password + "\",\r\n";
        text += "\t\t\tsClientPort = \"" + hubs[i].clientPort + "\",\r\n\t\t},\r\n";
    }
    text += "\t},\r\n\ttIgnoreNicks = {\r\n";
    for (size_t i = 0; i < nicks.size(); ++i) {
        text += "\t\t[" + std::to_string(i + 1) + "] = \"" + nicks[i] + "\",\r\n";
    }
    return text + "\t},\r\n";
}

PortalFixture::PortalFixture() : files_(folder.ProgramFolder()), host_(transcript) {
    pages::PageServices services;
    services.hubLink = [this](const hublink::PortalValues& values) {
        auto sessions = std::make_unique<hublink::SocketSessions>(values);
        sessions_ = sessions.get();
        return sessions;
    };
    pages::RegisterAllPages(registry_, services);
    container_ = std::make_unique<shell::Container>(files_, host_, registry_, store::kBuildVersion);
}

PortalFixture::~PortalFixture() {
    container_.reset();
}

void PortalFixture::Open(const PortalFile& file) {
    folder.WriteSetting("Communication/Portal/PortalSettings.tbl", file.Text());
    container_->LoadProfiles();
    page_ = container_->Open("Communication~Portal");
    ASSERT_NE(page_, nullptr);
}

PortalFile PortalFixture::TwoHubs() {
    PortalFile file;
    file.hubs = {{hub1.Address(), "pw1", "0", {}}, {hub2.Address(), "pw2", "0", {}}};
    file.nicks = {"Ignored"};
    return file;
}

void PortalFixture::LogInBoth() {
    Open(TwoHubs());
    Tick(1, true);
    Tick(2, true);
    ASSERT_TRUE(hub1.LogIn("Portal"));
    ASSERT_TRUE(hub2.LogIn("Portal"));
    ASSERT_TRUE(WaitUntil([this] { return Link().LoggedIn(1) && Link().LoggedIn(2); }));
}

shell::ListControl& PortalFixture::Hubs() const {
    return static_cast<shell::ListControl&>(*page_->Find("lvwHubs"));
}

shell::TextBox& PortalFixture::TextBox(int index) const {
    return static_cast<shell::TextBox&>(*page_->Find("txtTextBox(" + std::to_string(index) + ")"));
}

void PortalFixture::Tick(int row, bool on) {
    ASSERT_TRUE(Hubs().UserCheck(row, on));
}

}  // namespace qb::test
