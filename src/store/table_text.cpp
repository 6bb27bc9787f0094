#include "store/table_text.h"

namespace qb::store {

TableText::TableText(std::string_view header) : text_(header) {}

TableText& TableText::Line(int depth, std::string_view text) {
    text_ += kNewline;
    text_.append(static_cast<size_t>(depth), '\t');
    text_ += text;
    return *this;
}

TableText& TableText::Bare(int depth, std::string_view key, std::string_view value) {
    return Line(depth, std::string(key) + " = " + std::string(value) + ",");
}

TableText& TableText::Quoted(int depth, std::string_view key, std::string_view value) {
    return Line(depth, std::string(key) + " = \"" + std::string(value) + "\",");
}

TableText& TableText::Open(int depth, std::string_view name) {
    return Line(depth, std::string(name) + " = {");
}

TableText& TableText::Close(int depth) {
    return Line(depth, "},");
}

TableText& TableText::Row(int depth, int number, std::string_view value) {
    return Line(depth, "[" + std::to_string(number) + "] = " + std::string(value) + ",");
}

std::string TableText::End() {
    Line(0, "}");
    return text_;
}

}  // namespace qb::store
