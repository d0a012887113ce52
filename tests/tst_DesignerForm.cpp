#include "ui_DesignerForm.h"

#include <QTest>
#include <QTranslator>

/// A form with every widget, compiled by uic: what an application gets of it.
class tst_DesignerForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buildsEveryWidget();
    void setsProperties();
    void setsWalkthroughProperties();
    void walkthroughNamesAreNotTranslated();
};

namespace {

struct BuiltForm
{
    BuiltForm() { ui.setupUi(&window); }

    QWidget window;
    Ui::DesignerForm ui;
};

/// Answers every text with another one.
class Rot : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* text, const char* /*comment*/, int /*n*/) const override
    {
        return QLatin1Char('<') + QString::fromUtf8(text) + QLatin1Char('>');
    }
};

} // namespace

void tst_DesignerForm::buildsEveryWidget()
{
    BuiltForm form;
    form.window.show();
    const QList<QWidget*> widgets = {
        form.ui.colour, form.ui.namedColour, form.ui.pen,       form.ui.eyedropper, form.ui.title,
        form.ui.preset, form.ui.quality,     form.ui.lineStyle, form.ui.lineWidth,  form.ui.folder,
        form.ui.notes,  form.ui.copies,      form.ui.balance,   form.ui.fontStyle,  form.ui.textAlign,
        form.ui.help,   form.ui.fileName,    form.ui.titleBar,  form.ui.preview,
    };
    for (const QWidget* widget : widgets)
        QVERIFY2(widget->isVisibleTo(&form.window), qPrintable(widget->objectName()));
}

void tst_DesignerForm::setsProperties()
{
    BuiltForm form;
    form.window.show();
    QCOMPARE(form.ui.copies->getMaxLenght(), 3);
    QCOMPARE(form.ui.notes->placeholderText(), QStringLiteral("What is it about?"));
    QCOMPARE(form.ui.namedColour->DefaultColor(), QColor(255, 140, 0));
    QCOMPARE(form.ui.title->tooltipTemplate(), QStringLiteral("Title: %1"));
    QCOMPARE(form.ui.fileName->GetOriginalText(),
             QStringLiteral("A file name that is too long for its label to be shown.png"));
    QVERIFY(!form.ui.title->mouseWheelEnabled());
    QVERIFY(!form.ui.title->widePopupEnabled());
    QCOMPARE(form.ui.namedColour->ColorBoxWidth(), 20);
    QCOMPARE(form.ui.eyedropper->property("changeSelfColor").toBool(), false);
    QVERIFY(form.ui.preview->getStarIsVisible());
    QCOMPARE(form.ui.balance->tickWidth(), 2);
    QVERIFY(!form.ui.eyedropper->isEnabled()); // until it has a target
    form.ui.eyedropper->setTargetWidget(form.ui.preview);
    QVERIFY(form.ui.eyedropper->isEnabled());
}

void tst_DesignerForm::setsWalkthroughProperties()
{
    const BuiltForm form;
    QCOMPARE(form.ui.colour->property("walkthroughWidget").toString(), QStringLiteral("colour"));
    const QWidget* hint = form.ui.colourHint;
    QCOMPARE(hint->property("walkthroughName").toString(), QStringLiteral("colour-hint"));
    QCOMPARE(hint->property("walkthroughAlignment").toString(), QStringLiteral("right"));
    QCOMPARE(hint->property("walkthroughConditionList").toStringList(),
             QStringList({QStringLiteral("colour-hint/ready"), QStringLiteral("colour/active")}));
}

void tst_DesignerForm::walkthroughNamesAreNotTranslated()
{
    Rot translator;
    QCoreApplication::installTranslator(&translator);
    const BuiltForm form;
    QCOMPARE(form.ui.colourLabel->text(), QStringLiteral("<Colour>"));
    QCOMPARE(form.ui.colour->property("walkthroughWidget").toString(), QStringLiteral("colour"));
    QCOMPARE(form.ui.colourHint->property("walkthroughConditionList").toStringList().constLast(),
             QStringLiteral("colour/active"));
    QCoreApplication::removeTranslator(&translator);
}

QTEST_MAIN(tst_DesignerForm)
#include "tst_DesignerForm.moc"
