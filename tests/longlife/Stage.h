#pragma once

#include <QMainWindow>
#include <QStringList>

#include <functional>

/// The window of an application that is used: with one of every component, all side by side, for as long as it runs.
class Stage
{
public:
    Stage();
    ~Stage();

    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    QMainWindow& window() { return m_window; }
    /// All parts of a class, those inside of components too.
    template <typename Part>
    const QList<Part*> all() const
    {
        return m_window.findChildren<Part*>();
    }

    /// How many rounds there were: so that each differs from the one before, and all of them repeat.
    int round() const { return m_round; }
    void nextRound() { ++m_round; }

    /// Until nothing is queued any more.
    static void settle();
    /// Until @p condition holds; notes @p what where it does not come about.
    bool await(const std::function<bool()>& condition, const char* what);
    /// What did not go as it should have.
    const QStringList& failures() const { return m_failures; }

    /// Makes one of every component in a window, side by side.
    static void furnish(QMainWindow& window);

private:
    QMainWindow m_window;
    QStringList m_failures;
    int m_round = 0;
};
