#include <iostream>

#include "cli/commands.h"
#include "shell/catalogue.h"
#include "store/cp1252.h"

namespace qb::cli {
namespace {

void PrintNode(const shell::CatalogueNode& node, int depth) {
    std::cout << std::string(static_cast<size_t>(depth) * 2, ' ') << node.key << '\t'
              << store::Cp1252ToUtf8(node.text) << '\n';
    for (const auto& child : node.children)
        PrintNode(child, depth + 1);
}

}  // namespace

int PagesCommand(Session& session, const Arguments& /*none: the parser allows none*/) {
    session.container.FillNavigation();
    PrintNode(session.container.Navigation().root, 0);
    return 0;
}

}  // namespace qb::cli
