#include "Page.h"
#include "PageRegistry.h"

#include <KQt/Ui/WidgetRenderer.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QDial>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <vector>

namespace Gallery {

namespace {

using Kestrel::Gui::WidgetRenderer;

/// Left the widgets, right the picture of them. A renderer watches the whole application, so this one lives only while
/// it composes: otherwise it would take over the gallery itself, which lies in the same part of the screen.
class WidgetRendererPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::WidgetRendererPage)

public:
    explicit WidgetRendererPage(QWidget* parent)
        : Page(tr("The widgets are drawn into the picture beside them, and cut out of their window. "
                  "Cut out, they still answer to the mouse."),
               parent)
    {
        auto* columns = new QHBoxLayout;
        columns->addWidget(createCoveredWidgets());
        columns->addWidget(createPicture());
        columns->addStretch();
        stage()->addLayout(columns);
        stage()->addStretch();

        auto* compose = new QPushButton(tr("Compose"));
        connect(compose, &QPushButton::clicked, this, [this] { composePicture(); });
        controls()->addRow(compose);
        auto* giveBack = new QPushButton(tr("Give back"));
        connect(giveBack, &QPushButton::clicked, this, [this] { giveWidgetsBack(); });
        controls()->addRow(giveBack);
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        Page::showEvent(event);
        // Once everything has its place.
        QTimer::singleShot(0, this, [this] { composePicture(); });
    }

private:
    QWidget* createCoveredWidgets()
    {
        m_area = new QFrame;
        m_area->setFrameShape(QFrame::StyledPanel);
        auto* layout = new QVBoxLayout(m_area);
        auto* button = new QPushButton(tr("Button"));
        connect(button, &QPushButton::clicked, this, [this] { log(QStringLiteral("QPushButton.clicked()")); });
        auto* box = new QCheckBox(tr("Check box"));
        connect(box, &QCheckBox::toggled, this, [this](bool on) {
            log(QStringLiteral("QCheckBox.toggled(%1)").arg(on ? QStringLiteral("true") : QStringLiteral("false")));
        });
        auto* progress = new QProgressBar;
        progress->setValue(40);
        auto* dial = new QDial;
        connect(dial, &QDial::valueChanged, progress, &QProgressBar::setValue);
        for (QWidget* widget : std::initializer_list<QWidget*>{button, box, progress, dial})
            layout->addWidget(holderOf(widget));
        return m_area;
    }

    /// The renderer maps a widget's frame by the widget itself, which is right where it lies at its parent's origin.
    QWidget* holderOf(QWidget* widget)
    {
        auto* holder = new QWidget;
        widget->setParent(holder);
        widget->setGeometry(QRect(QPoint(0, 0), widget->sizeHint()));
        holder->setFixedSize(widget->size());
        m_covered.push_back(widget);
        return holder;
    }

    QWidget* createPicture()
    {
        m_picture = new QLabel;
        m_picture->setFrameShape(QFrame::StyledPanel);
        m_picture->setAlignment(Qt::AlignCenter);
        return m_picture;
    }

    void composePicture()
    {
        if (!isVisible())
            return;
        giveWidgetsBack();
        const QRect area(m_area->mapToGlobal(QPoint(0, 0)), m_area->size());
        //! [code]
        WidgetRenderer renderer(m_area, nullptr);
        // Widgets are drawn where they lie on the screen, so the picture begins with the screen.
        renderer.ChangeRendererFrame(QRect(QPoint(0, 0), area.bottomRight()));
        for (QWidget* widget : m_covered) {
            widget->hide();
            widget->show();
        }
        const QPixmap& picture = renderer.GetMaskImage();
        //! [code]
        const qreal ratio = picture.devicePixelRatio();
        m_picture->setPixmap(picture.copy(QRect(area.topLeft() * ratio, area.size() * ratio)));
        log(QStringLiteral("WidgetRenderer.GetMaskImage(): %1 x %2").arg(picture.width()).arg(picture.height()));
    }

    void giveWidgetsBack()
    {
        for (QWidget* widget : m_covered) {
            //! [code]
            widget->setMask(QRegion());
            widget->setAttribute(Qt::WA_MouseNoMask, false);
            //! [code]
        }
    }

    std::vector<QWidget*> m_covered;
    QFrame* m_area = nullptr;
    QLabel* m_picture = nullptr;
};

const PageRegistration registration(230, QT_TRANSLATE_NOOP("Gallery", "Widget renderer"),
                                    [](QWidget* parent) { return new WidgetRendererPage(parent); });

} // namespace

} // namespace Gallery
