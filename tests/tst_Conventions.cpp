#include <KQt/Ui/DisableDragAndDropEventFilter.h>
#include <KQt/Ui/WidgetMouseHandler.h>
#include <KQt/Ui/WidgetResizeHandler.h>

#include <QMetaProperty>
#include <QtTest>

Q_DECLARE_METATYPE(const QMetaObject*)

/// What holds for every exported class that is a QObject. A class that is added to the library is added here.
class tst_Conventions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjectHasTheQualifiedName_data();
    void metaObjectHasTheQualifiedName();
};

void tst_Conventions::metaObjectHasTheQualifiedName_data()
{
    QTest::addColumn<const QMetaObject*>("metaObject");
    const auto row = [](const char* name, const QMetaObject& metaObject) { QTest::newRow(name) << &metaObject; };

    using namespace Kestrel::Gui;
    row("Kestrel::Gui::DisableDragAndDropEventFilter", DisableDragAndDropEventFilter::staticMetaObject);
    row("Kestrel::Gui::WidgetMouseHandler", WidgetMouseHandler::staticMetaObject);
    row("Kestrel::Gui::WidgetResizeHandler", WidgetResizeHandler::staticMetaObject);
}

void tst_Conventions::metaObjectHasTheQualifiedName()
{
    QFETCH(const QMetaObject*, metaObject);
    QCOMPARE(metaObject->className(), QTest::currentDataTag());

    for (int i = metaObject->propertyOffset(); i < metaObject->propertyCount(); ++i) {
        const QMetaProperty property = metaObject->property(i);
        QVERIFY2(property.isReadable() && property.isWritable(), property.name());
    }
}

QTEST_GUILESS_MAIN(tst_Conventions)
#include "tst_Conventions.moc"
