#include "chaos/Kinds.h"
#include "chaos/Watchdog.h"
#include "support/ModalDialog.h"
#include "support/MouseEvents.h"
#include "support/ProcessThreads.h"
#include "support/TestHint.h"

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AlwaysOnTop.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>
#include <KQt/Ui/StandardDialogs.h>
#include <KQt/Ui/TaskbarProgress.h>
#include <KQt/Ui/WalkthroughController.h>

#include <QComboBox>
#include <QDirIterator>
#include <QFile>
#include <QFileDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QRegularExpression>
#include <QWindow>

#include <QtTest>

using namespace Kestrel::Gui;
using TestSupport::ThreadWatch;

namespace {

/// Qt's own threads, by the names that the system knows. QtDBus has one for its connections, which stays, and the list
/// of files in Qt's file dialog one that looks at the disk as long as the dialog is there.
const QString& busThread()
{
    static const QString name = QStringLiteral("QDBusConnection");
    return name;
}
const QString& fileListThread()
{
    static const QString name = QStringLiteral("QFileInfoGather");
    return name;
}

void click(QWidget& widget)
{
    const QPointer<QWidget> self(&widget);
    const QPoint center = widget.rect().center();
    TestSupport::sendMouse(&widget, QEvent::MouseButtonPress, center, Qt::LeftButton, Qt::LeftButton);
    if (self)
        TestSupport::sendMouse(&widget, QEvent::MouseMove, center + QPoint(20, 20), Qt::NoButton, Qt::LeftButton);
    if (self)
        TestSupport::sendMouse(&widget, QEvent::MouseButtonRelease, center, Qt::LeftButton, Qt::NoButton);
}

void openPopup(QObject* object)
{
    if (auto* const box = qobject_cast<QComboBox*>(object))
        box->showPopup();
    else if (auto* const advanced = qobject_cast<AdvancedColorPicker*>(object))
        advanced->showPopup();
    else if (auto* const named = qobject_cast<RColorPicker*>(object))
        named->showPopup();
    else if (auto* const frames = qobject_cast<SelectionFrameWidget*>(object))
        frames->RenderToImage();
}

void closePopups()
{
    while (QWidget* const popup = QApplication::activePopupWidget())
        popup->close();
}

class OnTop : private Helpers::AlwaysOnTop
{
public:
    explicit OnTop(QWidget& window)
        : AlwaysOnTop(window)
    {
    }
    using AlwaysOnTop::SetAlwaysOnTop;
};

/// Exported classes that are no kind of their own, and with which kind or test they come.
const QMap<QString, QString>& companions()
{
    static const QMap<QString, QString> all = {
        {QStringLiteral("AlwaysOnTop"), QStringLiteral("windowOnTop")},
        {QStringLiteral("CaptionLayout"), QStringLiteral("SelectionFrameWidget")},
        {QStringLiteral("IDragDropEventFilterObserver"), QStringLiteral("DragDropEventFilter")},
        {QStringLiteral("IFrameRenderSource"), QStringLiteral("SelectionFrameWidget")},
        {QStringLiteral("ISelectionFrameEventHandler"), QStringLiteral("SelectionFrameWidget")},
        {QStringLiteral("ImageWatermarkItem"), QStringLiteral("SelectionFrameWidget")},
        {QStringLiteral("SelectionFrameGraphicsItem"), QStringLiteral("SelectionFrameWidget")},
        {QStringLiteral("SelectionFrameItem"), QStringLiteral("SelectionFrameWidget")},
        {QStringLiteral("StandardDialogs"), QStringLiteral("dialogs")},
        {QStringLiteral("TaskbarProgress"), QStringLiteral("taskbar")},
        {QStringLiteral("TextWatermarkItem"), QStringLiteral("SelectionFrameWidget")},
        {QStringLiteral("WalkthroughController"), QStringLiteral("walkthrough")},
        {QStringLiteral("WalkthroughHint"), QStringLiteral("walkthrough")},
        {QStringLiteral("WidgetColorPicker"), QStringLiteral("WidgetColorPickerButton")},
        {QStringLiteral("WidgetResizeHandler"), QStringLiteral("WidgetMouseHandler")},
    };
    return all;
}

QStringList exportedClasses()
{
    static const QRegularExpression declaration(QStringLiteral(R"(class KQTUI_EXPORT (\w+))"));
    QStringList names;
    QDirIterator headers(QStringLiteral(KQTUI_SOURCES "/KQt/Ui"), {QStringLiteral("*.h")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (headers.hasNext()) {
        QFile header(headers.next());
        if (!header.open(QIODevice::ReadOnly))
            return {};
        auto matches = declaration.globalMatch(QString::fromUtf8(header.readAll()));
        while (matches.hasNext())
            names << matches.next().captured(1);
    }
    names.removeDuplicates();
    return names;
}

using Show = std::function<void(QWidget*)>;

} // namespace

Q_DECLARE_METATYPE(Show)

/// The library starts no thread: none is there after a component was used, nor while it is, apart from Qt's own two.
/// Run with dbus-run-session.
class tst_Threads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void threadsAreSeen();
    void component_data();
    void component();
    void windowOnTop();
    void walkthrough();
    void dialogs_data();
    void dialogs();
    void taskbarWithoutADock();
    void taskbar();
    void everyExportedClassIsUsed();
};

/// What Qt starts with a program's first window does not count: under Wayland it connects to the bus.
void tst_Threads::initTestCase()
{
    QMainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

void tst_Threads::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* const window : windows)
        qWarning() << "left:" << window << window->findChildren<QWidget*>();
    QVERIFY(windows.isEmpty());
}

/// What the others rely on.
void tst_Threads::threadsAreSeen()
{
    ThreadWatch watch;
    QCOMPARE(watch.namesAfterLooking(), QStringList());
    QThread thread;
    thread.setObjectName(QStringLiteral("a name"));
    thread.start();
    QTRY_COMPARE(watch.namesAfterLooking(), QStringList{QStringLiteral("a name")});
    thread.quit();
    QVERIFY(thread.wait());
    QCOMPARE(watch.namesAfterLooking(), QStringList{QStringLiteral("a name")});
}

void tst_Threads::component_data()
{
    QTest::addColumn<int>("number");
    for (std::size_t number = 0; number < kinds().size(); ++number)
        QTest::newRow(kinds().at(number).name) << static_cast<int>(number);
}

/// Shown, clicked everywhere, typed into, its popup opened, painted, resized, deleted.
void tst_Threads::component()
{
    QFETCH(const int, number);
    ThreadWatch watch;
    const Watchdog watchdog; // ends the eyedropper's picking, and drags
    {
        QMainWindow window;
        window.setCentralWidget(new QWidget);
        window.resize(300, 200);
        window.show();
        const QPointer<QObject> object = kinds().at(static_cast<std::size_t>(number)).make(window.centralWidget());
        QVERIFY(object);
        if (auto* const widget = qobject_cast<QWidget*>(object)) {
            if (!widget->parent())
                widget->setParent(window.centralWidget()); // PreviewImageLabel takes none from its constructor
            widget->show();
        }
        watch.look();

        openPopup(object);
        QCoreApplication::processEvents();
        watch.look();
        closePopups();

        const auto parts = window.findChildren<QWidget*>();
        const QVector<QPointer<QWidget>> widgets(parts.begin(), parts.end());
        for (const QPointer<QWidget>& widget : widgets) {
            if (widget)
                click(*widget);
            if (widget)
                QTest::keyClick(widget.data(), Qt::Key_Down);
            closePopups();
            watch.look();
        }
        window.resize(250, 250);
        window.grab();
        QCoreApplication::processEvents();
        watch.look();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(watch.namesAfterLooking(), QStringList());
}

void tst_Threads::windowOnTop()
{
    ThreadWatch watch;
    QWidget window;
    window.show();
    OnTop(window).SetAlwaysOnTop(true);
    OnTop(window).SetAlwaysOnTop(false);
    QCOMPARE(watch.namesAfterLooking(), QStringList());
}

void tst_Threads::walkthrough()
{
    ThreadWatch watch;
    {
        QWidget window;
        window.resize(300, 200);
        auto* const target = new QWidget(&window);
        target->setProperty("walkthroughWidget", QStringLiteral("target"));
        target->setGeometry(100, 80, 50, 30);
        WalkthroughController controller;
        auto* const prototype = new TestSupport::TestHint;
        prototype->addPage(QStringLiteral("hint"), QStringLiteral("target"), QStringLiteral("right"),
                           {QStringLiteral("hint/ready"), QStringLiteral("target/active")});
        controller.addHints(prototype);
        const QList<QPointer<TestSupport::TestHint>> hints = prototype->clones();
        QCOMPARE(hints.size(), 1);
        window.show();
        controller.gotoState(QStringLiteral("hint/ready"));
        QTRY_VERIFY(hints.constFirst() && hints.constFirst()->startCount == 1);
        watch.look();
        hints.constFirst()->close();
        QTRY_VERIFY(!hints.constFirst() || hints.constFirst()->finishCount > 0);
        watch.look();
    }
    QCOMPARE(watch.namesAfterLooking(), QStringList());
}

void tst_Threads::dialogs_data()
{
    QTest::addColumn<Show>("show");
    QTest::addColumn<QStringList>("threadsOfQt");
    const QStringList ofTheFileList{fileListThread()};
    QTest::newRow("open") << Show([](QWidget* parent) { StandardDialogs::getOpen(parent); }) << ofTheFileList;
    QTest::newRow("open a file") << Show([](QWidget* parent) { StandardDialogs::getOpenFileName(parent); })
                                 << ofTheFileList;
    QTest::newRow("save") << Show([](QWidget* parent) { StandardDialogs::getSaveFileName(parent); }) << ofTheFileList;
    QTest::newRow("folder") << Show([](QWidget* parent) { StandardDialogs::getDVDDirectory(parent); }) << ofTheFileList;
    QTest::newRow("warning") << Show([](QWidget* parent) { StandardDialogs::showWarning(parent); }) << QStringList();
}

/// While Qt's dialog is open its own thread reads the folder; afterwards that has ended.
void tst_Threads::dialogs()
{
    QFETCH(const Show, show);
    QFETCH(const QStringList, threadsOfQt);
    QWidget window;
    window.show();
    ThreadWatch watch;
    const auto numberBefore = TestSupport::processThreads().size();
    bool wasShown = false;
    const TestSupport::ModalDialog<QDialog> user([&](QDialog& dialog) {
        wasShown = QTest::qWaitFor([&] { return watch.namesAfterLooking() == threadsOfQt; });
        dialog.reject();
    });
    show(&window);
    watch.look();
    QVERIFY2(wasShown, qPrintable(watch.newNames().join(QLatin1Char(' '))));
    QCOMPARE(watch.newNames(), threadsOfQt);
    QTRY_COMPARE(TestSupport::processThreads().size(), numberBefore);
}

/// Nobody is spoken to, so that Qt does not connect either.
void tst_Threads::taskbarWithoutADock()
{
    ThreadWatch watch;
    QWindow window;
    {
        TaskbarProgress progress(&window);
        progress.SetProgress(0.5);
        QCoreApplication::processEvents();
        watch.look();
    }
    QCOMPARE(watch.namesAfterLooking(), QStringList());
}

/// The only thread that stays: Qt's, for its connection to the bus. There is one for all progresses.
void tst_Threads::taskbar()
{
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.Viewer"));
    const bool isConnected = TestSupport::processThreads().values().contains(busThread());
    const QStringList expected = isConnected ? QStringList() : QStringList{busThread()};
    ThreadWatch watch;
    for (int repetition = 0; repetition < 3; ++repetition) {
        QWindow window;
        TaskbarProgress progress(&window);
        progress.SetProgress(0.5);
        QTRY_COMPARE(watch.namesAfterLooking(), expected);
        progress.Stop();
        progress.Reset();
        QCoreApplication::processEvents();
    }
    QCOMPARE(watch.namesAfterLooking(), expected);
}

/// So that a class that comes is looked at as well.
void tst_Threads::everyExportedClassIsUsed()
{
    QStringList used = companions().keys();
    for (const Kind& kind : kinds())
        used << QString::fromLatin1(kind.name);
    const QStringList exported = exportedClasses();
    QVERIFY(exported.size() > 40);
    for (const QString& name : exported)
        QVERIFY2(used.contains(name), qPrintable(name));
    const QStringList withOthers = companions().keys();
    for (const QString& name : withOthers)
        QVERIFY2(exported.contains(name), qPrintable(name));
}

QTEST_MAIN(tst_Threads)
#include "tst_Threads.moc"
