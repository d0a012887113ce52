#include <KQt/Ui/StatefulTaskbarIndicator.h>

#include <QtTest>

#include <limits>

using Kestrel::Gui::StatefulTaskbarIndicator;

namespace {

/// Counts the changes, and opens the state.
class Probe : public StatefulTaskbarIndicator
{
public:
    void setWindow(QWindow* /*window*/) override {}

    using StatefulTaskbarIndicator::look;
    using StatefulTaskbarIndicator::maximum;
    using StatefulTaskbarIndicator::minimum;
    using StatefulTaskbarIndicator::value;

    int changes = 0;

protected:
    void stateChanged() override { ++changes; }
};

using Look = StatefulTaskbarIndicator::Look;

} // namespace

class tst_StatefulTaskbarIndicator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsHiddenAtTheStartOfAHundred();
    void showAndHide();
    void valuesStayInTheRange_data();
    void valuesStayInTheRange();
    void rangeWithoutTheValueRewindsIt();
    void rangeWithTheValueKeepsIt();
    void rangeThatEndsBeforeItsStartIsEmpty();
    void rangeZeroToZeroIsBusy();
    void resetRewindsAndNothingElse();
    void pauseAndStopKeepTheValue();
    void stopOutranksPause();
    void pausedAndStoppedLast();
    void pausedAndStoppedOutrankBusy();
    void onlyChangesAreTold();
};

void tst_StatefulTaskbarIndicator::startsHiddenAtTheStartOfAHundred()
{
    const Probe probe;
    QCOMPARE(probe.look(), Look::Hidden);
    QCOMPARE(probe.minimum(), 0);
    QCOMPARE(probe.maximum(), 100);
    QCOMPARE(probe.value(), 0);
}

void tst_StatefulTaskbarIndicator::showAndHide()
{
    Probe probe;
    probe.show();
    QCOMPARE(probe.look(), Look::Normal);
    probe.hide();
    QCOMPARE(probe.look(), Look::Hidden);
}

void tst_StatefulTaskbarIndicator::valuesStayInTheRange_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("shown");
    QTest::newRow("start") << 10 << 10;
    QTest::newRow("inside") << 15 << 15;
    QTest::newRow("end") << 20 << 20;
    QTest::newRow("below") << 9 << 10;
    QTest::newRow("above") << 21 << 20;
    QTest::newRow("first int") << std::numeric_limits<int>::min() << 10;
    QTest::newRow("last int") << std::numeric_limits<int>::max() << 20;
}

void tst_StatefulTaskbarIndicator::valuesStayInTheRange()
{
    QFETCH(int, value);
    QFETCH(int, shown);
    Probe probe;
    probe.setRange(10, 20);
    probe.setValue(value);
    QCOMPARE(probe.value(), shown);
}

void tst_StatefulTaskbarIndicator::rangeWithoutTheValueRewindsIt()
{
    Probe probe;
    probe.setValue(50);
    probe.setRange(0, 40);
    QCOMPARE(probe.value(), 0);
    probe.setRange(20, 60);
    QCOMPARE(probe.value(), 20);
}

void tst_StatefulTaskbarIndicator::rangeWithTheValueKeepsIt()
{
    Probe probe;
    probe.setValue(50);
    probe.setRange(50, 60);
    QCOMPARE(probe.value(), 50);
    probe.setRange(0, 50);
    QCOMPARE(probe.value(), 50);
}

void tst_StatefulTaskbarIndicator::rangeThatEndsBeforeItsStartIsEmpty()
{
    Probe probe;
    probe.show();
    probe.setRange(10, 5);
    QCOMPARE(probe.minimum(), 10);
    QCOMPARE(probe.maximum(), 10);
    QCOMPARE(probe.value(), 10);
    QCOMPARE(probe.look(), Look::Normal);
}

void tst_StatefulTaskbarIndicator::rangeZeroToZeroIsBusy()
{
    Probe probe;
    probe.setValue(50);
    probe.show();
    probe.setRange(0, 0);
    QCOMPARE(probe.look(), Look::Busy);
    QCOMPARE(probe.value(), 0);
    probe.setRange(0, 100);
    QCOMPARE(probe.look(), Look::Normal);
}

void tst_StatefulTaskbarIndicator::resetRewindsAndNothingElse()
{
    Probe probe;
    probe.show();
    probe.setRange(10, 20);
    probe.setValue(15);
    probe.stop();
    probe.reset();
    QCOMPARE(probe.value(), 10);
    QCOMPARE(probe.maximum(), 20);
    QCOMPARE(probe.look(), Look::Stopped);
}

void tst_StatefulTaskbarIndicator::pauseAndStopKeepTheValue()
{
    Probe probe;
    probe.show();
    probe.setValue(42);
    probe.pause();
    QCOMPARE(probe.look(), Look::Paused);
    QCOMPARE(probe.value(), 42);
    probe.stop();
    QCOMPARE(probe.look(), Look::Stopped);
    QCOMPARE(probe.value(), 42);
}

void tst_StatefulTaskbarIndicator::stopOutranksPause()
{
    Probe probe;
    probe.show();
    probe.stop();
    probe.pause();
    QCOMPARE(probe.look(), Look::Stopped);
}

/// As with Qt's Windows Extras, where only a resumption ends them, and TaskbarProgress has none.
void tst_StatefulTaskbarIndicator::pausedAndStoppedLast()
{
    Probe paused;
    paused.pause();
    paused.hide();
    paused.show();
    paused.setRange(0, 100);
    paused.setValue(70);
    QCOMPARE(paused.look(), Look::Paused);
    QCOMPARE(paused.value(), 70);

    Probe stopped;
    stopped.stop();
    stopped.hide();
    stopped.show();
    stopped.setValue(70);
    QCOMPARE(stopped.look(), Look::Stopped);
    QCOMPARE(stopped.value(), 70);
}

void tst_StatefulTaskbarIndicator::pausedAndStoppedOutrankBusy()
{
    Probe probe;
    probe.show();
    probe.setRange(0, 0);
    probe.pause();
    QCOMPARE(probe.look(), Look::Paused);
    probe.stop();
    QCOMPARE(probe.look(), Look::Stopped);
}

void tst_StatefulTaskbarIndicator::onlyChangesAreTold()
{
    Probe probe;
    probe.hide();
    probe.reset();
    probe.setRange(0, 100);
    probe.setValue(0);
    probe.setValue(-5);
    QCOMPARE(probe.changes, 0);

    probe.show();
    QCOMPARE(probe.changes, 1);
    probe.show();
    QCOMPARE(probe.changes, 1);
    probe.setValue(120);
    QCOMPARE(probe.changes, 2);
    probe.setValue(100);
    QCOMPARE(probe.changes, 2);
    probe.pause();
    QCOMPARE(probe.changes, 3);
    probe.pause();
    QCOMPARE(probe.changes, 3);
}

QTEST_GUILESS_MAIN(tst_StatefulTaskbarIndicator)
#include "tst_StatefulTaskbarIndicator.moc"
