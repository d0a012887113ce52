// Colours from outside: what is typed into the popup's hexadecimal field, and what is dropped on a swatch.
#include "FuzzApplication.h"

#include <KQt/Ui/AdvancedColorPickerPopup.h>
#include <KQt/Ui/PickerButton.h>
#include <KQt/Ui/PickerButtonDropFilter.h>

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>

#include <cstdint>

using namespace Kestrel::Gui;
using Fuzz::require;

namespace {

// Through insert(), as by typing or pasting: the validator has its say.
void enterText(const QByteArray& bytes)
{
    static AdvancedColorPickerPopup popup;
    auto* const edit = popup.findChild<QLineEdit*>(QStringLiteral("colorEdit"));
    require(edit);
    popup.setColor(Qt::black);
    edit->clear();
    edit->insert(QString::fromUtf8(bytes));
    require(popup.color().isValid());
    require(edit->text().startsWith(QLatin1Char('#')));
}

// Around the validator, as a program may do it.
void setText(const QByteArray& bytes)
{
    static AdvancedColorPickerPopup popup;
    popup.findChild<QLineEdit*>(QStringLiteral("colorEdit"))->setText(QString::fromUtf8(bytes));
}

// The colour data of a drag can come from any program and be any bytes, or text that claims to be a colour.
void drop(const QByteArray& bytes, bool asText)
{
    static PickerButton swatch(Qt::red);
    static PickerButtonDropFilter filter;

    QMimeData mime;
    if (asText)
        mime.setColorData(QString::fromUtf8(bytes));
    else
        mime.setData(QStringLiteral("application/x-color"), bytes);
    QDropEvent event(QPointF(1, 1), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    // Qt delivers a drop only to the target of the drag under way, and there is none here.
    filter.eventFilter(&swatch, &event);
    require(event.isAccepted());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::application();
    if (size == 0)
        return 0;

    const QByteArray bytes(reinterpret_cast<const char*>(data + 1), static_cast<int>(size - 1));
    switch (data[0] % 4) {
    case 0:
        enterText(bytes);
        break;
    case 1:
        setText(bytes);
        break;
    case 2:
        drop(bytes, false);
        break;
    default:
        drop(bytes, true);
        break;
    }
    return 0;
}
