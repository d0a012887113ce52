// Filters of file dialogs, in Qt's form, to the system's file types and back.
#include "FuzzApplication.h"

#include <KQt/Ui/DialogFileTypes.h>

#include <QStringList>

#include <algorithm>
#include <cstdint>

using namespace Kestrel::Gui;
using Fuzz::require;

namespace {

QString textOf(const std::uint8_t* data, std::size_t size)
{
    const auto* bytes = reinterpret_cast<const char*>(data + 1);
    const int length = static_cast<int>(size - 1);
    if (data[0] % 2 == 0)
        return QString::fromUtf8(bytes, length);
    // Every UTF-16 unit can occur, also where no UTF-8 text would bring it.
    QString text;
    for (int i = 0; i + 1 < length; i += 2)
        text += QChar(static_cast<uchar>(bytes[i]), static_cast<uchar>(bytes[i + 1]));
    return text;
}

void checkType(const DialogFileType& type)
{
    require(!type.specification.isEmpty());
    require(std::none_of(type.specification.begin(), type.specification.end(), [](QChar c) { return c.isSpace(); }));
    require(!type.specification.contains(QLatin1String(";;")));
}

// What is written back is a filter again, and from then on stays the same.
void checkWayBack(const DialogFileType& type)
{
    const QString text = selectedFilterText(type);
    if (text.contains(QLatin1String(";;")))
        return; // the name ends with a separator's half
    const auto again = dialogFileTypes(text);
    require(again.size() == 1);
    const QString second = selectedFilterText(again.constFirst());
    if (second.contains(QLatin1String(";;")))
        return;
    const auto third = dialogFileTypes(second);
    require(third.size() == 1);
    require(selectedFilterText(third.constFirst()) == second);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QString filter = textOf(data, size);
    const auto types = dialogFileTypes(filter);
    require(types.size() == filter.split(QStringLiteral(";;"), Qt::SkipEmptyParts).size());
    for (const DialogFileType& type : types) {
        checkType(type);
        checkWayBack(type);
    }
    return 0;
}
