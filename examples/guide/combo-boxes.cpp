#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/NoWheelComboBox.h>
#include <KQt/Ui/PresetComboBox.h>
#include <KQt/Ui/SeparatorDelegate.h>

#include <QApplication>
#include <QFormLayout>
#include <QMenu>
#include <QStandardItemModel>
#include <QStyle>

using namespace Kestrel::Gui;

// What the lambdas capture lives as long as main(). clazy:excludeall=lambda-in-connect
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    application.setStyleSheet(
        QStringLiteral("Kestrel--Gui--SeparatorStyle { qproperty-height: 9; qproperty-marginLeft: 6;"
                       " qproperty-marginRight: 6; qproperty-color: #8090a0; }"));

    QWidget window;
    auto* layout = new QFormLayout(&window);

    // Narrow in the form, wide when it is open, and no trap for the wheel.
    auto* device = new AdvancedComboBox;
    device->addItems({QStringLiteral("Monitor at the far end of the second desk"), QStringLiteral("Projector"),
                      QStringLiteral("Headphones with a name that nobody ever shortened")});
    device->setFixedWidth(160);
    device->setMouseWheelEnabled(false);
    device->setTooltipTemplate(QStringLiteral("Plays on: %1"));
    layout->addRow(QStringLiteral("Device:"), device);

    auto* quality = new NoWheelComboBox;
    quality->addItems({QStringLiteral("Draft"), QStringLiteral("Fine"), QStringLiteral("Best")});
    layout->addRow(QStringLiteral("Quality:"), quality);

    // Separators between groups of items. The delegate's parent carries the look.
    auto* model = new QStandardItemModel(&window);
    model->appendRow(new QStandardItem(QStringLiteral("Fast")));
    model->appendRow(SeparatorDelegate::createSeparatorItem().release());
    model->appendRow(new QStandardItem(QStringLiteral("Thorough")));
    auto* mode = new AdvancedComboBox;
    mode->setModel(model);
    mode->setItemDelegate(new SeparatorDelegate(mode));
    layout->addRow(QStringLiteral("Mode:"), mode);

    // The application shows what it likes in place of a list.
    auto* preset = new PresetComboBox;
    preset->addItem(QStringLiteral("No preset"));
    preset->SetAdditionalIcon(application.style()->standardIcon(QStyle::SP_DialogApplyButton).pixmap(16));
    QMenu menu;
    for (const QString& name : {QStringLiteral("Calm"), QStringLiteral("Bright"), QStringLiteral("Night")})
        menu.addAction(name, preset, [preset, name] { preset->setItemText(0, name); });
    QObject::connect(preset, &PresetComboBox::ShowPopupActivated, &menu,
                     [&menu, preset] { menu.popup(preset->mapToGlobal(preset->rect().bottomLeft())); });
    layout->addRow(QStringLiteral("Preset:"), preset);

    window.show();
    return QApplication::exec();
}
