#include "store/line_reader.h"

#include <cerrno>

namespace qb::store {

std::unique_ptr<LineReader> LineReader::Open(const std::filesystem::path& path, int& error) {
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec)) {
        error = EISDIR;
        return nullptr;
    }
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
        error = errno;
        return nullptr;
    }
    return std::unique_ptr<LineReader>(new LineReader(file));
}

std::unique_ptr<LineReader> LineReader::Adopt(std::FILE* stream) {
    return std::unique_ptr<LineReader>(new LineReader(stream));
}

LineReader::~LineReader() {
    std::fclose(file_);
}

bool LineReader::Next(std::string& line) {
    line.clear();
    int c = getc_unlocked(file_);
    if (c == EOF) return false;
    while (c != EOF) {
        if (c == '\n') return true;
        if (c == '\r') {
            const int next = getc_unlocked(file_);
            if (next != '\n' && next != EOF) std::ungetc(next, file_);
            return true;
        }
        line.push_back(static_cast<char>(c));
        c = getc_unlocked(file_);
    }
    return true;
}

}  // namespace qb::store
