#include <KQt/Ui/LineWidthComboBox.h>

#include "support/ContextTranslator.h"
#include "support/Render.h"
#include "support/WarningCatcher.h"

#include <QListView>
#include <QStyledItemDelegate>
#include <QStyleOptionComboBox>

#include <QtTest>

#include <utility>

using Kestrel::Gui::LineWidthComboBox;
using TestSupport::ContextTranslator;
using TestSupport::render;
using TestSupport::WarningCatcher;

namespace {

constexpr QSize boxSize(160, 31);

int arrowWidthOf(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &box).width();
}

/// A plain box with one item of @p width, or none, and what @p sample draws on it.
template <typename Sample>
class ReferenceBox : public QComboBox
{
public:
    ReferenceBox(const QVariant& width, Sample sample)
        : m_sample(std::move(sample))
    {
        if (width.isValid())
            addItem(QString(), width);
        resize(boxSize);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QComboBox::paintEvent(event);
        QPainter painter(this);
        m_sample(painter);
    }

private:
    Sample m_sample;
};

template <typename Sample>
QImage renderedWith(const QVariant& width, Sample sample)
{
    ReferenceBox<Sample> box(width, sample);
    return render(box);
}

QImage renderedWord(const QVariant& width, const QString& word)
{
    return renderedWith(width, [word](QPainter& painter) {
        painter.drawText(QRect({8, 0}, boxSize), Qt::AlignLeft | Qt::AlignVCenter, word);
    });
}

QImage renderedLine(const QVariant& width, const QComboBox& box)
{
    box.ensurePolished(); // a style sheet sets the palette
    // Sixteen pixels off the arrow, where a style box keeps four: kept, forms are laid out for it.
    const int end = boxSize.width() - 1 - 16 - arrowWidthOf(box);
    return renderedWith(width, [&](QPainter& painter) {
        painter.setPen(QPen(box.palette().color(box.foregroundRole()), width.toInt()));
        painter.drawLine(8, boxSize.height() / 2, end, boxSize.height() / 2);
    });
}

} // namespace

class tst_LineWidthComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasListViewOnItsOwnModelAndDelegate();
    void metaObjectAddsNothing();
    void closedBoxShowsLineOfWidth_data();
    void closedBoxShowsLineOfWidth();
    void widthZeroShowsTranslatedWord();
    void noCurrentItemShowsTheWord();
    void negativeWidthIsALineInTheClosedBox();
};

void tst_LineWidthComboBox::hasListViewOnItsOwnModelAndDelegate()
{
    LineWidthComboBox box;
    QVERIFY(box.view()->metaObject() == &QListView::staticMetaObject);
    QCOMPARE(box.view()->model(), box.model());
    QCOMPARE(box.itemDelegate()->parent(), &box);
    QCOMPARE(box.view()->itemDelegate(), box.itemDelegate());
    QCOMPARE(box.count(), 0);
}

void tst_LineWidthComboBox::metaObjectAddsNothing()
{
    const QMetaObject& meta = LineWidthComboBox::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::LineWidthComboBox");
    QCOMPARE(meta.superClass(), &QComboBox::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void tst_LineWidthComboBox::closedBoxShowsLineOfWidth_data()
{
    QTest::addColumn<int>("width");
    for (int width = 1; width <= 6; ++width)
        QTest::addRow("%d", width) << width;
}

void tst_LineWidthComboBox::closedBoxShowsLineOfWidth()
{
    QFETCH(int, width);
    LineWidthComboBox box;
    box.addItem(QString(), width);
    box.resize(boxSize);

    QCOMPARE(render(box), renderedLine(width, box));
}

void tst_LineWidthComboBox::widthZeroShowsTranslatedWord()
{
    LineWidthComboBox box;
    box.addItem(QString(), 0);
    box.resize(boxSize);
    QCOMPARE(render(box), renderedWord(0, QStringLiteral("none")));

    const ContextTranslator translator("Kestrel::Gui::LineWidthComboBox");
    QCOMPARE(render(box), renderedWord(0, ContextTranslator::translated("none")));
}

void tst_LineWidthComboBox::noCurrentItemShowsTheWord()
{
    LineWidthComboBox box;
    box.resize(boxSize);
    QCOMPARE(render(box), renderedWord({}, QStringLiteral("none")));
}

void tst_LineWidthComboBox::negativeWidthIsALineInTheClosedBox()
{
    // The list calls it "none", the closed box does not: the two are asymmetric on purpose.
    LineWidthComboBox box;
    box.addItem(QString(), -3);
    box.resize(boxSize);
    const WarningCatcher catcher;
    const QImage shown = render(box);
    QCOMPARE(catcher.warnings(), QStringList());

    QVERIFY(shown != renderedWord(-3, QStringLiteral("none")));
    QCOMPARE(shown, renderedLine(-3, box));
}

QTEST_MAIN(tst_LineWidthComboBox)
#include "tst_LineWidthComboBox.moc"
