#include "AppIcon.h"
#include "CommandLine.h"
#include "LanguageSwitch.h"
#include "MainWindow.h"
#include "Preferences.h"
#include "Screenshots.h"
#include "Tour.h"

#include <QApplication>
#include <QFont>
#include <QSettings>
#include <QTextStream>

using namespace Gallery;

namespace {

enum ExitCode { Success = 0, Failure = 1, WrongUsage = 2 };

// Without a display the xcb platform would end the process; pictures can be made all the same.
void fallBackToOffscreenPlatform()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#endif
}

bool nobodyCouldSeeAWindow()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("offscreen") || platform == QLatin1String("minimal");
}

// There is no desktop whose font could be followed; the platform's own is larger than on any.
void useDesktopFont()
{
    constexpr int points = 10;
    QApplication::setFont(QFont(QStringLiteral("sans-serif"), points));
}

int refuse(const CommandLine& commandLine)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << commandLine.errorText() << "\n\n"
                        << commandLine.usage();
    return WrongUsage;
}

void present(MainWindow& window, const Options& options)
{
    window.setScheme(options.scheme.value_or(Scheme::Light));
    window.setLanguage(options.language.value_or(languages().constFirst().code));
    if (options.rightToLeft)
        window.setRightToLeft(*options.rightToLeft);
    window.showPage(options.page);
}

int showWindow(const Options& options, LanguageSwitch& language)
{
    QSettings settings(QStringLiteral("KQtUi"), QCoreApplication::applicationName());
    Preferences preferences(settings);
    MainWindow window(language);
    present(window, preferences.completed(options));
    preferences.restoreArrangement(window);
    const Tour tour(window, settings);
    window.show();
    const int exitCode = QApplication::exec();
    preferences.keep(window);
    return exitCode;
}

int renderPages(const Options& options, LanguageSwitch& language, const QString& folder)
{
    MainWindow window(language);
    present(window, options);
    Screenshots screenshots(folder);
    screenshots.write(options.page);
    if (options.page.isEmpty())
        screenshots.writeWindow(window);
    return screenshots.ok() ? Success : Failure;
}

int run(const Options& options)
{
    LanguageSwitch language;
    if (!options.screenshotFolder.isEmpty())
        return renderPages(options, language, options.screenshotFolder);
    if (!nobodyCouldSeeAWindow())
        return showWindow(options, language);

    const QString folder = QStringLiteral("gallery-screenshots");
    QTextStream(stdout) << "No display: rendering the pages to ./" << folder << Qt::endl;
    return renderPages(options, language, folder);
}

} // namespace

int main(int argc, char* argv[])
{
    fallBackToOffscreenPlatform();
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kqtui-gallery"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KQTUI_VERSION));
    QGuiApplication::setDesktopFileName(QCoreApplication::applicationName());
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setWindowIcon(applicationIcon());
    applyScheme(Scheme::Light);
    if (nobodyCouldSeeAWindow())
        useDesktopFont();

    CommandLine commandLine;
    const auto options = commandLine.read(QCoreApplication::arguments());
    if (!options)
        return refuse(commandLine);
    if (options->help) {
        QTextStream(stdout) << commandLine.usage();
        return Success;
    }
    if (options->version) {
        QTextStream(stdout) << QCoreApplication::applicationName() << ' ' << QCoreApplication::applicationVersion()
                            << Qt::endl;
        return Success;
    }
    return run(*options);
}
