#include <KQt/Ui/AdvancedColorPickerPopup.h>

#include <KQt/Ui/Accessibility/InstallAccessibility.h>
#include <KQt/Ui/AdvancedColorPalette.h>
#include <KQt/Ui/AdvancedColorPickerPopupForm.h>
#include <KQt/Ui/FixedSizeItem.h>
#include <KQt/Ui/InterruptedCalls.h>
#include <KQt/Ui/PickerButton.h>
#include <KQt/Ui/PickerButtonDragFilter.h>
#include <KQt/Ui/PickerButtonDropFilter.h>

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRegExpValidator>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

namespace Kestrel::Gui {

namespace {

constexpr int PaletteSwatchSize = 20;
constexpr int UserSlotSize = 18;
constexpr int UserSlotCount = 12;
constexpr double FullOpacity = 100.0;

/// Keeps from a swatch that it gets the popup's style sheet together with its parent.
///
/// A tool button answers by asking the style for its popup delay and its margins in a layout, and so has all rules of
/// the sheet matched. A swatch has neither, and is polished under the sheet when it is shown, once.
class StyleChangeFilter final : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::StyleChange; }
};

void setParentUnderStyleSheet(PickerButton* swatch, QWidget* parent)
{
    StyleChangeFilter filter;
    swatch->installEventFilter(&filter);
    swatch->setParent(parent);
}

int opacityPercentage(const QColor& color)
{
    return qRound(color.alphaF() * FullOpacity);
}

} // namespace

QVector<QColor> AdvancedColorPickerPopup::m_userGeneratedColors( // clazy:exclude=non-pod-global-static
    UserSlotCount, QColor(Qt::gray));

AdvancedColorPickerPopup::AdvancedColorPickerPopup(QWidget* parent)
    : QFrame(parent, Qt::Popup | Qt::FramelessWindowHint)
    , m_form(std::make_unique<AdvancedColorPickerPopupForm>(this))
    , m_colorButtons(new QButtonGroup(this))
{
    Detail::installAccessibility();
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Plain);
    m_form->colorButtonsLayout->setVerticalSpacing(0);
    m_form->colorButtonsLayout->setHorizontalSpacing(0);

    createPalette();
    createUserSlots();
    m_colorButtons->setExclusive(true);
    m_form->colorButtonsFrame->adjustSize();
    adjustSize();
    connectForm();
    m_form->colorEdit->setValidator(
        new QRegExpValidator(QRegExp(QStringLiteral("^#[a-fA-F0-9]{6}$")), m_form->colorEdit));
}

AdvancedColorPickerPopup::~AdvancedColorPickerPopup()
{
    // The children are deleted after the members: what they still have to say must not reach this object any more.
    for (QObject* const sender :
         {static_cast<QObject*>(m_colorButtons), static_cast<QObject*>(m_form->colorEdit),
          static_cast<QObject*>(m_form->opacityEdit), static_cast<QObject*>(m_form->opacitySlider)})
        sender->disconnect(this);
    for (PickerButton* const slot : qAsConst(m_userColorButtons))
        slot->disconnect(this);
}

QColor AdvancedColorPickerPopup::color() const
{
    return m_color;
}

void AdvancedColorPickerPopup::setColor(const QColor& c)
{
    const QSignalBlocker silent(this);
    // A checked slot takes the colour, and with it all slots of this popup are stored: a popup that has not been open
    // for a while must not store what its slots showed before others changed them.
    if (!isVisible())
        showUserGeneratedColors();
    m_color = c;
    updateColoredWidgets();
    updateColorButtons();
}

bool AdvancedColorPickerPopup::opacityAdjustmentAvailable() const
{
    return m_form->opacityFrame->isVisible();
}

void AdvancedColorPickerPopup::setOpacityAdjustmentAvailable(bool b)
{
    m_form->opacityFrame->setVisible(b);
    m_form->opacityEdit->setVisible(b);
}

void AdvancedColorPickerPopup::showEvent(QShowEvent* event)
{
    showUserGeneratedColors();
    QFrame::showEvent(event);
}

void AdvancedColorPickerPopup::hideEvent(QHideEvent* event)
{
    const QPointer<AdvancedColorPickerPopup> self(this);
    try {
        Q_EMIT hidedWithColor(m_color);
    } catch (...) {
        if (self)
            Detail::forgetClosing(*self);
        throw;
    }
    if (self)
        QFrame::hideEvent(event);
}

void AdvancedColorPickerPopup::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        m_form->retranslate();
    QFrame::changeEvent(event);
}

void AdvancedColorPickerPopup::createPalette()
{
    auto* const dragFilter = new PickerButtonDragFilter(this);
    for (int row = 0; row < AdvancedColorPaletteRows; ++row) {
        for (int column = 0; column < AdvancedColorPaletteColumns; ++column) {
            auto* const swatch = new PickerButton(AdvancedColorPalette.at(row * AdvancedColorPaletteColumns + column));
            setParentUnderStyleSheet(swatch, m_form->colorButtonsFrame);
            m_colorButtons->addButton(swatch);
            swatch->setFixedSize(PaletteSwatchSize, PaletteSwatchSize);
            m_form->colorButtonsLayout->addItem(new FixedSizeItem(swatch), row, column);
            swatch->installEventFilter(dragFilter);
        }
    }
}

void AdvancedColorPickerPopup::createUserSlots()
{
    auto* const dropFilter = new PickerButtonDropFilter(this);
    for (const QColor& color : qAsConst(m_userGeneratedColors)) {
        auto* const slot = new PickerButton(color);
        setParentUnderStyleSheet(slot, m_form->userSelectedColorsFrame);
        m_colorButtons->addButton(slot);
        slot->setFixedSize(UserSlotSize, UserSlotSize);
        m_form->userSelectedColors->addItem(new FixedSizeItem(slot));
        m_userColorButtons.append(slot);
        slot->setAcceptDrops(true);
        slot->installEventFilter(dropFilter);
        connect(slot, &PickerButton::colorChanged, this, &AdvancedColorPickerPopup::updateUserGeneratedColors);
    }
}

void AdvancedColorPickerPopup::connectForm()
{
    connect(m_colorButtons, QOverload<QAbstractButton*, bool>::of(&QButtonGroup::buttonToggled), this,
            &AdvancedColorPickerPopup::colorButtonChanged);
    connect(m_form->colorEdit, &QLineEdit::textChanged, this, &AdvancedColorPickerPopup::textColorChanged);
    connect(m_form->opacitySlider, &QSlider::valueChanged, this, &AdvancedColorPickerPopup::opacityChanged);
    connect(m_form->opacityEdit, QOverload<int>::of(&QSpinBox::valueChanged), m_form->opacitySlider,
            &QSlider::setValue);
    QMetaObject::connectSlotsByName(this);
}

void AdvancedColorPickerPopup::colorButtonChanged()
{
    if (const auto* const checked = qobject_cast<PickerButton*>(m_colorButtons->checkedButton())) {
        m_color = checked->color();
        m_color.setAlphaF(opacityValue());
    }
    updateColorIndicator();
    updateColorEdit();
    updateCheckedUserSlot();
    Q_EMIT changedColor(m_color);
}

void AdvancedColorPickerPopup::opacityChanged()
{
    m_color.setAlphaF(opacityValue());
    updateColorIndicator();
    {
        const QSignalBlocker silentText(m_form->colorEdit);
        const QSignalBlocker silentPercentage(m_form->opacityEdit);
        m_form->colorEdit->setText(m_color.name());
        m_form->opacityEdit->setValue(m_form->opacitySlider->value());
        updateCheckedUserSlot();
    }
    Q_EMIT changedColor(m_color);
}

void AdvancedColorPickerPopup::textColorChanged(const QString& text)
{
    if (text.isEmpty()) {
        m_form->colorEdit->setText(QStringLiteral("#"));
        return;
    }
    const QString lowerCase = text.toLower();
    if (lowerCase != text) {
        // The edit reports the new text, and that call goes on from here.
        m_form->colorEdit->setText(lowerCase);
        return;
    }
    if (!QColor::isValidColor(text))
        return;
    // A typed colour is opaque on purpose, whatever the slider shows; slider, percentage and swatches stay as they are.
    m_color = QColor(text);
    updateColorIndicator();
    Q_EMIT changedColor(m_color);
}

void AdvancedColorPickerPopup::updateUserGeneratedColors()
{
    for (int i = 0; i < m_userColorButtons.size(); ++i)
        m_userGeneratedColors[i] = m_userColorButtons[i]->color();
}

void AdvancedColorPickerPopup::showUserGeneratedColors()
{
    for (int i = 0; i < m_userColorButtons.size(); ++i) {
        const QSignalBlocker silent(m_userColorButtons[i]);
        m_userColorButtons[i]->setColor(m_userGeneratedColors[i]);
    }
}

void AdvancedColorPickerPopup::updateColorButtons()
{
    // An exclusive group reports toggled buttons even where the buttons' own signals are blocked.
    const QSignalBlocker silentGroup(m_colorButtons);

    bool found = false;
    for (PickerButton* const slot : qAsConst(m_userColorButtons)) {
        const QSignalBlocker silent(slot);
        const bool checked = !found && slot->color() == m_color;
        slot->setChecked(checked);
        found = found || checked;
    }

    // The first matching slot wins, but among the palette the last match does: found stays as it is on purpose. Where
    // a slot matched, all are asked to uncheck, which the group refuses for the checked one.
    const auto buttons = m_colorButtons->buttons();
    for (QAbstractButton* const button : buttons) {
        auto* const swatch = qobject_cast<PickerButton*>(button);
        if (!swatch)
            continue;
        const QSignalBlocker silent(swatch);
        swatch->setChecked(!found && swatch->color().toRgb() == m_color.toRgb());
    }
}

void AdvancedColorPickerPopup::updateColorEdit()
{
    const QSignalBlocker silentText(m_form->colorEdit);
    const QSignalBlocker silentPercentage(m_form->opacityEdit);
    if (QColor(m_form->colorEdit->text()) != m_color)
        m_form->colorEdit->setText(m_color.name());
    m_form->opacityEdit->setValue(opacityPercentage(m_color));
    // Not blocked: a slider that moves makes the colour's alpha the whole percentage that it shows.
    m_form->opacitySlider->setValue(opacityPercentage(m_color));
}

void AdvancedColorPickerPopup::updateColorIndicator()
{
    const QString styleSheet = QStringLiteral("background-color: rgba(%1, %2, %3, %4)")
                                   .arg(m_color.red())
                                   .arg(m_color.green())
                                   .arg(m_color.blue())
                                   .arg(m_color.alpha());
    // Setting a style sheet polishes the label again, even where it is the same one.
    if (styleSheet != m_form->colorIndicator->styleSheet())
        m_form->colorIndicator->setStyleSheet(styleSheet);
}

void AdvancedColorPickerPopup::updateColoredWidgets()
{
    updateColorIndicator();
    updateColorEdit();
    updateCheckedUserSlot();
}

void AdvancedColorPickerPopup::updateCheckedUserSlot()
{
    auto* const checked = qobject_cast<PickerButton*>(m_colorButtons->checkedButton());
    if (checked && m_userColorButtons.contains(checked))
        checked->setColor(m_color);
}

double AdvancedColorPickerPopup::opacityValue() const
{
    return m_form->opacitySlider->value() / FullOpacity;
}

} // namespace Kestrel::Gui
