#include "Page.h"
#include "PageRegistry.h"
#include "widgets/ColorSwatch.h"

#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>

#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace Gallery {

namespace {

using Kestrel::Gui::RColorPicker;
using Kestrel::Gui::RColorPickerPopup;

class NamedPalettePage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::NamedPalettePage)

public:
    explicit NamedPalettePage(QWidget* parent)
        : Page(tr("Click the button: a default colour, forty named colours, and a dialog behind \"More...\"."), parent)
        , m_picker(new RColorPicker)
        , m_swatch(new ColorSwatch)
    {
        constexpr QSize size(72, 32);
        //! [code]
        m_picker->setObjectName(QStringLiteral("picker")); // the picker styles itself by its name
        m_picker->setAccessibleName(tr("Colour"));
        m_picker->setFixedSize(size);
        m_picker->setColor(QColor(0x388e8e));
        //! [code]

        auto* row = new QHBoxLayout;
        row->addWidget(m_picker);
        row->addWidget(m_swatch, 1);
        auto* hint =
            new QLabel(tr("While its popup is open the picker's property \"pressed\" is true: the page's style "
                          "sheet gives it a thick border then."));
        hint->setWordWrap(true);
        stage()->addStretch(1);
        stage()->addLayout(row);
        stage()->addWidget(hint);
        stage()->addStretch(2);

        // The border alone: the background is the picker's own.
        //! [code]
        setStyleSheet(QStringLiteral("#picker { border: 1px solid palette(mid); border-radius: 4px; }"
                                     "#picker[pressed=\"true\"] { border: 3px solid palette(highlight); }"));
        //! [code]
        showColor(m_picker->color());
        connectSignals();
        addControls();
    }

    std::vector<Popup> popups() override
    {
        return {{QStringLiteral("palette"), [this]() -> QWidget* {
                     m_picker->showPopup();
                     return &m_picker->GetPickerPopup();
                 }}};
    }

private:
    void connectSignals()
    {
        //! [code]
        connect(m_picker, &RColorPicker::changedColor, this, [this](const QColor& color) {
            log(QStringLiteral("picker.changedColor(%1)").arg(color.name()));
            showColor(color);
        });
        //! [code]
        const RColorPickerPopup* popup = &m_picker->GetPickerPopup();
        connect(popup, &RColorPickerPopup::selected, this,
                [this](const QColor& color) { log(QStringLiteral("popup.selected(%1)").arg(color.name())); });
        connect(popup, &RColorPickerPopup::closed, this, [this] { log(QStringLiteral("popup.closed()")); });
    }

    void addControls()
    {
        addSwitch(tr("Colorized"), true, [this](bool on) { m_picker->SetColorized(on); });
        addSwitch(tr("Dark popup"), false, [this](bool on) {
            //! [code]
            RColorPickerPopup& popup = m_picker->GetPickerPopup();
            popup.SetButtonNormalColor(on ? QColor(0x444444) : QColor(Qt::lightGray));
            popup.SetButtonNormalTextColor(on ? Qt::white : Qt::black);
            popup.SetButtonHoverColor(on ? QColor(0x0844a4) : QColor(Qt::yellow));
            //! [code]
        });
        addSwitch(tr("Enabled"), true, [this](bool on) { m_picker->setEnabled(on); });
        auto* makeDefault = new QPushButton(tr("Make it the default"));
        makeDefault->setToolTip(tr("The popup's \"Default\" button chooses this colour from now on."));
        connect(makeDefault, &QPushButton::clicked, this, [this] { m_picker->setDefaultColor(m_picker->color()); });
        controls()->addRow(makeDefault);
    }

    void showColor(const QColor& color) { m_swatch->setColor(color); }

    RColorPicker* m_picker;
    ColorSwatch* m_swatch;
};

const PageRegistration registration(110, QT_TRANSLATE_NOOP("Gallery", "Named palette"),
                                    [](QWidget* parent) { return new NamedPalettePage(parent); });

} // namespace

} // namespace Gallery
