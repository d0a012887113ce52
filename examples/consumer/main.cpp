#include <KQt/Ui/AdvancedColorPicker.h>

#include <QApplication>
#include <QTimer>

using namespace Kestrel::Gui;

// Shows a colour picker; with --probe only for a moment, to see that an installed copy can be used.
int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);

    AdvancedColorPicker picker;
    picker.setColor(Qt::darkGreen);
    picker.show();

    if (QApplication::arguments().contains(QStringLiteral("--probe"))) {
        QObject::connect(&picker, &AdvancedColorPicker::doneSelectionWithColor, &picker,
                         [](const QColor& color) { QApplication::exit(color == QColor(Qt::darkGreen) ? 0 : 1); });
        QTimer::singleShot(0, &picker, [&picker] {
            picker.showPopup();
            QTimer::singleShot(0, &picker, &QWidget::hide);
        });
    }
    return QApplication::exec();
}
