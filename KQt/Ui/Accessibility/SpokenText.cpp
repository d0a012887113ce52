#include <KQt/Ui/Accessibility/SpokenText.h>

#include <algorithm>

namespace Kestrel::Gui::Detail {

bool isDirectionalMark(QChar character)
{
    const ushort code = character.unicode();
    return code == 0x061c || code == 0x200e || code == 0x200f || (code >= 0x202a && code <= 0x202e) ||
           (code >= 0x2066 && code <= 0x2069);
}

QString spokenText(const QString& text)
{
    QString plain = text;
    plain.resize(int(std::remove_if(plain.begin(), plain.end(), isDirectionalMark) - plain.begin()));
    return plain;
}

} // namespace Kestrel::Gui::Detail
