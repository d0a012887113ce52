#include "Page.h"
#include "PageRegistry.h"
#include "widgets/FrameStage.h"

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameItem.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>

namespace Gallery {

namespace {

using Kestrel::Gui::AdvancedColorPicker;
using Kestrel::Gui::SelectionFrameItem;

constexpr QSize stageSize(520, 300);
constexpr int initialMargin = 30;

class FrameOverWindowPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::FrameOverWindowPage)

public:
    explicit FrameOverWindowPage(QWidget* parent)
        : Page(tr("The window below goes on living while the frame lies over it. In edit mode the mouse moves the "
                  "frame; otherwise it reaches the window."),
               parent)
        , m_stage(new FrameStage(createLiveWindow(), stageSize))
        , m_readOut(new QLabel)
    {
        stage()->addWidget(m_stage, 0, Qt::AlignHCenter);
        stage()->addWidget(m_readOut, 0, Qt::AlignHCenter);
        stage()->addStretch(1);
        addFrame();
        addControls();
    }

private:
    QWidget* createLiveWindow()
    {
        auto* window = new QWidget;
        window->setAutoFillBackground(true);
        auto* layout = new QVBoxLayout(window);
        constexpr int margin = 40;
        layout->setContentsMargins(margin, margin, margin, margin);

        auto* edit = new QLineEdit;
        edit->setPlaceholderText(tr("Type here while edit mode is off"));
        auto* button = new QPushButton(tr("Press here while edit mode is off"));
        connect(button, &QPushButton::clicked, this, [this] { log(QStringLiteral("button.clicked()")); });
        auto* progress = new QProgressBar;
        constexpr int someProgress = 40;
        progress->setValue(someProgress);
        auto* clock = new QTimer(progress);
        connect(clock, &QTimer::timeout, progress,
                [progress] { progress->setValue((progress->value() + 1) % progress->maximum()); });
        constexpr int step = 200;
        clock->start(step);

        layout->addWidget(new QLabel(tr("A window with its own life")));
        layout->addWidget(edit);
        layout->addWidget(button);
        layout->addWidget(progress);
        layout->addStretch(1);
        return window;
    }

    void addFrame()
    {
        FrameStage::Listener listener;
        listener.stateChanged = [this] { log(QStringLiteral("frame.InteractionStateChanged()")); };
        listener.frameChanged = [this](const QRectF& frame) { showFrame(frame); };
        //! [code]
        m_frame = new SelectionFrameItem(m_stage->createHandler(listener));
        m_stage->addFrame(m_frame);
        m_frame->Initialize(m_stage->setWorkMargin(initialMargin), QRectF(150, 90, 220, 120));
        //! [code]
    }

    void showFrame(const QRectF& frame)
    {
        logCounted(QStringLiteral("frame.FrameChanged()"));
        constexpr int percent = 100;
        m_readOut->setText(tr("From %1 %, %2 %: %3 % wide, %4 % high", "position and size of the frame")
                               .arg(QString::number(qRound(frame.x() * percent)),
                                    QString::number(qRound(frame.y() * percent)),
                                    QString::number(qRound(frame.width() * percent)),
                                    QString::number(qRound(frame.height() * percent))));
    }

    void addControls()
    {
        addSwitch(tr("Edit mode"), true, [this](bool on) {
            //! [code]
            m_stage->frames()->EnableEditMode(on);
            if (!on)
                m_stage->unsetCursor();
            //! [code]
        });
        addSwitch(tr("Keep the ratio"), false, [this](bool on) { m_frame->SetKeepAspectRatio(on); });

        auto* margin = new QSlider(Qt::Horizontal);
        constexpr int widest = 100;
        margin->setRange(0, widest);
        margin->setValue(initialMargin);
        connect(margin, &QSlider::valueChanged, this,
                [this](int value) { m_frame->Initialize(m_stage->setWorkMargin(value), m_frame->GetFrameInScene()); });
        controls()->addRow(tr("Work rect"), margin);

        constexpr QSize size(64, 28);
        auto* veil = new AdvancedColorPicker;
        veil->setFixedSize(size);
        veil->setAccessibleName(tr("Veil"));
        veil->setOpacityAdjustmentAvailable(false);
        veil->setColor(Qt::black);
        //! [code]
        const auto apply = [this](const QColor& color) { m_stage->frames()->SetBGColor(color); };
        connect(veil, &AdvancedColorPicker::changedColor, this, apply);
        connect(veil, &AdvancedColorPicker::doneSelectionWithColor, this, apply);
        //! [code]
        controls()->addRow(tr("Veil"), veil);
    }

    FrameStage* m_stage;
    QLabel* m_readOut;
    SelectionFrameItem* m_frame = nullptr;
};

const PageRegistration registration(30, QT_TRANSLATE_NOOP("Gallery", "Frame over a window"),
                                    [](QWidget* parent) { return new FrameOverWindowPage(parent); });

} // namespace

} // namespace Gallery
