#pragma once
// Where a page's controls stand, as a short nested declaration that the desktop window turns into
// its layouts: Column{Item(a), Row{Item(b), Item(c)}, Stretch()}. The model needs no coordinates.

#include <initializer_list>
#include <vector>

#include "shell/controls.h"

namespace qb::shell {

struct Layout {
    enum class Type { Column, Row, Item, Stretch };
    Type type = Type::Column;
    std::vector<Layout> items;
    const Control* control = nullptr;
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
inline Layout Stretch() {
    return {Layout::Type::Stretch, {}, nullptr};
}

}  // namespace qb::shell
