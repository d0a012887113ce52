#include "Page.h"
#include "PageRegistry.h"

#include <KQt/Ui/AnypointWidgetDrag.h>
#include <KQt/Ui/DragDropEventFilter.h>
#include <KQt/Ui/IDragDropEventFilterObserver.h>

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>
#include <memory>
#include <utility>

namespace Gallery {

namespace {

using Kestrel::Gui::AnypointWidgetDrag;
using Kestrel::Gui::DragDropEventFilter;
using Kestrel::Gui::IDragDropEventFilterObserver;

/// Votes for URLs with one of its endings and reports what it hears.
class Voter : public IDragDropEventFilterObserver
{
public:
    Voter(QString name, QStringList endings, std::function<void(const QString&)> report)
        : m_name(std::move(name))
        , m_endings(std::move(endings))
        , m_report(std::move(report))
    {
    }

    //! [code]
    bool CanDropUrl(const std::string& url) override
    {
        const QString text = QString::fromStdString(url);
        bool vote = false;
        for (const QString& ending : qAsConst(m_endings))
            vote = vote || text.endsWith(ending, Qt::CaseInsensitive);
        m_report(QStringLiteral("%1.CanDropUrl(\"%2\"): %3")
                     .arg(m_name, text, vote ? QStringLiteral("true") : QStringLiteral("false")));
        return vote;
    }
    //! [code]

    void DropUrl(const std::string& path) override
    {
        m_report(QStringLiteral("%1.DropUrl(\"%2\")").arg(m_name, QString::fromStdString(path)));
    }

private:
    QString m_name;
    QStringList m_endings;
    std::function<void(const QString&)> m_report;
};

/// Lets go of a button by which the widget was dragged: the button never sees the release.
class PanelDrag : public AnypointWidgetDrag
{
public:
    using AnypointWidgetDrag::AnypointWidgetDrag;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool consumed = AnypointWidgetDrag::eventFilter(watched, event);
        auto* button = qobject_cast<QAbstractButton*>(watched);
        if (consumed && button)
            button->setDown(false);
        return consumed;
    }
};

class DropAndDragPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::DropAndDragPage)

public:
    explicit DropAndDragPage(QWidget* parent)
        : Page(tr("Drop files from a file manager: one observer takes pictures, the other texts, and each hears of "
                  "everything that is dropped. Drag the panel by any point, its button included: what was dragged is "
                  "not clicked."),
               parent)
        , m_filter(new DragDropEventFilter(this))
        , m_pictures(QStringLiteral("pictures"), {QStringLiteral(".png"), QStringLiteral(".jpg")},
                     [this](const QString& line) { logCounted(line); })
        , m_texts(QStringLiteral("texts"), {QStringLiteral(".txt"), QStringLiteral(".md")},
                  [this](const QString& line) { logCounted(line); })
    {
        stage()->addWidget(createDropZone(), 1);
        stage()->addWidget(createField(), 2);
        addSwitch(tr("Pictures are welcome"), true, [this](bool on) { install(&m_pictures, on); });
        addSwitch(tr("Texts are welcome"), true, [this](bool on) { install(&m_texts, on); });
    }

private:
    QWidget* createDropZone()
    {
        auto* zone = new QLabel(tr("Drop pictures or texts here"));
        zone->setAlignment(Qt::AlignCenter);
        zone->setFrameShape(QFrame::StyledPanel);
        //! [code]
        zone->setAcceptDrops(true);
        zone->installEventFilter(m_filter);
        //! [code]
        return zone;
    }

    /// What the panel moves in.
    QWidget* createField()
    {
        auto* field = new QFrame;
        field->setFrameShape(QFrame::StyledPanel);
        field->setFrameShadow(QFrame::Sunken);
        constexpr QPoint panelPosition(40, 24);
        createPanel(field)->move(panelPosition);
        return field;
    }

    QWidget* createPanel(QWidget* field)
    {
        auto* panel = new QFrame(field);
        panel->setFrameShape(QFrame::StyledPanel);
        panel->setBackgroundRole(QPalette::Window);
        panel->setAutoFillBackground(true);
        panel->setCursor(Qt::SizeAllCursor);
        auto* text = new QLabel(tr("Drag me anywhere"));
        auto* button = new QPushButton(tr("Click me"));
        auto* layout = new QVBoxLayout(panel);
        layout->addWidget(text);
        layout->addWidget(button);

        //! [code]
        auto* drag = new PanelDrag(panel, panel);
        panel->installEventFilter(drag);
        button->installEventFilter(drag);
        //! [code]
        connect(button, &QPushButton::clicked, this, [this] { log(QStringLiteral("clicked()")); });
        return panel;
    }

    void install(IDragDropEventFilterObserver* observer, bool on)
    {
        //! [code]
        if (on)
            m_filter->InstallDragDropObserver(observer);
        else
            m_filter->RemoveDragDropObserver(observer);
        //! [code]
    }

    DragDropEventFilter* m_filter;
    Voter m_pictures;
    Voter m_texts;
};

const PageRegistration registration(430, QT_TRANSLATE_NOOP("Gallery", "Drop and drag"),
                                    [](QWidget* parent) { return new DropAndDragPage(parent); });

} // namespace

} // namespace Gallery
