#include <KQt/Ui/FontStylePicker.h>
#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>
#include <KQt/Ui/TextAlignPicker.h>

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

using namespace Kestrel::Gui;

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);

    // The pickers' buttons have no icons of their own; here they get letters.
    application.setStyleSheet(QStringLiteral("QToolButton[styleTag=\"Bold\"] { font-weight: bold; }"
                                             "QToolButton[styleTag=\"Italic\"] { font-style: italic; }"
                                             "#durationLabel { color: white; padding: 2px; }"));

    QMainWindow window;
    auto* text = new QLabel(QStringLiteral("The quick brown fox"));
    window.setCentralWidget(text);

    auto* style = new FontStylePicker;
    auto* alignment = new TextAlignPicker;
    // In the order in which they stand.
    const auto letters = [](QWidget* picker, const QStringList& names) {
        const QList<QToolButton*> buttons = picker->findChildren<QToolButton*>();
        for (int i = 0; i < qMin(buttons.size(), names.size()); ++i)
            buttons[i]->setText(names[i]);
    };
    letters(style, {QStringLiteral("B"), QStringLiteral("I"), QStringLiteral("U")});
    letters(alignment, {QStringLiteral("L"), QStringLiteral("R"), QStringLiteral("J"), QStringLiteral("C")});
    auto* bar = window.addToolBar(QStringLiteral("Text"));
    bar->addWidget(style);
    bar->addWidget(alignment);
    QObject::connect(style, &FontStylePicker::styleChanged, text, [=] { text->setFont(style->apply(text->font())); });
    QObject::connect(alignment, &TextAlignPicker::alignmentChanged, text,
                     [text](Qt::Alignment wanted) { text->setAlignment(wanted | Qt::AlignVCenter); });

    // A panel with a title bar that can be styled, and a preview picture in it.
    auto* panel = new QDockWidget;
    auto* titleBar = new StyledDockWidgetTitlebar;
    panel->setTitleBarWidget(titleBar);
    titleBar->findChild<QPushButton*>(QStringLiteral("Restore"))->setText(QStringLiteral("^"));
    titleBar->findChild<QPushButton*>(QStringLiteral("Close"))->setText(QStringLiteral("x"));
    QObject::connect(titleBar, &StyledDockWidgetTitlebar::Close, panel, &QDockWidget::close);
    QObject::connect(titleBar, &StyledDockWidgetTitlebar::Detach, panel,
                     [panel] { panel->setFloating(!panel->isFloating()); });
    QObject::connect(panel, &QDockWidget::topLevelChanged, titleBar, &StyledDockWidgetTitlebar::SetFloating);

    auto* tile = new PreviewImageLabel;
    QPixmap picture(160, 90);
    picture.fill(Qt::darkGreen);
    tile->setPixmap(picture);
    tile->setStarIsVisible(true);
    tile->setPlayIsVisible(true);
    tile->GetDurationLabel()->setText(QStringLiteral("1:23"));
    QObject::connect(tile, &PreviewImageLabel::playClicked, text, [text] { text->setText(QStringLiteral("Playing")); });
    tile->findChild<QToolButton*>(QStringLiteral("starButton"))->setText(QStringLiteral("*"));
    tile->findChild<QToolButton*>(QStringLiteral("playButton"))->setText(QStringLiteral(">"));
    panel->setWidget(tile);
    window.addDockWidget(Qt::RightDockWidgetArea, panel);

    window.show();
    return QApplication::exec();
}
