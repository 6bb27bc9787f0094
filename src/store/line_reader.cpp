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

void LineReader::ReadAll(std::vector<std::string>& lines, size_t most) {
    std::string pending;  // a line not ended yet
    bool afterReturn =
        false;  // the last chunk ended with a carriage return: a line feed may follow
    char buffer[1 << 16];
    while (lines.size() < most) {
        const size_t got = std::fread(buffer, 1, sizeof buffer, file_);
        if (got == 0) break;
        size_t at = 0;
        if (afterReturn && buffer[0] == '\n') at = 1;
        afterReturn = false;
        size_t start = at;
        for (; at < got && lines.size() < most; ++at) {
            const char c = buffer[at];
            if (c != '\n' && c != '\r') continue;
            pending.append(buffer + start, at - start);
            lines.push_back(std::move(pending));
            pending.clear();
            if (c == '\r') {
                if (at + 1 == got) {
                    afterReturn = true;
                } else if (buffer[at + 1] == '\n') {
                    ++at;
                }
            }
            start = at + 1;
        }
        if (lines.size() >= most) return;
        pending.append(buffer + start, got - start);
    }
    if (!pending.empty() && lines.size() < most) lines.push_back(std::move(pending));
}

}  // namespace qb::store
