// screen-picture FILE.png: what the screen shows, once it has not changed for a second.
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QThread>

#include <cstdio>

namespace {

constexpr int interval = 200;    // milliseconds
constexpr int still = 5;         // equal pictures in a row
constexpr int patience = 60'000; // milliseconds

QImage grab()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

QImage grabStill()
{
    QElapsedTimer timer;
    timer.start();
    QImage last = grab();
    int equal = 0;
    while (equal < still && timer.elapsed() < patience) {
        QThread::msleep(interval);
        const QImage next = grab();
        equal = next == last ? equal + 1 : 0;
        last = next;
    }
    return last;
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("usage: screen-picture FILE.png\n", stderr);
        return 2;
    }
    return grabStill().save(arguments.last()) ? 0 : 1;
}
