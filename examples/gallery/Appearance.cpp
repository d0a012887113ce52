#include "Appearance.h"

#include <QApplication>
#include <QToolTip>

namespace Gallery {

namespace {

struct SchemeColors
{
    QRgb window;
    QRgb base;
    QRgb alternateBase;
    QRgb button;
    QRgb text;
    QRgb disabledText;
    QRgb placeholder;
    QRgb highlight;
    QRgb disabledHighlight;
    QRgb link;
    QRgb toolTip;
    QRgb light;
    QRgb midlight;
    QRgb mid;
    QRgb dark;
    QRgb shadow;
};

constexpr SchemeColors lightColors = {
    0xf2f3f5, 0xffffff, 0xf6f7f9, 0xf2f3f5, 0x1f242b, 0x9aa0a8, 0x7c838c, 0x2f73c9,
    0x9fb4cf, 0x1b61b8, 0xfffbe6, 0xffffff, 0xe4e6e9, 0xb9bec5, 0x9aa0a8, 0x6a7079,
};

constexpr SchemeColors darkColors = {
    0x363a40, 0x1d2024, 0x25292e, 0x43484f, 0xe6e8eb, 0x7d838b, 0x8d949d, 0x3d7fd1,
    0x4a5666, 0x7db3f2, 0x3a3f46, 0x5a6068, 0x4b5057, 0x5f656d, 0x1a1c1f, 0x0f1113,
};

} // namespace

QPalette palette(Scheme scheme)
{
    const SchemeColors& colors = scheme == Scheme::Dark ? darkColors : lightColors;
    QPalette result;
    result.setColor(QPalette::Window, colors.window);
    result.setColor(QPalette::Base, colors.base);
    result.setColor(QPalette::AlternateBase, colors.alternateBase);
    result.setColor(QPalette::Button, colors.button);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        result.setColor(role, colors.text);
        result.setColor(QPalette::Disabled, role, colors.disabledText);
    }
    result.setColor(QPalette::PlaceholderText, colors.placeholder);
    result.setColor(QPalette::BrightText, Qt::red);
    result.setColor(QPalette::Highlight, colors.highlight);
    result.setColor(QPalette::Disabled, QPalette::Highlight, colors.disabledHighlight);
    result.setColor(QPalette::HighlightedText, Qt::white);
    result.setColor(QPalette::Link, colors.link);
    result.setColor(QPalette::LinkVisited, colors.link);
    result.setColor(QPalette::ToolTipBase, colors.toolTip);
    result.setColor(QPalette::Light, colors.light);
    result.setColor(QPalette::Midlight, colors.midlight);
    result.setColor(QPalette::Mid, colors.mid);
    result.setColor(QPalette::Dark, colors.dark);
    result.setColor(QPalette::Shadow, colors.shadow);
    return result;
}

void applyScheme(Scheme scheme)
{
    const QPalette colors = palette(scheme);
    QApplication::setPalette(colors);
    QToolTip::setPalette(colors);
}

} // namespace Gallery
