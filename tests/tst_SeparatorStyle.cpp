#include <KQt/Ui/SeparatorStyle.h>

#include <QMetaProperty>
#include <QPaintEvent>
#include <QStyle>

#include <QtTest>

using Kestrel::Gui::SeparatorStyle;

class tst_SeparatorStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void propertiesInOrder();
    void defaults();
    void settersStoreWhateverTheyAreGiven();
    void heightIsNotTheWidgetsOwn();
    void settersNeitherRepaintNorResize();
    void propertiesAreReachedByName();
    void styleSheetSetsThemByPolishing();
    void belongsToItsParent();
};

void tst_SeparatorStyle::propertiesInOrder()
{
    const QMetaObject& meta = SeparatorStyle::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::SeparatorStyle");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());

    const QStringList listed = {QStringLiteral("int lineWidth"),   QStringLiteral("QColor color"),
                                QStringLiteral("int height"),      QStringLiteral("int marginLeft"),
                                QStringLiteral("int marginRight"), QStringLiteral("int verticalPosition")};
    QStringList found;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        found << QString::fromLatin1(property.typeName()) + QLatin1Char(' ') + QString::fromLatin1(property.name());
        QVERIFY(property.isReadable());
        QVERIFY(property.isWritable());
        QVERIFY(property.isDesignable());
        QVERIFY(property.isScriptable());
        QVERIFY(property.isStored());
        QVERIFY(!property.hasNotifySignal());
        QVERIFY(!property.isResettable());
        QVERIFY(!property.isUser());
    }
    QCOMPARE(found, listed);
}

void tst_SeparatorStyle::defaults()
{
    const SeparatorStyle style(nullptr);
    QCOMPARE(style.lineWidth(), 1);
    QCOMPARE(style.color(), QColor(128, 128, 128, 255));
    QCOMPARE(style.height(), 2);
    QCOMPARE(style.marginLeft(), 0);
    QCOMPARE(style.marginRight(), 0);
    QCOMPARE(style.verticalPosition(), 0);
}

void tst_SeparatorStyle::settersStoreWhateverTheyAreGiven()
{
    SeparatorStyle style;
    for (const int value : {7, 0, -5}) {
        style.setLineWidth(value);
        style.setHeight(value + 1);
        style.setMarginLeft(value + 2);
        style.setMarginRight(value + 3);
        style.setVerticalPosition(value + 4);
        QCOMPARE(style.lineWidth(), value);
        QCOMPARE(style.height(), value + 1);
        QCOMPARE(style.marginLeft(), value + 2);
        QCOMPARE(style.marginRight(), value + 3);
        QCOMPARE(style.verticalPosition(), value + 4);
    }
    for (const QColor& color : {QColor(1, 2, 3, 4), QColor()}) {
        style.setColor(color);
        QCOMPARE(style.color(), color);
    }
}

void tst_SeparatorStyle::heightIsNotTheWidgetsOwn()
{
    // The name hides QWidget's property of the same name: it is what style sheets set.
    SeparatorStyle style;
    style.resize(30, 40);
    style.setHeight(9);
    QCOMPARE(style.size(), QSize(30, 40));
    QCOMPARE(static_cast<const QWidget&>(style).height(), 40);
    QCOMPARE(style.property("height"), QVariant(9));
}

void tst_SeparatorStyle::settersNeitherRepaintNorResize()
{
    class Recorder : public QObject
    {
    public:
        QList<QEvent::Type> seen;
        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            seen << event->type();
            return false;
        }
    } recorder;
    SeparatorStyle style;
    style.show();
    QVERIFY(QTest::qWaitForWindowExposed(&style));
    QCoreApplication::processEvents();
    style.installEventFilter(&recorder);

    style.setLineWidth(5);
    style.setColor(Qt::red);
    style.setHeight(50);
    style.setMarginLeft(5);
    style.setMarginRight(5);
    style.setVerticalPosition(5);
    QCoreApplication::sendPostedEvents();

    QCOMPARE(recorder.seen, QList<QEvent::Type>());
}

void tst_SeparatorStyle::propertiesAreReachedByName()
{
    SeparatorStyle style;
    const struct
    {
        const char* name;
        QVariant value;
    } rows[] = {{"lineWidth", 3},  {"color", QColor(Qt::red)}, {"height", 4},
                {"marginLeft", 5}, {"marginRight", 6},         {"verticalPosition", -7}};
    for (const auto& row : rows)
        QVERIFY2(style.setProperty(row.name, row.value), row.name);
    for (const auto& row : rows)
        QCOMPARE(style.property(row.name), row.value);
    QCOMPARE(style.lineWidth(), 3);
    QCOMPARE(style.color(), QColor(Qt::red));
    QCOMPARE(style.height(), 4);
    QCOMPARE(style.marginLeft(), 5);
    QCOMPARE(style.marginRight(), 6);
    QCOMPARE(style.verticalPosition(), -7);
}

void tst_SeparatorStyle::styleSheetSetsThemByPolishing()
{
    QWidget parent;
    parent.setStyleSheet(
        QStringLiteral("Kestrel--Gui--SeparatorStyle { qproperty-lineWidth: 3; qproperty-color: #1464f6;"
                       " qproperty-height: 9; qproperty-marginLeft: 4; qproperty-marginRight: 5;"
                       " qproperty-verticalPosition: 2; }"));
    SeparatorStyle style(&parent);
    style.style()->polish(&style);
    QCOMPARE(style.lineWidth(), 3);
    QCOMPARE(style.color(), QColor(0x14, 0x64, 0xf6));
    QCOMPARE(style.height(), 9);
    QCOMPARE(style.marginLeft(), 4);
    QCOMPARE(style.marginRight(), 5);
    QCOMPARE(style.verticalPosition(), 2);
}

void tst_SeparatorStyle::belongsToItsParent()
{
    QPointer<SeparatorStyle> style;
    {
        QWidget parent;
        style = new SeparatorStyle(&parent);
        QCOMPARE(style->parentWidget(), &parent);
        QVERIFY(!style->isWindow());
    }
    QVERIFY(!style);
}

QTEST_MAIN(tst_SeparatorStyle)
#include "tst_SeparatorStyle.moc"
