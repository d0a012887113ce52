#include <KQt/Ui/Accessibility/LabelInterface.h>

#include <KQt/Ui/Accessibility/MouseClick.h>
#include <KQt/Ui/Accessibility/SpokenText.h>
#include <KQt/Ui/ExtendedLabel.h>

#include <QLabel>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QVariant>

namespace Kestrel::Gui::Detail {

LabelInterface::LabelInterface(QLabel* label)
    : QAccessibleWidget(label, QAccessible::StaticText)
{
}

QLabel* LabelInterface::label() const
{
    return static_cast<QLabel*>(object());
}

QString LabelInterface::fullText(const QLabel& label)
{
    const auto* const extended = qobject_cast<const ExtendedLabel*>(&label);
    const QString original = extended ? extended->GetOriginalText() : QString();
    if (!original.isEmpty())
        return spokenText(original);
    const QString text = label.text();
    const bool isRich =
        label.textFormat() == Qt::RichText || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(text));
    return spokenText(isRich ? QTextDocumentFragment::fromHtml(text).toPlainText() : text);
}

QString LabelInterface::text(QAccessible::Text kind) const
{
    const QString given = kind == QAccessible::Name ? label()->accessibleName() : QString();
    if (kind == QAccessible::Name)
        return given.isEmpty() ? fullText(*label()) : given;
    const QString text = spokenText(QAccessibleWidget::text(kind));
    // The tool tip of an elided label says once more what the name says.
    return kind == QAccessible::Description && text == fullText(*label()) ? QString() : text;
}

QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
LabelInterface::relations(QAccessible::Relation match) const
{
    auto relations = QAccessibleWidget::relations(match);
    if ((match & QAccessible::Labelled) && label()->buddy())
        relations.append({QAccessible::queryAccessibleInterface(label()->buddy()), QAccessible::Labelled});
    return relations;
}

QStringList LabelInterface::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (label()->isEnabled() && label()->property("clickable").toBool())
        names.prepend(pressAction());
    return names;
}

void LabelInterface::doAction(const QString& actionName)
{
    if (!actionNames().contains(actionName))
        return;
    if (actionName == pressAction())
        clickLater(label());
    else
        QAccessibleWidget::doAction(actionName);
}

} // namespace Kestrel::Gui::Detail
