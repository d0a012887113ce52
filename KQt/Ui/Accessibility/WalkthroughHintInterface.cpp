#include <KQt/Ui/Accessibility/WalkthroughHintInterface.h>

#include <KQt/Ui/Accessibility/LabelInterface.h>
#include <KQt/Ui/WalkthroughHint.h>

#include <QLabel>
#include <QStringList>

namespace Kestrel::Gui::Detail {

WalkthroughHintInterface::WalkthroughHintInterface(WalkthroughHint* hint)
    : QAccessibleWidget(hint, QAccessible::AlertMessage)
{
}

QString WalkthroughHintInterface::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name || !widget()->accessibleName().isEmpty())
        return QAccessibleWidget::text(kind);
    QStringList texts;
    const auto labels = widget()->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        const QString text = label->isVisibleTo(widget()) ? LabelInterface::fullText(*label) : QString();
        if (!text.isEmpty())
            texts.append(text);
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace Kestrel::Gui::Detail
