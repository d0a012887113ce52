#include "MainWindow.h"

#include "LanguageSwitch.h"
#include "PageFrame.h"
#include "PageList.h"
#include "PageRegistry.h"

#include <QAction>
#include <QActionGroup>
#include <QDataStream>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace Gallery {

MainWindow::MainWindow(LanguageSwitch& language, QWidget* parent)
    : QMainWindow(parent)
    , m_language(language)
    , m_built(registeredPages().size())
{
    createActions();
    createLanguageActions();
    createMenus();
    createToolBar();
    createCentralWidget();
    setTexts();

    constexpr QSize comfortableSize(1280, 760); // for the widest page in every language
    resize(comfortableSize);
    m_list->setCurrent(0);
}

void MainWindow::createActions()
{
    m_find = new QAction(this);
    m_find->setShortcut(QKeySequence::Find);
    connect(m_find, &QAction::triggered, this, [this] { m_list->focusFilter(); });

    m_quit = new QAction(this);
    m_quit->setShortcut(QKeySequence::Quit);
    connect(m_quit, &QAction::triggered, this, &QWidget::close);

    m_dark = new QAction(this);
    m_dark->setObjectName(QStringLiteral("dark"));
    m_dark->setCheckable(true);
    m_dark->setShortcut(Qt::CTRL + Qt::Key_D);
    connect(m_dark, &QAction::toggled, this, [](bool on) { applyScheme(on ? Scheme::Dark : Scheme::Light); });

    m_rightToLeft = new QAction(this);
    m_rightToLeft->setObjectName(QStringLiteral("rightToLeft"));
    m_rightToLeft->setCheckable(true);
    m_rightToLeft->setShortcut(Qt::CTRL + Qt::Key_R);
    connect(m_rightToLeft, &QAction::toggled, this,
            [](bool on) { QGuiApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight); });
}

void MainWindow::createLanguageActions()
{
    m_languages = new QActionGroup(this);
    for (const Language& language : languages()) {
        auto* action = new QAction(language.name, m_languages);
        action->setObjectName(language.code);
        action->setCheckable(true);
        action->setChecked(language.code == m_language.code());
        connect(action, &QAction::triggered, this, [this, code = language.code] { setLanguage(code); });
    }
}

void MainWindow::createMenus()
{
    m_fileMenu = menuBar()->addMenu(QString());
    m_fileMenu->addAction(m_quit);

    m_viewMenu = menuBar()->addMenu(QString());
    m_viewMenu->addAction(m_find);
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(m_dark);
    m_viewMenu->addAction(m_rightToLeft);
    m_languageMenu = m_viewMenu->addMenu(QString());
    m_languageMenu->addActions(m_languages->actions());
}

void MainWindow::createToolBar()
{
    m_languageButton = new QToolButton;
    m_languageButton->setObjectName(QStringLiteral("language"));
    m_languageButton->setMenu(m_languageMenu);
    m_languageButton->setPopupMode(QToolButton::InstantPopup);
    m_languageButton->setFocusPolicy(Qt::TabFocus);

    auto* bar = addToolBar(QString());
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    bar->addAction(m_dark);
    bar->addAction(m_rightToLeft);
    bar->addSeparator();
    bar->addWidget(m_languageButton);
}

void MainWindow::createCentralWidget()
{
    m_list = new PageList;
    m_stack = new QStackedWidget;
    connect(m_list, &PageList::currentChanged, this, &MainWindow::showPageAt);

    m_splitter = new QSplitter;
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(m_list);
    m_splitter->addWidget(m_stack);
    m_splitter->setStretchFactor(1, 1);
    setCentralWidget(m_splitter);
}

void MainWindow::setTexts()
{
    setWindowTitle(tr("KQtUi gallery"));
    m_find->setText(tr("&Find a page"));
    m_quit->setText(tr("&Quit"));
    m_dark->setText(tr("&Dark palette"));
    m_rightToLeft->setText(tr("&Right to left"));
    m_fileMenu->setTitle(tr("&File"));
    m_viewMenu->setTitle(tr("&View"));
    m_languageMenu->setTitle(tr("&Language"));
    m_languageButton->setText(tr("Language: %1").arg(m_languages->checkedAction()->text()));

    QVector<PageList::Entry> entries;
    for (const PageRegistration& page : registeredPages())
        entries << PageList::Entry{page.translatedTitle(), page.source().components()};
    m_list->setEntries(entries);
}

void MainWindow::setScheme(Scheme scheme)
{
    m_dark->setChecked(scheme == Scheme::Dark);
}

void MainWindow::setRightToLeft(bool rightToLeft)
{
    m_rightToLeft->setChecked(rightToLeft);
}

void MainWindow::setLanguage(const QString& code)
{
    const auto actions = m_languages->actions();
    for (QAction* action : actions)
        action->setChecked(action->objectName() == code);
    m_language.use(code);
    m_rightToLeft->setChecked(QGuiApplication::isRightToLeft());
    dropPages();
    setTexts();
    showPageAt(m_list->current());
}

void MainWindow::dropPages()
{
    for (QWidget*& page : m_built) {
        delete page;
        page = nullptr;
    }
}

void MainWindow::showPage(const QString& slug)
{
    const auto pages = registeredPages();
    const auto page = std::find_if(pages.begin(), pages.end(),
                                   [&slug](const PageRegistration& candidate) { return candidate.slug() == slug; });
    if (page != pages.end())
        m_list->setCurrent(static_cast<int>(page - pages.begin()));
}

void MainWindow::showPageAt(int position)
{
    if (position < 0)
        return;
    QWidget*& built = m_built.at(static_cast<std::size_t>(position));
    if (!built) {
        auto* scroller = new QScrollArea;
        scroller->setFrameShape(QFrame::NoFrame);
        scroller->setWidgetResizable(true);
        scroller->setWidget(new PageFrame(registeredPages().at(static_cast<std::size_t>(position))));
        m_stack->addWidget(scroller);
        built = scroller;
    }
    m_stack->setCurrentWidget(built);
}

QString MainWindow::currentPage() const
{
    return registeredPages().at(static_cast<std::size_t>(m_list->current())).slug();
}

Scheme MainWindow::scheme() const
{
    return m_dark->isChecked() ? Scheme::Dark : Scheme::Light;
}

QString MainWindow::language() const
{
    return m_language.code();
}

QByteArray MainWindow::arrangement() const
{
    QByteArray result;
    QDataStream stream(&result, QIODevice::WriteOnly);
    stream << saveGeometry() << m_splitter->saveState();
    return result;
}

void MainWindow::restoreArrangement(const QByteArray& arrangement)
{
    QDataStream stream(arrangement);
    QByteArray geometry;
    QByteArray division;
    stream >> geometry >> division;
    restoreGeometry(geometry);
    m_splitter->restoreState(division);
}

PageFrame* MainWindow::currentFrame() const
{
    const auto* scroller = qobject_cast<QScrollArea*>(m_stack->currentWidget());
    return scroller ? qobject_cast<PageFrame*>(scroller->widget()) : nullptr;
}

} // namespace Gallery
