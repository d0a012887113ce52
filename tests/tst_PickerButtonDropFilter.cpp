#include <KQt/Ui/PickerButtonDropFilter.h>

#include <KQt/Ui/PickerButton.h>

#include <QDropEvent>
#include <QMimeData>
#include <QtTest>

#include <memory>

using Kestrel::Gui::PickerButton;
using Kestrel::Gui::PickerButtonDropFilter;

class tst_PickerButtonDropFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void hasAMetaObject();
    void colorIsLetInAndTaken();
    void sameColorIsTakenAgain();
    void dataWithoutColorIsRefused();
    void otherDataCountsAsColorWhereItConverts_data();
    void otherDataCountsAsColorWhereItConverts();
    void moveAndLeaveAreNotLookedAt();
    void nothingIsConsumed();
    void otherWidgetsAreLeftAlone();
    void swatchMayDieOnTakingAColor();

private:
    std::unique_ptr<PickerButtonDropFilter> m_filter;
    std::unique_ptr<PickerButton> m_swatch;
};

namespace {

// Enter events are built as accepted or ignored on purpose: the filter's answer must not depend on it.
QDragEnterEvent enterEvent(const QMimeData& data)
{
    QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.setDropAction(Qt::IgnoreAction);
    event.accept();
    return event;
}

QDropEvent dropEvent(const QMimeData& data)
{
    QDropEvent event(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.setDropAction(Qt::IgnoreAction);
    event.accept();
    return event;
}

} // namespace

void tst_PickerButtonDropFilter::init()
{
    m_filter = std::make_unique<PickerButtonDropFilter>();
    m_swatch = std::make_unique<PickerButton>(Qt::gray);
    m_swatch->setAcceptDrops(true);
    m_swatch->installEventFilter(m_filter.get());
}

void tst_PickerButtonDropFilter::hasAMetaObject()
{
    QCOMPARE(m_filter->metaObject()->className(), "Kestrel::Gui::PickerButtonDropFilter");
    QObject parent;
    QCOMPARE((new PickerButtonDropFilter(&parent))->parent(), &parent);
}

void tst_PickerButtonDropFilter::colorIsLetInAndTaken()
{
    QMimeData data;
    data.setColorData(QColor(1, 2, 3, 4));
    QSignalSpy changed(m_swatch.get(), &PickerButton::colorChanged);

    QDragEnterEvent enter = enterEvent(data);
    QVERIFY(!m_filter->eventFilter(m_swatch.get(), &enter));
    QVERIFY(enter.isAccepted());
    QCOMPARE(enter.dropAction(), enter.proposedAction());
    QCOMPARE(m_swatch->color(), QColor(Qt::gray));
    QCOMPARE(changed.count(), 0);

    QDropEvent drop = dropEvent(data);
    QVERIFY(!m_filter->eventFilter(m_swatch.get(), &drop));
    QVERIFY(drop.isAccepted());
    QCOMPARE(drop.dropAction(), drop.proposedAction());
    QCOMPARE(m_swatch->color(), QColor(1, 2, 3, 4));
    QCOMPARE(changed.count(), 1);
}

void tst_PickerButtonDropFilter::sameColorIsTakenAgain()
{
    QMimeData data;
    data.setColorData(QColor(Qt::gray));
    QSignalSpy changed(m_swatch.get(), &PickerButton::colorChanged);
    QDropEvent drop = dropEvent(data);
    m_filter->eventFilter(m_swatch.get(), &drop);
    QCOMPARE(changed.count(), 1);
}

void tst_PickerButtonDropFilter::dataWithoutColorIsRefused()
{
    QMimeData data;
    data.setText(QStringLiteral("#ff0000"));
    QSignalSpy changed(m_swatch.get(), &PickerButton::colorChanged);

    QDragEnterEvent enter = enterEvent(data);
    QVERIFY(!m_filter->eventFilter(m_swatch.get(), &enter));
    QVERIFY(!enter.isAccepted());
    QDropEvent drop = dropEvent(data);
    QVERIFY(!m_filter->eventFilter(m_swatch.get(), &drop));
    QVERIFY(!drop.isAccepted());
    QCOMPARE(m_swatch->color(), QColor(Qt::gray));
    QCOMPARE(changed.count(), 0);
}

void tst_PickerButtonDropFilter::otherDataCountsAsColorWhereItConverts_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QColor>("expected");
    QTest::addRow("colour name") << QVariant(QStringLiteral("#102030")) << QColor(0x10, 0x20, 0x30);
    QTest::addRow("text that is no colour") << QVariant(QStringLiteral("no colour")) << QColor();
    QTest::addRow("bytes that are no colour") << QVariant(QByteArray("\0\xff\x01garbage", 10)) << QColor();
    QTest::addRow("no bytes") << QVariant(QByteArray("")) << QColor();
    QTest::addRow("rectangle") << QVariant(QRect(1, 2, 3, 4)) << QColor();
    QTest::addRow("nothing") << QVariant() << QColor();
}

// What claims to be a colour is let in; what cannot be read as one becomes an invalid colour.
void tst_PickerButtonDropFilter::otherDataCountsAsColorWhereItConverts()
{
    QFETCH(QVariant, value);
    QFETCH(QColor, expected);
    class ClaimsColor : public QMimeData
    {
    public:
        explicit ClaimsColor(QVariant value)
            : m_value(std::move(value))
        {
        }
        bool hasFormat(const QString& type) const override { return type == QLatin1String("application/x-color"); }
        QStringList formats() const override { return {QStringLiteral("application/x-color")}; }

    protected:
        QVariant retrieveData(const QString&, QVariant::Type) const override { return m_value; }

    private:
        QVariant m_value;
    };
    const ClaimsColor data(value);
    QVERIFY(data.hasColor());

    QSignalSpy changed(m_swatch.get(), &PickerButton::colorChanged);
    QDragEnterEvent enter = enterEvent(data);
    m_filter->eventFilter(m_swatch.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop = dropEvent(data);
    QVERIFY(!m_filter->eventFilter(m_swatch.get(), &drop));
    QVERIFY(drop.isAccepted());
    QCOMPARE(m_swatch->color(), expected);
    QCOMPARE(m_swatch->color().isValid(), expected.isValid());
    QCOMPARE(changed.count(), 1);
}

void tst_PickerButtonDropFilter::moveAndLeaveAreNotLookedAt()
{
    QMimeData data;
    data.setText(QStringLiteral("no colour"));
    QDragMoveEvent moved(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    moved.accept();
    QVERIFY(!m_filter->eventFilter(m_swatch.get(), &moved));
    QVERIFY(moved.isAccepted());
    moved.ignore();
    QVERIFY(!m_filter->eventFilter(m_swatch.get(), &moved));
    QVERIFY(!moved.isAccepted());
    QDragLeaveEvent left;
    QVERIFY(!m_filter->eventFilter(m_swatch.get(), &left));
    QCOMPARE(m_swatch->color(), QColor(Qt::gray));
}

void tst_PickerButtonDropFilter::nothingIsConsumed()
{
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QVERIFY(!m_filter->eventFilter(m_swatch.get(), &press));
    QTest::mouseClick(m_swatch.get(), Qt::LeftButton);
    QVERIFY(m_swatch->isChecked());
}

void tst_PickerButtonDropFilter::otherWidgetsAreLeftAlone()
{
    QToolButton other;
    QMimeData data;
    data.setColorData(QColor(Qt::red));
    QDragEnterEvent enter = enterEvent(data);
    enter.ignore();
    QVERIFY(!m_filter->eventFilter(&other, &enter));
    QVERIFY(!enter.isAccepted());
    QDropEvent drop = dropEvent(data);
    QVERIFY(!m_filter->eventFilter(&other, &drop));
    QVERIFY(drop.isAccepted());
    QCOMPARE(drop.dropAction(), Qt::IgnoreAction);
}

void tst_PickerButtonDropFilter::swatchMayDieOnTakingAColor()
{
    QMimeData data;
    data.setColorData(QColor(Qt::red));
    PickerButton* const swatch = m_swatch.release();
    connect(swatch, &PickerButton::colorChanged, this, [swatch] { delete swatch; });
    QDragEnterEvent enter = enterEvent(data);
    QVERIFY(QCoreApplication::sendEvent(swatch, &enter));
    QDropEvent drop = dropEvent(data);
    QVERIFY(QCoreApplication::sendEvent(swatch, &drop));
    QVERIFY(drop.isAccepted());
}

QTEST_MAIN(tst_PickerButtonDropFilter)
#include "tst_PickerButtonDropFilter.moc"
