#include "store/table_text.h"

namespace qb::store {

TableText::TableText(std::string_view header) : text_(header) {}

TableText& TableText::Line(int depth, std::string_view text) {
    text_ += kNewline;
    text_.append(static_cast<size_t>(depth), '\t');
    text_ += text;
    return *this;
}

// The lines are appended piece by piece: a matrix file has tens of thousands of them.
TableText& TableText::Bare(int depth, std::string_view key, std::string_view value) {
    Line(depth, key);
    text_ += " = ";
    text_ += value;
    text_ += ',';
    return *this;
}

TableText& TableText::Quoted(int depth, std::string_view key, std::string_view value) {
    Line(depth, key);
    text_ += " = \"";
    text_ += value;
    text_ += "\",";
    return *this;
}

TableText& TableText::Open(int depth, std::string_view name) {
    Line(depth, name);
    text_ += " = {";
    return *this;
}

TableText& TableText::Close(int depth) {
    return Line(depth, "},");
}

TableText& TableText::Row(int depth, int number, std::string_view value) {
    return Row(depth, std::to_string(number), value);
}

TableText& TableText::Row(int depth, std::string_view number, std::string_view value) {
    text_ += kNewline;
    text_.append(static_cast<size_t>(depth), '\t');
    text_ += '[';
    text_ += number;
    text_ += "] = ";
    text_ += value;
    text_ += ',';
    return *this;
}

std::string TableText::End() {
    Line(0, "}");
    return std::move(text_);
}

}  // namespace qb::store
