#pragma once

#include <KQt/Ui/WalkthroughController.h>

#include <QObject>

QT_BEGIN_NAMESPACE
class QSettings;
class QWidget;
QT_END_NAMESPACE

namespace Gallery {

/// The walkthrough of the gallery itself: six hints, one after the other, of which the last waits for a page.
///
/// Once its user has said "Never again", that stands in the settings, and no later tour shows anything.
class Tour : public QObject
{
    Q_OBJECT

public:
    /// Make it before the window is shown: hints wait for their targets to appear.
    /// @param settings where "Never again" is kept; must outlive the tour, as must the window
    Tour(QWidget& window, QSettings& settings);
    ~Tour() override;

    Kestrel::Gui::WalkthroughController& controller() { return m_controller; }

private:
    void markTargets(QWidget& window);

    QSettings& m_settings;
    Kestrel::Gui::WalkthroughController m_controller;
};

} // namespace Gallery
