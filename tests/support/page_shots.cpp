// Pictures of pages as the window shows them, for the developer's eye: the demo hub, rebuilt,
// with the pages asked for open in the real window, each saved as a PNG.
//
//   page_shots OUT_DIR KEY...

#include <QApplication>
#include <QMdiSubWindow>
#include <QTimer>
#include <QtTest>
#include <filesystem>
#include <iostream>

#include "gui/main_window.h"
#include "pages/pages.h"
#include "shell/startup.h"
#include "support/window_harness.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 3) {
        std::cerr << "usage: page_shots OUT_DIR KEY...\n";
        return 2;
    }
    const std::filesystem::path out = argv[1];
    std::filesystem::create_directories(out);
    qb::test::WindowHarness harness;
    harness.Hub().Write("cfg/Profiles.xml", qb::test::ProfilesXml(4));
    harness.Load();
    qb::store::BuilderRegistry builders;
    qb::pages::RegisterAllBuilders(builders);
    qb::store::BuildRun run{.files = harness.Container().Files(),
                            .lastProfile = harness.Container().Profiles().LastNumber(),
                            .profileNames = harness.Container().Profiles().Names()};
    qb::shell::RebuildSettings(run, builders);
    if (!harness.Show(QSize(1200, 800))) return 1;
    for (int i = 2; i < argc; ++i) {
        const std::string key = argv[i];
        if (harness.Container().OpenFunctionPage(key) == nullptr) {
            std::cerr << key << ": no page\n";
            continue;
        }
        if (auto* page = harness.PageWindowOf(key)) page->showMaximized();
        QTest::qWait(200);
        std::string name = key;
        for (char& c : name)
            if (c == '~') c = '-';
        harness.Window().grab().save(QString::fromStdString((out / (name + ".png")).string()));
        std::cout << (out / (name + ".png")).string() << "\n";
    }
    return 0;
}
