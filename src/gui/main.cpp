// quillbook: the settings manager's desktop window. It runs from a hub's scripts folder, or from
// the folder given as its one argument; --program-version X.Y.Z makes it behave as a build of
// that version.

#include <QApplication>
#include <filesystem>
#include <iostream>

#include "gui/application.h"
#include "store/edition.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QStringList arguments = QApplication::arguments();
    qb::store::ProgramVersion version = qb::store::kBuildVersion;
    if (const qsizetype at = arguments.indexOf(QStringLiteral("--program-version")); at > 0) {
        const std::string text =
            at + 1 < arguments.size() ? arguments.at(at + 1).toStdString() : "";
        const auto parsed = qb::store::ParseVersion(text);
        if (!parsed) {
            std::cerr << "quillbook: --program-version " << text
                      << ": not three numbers joined by \".\" (as 6.0.0)\n"
                         "usage: quillbook [--program-version X.Y.Z] [SCRIPTS_DIR]\n";
            return 2;
        }
        version = *parsed;
        arguments.remove(at, 2);
    }
    const std::filesystem::path folder =
        arguments.size() > 1
            ? std::filesystem::path(arguments.at(1).toStdString())
            : std::filesystem::path(QApplication::applicationDirPath().toStdString());
    qb::gui::Application program(folder, version);
    if (const int status = program.Open(); status >= 0) return status;
    return QApplication::exec();
}
