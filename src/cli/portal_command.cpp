// `portal`: the portal's hub sessions without a window. The saved portal page is opened as the
// window would open it, each hub row is ticked, and what the sessions do is printed until Ctrl-C,
// which sends "$Quit" to each hub before the program ends.

#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <array>
#include <csignal>
#include <iostream>

#include "cli/commands.h"
#include "hublink/qt/socket_sessions.h"
#include "pages/pages.h"
#include "shell/scripted_host.h"
#include "store/cp1252.h"

namespace qb::cli {
namespace {

using hublink::Event;

// Exit status when the hubs have closed every session by themselves.
constexpr int kAllSessionsEnded = 4;
// How long the hubs get to receive "$Quit" after Ctrl-C.
constexpr int kQuitGraceMs = 2000;

int signalPipe[2] = {-1, -1};

extern "C" void OnInterrupt(int) {
    const char byte = 1;
    // Nothing can be done here about a failed write; the next Ctrl-C tries again.
    [[maybe_unused]] const auto written = ::write(signalPipe[1], &byte, 1);
}

// The page's messages, printed and answered with OK: no one is there to answer otherwise.
class PrintingHost : public shell::Host {
  public:
    shell::Answer ShowMessage(const shell::Message& message) override {
        std::cout << "message: " << store::Cp1252ToUtf8(message.title) << ": "
                  << store::Cp1252ToUtf8(message.text) << " -> OK" << std::endl;
        return shell::Answer::OK;
    }
    shell::DialogResult ShowDialog(const shell::DialogRequest& request) override {
        throw shell::UnansweredPrompt("no dialog can be shown here: " + request.caption);
    }
    std::optional<std::string> AskInput(const std::string&, const std::string& title,
                                        const std::string&) override {
        throw shell::UnansweredPrompt("no question can be asked here: " + title);
    }
    std::optional<std::string> AskFile(const std::string& title, const std::string&,
                                       const std::string&) override {
        throw shell::UnansweredPrompt("no file can be chosen here: " + title);
    }
    void OpenTextEditor(const std::string&, const std::string&) override {}
    void OpenWebAddress(const std::string&) override {}
};

std::string Describe(const Event& event) {
    const std::string text = store::Cp1252ToUtf8(event.text);
    switch (event.kind) {
        case Event::Kind::Connecting:
            return "connecting to " + text;
        case Event::Kind::Connected:
            return "connected";
        case Event::Kind::Line:
            return "< " + text;
        case Event::Kind::LoggedIn:
            return "logged in";
        case Event::Kind::NickRefused:
            return "nick refused, asking again";
        case Event::Kind::BadPassword:
            return "bad password";
        case Event::Kind::Relayed:
            return "relayed to hub " + std::to_string(3 - event.slot) + ": " + text;
        case Event::Kind::CutOff:
            return "cut off: it " + text;
        case Event::Kind::ListenFailed:
            return text + " (the session goes on without it)";
        case Event::Kind::Closed:
            return "closed: " + text;
        case Event::Kind::UdpError:
            return "UDP error " + std::to_string(event.code) + ": " + text;
    }
    return text;
}

// The real sessions, with every event printed before the page sees it.
class PrintedSessions : public hublink::Sessions {
  public:
    PrintedSessions(const hublink::PortalValues& values, bool verbose)
        : inner_(values), verbose_(verbose) {
        inner_.onEvent = [this](const Event& event) {
            if (event.kind != Event::Kind::Line || verbose_) {
                std::cout << "hub " << event.slot << ": " << Describe(event) << std::endl;
            }
            if (event.kind == Event::Kind::Closed)
                live_[static_cast<size_t>(event.slot - 1)] = false;
            if (onEvent) onEvent(event);
            if (event.kind == Event::Kind::Closed && !stopping && !live_[0] && !live_[1] &&
                onAllEnded) {
                onAllEnded();
            }
        };
    }
    void Start(int slot, const hublink::HubEndpoint& hub) override {
        live_[static_cast<size_t>(slot - 1)] = true;
        inner_.Start(slot, hub);
    }
    void Stop(int slot, std::string_view rowText) override { inner_.Stop(slot, rowText); }
    bool LoggedIn(int slot) const override { return inner_.LoggedIn(slot); }
    int Closing() const { return inner_.Closing(); }

    bool stopping = false;
    std::function<void()> onAllEnded;

  private:
    hublink::SocketSessions inner_;
    bool verbose_;
    std::array<bool, hublink::kSlots> live_{};
};

}  // namespace

int PortalCommand(Session& session, const Arguments& arguments) {
    const bool verbose = !arguments.empty();  // -v, its one option
    int argc = 1;
    char name[] = "quillbook-cli";
    char* argv[] = {name, nullptr};
    QCoreApplication app(argc, argv);

    PrintedSessions* sessions = nullptr;
    pages::PageServices services;
    services.hubLink = [&sessions, verbose](const hublink::PortalValues& values) {
        auto made = std::make_unique<PrintedSessions>(values, verbose);
        sessions = made.get();
        return made;
    };
    shell::PageRegistry registry;
    pages::RegisterAllPages(registry, services);
    PrintingHost host;
    shell::Container container(session.files, host, registry, session.container.Version());
    container.LoadProfiles();
    shell::Page* page = container.Open("Communication~Portal");
    auto& hubs = static_cast<shell::ListControl&>(*page->Find("lvwHubs"));

    int exitStatus = 0;
    sessions->onAllEnded = [&] {
        std::cout << "every session has ended" << std::endl;
        exitStatus = kAllSessionsEnded;
        QCoreApplication::quit();
    };
    for (int row = 1; row <= hubs.Count(); ++row)
        hubs.UserCheck(row, true);
    bool anyTicked = false;
    for (const auto& row : hubs.Rows())
        anyTicked = anyTicked || row.checked;
    if (!anyTicked) {
        std::cerr << "quillbook-cli: the portal has no hub it can connect to\n";
        return 2;
    }

    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) != 0) {
        std::cerr << "quillbook-cli: can't watch for Ctrl-C\n";
        return 2;
    }
    struct sigaction action {};
    action.sa_handler = OnInterrupt;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);
    QSocketNotifier interrupt(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(&interrupt, &QSocketNotifier::activated, [&] {
        interrupt.setEnabled(false);
        sessions->stopping = true;
        for (int row = 1; row <= hubs.Count(); ++row) {
            if (hubs.Row(row).checked) hubs.UserCheck(row, false);
        }
        // The quits go out as the connections close; the page then takes what is left.
        QTimer::singleShot(kQuitGraceMs, &app, &QCoreApplication::quit);
        QTimer* poll = new QTimer(&app);
        QObject::connect(poll, &QTimer::timeout, [&] {
            if (sessions->Closing() == 0) QCoreApplication::quit();
        });
        poll->start(10);
    });
    QCoreApplication::exec();
    ::close(signalPipe[0]);
    ::close(signalPipe[1]);
    container.CloseAll();
    return exitStatus;
}

}  // namespace qb::cli
