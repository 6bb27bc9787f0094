// quillbook: the settings manager's desktop window. It runs from a hub's scripts folder, or from
// the folder given as its one argument.

#include <QApplication>
#include <filesystem>

#include "gui/application.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const std::filesystem::path folder =
        arguments.size() > 1
            ? std::filesystem::path(arguments.at(1).toStdString())
            : std::filesystem::path(QApplication::applicationDirPath().toStdString());
    qb::gui::Application program(folder);
    if (const int status = program.Open(); status >= 0) return status;
    return QApplication::exec();
}
