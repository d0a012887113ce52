#include <KQt/Ui/ClickableLabel.h>

#include "support/LabelPresses.h"
#include "support/MetaListing.h"

#include <QtTest>

using Kestrel::Gui::ClickableLabel;

class tst_ClickableLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void constantNamesTheProperty() { LabelPresses::constantNamesTheProperty<ClickableLabel>(); }
    void isAChildLikeAnyLabel() { LabelPresses::isAChildLikeAnyLabel<ClickableLabel>(); }
    void clickableIsReportedOnChange() { LabelPresses::clickableIsReportedOnChange<ClickableLabel>(); }
    void everyButtonsPressIsAClick() { LabelPresses::everyButtonsPressIsAClick<ClickableLabel>(); }
    void clickedFirst() { LabelPresses::clickedComesBeforeTheLabelsOwnHandling<ClickableLabel>(); }
    void unclickableStillHandlesPresses() { LabelPresses::unclickableStillHandlesPresses<ClickableLabel>(); }
    void pressesGoOnToTheParent() { LabelPresses::pressesGoOnToTheParent<ClickableLabel>(); }
    void linksAreActivated() { LabelPresses::linksAreActivated<ClickableLabel>(); }
    void deletedFromItsSignals() { LabelPresses::deletedFromItsSignals<ClickableLabel>(); }
};

void tst_ClickableLabel::metaObject()
{
    const QMetaObject& meta = ClickableLabel::staticMetaObject;
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(TestSupport::ownProperties(meta), QStringList{QStringLiteral("clickable bool ClickableChanged")});
    QCOMPARE(TestSupport::ownMethods(meta),
             (QStringList{QStringLiteral("signal clicked()"), QStringLiteral("signal ClickableChanged(bool)")}));
}

QTEST_MAIN(tst_ClickableLabel)
#include "tst_ClickableLabel.moc"
