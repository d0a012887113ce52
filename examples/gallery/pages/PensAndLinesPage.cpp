#include "Page.h"
#include "PageRegistry.h"
#include "widgets/ColorSwatch.h"
#include "widgets/LineSketch.h"

#include <KQt/Ui/ColorPickerOpacityAdapter.h>
#include <KQt/Ui/CustomSliderWithZeroTick.h>
#include <KQt/Ui/LineStyleComboBox.h>
#include <KQt/Ui/LineWidthComboBox.h>
#include <KQt/Ui/PenPicker.h>
#include <KQt/Ui/RColorPicker.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

namespace Gallery {

namespace {

using Kestrel::Gui::ColorPickerOpacityAdapter;
using Kestrel::Gui::LineStyleComboBox;
using Kestrel::Gui::LineWidthComboBox;
using Kestrel::Gui::PenPicker;
using Kestrel::Gui::RColorPicker;

constexpr int controlHeight = 30;

class PensAndLinesPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::PensAndLinesPage)

public:
    explicit PensAndLinesPage(QWidget* parent)
        : Page(tr("Pens, lines and opacity: each group draws what its boxes say."), parent)
        , m_pen(new PenPicker)
        , m_slider(new CustomSliderWithZeroTick(Qt::Horizontal))
    {
        stage()->addWidget(createPenGroup());
        stage()->addWidget(createLineGroup());
        stage()->addWidget(createOpacityGroup());
        stage()->addWidget(createSliderGroup());
        stage()->addStretch(1);
        addControls();
    }

    std::vector<Popup> popups() override
    {
        return {{QStringLiteral("line-styles"), [this] { return openList(m_style); }},
                {QStringLiteral("line-widths"), [this] { return openList(m_width); }}};
    }

private:
    QWidget* createPenGroup()
    {
        m_pen->setFixedSize({170, controlHeight});
        //! [code]
        m_pen->setPen(QPen(QColor(0x1464f6), 3));
        //! [code]
        auto* sketch = new LineSketch;
        const auto show = [this, sketch] { sketch->setPen(m_pen->pen()); };
        connect(m_pen, &PenPicker::penChanged, this, [this, show] {
            logCounted(QStringLiteral("pen.penChanged()"));
            show();
        });
        connect(m_pen, &PenPicker::doneColorSelection, this, [this, show](const QColor& color) {
            log(QStringLiteral("pen.doneColorSelection(%1)").arg(color.name()));
            show();
        });
        show();
        return group(tr("Pen picker"), m_pen, sketch);
    }

    QWidget* createLineGroup()
    {
        //! [code]
        m_style = new LineStyleComboBox;
        for (const Qt::PenStyle style : {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine})
            m_style->addItem(QString(), static_cast<int>(style));
        m_width = new LineWidthComboBox;
        for (const int width : {0, 1, 2, 4, 6})
            m_width->addItem(QString(), width);
        m_width->setCurrentIndex(2);
        //! [code]
        m_style->setAccessibleName(tr("Line style"));
        m_width->setAccessibleName(tr("Line width"));

        auto* sketch = new LineSketch;
        const auto show = [this, sketch] {
            //! [code]
            const int width = m_width->currentData().toInt();
            const auto style = static_cast<Qt::PenStyle>(m_style->currentData().toInt());
            //! [code]
            sketch->setPen(width == 0 ? QPen(Qt::NoPen) : QPen(sketch->palette().text(), width, style));
        };
        auto* boxes = new QWidget;
        auto* layout = new QVBoxLayout(boxes);
        layout->setContentsMargins({});
        for (QComboBox* box : {static_cast<QComboBox*>(m_style), static_cast<QComboBox*>(m_width)}) {
            box->setFixedSize({170, controlHeight});
            layout->addWidget(box);
            connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this, box, show](int index) {
                log(QStringLiteral("%1.currentIndexChanged(%2)")
                        .arg(box == m_style ? QStringLiteral("style") : QStringLiteral("width"))
                        .arg(index));
                show();
            });
        }
        show();
        return group(tr("Line style and line width"), boxes, sketch);
    }

    QWidget* createOpacityGroup()
    {
        auto* picker = new RColorPicker;
        picker->setObjectName(QStringLiteral("opacityColor"));
        picker->setFixedSize({50, controlHeight});
        auto* slider = new QSlider(Qt::Horizontal);
        constexpr int opaque = 255;
        slider->setRange(0, opaque);
        slider->setAccessibleName(tr("Opacity"));
        auto* swatch = new ColorSwatch;
        //! [code]
        auto* adapter = new ColorPickerOpacityAdapter(picker, slider, this);
        adapter->setColor(QColor(0xff, 0x83, 0x51, 0x99));
        //! [code]
        swatch->setColor(adapter->color());
        connect(adapter, &ColorPickerOpacityAdapter::colorChanged, this, [this, swatch](const QColor& color) {
            logCounted(QStringLiteral("adapter.colorChanged(%1, %2)").arg(color.name()).arg(color.alpha()));
            swatch->setColor(color);
        });
        auto* row = new QWidget;
        row->setFixedWidth(170);
        auto* layout = new QHBoxLayout(row);
        layout->setContentsMargins({});
        layout->addWidget(picker);
        layout->addWidget(slider, 1);
        return group(tr("Opacity adapter"), row, swatch);
    }

    QWidget* createSliderGroup()
    {
        constexpr int range = 100;
        m_slider->setObjectName(QStringLiteral("zeroSlider"));
        m_slider->setRange(-range, range);
        m_slider->setMinimumHeight(controlHeight);
        m_slider->setFixedWidth(170);
        auto* value = new QLabel;
        value->setMinimumHeight(controlHeight);
        connect(m_slider, &QSlider::valueChanged, this, [this, value](int now) {
            value->setText(tr("Value: %1").arg(now));
            logCounted(QStringLiteral("slider.valueChanged(%1)").arg(now));
        });
        value->setText(tr("Value: %1").arg(m_slider->value()));
        return group(tr("Slider with a zero tick"), m_slider, value);
    }

    void addControls()
    {
        addSwitch(tr("Coloured tick"), true, [this](bool on) {
            //! [code]
            m_slider->setStyleSheet(
                on ? QStringLiteral("CustomSliderWithZeroTick { qproperty-tickWidth: 2; qproperty-tickHeight: 22;"
                                    " qproperty-topTickEndColor: #e61610; qproperty-centerTickColor: #1464f6;"
                                    " qproperty-bottomTickEndColor: #e61610; }")
                   : QStringLiteral("CustomSliderWithZeroTick { qproperty-tickWidth: 1; qproperty-tickHeight: 14;"
                                    " qproperty-topTickEndColor: gray; qproperty-centerTickColor: gray;"
                                    " qproperty-bottomTickEndColor: gray; }"));
            //! [code]
        });
        addSwitch(tr("Enabled"), true, [this](bool on) {
            for (QWidget* widget : {static_cast<QWidget*>(m_pen), static_cast<QWidget*>(m_style),
                                    static_cast<QWidget*>(m_width), static_cast<QWidget*>(m_slider)})
                widget->setEnabled(on);
        });
    }

    static QWidget* group(const QString& title, QWidget* control, QWidget* result)
    {
        auto* box = new QGroupBox(title);
        auto* layout = new QHBoxLayout(box);
        layout->addWidget(control, 0, Qt::AlignVCenter);
        layout->addWidget(result, 1);
        return box;
    }

    static QWidget* openList(QComboBox* box)
    {
        box->showPopup();
        return box->view()->window();
    }

    PenPicker* m_pen;
    CustomSliderWithZeroTick* m_slider;
    LineStyleComboBox* m_style = nullptr;
    LineWidthComboBox* m_width = nullptr;
};

const PageRegistration registration(130, QT_TRANSLATE_NOOP("Gallery", "Pens and lines"),
                                    [](QWidget* parent) { return new PensAndLinesPage(parent); });

} // namespace

} // namespace Gallery
