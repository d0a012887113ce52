#include <KQt/Ui/Accessibility/LineNames.h>

#include <KQt/Ui/LineStyleComboBox.h>
#include <KQt/Ui/LineWidthComboBox.h>

#include <QCoreApplication>

#include <iterator>

namespace Kestrel::Gui::Detail {

namespace {

// As the box paints it, where the note for its translators is.
constexpr const char* noLine = "none";

// In the order of Qt::PenStyle.
constexpr const char* styles[] = {
    //: Name of a line style, read out by screen readers: no line.
    QT_TRANSLATE_NOOP("Kestrel::Gui::LineStyleComboBox", "none"),
    //: Name of a line style, read out by screen readers.
    QT_TRANSLATE_NOOP("Kestrel::Gui::LineStyleComboBox", "solid"),
    //: Name of a line style, read out by screen readers.
    QT_TRANSLATE_NOOP("Kestrel::Gui::LineStyleComboBox", "dash"),
    //: Name of a line style, read out by screen readers.
    QT_TRANSLATE_NOOP("Kestrel::Gui::LineStyleComboBox", "dot"),
    //: Name of a line style, read out by screen readers.
    QT_TRANSLATE_NOOP("Kestrel::Gui::LineStyleComboBox", "dash dot"),
    //: Name of a line style, read out by screen readers.
    QT_TRANSLATE_NOOP("Kestrel::Gui::LineStyleComboBox", "dash dot dot"),
    //: Name of a line style, read out by screen readers: a dash pattern of the application's.
    QT_TRANSLATE_NOOP("Kestrel::Gui::LineStyleComboBox", "custom"),
};
static_assert(std::size(styles) == std::size_t{Qt::CustomDashLine} + 1, "a name for each pen style");

} // namespace

QString lineStyleName(int style)
{
    const bool known = style >= 0 && style < int(std::size(styles));
    return LineStyleComboBox::tr(styles[known ? style : int(Qt::NoPen)]);
}

QString lineWidthName(int width)
{
    if (width < 1)
        return LineWidthComboBox::tr(noLine);
    //: A line width in pixels, read out by screen readers; %1 is the number.
    return LineWidthComboBox::tr("%1 px").arg(width);
}

QString lineItemName(const QComboBox& box, int row)
{
    for (const int role : {int(Qt::AccessibleTextRole), int(Qt::DisplayRole)}) {
        QString text = box.itemData(row, role).toString();
        if (!text.isEmpty())
            return text;
    }
    const int value = box.itemData(row, Qt::UserRole).toInt();
    return qobject_cast<const LineStyleComboBox*>(&box) ? lineStyleName(value) : lineWidthName(value);
}

} // namespace Kestrel::Gui::Detail
