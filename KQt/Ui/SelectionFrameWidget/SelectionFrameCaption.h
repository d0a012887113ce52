#pragma once

#include <KQt/Ui/Export.h>

#include <QFont>
#include <QSizeF>
#include <QString>

#include <array>

QT_BEGIN_NAMESPACE
class QPainter;
class QPaintDevice;
class QRectF;
QT_END_NAMESPACE

/// @file
/// The caption of a selection frame and the painting that all frames share. For SelectionFrameGraphicsItem, not for
/// applications.

namespace Kestrel::Gui::Detail {

/// The translated pattern with its four places. Translators see "#" where the caption shows a per cent sign.
KQTUI_EXPORT QString captionPattern();

/// Left, top, width and height in whole per cent.
using CaptionValues = std::array<int, 4>;

/// @p relativeFrame in per cent, cut off toward zero. What no int can hold becomes the nearest one, NaN becomes 0.
KQTUI_EXPORT CaptionValues captionValues(const QRectF& relativeFrame);

/// Text and size of a caption, measured again only when the text, the font or the device's resolution changes.
class KQTUI_EXPORT CaptionLayout
{
public:
    /// Makes the layout fit; cheap when nothing changed.
    /// @param device what the caption is painted on, null for the default
    void update(const QString& pattern, const CaptionValues& values, const QFont& font, const QPaintDevice* device);

    const QString& text() const { return m_text; }

    /// Size of the text as a single line and the margin around it.
    QSizeF size() const { return m_size; }

private:
    QString m_pattern;
    CaptionValues m_values{};
    QFont m_font;
    int m_resolution = 0; // dots per inch; 0 before the first update
    QString m_text;
    QSizeF m_size;
};

/// Draws @p rect twice, black first and dashed on top, so that the dashes stand out on any picture.
KQTUI_EXPORT void paintFrame(QPainter& painter, const QRectF& rect, bool highlighted);

/// Draws @p text in a white box.
KQTUI_EXPORT void paintCaption(QPainter& painter, const QRectF& rect, const QString& text, const QFont& font);

} // namespace Kestrel::Gui::Detail
