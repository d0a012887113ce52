#include <KQt/Ui/AdvancedColorPicker.h>

#include <QApplication>
#include <QDebug>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    Kestrel::Gui::AdvancedColorPicker picker;
    picker.setColor(Qt::darkCyan);
    QObject::connect(&picker, &Kestrel::Gui::AdvancedColorPicker::changedColor,
                     [](const QColor& color) { qDebug() << color.name() << color.alphaF(); });
    picker.show();
    return QApplication::exec();
}
