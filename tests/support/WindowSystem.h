#pragma once

#include <QGuiApplication>
#include <QScreen>

#include <QtTest>

namespace TestSupport {

/// Whether this is a Wayland session, where the compositor alone places windows and pointer, gives no picture of the
/// screen, and has popups of windows only.
inline bool isWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

/// Leaves a test function that needs what @p reason says is missing there.
#define SKIP_ON_WAYLAND(reason)                                                                                        \
    do {                                                                                                               \
        if (TestSupport::isWayland())                                                                                  \
            QSKIP(reason);                                                                                             \
    } while (false)

/// Leaves a test function that looks at the screen where there is no picture of it.
#define SKIP_WITHOUT_A_PICTURE_OF_THE_SCREEN() SKIP_ON_WAYLAND("there is no picture of the screen here")

/// The offscreen platform mistakes a place in units for one in pixels where it is asked for pixels of the screen.
inline bool grabsTheScreenAmiss()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen") &&
           !qFuzzyCompare(QGuiApplication::primaryScreen()->devicePixelRatio(), 1.0);
}

/// Leaves a test function that places the cursor and reads the pixel under it, where one of the two is not possible.
#define SKIP_WITHOUT_PIXELS_UNDER_THE_CURSOR()                                                                         \
    do {                                                                                                               \
        SKIP_ON_WAYLAND("only the user moves the pointer here");                                                       \
        if (TestSupport::grabsTheScreenAmiss())                                                                        \
            QSKIP("this platform finds the pixels of the screen at a scale of 1 only");                                \
    } while (false)

} // namespace TestSupport
