// Pictures of pages as the window shows them, for the developer's eye: a hub of four profiles,
// rebuilt, with the pages asked for (every registered page without a key) opened in the real
// window at the size a user first sees, each page's window saved as a PNG. The hub is built and
// shown as the version named, or as the build's.
//
//   page_shots OUT_DIR [--program-version X.Y.Z] [KEY...]

#include <QApplication>
#include <QMdiSubWindow>
#include <QTimer>
#include <QtTest>
#include <filesystem>
#include <iostream>

#include "gui/main_window.h"
#include "store/edition.h"
#include "support/window_harness.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 2) {
        std::cerr << "usage: page_shots OUT_DIR [--program-version X.Y.Z] [KEY...]\n";
        return 2;
    }
    const std::filesystem::path out = argv[1];
    std::filesystem::create_directories(out);
    std::vector<std::string> keys(argv + 2, argv + argc);
    qb::test::WindowHarness harness;
    if (keys.size() >= 2 && keys.front() == "--program-version") {
        const auto version = qb::store::ParseVersion(keys[1]);
        if (!version) {
            std::cerr << "page_shots: --program-version " << keys[1] << ": not a version\n";
            return 2;
        }
        harness.SetVersion(*version);
        keys.erase(keys.begin(), keys.begin() + 2);
    }
    harness.LoadRebuilt(4);
    if (!harness.Show(QSize(1200, 800))) return 1;
    if (keys.empty()) keys = harness.Registry().Keys();
    for (const std::string& key : keys) {
        if (harness.Container().Open(key) == nullptr) {
            std::cerr << key << ": no page\n";
            continue;
        }
        auto* page = harness.PageWindowOf(key);
        if (page == nullptr) continue;  // the text editor page has no window of its own
        QTest::qWait(100);
        std::string name = key;
        for (char& c : name)
            if (c == '~') c = '-';
        page->grab().save(QString::fromStdString((out / (name + ".png")).string()));
        std::cout << (out / (name + ".png")).string() << "\n";
        page->CloseForGood();
    }
    return 0;
}
