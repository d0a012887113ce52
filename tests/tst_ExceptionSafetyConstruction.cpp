#include <KQt/Ui/SelectionFrameWidget/ImageWatermarkItem.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameItem.h>
#include <KQt/Ui/SelectionFrameWidget/TextWatermarkItem.h>
#include <KQt/Ui/SeparatorDelegate.h>
#include <KQt/Ui/WidgetMouseHandler.h>
#include <KQt/Ui/WidgetRenderer.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include "support/Thrown.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QProxyStyle>
#include <QtTest>

#include <functional>
#include <memory>
#include <stdexcept>

using namespace Kestrel::Gui;
using TestSupport::Fuse;
using TestSupport::isThrownBy;

namespace {

using Construct = std::function<void()>;
using ConstructIn = std::function<void(QGraphicsItem*)>;

/// Whether @p construct is refused with @p message.
bool isRefused(const Construct& construct, const char* message)
{
    try {
        construct();
    } catch (const std::invalid_argument& error) {
        return QByteArray(error.what()).startsWith(QByteArray(message) + '\n');
    }
    return false;
}

template <typename Item>
void constructIn(QGraphicsItem* parent)
{
    const Item item(nullptr, parent);
}

/// Throws while it polishes or unpolishes one of the widgets that it was asked to look for.
class FailingStyle : public QProxyStyle
{
public:
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;

    void polish(QWidget* widget) override
    {
        QProxyStyle::polish(widget);
        onPolish();
    }
    void unpolish(QWidget* widget) override
    {
        QProxyStyle::unpolish(widget);
        onUnpolish();
    }

    Fuse onPolish;
    Fuse onUnpolish;
};

} // namespace

Q_DECLARE_METATYPE(Construct)
Q_DECLARE_METATYPE(ConstructIn)

/// What throws while it is built leaves nothing of it behind.
class tst_ExceptionSafetyConstruction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handlersWithoutAParentAreRefused_data();
    void handlersWithoutAParentAreRefused();
    void aRefusedRendererLeavesItsParentAlone();
    void aRefusedFrameLeavesItsParentAlone_data();
    void aRefusedFrameLeavesItsParentAlone();
    void aStyleThatThrowsLeavesNoSeparatorLook_data();
    void aStyleThatThrowsLeavesNoSeparatorLook();
};

void tst_ExceptionSafetyConstruction::handlersWithoutAParentAreRefused_data()
{
    QTest::addColumn<Construct>("construct");
    QTest::newRow("mouse handler") << Construct([] { const WidgetMouseHandler handler(nullptr); });
    QTest::newRow("resize handler") << Construct([] { const WidgetResizeHandler handler(nullptr); });
}

void tst_ExceptionSafetyConstruction::handlersWithoutAParentAreRefused()
{
    QFETCH(Construct, construct);
    QVERIFY(isRefused(construct, "Parent object can't be NULL"));
}

// Its parent has taken it already when the tracked widget is looked at, and a filter would show in the parent's mask.
void tst_ExceptionSafetyConstruction::aRefusedRendererLeavesItsParentAlone()
{
    QObject parent;
    QVERIFY(isRefused([&parent] { const WidgetRenderer renderer(nullptr, &parent); }, "trackedWidget is NULL"));
    QVERIFY(isRefused([&parent] { new WidgetRenderer(nullptr, &parent); }, "trackedWidget is NULL"));
    QCOMPARE(parent.children(), QObjectList());

    QWidget window;
    QWidget child(&window);
    child.setMask(QRegion(1, 1, 5, 5));
    window.show();
    QCOMPARE(child.mask(), QRegion(1, 1, 5, 5));
}

void tst_ExceptionSafetyConstruction::aRefusedFrameLeavesItsParentAlone_data()
{
    QTest::addColumn<ConstructIn>("construct");
    QTest::newRow("frame") << ConstructIn(&constructIn<SelectionFrameItem>);
    QTest::newRow("picture") << ConstructIn(&constructIn<ImageWatermarkItem>);
    QTest::newRow("text") << ConstructIn(&constructIn<TextWatermarkItem>);
}

void tst_ExceptionSafetyConstruction::aRefusedFrameLeavesItsParentAlone()
{
    QFETCH(ConstructIn, construct);
    QGraphicsScene scene(0, 0, 100, 100);
    QGraphicsView view(&scene);
    QGraphicsItem* parent = scene.addRect(10, 10, 30, 30);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QImage before = view.grab().toImage();

    QVERIFY(isRefused([&] { construct(parent); }, "eventHandler is NULL"));
    QCOMPARE(parent->childItems(), QList<QGraphicsItem*>());
    QCOMPARE(scene.items(), QList<QGraphicsItem*>{parent});
    QCoreApplication::processEvents();
    QCOMPARE(view.grab().toImage(), before);
    QCOMPARE(scene.itemAt(QPointF(20, 20), QTransform()), parent);
}

void tst_ExceptionSafetyConstruction::aStyleThatThrowsLeavesNoSeparatorLook_data()
{
    QTest::addColumn<bool>("polishing");
    QTest::newRow("polish") << true;
    QTest::newRow("unpolish") << false;
}

void tst_ExceptionSafetyConstruction::aStyleThatThrowsLeavesNoSeparatorLook()
{
    QFETCH(bool, polishing);
    auto* style = new FailingStyle;
    QApplication::setStyle(style); // takes it
    QWidget parent;
    const QObjectList children = parent.children();

    (polishing ? style->onPolish : style->onUnpolish).arm();
    QVERIFY(isThrownBy([&parent] { const SeparatorDelegate delegate(&parent); }));
    QCOMPARE(parent.children(), children);

    const SeparatorDelegate delegate(&parent);
    QCOMPARE(parent.children().size(), children.size() + 2); // the delegate and its look
    QApplication::setStyle(QStringLiteral("fusion"));
}

QTEST_MAIN(tst_ExceptionSafetyConstruction)
#include "tst_ExceptionSafetyConstruction.moc"
