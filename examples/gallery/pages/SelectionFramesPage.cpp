#include "Page.h"
#include "PageRegistry.h"
#include "widgets/FrameStage.h"
#include "widgets/PaintedPicture.h"
#include "widgets/RenderedPreview.h"

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/SelectionFrameWidget/ImageWatermarkItem.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameItem.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>
#include <KQt/Ui/SelectionFrameWidget/TextWatermarkItem.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>

//! [shows] SelectionFrameGraphicsItem ISelectionFrameEventHandler IFrameRenderSource

namespace Gallery {

namespace {

using Kestrel::Gui::AdvancedColorPicker;
using Kestrel::Gui::ImageWatermarkItem;
using Kestrel::Gui::SelectionFrameItem;
using Kestrel::Gui::TextWatermarkItem;

constexpr QSize stageSize(320, 224);
constexpr int initialMargin = 20;
constexpr int initialTransparency = 100;

QPixmap badge()
{
    constexpr QSize size(160, 80);
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x1464f6));
    constexpr int radius = 24;
    painter.drawRoundedRect(pixmap.rect(), radius, radius);
    painter.setBrush(QColor(0xfefb64));
    painter.drawEllipse(QRect(14, 14, 52, 52));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRect(80, 22, 62, 12), 6, 6);
    painter.drawRoundedRect(QRect(80, 46, 44, 12), 6, 6);
    return pixmap;
}

class SelectionFramesPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::SelectionFramesPage)

public:
    explicit SelectionFramesPage(QWidget* parent)
        : Page(tr("Drag the frames, their corners and their sides. The small picture is what the frames are rendered "
                  "to, with its alpha."),
               parent)
        , m_stage(new FrameStage(new PaintedPicture, stageSize))
        , m_preview(new RenderedPreview)
    {
        // One rendering for all that happens at once.
        m_rendering.setSingleShot(true);
        m_rendering.setInterval(0);
        connect(&m_rendering, &QTimer::timeout, this, [this] { render(); });

        auto* pictures = new QHBoxLayout;
        pictures->addWidget(m_stage, 0, Qt::AlignTop);
        pictures->addWidget(m_preview, 1);
        stage()->addLayout(pictures);
        stage()->addLayout(m_readOuts);
        stage()->addStretch(1);

        m_image = addFrame<ImageWatermarkItem>(tr("Picture"), QStringLiteral("picture"));
        m_text = addFrame<TextWatermarkItem>(tr("Text"), QStringLiteral("text"));
        m_region = addFrame<SelectionFrameItem>(tr("Region"), QStringLiteral("region"));
        // The region's veil comes first: it would clear what lies below it.
        m_region->setZValue(-1);
        //! [code]
        m_stage->frames()->EnableEditMode(true);

        const QRectF work = m_stage->setWorkMargin(initialMargin);
        m_image->Initialize(work, {});
        m_image->SetImage(badge(), QRectF(34, 46, 110, 55));
        m_text->SetText(tr("Holiday by the sea"));
        m_text->SetFont(QFont(QStringLiteral("Noto Sans"), fontPoints));
        m_text->Initialize(work, QRectF(40, 145, 120, 36));
        m_region->Initialize(work, QRectF(180, 56, 100, 120));
        //! [code]
        addControls();
        render();
    }

private:
    static constexpr int fontPoints = 22;

    template <typename Item>
    Item* addFrame(const QString& label, const QString& name)
    {
        auto* readOut = new QLabel;
        const int row = m_readOuts->rowCount();
        m_readOuts->addWidget(new QLabel(label), row, 0);
        m_readOuts->addWidget(readOut, row, 1);
        constexpr int readOutColumn = 1;
        m_readOuts->setColumnStretch(readOutColumn, 1);

        FrameStage::Listener listener;
        listener.stateChanged = [this, name] {
            log(QStringLiteral("%1.InteractionStateChanged()").arg(name));
            m_rendering.start();
        };
        listener.frameChanged = [this, name, readOut](const QRectF& frame) {
            logCounted(QStringLiteral("%1.FrameChanged()").arg(name));
            readOut->setText(relativeText(frame));
            m_rendering.start();
        };
        //! [code]
        auto* item = new Item(m_stage->createHandler(std::move(listener)));
        m_stage->addFrame(item);
        //! [code]
        return item;
    }

    static QString relativeText(const QRectF& frame)
    {
        constexpr int digits = 3;
        const auto number = [](double value) { return QString::number(value, 'f', digits); };
        return QStringLiteral("x %1   y %2   w %3   h %4")
            .arg(number(frame.x()), number(frame.y()), number(frame.width()), number(frame.height()));
    }

    void addControls()
    {
        addSwitch(tr("Picture keeps its ratio"), true, [this](bool on) { m_image->SetKeepAspectRatio(on); });
        addSwitch(tr("Region keeps its ratio"), false, [this](bool on) { m_region->SetKeepAspectRatio(on); });
        addSlider(tr("Work rect"), 0, 80, initialMargin, [this](int margin) { setWorkMargin(margin); });
        addSlider(tr("Clear"), 0, 255, initialTransparency, [this](int value) {
            m_image->SetTransparency(value);
            m_rendering.start();
        });
        addText();
        addFont();
        addColor(tr("Fill"), m_text->GetFillColor(), [this](const QColor& color) { m_text->SetFillColor(color); });
        addColor(tr("Outline"), m_text->GetOutlineColor(),
                 [this](const QColor& color) { m_text->SetOutlineColor(color); });
    }

    void addSlider(const QString& label, int least, int most, int value, const std::function<void(int)>& apply)
    {
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setRange(least, most);
        slider->setValue(value);
        connect(slider, &QSlider::valueChanged, this, apply);
        controls()->addRow(label, slider);
        apply(value);
    }

    void addText()
    {
        auto* edit = new QLineEdit(m_text->GetText());
        connect(edit, &QLineEdit::textChanged, this, [this](const QString& text) {
            m_text->SetText(text);
            m_text->SetFrameInScene(m_text->GetFrameInScene()); // makes room for a longer text
        });
        controls()->addRow(tr("Text"), edit);
    }

    void addFont()
    {
        auto* box = new QFontComboBox;
        constexpr int narrow = 10;
        box->setMinimumContentsLength(narrow);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setCurrentFont(m_text->GetFont());
        connect(box, &QFontComboBox::currentFontChanged, this, [this](QFont font) {
            font.setPointSize(fontPoints);
            m_text->SetFont(font);
            m_rendering.start();
        });
        controls()->addRow(tr("Font"), box);
    }

    void addColor(const QString& label, const QColor& color, const std::function<void(const QColor&)>& set)
    {
        constexpr QSize size(64, 28);
        auto* picker = new AdvancedColorPicker;
        picker->setFixedSize(size);
        picker->setAccessibleName(label);
        picker->setColor(color);
        const auto apply = [this, set](const QColor& chosen) {
            set(chosen);
            m_rendering.start();
        };
        connect(picker, &AdvancedColorPicker::changedColor, this, apply);
        connect(picker, &AdvancedColorPicker::doneSelectionWithColor, this, apply);
        controls()->addRow(label, picker);
    }

    void setWorkMargin(int margin)
    {
        const QRectF work = m_stage->setWorkMargin(margin);
        m_image->Initialize(work, m_image->GetFrameInScene());
        m_text->Initialize(work, m_text->GetFrameInScene());
        m_region->Initialize(work, m_region->GetFrameInScene());
    }

    //! [code]
    void render() { m_preview->setImage(m_stage->frames()->RenderToImage()); }
    //! [code]

    FrameStage* m_stage;
    RenderedPreview* m_preview;
    QGridLayout* m_readOuts = new QGridLayout;
    QTimer m_rendering;
    ImageWatermarkItem* m_image = nullptr;
    TextWatermarkItem* m_text = nullptr;
    SelectionFrameItem* m_region = nullptr;
};

const PageRegistration registration(20, QT_TRANSLATE_NOOP("Gallery", "Selection frames"),
                                    [](QWidget* parent) { return new SelectionFramesPage(parent); });

} // namespace

} // namespace Gallery
