#include "Stage.h"

#include <chaos/Kinds.h>

#include <QApplication>
#include <QEvent>
#include <QTest>

Stage::Stage()
{
    furnish(m_window);
}

Stage::~Stage() = default;

void Stage::furnish(QMainWindow& window)
{
    constexpr int columns = 7;
    constexpr QSize cell(210, 160);
    auto* const board = new QWidget;
    window.setCentralWidget(board);
    window.resize(columns * cell.width(), 5 * cell.height());
    window.show();
    int place = 0;
    for (const Kind& kind : kinds()) {
        auto* const widget = qobject_cast<QWidget*>(kind.make(board));
        if (!widget)
            continue;
        if (!widget->parent())
            widget->setParent(board); // PreviewImageLabel takes none from its constructor
        if (!widget->isWindow())
            widget->move(place % columns * cell.width(), place / columns * cell.height());
        ++place;
        // A popup of its own is opened by those who want it.
        if (!widget->windowFlags().testFlag(Qt::Popup))
            widget->show();
    }
}

void Stage::settle()
{
    constexpr int often = 3; // what is handled may queue something
    for (int time = 0; time < often; ++time) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

bool Stage::await(const std::function<bool()>& condition, const char* what)
{
    if (QTest::qWaitFor(condition))
        return true;
    const QString failure = QString::fromLatin1(what);
    if (!m_failures.contains(failure))
        m_failures << failure;
    return false;
}
