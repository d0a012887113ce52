#include "Page.h"
#include "PageRegistry.h"
#include "widgets/ColorSwatch.h"
#include "widgets/PaintedPicture.h"

#include <KQt/Ui/WidgetColorPickerButton.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

namespace Gallery {

namespace {

using Kestrel::Gui::WidgetColorPickerButton;

class EyedropperPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::EyedropperPage)

public:
    explicit EyedropperPage(QWidget* parent)
        : Page(
              tr("Press the button, then click into the picture: the button takes the colour under the cursor. Any key "
                 "picks as well; a click elsewhere ends it without a colour."),
              parent)
        , m_button(new WidgetColorPickerButton)
        , m_picture(new PaintedPicture)
    {
        constexpr QSize size(72, 32);
        m_button->setFixedSize(size);
        m_button->setAccessibleName(tr("Pick a colour from the picture"));
        m_button->setTargetWidget(m_picture);
        auto* swatch = new ColorSwatch;
        auto* row = new QHBoxLayout;
        row->addWidget(m_button);
        row->addWidget(swatch, 1);
        stage()->addWidget(m_picture, 1);
        stage()->addLayout(row);

        connect(m_button, &WidgetColorPickerButton::pickingStarted, this,
                [this] { log(QStringLiteral("button.pickingStarted()")); });
        connect(m_button, &WidgetColorPickerButton::pickingFinished, this,
                [this] { log(QStringLiteral("button.pickingFinished()")); });
        connect(m_button, &WidgetColorPickerButton::colorChanged, this, [this, swatch](const QColor& color) {
            log(QStringLiteral("button.colorChanged(%1)").arg(color.name()));
            swatch->setColor(color);
        });
        m_button->setColor(QColor(0xfefb64));

        addSwitch(tr("Button shows the colour"), true, [this](bool on) {
            m_button->setProperty("changeSelfColor", on);
            m_button->update();
        });
        addSwitch(tr("Picture is the target"), true,
                  [this](bool on) { m_button->setTargetWidget(on ? m_picture : nullptr); });
    }

private:
    WidgetColorPickerButton* m_button;
    PaintedPicture* m_picture;
};

const PageRegistration registration(120, QT_TRANSLATE_NOOP("Gallery", "Eyedropper"),
                                    [](QWidget* parent) { return new EyedropperPage(parent); });

} // namespace

} // namespace Gallery
