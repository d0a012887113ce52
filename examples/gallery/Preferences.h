#pragma once

#include "CommandLine.h"

QT_BEGIN_NAMESPACE
class QSettings;
QT_END_NAMESPACE

namespace Gallery {

class MainWindow;

/// What a user chose in the window, kept from one start to the next: palette, direction, language, page, and where the
/// window was.
class Preferences
{
public:
    /// @param settings must outlive this
    explicit Preferences(QSettings& settings);

    /// @p options where they say something, what was kept where they do not, and else what everyone begins with.
    /// What was kept and is no longer known, as a page of another version, counts as not kept.
    Options completed(Options options) const;

    void restoreArrangement(MainWindow& window) const;
    void keep(const MainWindow& window);

private:
    QSettings& m_settings;
};

} // namespace Gallery
