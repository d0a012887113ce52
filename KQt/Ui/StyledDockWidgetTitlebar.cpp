#include <KQt/Ui/StyledDockWidgetTitlebar.h>

#include <KQt/Ui/Accessibility/InstallAccessibility.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QSpacerItem>
#include <QStyle>
#include <QVariant>
#include <QVBoxLayout>

namespace Kestrel::Gui {

namespace {

constexpr int barHeight = 25;
constexpr int initialWidth = 493;

template <typename Object>
Object* named(Object* object, const char* name)
{
    object->setObjectName(QString::fromLatin1(name));
    return object;
}

void removeGaps(QLayout* layout)
{
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
}

QString translated(const char* text)
{
    // The context of the form and not of the class, as in the translations that applications have.
    return QCoreApplication::translate("StyledDockWidgetTitlebar", text);
}

} // namespace

/// The children of the title bar, owned by it; built, filled and assembled in the order of the members.
struct StyledDockWidgetTitlebar::Form
{
    explicit Form(QWidget* bar)
        : outerLayout(named(new QHBoxLayout(bar), "horizontalLayout_2"))
        , border(named(new QFrame(bar), "Border"))
        , gridLayout(named(new QGridLayout(border), "gridLayout"))
        , rowLayout(named(new QHBoxLayout, "horizontalLayout"))
        , icon(named(new QLabel(border), "icon"))
        , titleLayout(named(new QVBoxLayout, "verticalLayout"))
        , title(named(new QLabel(border), "Title"))
        , restore(named(new QPushButton(border), "Restore"))
        , close(named(new QPushButton(border), "Close"))
        , line(named(new QFrame(border), "line"))
    {
        configure();
        assemble();
    }

    void configure()
    {
        removeGaps(outerLayout);
        border->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        border->setMinimumSize(0, barHeight);
        border->setMaximumSize(QWIDGETSIZE_MAX, barHeight);
        border->setFrameShape(QFrame::StyledPanel);
        border->setFrameShadow(QFrame::Raised);
        removeGaps(gridLayout);
        rowLayout->setSpacing(0);
        icon->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
        icon->setPixmap(QPixmap(QStringLiteral(":/SharedObjectsQt/Resources/Playlist/dragdrop.png")));
        icon->setAlignment(Qt::AlignCenter);
        titleLayout->setSpacing(0);
        title->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
        title->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        for (QPushButton* button : {restore, close}) {
            button->setMinimumSize(0, 0);
            button->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
            button->setStyleSheet(QString());
            button->setText(QString());
        }
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Sunken);
    }

    void assemble()
    {
        constexpr QSize gapAboveTitle(20, 2);
        rowLayout->addWidget(icon);
        titleLayout->addItem(
            new QSpacerItem(gapAboveTitle.width(), gapAboveTitle.height(), QSizePolicy::Minimum, QSizePolicy::Fixed));
        titleLayout->addWidget(title);
        rowLayout->addLayout(titleLayout);
        rowLayout->addWidget(restore);
        rowLayout->addWidget(close);
        gridLayout->addLayout(rowLayout, 0, 0, 1, 1);
        gridLayout->addWidget(line, 1, 0, 1, 1);
        outerLayout->addWidget(border);
    }

    QHBoxLayout* outerLayout;
    QFrame* border;
    QGridLayout* gridLayout;
    QHBoxLayout* rowLayout;
    QLabel* icon;
    QVBoxLayout* titleLayout;
    QLabel* title;
    QPushButton* restore;
    QPushButton* close;
    QFrame* line;
};

StyledDockWidgetTitlebar::StyledDockWidgetTitlebar(QWidget* parent)
    : QWidget(parent)
{
    Detail::installAccessibility();
    if (objectName().isEmpty())
        setObjectName(QStringLiteral("StyledDockWidgetTitlebar"));
    resize(initialWidth, barHeight);
    setMaximumHeight(barHeight); // no layout shall make it taller
    setStyleSheet(QString());
    setProperty("floating", false);
    m_form = std::make_unique<Form>(this);
    retranslate();
    QMetaObject::connectSlotsByName(this);

    const std::initializer_list<QWidget*> wholeRect = {m_form->restore, m_form->close, m_form->icon, m_form->title,
                                                       m_form->border};
    for (QWidget* widget : wholeRect)
        widget->setAttribute(Qt::WA_LayoutUsesWidgetRect);
    connect(m_form->close, &QPushButton::clicked, this, &StyledDockWidgetTitlebar::Close);
    connect(m_form->restore, &QPushButton::clicked, this, &StyledDockWidgetTitlebar::Detach);
}

StyledDockWidgetTitlebar::~StyledDockWidgetTitlebar() = default;

void StyledDockWidgetTitlebar::SetFloating(bool floating)
{
    setProperty("floating", floating);
    style()->unpolish(m_form->restore);
    style()->polish(m_form->restore);
}

void StyledDockWidgetTitlebar::SetRestoreButtonTooltip(const QString& text)
{
    m_form->restore->setToolTip(text);
}

void StyledDockWidgetTitlebar::changeEvent(QEvent* event)
{
    // Nothing goes to the base class. A style sheet may be set before the form exists: there is nothing to retranslate.
    if (event->type() == QEvent::LanguageChange && m_form)
        retranslate();
}

void StyledDockWidgetTitlebar::retranslate()
{
    //: Name of the component; seen only where the bar is a window of its own. Stays as it is in every language.
    setWindowTitle(translated(QT_TRANSLATE_NOOP("StyledDockWidgetTitlebar", "StyledDockWidgetTitlebar")));
    //: Title of a dock panel with a list of media to be played. At most about 30 letters.
    m_form->title->setText(translated(QT_TRANSLATE_NOOP("StyledDockWidgetTitlebar", "Playlist")));
    //: Tool tip of a button: detaches the playlist's panel from the window, so that it floats.
    m_form->restore->setToolTip(translated(QT_TRANSLATE_NOOP("StyledDockWidgetTitlebar", "Unpin playlist")));
    //: Tool tip of a button: closes the playlist's panel. A verb.
    m_form->close->setToolTip(translated(QT_TRANSLATE_NOOP("StyledDockWidgetTitlebar", "Close")));
}

} // namespace Kestrel::Gui
