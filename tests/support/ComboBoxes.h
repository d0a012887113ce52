#pragma once

#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QtMath>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>

#include <QtTest>

namespace TestSupport {

/// How wide the style makes the text field of @p box.
inline QRect editFieldOf(const QComboBox& box)
{
    struct Access : QComboBox
    {
        static void fill(const QComboBox& box, QStyleOptionComboBox* option)
        {
            (box.*(&Access::initStyleOption))(option);
        }
    };
    QStyleOptionComboBox option;
    Access::fill(box, &option);
    return box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
}

inline QString elidedTo(const QComboBox& box, const QString& text, int width)
{
    return QFontMetrics(box.font()).elidedText(text, Qt::ElideRight, width);
}

/// The smallest width of @p box at which its text field is as wide as @p text.
inline int widthThatFits(const QComboBox& box, const QString& text)
{
    // Texts are elided by their exact widths, which are broken where glyphs are not fitted to pixels.
    return box.width() - editFieldOf(box).width() + qCeil(QFontMetricsF(box.font()).horizontalAdvance(text));
}

/// A plain box that paints as the style paints a closed box whose text is @p text, in the state of another box.
class ReferenceComboBox : public QComboBox
{
public:
    ReferenceComboBox(const QString& text, const QSize& size)
    {
        setFocusPolicy(Qt::NoFocus);
        addItem(text);
        resize(size);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        Q_UNUSED(event)
        QStylePainter painter(this);
        QStyleOptionComboBox option;
        initStyleOption(&option);
        painter.drawComplexControl(QStyle::CC_ComboBox, option);
        painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    }
};

/// A scroll area that is shorter than what it holds, with @p inner at the top of it.
class ScrollingForm : public QScrollArea
{
public:
    explicit ScrollingForm(QWidget* inner)
    {
        auto* form = new QWidget;
        auto* layout = new QVBoxLayout(form);
        layout->addWidget(inner);
        layout->addStretch(1);
        form->setMinimumHeight(2000);
        setWidget(form);
        setWidgetResizable(true);
        resize(300, 200);
        show();
    }
};

/// Turns the wheel by one notch downwards over the middle of @p widget: the window is told, as the system tells it.
inline void turnWheelOver(QWidget& widget)
{
    constexpr int notch = 120;
    const QPoint middle = widget.rect().center();
    // Qt takes an event without a phase for one inside a sequence, which goes to one widget only; only a platform's
    // plugin may send those. So the turn is a sequence of its own.
    const auto send = [&](const QPoint& angle, Qt::ScrollPhase phase) {
        QWheelEvent event(widget.mapTo(widget.window(), middle), widget.mapToGlobal(middle), {}, angle, Qt::NoButton,
                          Qt::NoModifier, phase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(widget.window()->windowHandle(), &event);
    };
    send({0, -notch}, Qt::ScrollBegin);
    send({}, Qt::ScrollEnd);
}

} // namespace TestSupport
