#include "support/FrameGestures.h"
#include "support/NamedPaletteListing.h"
#include "support/PaintedTexts.h"
#include "support/PseudoLanguage.h"
#include "support/RecordingFrameHandler.h"
#include "support/TestHint.h"
#include "support/TranslationFile.h"

#include <KQt/Ui/AdvancedColorPicker.h>
#include <KQt/Ui/AdvancedColorPickerPopup.h>
#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/AdvancedSpinBox.h>
#include <KQt/Ui/ClickableLabel.h>
#include <KQt/Ui/ClippingTextLineEdit.h>
#include <KQt/Ui/CustomSliderWithZeroTick.h>
#include <KQt/Ui/ExtendedLabel.h>
#include <KQt/Ui/FontStylePicker.h>
#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/LineStyleComboBox.h>
#include <KQt/Ui/LineWidthComboBox.h>
#include <KQt/Ui/NoWheelComboBox.h>
#include <KQt/Ui/PenPicker.h>
#include <KQt/Ui/PresetComboBox.h>
#include <KQt/Ui/PreviewImageLabel.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>
#include <KQt/Ui/SelectionFrameWidget/ImageWatermarkItem.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameItem.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>
#include <KQt/Ui/SelectionFrameWidget/TextWatermarkItem.h>
#include <KQt/Ui/SeparatorStyle.h>
#include <KQt/Ui/StyledDockWidgetTitlebar.h>
#include <KQt/Ui/TextAlignPicker.h>
#include <KQt/Ui/TextEditWithPlaceholder.h>
#include <KQt/Ui/WidgetColorPickerButton.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLocale>
#include <QMetaProperty>
#include <QPainter>
#include <QtTest>
#include <QWindow>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Kestrel::Gui;
using TestSupport::PaintedTexts;
using TestSupport::PseudoLanguage;

namespace {

/// When a component's own texts follow the application's language.
enum class Follows {
    AtOnce,      ///< with the LanguageChange event
    WhenPainted, ///< when it is painted the next time
    WhenTold     ///< when the application calls LanguageChanged()
};

/// A component as an application has it, without any text from the application.
class Specimen
{
public:
    virtual ~Specimen() = default;
    /// What a user can read: on it, in its tool tips, for screen readers. With its popups.
    virtual QStringList texts() = 0;
    /// Tells it that the language has changed, where it wants to be told.
    virtual void tellLanguageChanged() {}
};

/// Properties that users read.
QStringList readableProperties(const QObject& object)
{
    static const QSet<QByteArray> notShown = {"objectName", "styleSheet",     "inputMask",      "windowFilePath",
                                              "windowRole", "windowIconText", "tooltipTemplate"};
    QStringList texts;
    const QMetaObject* const meta = object.metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (property.userType() == QMetaType::QString && !notShown.contains(property.name()))
            texts << property.read(&object).toString();
    }
    return texts;
}

QStringList itemTexts(const QComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i) {
        for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::StatusTipRole, Qt::AccessibleTextRole})
            texts << box.itemData(i, role).toString();
    }
    return texts;
}

QStringList paintedTexts(QWidget& widget)
{
    PaintedTexts device;
    widget.render(&device);
    return device.texts();
}

/// What a screen reader says about an object and all in it.
QStringList spokenTexts(const QAccessibleInterface* object)
{
    QStringList texts;
    if (!object)
        return texts;
    for (const auto part : {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help})
        texts << object->text(part);
    for (int i = 0; i < object->childCount(); ++i)
        texts << spokenTexts(object->child(i));
    return texts;
}

/// All that is on the widgets that there are; lists of combo boxes are opened, other popups only painted.
QStringList readableTexts()
{
    QStringList texts;
    const auto widgets = QApplication::allWidgets();
    for (QWidget* const widget : widgets) {
        texts << readableProperties(*widget);
        const auto actions = widget->actions();
        for (const QAction* action : actions)
            texts << readableProperties(*action);
        if (widget->isWindow() && widget->windowType() != Qt::Desktop)
            texts << paintedTexts(*widget) << spokenTexts(QAccessible::queryAccessibleInterface(widget));
        if (auto* const box = qobject_cast<QComboBox*>(widget)) {
            texts << itemTexts(*box);
            box->showPopup();
            texts << paintedTexts(*box->view()->window());
            box->hidePopup();
        }
    }
    texts.removeAll(QString());
    texts.removeDuplicates();
    texts.sort();
    return texts;
}

class WidgetSpecimen : public Specimen
{
public:
    explicit WidgetSpecimen(std::unique_ptr<QWidget> widget)
        : m_widget(std::move(widget))
    {
        // Wide enough for every text that a layout places.
        constexpr QSize roomy(1600, 200);
        m_widget->resize(roomy);
    }

    QStringList texts() override { return readableTexts(); }

private:
    std::unique_ptr<QWidget> m_widget;
};

template <typename Widget>
std::unique_ptr<Specimen> widget()
{
    return std::make_unique<WidgetSpecimen>(std::make_unique<Widget>());
}

/// A box whose items stand for the numbers from 0 to @p last: widths in pixels, or styles of pens.
template <typename Box, int last>
std::unique_ptr<Specimen> boxWithItems()
{
    auto box = std::make_unique<Box>();
    for (int item = 0; item <= last; ++item)
        box->addItem(QString(), item);
    return std::make_unique<WidgetSpecimen>(std::move(box));
}

std::unique_ptr<Specimen> hint()
{
    return std::make_unique<WidgetSpecimen>(std::make_unique<TestSupport::TestHint>());
}

std::unique_ptr<Specimen> highlightFrame()
{
    return std::make_unique<WidgetSpecimen>(std::make_unique<HighlightFrame>(QSet<QWidget*>()));
}

/// A frame under the mouse, so that its caption shows.
template <typename Item>
class FrameSpecimen : public Specimen
{
public:
    FrameSpecimen()
        : m_item(new Item(&m_handler))
    {
        m_scene.addItem(m_item);
        m_item->Initialize(QRectF(0, 0, 1200, 800), QRectF(200, 200, 800, 400));
        FrameGestures::press(*m_item, QPointF(600, 400));
    }

    QStringList texts() override
    {
        PaintedTexts device;
        QPainter painter(&device);
        m_scene.render(&painter);
        painter.end();
        return device.texts();
    }

    void tellLanguageChanged() override { m_item->LanguageChanged(); }

private:
    RecordingFrameHandler m_handler;
    QGraphicsScene m_scene{0, 0, 1200, 800};
    Item* m_item;
};

template <typename Item>
std::unique_ptr<Specimen> frame()
{
    return std::make_unique<FrameSpecimen<Item>>();
}

/// Frames over a window that exists only for them.
class FrameWidgetSpecimen : public Specimen
{
public:
    QStringList texts() override { return readableTexts(); }

private:
    QWindow m_window;
    SelectionFrameWidget m_view{nullptr, &m_window};
};

using Factory = std::unique_ptr<Specimen> (*)();

/// Texts with the contexts that they are translated in.
using OwnTexts = QVector<QPair<const char*, const char*>>;

struct Component
{
    const char* name;
    Factory create;
    /// Each text of its own with the context that it is translated in.
    OwnTexts texts;
    Follows follows = Follows::AtOnce;
};

const char* const PopupContext = "AdvancedColorPickerPopup";
const char* const TitleBarContext = "StyledDockWidgetTitlebar";
const char* const FontContext = "Kestrel::Gui::FontStylePicker";
const char* const AlignContext = "Kestrel::Gui::TextAlignPicker";
const char* const PaletteContext = "Kestrel::Gui::RColorPickerPopup";
const char* const StyleBoxContext = "Kestrel::Gui::LineStyleComboBox";
const char* const WidthBoxContext = "Kestrel::Gui::LineWidthComboBox";
const char* const WidthListContext = "Kestrel::Gui::LineWidthDelegate";
const char* const PreviewContext = "Kestrel::Gui::PreviewImageLabel";
const char* const CaptionContext = "QObject";

OwnTexts paletteTexts()
{
    OwnTexts texts = {{PaletteContext, "More..."}, {PaletteContext, "Default"}, {PaletteContext, "Colors"}};
    for (const TestSupport::ListedColor& color : TestSupport::listedColors)
        texts.append(qMakePair(PaletteContext, color.name));
    return texts;
}

/// Every exported component that users see. One that is added to the library is added here.
const QVector<Component>& components()
{
    static const OwnTexts advancedPopup = {{PopupContext, "%"}, {PopupContext, "OPACITY"}, {PopupContext, "Color"}};
    static const OwnTexts namedPalette = paletteTexts();
    static const OwnTexts lineWidths = {
        {WidthBoxContext, "none"}, {WidthBoxContext, "%1 px"}, {WidthListContext, "none"}};
    static const OwnTexts lineStyles = {{StyleBoxContext, "none"},     {StyleBoxContext, "solid"},
                                        {StyleBoxContext, "dash"},     {StyleBoxContext, "dot"},
                                        {StyleBoxContext, "dash dot"}, {StyleBoxContext, "dash dot dot"},
                                        {StyleBoxContext, "custom"}};
    static const OwnTexts caption = {{CaptionContext, "Left: %1# Top: %2# Width: %3# Height: %4#"}};
    static const QVector<Component> all = {
        {"AdvancedColorPicker", widget<AdvancedColorPicker>, advancedPopup},
        {"AdvancedColorPickerPopup", widget<AdvancedColorPickerPopup>, advancedPopup},
        {"AdvancedComboBox", widget<AdvancedComboBox>, {}},
        {"AdvancedSpinBox", widget<AdvancedSpinBox>, {}},
        {"ClickableLabel", widget<ClickableLabel>, {}},
        {"ClippingTextLineEdit", widget<ClippingTextLineEdit>, {}},
        {"CustomSliderWithZeroTick", widget<CustomSliderWithZeroTick>, {}},
        {"ExtendedLabel", widget<ExtendedLabel>, {}},
        {"FontStylePicker",
         widget<FontStylePicker>,
         {{FontContext, "Bold"}, {FontContext, "Italic"}, {FontContext, "Underline"}}},
        {"HighlightFrame", highlightFrame, {}},
        {"ImageWatermarkItem", frame<ImageWatermarkItem>, caption, Follows::WhenTold},
        {"LineStyleComboBox", boxWithItems<LineStyleComboBox, Qt::CustomDashLine>, lineStyles},
        {"LineWidthComboBox", boxWithItems<LineWidthComboBox, 2>, lineWidths, Follows::WhenPainted},
        {"NoWheelComboBox", widget<NoWheelComboBox>, {}},
        {"PenPicker", widget<PenPicker>, advancedPopup + lineWidths, Follows::WhenPainted},
        {"PresetComboBox", widget<PresetComboBox>, {}},
        {"PreviewImageLabel",
         widget<PreviewImageLabel>,
         {{PreviewContext, "Applied effects"}, {PreviewContext, "Play"}}},
        {"RColorPicker", widget<RColorPicker>, namedPalette, Follows::WhenPainted},
        {"RColorPickerPopup", widget<RColorPickerPopup>, namedPalette, Follows::WhenPainted},
        {"SelectionFrameItem", frame<SelectionFrameItem>, caption, Follows::WhenTold},
        {"SelectionFrameWidget", [] { return std::unique_ptr<Specimen>(new FrameWidgetSpecimen); }, {}},
        {"SeparatorStyle", widget<SeparatorStyle>, {}},
        {"StyledDockWidgetTitlebar",
         widget<StyledDockWidgetTitlebar>,
         {{TitleBarContext, "StyledDockWidgetTitlebar"},
          {TitleBarContext, "Playlist"},
          {TitleBarContext, "Unpin playlist"},
          {TitleBarContext, "Close"}}},
        {"TextAlignPicker",
         widget<TextAlignPicker>,
         {{AlignContext, "Align left"},
          {AlignContext, "Align right"},
          {AlignContext, "Justify"},
          {AlignContext, "Align center"}}},
        {"TextEditWithPlaceholder", widget<TextEditWithPlaceholder>, {}},
        {"TextWatermarkItem", frame<TextWatermarkItem>, caption, Follows::WhenTold},
        {"WalkthroughHint", hint, {}},
        {"WidgetColorPickerButton", widget<WidgetColorPickerButton>, {}},
    };
    return all;
}

/// What a translated text looks like once numbers stand at its places and "#" has become a per cent sign.
QString shape(QString translated)
{
    static const QRegularExpression percentages(QStringLiteral("%\\d#|\\d+%"));
    static const QRegularExpression pixels(QStringLiteral("%?\\d+ px"));
    return translated.replace(percentages, QStringLiteral("0%")).replace(pixels, QStringLiteral("0 px"));
}

QSet<QString> shapes(const QSet<QString>& parts)
{
    QSet<QString> result;
    for (const QString& part : parts)
        result.insert(shape(part));
    return result;
}

QSet<QString> expectedParts(const Component& component)
{
    QSet<QString> parts;
    for (const auto& text : component.texts)
        parts.insert(PseudoLanguage::translated(text.first, text.second));
    return shapes(parts);
}

/// Numbers and colours are the same in every language.
bool needsTranslation(const QString& text)
{
    static const QRegularExpression sameEverywhere(QStringLiteral("#[0-9a-f]*|[0-9., ]*"));
    return !QRegularExpression(QRegularExpression::anchoredPattern(sameEverywhere.pattern())).match(text).hasMatch();
}

/// Texts with parts that are not translated.
QStringList untranslated(const QStringList& texts)
{
    QStringList result;
    for (const QString& text : texts) {
        if (needsTranslation(PseudoLanguage::untranslatedPart(text).trimmed()))
            result << text;
    }
    return result;
}

/// The library's own translated parts of the texts; Qt's are left out.
QSet<QString> ownParts(const QStringList& texts)
{
    QSet<QString> parts;
    for (const QString& text : texts)
        parts += PseudoLanguage::translatedParts(text);
    QSet<QString> own;
    for (const QString& part : qAsConst(parts)) {
        if (!part.startsWith(QLatin1String("[!Q")) || part.startsWith(QLatin1String("[!QObject!Left: ")))
            own.insert(part);
    }
    return shapes(own);
}

QByteArray listed(const QStringList& texts)
{
    return texts.join(QStringLiteral(" | ")).toUtf8();
}

QByteArray listed(const QSet<QString>& texts)
{
    QStringList sorted = texts.values();
    sorted.sort();
    return listed(sorted);
}

} // namespace

/// The library in a language that nobody speaks.
class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void everyTextIsTranslatedInItsContext_data() { rows(); }
    void everyTextIsTranslatedInItsContext();
    void textsFollowTheLanguage_data() { rows(); }
    void textsFollowTheLanguage();
    void translationsHoldTheseTextsAndNoOthers();

private:
    static void rows();
    static const Component& component();
};

void tst_Translations::initTestCase()
{
    // Numbers are no texts; in digits that are not ASCII's they would look like some.
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle(QStringLiteral("fusion"));
}

// A widget that outlives its test would be read in the next.
void tst_Translations::cleanup()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget* widget : widgets)
        QVERIFY2(widget->windowType() == Qt::Desktop, widget->metaObject()->className());
}

void tst_Translations::rows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < components().size(); ++i)
        QTest::newRow(components().at(i).name) << i;
}

const Component& tst_Translations::component()
{
    QFETCH(int, index);
    return components().at(index);
}

void tst_Translations::everyTextIsTranslatedInItsContext()
{
    const PseudoLanguage language;
    const auto specimen = component().create();
    const QStringList texts = specimen->texts();
    QVERIFY2(untranslated(texts).isEmpty(), listed(untranslated(texts)));
    QCOMPARE(listed(ownParts(texts)), listed(expectedParts(component())));
}

void tst_Translations::textsFollowTheLanguage()
{
    const auto specimen = component().create();
    const QStringList english = specimen->texts();
    QCOMPARE(listed(ownParts(english)), QByteArray());
    const QByteArray expected = listed(expectedParts(component()));
    {
        const PseudoLanguage language;
        QCoreApplication::processEvents();
        if (component().follows == Follows::WhenTold) {
            QCOMPARE(specimen->texts(), english);
            specimen->tellLanguageChanged();
        }
        QCOMPARE(listed(ownParts(specimen->texts())), expected);
        QVERIFY2(untranslated(specimen->texts()).isEmpty(), listed(untranslated(specimen->texts())));
    }
    QCoreApplication::processEvents();
    if (component().follows == Follows::WhenTold) {
        QCOMPARE(listed(ownParts(specimen->texts())), expected);
        specimen->tellLanguageChanged();
    }
    QCOMPARE(specimen->texts(), english);
}

// A text that is in the sources but not in the files would stay English; one that is only in the files is of no use.
void tst_Translations::translationsHoldTheseTextsAndNoOthers()
{
    const QString path = QStringLiteral(KQTUI_TRANSLATION_SOURCES "/kqtui_de.ts");
    if (!QFile::exists(path))
        QSKIP("the sources are not on this machine");
    const TestSupport::TranslationFile file = TestSupport::readTranslationFile(path);
    QVERIFY2(file.error.isEmpty(), qPrintable(file.error));
    QSet<QString> inFile;
    for (const TestSupport::TranslationMessage& message : file.messages)
        inFile.insert(
            PseudoLanguage::translated(message.context.toUtf8().constData(), message.source.toUtf8().constData()));
    QSet<QString> seen;
    for (const Component& each : components())
        seen += expectedParts(each);
    QCOMPARE(listed(shapes(inFile)), listed(seen));
}

QTEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
