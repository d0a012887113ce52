// Texts of every kind in what elides them: labels, line edits, combo boxes.
#include "FuzzApplication.h"
#include "FuzzText.h"

#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/ClippingTextLineEdit.h>
#include <KQt/Ui/ExtendedLabel.h>

#include <QFocusEvent>
#include <QImage>

#include <algorithm>
#include <cstdint>

using namespace Kestrel::Gui;
using Fuzz::require;

namespace {

constexpr std::size_t LongestText = 4096;
constexpr int LongestSide = 400;
constexpr int Megabyte = 1024 * 1024 / static_cast<int>(sizeof(QChar)); // in UTF-16 units

QString withoutMarks(QString text)
{
    return text.remove(QChar(0x202a)).remove(QChar(0x202c));
}

bool hasFormatCharacters(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Format; });
}

// Now and then a megabyte: seldom, for each costs as much time as a thousand short texts. Not of what an elided text keeps
// and the label's own painting is slow with.
QString anyLength(const QWidget& widget, const QString& text, FuzzedDataProvider& data)
{
    constexpr int oneIn = 512;
    if (data.ConsumeIntegralInRange(1, oneIn) < oneIn || hasFormatCharacters(text) ||
        widget.fontMetrics().horizontalAdvance(text) <= 0)
        return text;
    return text.repeated(Megabyte / text.size());
}

void paint(QWidget& widget)
{
    static QImage picture(LongestSide, 40, QImage::Format_ARGB32_Premultiplied);
    widget.render(&picture);
}

void elideInLabel(FuzzedDataProvider& data)
{
    static ExtendedLabel label;
    label.SetElideMode(static_cast<Qt::TextElideMode>(data.ConsumeIntegralInRange<int>(Qt::ElideLeft, Qt::ElideNone)));
    label.SetDynamicTooltip(data.ConsumeBool());
    label.SetClipText(data.ConsumeBool());
    QString text = Fuzz::anyText(data, LongestText);
    if (label.GetClipText())
        text = anyLength(label, text, data);
    label.SetOriginalText(text);
    require(label.GetOriginalText() == withoutMarks(text));
    label.resize(data.ConsumeIntegralInRange(0, LongestSide), 20);
    paint(label);
    require(label.GetOriginalText() == withoutMarks(text));
}

void elideInLineEdit(FuzzedDataProvider& data)
{
    static ClippingTextLineEdit edit;
    const QString text = anyLength(edit, Fuzz::anyText(data, LongestText), data);
    edit.SetOriginalText(text);
    require(edit.GetOriginalText() == withoutMarks(text));
    edit.resize(data.ConsumeIntegralInRange(0, LongestSide), 20);
    paint(edit);
    QFocusEvent in(QEvent::FocusIn);
    QCoreApplication::sendEvent(&edit, &in);
    if (data.ConsumeBool())
        edit.insert(Fuzz::anyText(data, LongestText));
    paint(edit);
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&edit, &out);
    paint(edit);
}

void elideInComboBox(FuzzedDataProvider& data)
{
    static AdvancedComboBox box;
    box.clear();
    box.setTooltipTemplate(Fuzz::anyText(data, 64));
    box.setElideItemText(data.ConsumeBool());
    box.setWidePopupEnabled(data.ConsumeBool());
    for (int items = data.ConsumeIntegralInRange(1, 4); items > 0; --items)
        box.addItem(Fuzz::anyText(data, LongestText / 4));
    box.resize(data.ConsumeIntegralInRange(1, LongestSide), 24);
    paint(box);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::application();
    FuzzedDataProvider provider(data, size);
    switch (provider.ConsumeIntegralInRange(0, 2)) {
    case 0:
        elideInLabel(provider);
        break;
    case 1:
        elideInLineEdit(provider);
        break;
    default:
        elideInComboBox(provider);
        break;
    }
    return 0;
}
