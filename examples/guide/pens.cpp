#include <KQt/Ui/LineStyleComboBox.h>
#include <KQt/Ui/LineWidthComboBox.h>
#include <KQt/Ui/PenPicker.h>

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

    // Colour and width together.
    auto* outline = new PenPicker;
    outline->setPen(QPen(Qt::darkBlue, 3));
    layout->addRow(QStringLiteral("Outline:"), outline);

    // The boxes alone: each item carries its value under Qt::UserRole.
    auto* style = new LineStyleComboBox;
    for (const Qt::PenStyle line : {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine})
        style->addItem(QString(), static_cast<int>(line));
    layout->addRow(QStringLiteral("Style:"), style);

    auto* width = new LineWidthComboBox;
    for (const int pixels : {0, 1, 2, 4, 8})
        width->addItem(QString(), pixels);
    layout->addRow(QStringLiteral("Width:"), width);

    auto* sample = new QLabel;
    layout->addRow(sample);
    const auto draw = [=] {
        QPixmap picture(240, 60);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        painter.setPen(outline->pen());
        painter.drawRect(picture.rect().adjusted(4, 4, -5, -5));
        if (const int pixels = width->currentData().toInt()) {
            painter.setPen(QPen(Qt::black, pixels, static_cast<Qt::PenStyle>(style->currentData().toInt())));
            painter.drawLine(20, 30, 220, 30);
        }
        sample->setPixmap(picture);
    };
    QObject::connect(outline, &PenPicker::penChanged, sample, draw);
    QObject::connect(style, QOverload<int>::of(&QComboBox::currentIndexChanged), sample, draw);
    QObject::connect(width, QOverload<int>::of(&QComboBox::currentIndexChanged), sample, draw);
    draw();

    window.show();
    return QApplication::exec();
}
