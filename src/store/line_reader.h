#pragma once
// Reads a file line by line as the scripts' home system does: a line ends at a carriage return,
// a carriage return plus line feed, and, since hub files written on Linux have no carriage returns,
// at a lone line feed. Bytes are handed out untouched, NUL bytes included.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace qb::store {

// Lines one after another, from a file or from lines read before.
class LineSource {
  public:
    virtual ~LineSource() = default;
    // The next line without its end, or false at the end.
    virtual bool Next(std::string& line) = 0;
};

// Lines held in memory.
class LinesOf : public LineSource {
  public:
    explicit LinesOf(const std::vector<std::string>& lines) : lines_(lines) {}
    bool Next(std::string& line) override {
        if (next_ >= lines_.size()) return false;
        line = lines_[next_++];
        return true;
    }

  private:
    const std::vector<std::string>& lines_;
    size_t next_ = 0;
};

class LineReader : public LineSource {
  public:
    // Opens the file for input; `error` holds the system's reason when it can't.
    static std::unique_ptr<LineReader> Open(const std::filesystem::path& path, int& error);
    // Reads from a stream that is open already (a memory stream, in the fuzz targets), and closes
    // it at the end.
    static std::unique_ptr<LineReader> Adopt(std::FILE* stream);

    ~LineReader() override;
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    bool Next(std::string& line) override;
    // The lines left, at most `most` of them, ended as Next ends them: a file at once, for a
    // read scope.
    void ReadAll(std::vector<std::string>& lines, size_t most = SIZE_MAX);

  private:
    explicit LineReader(std::FILE* file) : file_(file) {}
    std::FILE* file_;
};

}  // namespace qb::store
