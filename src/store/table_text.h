#pragma once
// Builds the text of a table file the way every writer does: one line per key, tabs for depth,
// lines joined by CRLF and no break after the last one (the writer adds it). Values are written
// as they stand: the scripts' files have never escaped anything.

#include <string>
#include <string_view>

namespace qb::store {

inline constexpr std::string_view kNewline = "\r\n";

class TableText {
  public:
    // Starts with the header line, e.g. "tBotSettings = {".
    explicit TableText(std::string_view header);

    TableText& Line(int depth, std::string_view text);
    TableText& Bare(int depth, std::string_view key, std::string_view value);    // key = value,
    TableText& Quoted(int depth, std::string_view key, std::string_view value);  // key = "value",
    TableText& Open(int depth, std::string_view name);                           // name = {
    TableText& Close(int depth);                                                 // },
    TableText& Row(int depth, int number, std::string_view value);               // [n] = value,
    // The same row with its number already in text: a matrix writes each number P times.
    TableText& Row(int depth, std::string_view number, std::string_view value);

    // Room for `bytes` more, so that a text of megabytes grows once.
    void Reserve(size_t bytes) { text_.reserve(text_.size() + bytes); }

    // The text with the end line "}" behind it, handed over: the writer is done with it.
    std::string End();
    // The text as it stands, with no end line.
    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

}  // namespace qb::store
