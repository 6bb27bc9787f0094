#pragma once
// The one failure that no page handles. A settings file that can't be written, a folder that can't
// be made, or a read whose error reaches its caller ends the program: going on would leave the
// scripts a tree that doesn't match what the user saw. Every front end catches this at its top,
// shows the path and the system's reason, and exits with status 1.

#include <stdexcept>
#include <string>

namespace qb::store {

class FatalError : public std::runtime_error {
  public:
    FatalError(std::string path, std::string reason)
        : std::runtime_error(path + ": " + reason),
          path_(std::move(path)),
          reason_(std::move(reason)) {}
    const std::string& Path() const { return path_; }
    const std::string& Reason() const { return reason_; }

  private:
    std::string path_;
    std::string reason_;
};

}  // namespace qb::store
