#pragma once
// Where a page's controls stand, as a short nested declaration that the desktop window turns into
// its layouts: Column{Item(a), Row{Item(b), Item(c)}, Stretch()}. The model needs no coordinates.

#include <initializer_list>
#include <string>
#include <vector>

#include "shell/controls.h"

namespace qb::shell {

struct Layout {
    enum class Type { Column, Row, Item, Stretch };
    Type type = Type::Column;
    std::vector<Layout> items;
    const Control* control = nullptr;
    int weight = 0;  // a share of the room its row or column has to spare; 0 for the common share
    std::string name{};  // a control named in a page's declaration, until the page finds it
};

inline Layout Column(std::initializer_list<Layout> items) {
    return {Layout::Type::Column, items, nullptr};
}
inline Layout Row(std::initializer_list<Layout> items) {
    return {Layout::Type::Row, items, nullptr};
}
inline Layout Item(const Control& control) {
    return {Layout::Type::Item, {}, &control};
}
// A control by its name, as a page's declaration places it.
inline Layout Item(std::string name) {
    return {Layout::Type::Item, {}, nullptr, 0, std::move(name)};
}
// A frame by its name, drawn around the controls of `inside`.
inline Layout InFrame(std::string name, Layout inside) {
    return {Layout::Type::Item, {std::move(inside)}, nullptr, 0, std::move(name)};
}
inline Layout Stretch() {
    return {Layout::Type::Stretch, {}, nullptr};
}
// A part that takes `weight` shares of the room to spare, where the parts of a row differ in need.
inline Layout Weighted(Layout layout, int weight) {
    layout.weight = weight;
    return layout;
}

}  // namespace qb::shell
