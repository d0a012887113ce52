#include <KQt/Ui/AdvancedComboBox.h>

#include "support/ComboBoxes.h"
#include "support/ContextTranslator.h"
#include "support/Render.h"
#include "support/WarningCatcher.h"

#include <QDataWidgetMapper>
#include <QListView>
#include <QMetaProperty>
#include <QStandardItemModel>

#include <QtTest>

using Kestrel::Gui::AdvancedComboBox;
using TestSupport::editFieldOf;
using TestSupport::elidedTo;
using TestSupport::ReferenceComboBox;
using TestSupport::render;
using TestSupport::ScrollingForm;
using TestSupport::turnWheelOver;
using TestSupport::widthThatFits;

namespace {

QString longText()
{
    return QStringLiteral("A text that is much longer than the box");
}

QListView& listOf(const AdvancedComboBox& box)
{
    return *qobject_cast<QListView*>(box.view());
}

/// The properties that have a switch, and what there is to know about each.
struct Switch
{
    const char* name;
    bool (AdvancedComboBox::*get)() const;
    void (AdvancedComboBox::*set)(bool);
    void (AdvancedComboBox::*changed)();
};

const Switch switches[] = {
    {"mouseWheelEnabled", &AdvancedComboBox::mouseWheelEnabled, &AdvancedComboBox::setMouseWheelEnabled,
     &AdvancedComboBox::mouseWheelEnabledChanged},
    {"widePopupEnabled", &AdvancedComboBox::widePopupEnabled, &AdvancedComboBox::setWidePopupEnabled,
     &AdvancedComboBox::widePopupEnabledChanged},
    {"elideItemText", &AdvancedComboBox::elideItemText, &AdvancedComboBox::setElideItemText,
     &AdvancedComboBox::elideItemTextChanged},
};

class CountingBox : public AdvancedComboBox
{
public:
    using AdvancedComboBox::AdvancedComboBox;
    int paintings = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paintings;
        AdvancedComboBox::paintEvent(event);
    }
};

} // namespace

class tst_AdvancedComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void signalsInOrder();
    void propertiesInOrder();
    void defaults();
    void translatesInItsOwnContext();
    void switchesEmitOnChangeOnly_data();
    void switchesEmitOnChangeOnly();
    void templateNeverEmits();
    void textSettingsDoNotRepaint();

    void elidesTheTextOfANarrowBox();
    void toolTipFollowsTheWidth();
    void toolTipIsMadeFromTheTemplate_data();
    void toolTipIsMadeFromTheTemplate();
    void clearsAToolTipSetFromOutside();
    void withoutElidingItIsAPlainBox();
    void emptyBoxPaints();
    void typedTextThatIsNoItemGetsAToolTip();

    void wheelChangesTheCurrentItem();
    void wheelGoesToTheScrollAreaWhenSwitchedOff();

    void takesFocusOnlyWhenTold();
    void widePopupFitsTheWidestItem();
    void widePopupLeavesRoomForTheScrollBar();
    void narrowPopupIsCutToTheBox();
    void openingAnEmptyBoxWarnsOfNothing();
    void switchingReplacesTheViewAndKeepsTheRest();
    void oldViewGoesFromTheEventLoop();
    void switchingWhileThePopupIsOpen();
    void switchingFromASlotOfTheView();
    void boxMayBeDeletedByTheSlotsOfItsSignals();

    void keyboardChoosesAsInAnyBox();
    void modelsAndMapperWorkAsWithAnyBox();
    void sizeHintsAreThoseOfAPlainBox();
};

void tst_AdvancedComboBox::signalsInOrder()
{
    const QMetaObject& meta = AdvancedComboBox::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::AdvancedComboBox");
    QCOMPARE(meta.superClass(), &QComboBox::staticMetaObject);
    QList<QByteArray> found;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Signal);
        found << meta.method(i).methodSignature();
    }
    QCOMPARE(found,
             (QList<QByteArray>{"mouseWheelEnabledChanged()", "widePopupEnabledChanged()", "elideItemTextChanged()"}));
}

void tst_AdvancedComboBox::propertiesInOrder()
{
    const QMetaObject& meta = AdvancedComboBox::staticMetaObject;
    QList<QByteArray> found;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        found << QByteArray(property.typeName()) + ' ' + property.name() + ' ' + property.notifySignal().name();
        QVERIFY(property.isReadable() && property.isWritable());
        QVERIFY(property.isDesignable() && property.isScriptable() && property.isStored());
        QVERIFY(!property.isUser() && !property.isResettable() && !property.isConstant() && !property.isFinal());
    }
    QCOMPARE(found, (QList<QByteArray>{"bool mouseWheelEnabled mouseWheelEnabledChanged",
                                       "bool widePopupEnabled widePopupEnabledChanged",
                                       "bool elideItemText elideItemTextChanged", "QString tooltipTemplate "}));
}

void tst_AdvancedComboBox::defaults()
{
    QWidget parent;
    const AdvancedComboBox box(&parent);
    QCOMPARE(box.parentWidget(), &parent);
    QVERIFY(box.mouseWheelEnabled());
    QVERIFY(box.widePopupEnabled());
    QVERIFY(box.elideItemText());
    QCOMPARE(box.tooltipTemplate(), QStringLiteral("%1"));
    QCOMPARE(box.focusPolicy(), Qt::NoFocus);
    QCOMPARE(box.count(), 0);
    // The list has no meta-object of its own.
    QVERIFY(box.view()->metaObject() == &QListView::staticMetaObject);
    const QAbstractItemView& list = *box.view();
    QVERIFY(typeid(list) != typeid(QListView));
    QCOMPARE(listOf(box).textElideMode(), Qt::ElideNone);
    QCOMPARE(box.view()->model(), box.model());
}

void tst_AdvancedComboBox::translatesInItsOwnContext()
{
    const TestSupport::ContextTranslator translator("Kestrel::Gui::AdvancedComboBox");
    QCOMPARE(AdvancedComboBox::tr("text"), QStringLiteral("<text>"));
}

void tst_AdvancedComboBox::switchesEmitOnChangeOnly_data()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < int(std::size(switches)); ++i)
        QTest::newRow(switches[i].name) << i;
}

void tst_AdvancedComboBox::switchesEmitOnChangeOnly()
{
    QFETCH(int, number);
    const Switch& tested = switches[number];
    AdvancedComboBox box;
    QSignalSpy spy(&box, tested.changed);
    bool seen = true;
    connect(&box, tested.changed, this, [&] { seen = (box.*tested.get)(); });

    (box.*tested.set)(true);
    QCOMPARE(spy.count(), 0);
    (box.*tested.set)(false);
    QCOMPARE(spy.count(), 1);
    QVERIFY(!(box.*tested.get)());
    QVERIFY(!seen); // stored before anybody is told
    (box.*tested.set)(false);
    QCOMPARE(spy.count(), 1);

    QVERIFY(box.setProperty(tested.name, true));
    QCOMPARE(spy.count(), 2);
    QCOMPARE(box.property(tested.name), QVariant(true));
    for (const Switch& other : switches)
        QVERIFY((box.*other.get)());
}

void tst_AdvancedComboBox::templateNeverEmits()
{
    AdvancedComboBox box;
    QSignalSpy wheel(&box, &AdvancedComboBox::mouseWheelEnabledChanged);
    QSignalSpy wide(&box, &AdvancedComboBox::widePopupEnabledChanged);
    QSignalSpy elide(&box, &AdvancedComboBox::elideItemTextChanged);
    box.setTooltipTemplate(QStringLiteral("File: %1"));
    QCOMPARE(box.tooltipTemplate(), QStringLiteral("File: %1"));
    QVERIFY(box.setProperty("tooltipTemplate", QStringLiteral("x")));
    QCOMPARE(box.property("tooltipTemplate").toString(), QStringLiteral("x"));
    QCOMPARE(wheel.count() + wide.count() + elide.count(), 0);
}

void tst_AdvancedComboBox::textSettingsDoNotRepaint()
{
    // What is shown changes with the next painting, whoever asks for it: the setters only store.
    CountingBox box;
    box.addItem(longText());
    box.resize(100, 30);
    // A window system would have it painted for reasons of its own.
    box.setAttribute(Qt::WA_DontShowOnScreen);
    box.show();
    QCoreApplication::processEvents();
    box.paintings = 0;
    box.setTooltipTemplate(QStringLiteral("File: %1"));
    box.setElideItemText(false);
    box.setMouseWheelEnabled(false);
    QCoreApplication::processEvents();
    QCOMPARE(box.paintings, 0);
    box.update();
    QCoreApplication::processEvents();
    QCOMPARE(box.paintings, 1);
    QCOMPARE(box.toolTip(), longText());
}

void tst_AdvancedComboBox::elidesTheTextOfANarrowBox()
{
    AdvancedComboBox box;
    box.addItem(longText());
    box.resize(120, 30);
    const QString shown = elidedTo(box, longText(), editFieldOf(box).width());
    QVERIFY(shown != longText());

    const QImage narrow = render(box);

    ReferenceComboBox reference(shown, box.size());
    QCOMPARE(narrow, render(reference));
    ReferenceComboBox uncut(longText(), box.size());
    QVERIFY(narrow != render(uncut));
    QCOMPARE(box.currentText(), longText());

    // The box's own font is what counts.
    QFont font = box.font();
    font.setPixelSize(20);
    box.setFont(font);
    ReferenceComboBox larger(elidedTo(box, longText(), editFieldOf(box).width()), box.size());
    larger.setFont(font);
    QCOMPARE(render(box), render(larger));
}

void tst_AdvancedComboBox::toolTipFollowsTheWidth()
{
    AdvancedComboBox box;
    box.addItem(longText());
    const int fitting = widthThatFits(box, longText());
    box.resize(fitting - 1, 30);
    render(box);
    QCOMPARE(box.toolTip(), longText());

    box.resize(fitting, 30);
    QCOMPARE(box.toolTip(), longText()); // until it is painted
    render(box);
    QCOMPARE(box.toolTip(), QString());
}

void tst_AdvancedComboBox::toolTipIsMadeFromTheTemplate_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("default") << QStringLiteral("%1") << longText();
    QTest::newRow("prefix") << QStringLiteral("File: %1") << QStringLiteral("File: ") + longText();
    QTest::newRow("twice") << QStringLiteral("%1|%1") << longText() + QLatin1Char('|') + longText();
    // QString::arg() takes the lowest place marker, whatever its number.
    QTest::newRow("other marker") << QStringLiteral("<%3>") << QLatin1Char('<') + longText() + QLatin1Char('>');
    QTest::newRow("two markers") << QStringLiteral("%2 %1") << QStringLiteral("%2 ") + longText();
    QTest::newRow("marker for numbers") << QStringLiteral("<%L1>") << QLatin1Char('<') + longText() + QLatin1Char('>');
    QTest::newRow("after a percent sign") << QStringLiteral("100%%1") << QStringLiteral("100%") + longText();
    QTest::newRow("Arabic digit") << QStringLiteral("%\u0661") << longText();
    for (const char* text : {"", "no marker", "%", "100 %", "%L", "%L%", "% 1", "%x1"})
        QTest::addRow("'%s'", text) << QString::fromLatin1(text) << QString::fromLatin1(text);
}

void tst_AdvancedComboBox::toolTipIsMadeFromTheTemplate()
{
    QFETCH(QString, pattern);
    QFETCH(QString, toolTip);
    AdvancedComboBox box;
    box.addItem(longText());
    box.resize(120, 30);
    box.setTooltipTemplate(pattern);
    const TestSupport::WarningCatcher catcher;
    render(box);
    QCOMPARE(box.toolTip(), toolTip);
    QCOMPARE(catcher.warnings(), QStringList());
}

void tst_AdvancedComboBox::clearsAToolTipSetFromOutside()
{
    // The tool tip belongs to the box while it elides, even where there is nothing to tell.
    AdvancedComboBox box;
    box.addItem(QStringLiteral("short"));
    box.resize(200, 30);
    box.setToolTip(QStringLiteral("from outside"));
    render(box);
    QCOMPARE(box.toolTip(), QString());
}

void tst_AdvancedComboBox::withoutElidingItIsAPlainBox()
{
    AdvancedComboBox box;
    box.addItem(longText());
    box.resize(120, 30);
    box.setElideItemText(false);
    box.setToolTip(QStringLiteral("from outside"));
    QComboBox plain;
    plain.setFocusPolicy(Qt::NoFocus);
    plain.addItem(longText());
    plain.resize(box.size());

    QCOMPARE(render(box), render(plain));
    QCOMPARE(box.toolTip(), QStringLiteral("from outside"));

    // Down to what only the base class's painting knows of.
    for (QComboBox* each : {static_cast<QComboBox*>(&box), &plain}) {
        each->setPlaceholderText(QStringLiteral("choose"));
        each->setCurrentIndex(-1);
    }
    QCOMPARE(render(box), render(plain));
}

void tst_AdvancedComboBox::emptyBoxPaints()
{
    AdvancedComboBox box;
    box.resize(120, 30);
    box.setToolTip(QStringLiteral("from outside"));
    ReferenceComboBox reference(QString(), box.size());
    reference.clear();
    QCOMPARE(render(box), render(reference));
    QCOMPARE(box.toolTip(), QString());
}

void tst_AdvancedComboBox::typedTextThatIsNoItemGetsAToolTip()
{
    // The label of an editable box is its line edit; the tool tip looks at the text all the same.
    AdvancedComboBox box;
    box.setEditable(true);
    box.resize(120, 30);
    box.setEditText(longText());
    QCOMPARE(box.currentIndex(), -1);
    render(box);
    QCOMPARE(box.toolTip(), longText());
    box.setEditText(QStringLiteral("x"));
    render(box);
    QCOMPARE(box.toolTip(), QString());
}

void tst_AdvancedComboBox::wheelChangesTheCurrentItem()
{
    auto* box = new AdvancedComboBox;
    box->addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    ScrollingForm form(box);
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QTRY_VERIFY(form.verticalScrollBar()->maximum() > 0);

    turnWheelOver(*box);

    QCOMPARE(box->currentIndex(), 1);
    QCOMPARE(form.verticalScrollBar()->value(), 0);
}

void tst_AdvancedComboBox::wheelGoesToTheScrollAreaWhenSwitchedOff()
{
    auto* box = new AdvancedComboBox;
    box->addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    box->setMouseWheelEnabled(false);
    ScrollingForm form(box);
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QTRY_VERIFY(form.verticalScrollBar()->maximum() > 0);

    turnWheelOver(*box);

    QCOMPARE(box->currentIndex(), 0);
    QVERIFY(form.verticalScrollBar()->value() > 0);
}

void tst_AdvancedComboBox::takesFocusOnlyWhenTold()
{
    // No focus by default: kept, the box stands in tool bars that must not take the focus from the document.
    AdvancedComboBox box;
    box.show();
    box.activateWindow();
    QTRY_VERIFY(box.isActiveWindow());
    QTest::mouseClick(&box, Qt::RightButton);
    QVERIFY(!box.hasFocus());
    box.setFocusPolicy(Qt::StrongFocus);
    QTest::mouseClick(&box, Qt::RightButton);
    QVERIFY(box.hasFocus());
}

void tst_AdvancedComboBox::widePopupFitsTheWidestItem()
{
    AdvancedComboBox box;
    box.addItems({QStringLiteral("1"), longText(), QStringLiteral("3")});
    box.resize(60, 30);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));

    box.showPopup();
    const int widest = listOf(box).sizeHintForIndex(box.model()->index(1, 0)).width();
    QVERIFY(widest > box.width());
    QTRY_VERIFY(box.view()->width() >= widest);
    QCOMPARE(box.view()->minimumWidth(), widest);
    QCOMPARE(box.view()->verticalScrollBar()->maximum(), 0);
    box.hidePopup();
}

void tst_AdvancedComboBox::widePopupLeavesRoomForTheScrollBar()
{
    AdvancedComboBox box;
    for (int i = 0; i < 40; ++i)
        box.addItem(longText() + QString::number(i));
    box.setMaxVisibleItems(5);
    // A list, not a menu: only lists have scroll bars.
    box.setEditable(true);
    box.view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    box.resize(60, 30);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.showPopup();
    const QScrollBar* bar = box.view()->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0 && bar->isVisible());
    const int widest = listOf(box).sizeHintForColumn(0);
    QTRY_COMPARE(box.view()->minimumWidth(), widest + bar->width());
    QVERIFY(box.view()->viewport()->width() >= widest);
    box.hidePopup();
}

void tst_AdvancedComboBox::narrowPopupIsCutToTheBox()
{
    AdvancedComboBox box;
    box.setWidePopupEnabled(false);
    box.setEditable(true); // a list, not a menu, which would be as wide as its items
    box.addItems({QStringLiteral("1"), longText()});
    box.resize(60, 30);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.showPopup();
    QTRY_VERIFY(box.view()->isVisible());
    QCOMPARE(listOf(box).textElideMode(), Qt::ElideRight);
    QVERIFY(box.view()->minimumWidth() < listOf(box).sizeHintForColumn(0));
    QVERIFY(box.view()->width() < listOf(box).sizeHintForColumn(0));
    box.hidePopup();
}

void tst_AdvancedComboBox::openingAnEmptyBoxWarnsOfNothing()
{
    AdvancedComboBox box;
    QStandardItemModel withoutColumns;
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.setModel(&withoutColumns);
    const TestSupport::WarningCatcher catcher;
    box.view()->resize(50, 50);
    box.view()->show();
    box.view()->resize(70, 70);
    box.view()->hide();
    QCOMPARE(catcher.warnings().filter(QStringLiteral("Negative")), QStringList());
}

void tst_AdvancedComboBox::switchingReplacesTheViewAndKeepsTheRest()
{
    AdvancedComboBox box;
    box.addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    box.setCurrentIndex(2);
    const QAbstractItemModel* model = box.model();
    const QPointer<QAbstractItemView> old = box.view();
    QSignalSpy current(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
    const QAbstractItemView* seen = nullptr;
    connect(&box, &AdvancedComboBox::widePopupEnabledChanged, this, [&] { seen = box.view(); });

    box.setWidePopupEnabled(false);

    QVERIFY(box.view() != old);
    QCOMPARE(seen, box.view()); // the new list is there before anybody is told
    QCOMPARE(listOf(box).textElideMode(), Qt::ElideRight);
    QCOMPARE(box.view()->model(), model);
    QCOMPARE(box.model(), model);
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(current.count(), 0);

    box.setWidePopupEnabled(true);
    QCOMPARE(listOf(box).textElideMode(), Qt::ElideNone);
    QCOMPARE(box.currentIndex(), 2);
}

void tst_AdvancedComboBox::oldViewGoesFromTheEventLoop()
{
    AdvancedComboBox box;
    const QPointer<QAbstractItemView> old = box.view();
    box.setWidePopupEnabled(false);
    QVERIFY(old);
    QVERIFY(!old->isVisible());
    QTRY_VERIFY(!old);

    // Unless the box goes first.
    auto short_lived = std::make_unique<AdvancedComboBox>();
    const QPointer<QAbstractItemView> other = short_lived->view();
    short_lived->setWidePopupEnabled(false);
    short_lived.reset();
    QVERIFY(!other);
}

void tst_AdvancedComboBox::switchingWhileThePopupIsOpen()
{
    AdvancedComboBox box;
    box.addItems({QStringLiteral("1"), longText()});
    box.resize(60, 30);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.showPopup();
    const QPointer<QAbstractItemView> old = box.view();
    QTRY_VERIFY(old->isVisible());

    box.setWidePopupEnabled(false);
    QTRY_VERIFY(!old);
    QTRY_VERIFY(box.view()->isVisible());
    box.hidePopup();
    QTRY_VERIFY(!box.view()->isVisible());
}

void tst_AdvancedComboBox::switchingFromASlotOfTheView()
{
    AdvancedComboBox box;
    box.addItems({QStringLiteral("1"), QStringLiteral("2")});
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.showPopup();
    QTRY_VERIFY(box.view()->isVisible());
    const QPointer<QAbstractItemView> old = box.view();
    connect(old.data(), &QAbstractItemView::pressed, &box, [&] { box.setWidePopupEnabled(false); });
    QTest::mousePress(old->viewport(), Qt::LeftButton, {}, old->visualRect(box.model()->index(1, 0)).center());
    QTRY_VERIFY(!old);
    box.hidePopup();
}

void tst_AdvancedComboBox::boxMayBeDeletedByTheSlotsOfItsSignals()
{
    for (const Switch& each : switches) {
        QPointer<AdvancedComboBox> box = new AdvancedComboBox;
        connect(box.data(), each.changed, this, [box] { delete box.data(); });
        (box->*each.set)(false);
        QVERIFY(!box);
    }
    QCoreApplication::processEvents();
}

void tst_AdvancedComboBox::keyboardChoosesAsInAnyBox()
{
    AdvancedComboBox box;
    box.addItems({QStringLiteral("alpha"), QStringLiteral("beta"), QStringLiteral("gamma")});
    const QSignalSpy activated(&box, QOverload<int>::of(&QComboBox::activated));
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.currentIndex(), 1);
    QTest::keyClick(&box, Qt::Key_G);
    QCOMPARE(box.currentText(), QStringLiteral("gamma"));
    QCOMPARE(activated.count(), 2);

    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.showPopup();
    QTRY_VERIFY(box.view()->isVisible());
    QCOMPARE(box.view()->currentIndex().row(), 2);
    QTest::keyClick(box.view(), Qt::Key_Up);
    QTest::keyClick(box.view(), Qt::Key_Return);
    QTRY_COMPARE(box.currentIndex(), 1);
    QTRY_VERIFY(!box.view()->isVisible());
}

void tst_AdvancedComboBox::modelsAndMapperWorkAsWithAnyBox()
{
    QStandardItemModel records;
    for (const QString& name : {QStringLiteral("b"), QStringLiteral("a")})
        records.appendRow(new QStandardItem(name));
    AdvancedComboBox box;
    box.addItems({QStringLiteral("a"), QStringLiteral("b")});
    QDataWidgetMapper mapper;
    mapper.setModel(&records);
    mapper.addMapping(&box, 0);
    mapper.toFirst();
    QCOMPARE(box.currentIndex(), 1);
    mapper.toNext();
    QCOMPARE(box.currentIndex(), 0);
    box.setCurrentIndex(1);
    QVERIFY(mapper.submit());
    QCOMPARE(records.item(1)->text(), QStringLiteral("b"));

    QStandardItemModel other(2, 2);
    other.setItem(1, 1, new QStandardItem(QStringLiteral("second column")));
    box.setModel(&other);
    box.setModelColumn(1);
    box.setCurrentIndex(1);
    QCOMPARE(box.currentText(), QStringLiteral("second column"));
    QCOMPARE(box.view()->model(), &other);
}

void tst_AdvancedComboBox::sizeHintsAreThoseOfAPlainBox()
{
    AdvancedComboBox box;
    QComboBox plain;
    for (QComboBox* each : {static_cast<QComboBox*>(&box), &plain})
        each->addItems({QStringLiteral("1"), longText()});
    QCOMPARE(box.sizeHint(), plain.sizeHint());
    QCOMPARE(box.minimumSizeHint(), plain.minimumSizeHint());
}

QTEST_MAIN(tst_AdvancedComboBox)
#include "tst_AdvancedComboBox.moc"
