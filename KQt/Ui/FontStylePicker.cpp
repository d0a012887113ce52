#include <KQt/Ui/FontStylePicker.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVariant>

namespace Kestrel::Gui {

namespace {

enum StyleKey { BoldKey = 1, ItalicKey = 2, UnderlineKey = 4 };

const char* styleTag(int key)
{
    switch (key) {
    case BoldKey:
        return "Bold";
    case ItalicKey:
        return "Italic";
    default:
        return "Underline";
    }
}

} // namespace

FontStylePicker::FontStylePicker(QWidget* parent)
    : QFrame(parent)
{
    constexpr int spacing = 2;
    auto* layout = new QHBoxLayout;
    layout->setContentsMargins({});
    layout->setSpacing(spacing);
    setLayout(layout);
    setAttribute(Qt::WA_MouseTracking);

    for (const int key : {BoldKey, ItalicKey, UnderlineKey})
        m_buttons.insert(key, new QToolButton(this));
    for (auto it = m_buttons.cbegin(); it != m_buttons.cend(); ++it) {
        QToolButton* button = it.value();
        button->setProperty("styleTag", QString::fromLatin1(styleTag(it.key())));
        button->setCheckable(true);
        connect(button, &QToolButton::toggled, this, &FontStylePicker::styleChanged);
        layout->addWidget(button);
    }
    retranslate();
}

FontStylePicker::~FontStylePicker() = default;

QFont FontStylePicker::apply(const QFont& base)
{
    QFont font = base;
    font.setWeight(m_buttons.value(BoldKey)->isChecked() ? QFont::Bold : QFont::Normal);
    font.setStyle(m_buttons.value(ItalicKey)->isChecked() ? QFont::StyleItalic : QFont::StyleNormal);
    font.setUnderline(m_buttons.value(UnderlineKey)->isChecked());
    return font;
}

void FontStylePicker::setFont(const QFont& font)
{
    constexpr int boldFrom = 58; // halfway between medium and demi-bold
    // Read before the first toggle: a slot of styleChanged() may change the very font that was handed in.
    const QMap<int, bool> states = {
        {BoldKey, font.weight() >= boldFrom},
        {ItalicKey, font.style() != QFont::StyleNormal},
        {UnderlineKey, font.underline()},
    };
    for (auto it = states.cbegin(); it != states.cend(); ++it)
        m_buttons.value(it.key())->setChecked(it.value());
}

void FontStylePicker::changeEvent(QEvent* event)
{
    // Nothing goes to the base class: the strip's look is the style sheet's alone, whatever else changes.
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void FontStylePicker::mouseMoveEvent(QMouseEvent* event)
{
    QWidget::mouseMoveEvent(event);
}

void FontStylePicker::retranslate()
{
    //: Tool tip of a toggle button: bold letters. The usual word of word processors.
    m_buttons.value(BoldKey)->setToolTip(tr("Bold"));
    //: Tool tip of a toggle button: italic letters. The usual word of word processors.
    m_buttons.value(ItalicKey)->setToolTip(tr("Italic"));
    //: Tool tip of a toggle button: underlined letters. The usual word of word processors.
    m_buttons.value(UnderlineKey)->setToolTip(tr("Underline"));
}

} // namespace Kestrel::Gui
