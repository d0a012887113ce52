#include "ui_form.h"

#include <QApplication>

using Kestrel::Gui::AdvancedColorPicker;

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);

    QWidget window;
    Ui::Form form;
    form.setupUi(&window);
    form.picker->setColor(Qt::darkCyan);
    QObject::connect(form.picker, &AdvancedColorPicker::changedColor, form.name,
                     [&form](const QColor& color) { form.name->setText(color.name()); });

    window.show();
    return QApplication::exec();
}
