#include "Tour.h"

#include "GalleryHint.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QCoreApplication>
#include <QSettings>
#include <QToolBar>
#include <QWidget>

namespace Gallery {

namespace {

const char* const Context = "Gallery::Tour";

QString neverAgainKey()
{
    return QStringLiteral("tour/neverAgain");
}

QString name(const char* text)
{
    return QString::fromLatin1(text);
}

/// Each hint waits for its turn, for its target and for the hint before it.
HintDescription hint(const char* hintName, const char* target, const char* alignment, const char* previous,
                     const char* title, const char* text)
{
    QStringList conditions = {name(hintName) + QStringLiteral("/ready"), name(target) + QStringLiteral("/active")};
    if (previous)
        conditions << name(previous) + QStringLiteral("/finished");
    return {name(hintName), name(target), name(alignment), conditions, title, text};
}

QVector<HintDescription> hints()
{
    return {
        hint("tour-pages", "page-list", "right", nullptr, QT_TRANSLATE_NOOP("Gallery::Tour", "Welcome to the gallery"),
             QT_TRANSLATE_NOOP("Gallery::Tour", "Every family of components has a page of its own, and all of them are "
                                                "alive. The tour shows you around in a minute.")),
        hint("tour-filter", "page-filter", "right", "tour-pages", QT_TRANSLATE_NOOP("Gallery::Tour", "Find a page"),
             QT_TRANSLATE_NOOP("Gallery::Tour", "Type part of a title. The arrow keys move through the pages that are "
                                                "left.")),
        hint("tour-appearance", "appearance", "bottom", "tour-filter",
             QT_TRANSLATE_NOOP("Gallery::Tour", "Dark, and from right to left"),
             QT_TRANSLATE_NOOP("Gallery::Tour",
                               "These two switches are one target: the frame goes round both. This hint stays clear of "
                               "the filter, so that you can go on typing.")),
        hint("tour-language", "language", "bottom", "tour-appearance",
             QT_TRANSLATE_NOOP("Gallery::Tour", "In your language"),
             QT_TRANSLATE_NOOP("Gallery::Tour",
                               "The texts change at once, those of this hint as well. Clicking what a hint points at "
                               "takes you on, just as Next does.")),
        hint("tour-open", "page-list", "right", "tour-language", QT_TRANSLATE_NOOP("Gallery::Tour", "Open a page"),
             QT_TRANSLATE_NOOP("Gallery::Tour", "Choose \"Walkthrough\" in the list. The last hint waits for that page "
                                                "to be opened.")),
        hint("tour-walkthrough", "walkthrough-states", "bottom", "tour-open",
             QT_TRANSLATE_NOOP("Gallery::Tour", "How the tour works"),
             QT_TRANSLATE_NOOP("Gallery::Tour",
                               "A walkthrough is a machine of named states. Here you see another one at work, and can "
                               "drive it yourself.")),
    };
}

void mark(QWidget* widget, const char* target)
{
    if (widget)
        widget->setProperty(Kestrel::Gui::WalkthroughHint::widgetPropertyName(), name(target));
}

} // namespace

Tour::Tour(QWidget& window, QSettings& settings)
    : m_settings(settings)
{
    markTargets(window);
    m_controller.addHints(new GalleryHint(Context, hints()));
    connect(&m_controller, &Kestrel::Gui::WalkthroughController::hintsDisabledForever, this,
            [this] { m_settings.setValue(neverAgainKey(), true); });
    if (m_settings.value(neverAgainKey()).toBool())
        m_controller.setEnabled(false);
}

Tour::~Tour() = default;

void Tour::markTargets(QWidget& window)
{
    auto* filter = window.findChild<QWidget*>(QStringLiteral("filter"));
    mark(filter, "page-filter");
    // A press on the list is one on its viewport.
    if (const auto* list = window.findChild<QAbstractScrollArea*>(QStringLiteral("pages")))
        mark(list->viewport(), "page-list");
    mark(window.findChild<QWidget*>(QStringLiteral("language")), "language");
    const auto* bar = window.findChild<QToolBar*>();
    for (const QString& action : {QStringLiteral("dark"), QStringLiteral("rightToLeft")}) {
        if (bar)
            mark(bar->widgetForAction(window.findChild<QAction*>(action)), "appearance");
    }
    m_controller.setAvoidWidget(filter);
}

} // namespace Gallery
