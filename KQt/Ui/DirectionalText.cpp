#include <KQt/Ui/DirectionalText.h>

namespace Kestrel::Gui::Detail {

namespace {

constexpr QChar leftToRightEmbedding(0x202a);
constexpr QChar popDirectionalFormatting(0x202c);

} // namespace

QString withDirectionalMarks(const QString& text)
{
    return leftToRightEmbedding + text + popDirectionalFormatting;
}

QString withoutDirectionalMarks(const QString& text)
{
    if (!text.startsWith(leftToRightEmbedding))
        return text;
    // All of them and not only the outer two: marks that came with the text would end the embedding early.
    QString plain = text;
    plain.remove(leftToRightEmbedding);
    plain.remove(popDirectionalFormatting);
    return plain;
}

} // namespace Kestrel::Gui::Detail
