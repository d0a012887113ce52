#pragma once

#include "EventRecorder.h"
#include "MouseEvents.h"

#include <QLabel>
#include <QSignalSpy>

#include <QtTest>

/// What the two clickable labels have in common: each function tests one behaviour of @p Label.
namespace LabelPresses {

/// Shown, with text that the user can select and that is selected.
template <typename Label>
class SelectableLabel
{
public:
    SelectableLabel()
    {
        label.setTextInteractionFlags(Qt::TextSelectableByMouse);
        label.setText(QStringLiteral("some text"));
        label.setSelection(0, 4);
    }

    bool press(Qt::MouseButton button = Qt::LeftButton)
    {
        return TestSupport::sendMouse(&label, QEvent::MouseButtonPress, {1, 1}, button, button);
    }

    Label label;
};

template <typename Label>
void constantNamesTheProperty()
{
    QCOMPARE(Label::CLICKABLE, std::string("clickable"));
    QVERIFY(Label::staticMetaObject.indexOfProperty(Label::CLICKABLE.c_str()) >=
            Label::staticMetaObject.propertyOffset());
}

template <typename Label>
void isAChildLikeAnyLabel()
{
    QWidget parent;
    const Label label(&parent);
    const QLabel plain(&parent);
    QCOMPARE(label.parentWidget(), &parent);
    QCOMPARE(label.windowFlags(), plain.windowFlags());
    QVERIFY(label.IsClickable());
}

template <typename Label>
void clickableIsReportedOnChange()
{
    Label label;
    const QSignalSpy changed(&label, &Label::ClickableChanged);
    label.SetClickable(true);
    QCOMPARE(changed.count(), 0);
    label.SetClickable(false);
    QVERIFY(!label.IsClickable());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.last().first().toBool(), false);
    label.SetClickable(false);
    QCOMPARE(changed.count(), 1);
    QVERIFY(label.setProperty("clickable", true));
    QVERIFY(label.property("clickable").toBool());
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.last().first().toBool(), true);
}

template <typename Label>
void everyButtonsPressIsAClick()
{
    Label label;
    const QSignalSpy clicked(&label, &Label::clicked);
    int expected = 0;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        // The press is the click: neither moves nor the release add to it.
        TestSupport::sendMouse(&label, QEvent::MouseButtonPress, {1, 1}, button, button);
        QCOMPARE(clicked.count(), ++expected);
        TestSupport::sendMouse(&label, QEvent::MouseMove, {2, 1}, Qt::NoButton, button);
        TestSupport::sendMouse(&label, QEvent::MouseButtonRelease, {2, 1}, button, Qt::NoButton);
        QCOMPARE(clicked.count(), expected);
    }
}

template <typename Label>
void clickedComesBeforeTheLabelsOwnHandling()
{
    SelectableLabel<Label> subject;
    bool selectedAtSignal = false;
    QObject::connect(&subject.label, &Label::clicked, &subject.label,
                     [&] { selectedAtSignal = subject.label.hasSelectedText(); });
    QVERIFY(subject.press());
    QVERIFY(selectedAtSignal);
    QVERIFY(!subject.label.hasSelectedText()); // QLabel starts a selection of its own
}

template <typename Label>
void unclickableStillHandlesPresses()
{
    SelectableLabel<Label> subject;
    subject.label.SetClickable(false);
    const QSignalSpy clicked(&subject.label, &Label::clicked);
    QVERIFY(subject.press());
    QVERIFY(!subject.label.hasSelectedText());
    QCOMPARE(clicked.count(), 0);
}

template <typename Label>
void pressesGoOnToTheParent()
{
    EventRecorder parent;
    Label label(&parent);
    for (const bool clickable : {true, false}) {
        label.SetClickable(clickable);
        parent.received.clear();
        TestSupport::sendMouse(&label, QEvent::MouseButtonPress, {1, 1}, Qt::LeftButton, Qt::LeftButton);
        // A label that does nothing with a press leaves it to its parent, a reported press included.
        QCOMPARE(parent.count(QEvent::MouseButtonPress), 1);
    }
}

template <typename Label>
void linksAreActivated()
{
    Label label;
    label.setTextFormat(Qt::RichText);
    label.setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    label.setText(QStringLiteral("<a href=\"there\">link</a>"));
    label.resize(label.sizeHint());
    const QSignalSpy activated(&label, &Label::linkActivated);
    const QSignalSpy clicked(&label, &Label::clicked);
    QTest::mouseClick(&label, Qt::LeftButton, {}, label.rect().center());
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated.first().first().toString(), QStringLiteral("there"));
    QCOMPARE(clicked.count(), 1);
}

template <typename Label>
void deletedFromItsSignals()
{
    QPointer<Label> label = new Label;
    QObject::connect(label, &Label::clicked, [&label] { delete label; });
    TestSupport::sendMouse(label, QEvent::MouseButtonPress, {1, 1}, Qt::LeftButton, Qt::LeftButton);
    QVERIFY(!label);

    label = new Label;
    QObject::connect(label, &Label::ClickableChanged, [&label] { delete label; });
    label->SetClickable(false);
    QVERIFY(!label);
}

} // namespace LabelPresses
