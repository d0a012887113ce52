#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/ColorPickerOpacityAdapter.h>
#include <KQt/Ui/CustomSliderWithZeroTick.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/WidgetColorPickerButton.h>

#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QPainter>

using namespace Kestrel::Gui;

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);

    QWidget window;
    auto* layout = new QFormLayout(&window);

    // 120 colours, 12 slots for the user's own, hexadecimal entry and opacity.
    auto* ink = new AdvancedColorPicker;
    ink->setColor(Qt::darkCyan);
    layout->addRow(QStringLiteral("Ink:"), ink);

    // 40 named colours. The object name lets its style sheet find it.
    auto* paper = new RColorPicker;
    paper->setObjectName(QStringLiteral("paper"));
    paper->setDefaultColor(Qt::white);
    layout->addRow(QStringLiteral("Paper:"), paper);

    // A slider gives that picker's colour its opacity.
    auto* opacity = new QSlider(Qt::Horizontal);
    opacity->setRange(0, 100);
    auto* translucentPaper = new ColorPickerOpacityAdapter(paper, opacity, &window);
    translucentPaper->setColor(QColor(255, 240, 200, 128));
    layout->addRow(QStringLiteral("Opacity:"), opacity);

    // A slider that marks the value that it had at first.
    auto* brightness = new CustomSliderWithZeroTick(Qt::Horizontal);
    brightness->setRange(-50, 50);
    brightness->setStyleSheet(
        QStringLiteral("CustomSliderWithZeroTick { qproperty-tickWidth: 2; qproperty-tickHeight: 9;"
                       " qproperty-topTickEndColor: gray; qproperty-centerTickColor: black;"
                       " qproperty-bottomTickEndColor: gray; }"));
    layout->addRow(QStringLiteral("Brightness:"), brightness);

    // An eyedropper for the colours of one widget.
    auto* picture = new QLabel;
    QPixmap rainbow(200, 40);
    QLinearGradient hues(rainbow.rect().topLeft(), rainbow.rect().topRight());
    for (int hue = 0; hue < 360; hue += 30)
        hues.setColorAt(hue / 360.0, QColor::fromHsv(hue, 200, 220));
    QPainter(&rainbow).fillRect(rainbow.rect(), hues);
    picture->setPixmap(rainbow);
    auto* eyedropper = new WidgetColorPickerButton;
    eyedropper->setToolTip(QStringLiteral("Pick a colour from the picture"));
    eyedropper->setTargetWidget(picture);
    layout->addRow(eyedropper, picture);

    auto* message = new QLabel;
    layout->addRow(message);
    const auto tell = [message](const QColor& color) { message->setText(color.name(QColor::HexArgb)); };
    QObject::connect(ink, &AdvancedColorPicker::changedColor, message, tell);
    QObject::connect(translucentPaper, &ColorPickerOpacityAdapter::colorChanged, message, tell);
    QObject::connect(eyedropper, &WidgetColorPickerButton::colorChanged, message, tell);
    QObject::connect(eyedropper, &WidgetColorPickerButton::colorChanged, ink, &AdvancedColorPicker::setColor);

    window.show();
    return QApplication::exec();
}
