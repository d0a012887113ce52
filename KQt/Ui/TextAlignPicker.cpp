#include <KQt/Ui/TextAlignPicker.h>

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVariant>

namespace Kestrel::Gui {

TextAlignPicker::TextAlignPicker(QWidget* parent)
    : QFrame(parent)
{
    constexpr int spacing = 2;
    auto* layout = new QHBoxLayout;
    layout->setContentsMargins({});
    layout->setSpacing(spacing);
    setLayout(layout);
    setAttribute(Qt::WA_MouseTracking);

    auto* group = new QButtonGroup(this);
    group->setExclusive(true);
    const QMap<int, const char*> names = {
        {Qt::AlignLeft, "AlignLeft"},
        {Qt::AlignRight, "AlignRight"},
        {Qt::AlignJustify, "AlignJustify"},
        {Qt::AlignCenter, "AlignCenter"},
    };
    for (auto it = names.cbegin(); it != names.cend(); ++it) {
        auto* button = new QToolButton(this);
        button->setCheckable(true);
        button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        layout->addWidget(button);
        m_buttons.insert(it.key(), button);
        button->setProperty("styleTag", QString::fromLatin1(it.value()));
        group->addButton(button);
    }
    connect(group, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            &TextAlignPicker::updateAlignment);
    retranslate();
}

TextAlignPicker::~TextAlignPicker() = default;

Qt::Alignment TextAlignPicker::alignment()
{
    return m_alignment;
}

void TextAlignPicker::setAvailableAlignments(Qt::Alignment alignments)
{
    Q_UNUSED(alignments)
}

void TextAlignPicker::setAlignment(Qt::Alignment alignment)
{
    for (auto it = m_buttons.cbegin(); it != m_buttons.cend(); ++it)
        it.value()->setChecked((static_cast<int>(alignment) & it.key()) != 0);
}

void TextAlignPicker::updateAlignment()
{
    m_alignment = {};
    for (auto it = m_buttons.cbegin(); it != m_buttons.cend(); ++it) {
        if (it.value()->isChecked())
            m_alignment |= static_cast<Qt::AlignmentFlag>(it.key());
    }
    Q_EMIT alignmentChanged(m_alignment);
}

void TextAlignPicker::changeEvent(QEvent* event)
{
    // Nothing goes to the base class: the strip's look is the style sheet's alone, whatever else changes.
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void TextAlignPicker::mouseMoveEvent(QMouseEvent* event)
{
    QWidget::mouseMoveEvent(event);
}

void TextAlignPicker::retranslate()
{
    //: Tool tip of a toggle button: the paragraph is aligned with the left edge.
    m_buttons.value(Qt::AlignLeft)->setToolTip(tr("Align left"));
    //: Tool tip of a toggle button: the paragraph is aligned with the right edge.
    m_buttons.value(Qt::AlignRight)->setToolTip(tr("Align right"));
    //: Tool tip of a toggle button: the lines of the paragraph reach from edge to edge. The usual word of word
    //: processors.
    m_buttons.value(Qt::AlignJustify)->setToolTip(tr("Justify"));
    //: Tool tip of a toggle button: the paragraph is centred between the edges.
    m_buttons.value(Qt::AlignCenter)->setToolTip(tr("Align center"));
}

} // namespace Kestrel::Gui
