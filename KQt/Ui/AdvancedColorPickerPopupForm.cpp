#include <KQt/Ui/AdvancedColorPickerPopupForm.h>

#include <KQt/Ui/AdvancedColorPickerPopupStyleSheet.h>
#include <KQt/Ui/FixedSizeItem.h>

#include <QCoreApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>

namespace Kestrel::Gui {

namespace {

template <typename Object>
Object* named(Object* object, const char* name)
{
    object->setObjectName(QLatin1String(name));
    return object;
}

} // namespace

AdvancedColorPickerPopupForm::AdvancedColorPickerPopupForm(QFrame* popup)
{
    popup->setObjectName(QStringLiteral("AdvancedColorPickerPopup"));
    popup->setWindowTitle(QString());
    popup->setLineWidth(0);
    popup->setStyleSheet(AdvancedColorPickerPopupStyleSheet());
    // Polishing goes down to the children that are there. Widgets are polished before they get children, so that each
    // child is polished by itself: those with a size hint below, swatches and indicator when they are shown. The
    // indicator then has its colour already; a style sheet that comes later would polish it again.
    popup->ensurePolished();

    gridLayout_2 = named(new QGridLayout(popup), "gridLayout_2");
    gridLayout_2->setSpacing(6);
    gridLayout_2->setContentsMargins(10, 10, 10, 10);

    horizontalLayout = named(new QHBoxLayout, "horizontalLayout");
    colorIndicator = named(new QLabel(popup), "colorIndicator");
    colorIndicator->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    colorIndicator->setMinimumSize(27, 28);
    colorIndicator->setMaximumSize(27, 28);
    horizontalLayout->addItem(new FixedSizeItem(colorIndicator));
    // Nor may it be polished from the event loop before the popup is shown for the first time.
    QCoreApplication::removePostedEvents(colorIndicator, QEvent::PolishRequest);

    colorEdit = named(new QLineEdit(popup), "colorEdit");
    colorEdit->setMaximumWidth(70);
    colorEdit->setFocusPolicy(Qt::ClickFocus);
    colorEdit->setMaxLength(7);
    horizontalLayout->addWidget(colorEdit);

    opacityEdit = named(new QSpinBox(popup), "opacityEdit");
    opacityEdit->setMaximumWidth(50);
    opacityEdit->setFocusPolicy(Qt::ClickFocus);
    opacityEdit->setButtonSymbols(QAbstractSpinBox::NoButtons);
    opacityEdit->setRange(0, 100);
    opacityEdit->setValue(100);
    horizontalLayout->addWidget(opacityEdit);
    horizontalLayout->addItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    gridLayout_2->addLayout(horizontalLayout, 0, 0, 1, 2);

    userSelectedColorsFrame = named(new QFrame(popup), "userSelectedColorsFrame");
    userSelectedColorsFrame->ensurePolished();
    userSelectedColors = named(new QHBoxLayout(userSelectedColorsFrame), "userSelectedColors");
    userSelectedColors->setSpacing(1);
    userSelectedColors->setContentsMargins(0, 0, 0, 0);
    gridLayout_2->addWidget(userSelectedColorsFrame, 1, 0, 1, 2);

    colorButtonsFrame = named(new QFrame(popup), "colorButtonsFrame");
    colorButtonsFrame->setLineWidth(0);
    colorButtonsFrame->ensurePolished();
    colorButtonsLayout = named(new QGridLayout(colorButtonsFrame), "colorButtonsLayout");
    colorButtonsLayout->setSpacing(0);
    colorButtonsLayout->setContentsMargins(0, 0, 0, 0);
    colorButtonsLayout->setSizeConstraint(QLayout::SetMinimumSize);
    gridLayout_2->addWidget(colorButtonsFrame, 2, 0, 1, 2);

    opacityFrame = named(new QFrame(popup), "opacityFrame");
    horizontalLayout_3 = named(new QHBoxLayout(opacityFrame), "horizontalLayout_3");
    horizontalLayout_3->setSpacing(6);
    horizontalLayout_3->setContentsMargins(0, 0, 0, 0);
    label = named(new QLabel(opacityFrame), "label");
    horizontalLayout_3->addWidget(label);
    opacitySlider = named(new QSlider(Qt::Horizontal, opacityFrame), "opacitySlider");
    opacitySlider->setRange(0, 100);
    opacitySlider->setValue(100);
    horizontalLayout_3->addWidget(opacitySlider);
    gridLayout_2->addWidget(opacityFrame, 3, 0, 1, 2);

    retranslate();
}

void AdvancedColorPickerPopupForm::retranslate()
{
    //: Follows the opacity in a number field 50 pixels wide ("100%"): there is no room for a space before it.
    opacityEdit->setSuffix(QCoreApplication::translate("AdvancedColorPickerPopup", "%"));
    //: Label before the opacity slider of the colour popup, in capitals where the script has them. At most about 12
    //: letters.
    label->setText(QCoreApplication::translate("AdvancedColorPickerPopup", "OPACITY"));

    // For those who do not see what stands where.
    opacityEdit->setAccessibleName(label->text());
    opacitySlider->setAccessibleName(label->text());
    //: Read by screen readers: the name of the field in the colour popup where a colour is typed as "#rrggbb".
    colorEdit->setAccessibleName(QCoreApplication::translate("AdvancedColorPickerPopup", "Color"));
}

} // namespace Kestrel::Gui
