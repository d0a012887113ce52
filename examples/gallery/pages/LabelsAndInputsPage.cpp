#include "Page.h"
#include "PageRegistry.h"

#include <KQt/Ui/AdvancedSpinBox.h>
#include <KQt/Ui/ClickableLabel.h>
#include <KQt/Ui/ClippingTextLineEdit.h>
#include <KQt/Ui/ExtendedLabel.h>
#include <KQt/Ui/TextEditWithPlaceholder.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QSplitter>
#include <QVariant>
#include <QVBoxLayout>

#include <vector>

namespace Gallery {

namespace {

using Kestrel::Gui::AdvancedSpinBox;
using Kestrel::Gui::ClickableLabel;
using Kestrel::Gui::ClippingTextLineEdit;
using Kestrel::Gui::ExtendedLabel;
using Kestrel::Gui::TextEditWithPlaceholder;

class LabelsAndInputsPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::LabelsAndInputsPage)

public:
    explicit LabelsAndInputsPage(QWidget* parent)
        : Page(tr("Drag the handle beside the column to narrow it: labels and the line edit elide their texts and "
                  "tell the whole of them in tool tips. The line edit shows all of it while you edit."),
               parent)
    {
        stage()->addWidget(createSplitter(), 1);
        addLabelControls();
        addInputControls();
    }

private:
    QWidget* createSplitter()
    {
        auto* column = new QWidget;
        auto* rows = new QVBoxLayout(column);
        // From right to left a splitter puts its parts a pixel too far to the right.
        rows->setContentsMargins(0, 0, 1, 0);
        rows->addWidget(createPressLabel());
        for (const QString& text : {tr("A file name that is much too long for a column as narrow as this one.txt"),
                                    tr("Mixed directions: %1, elided in order")
                                        .arg(QStringLiteral("\u05e9\u05dc\u05d5\u05dd \u05e2\u05d5\u05dc\u05dd")),
                                    tr("Short")})
            rows->addWidget(createElidingLabel(text));
        rows->addWidget(createLineEdit());
        rows->addWidget(createNotes(), 1);

        auto* handleHint = new QLabel(tr("Drag the handle at the edge of this field."));
        handleHint->setWordWrap(true);
        handleHint->setAlignment(Qt::AlignCenter);
        handleHint->setFrameShape(QFrame::StyledPanel);
        auto* splitter = new QSplitter;
        splitter->addWidget(column);
        splitter->addWidget(handleHint);
        splitter->setChildrenCollapsible(false);
        constexpr int columnWidth = 200;
        splitter->setSizes({columnWidth, columnWidth});
        return splitter;
    }

    QWidget* createPressLabel()
    {
        //! [code]
        m_press = new ClickableLabel;
        m_press->setFrameShape(QFrame::StyledPanel);
        m_press->setText(tr("Press here, with any button"));
        connect(m_press, &ClickableLabel::clicked, this, [this] { log(QStringLiteral("clickableLabel.clicked()")); });
        //! [code]
        connect(m_press, &ClickableLabel::ClickableChanged, this, [this](bool clickable) {
            log(QStringLiteral("clickableLabel.ClickableChanged(%1)").arg(QVariant(clickable).toString()));
        });
        return m_press;
    }

    QWidget* createElidingLabel(const QString& text)
    {
        //! [code]
        auto* label = new ExtendedLabel;
        label->setFrameShape(QFrame::StyledPanel);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // narrower than its text
        label->SetOriginalText(text);
        //! [code]
        connect(label, &ExtendedLabel::clicked, this, [this] { log(QStringLiteral("extendedLabel.clicked()")); });
        m_eliding.push_back(label);
        return label;
    }

    QWidget* createLineEdit()
    {
        //! [code]
        auto* edit = new ClippingTextLineEdit;
        edit->setMinimumWidth(1);
        edit->setAccessibleName(tr("Clipped text"));
        edit->SetOriginalText(tr("A text that is shown whole while you edit it, and elided while you do not"));
        //! [code]
        connect(edit, &ClippingTextLineEdit::OriginalTextChanged, this,
                [this](const QString& text) { log(QStringLiteral("lineEdit.OriginalTextChanged(\"%1\")").arg(text)); });
        return edit;
    }

    QWidget* createNotes()
    {
        //! [code]
        m_notes = new TextEditWithPlaceholder;
        m_notes->setMinimumSize({1, 1});
        //! [code]
        m_notes->setTabChangesFocus(true);
        m_notes->setAccessibleName(tr("Notes"));
        return m_notes;
    }

    void addLabelControls()
    {
        addSwitch(tr("Labels report presses"), true, [this](bool on) {
            m_press->SetClickable(on);
            for (ExtendedLabel* label : m_eliding)
                label->SetClickable(on);
        });
        addSwitch(tr("Labels elide their texts"), true, [this](bool on) {
            for (ExtendedLabel* label : m_eliding)
                label->SetClipText(on);
        });
        auto* mode = new QComboBox;
        mode->addItem(tr("at the end"), Qt::ElideRight);
        mode->addItem(tr("in the middle"), Qt::ElideMiddle);
        mode->addItem(tr("at the beginning"), Qt::ElideLeft);
        controls()->addRow(tr("Elide"), mode);
        connect(mode, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this, mode] {
            for (ExtendedLabel* label : m_eliding) {
                label->SetElideMode(static_cast<Qt::TextElideMode>(mode->currentData().toInt()));
                label->SetClipText(label->GetClipText()); // the new mode shows at the next update: this is one
            }
        });
    }

    void addInputControls()
    {
        auto* hint = new QLineEdit(tr("What do you think of it?"));
        hint->setCursorPosition(0);
        controls()->addRow(tr("Placeholder"), hint);
        //! [code]
        connect(hint, &QLineEdit::textChanged, m_notes, &TextEditWithPlaceholder::setPlaceholderText);
        m_notes->setPlaceholderText(hint->text());
        //! [code]

        auto* number = new AdvancedSpinBox;
        auto* length = new QSpinBox;
        constexpr int most = 999999;
        constexpr int longest = 6;
        number->setMaximum(most);
        length->setRange(1, longest);
        controls()->addRow(tr("Number"), number);
        controls()->addRow(tr("Digits at most"), length);
        connect(length, QOverload<int>::of(&QSpinBox::valueChanged), number, &AdvancedSpinBox::setMaxLenght);
        constexpr int digits = 3;
        length->setValue(digits);
        connect(number, QOverload<int>::of(&QSpinBox::valueChanged), this,
                [this](int value) { logCounted(QStringLiteral("spinBox.valueChanged(%1)").arg(value)); });
    }

    ClickableLabel* m_press = nullptr;
    std::vector<ExtendedLabel*> m_eliding;
    TextEditWithPlaceholder* m_notes = nullptr;
};

const PageRegistration registration(310, QT_TRANSLATE_NOOP("Gallery", "Labels and inputs"),
                                    [](QWidget* parent) { return new LabelsAndInputsPage(parent); });

} // namespace

} // namespace Gallery
