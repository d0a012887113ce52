#include "SignalLamp.h"

#include <QPainter>
#include <QStyle>

#include <utility>

namespace Gallery {

namespace {

constexpr int gap = 6;
constexpr QRgb litColor = 0x35b64a;

} // namespace

SignalLamp::SignalLamp(QString signal, QWidget* parent)
    : QWidget(parent)
    , m_signal(std::move(signal))
{
    constexpr int flashDuration = 350; // milliseconds
    m_off.setSingleShot(true);
    m_off.setInterval(flashDuration);
    connect(&m_off, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void SignalLamp::flash(const QString& value)
{
    m_value = value;
    m_off.start();
    update();
}

QSize SignalLamp::sizeHint() const
{
    // Room for the longest arguments: two sizes.
    const QString longestValue = QStringLiteral("0000×0000 → 0000×0000");
    const int lamp = fontMetrics().height();
    return {lamp + gap + qMax(fontMetrics().horizontalAdvance(m_signal), fontMetrics().horizontalAdvance(longestValue)),
            2 * fontMetrics().lineSpacing()};
}

QSize SignalLamp::minimumSizeHint() const
{
    return sizeHint();
}

void SignalLamp::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const int lamp = fontMetrics().height();
    const QRect lampRect = QStyle::visualRect(layoutDirection(), rect(), QRect(0, 0, lamp, lamp));
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(isLit() ? QColor(litColor) : palette().color(QPalette::Midlight));
    painter.drawEllipse(QRectF(lampRect).adjusted(2.5, 2.5, -2.5, -2.5));

    const int textLeft = lamp + gap;
    const QRect nameRect(textLeft, 0, width() - textLeft, fontMetrics().lineSpacing());
    const QRect valueRect = nameRect.translated(0, fontMetrics().lineSpacing());
    // The arrow may come from a taller font.
    const int alignment =
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextDontClip;
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), nameRect), alignment, m_signal);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    // Isolated, or the numbers would change places in a text from right to left.
    const QString value = QChar(0x2066) + (m_value.isEmpty() ? QStringLiteral("–") : m_value) + QChar(0x2069);
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), valueRect), alignment, value);
}

} // namespace Gallery
