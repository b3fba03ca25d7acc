// The program with its window.
#include <QApplication>
#include <QMessageBox>
#include <cstdio>

#include "desktop_application.h"

namespace {

constexpr const char* kUsage =
    "Usage : swiftroll [FICHIER.ged]\n"
    "\n"
    "Ouvre la fenêtre de SwiftRoll ; le fichier devient le fichier GEDCOM en entrée.\n"
    "\n"
    "  -h, --help      cette aide\n"
    "      --version   la version\n";

}  // namespace

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument == "--help" || argument == "-h") {
            std::fputs(kUsage, stdout);
            return 0;
        }
        if (argument == "--version") {
            std::printf("SwiftRoll %s\n", SWIFTROLL_VERSION);
            return 0;
        }
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("SwiftRoll"));
    QApplication::setDesktopFileName(QStringLiteral("swiftroll"));
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 2 || (arguments.size() == 2 && arguments[1].startsWith(QLatin1Char('-')))) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    swiftroll::ui::SetUpToolkit();
    swiftroll::ui::DesktopApplication program;
    if (!program.Start(arguments.value(1))) return program.Main().trail.Reports() > 0 ? 1 : 0;
    return QApplication::exec();
}
