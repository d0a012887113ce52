#include "Page.h"
#include "PageRegistry.h"
#include "widgets/PaintedPicture.h"

#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>

#include <QCoreApplication>
#include <QDockWidget>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QVBoxLayout>

namespace Gallery {

namespace {

using Kestrel::Gui::PreviewImageLabel;
using Kestrel::Gui::StyledDockWidgetTitlebar;

constexpr QSize tileSize(150, 96);
constexpr int tileColumns = 2;
constexpr int tileCount = 4;

/// Buttons and labels over a picture, whatever the palette; a floating panel's restore button is marked.
QString styleSheetOfTilesAndTitleBar()
{
    return QStringLiteral(
        "QToolButton[styleTag=\"star\"] { border: none; background: transparent; min-width: 24px; min-height: 24px;"
        " image: url(:/icons/star.png); }"
        "QToolButton[styleTag=\"play\"] { border: none; border-radius: 20px; min-width: 40px; min-height: 40px;"
        " padding: 0; background: rgba(0, 0, 0, 120); image: url(:/icons/play.png); }"
        "QToolButton[styleTag=\"play\"]:pressed { background: palette(highlight); }"
        "QToolButton[styleTag=\"play\"]:disabled { background: rgba(128, 128, 128, 60); }"
        "QLabel[styleTag=\"duration\"] { color: white; background: rgba(0, 0, 0, 150); border-radius: 3px; }"
        "#Border { border: 1px solid palette(mid); }"
        "#icon { padding: 0 4px; }"
        "#Restore, #Close { border: none; min-width: 22px; min-height: 18px; }"
        "#Restore { image: url(:/icons/restore.png); }"
        "#Close { image: url(:/icons/close.png); }"
        "#Restore:hover, #Close:hover { background: palette(midlight); }"
        "Kestrel--Gui--StyledDockWidgetTitlebar[floating=\"true\"] #Restore { background: palette(highlight); }");
}

class TilesPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::TilesPage)

public:
    explicit TilesPage(QWidget* parent)
        : Page(tr("Tiles with a star, a play button and a duration over a picture; and a panel whose title bar can be "
                  "dragged, detached and closed."),
               parent)
        , m_dock(new QDockWidget)
        , m_titleBar(new StyledDockWidgetTitlebar(m_dock))
    {
        setStyleSheet(styleSheetOfTilesAndTitleBar());
        stage()->addWidget(createWindow(), 1);
        connectTitleBar();
        addControls();
    }

private:
    QWidget* createWindow()
    {
        auto* list = new QListWidget;
        list->addItems({tr("Sunrise"), tr("Noon"), tr("Sunset"), tr("Night")});
        //! [code]
        m_dock->setTitleBarWidget(m_titleBar);
        m_dock->setWidget(list);
        //! [code]

        auto* window = new QMainWindow;
        window->setWindowFlags(Qt::Widget); // a part of the page
        window->setCentralWidget(createTiles());
        window->addDockWidget(Qt::RightDockWidgetArea, m_dock);
        return window;
    }

    QWidget* createTiles()
    {
        auto* board = new QWidget;
        auto* grid = new QGridLayout(board);
        for (int i = 0; i < tileCount; ++i)
            grid->addWidget(createTile(i), i / tileColumns, i % tileColumns);
        grid->setRowStretch(tileCount / tileColumns, 1);
        grid->setColumnStretch(tileColumns, 1);
        return board;
    }

    PreviewImageLabel* createTile(int number)
    {
        //! [code]
        auto* tile = new PreviewImageLabel;
        //! [code]
        PaintedPicture picture;
        picture.resize(tileSize);
        //! [code]
        tile->setPixmap(picture.grab());
        tile->setFixedSize(tileSize);
        tile->setStarIsVisible(number % 2 == 0);
        tile->setPlayIsVisible(true);
        //! [code]
        QLabel* duration = tile->GetDurationLabel();
        duration->setText(QStringLiteral("%1:%2").arg(number).arg(17 * (number + 1) % 60, 2, 10, QLatin1Char('0')));
        constexpr int gap = 6;
        duration->setAlignment(Qt::AlignCenter);
        duration->resize(duration->sizeHint().expandedTo({40, 18}));
        duration->move(gap, tileSize.height() - gap - duration->height());
        //! [code]
        connect(tile, &PreviewImageLabel::starClicked, this,
                [this, number] { log(QStringLiteral("tile %1: starClicked()").arg(number + 1)); });
        //! [code]
        connect(tile, &PreviewImageLabel::playClicked, this,
                [this, number] { log(QStringLiteral("tile %1: playClicked()").arg(number + 1)); });
        m_tiles.append(tile);
        return tile;
    }

    void connectTitleBar()
    {
        //! [code]
        connect(m_titleBar, &StyledDockWidgetTitlebar::Close, this, [this] {
            log(QStringLiteral("Close()"));
            m_dock->close();
        });
        //! [code]
        connect(m_titleBar, &StyledDockWidgetTitlebar::Detach, this, [this] {
            log(QStringLiteral("Detach()"));
            m_dock->setFloating(!m_dock->isFloating());
        });
        connect(m_dock, &QDockWidget::topLevelChanged, this, [this](bool floating) {
            m_titleBar->SetFloating(floating);
            m_titleBar->SetRestoreButtonTooltip(floating ? tr("Pin playlist") : tr("Unpin playlist"));
        });
    }

    void addControls()
    {
        addSwitch(tr("Stars"), true, [this](bool on) {
            for (int i = 0; i < m_tiles.size(); i += 2)
                m_tiles.at(i)->setStarIsVisible(on);
        });
        addSwitch(tr("Play buttons"), true, [this](bool on) {
            for (PreviewImageLabel* tile : qAsConst(m_tiles))
                tile->setPlayIsVisible(on);
        });
        addSwitch(tr("Clips can be played"), true, [this](bool on) {
            for (PreviewImageLabel* tile : qAsConst(m_tiles))
                tile->SetItemsEnabled(on);
        });
        addSwitch(tr("Styled as floating"), false, [this](bool on) { m_titleBar->SetFloating(on); });
        auto* show = new QPushButton(tr("Show the panel"));
        connect(show, &QPushButton::clicked, m_dock, &QDockWidget::show);
        controls()->addRow(show);
    }

    QDockWidget* m_dock;
    StyledDockWidgetTitlebar* m_titleBar;
    QList<PreviewImageLabel*> m_tiles;
};

const PageRegistration registration(330, QT_TRANSLATE_NOOP("Gallery", "Tiles and title bars"),
                                    [](QWidget* parent) { return new TilesPage(parent); });

} // namespace

} // namespace Gallery
