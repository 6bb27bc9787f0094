#include "support/window_test_main.h"

#include <QApplication>
#include <QTest>

#include <cstdio>
#include <map>
#include <string>

namespace qb::test {
namespace {

std::map<std::string, WindowTestFactory>& Registry() {
    static std::map<std::string, WindowTestFactory> registry;
    return registry;
}

}  // namespace

bool RegisterWindowTest(const char* name, WindowTestFactory factory) {
    Registry().emplace(name, std::move(factory));
    return true;
}

}  // namespace qb::test

// `window_tests NAME [QTest options]` runs one registered class, as its own program did.
int main(int argc, char** argv) {
    const auto& registry = qb::test::Registry();
    const auto found = argc > 1 ? registry.find(argv[1]) : registry.end();
    if (found == registry.end()) {
        std::fprintf(stderr, "usage: %s TEST [QTest options]; tests:", argv[0]);
        for (const auto& entry : registry)
            std::fprintf(stderr, " %s", entry.first.c_str());
        std::fprintf(stderr, "\n");
        return 2;
    }
    // QTest reads the program name from argv[0] and its options after it: drop the test's name.
    argv[1] = argv[0];
    int qtArgc = argc - 1;
    char** qtArgv = argv + 1;
    QApplication app(qtArgc, qtArgv);
    app.setAttribute(Qt::AA_Use96Dpi, true);
    auto test = found->second();
    return QTest::qExec(test.get(), qtArgc, qtArgv);
}
