// The window tests share one program, so that a change to a page relinks it once rather than once
// per test class. Each class registers itself by its CTest name; the program runs the class named
// by its first argument, in a process of its own as before.
#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace qb::test {

using WindowTestFactory = std::function<std::unique_ptr<QObject>()>;

// Registers a test class under `name`; returns true so that it can initialise a static.
bool RegisterWindowTest(const char* name, WindowTestFactory factory);

}  // namespace qb::test

// In place of QTEST_MAIN: `QB_WINDOW_TEST(command_spy_window_test, qb::gui::CommandSpyWindowTest)`.
#define QB_WINDOW_TEST(name, Class)                                    \
    [[maybe_unused]] static const bool qbWindowTestRegistered_##name = \
        qb::test::RegisterWindowTest(#name, [] { return std::make_unique<Class>(); });
