#include <KQtUtil/WidgetStyle.h>

#include <QProxyStyle>
#include <QPushButton>
#include <QtTest>

using Kestrel::Util::ApplyWidgetStyle;

namespace {

/// Notes which widgets it is asked to polish and unpolish.
class RecordingStyle : public QProxyStyle
{
public:
    void polish(QWidget* widget) override
    {
        calls << QStringLiteral("polish ") + widget->property("styleHint").toString();
        QProxyStyle::polish(widget);
    }
    void unpolish(QWidget* widget) override
    {
        calls << QStringLiteral("unpolish");
        QProxyStyle::unpolish(widget);
    }
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;

    QStringList calls;
};

} // namespace

class tst_WidgetStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsThePropertyAndPolishesAnew();
    void rulesThatSelectByThePropertyTakeEffect();
    void noWidgetIsNoWork();
};

void tst_WidgetStyle::setsThePropertyAndPolishesAnew()
{
    RecordingStyle style;
    QPushButton button;
    button.setStyle(&style);
    style.calls.clear();

    ApplyWidgetStyle(&button, QStringLiteral("flat"), "styleHint");
    QCOMPARE(button.property("styleHint"), QVariant(QStringLiteral("flat")));
    QCOMPARE(style.calls, QStringList({QStringLiteral("unpolish"), QStringLiteral("polish flat")}));
}

void tst_WidgetStyle::rulesThatSelectByThePropertyTakeEffect()
{
    QPushButton button;
    button.setStyleSheet(QStringLiteral("QPushButton[look=\"wide\"] { min-width: 321px; }"));
    button.ensurePolished();
    const int before = button.sizeHint().width();
    QVERIFY(before < 321);

    ApplyWidgetStyle(&button, QStringLiteral("wide"), "look");
    QVERIFY(button.sizeHint().width() >= 321);

    ApplyWidgetStyle(&button, QStringLiteral("plain"), "look");
    QCOMPARE(button.sizeHint().width(), before);
}

void tst_WidgetStyle::noWidgetIsNoWork()
{
    ApplyWidgetStyle(nullptr, QStringLiteral("flat"), "styleHint");
}

QTEST_MAIN(tst_WidgetStyle)
#include "tst_WidgetStyle.moc"
