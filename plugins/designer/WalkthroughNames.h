#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui::Designer {

/// The names that a form gives to targets and hints, and the conditions that can be made of them.
struct WalkthroughNames
{
    QStringList targets; ///< each once, sorted
    QStringList hints;   ///< each once, sorted

    /// The names in a form: on its main container and on all widgets in it.
    static WalkthroughNames in(const QWidget& mainContainer);

    void add(const QString& target, const QString& hint);

    /// Conditions that can complete @p typed: every hint with "ready", "finished" and "disabled", every target with
    /// "active" and "inactive", and all five for a name that is typed with its "/" and not known here.
    QStringList conditions(const QString& typed = {}) const;
};

/// Whether a condition has the form of a name, "/" and a state.
bool isCondition(const QString& text);

} // namespace Kestrel::Gui::Designer
