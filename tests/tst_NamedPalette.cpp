#include <KQt/Ui/NamedPalette.h>

#include "support/NamedPaletteListing.h"

#include <QtTest>

using Kestrel::Gui::Detail::namedPalette;
using TestSupport::listedColors;

class tst_NamedPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTheListedOne();
};

void tst_NamedPalette::isTheListedOne()
{
    QCOMPARE(namedPalette.size(), std::size(listedColors));
    QCOMPARE(namedPalette.size(), std::size_t(40));
    for (std::size_t i = 0; i < namedPalette.size(); ++i) {
        // Names with a blank at the end or another colour's description are kept as listed.
        QCOMPARE(namedPalette[i].name, listedColors[i].name);
        const QColor color = namedPalette[i].color();
        QCOMPARE(color, QColor(listedColors[i].red, listedColors[i].green, listedColors[i].blue));
        QCOMPARE(color.alpha(), 255);
    }
}

QTEST_APPLESS_MAIN(tst_NamedPalette)
#include "tst_NamedPalette.moc"
