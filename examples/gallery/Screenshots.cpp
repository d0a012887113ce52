#include "Screenshots.h"

#include "Page.h"
#include "PageFrame.h"
#include "PageRegistry.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFrame>
#include <QImage>
#include <QLayout>
#include <QPixmap>
#include <QPointer>
#include <QTextStream>
#include <QWindow>

#include <algorithm>

namespace Gallery {

namespace {

constexpr QSize comfortableSize(900, 620);

// A picture is right once the window system gave the widget its place and every posted layout and paint was done.
void waitUntilShown(const QPointer<QWidget>& widget)
{
    constexpr int longestWait = 5000; // milliseconds
    QDeadlineTimer deadline(longestWait);
    const auto exposed = [&widget] { return widget && widget->windowHandle() && widget->windowHandle()->isExposed(); };
    while (widget && !exposed() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, static_cast<int>(deadline.remainingTime()));
    QCoreApplication::processEvents();
}

// Comfortable, and where the font is large as high as the wrapped introduction makes it.
QSize sizeFor(const QWidget& frame)
{
    QSize size = comfortableSize.expandedTo(frame.minimumSizeHint());
    size.setHeight(std::max(size.height(), frame.layout()->minimumHeightForWidth(size.width())));
    return size;
}

bool isOfOneColor(const QImage& picture)
{
    if (picture.isNull())
        return true;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                return false;
        }
    }
    return true;
}

} // namespace

Screenshots::Screenshots(const QString& folder)
    : m_folder(folder)
{
    if (!m_folder.mkpath(QStringLiteral(".")))
        fail(QStringLiteral("can't make the folder %1").arg(QDir::toNativeSeparators(folder)));
}

void Screenshots::write(const QString& onlyPage)
{
    if (!m_ok)
        return;
    for (const PageRegistration& registration : registeredPages()) {
        if (onlyPage.isEmpty() || registration.slug() == onlyPage)
            writePage(registration);
    }
}

void Screenshots::writePage(const PageRegistration& registration)
{
    PageFrame frame(registration);
    frame.setWindowTitle(registration.translatedTitle());
    frame.resize(sizeFor(frame));
    frame.show();
    waitUntilShown(&frame);
    // Only what was shown has its style, and with it its final size.
    frame.resize(frame.size().expandedTo(sizeFor(frame)));
    QCoreApplication::processEvents();
    writePicture(frame, registration.slug());
    checkStage(*frame.page(), registration.slug());
    writePopups(*frame.page(), registration.slug());
}

void Screenshots::writeWindow(QWidget& window)
{
    if (!m_ok)
        return;
    window.show();
    waitUntilShown(&window);
    writePicture(window, QStringLiteral("window"));
}

// A page always shows its title and its log; the stage is where it shows that it lives.
void Screenshots::checkStage(const Page& page, const QString& pageSlug)
{
    QFrame& stage = *page.stageFrame();
    // One more: where a unit is several pixels, the frame's line reaches into it.
    const int border = stage.frameWidth() + 1;
    const QRect inside = stage.rect().adjusted(border, border, -border, -border);
    if (isOfOneColor(stage.grab(inside).toImage()))
        fail(QStringLiteral("the stage of %1 is empty").arg(pageSlug));
}

void Screenshots::writePopups(Page& page, const QString& pageSlug)
{
    for (const Page::Popup& popup : page.popups()) {
        const QString name = QStringLiteral("%1--%2").arg(pageSlug, popup.name);
        const QPointer<QWidget> opened = popup.open();
        waitUntilShown(opened);
        if (!opened) {
            fail(QStringLiteral("%1 did not open").arg(name));
            continue;
        }
        writePicture(*opened, name);
        opened->close();
    }
}

void Screenshots::writePicture(QWidget& widget, const QString& name)
{
    const QString path = QDir::toNativeSeparators(m_folder.absoluteFilePath(name + QStringLiteral(".png")));
    const QImage picture = widget.grab().toImage();
    if (isOfOneColor(picture))
        return fail(QStringLiteral("%1 is empty").arg(name));
    if (!picture.save(path))
        return fail(QStringLiteral("can't write %1").arg(path));
    QTextStream(stdout) << path << Qt::endl;
}

void Screenshots::fail(const QString& reason)
{
    m_ok = false;
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << reason << Qt::endl;
}

} // namespace Gallery
