#include "Page.h"
#include "PageRegistry.h"
#include "widgets/ColorSwatch.h"
#include "widgets/NotePreview.h"

#include <KQt/Ui/AdvancedColorPicker.h>

#include <QApplication>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QVBoxLayout>

#include <functional>
#include <utility>
#include <vector>

//! [shows] AdvancedColorPickerPopup

namespace Gallery {

namespace {

using Kestrel::Gui::AdvancedColorPicker;

class AdvancedColorPickerPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::AdvancedColorPickerPage)

public:
    explicit AdvancedColorPickerPage(QWidget* parent)
        : Page(tr("Click a colour to open its popup; the note takes the new colour while you choose."), parent)
        , m_note(new NotePreview(tr("Buy milk, feed the cat")))
    {
        stage()->addWidget(m_note, 1);
        stage()->addLayout(m_rows);
        constexpr int swatchColumn = 2;
        m_rows->setColumnStretch(swatchColumn, 1);
        m_paper = addPicker(tr("Paper"), QStringLiteral("paper"), QColor(0xfff1d7),
                            [this](const QColor& color) { m_note->setPaper(color); });
        m_ink = addPicker(tr("Ink"), QStringLiteral("ink"), QColor(0x033076),
                          [this](const QColor& color) { m_note->setInk(color); });
        m_marker = addPicker(tr("Marker"), QStringLiteral("marker"), translucentYellow(),
                             [this](const QColor& color) { m_note->setMarker(color); });
        //! [code]
        m_paper->setOpacityAdjustmentAvailable(false);
        //! [code]
        m_ink->setOpacityAdjustmentAvailable(false);
        addDragHint();
        addControls();
    }

    std::vector<Popup> popups() override
    {
        return {
            {QStringLiteral("without-opacity"), [this] { return openPopup(m_paper); }},
            {QStringLiteral("with-opacity"), [this] { return openPopup(m_marker); }},
        };
    }

private:
    static QColor translucentYellow()
    {
        constexpr qreal opacity = 0.55;
        QColor color(0xfec63d);
        color.setAlphaF(opacity);
        return color;
    }

    AdvancedColorPicker* addPicker(const QString& label, const QString& name, const QColor& color,
                                   std::function<void(const QColor&)> apply)
    {
        constexpr QSize size(64, 30);
        //! [code]
        auto* picker = new AdvancedColorPicker;
        picker->setObjectName(name);
        picker->setAccessibleName(label);
        picker->setFixedSize(size);
        //! [code]
        auto* swatch = new ColorSwatch;

        const int row = m_rows->rowCount();
        m_rows->addWidget(new QLabel(label), row, 0);
        m_rows->addWidget(picker, row, 1);
        m_rows->addWidget(swatch, row, 2);

        const auto show = [swatch, apply = std::move(apply)](const QColor& shown) {
            swatch->setColor(shown);
            apply(shown);
        };
        m_setters.emplace_back([picker, show](const QColor& given) {
            picker->setColor(given);
            show(given);
        });
        m_setters.back()(color);
        logSignals(picker, name);
        //! [code]
        connect(picker, &AdvancedColorPicker::changedColor, this, show);
        connect(picker, &AdvancedColorPicker::doneSelectionWithColor, this, show);
        //! [code]
        return picker;
    }

    void logSignals(AdvancedColorPicker* picker, const QString& name)
    {
        connect(picker, &AdvancedColorPicker::colorSelectionStarted, this,
                [this, name] { log(QStringLiteral("%1.colorSelectionStarted()").arg(name)); });
        connect(picker, &AdvancedColorPicker::changedColor, this, [this, name](const QColor& color) {
            logCounted(QStringLiteral("%1.changedColor(%2)").arg(name, colorText(color)));
        });
        connect(picker, &AdvancedColorPicker::doneSelectionWithColor, this, [this, name](const QColor& color) {
            log(QStringLiteral("%1.doneSelectionWithColor(%2)").arg(name, colorText(color)));
        });
    }

    void addDragHint()
    {
        auto* hint = new QLabel(tr("Drag a colour from the palette to one of the twelve slots above it. The slots are "
                                   "shared: open another picker and find the colour there."));
        hint->setWordWrap(true);
        stage()->addWidget(hint);
    }

    void addControls()
    {
        addSwitch(tr("Opacity of the marker"), true, [this](bool on) { m_marker->setOpacityAdjustmentAvailable(on); });
        addSwitch(tr("Enabled"), true, [this](bool on) {
            for (AdvancedColorPicker* picker : {m_paper, m_ink, m_marker})
                picker->setEnabled(on);
        });

        auto* random = new QPushButton(tr("Random colours"));
        random->setToolTip(tr("A colour that is set by the program makes no signal."));
        connect(random, &QPushButton::clicked, this, [this] { setRandomColors(); });
        controls()->addRow(random);

        auto* aside = new QPushButton(tr("Open popup here"));
        connect(aside, &QPushButton::clicked, this, [this, aside] {
            m_paper->showPopup(m_paper->mapFromGlobal(aside->mapToGlobal(aside->rect().bottomRight())));
        });
        controls()->addRow(aside);
    }

    void setRandomColors()
    {
        for (const auto& set : m_setters)
            set(QColor::fromRgb(QRandomGenerator::global()->generate()));
    }

    static QWidget* openPopup(AdvancedColorPicker* picker)
    {
        picker->showPopup();
        return QApplication::activePopupWidget();
    }

    NotePreview* m_note;
    QGridLayout* m_rows = new QGridLayout;
    std::vector<std::function<void(const QColor&)>> m_setters;
    AdvancedColorPicker* m_paper = nullptr;
    AdvancedColorPicker* m_ink = nullptr;
    AdvancedColorPicker* m_marker = nullptr;
};

const PageRegistration registration(100, QT_TRANSLATE_NOOP("Gallery", "Advanced colour picker"),
                                    [](QWidget* parent) { return new AdvancedColorPickerPage(parent); });

} // namespace

} // namespace Gallery
