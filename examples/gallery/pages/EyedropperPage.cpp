#include "Page.h"
#include "PageRegistry.h"
#include "widgets/ColorSwatch.h"
#include "widgets/PaintedPicture.h"

#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/WidgetColorPicker.h>
#include <KQt/Ui/WidgetColorPickerButton.h>

#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVariant>
#include <QVBoxLayout>

namespace Gallery {

namespace {

using Kestrel::Gui::HighlightFrame;
using Kestrel::Gui::WidgetColorPicker;
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
        , m_swatch(new ColorSwatch)
    {
        constexpr QSize size(72, 32);
        m_button->setFixedSize(size);
        m_button->setAccessibleName(tr("Pick a colour from the picture"));
        //! [code]
        m_button->setTargetWidget(m_picture);
        //! [code]
        auto* row = new QHBoxLayout;
        row->addWidget(m_button);
        row->addWidget(m_swatch, 1);
        stage()->addWidget(m_picture, 1);
        stage()->addLayout(row);

        connect(m_button, &WidgetColorPickerButton::pickingStarted, this,
                [this] { log(QStringLiteral("button.pickingStarted()")); });
        connect(m_button, &WidgetColorPickerButton::pickingFinished, this,
                [this] { log(QStringLiteral("button.pickingFinished()")); });
        //! [code]
        connect(m_button, &WidgetColorPickerButton::colorChanged, this, [this](const QColor& color) {
            log(QStringLiteral("button.colorChanged(%1)").arg(color.name()));
            m_swatch->setColor(color);
        });
        m_button->setColor(QColor(0xfefb64));
        //! [code]

        addSwitch(tr("Button shows the colour"), true, [this](bool on) {
            //! [code]
            m_button->setProperty("changeSelfColor", on);
            m_button->update();
            //! [code]
        });
        addSwitch(tr("Picture is the target"), true,
                  [this](bool on) { m_button->setTargetWidget(on ? m_picture : nullptr); });
        addSwitch(tr("Frame round the picture"), false, [this](bool on) { frame(on); });
        auto* once = new QPushButton(tr("Pick without the button"));
        once->setToolTip(tr("The program waits for the colour."));
        connect(once, &QPushButton::clicked, this, [this] { pickOnce(); });
        controls()->addRow(once);
    }

private:
    void frame(bool on)
    {
        delete m_frame;
        if (!on)
            return;
        //! [code]
        m_frame = new HighlightFrame(m_picture);
        //! [code]
    }

    void pickOnce()
    {
        //! [code]
        const QColor color = WidgetColorPicker().pick(m_picture, {});
        //! [code]
        log(QStringLiteral("WidgetColorPicker.pick(): %1")
                .arg(color.isValid() ? color.name() : QStringLiteral("no colour")));
        if (color.isValid())
            m_swatch->setColor(color);
    }

    WidgetColorPickerButton* m_button;
    PaintedPicture* m_picture;
    ColorSwatch* m_swatch;
    QPointer<HighlightFrame> m_frame; // its host deletes it as well
};

const PageRegistration registration(120, QT_TRANSLATE_NOOP("Gallery", "Eyedropper"),
                                    [](QWidget* parent) { return new EyedropperPage(parent); });

} // namespace

} // namespace Gallery
