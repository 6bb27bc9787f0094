#pragma once
// What a hub session reads of the portal page, at the moment it needs it: the sessions run on the
// page's live values, saved or not, so an edit of a text box counts from the next line on.

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace qb::hublink {

// The columns of a row of the hub list.
enum class HubColumn { Address, Password, ClientPort, HubName };

class PortalValues {
  public:
    virtual ~PortalValues() = default;
    virtual std::string Username() const = 0;
    virtual std::string Description() const = 0;
    virtual std::string Email() const = 0;
    // A cell of row 1 or 2 of the hub list; empty when the list has no such row.
    virtual std::string HubCell(int row, HubColumn column) const = 0;
    // True when a row of the ignore list holds exactly this nick; letter case counts.
    virtual bool Ignores(std::string_view nick) const = 0;
};

struct HubRow {
    std::string address;  // host, colon, port
    std::string password;
    std::string clientPort;
    std::string hubName;
};

// Values held in plain fields, for the tests and the benchmark.
struct FixedValues : PortalValues {
    std::string username;
    std::string description;
    std::string email;
    std::vector<HubRow> hubs;
    std::vector<std::string> ignored;

    std::string Username() const override { return username; }
    std::string Description() const override { return description; }
    std::string Email() const override { return email; }
    std::string HubCell(int row, HubColumn column) const override;
    bool Ignores(std::string_view nick) const override;
};

}  // namespace qb::hublink
