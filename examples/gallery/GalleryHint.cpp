#include "GalleryHint.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace Gallery {

namespace {

constexpr int Padding = 12;
constexpr int FrameWidth = 2;

/// One hint's texts.
class HintPage : public QWidget
{
public:
    explicit HintPage(const HintDescription& description)
        : m_description(description)
        , m_title(new QLabel)
        , m_text(new QLabel)
    {
        setProperty("walkthroughName", description.name);
        setProperty("walkthroughWidget", description.target);
        setProperty("walkthroughConditionList", description.conditions);
        alignToDirection();

        QFont font = m_title->font();
        font.setBold(true);
        m_title->setFont(font);
        for (QLabel* label : {m_title, m_text}) {
            label->setForegroundRole(QPalette::Text);
            label->setWordWrap(true);
        }
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_title);
        layout->addWidget(m_text);
        layout->addStretch();
    }

    QLabel* textLabel() const { return m_text; }
    QString title() const { return m_title->text(); }

    void setTexts(const char* context)
    {
        m_title->setText(QCoreApplication::translate(context, m_description.title));
        m_text->setText(QCoreApplication::translate(context, m_description.text));
    }

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LayoutDirectionChange)
            alignToDirection();
        QWidget::changeEvent(event);
    }

private:
    /// A hint's sides are those of the screen; the gallery is mirrored where texts run from right to left.
    void alignToDirection()
    {
        QString side = m_description.alignment;
        if (isRightToLeft() && side == QLatin1String("right"))
            side = QStringLiteral("left");
        setProperty("walkthroughAlignment", side);
    }

    HintDescription m_description;
    QLabel* m_title;
    QLabel* m_text;
};

HintPage* pageOf(QWidget* widget)
{
    return dynamic_cast<HintPage*>(widget);
}

} // namespace

GalleryHint::GalleryHint(const char* context, const QVector<HintDescription>& descriptions)
    : m_context(context)
    , m_descriptions(descriptions)
    , m_pages(new QStackedWidget)
    , m_next(addButton("next"))
    , m_notNow(addButton("notNow"))
    , m_neverAgain(addButton("neverAgain"))
{
    for (const HintDescription& description : descriptions)
        addPage(description);

    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {m_next, m_notNow, m_neverAgain})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Padding, Padding, Padding, Padding);
    layout->addWidget(m_pages, 1);
    layout->addLayout(buttons);

    connect(m_next, &QPushButton::clicked, this, &GalleryHint::finish);
    connect(m_notNow, &QPushButton::clicked, this, [this] {
        disableHintsForSession();
        finish();
    });
    connect(m_neverAgain, &QPushButton::clicked, this, [this] {
        disableHintsForever();
        finish();
    });
    setTexts();
}

GalleryHint::~GalleryHint() = default;

void GalleryHint::addPage(const HintDescription& description)
{
    m_pages->addWidget(new HintPage(description));
}

QPushButton* GalleryHint::addButton(const char* name)
{
    auto* button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    // Outside a dialog the Return key presses only such a button.
    button->setAutoDefault(true);
    return button;
}

void GalleryHint::setTexts()
{
    m_next->setText(tr("Next"));
    m_notNow->setText(tr("Not now"));
    m_neverAgain->setText(tr("Never again"));
    for (int i = 0; i < m_pages->count(); ++i) {
        if (HintPage* page = pageOf(m_pages->widget(i)))
            page->setTexts(m_context);
    }
    if (const HintPage* page = pageOf(m_pages->currentWidget()))
        setAccessibleName(page->title());
}

Kestrel::Gui::WalkthroughHint* GalleryHint::clone() const
{
    return new GalleryHint(m_context, m_descriptions);
}

QStackedWidget* GalleryHint::stackedWidget() const
{
    return m_pages;
}

QLabel* GalleryHint::textLabel() const
{
    const HintPage* page = pageOf(m_pages->currentWidget());
    return page ? page->textLabel() : nullptr;
}

QAbstractButton* GalleryHint::closeButton() const
{
    return m_next;
}

QAbstractButton* GalleryHint::disableForSessionButton() const
{
    return m_notNow;
}

QAbstractButton* GalleryHint::disableForeverButton() const
{
    return m_neverAgain;
}

void GalleryHint::start(QSet<QWidget*> targets)
{
    WalkthroughHint::start(targets);
    setTexts();
    if (auto* frame = qobject_cast<QFrame*>(getTargetWidget())) {
        frame->setFrameStyle(QFrame::Box | QFrame::Plain);
        frame->setLineWidth(FrameWidth);
        frame->setForegroundRole(QPalette::Highlight);
    }
}

/// A few words wide, or what the buttons need, and as high as the text is then.
QSize GalleryHint::sizeHint() const
{
    constexpr int textWidth = 44; // characters
    ensurePolished();
    const int width = qMax(layout()->minimumSize().width(), fontMetrics().averageCharWidth() * textWidth);
    return {width, layout()->hasHeightForWidth() ? layout()->heightForWidth(width) : layout()->sizeHint().height()};
}

void GalleryHint::limitTextSize(QSize size)
{
    if (QLabel* label = textLabel())
        label->setMaximumSize(size.boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)));
}

void GalleryHint::changeEvent(QEvent* event)
{
    WalkthroughHint::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    setTexts();
    updateHintPosition();
}

void GalleryHint::showEvent(QShowEvent* event)
{
    WalkthroughHint::showEvent(event);
    raise();
    m_focusedBefore = QApplication::focusWidget();
    m_next->setFocus(Qt::OtherFocusReason);
}

void GalleryHint::hideEvent(QHideEvent* event)
{
    if (m_focusedBefore && isAncestorOf(QApplication::focusWidget()))
        m_focusedBefore->setFocus(Qt::OtherFocusReason);
    WalkthroughHint::hideEvent(event);
}

void GalleryHint::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        m_notNow->click();
    else
        WalkthroughHint::keyPressEvent(event);
}

void GalleryHint::paintEvent(QPaintEvent* /*event*/)
{
    constexpr qreal radius = 6;
    constexpr qreal half = FrameWidth / 2.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().highlight(), FrameWidth));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), radius, radius);
}

} // namespace Gallery
