#pragma once
// Pages for tests of the main window: each has a key and caption of its own choosing, one list,
// and the pop-up methods asked for, and writes each call of a method down. They stand in for
// functions whose pages aren't the subject of the test.

#include <string>
#include <vector>

#include "shell/page_registry.h"

namespace qb::test {

struct StubPageDesc {
    std::string key;
    std::string caption;               // empty: the key with " ~ "
    std::vector<std::string> methods;  // gMenu...Click methods the page publishes
};

// Registers each page; calls of their methods are appended to `calls` as "KEY:METHOD".
void RegisterStubPages(shell::PageRegistry& registry, const std::vector<StubPageDesc>& pages,
                       std::vector<std::string>& calls);

// The first `count` function keys of the catalogue that have a node in the tree.
std::vector<std::string> TreeFunctionKeys(size_t count);

}  // namespace qb::test
