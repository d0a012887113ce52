#include "Page.h"
#include "PageRegistry.h"

#include <KQt/Ui/FontStylePicker.h>
#include <KQt/Ui/TextAlignPicker.h>

#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QPushButton>
#include <QVBoxLayout>

namespace Gallery {

namespace {

using Kestrel::Gui::FontStylePicker;
using Kestrel::Gui::TextAlignPicker;

class FormattingPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::FormattingPage)

public:
    explicit FormattingPage(QWidget* parent)
        : Page(tr("Format the sample with the two strips. Their icons come from the page's style sheet, which selects "
                  "the buttons by their property \"styleTag\"."),
               parent)
        , m_style(new FontStylePicker)
        , m_align(new TextAlignPicker)
        , m_sample(
              new QLabel(tr("The quick brown fox jumps over the lazy dog, and the dog, being lazy, lets it jump as "
                            "often as it likes.")))
    {
        setStyleSheet(styleSheetByTag());
        constexpr int gap = 24;
        auto* strips = new QHBoxLayout;
        strips->addWidget(m_style);
        strips->addSpacing(gap);
        strips->addWidget(m_align);
        strips->addStretch(1);

        constexpr int margin = 12;
        constexpr int sampleHeight = 140;
        constexpr qreal enlargement = 1.5;
        QFont font = m_sample->font();
        font.setPointSizeF(font.pointSizeF() * enlargement);
        m_sample->setFont(font);
        m_sample->setWordWrap(true);
        m_sample->setMargin(margin);
        m_sample->setFrameShape(QFrame::StyledPanel);
        m_sample->setMinimumHeight(sampleHeight);
        stage()->addLayout(strips);
        stage()->addWidget(m_sample, 1);

        connectSignals();
        addControls();
        QFont first = font;
        first.setItalic(true);
        first.setBold(true);
        //! [code]
        m_style->setFont(first);
        m_align->setAlignment(Qt::AlignCenter);
        //! [code]
        m_sample->setAlignment(Qt::AlignCenter);
    }

private:
    static QString styleSheetByTag()
    {
        //! [code]
        const QString rule = QStringLiteral("QToolButton[styleTag=\"%1\"] { qproperty-icon: url(:/icons/%2.png); }");
        const QString frame =
            QStringLiteral("QToolButton[styleTag] { border: 1px solid palette(mid); border-radius: 3px; padding: 3px;"
                           " background: palette(base); }"
                           "QToolButton[styleTag]:checked { border: 2px solid palette(highlight); padding: 2px; }"
                           "QToolButton[styleTag]:hover { background: palette(alternate-base); }");
        return frame + rule.arg(QStringLiteral("Bold"), QStringLiteral("bold")) +
               rule.arg(QStringLiteral("Italic"), QStringLiteral("italic")) +
               rule.arg(QStringLiteral("Underline"), QStringLiteral("underline")) +
               rule.arg(QStringLiteral("AlignLeft"), QStringLiteral("align-left")) +
               rule.arg(QStringLiteral("AlignRight"), QStringLiteral("align-right")) +
               rule.arg(QStringLiteral("AlignJustify"), QStringLiteral("align-justify")) +
               rule.arg(QStringLiteral("AlignCenter"), QStringLiteral("align-center"));
        //! [code]
    }

    static QString name(Qt::Alignment alignment)
    {
        return QString::fromLatin1(QMetaEnum::fromType<Qt::Alignment>().valueToKeys(static_cast<int>(alignment)));
    }

    void connectSignals()
    {
        //! [code]
        connect(m_style, &FontStylePicker::styleChanged, this, [this] {
            log(QStringLiteral("styleChanged()"));
            m_sample->setFont(m_style->apply(m_sample->font()));
        });
        connect(m_align, &TextAlignPicker::alignmentChanged, this, [this](Qt::Alignment alignment) {
            log(QStringLiteral("alignmentChanged(%1)").arg(name(alignment)));
            m_sample->setAlignment(alignment | Qt::AlignVCenter | Qt::AlignAbsolute);
        });
        //! [code]
    }

    void addControls()
    {
        auto* plain = new QPushButton(tr("Plain font"));
        plain->setToolTip(tr("The program sets a font: a signal for each toggle that changes."));
        connect(plain, &QPushButton::clicked, this, [this] { m_style->setFont(QFont()); });
        auto* left = new QPushButton(tr("Set to left"));
        left->setToolTip(tr("The program checks a button: no signal, and the sample stays as it is."));
        connect(left, &QPushButton::clicked, this, [this] {
            m_align->setAlignment(Qt::AlignLeft);
            log(QStringLiteral("alignment() is still \"%1\"").arg(name(m_align->alignment())));
        });
        controls()->addRow(plain);
        controls()->addRow(left);
        addSwitch(tr("Enabled"), true, [this](bool on) {
            m_style->setEnabled(on);
            m_align->setEnabled(on);
        });
    }

    FontStylePicker* m_style;
    TextAlignPicker* m_align;
    QLabel* m_sample;
};

const PageRegistration registration(320, QT_TRANSLATE_NOOP("Gallery", "Formatting"),
                                    [](QWidget* parent) { return new FormattingPage(parent); });

} // namespace

} // namespace Gallery
