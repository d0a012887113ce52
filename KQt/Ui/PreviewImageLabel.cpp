#include <KQt/Ui/PreviewImageLabel.h>

#include <KQt/Ui/Accessibility/InstallAccessibility.h>

#include <QEvent>
#include <QToolButton>
#include <QVariant>

namespace Kestrel::Gui {

namespace {

void tag(QWidget* child, const QString& objectName, const QString& role)
{
    child->setObjectName(objectName);
    child->setProperty("styleTag", role);
}

QString starToolTip()
{
    //: Tool tip of the star on the preview of a picture or film: tells, and on a click shows, which effects were
    //: applied to it.
    return PreviewImageLabel::tr("Applied effects");
}

} // namespace

PreviewImageLabel::PreviewImageLabel(QWidget* parent)
    : QLabel(nullptr)
    , m_star(new QToolButton(this))
    , m_play(new QToolButton(this))
    , m_duration(new QLabel(this))
{
    Detail::installAccessibility();
    Q_UNUSED(parent)
    tag(m_star, QStringLiteral("starButton"), QStringLiteral("star"));
    m_star->setToolTip(starToolTip());
    m_star->installEventFilter(this);
    m_star->hide();

    tag(m_play, QStringLiteral("playButton"), QStringLiteral("play"));
    m_play->installEventFilter(this);
    m_play->hide();

    tag(m_duration, QStringLiteral("durationLabel"), QStringLiteral("duration"));
    m_duration->setAlignment(Qt::AlignCenter);
}

PreviewImageLabel::~PreviewImageLabel() = default;

QLabel* PreviewImageLabel::GetDurationLabel()
{
    return m_duration;
}

bool PreviewImageLabel::getStarIsVisible() const
{
    return m_star->isVisible();
}

void PreviewImageLabel::setStarIsVisible(bool visible)
{
    m_star->setVisible(visible);
}

bool PreviewImageLabel::getPlayIsVisible() const
{
    return m_play->isVisible();
}

void PreviewImageLabel::setPlayIsVisible(bool visible)
{
    m_play->setVisible(visible);
}

void PreviewImageLabel::SetItemsEnabled(bool enabled)
{
    // Twice the play button and never the star: the star stays usable on a tile whose clip cannot be played.
    m_play->setEnabled(enabled);
    m_play->setEnabled(enabled);
}

bool PreviewImageLabel::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        pressButton(watched);
        return true;
    case QEvent::MouseButtonRelease:
        releaseButton(watched);
        return true;
    case QEvent::ContextMenu:
        return true;
    case QEvent::LanguageChange:
        m_star->setToolTip(starToolTip());
        return QObject::eventFilter(watched, event);
    default:
        return QObject::eventFilter(watched, event);
    }
}

void PreviewImageLabel::pressButton(QObject* button)
{
    if (button == m_star && m_star->isEnabled())
        m_star->setDown(true);
    else if (button == m_play && m_play->isEnabled())
        m_play->setDown(true);
}

void PreviewImageLabel::releaseButton(QObject* button)
{
    // The star asks for the play button's state and not for its own, unlike the press.
    if (button == m_star && m_play->isEnabled()) {
        m_star->setDown(false);
        Q_EMIT starClicked();
    } else if (button == m_play && m_play->isEnabled()) {
        m_play->setDown(false);
        Q_EMIT playClicked();
    }
}

void PreviewImageLabel::resizeEvent(QResizeEvent* event)
{
    Q_UNUSED(event)
    constexpr int starTop = 9;
    m_star->ensurePolished();
    m_star->move(width() - m_star->width(), starTop);
    m_play->ensurePolished();
    m_play->move(width() / 2 - m_play->width() / 2, height() / 2 - m_play->height() / 2);
}

} // namespace Kestrel::Gui
