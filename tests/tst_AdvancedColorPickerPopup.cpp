#include <KQt/Ui/AdvancedColorPickerPopup.h>

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/PickerButton.h>

#include "support/ContextTranslator.h"
#include "support/DragWatcher.h"
#include "support/MouseEvents.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QRegExpValidator>
#include <QSlider>
#include <QSpinBox>
#include <QtTest>

#include <memory>
#include <optional>

using Kestrel::Gui::AdvancedColorPickerPopup;
using Kestrel::Gui::PickerButton;
using TestSupport::ContextTranslator;

namespace {

constexpr int UserSlots = 12;
const char* const PopupContext = "AdvancedColorPickerPopup";

QString readListing(const char* name)
{
    QFile file{QLatin1String(name)};
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The 120 colours of the independent listing, row by row.
QStringList listedPalette()
{
    return readListing(":/data/advanced-palette.txt").split(QRegExp(QStringLiteral("\\s")), Qt::SkipEmptyParts);
}

QString rgba(const QColor& c)
{
    return QStringLiteral("background-color: rgba(%1, %2, %3, %4)")
        .arg(c.red())
        .arg(c.green())
        .arg(c.blue())
        .arg(c.alpha());
}

/// Counts what each widget is told about its style.
class StyleEventCounter : public QObject
{
public:
    StyleEventCounter() { qApp->installEventFilter(this); }
    ~StyleEventCounter() override { qApp->removeEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Polish)
            ++polished[watched];
        else if (event->type() == QEvent::StyleChange)
            ++restyled[watched];
        else if (event->type() == QEvent::Paint)
            ++painted[watched];
        return false;
    }

    QHash<QObject*, int> polished;
    QHash<QObject*, int> restyled;
    QHash<QObject*, int> painted;
};

} // namespace

class tst_AdvancedColorPickerPopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // What it is made of.
    void metaObjectListsSignalsAndSlotsInOrder();
    void isAFramelessPopupFrame();
    void gridHoldsFourRows();
    void firstRowHoldsIndicatorEditAndPercentage();
    void userSlotsLieInARow();
    void paletteIsTheListedOne();
    void paletteSwatchesLieInAGrid();
    void opacityRowHoldsLabelAndSlider();
    void styleSheetIsTheListedOne();
    void allSwatchesAreInOneExclusiveGroup();
    void hexValidatorBelongsToTheEdit();
    void sizeFitsTheContents();
    void eachChildIsPolishedOnceBeforeTheFirstPaint();

    // Texts.
    void textsAreTranslated();
    void textsFollowTheLanguage();

    // Colour from outside.
    void newPopupHasAnInvalidColor();
    void setColorShowsTheColor_data();
    void setColorShowsTheColor();
    void setColorEmitsNothing_data();
    void setColorEmitsNothing();
    void setColorRestoresBlockedSignals();
    void alphaBecomesAPercentage_data();
    void alphaBecomesAPercentage();
    void setColorChecksThePaletteSwatch();
    void translucentColorKeepsTheCheckedSwatch();
    void firstMatchingUserSlotIsChecked();
    void userSlotGoesBeforeThePalette();
    void setColorOverwritesTheCheckedUserSlot();
    void unknownColorKeepsTheCheckedSwatch();

    // The user.
    void clickedSwatchGivesItsColorWithTheOpacity();
    void everySwatchCanBeChosen();
    void secondClickIsToldTwice();
    void clickedUserSlotTakesTheOpacity();
    void clickedCheckedSwatchTellsNothing();
    void opacitySliderChangesAlpha();
    void opacityZeroIsFullyTransparent();
    void percentageDrivesTheSlider();
    void opacityOverwritesTheCheckedUserSlot();
    void typedHexGivesAnOpaqueColor();
    void pastedUpperCaseIsToldOnceInLowerCase();
    void incompleteHexChangesNothing();
    void editRefusesWhatCannotBecomeAColor();
    void clearedEditKeepsTheHash();
    void typedColorLeavesSwatchesAlone();

    // User slots.
    void droppedColorReachesOtherPopups();
    void staleSlotsAreNotStored();
    void dropWithoutColorIsRefused();
    void userSlotsCannotBeDragged();
    void paletteSwatchesCanBeDragged();
    void paletteSwatchesTakeNoDrops();

    // Showing and hiding.
    void hidingTellsTheColor();
    void opacityRowCanBeHidden();
    void popupMayDieInASlot();
    void popupMayDieInADrag();

private:
    template <typename Child>
    Child* child(const char* name) const
    {
        auto* const found = m_popup->findChild<Child*>(QLatin1String(name));
        Q_ASSERT(found);
        return found;
    }
    QList<PickerButton*> paletteSwatches() const
    {
        return child<QFrame>("colorButtonsFrame")->findChildren<PickerButton*>();
    }
    QList<PickerButton*> userSlots() const { return userSlotsOf(*m_popup); }
    static QList<PickerButton*> userSlotsOf(const AdvancedColorPickerPopup& popup)
    {
        return popup.findChild<QFrame*>(QStringLiteral("userSelectedColorsFrame"))->findChildren<PickerButton*>();
    }
    QAbstractButton* checkedSwatch() const { return m_popup->findChild<QButtonGroup*>()->checkedButton(); }
    QLineEdit* colorEdit() const { return child<QLineEdit>("colorEdit"); }
    QSpinBox* opacityEdit() const { return child<QSpinBox>("opacityEdit"); }
    QSlider* opacitySlider() const { return child<QSlider>("opacitySlider"); }
    QLabel* colorIndicator() const { return child<QLabel>("colorIndicator"); }
    static bool drop(PickerButton* swatch, const QMimeData& data);
    static QMimeData* colorData(const QColor& color, QObject* parent);

    std::unique_ptr<AdvancedColorPickerPopup> m_popup;
};

void tst_AdvancedColorPickerPopup::init()
{
    qRegisterMetaType<QAbstractButton*>();
    m_popup = std::make_unique<AdvancedColorPickerPopup>();
}

void tst_AdvancedColorPickerPopup::cleanup()
{
    // The user colours live as long as the process: grey again for the next test.
    AdvancedColorPickerPopup popup;
    const auto userSlotList = userSlotsOf(popup);
    for (PickerButton* const slot : userSlotList)
        slot->setColor(Qt::gray);
    m_popup.reset();
}

/// Drags @p data onto @p swatch and lets go; whether the swatch took it.
bool tst_AdvancedColorPickerPopup::drop(PickerButton* swatch, const QMimeData& data)
{
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(swatch, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent dropped(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    dropped.ignore();
    QCoreApplication::sendEvent(swatch, &dropped);
    return dropped.isAccepted();
}

QMimeData* tst_AdvancedColorPickerPopup::colorData(const QColor& color, QObject* parent)
{
    auto* const data = new QMimeData;
    data->setParent(parent);
    data->setColorData(color);
    return data;
}

void tst_AdvancedColorPickerPopup::metaObjectListsSignalsAndSlotsInOrder()
{
    const QMetaObject& meta = AdvancedColorPickerPopup::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::AdvancedColorPickerPopup");
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    QByteArrayList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        methods << QByteArray(method.methodType() == QMetaMethod::Signal ? "signal "
                              : method.access() == QMetaMethod::Private  ? "private "
                                                                         : "public ") +
                       method.methodSignature();
    }
    QCOMPARE(methods, QByteArrayList({"signal changedColor(QColor)", "signal hidedWithColor(QColor)",
                                      "private colorButtonChanged()", "private opacityChanged()",
                                      "private textColorChanged(QString)", "private updateUserGeneratedColors()"}));
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_AdvancedColorPickerPopup::isAFramelessPopupFrame()
{
    QCOMPARE(m_popup->windowFlags() & Qt::WindowType_Mask, Qt::Popup);
    QVERIFY(m_popup->windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(!m_popup->parent());
    QVERIFY(m_popup->isHidden());
    QCOMPARE(m_popup->objectName(), QStringLiteral("AdvancedColorPickerPopup"));
    QCOMPARE(m_popup->windowTitle(), QString());
    QCOMPARE(m_popup->frameShape(), QFrame::StyledPanel);
    QCOMPARE(m_popup->frameShadow(), QFrame::Plain);
    QCOMPARE(m_popup->lineWidth(), 0);

    QWidget parent;
    const auto* const owned = new AdvancedColorPickerPopup(&parent);
    QCOMPARE(owned->parentWidget(), &parent);
    QVERIFY(owned->isWindow());
}

void tst_AdvancedColorPickerPopup::gridHoldsFourRows()
{
    auto* const grid = qobject_cast<QGridLayout*>(m_popup->layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout_2"));
    QCOMPARE(grid->horizontalSpacing(), 6);
    QCOMPARE(grid->verticalSpacing(), 6);
    QCOMPARE(grid->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(grid->count(), 4);
    const QStringList names{QStringLiteral("horizontalLayout"), QStringLiteral("userSelectedColorsFrame"),
                            QStringLiteral("colorButtonsFrame"), QStringLiteral("opacityFrame")};
    for (int i = 0; i < 4; ++i) {
        int row = -1;
        int column = -1;
        int rows = -1;
        int columns = -1;
        grid->getItemPosition(i, &row, &column, &rows, &columns);
        QCOMPARE(QVector<int>({row, column, rows, columns}), QVector<int>({i, 0, 1, 2}));
        const QLayoutItem* const item = grid->itemAt(i);
        const QObject* const object = i == 0 ? static_cast<QObject*>(const_cast<QLayoutItem*>(item)->layout())
                                             : const_cast<QLayoutItem*>(item)->widget();
        QVERIFY(object);
        QCOMPARE(object->objectName(), names.at(i));
    }
}

void tst_AdvancedColorPickerPopup::firstRowHoldsIndicatorEditAndPercentage()
{
    auto* const row = m_popup->findChild<QHBoxLayout*>(QStringLiteral("horizontalLayout"));
    QVERIFY(row);
    QCOMPARE(row->count(), 4);
    QCOMPARE(row->spacing(), QHBoxLayout(std::make_unique<QWidget>().get()).spacing());

    QCOMPARE(row->itemAt(0)->widget(), colorIndicator());
    QCOMPARE(colorIndicator()->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(colorIndicator()->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(colorIndicator()->minimumSize(), QSize(27, 28));
    QCOMPARE(colorIndicator()->maximumSize(), QSize(27, 28));
    QCOMPARE(colorIndicator()->text(), QString());

    QCOMPARE(row->itemAt(1)->widget(), colorEdit());
    QCOMPARE(colorEdit()->maximumWidth(), 70);
    QCOMPARE(colorEdit()->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(colorEdit()->inputMask(), QString());
    QCOMPARE(colorEdit()->text(), QString());
    QCOMPARE(colorEdit()->maxLength(), 7);

    QCOMPARE(row->itemAt(2)->widget(), opacityEdit());
    QCOMPARE(opacityEdit()->maximumWidth(), 50);
    QCOMPARE(opacityEdit()->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(opacityEdit()->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QCOMPARE(opacityEdit()->prefix(), QString());
    QCOMPARE(opacityEdit()->suffix(), QStringLiteral("%"));
    QCOMPARE(opacityEdit()->minimum(), 0);
    QCOMPARE(opacityEdit()->maximum(), 100);
    QCOMPARE(opacityEdit()->value(), 100);

    QSpacerItem* const spacer = row->itemAt(3)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(40, 20));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

void tst_AdvancedColorPickerPopup::userSlotsLieInARow()
{
    auto* const frame = child<QFrame>("userSelectedColorsFrame");
    auto* const row = qobject_cast<QHBoxLayout*>(frame->layout());
    QVERIFY(row);
    QCOMPARE(row->objectName(), QStringLiteral("userSelectedColors"));
    QCOMPARE(row->spacing(), 1);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->count(), UserSlots);
    for (int i = 0; i < UserSlots; ++i) {
        auto* const slot = qobject_cast<PickerButton*>(row->itemAt(i)->widget());
        QVERIFY(slot);
        QCOMPARE(slot, userSlots().at(i));
        QCOMPARE(slot->minimumSize(), QSize(18, 18));
        QCOMPARE(slot->maximumSize(), QSize(18, 18));
        QCOMPARE(row->stretch(i), 0);
        QVERIFY(slot->isCheckable());
        QVERIFY(!slot->isChecked());
        QVERIFY(slot->acceptDrops());
        QCOMPARE(slot->color(), QColor(Qt::gray));
    }
}

void tst_AdvancedColorPickerPopup::paletteIsTheListedOne()
{
    const QStringList listed = listedPalette();
    QCOMPARE(listed.size(), 120);
    const auto swatches = paletteSwatches();
    QCOMPARE(swatches.size(), 120);
    for (int i = 0; i < 120; ++i) {
        QCOMPARE(swatches.at(i)->color().name(), listed.at(i));
        QCOMPARE(swatches.at(i)->color(), QColor(listed.at(i)));
        QCOMPARE(swatches.at(i)->color().alpha(), 255);
    }
}

void tst_AdvancedColorPickerPopup::paletteSwatchesLieInAGrid()
{
    auto* const frame = child<QFrame>("colorButtonsFrame");
    QCOMPARE(frame->lineWidth(), 0);
    auto* const grid = qobject_cast<QGridLayout*>(frame->layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("colorButtonsLayout"));
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(grid->sizeConstraint(), QLayout::SetMinimumSize);
    QCOMPARE(grid->rowCount(), 10);
    QCOMPARE(grid->columnCount(), 12);
    const QStringList listed = listedPalette();
    m_popup->show();
    for (int row = 0; row < 10; ++row) {
        for (int column = 0; column < 12; ++column) {
            auto* const swatch = qobject_cast<PickerButton*>(grid->itemAtPosition(row, column)->widget());
            QVERIFY(swatch);
            QCOMPARE(swatch->color().name(), listed.at(row * 12 + column));
            QCOMPARE(swatch->minimumSize(), QSize(20, 20));
            QCOMPARE(swatch->maximumSize(), QSize(20, 20));
            QVERIFY(swatch->isCheckable());
            const QPoint fromFirst = swatch->pos() - paletteSwatches().constFirst()->pos();
            QCOMPARE(fromFirst, QPoint(column * (m_popup->isRightToLeft() ? -20 : 20), row * 20));
        }
    }
}

void tst_AdvancedColorPickerPopup::opacityRowHoldsLabelAndSlider()
{
    auto* const row = qobject_cast<QHBoxLayout*>(child<QFrame>("opacityFrame")->layout());
    QVERIFY(row);
    QCOMPARE(row->objectName(), QStringLiteral("horizontalLayout_3"));
    QCOMPARE(row->spacing(), 6);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->count(), 2);
    QCOMPARE(row->itemAt(0)->widget(), child<QLabel>("label"));
    QCOMPARE(child<QLabel>("label")->text(), QStringLiteral("OPACITY"));
    QCOMPARE(row->itemAt(1)->widget(), opacitySlider());
    QCOMPARE(opacitySlider()->orientation(), Qt::Horizontal);
    QCOMPARE(opacitySlider()->minimum(), 0);
    QCOMPARE(opacitySlider()->maximum(), 100);
    QCOMPARE(opacitySlider()->value(), 100);
}

void tst_AdvancedColorPickerPopup::styleSheetIsTheListedOne()
{
    QString listed = readListing(":/data/advanced-popup.qss");
    QVERIFY(listed.endsWith(QLatin1Char('\n')));
    listed.chop(1);
    QVERIFY(!listed.endsWith(QLatin1Char('\n')));
    QCOMPARE(m_popup->styleSheet(), listed);
}

void tst_AdvancedColorPickerPopup::allSwatchesAreInOneExclusiveGroup()
{
    const auto groups = m_popup->findChildren<QButtonGroup*>();
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups.first()->parent(), m_popup.get());
    QVERIFY(groups.first()->exclusive());
    QList<QAbstractButton*> expected;
    const auto swatches = paletteSwatches() + userSlots();
    for (PickerButton* const swatch : swatches)
        expected << swatch;
    QCOMPARE(groups.first()->buttons(), expected);
    QVERIFY(!groups.first()->checkedButton());
    // Ids are the automatic ones, which are below -1.
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(groups.first()->id(expected.at(i)), -2 - i);
}

void tst_AdvancedColorPickerPopup::hexValidatorBelongsToTheEdit()
{
    const auto* const validator = qobject_cast<const QRegExpValidator*>(colorEdit()->validator());
    QVERIFY(validator);
    QCOMPARE(validator->regExp().pattern(), QStringLiteral("^#[a-fA-F0-9]{6}$"));
}

// The picker aligns the popup's edges before it is shown: the size must be final already.
void tst_AdvancedColorPickerPopup::sizeFitsTheContents()
{
    const QSize built = m_popup->size();
    QCOMPARE(built.width(), 10 + 1 + 12 * 20 + 1 + 10);
    m_popup->setColor(Qt::red);
    m_popup->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_popup.get()));
    QCOMPARE(m_popup->size(), built);
    m_popup->adjustSize();
    QCOMPARE(m_popup->size(), built);
    QCOMPARE(colorIndicator()->size(), QSize(27, 28));
    // A border of one pixel runs around the swatches.
    QCOMPARE(child<QFrame>("colorButtonsFrame")->size(), QSize(12 * 20 + 2, 10 * 20 + 2));
    const auto widgets = m_popup->findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()), qPrintable(widget->objectName()));
        QVERIFY(widget->width() >= widget->minimumWidth() && widget->height() >= widget->minimumHeight());
    }
}

// Polishing under the style sheet is most of what the popup costs.
void tst_AdvancedColorPickerPopup::eachChildIsPolishedOnceBeforeTheFirstPaint()
{
    m_popup.reset();
    StyleEventCounter counter;
    m_popup = std::make_unique<AdvancedColorPickerPopup>();
    const QHash<QObject*, int> restyledWhenBuilt = counter.restyled;
    // What the event loop does with the popup before it is opened does not count either.
    QCoreApplication::processEvents();
    m_popup->setColor(Qt::red);
    m_popup->setColor(QColor(0, 0, 255, 100));
    m_popup->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_popup.get()));
    QTRY_VERIFY(counter.painted.value(m_popup.get()) > 0);
    const auto widgets = m_popup->findChildren<QWidget*>();
    QVERIFY(widgets.size() > 132);
    for (QWidget* const widget : widgets) {
        QVERIFY2(counter.polished.value(widget) == 1, qPrintable(widget->objectName()));
        // Told about the sheet when it got its parent, never again after that: that would polish it anew.
        QVERIFY2(counter.restyled.value(widget) <= 1, qPrintable(widget->objectName()));
        QCOMPARE(counter.restyled.value(widget), restyledWhenBuilt.value(widget));
    }
}

void tst_AdvancedColorPickerPopup::textsAreTranslated()
{
    const ContextTranslator translator(PopupContext);
    const AdvancedColorPickerPopup popup;
    QCOMPARE(popup.findChild<QSpinBox*>()->suffix(), ContextTranslator::translated("%"));
    QCOMPARE(popup.findChild<QLabel*>(QStringLiteral("label"))->text(), ContextTranslator::translated("OPACITY"));
    QCOMPARE(popup.windowTitle(), QString());
}

void tst_AdvancedColorPickerPopup::textsFollowTheLanguage()
{
    opacitySlider()->setValue(40);
    {
        const ContextTranslator translator(PopupContext);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(m_popup.get(), &change);
        QCOMPARE(opacityEdit()->suffix(), ContextTranslator::translated("%"));
        QCOMPARE(child<QLabel>("label")->text(), ContextTranslator::translated("OPACITY"));
    }
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_popup.get(), &change);
    QCOMPARE(opacityEdit()->suffix(), QStringLiteral("%"));
    QCOMPARE(child<QLabel>("label")->text(), QStringLiteral("OPACITY"));
    QCOMPARE(opacityEdit()->value(), 40);
}

void tst_AdvancedColorPickerPopup::newPopupHasAnInvalidColor()
{
    QVERIFY(!m_popup->color().isValid());
    m_popup->setColor(QColor());
    QVERIFY(!m_popup->color().isValid());
    QCOMPARE(colorEdit()->text(), QString());
    QVERIFY(!checkedSwatch());
}

void tst_AdvancedColorPickerPopup::setColorShowsTheColor_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addRow("palette colour") << QColor(0xe6, 0x16, 0x10);
    QTest::addRow("another colour") << QColor(1, 2, 3);
    QTest::addRow("half translucent") << QColor::fromRgbF(1, 0.2, 0, 0.5);
    QTest::addRow("fully transparent") << QColor::fromRgbF(0, 1, 0, 0);
    QTest::addRow("by hue") << QColor::fromHsv(200, 255, 255);
}

void tst_AdvancedColorPickerPopup::setColorShowsTheColor()
{
    QFETCH(QColor, color);
    m_popup->setColor(color);
    QCOMPARE(colorEdit()->text(), color.name());
    QCOMPARE(opacityEdit()->value(), qRound(color.alphaF() * 100));
    QCOMPARE(opacitySlider()->value(), qRound(color.alphaF() * 100));
    QCOMPARE(colorIndicator()->styleSheet(), rgba(m_popup->color()));
    QCOMPARE(m_popup->color().rgb(), color.rgb());
}

void tst_AdvancedColorPickerPopup::setColorEmitsNothing_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addRow("palette colour") << QColor(0xe6, 0x16, 0x10);
    QTest::addRow("user colour") << QColor(Qt::gray);
    QTest::addRow("slider moves") << QColor(10, 20, 30, 40);
    QTest::addRow("invalid") << QColor();
}

// An exclusive group and a moving slider talk even where the buttons are blocked; none of that reaches the outside.
void tst_AdvancedColorPickerPopup::setColorEmitsNothing()
{
    QFETCH(QColor, color);
    m_popup->setColor(Qt::white);
    QVERIFY(checkedSwatch());
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    QSignalSpy hidden(m_popup.get(), &AdvancedColorPickerPopup::hidedWithColor);
    QSignalSpy toggled(m_popup->findChild<QButtonGroup*>(),
                       QOverload<QAbstractButton*, bool>::of(&QButtonGroup::buttonToggled));
    m_popup->setColor(color);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(hidden.count(), 0);
    QCOMPARE(toggled.count(), 0);
}

void tst_AdvancedColorPickerPopup::setColorRestoresBlockedSignals()
{
    m_popup->setColor(Qt::red);
    QVERIFY(!m_popup->signalsBlocked());
    m_popup->blockSignals(true);
    m_popup->setColor(Qt::blue);
    QVERIFY(m_popup->signalsBlocked());
    m_popup->blockSignals(false);
    const auto objects = m_popup->findChildren<QObject*>();
    for (QObject* const object : objects)
        QVERIFY(!object->signalsBlocked());
}

void tst_AdvancedColorPickerPopup::alphaBecomesAPercentage_data()
{
    QTest::addColumn<int>("alpha");
    for (const int alpha : {0, 1, 2, 3, 64, 127, 128, 200, 254, 255})
        QTest::addRow("%d", alpha) << alpha;
}

// A slider that moves writes the percentage that it shows back into the colour.
void tst_AdvancedColorPickerPopup::alphaBecomesAPercentage()
{
    QFETCH(int, alpha);
    const int percentage = (alpha * 100 * 2 + 255) / (255 * 2); // rounded, in integers
    const bool sliderMoves = percentage != opacitySlider()->value();
    m_popup->setColor(QColor(1, 2, 3, alpha));
    QCOMPARE(opacitySlider()->value(), percentage);
    QCOMPARE(opacityEdit()->value(), percentage);
    QColor expected(1, 2, 3, alpha);
    if (sliderMoves)
        expected.setAlphaF(percentage / 100.0);
    QCOMPARE(m_popup->color(), expected);
    QCOMPARE(colorIndicator()->styleSheet(), rgba(expected));
}

void tst_AdvancedColorPickerPopup::setColorChecksThePaletteSwatch()
{
    const QStringList listed = listedPalette();
    for (int i = 0; i < listed.size(); i += 7) {
        m_popup->setColor(QColor(listed.at(i)));
        QCOMPARE(checkedSwatch(), paletteSwatches().at(i));
        int checked = 0;
        const auto swatches = paletteSwatches() + userSlots();
        for (const PickerButton* const swatch : swatches)
            checked += swatch->isChecked() ? 1 : 0;
        QCOMPARE(checked, 1);
    }
}

// Palette colours are opaque and alpha is compared too: nothing matches, and an exclusive group keeps its checked
// button.
void tst_AdvancedColorPickerPopup::translucentColorKeepsTheCheckedSwatch()
{
    m_popup->setColor(QColor(listedPalette().at(5)));
    QAbstractButton* const checked = checkedSwatch();
    QVERIFY(checked);
    QColor translucent(listedPalette().at(9));
    translucent.setAlphaF(0.5);
    m_popup->setColor(translucent);
    QCOMPARE(checkedSwatch(), checked);
}

void tst_AdvancedColorPickerPopup::firstMatchingUserSlotIsChecked()
{
    userSlots().at(7)->setColor(QColor(9, 9, 9));
    userSlots().at(9)->setColor(QColor(9, 9, 9));
    m_popup->setColor(Qt::white);
    QCOMPARE(checkedSwatch(), paletteSwatches().constFirst());
    m_popup->setColor(QColor(9, 9, 9));
    QCOMPARE(checkedSwatch(), userSlots().at(7));

    m_popup = std::make_unique<AdvancedColorPickerPopup>();
    m_popup->setColor(Qt::gray);
    QCOMPARE(checkedSwatch(), userSlots().constFirst());
}

// With a matching slot every palette swatch is asked to uncheck, and the slot stays checked.
void tst_AdvancedColorPickerPopup::userSlotGoesBeforeThePalette()
{
    const QColor both(listedPalette().at(30));
    userSlots().at(4)->setColor(both);
    m_popup->setColor(both);
    QCOMPARE(checkedSwatch(), userSlots().at(4));
    QVERIFY(!paletteSwatches().at(30)->isChecked());
}

// A checked slot is the place where the user collects the current colour, wherever that comes from.
void tst_AdvancedColorPickerPopup::setColorOverwritesTheCheckedUserSlot()
{
    QTest::mouseClick(userSlots().at(2), Qt::LeftButton);
    QCOMPARE(checkedSwatch(), userSlots().at(2));
    m_popup->setColor(QColor(5, 6, 7));
    QCOMPARE(userSlots().at(2)->color(), QColor(5, 6, 7));
    QCOMPARE(checkedSwatch(), userSlots().at(2));
    const AdvancedColorPickerPopup other;
    QCOMPARE(userSlotsOf(other).at(2)->color(), QColor(5, 6, 7));
}

void tst_AdvancedColorPickerPopup::unknownColorKeepsTheCheckedSwatch()
{
    m_popup->setColor(QColor(listedPalette().at(3)));
    m_popup->setColor(QColor(1, 2, 3));
    QCOMPARE(checkedSwatch(), paletteSwatches().at(3));
}

void tst_AdvancedColorPickerPopup::clickedSwatchGivesItsColorWithTheOpacity()
{
    opacitySlider()->setValue(25);
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    QTest::mouseClick(paletteSwatches().at(50), Qt::LeftButton);
    QColor expected(listedPalette().at(50));
    expected.setAlphaF(0.25);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().value<QColor>(), expected);
    QCOMPARE(m_popup->color(), expected);
    QCOMPARE(colorEdit()->text(), listedPalette().at(50));
    QCOMPARE(opacitySlider()->value(), 25);
    QCOMPARE(opacityEdit()->value(), 25);
    QCOMPARE(colorIndicator()->styleSheet(), rgba(expected));
    // The swatch itself stays as it is.
    QCOMPARE(paletteSwatches().at(50)->color(), QColor(listedPalette().at(50)));
}

void tst_AdvancedColorPickerPopup::everySwatchCanBeChosen()
{
    const QStringList listed = listedPalette();
    for (int i = 0; i < listed.size(); ++i) {
        QTest::mouseClick(paletteSwatches().at(i), Qt::LeftButton);
        QCOMPARE(m_popup->color(), QColor(listed.at(i)));
        QCOMPARE(checkedSwatch(), paletteSwatches().at(i));
    }
}

// The group reports the button that goes out and the one that comes in, and each is a change.
void tst_AdvancedColorPickerPopup::secondClickIsToldTwice()
{
    QTest::mouseClick(paletteSwatches().at(50), Qt::LeftButton);
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    QTest::mouseClick(paletteSwatches().at(60), Qt::LeftButton);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).first().value<QColor>(), QColor(listedPalette().at(60)));
    QCOMPARE(changed.at(1).first().value<QColor>(), QColor(listedPalette().at(60)));
}

void tst_AdvancedColorPickerPopup::clickedUserSlotTakesTheOpacity()
{
    opacitySlider()->setValue(50);
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    QSignalSpy slotChanged(userSlots().at(3), &PickerButton::colorChanged);
    QTest::mouseClick(userSlots().at(3), Qt::LeftButton);
    QColor expected(Qt::gray);
    expected.setAlphaF(0.5);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().value<QColor>(), expected);
    QCOMPARE(slotChanged.count(), 1);
    QCOMPARE(userSlots().at(3)->color(), expected);
    const AdvancedColorPickerPopup other;
    QCOMPARE(userSlotsOf(other).at(3)->color(), expected);
    QCOMPARE(userSlotsOf(other).at(4)->color(), QColor(Qt::gray));
}

void tst_AdvancedColorPickerPopup::clickedCheckedSwatchTellsNothing()
{
    QTest::mouseClick(paletteSwatches().at(50), Qt::LeftButton);
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    QTest::mouseClick(paletteSwatches().at(50), Qt::LeftButton);
    QCOMPARE(changed.count(), 0);
    QVERIFY(paletteSwatches().at(50)->isChecked());
}

void tst_AdvancedColorPickerPopup::opacitySliderChangesAlpha()
{
    m_popup->setColor(QColor(1, 2, 3));
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    for (const int value : {99, 50, 1, 0, 100}) {
        opacitySlider()->setValue(value);
        QColor expected(1, 2, 3);
        expected.setAlphaF(value / 100.0);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.takeFirst().constFirst().value<QColor>(), expected);
        QCOMPARE(m_popup->color(), expected);
        QCOMPARE(opacityEdit()->value(), value);
        QCOMPARE(colorEdit()->text(), QStringLiteral("#010203"));
        QCOMPARE(colorIndicator()->styleSheet(), rgba(expected));
    }
}

void tst_AdvancedColorPickerPopup::opacityZeroIsFullyTransparent()
{
    m_popup->setColor(QColor(1, 2, 3));
    opacitySlider()->setValue(0);
    QCOMPARE(m_popup->color().alpha(), 0);
    QVERIFY(colorIndicator()->styleSheet().endsWith(QLatin1String(", 0)")));
}

void tst_AdvancedColorPickerPopup::percentageDrivesTheSlider()
{
    m_popup->setColor(QColor(1, 2, 3));
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    opacityEdit()->setValue(30);
    QCOMPARE(opacitySlider()->value(), 30);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(qRound(changed.first().first().value<QColor>().alphaF() * 100), 30);
}

void tst_AdvancedColorPickerPopup::opacityOverwritesTheCheckedUserSlot()
{
    QTest::mouseClick(userSlots().at(11), Qt::LeftButton);
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    opacitySlider()->setValue(10);
    QColor expected(Qt::gray);
    expected.setAlphaF(0.1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(userSlots().at(11)->color(), expected);
    const AdvancedColorPickerPopup other;
    QCOMPARE(userSlotsOf(other).at(11)->color(), expected);
}

// Opaque on purpose, whatever the slider shows. The short form "#ff0" on the way is a colour too.
void tst_AdvancedColorPickerPopup::typedHexGivesAnOpaqueColor()
{
    m_popup->setColor(QColor(1, 2, 3, 51));
    QCOMPARE(opacitySlider()->value(), 20);
    colorEdit()->selectAll();
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    QTest::keyClicks(colorEdit(), QStringLiteral("#FF0000"));
    QCOMPARE(colorEdit()->text(), QStringLiteral("#ff0000"));
    QCOMPARE(m_popup->color(), QColor(Qt::red));
    QCOMPARE(colorIndicator()->styleSheet(), rgba(Qt::red));
    QCOMPARE(opacitySlider()->value(), 20);
    QCOMPARE(opacityEdit()->value(), 20);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).first().value<QColor>(), QColor(0xff, 0xff, 0x00));
    QCOMPARE(changed.at(1).first().value<QColor>(), QColor(Qt::red));
}

void tst_AdvancedColorPickerPopup::pastedUpperCaseIsToldOnceInLowerCase()
{
    m_popup->setColor(QColor(1, 2, 3, 51));
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    QSignalSpy texts(colorEdit(), &QLineEdit::textChanged);
    colorEdit()->setText(QStringLiteral("#FF0000"));
    QCOMPARE(colorEdit()->text(), QStringLiteral("#ff0000"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().value<QColor>(), QColor(Qt::red));
    QCOMPARE(texts.count(), 2);
}

void tst_AdvancedColorPickerPopup::incompleteHexChangesNothing()
{
    m_popup->setColor(QColor(1, 2, 3));
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    for (const char* const text : {"#", "#a", "#ab", "#abcd", "#abcde"}) {
        colorEdit()->setText(QLatin1String(text));
        QCOMPARE(colorEdit()->text(), QLatin1String(text));
        QCOMPARE(m_popup->color(), QColor(1, 2, 3));
    }
    QCOMPARE(changed.count(), 0);
    QCOMPARE(colorIndicator()->styleSheet(), rgba(QColor(1, 2, 3)));
}

void tst_AdvancedColorPickerPopup::editRefusesWhatCannotBecomeAColor()
{
    colorEdit()->clear();
    QTest::keyClicks(colorEdit(), QStringLiteral("x#1 g2z#-a"));
    QCOMPARE(colorEdit()->text(), QStringLiteral("#12a"));
    QTest::keyClicks(colorEdit(), QStringLiteral("4567"));
    QCOMPARE(colorEdit()->text(), QStringLiteral("#12a456"));
}

void tst_AdvancedColorPickerPopup::clearedEditKeepsTheHash()
{
    m_popup->setColor(QColor(1, 2, 3));
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    colorEdit()->clear();
    QCOMPARE(colorEdit()->text(), QStringLiteral("#"));
    QTest::keyClick(colorEdit(), Qt::Key_Backspace);
    QCOMPARE(colorEdit()->text(), QStringLiteral("#"));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(m_popup->color(), QColor(1, 2, 3));
}

void tst_AdvancedColorPickerPopup::typedColorLeavesSwatchesAlone()
{
    QTest::mouseClick(userSlots().at(1), Qt::LeftButton);
    colorEdit()->setText(listedPalette().at(40));
    QCOMPARE(m_popup->color(), QColor(listedPalette().at(40)));
    QCOMPARE(checkedSwatch(), userSlots().at(1));
    QCOMPARE(userSlots().at(1)->color(), QColor(Qt::gray));
}

void tst_AdvancedColorPickerPopup::droppedColorReachesOtherPopups()
{
    AdvancedColorPickerPopup open;
    QSignalSpy changed(m_popup.get(), &AdvancedColorPickerPopup::changedColor);
    QVERIFY(drop(userSlots().at(3), *colorData(QColor(7, 8, 9), m_popup.get())));
    QCOMPARE(userSlots().at(3)->color(), QColor(7, 8, 9));
    QCOMPARE(changed.count(), 0);
    // One that is there already catches up when it is shown, and says nothing about it.
    QCOMPARE(userSlotsOf(open).at(3)->color(), QColor(Qt::gray));
    QSignalSpy slotChanged(userSlotsOf(open).at(3), &PickerButton::colorChanged);
    open.show();
    QCOMPARE(userSlotsOf(open).at(3)->color(), QColor(7, 8, 9));
    QCOMPARE(slotChanged.count(), 0);
    // Slots are fixed places: nothing moves, and the same colour may be there twice.
    QVERIFY(drop(userSlots().at(8), *colorData(QColor(7, 8, 9), m_popup.get())));
    const AdvancedColorPickerPopup later;
    for (int i = 0; i < UserSlots; ++i)
        QCOMPARE(userSlotsOf(later).at(i)->color(), i == 3 || i == 8 ? QColor(7, 8, 9) : QColor(Qt::gray));
}

void tst_AdvancedColorPickerPopup::staleSlotsAreNotStored()
{
    // A popup whose checked slot follows its colour stores all its slots, although another popup's are newer.
    m_popup->setColor(Qt::gray);
    QVERIFY(userSlots().at(0)->isChecked());
    AdvancedColorPickerPopup other;
    QVERIFY(drop(userSlotsOf(other).at(3), *colorData(QColor(7, 8, 9), &other)));
    m_popup->setColor(QColor(1, 2, 3));
    m_popup->show();
    QCOMPARE(userSlots().at(3)->color(), QColor(7, 8, 9));
    QCOMPARE(userSlots().at(0)->color(), QColor(1, 2, 3));
    other.show();
    QCOMPARE(userSlotsOf(other).at(3)->color(), QColor(7, 8, 9));
    QCOMPARE(userSlotsOf(other).at(0)->color(), QColor(1, 2, 3));
}

void tst_AdvancedColorPickerPopup::dropWithoutColorIsRefused()
{
    QMimeData text;
    text.setText(QStringLiteral("#ff0000"));
    QVERIFY(!drop(userSlots().at(3), text));
    QCOMPARE(userSlots().at(3)->color(), QColor(Qt::gray));

    QMimeData garbage;
    garbage.setData(QStringLiteral("application/x-color"), QByteArray("\x01\x02 no colour"));
    QVERIFY(drop(userSlots().at(3), garbage));
    QVERIFY(!userSlots().at(3)->color().isValid());
    m_popup->show();
    QVERIFY(!m_popup->grab().isNull());
}

void tst_AdvancedColorPickerPopup::userSlotsCannotBeDragged()
{
    TestSupport::DragWatcher watcher(m_popup.get());
    TestSupport::sendMouse(userSlots().constFirst(), QEvent::MouseButtonPress, {1, 1}, Qt::LeftButton, Qt::LeftButton);
    TestSupport::sendMouse(userSlots().constFirst(), QEvent::MouseMove, {300, 1}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(watcher.drags(), 0);
    TestSupport::sendMouse(userSlots().constFirst(), QEvent::MouseButtonRelease, {300, 1}, Qt::LeftButton,
                           Qt::NoButton);
}

void tst_AdvancedColorPickerPopup::paletteSwatchesCanBeDragged()
{
    for (const int i : {0, 60, 119}) {
        PickerButton* const swatch = paletteSwatches().at(i);
        TestSupport::DragWatcher watcher(m_popup.get());
        TestSupport::sendMouse(swatch, QEvent::MouseButtonPress, {1, 1}, Qt::LeftButton, Qt::LeftButton);
        TestSupport::sendMouse(swatch, QEvent::MouseMove, {300, 1}, Qt::NoButton, Qt::LeftButton);
        QCOMPARE(watcher.drags(), 1);
        QCOMPARE(watcher.color, QColor(listedPalette().at(i)));
        QCOMPARE(watcher.hotSpot, QPoint(10, 20));
        TestSupport::sendMouse(swatch, QEvent::MouseButtonRelease, {300, 1}, Qt::LeftButton, Qt::NoButton);
        QTRY_VERIFY(!watcher.drag);
    }
}

void tst_AdvancedColorPickerPopup::paletteSwatchesTakeNoDrops()
{
    const auto swatches = paletteSwatches();
    for (PickerButton* const swatch : swatches)
        QVERIFY(!swatch->acceptDrops());
    QVERIFY(!drop(paletteSwatches().constFirst(), *colorData(Qt::red, m_popup.get())));
    QCOMPARE(paletteSwatches().constFirst()->color(), QColor(listedPalette().constFirst()));
}

void tst_AdvancedColorPickerPopup::hidingTellsTheColor()
{
    QSignalSpy hidden(m_popup.get(), &AdvancedColorPickerPopup::hidedWithColor);
    m_popup->setColor(QColor(1, 2, 3));
    m_popup->show();
    QCOMPARE(hidden.count(), 0);
    m_popup->hide();
    QCOMPARE(hidden.count(), 1);
    QCOMPARE(hidden.first().first().value<QColor>(), QColor(1, 2, 3));
    m_popup->hide();
    QCOMPARE(hidden.count(), 1);
    m_popup->show();
    m_popup.reset();
    QCOMPARE(hidden.count(), 1);
}

void tst_AdvancedColorPickerPopup::opacityRowCanBeHidden()
{
    // Visibility counts, not what was asked for: a hidden popup has no visible row.
    QVERIFY(!m_popup->opacityAdjustmentAvailable());
    m_popup->show();
    QVERIFY(m_popup->opacityAdjustmentAvailable());
    m_popup->setOpacityAdjustmentAvailable(false);
    QVERIFY(!m_popup->opacityAdjustmentAvailable());
    QVERIFY(!child<QFrame>("opacityFrame")->isVisible());
    QVERIFY(!opacityEdit()->isVisible());
    QVERIFY(colorEdit()->isVisible());
    m_popup->setOpacityAdjustmentAvailable(true);
    QVERIFY(m_popup->opacityAdjustmentAvailable());
    QVERIFY(opacityEdit()->isVisible());
    m_popup->hide();
    QVERIFY(!m_popup->opacityAdjustmentAvailable());
}

void tst_AdvancedColorPickerPopup::popupMayDieInASlot()
{
    QPointer<AdvancedColorPickerPopup> popup(m_popup.release());
    connect(popup, &AdvancedColorPickerPopup::changedColor, popup, &QObject::deleteLater);
    QTest::keyClicks(popup->findChild<QLineEdit*>(QStringLiteral("colorEdit")), QStringLiteral("#ff0"));
    QVERIFY(popup);
    QTRY_VERIFY(!popup);
}

void tst_AdvancedColorPickerPopup::popupMayDieInADrag()
{
    if (!TestSupport::DragWatcher::runsDrags())
        QSKIP("this platform ends a drag at once, nothing can happen in it");
    m_popup->show();
    PickerButton* const swatch = paletteSwatches().at(30);
    TestSupport::DragWatcher watcher(m_popup.get(), [this] { m_popup.reset(); });
    TestSupport::sendMouse(swatch, QEvent::MouseButtonPress, {1, 1}, Qt::LeftButton, Qt::LeftButton);
    TestSupport::sendMouse(swatch, QEvent::MouseMove, {300, 1}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(watcher.drags(), 1);
    QVERIFY(!m_popup);
    QTRY_VERIFY(!watcher.drag);
}

QTEST_MAIN(tst_AdvancedColorPickerPopup)
#include "tst_AdvancedColorPickerPopup.moc"
