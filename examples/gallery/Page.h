#pragma once

#include <QWidget>

#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QFormLayout;
class QFrame;
class QTabWidget;
class QVBoxLayout;
QT_END_NAMESPACE

namespace Gallery {

class CodeView;
class SignalLog;

/// One page of the gallery: a stage with live components, controls for their properties beside it, and below a log of
/// their signals and, on a tab of its own, the code that makes them.
///
/// A page is built in its constructor: components into stage(), controls into controls(), and connections that call
/// log(). The gallery builds every page anew when the language changes, so texts are simply tr() where they are set.
class Page : public QWidget
{
    Q_OBJECT

public:
    /// Something that the page can open on top of itself, for the gallery's pictures.
    struct Popup
    {
        QString name;                   ///< part of the picture's file name: lower case, words joined by "-"
        std::function<QWidget*()> open; ///< shows it and returns the widget to take the picture of
    };

    /// @param introduction a sentence or two above the stage: what can be seen and tried here.
    explicit Page(const QString& introduction, QWidget* parent = nullptr);

    /// What the page can open; none by default. The gallery closes what it opened.
    virtual std::vector<Popup> popups();

    /// The lines that make what the page shows; without any there is no tab for them.
    void setCode(const QString& code);

    /// What holds the stage, for those who look at the page from outside.
    QFrame* stageFrame() const { return m_stageFrame; }

protected:
    QVBoxLayout* stage() const { return m_stage; }
    QFormLayout* controls() const { return m_controls; }
    void log(const QString& line);
    /// The same for signals that come in swarms: repetitions share one line, which counts them.
    void logCounted(const QString& line);

    /// Adds a check box to the controls and calls @p apply with its initial and every later state.
    void addSwitch(const QString& label, bool initial, std::function<void(bool)> apply);

private:
    QWidget* createUpperHalf();
    QWidget* createLogTab();
    QWidget* createCodeTab();

    QFrame* m_stageFrame;
    QVBoxLayout* m_stage;
    QFormLayout* m_controls;
    SignalLog* m_log;
    CodeView* m_code;
    QTabWidget* m_tabs;
};

} // namespace Gallery
