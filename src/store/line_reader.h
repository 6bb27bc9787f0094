#pragma once
// Reads a file line by line as the scripts' home system does: a line ends at a carriage return,
// a carriage return plus line feed, and, since hub files written on Linux have no carriage returns,
// at a lone line feed. Bytes are handed out untouched, NUL bytes included.

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

namespace qb::store {

class LineReader {
  public:
    // Opens the file for input; `error` holds the system's reason when it can't.
    static std::unique_ptr<LineReader> Open(const std::filesystem::path& path, int& error);

    ~LineReader();
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    // The next line without its end, or false at the end of the file.
    bool Next(std::string& line);

  private:
    explicit LineReader(std::FILE* file) : file_(file) {}
    std::FILE* file_;
};

}  // namespace qb::store
