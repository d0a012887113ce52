#include <KQt/Ui/DisableDragAndDropEventFilter.h>

#include "support/AllEventTypes.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPointer>
#include <QtTest>

#include <memory>

using Kestrel::Gui::DisableDragAndDropEventFilter;

namespace {

/// Takes every drag and notes what it is handed.
class DropTarget : public QWidget
{
public:
    DropTarget() { setAcceptDrops(true); }

    QStringList calls;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override
    {
        calls << QStringLiteral("enter");
        event->acceptProposedAction();
    }
    void dragMoveEvent(QDragMoveEvent* event) override
    {
        calls << QStringLiteral("move");
        event->acceptProposedAction();
    }
    void dragLeaveEvent(QDragLeaveEvent*) override { calls << QStringLiteral("leave"); }
    void dropEvent(QDropEvent* event) override
    {
        calls << QStringLiteral("drop");
        event->acceptProposedAction();
    }
};

/// Opens the filter's protected function to direct calls.
class OpenFilter : public DisableDragAndDropEventFilter
{
public:
    using DisableDragAndDropEventFilter::DisableDragAndDropEventFilter;
    using DisableDragAndDropEventFilter::eventFilter;
};

std::unique_ptr<QEvent> makeDragEvent(QEvent::Type type, const QMimeData& data)
{
    const QPoint at(10, 10);
    switch (type) {
    case QEvent::DragEnter:
        return std::make_unique<QDragEnterEvent>(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    case QEvent::DragMove:
        return std::make_unique<QDragMoveEvent>(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    case QEvent::DragLeave:
        return std::make_unique<QDragLeaveEvent>();
    default:
        return std::make_unique<QDropEvent>(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    }
}

/// A drag over @p target from entering to @p last, as Qt's drag manager sends it.
void drag(QWidget* target, QEvent::Type last)
{
    QMimeData data;
    data.setText(QStringLiteral("dragged"));
    for (const QEvent::Type type : {QEvent::DragEnter, QEvent::DragMove, last})
        QCoreApplication::sendEvent(target, makeDragEvent(type, data).get());
}

} // namespace

class tst_DisableDragAndDropEventFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void noMethodsOfItsOwn();
    void installsItselfNowhere();
    void consumesDragAndDrop_data();
    void consumesDragAndDrop();
    void otherEventsPassUntouched();
    void protectsAWidget();
    void protectsFromADragThatIsUnderWay();
    void servesSeveralObjects();
    void endsWithItsParent();
};

void tst_DisableDragAndDropEventFilter::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DisableDragAndDropEventFilter::noMethodsOfItsOwn()
{
    const QMetaObject& metaObject = DisableDragAndDropEventFilter::staticMetaObject;
    QCOMPARE(metaObject.methodCount(), metaObject.methodOffset());
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
}

void tst_DisableDragAndDropEventFilter::installsItselfNowhere()
{
    const DisableDragAndDropEventFilter orphan;
    QVERIFY(!orphan.parent());

    DropTarget target;
    const DisableDragAndDropEventFilter filter(&target);
    QCOMPARE(filter.parent(), &target);
    drag(&target, QEvent::Drop);
    QCOMPARE(target.calls, QStringList({QStringLiteral("enter"), QStringLiteral("move"), QStringLiteral("drop")}));
}

void tst_DisableDragAndDropEventFilter::consumesDragAndDrop_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("DragEnter") << 60;
    QTest::newRow("DragMove") << 61;
    QTest::newRow("DragLeave") << 62;
    QTest::newRow("Drop") << 63;
}

void tst_DisableDragAndDropEventFilter::consumesDragAndDrop()
{
    QFETCH(int, type);
    const QMimeData data;
    const auto event = makeDragEvent(static_cast<QEvent::Type>(type), data);
    QCOMPARE(static_cast<int>(event->type()), type);
    OpenFilter filter;
    QObject watched;
    for (const bool accepted : {true, false}) {
        event->setAccepted(accepted);
        QVERIFY(filter.eventFilter(&watched, event.get()));
        QCOMPARE(event->isAccepted(), accepted);
    }
}

void tst_DisableDragAndDropEventFilter::otherEventsPassUntouched()
{
    OpenFilter filter;
    QObject watched;
    for (const QEvent::Type type :
         allEventTypesBut({QEvent::DragEnter, QEvent::DragMove, QEvent::DragLeave, QEvent::Drop})) {
        QEvent event(type);
        for (const bool accepted : {true, false}) {
            event.setAccepted(accepted);
            QVERIFY2(!filter.eventFilter(&watched, &event), QByteArray::number(type).constData());
            QCOMPARE(event.isAccepted(), accepted);
        }
    }
}

void tst_DisableDragAndDropEventFilter::protectsAWidget()
{
    DropTarget target;
    DisableDragAndDropEventFilter filter;
    target.installEventFilter(&filter);
    drag(&target, QEvent::Drop);
    drag(&target, QEvent::DragLeave);
    QVERIFY(target.calls.isEmpty());

    target.removeEventFilter(&filter);
    drag(&target, QEvent::Drop);
    QCOMPARE(target.calls, QStringList({QStringLiteral("enter"), QStringLiteral("move"), QStringLiteral("drop")}));
}

void tst_DisableDragAndDropEventFilter::protectsFromADragThatIsUnderWay()
{
    // Qt sends moves, leaves and drops only to a widget that has taken the drag: the filter comes in after that.
    const QMimeData data;
    for (const QEvent::Type type : {QEvent::DragMove, QEvent::DragLeave, QEvent::Drop}) {
        DropTarget target;
        DisableDragAndDropEventFilter filter;
        QCoreApplication::sendEvent(&target, makeDragEvent(QEvent::DragEnter, data).get());
        QCOMPARE(target.calls, QStringList({QStringLiteral("enter")}));
        target.installEventFilter(&filter);
        QCoreApplication::sendEvent(&target, makeDragEvent(type, data).get());
        QCOMPARE(target.calls.size(), 1);

        target.removeEventFilter(&filter);
        QCoreApplication::sendEvent(&target, makeDragEvent(QEvent::DragEnter, data).get());
        QCoreApplication::sendEvent(&target, makeDragEvent(type, data).get());
        QCOMPARE(target.calls.size(), 3);
        QCoreApplication::sendEvent(&target, makeDragEvent(QEvent::DragLeave, data).get());
    }
}

void tst_DisableDragAndDropEventFilter::servesSeveralObjects()
{
    DropTarget first;
    DropTarget second;
    DropTarget unprotected;
    DisableDragAndDropEventFilter filter;
    first.installEventFilter(&filter);
    second.installEventFilter(&filter);
    for (DropTarget* target : {&first, &second, &unprotected})
        drag(target, QEvent::Drop);
    QVERIFY(first.calls.isEmpty());
    QVERIFY(second.calls.isEmpty());
    QCOMPARE(unprotected.calls.size(), 3);
}

void tst_DisableDragAndDropEventFilter::endsWithItsParent()
{
    DropTarget target;
    auto owner = std::make_unique<QObject>();
    const QPointer<DisableDragAndDropEventFilter> filter(new DisableDragAndDropEventFilter(owner.get()));
    target.installEventFilter(filter);
    owner.reset();
    QVERIFY(!filter);
    drag(&target, QEvent::Drop);
    QCOMPARE(target.calls.size(), 3);
}

QTEST_MAIN(tst_DisableDragAndDropEventFilter)
#include "tst_DisableDragAndDropEventFilter.moc"
