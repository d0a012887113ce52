#pragma once

#include "Appearance.h"

#include <QMainWindow>

#include <vector>

QT_BEGIN_NAMESPACE
class QAction;
class QActionGroup;
class QMenu;
class QSplitter;
class QStackedWidget;
class QToolButton;
QT_END_NAMESPACE

namespace Gallery {

class LanguageSwitch;
class PageFrame;
class PageList;

/// The gallery's window: the list of pages, the current page, and the switches for palette, direction and language.
///
/// A page is built when it is first shown and again after the language changed.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param language must outlive the window
    explicit MainWindow(LanguageSwitch& language, QWidget* parent = nullptr);

    /// The page on view.
    PageFrame* currentFrame() const;
    /// Its PageRegistration::slug().
    QString currentPage() const;

    Scheme scheme() const;
    QString language() const;

    /// Size, place and division of the window, for restoreArrangement().
    QByteArray arrangement() const;
    /// @p arrangement: anything but what arrangement() returned changes nothing.
    void restoreArrangement(const QByteArray& arrangement);

public Q_SLOTS:
    void setScheme(Gallery::Scheme scheme);
    void setRightToLeft(bool rightToLeft);
    /// Changes all texts, and the layout direction to that of the language.
    void setLanguage(const QString& code);
    /// @param slug PageRegistration::slug(); any other text changes nothing
    void showPage(const QString& slug);

private:
    void createActions();
    void createLanguageActions();
    void createMenus();
    void createToolBar();
    void createCentralWidget();
    void setTexts();
    void dropPages();
    void showPageAt(int position);

    LanguageSwitch& m_language;
    QAction* m_find;
    QAction* m_quit;
    QAction* m_dark;
    QAction* m_rightToLeft;
    QActionGroup* m_languages;
    QMenu* m_fileMenu;
    QMenu* m_viewMenu;
    QMenu* m_languageMenu;
    QToolButton* m_languageButton;
    QSplitter* m_splitter;
    PageList* m_list;
    QStackedWidget* m_stack;
    std::vector<QWidget*> m_built; ///< by position in the list; null: not built yet
};

} // namespace Gallery
