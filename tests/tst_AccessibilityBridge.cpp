#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/ExtendedLabel.h>
#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/LineStyleComboBox.h>
#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>

#include "support/AccessibleClient.h"

#include <QLabel>
#include <QProcess>
#include <QVBoxLayout>

#include <QtTest>

#include <algorithm>
#include <memory>

using namespace Kestrel::Gui;
using TestSupport::AccessibleClient;
using TestSupport::AccessibleReference;

namespace {

const QString applicationArgument = QStringLiteral("--application");
const QString applicationName = QStringLiteral("accessible-application");
const QString fullText = QStringLiteral("a sentence that needs more room than there is");

/// The program that is looked at: a window with the library's widgets, and a label that tells what happened to them.
int runApplication()
{
    QApplication::setApplicationName(applicationName);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    auto* const outcome = new QLabel(QStringLiteral("nothing yet"));

    auto* const named = new RColorPicker;
    named->setAccessibleName(QStringLiteral("Fill"));
    QObject::connect(named, &RColorPicker::changedColor, outcome,
                     [outcome](const QColor& color) { outcome->setText(QStringLiteral("chosen ") + color.name()); });
    auto* const advanced = new AdvancedColorPicker;
    advanced->setColor(QColor(18, 52, 86));
    auto* const styles = new LineStyleComboBox;
    for (const Qt::PenStyle style : {Qt::SolidLine, Qt::DashLine})
        styles->addItem(QString(), int(style));
    auto* const text = new ExtendedLabel;
    text->setFixedWidth(60);
    text->SetOriginalText(fullText);
    auto* const tile = new PreviewImageLabel;
    tile->setMinimumSize(80, 60);
    QObject::connect(tile, &PreviewImageLabel::playClicked, outcome,
                     [outcome] { outcome->setText(QStringLiteral("played")); });
    auto* const titleBar = new StyledDockWidgetTitlebar;

    for (QWidget* widget : std::initializer_list<QWidget*>{titleBar, named, advanced, styles, text, tile, outcome})
        layout->addWidget(widget);
    new HighlightFrame(named);
    window.show();
    tile->setPlayIsVisible(true);
    return QApplication::exec();
}

/// The program, running.
class Application
{
public:
    Application()
    {
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(QCoreApplication::applicationFilePath(), {applicationArgument});
    }
    ~Application()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    bool isRunning() const { return m_process.state() == QProcess::Running; }

private:
    QProcess m_process;
};

} // namespace

/// The library's widgets from outside of their program, over the bus that screen readers use.
class tst_AccessibilityBridge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void namesAndRoles();
    void theFrameIsNotShown();
    void aCellIsPressed();
    void aTileIsPlayed();

private:
    const AccessibleReference* find(const QString& name, const QString& role);
    bool outcomeIs(const QString& text);

    std::unique_ptr<AccessibleClient> m_client;
    std::unique_ptr<Application> m_application;
    AccessibleReference m_program;
    QList<AccessibleReference> m_tree;
};

void tst_AccessibilityBridge::initTestCase()
{
    if (!qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"))
        QSKIP("needs a display, a session bus and Qt's bridge");
    m_client = std::make_unique<AccessibleClient>();
    QVERIFY(m_client->isConnected());
    m_application = std::make_unique<Application>();

    const auto isThere = [this] {
        const auto programs = m_client->programs();
        const auto program = std::find_if(programs.cbegin(), programs.cend(), [this](const AccessibleReference& found) {
            return m_client->name(found) == applicationName;
        });
        if (program == programs.cend())
            return false;
        m_program = *program;
        return find(QStringLiteral("nothing yet"), QStringLiteral("label")) != nullptr;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isThere(), 60000);
}

void tst_AccessibilityBridge::cleanupTestCase()
{
    m_application.reset();
}

/// Looks at the program anew each time.
const AccessibleReference* tst_AccessibilityBridge::find(const QString& name, const QString& role)
{
    m_tree = m_client->tree(m_program);
    const auto found = std::find_if(m_tree.cbegin(), m_tree.cend(), [&](const AccessibleReference& object) {
        return m_client->role(object) == role && m_client->name(object) == name;
    });
    return found == m_tree.cend() ? nullptr : &*found;
}

bool tst_AccessibilityBridge::outcomeIs(const QString& text)
{
    return find(text, QStringLiteral("label")) != nullptr;
}

void tst_AccessibilityBridge::namesAndRoles()
{
    const QString button = QStringLiteral("push button");
    const QString picker = QStringLiteral("button with drop down");
    const QString label = QStringLiteral("label");
    QVERIFY(find(fullText, label));
    QVERIFY(find(QStringLiteral("#123456"), picker));
    QVERIFY(find(QStringLiteral("solid"), QStringLiteral("combo box")));
    QVERIFY(find(QStringLiteral("dash"), QStringLiteral("list item")));
    QVERIFY(find(QStringLiteral("Play"), button));
    QVERIFY(find(QStringLiteral("Unpin playlist"), button));
    QVERIFY(find(QStringLiteral("#003748"), QStringLiteral("radio button")));
    QVERIFY(find(QStringLiteral("Sea green"), QStringLiteral("list item")));
    const AccessibleReference* const fill = find(QStringLiteral("Fill"), picker);
    QVERIFY(fill);
    QCOMPARE(m_client->description(*fill), QStringLiteral("#000000"));
}

void tst_AccessibilityBridge::theFrameIsNotShown()
{
    // The picker has a frame around it, which is a child of the window as every other widget.
    find(QString(), QString());
    int ignored = 0;
    for (const AccessibleReference& object : qAsConst(m_tree)) {
        if (m_client->role(object) != QLatin1String("invalid role"))
            continue;
        ++ignored;
        QVERIFY(!m_client->isShowing(object));
        QCOMPARE(m_client->name(object), QString());
    }
    QCOMPARE(ignored, 1);
}

void tst_AccessibilityBridge::aCellIsPressed()
{
    const AccessibleReference* const fill = find(QStringLiteral("Fill"), QStringLiteral("button with drop down"));
    QVERIFY(fill);
    QVERIFY(m_client->act(*fill, QStringLiteral("Press")));
    const auto openCell = [this]() -> const AccessibleReference* {
        const AccessibleReference* const cell = find(QStringLiteral("Sea green"), QStringLiteral("list item"));
        return cell && m_client->isShowing(*cell) ? cell : nullptr;
    };
    QTRY_VERIFY_WITH_TIMEOUT(openCell(), 20000);
    QCOMPARE(m_client->extents(*openCell()).size(), QSize(12, 12));
    QVERIFY(m_client->act(*openCell(), QStringLiteral("Press")));
    QTRY_VERIFY_WITH_TIMEOUT(outcomeIs(QStringLiteral("chosen #3cb371")), 20000);
}

void tst_AccessibilityBridge::aTileIsPlayed()
{
    const AccessibleReference* const play = find(QStringLiteral("Play"), QStringLiteral("push button"));
    QVERIFY(play);
    QVERIFY(m_client->act(*play, QStringLiteral("Press")));
    QTRY_VERIFY_WITH_TIMEOUT(outcomeIs(QStringLiteral("played")), 20000);
}

int main(int argc, char* argv[])
{
    if (argc > 1 && QLatin1String(argv[1]) == applicationArgument) {
        const QApplication application(argc, argv);
        return runApplication();
    }
    // With widgets it would be one of the programs that are looked at, and asked while it waits for an answer itself.
    const QCoreApplication application(argc, argv);
    tst_AccessibilityBridge test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_AccessibilityBridge.moc"
