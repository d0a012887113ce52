#include <KQt/Ui/WalkthroughController.h>
#include <KQt/Ui/WalkthroughHint.h>

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Kestrel::Gui;

//! [hint]
// What a hint looks like: a text and three buttons on a yellow ground.
class TourHint : public WalkthroughHint
{
public:
    TourHint()
        : m_pages(new QStackedWidget)
        , m_next(new QPushButton(QStringLiteral("Next")))
        , m_notNow(new QPushButton(QStringLiteral("Not now")))
        , m_never(new QPushButton(QStringLiteral("Never again")))
    {
        setAutoFillBackground(true);
        setPalette(QPalette(QColor(255, 250, 210)));

        auto* buttons = new QHBoxLayout;
        for (QPushButton* button : {m_next, m_notNow, m_never})
            buttons->addWidget(button);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(m_pages);
        layout->addLayout(buttons);

        // Asked for first, kept until the hint is finished.
        connect(m_notNow, &QPushButton::clicked, this, &TourHint::disableHintsForSession);
        connect(m_never, &QPushButton::clicked, this, &TourHint::disableHintsForever);
        for (QPushButton* button : {m_next, m_notNow, m_never})
            connect(button, &QPushButton::clicked, this, &TourHint::finish);

        addPages();
    }

    // A new hint with the same pages in the same order.
    WalkthroughHint* clone() const override { return new TourHint; }
    QStackedWidget* stackedWidget() const override { return m_pages; }
    QLabel* textLabel() const override { return qobject_cast<QLabel*>(m_pages->currentWidget()); }
    QAbstractButton* closeButton() const override { return m_next; }
    QAbstractButton* disableForSessionButton() const override { return m_notNow; }
    QAbstractButton* disableForeverButton() const override { return m_never; }

    // The frame around the targets has no look of its own.
    void start(QSet<QWidget*> targets) override
    {
        WalkthroughHint::start(targets);
        if (auto* frame = qobject_cast<QFrame*>(getTargetWidget()))
            frame->setStyleSheet(QStringLiteral("border: 2px solid #c04000;"));
    }

private:
    void addPages();
    void addPage(const QString& name, const QString& target, const QString& alignment, const QStringList& conditions,
                 const QString& text);

    QStackedWidget* m_pages;
    QPushButton* m_next;
    QPushButton* m_notNow;
    QPushButton* m_never;
};
//! [hint]

//! [pages]
void TourHint::addPage(const QString& name, const QString& target, const QString& alignment,
                       const QStringList& conditions, const QString& text)
{
    auto* page = new QLabel(text);
    page->setProperty("walkthroughName", name);
    page->setProperty("walkthroughWidget", target);
    page->setProperty("walkthroughAlignment", alignment);
    page->setProperty("walkthroughConditionList", conditions);
    m_pages->addWidget(page);
}

void TourHint::addPages()
{
    addPage(QStringLiteral("find"), QStringLiteral("search"), QStringLiteral("bottom"),
            {QStringLiteral("find/ready"), QStringLiteral("search/active")},
            QStringLiteral("Type here to find a note."));
    // Waits until the first hint was closed.
    addPage(QStringLiteral("write"), QStringLiteral("editor"), QStringLiteral("left"),
            {QStringLiteral("write/ready"), QStringLiteral("editor/active"), QStringLiteral("find/finished")},
            QStringLiteral("This is where you write."));
    // Waits for something that the application reports itself.
    addPage(QStringLiteral("keep"), QStringLiteral("save"), QStringLiteral("bottom"),
            {QStringLiteral("keep/ready"), QStringLiteral("save/active"), QStringLiteral("text/changed")},
            QStringLiteral("Save what you wrote."));
}
//! [pages]

//! [main]
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);

    QMainWindow window;
    auto* search = new QLineEdit;
    auto* save = new QPushButton(QStringLiteral("Save"));
    auto* editor = new QTextEdit;
    auto* bar = window.addToolBar(QStringLiteral("Notes"));
    bar->addWidget(search);
    bar->addWidget(save);
    window.setCentralWidget(editor);
    window.resize(560, 360);

    // Which widgets the hints point at.
    search->setProperty(WalkthroughHint::widgetPropertyName(), QStringLiteral("search"));
    save->setProperty(WalkthroughHint::widgetPropertyName(), QStringLiteral("save"));
    editor->setProperty(WalkthroughHint::widgetPropertyName(), QStringLiteral("editor"));

    // The controller has to exist before the widgets are shown for the first time.
    WalkthroughController controller;
    // A group of the application's own starts in the state that is made first. The conditions of the hints make states,
    // too, so this one comes before them.
    controller.findOrCreateState(QStringLiteral("text/unchanged"));
    controller.addHints(new TourHint);
    QObject::connect(editor, &QTextEdit::textChanged, &controller,
                     [&controller] { controller.gotoState(QStringLiteral("text/changed")); });

    // "Never again" is the application's to remember.
    QSettings settings(QStringLiteral("kqtui"), QStringLiteral("guide-tour"));
    if (settings.value(QStringLiteral("noHints")).toBool())
        controller.setEnabled(false);
    QObject::connect(&controller, &WalkthroughController::hintsDisabledForever, &window,
                     [&settings] { settings.setValue(QStringLiteral("noHints"), true); });

    window.show();
    return QApplication::exec();
}
//! [main]
