#include "Page.h"
#include "PageRegistry.h"

#include <KQt/Ui/AdvancedComboBox.h>
#include <KQt/Ui/NoWheelComboBox.h>
#include <KQt/Ui/PresetComboBox.h>
#include <KQt/Ui/SeparatorDelegate.h>

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyle>
#include <QVBoxLayout>

//! [shows] SeparatorStyle

namespace Gallery {

namespace {

using Kestrel::Gui::AdvancedComboBox;
using Kestrel::Gui::NoWheelComboBox;
using Kestrel::Gui::PresetComboBox;
using Kestrel::Gui::SeparatorDelegate;

class ComboBoxesPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::ComboBoxesPage)

public:
    explicit ComboBoxesPage(QWidget* parent)
        : Page(tr("Combo boxes that are narrower than their items. Turn the wheel over the form, open the lists."),
               parent)
    {
        stage()->addWidget(createNarrowGroup());
        stage()->addWidget(createWheelGroup());
        stage()->addWidget(createSeparatorGroup());
        stage()->addWidget(createPresetGroup());
        stage()->addStretch(1);
        addControls();
    }

    std::vector<Popup> popups() override
    {
        return {{QStringLiteral("wide"), [this] { return openList(m_narrow); }},
                {QStringLiteral("separators"), [this] { return openList(m_separators); }},
                {QStringLiteral("presets"), [this] {
                     m_presets->showPopup();
                     return static_cast<QWidget*>(m_panel);
                 }}};
    }

private:
    QWidget* createNarrowGroup()
    {
        //! [code]
        m_narrow = new AdvancedComboBox;
        m_narrow->addItems(longItems());
        m_narrow->setCurrentIndex(1);
        m_narrow->setFixedWidth(narrow());
        //! [code]
        m_narrow->setAccessibleName(tr("Narrow box"));
        connect(m_narrow, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [this](int index) { log(QStringLiteral("narrow.currentIndexChanged(%1)").arg(index)); });
        connect(m_narrow, &AdvancedComboBox::widePopupEnabledChanged, this,
                [this] { log(QStringLiteral("narrow.widePopupEnabledChanged()")); });
        connect(m_narrow, &AdvancedComboBox::elideItemTextChanged, this,
                [this] { log(QStringLiteral("narrow.elideItemTextChanged()")); });
        connect(m_narrow, &AdvancedComboBox::mouseWheelEnabledChanged, this,
                [this] { log(QStringLiteral("narrow.mouseWheelEnabledChanged()")); });
        return group(tr("Elided text and wide popup"), m_narrow);
    }

    QWidget* createWheelGroup()
    {
        auto* form = new QWidget;
        auto* rows = new QFormLayout(form);
        for (int i = 1; i <= 8; ++i) {
            //! [code]
            auto* box = new NoWheelComboBox;
            box->addItems(longItems());
            //! [code]
            box->setFixedWidth(narrow());
            rows->addRow(tr("Row %1").arg(i), box);
        }
        auto* area = new QScrollArea;
        area->setWidget(form);
        constexpr int visibleRows = 3;
        area->setFixedHeight(visibleRows * form->sizeHint().height() / rows->rowCount());
        // Wide enough for the boxes beside the bar: the form scrolls in one direction.
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setMinimumWidth(form->sizeHint().width() + area->verticalScrollBar()->sizeHint().width() +
                              2 * area->frameWidth());
        return group(tr("No wheel in a scrolling form"), area);
    }

    QWidget* createSeparatorGroup()
    {
        m_separators = new AdvancedComboBox;
        m_separators->addItems({tr("Undo"), tr("Cut"), tr("Copy"), tr("Paste")});
        //! [code]
        m_separators->insertSeparator(1);
        //! [code]
        m_separators->setFixedWidth(narrow());
        m_separators->setAccessibleName(tr("Box with separators"));
        styleSeparators(true);
        return group(tr("Separators"), m_separators);
    }

    QWidget* createPresetGroup()
    {
        //! [code]
        m_presets = new PresetComboBox;
        m_presets->addItem(tr("A preset with a rather long name"));
        //! [code]
        m_presets->setFixedWidth(narrow());
        m_presets->setAccessibleName(tr("Presets"));
        m_panel = new QListWidget(this);
        m_panel->setWindowFlags(Qt::Popup);
        m_panel->addItems({tr("Calm"), tr("Bright"), tr("Night")});
        //! [code]
        connect(m_presets, &PresetComboBox::ShowPopupActivated, this, [this] {
            log(QStringLiteral("presets.ShowPopupActivated()"));
            m_panel->resize(m_presets->width(), 90);
            m_panel->move(m_presets->mapToGlobal(m_presets->rect().bottomLeft()));
            m_panel->show();
        });
        //! [code]
        connect(m_panel, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
            m_presets->setItemText(0, item->text());
            m_panel->hide();
        });
        return group(tr("Preset panel"), m_presets);
    }

    void addControls()
    {
        addSwitch(tr("Wide popup"), true, [this](bool on) { m_narrow->setWidePopupEnabled(on); });
        addSwitch(tr("Mouse wheel"), true, [this](bool on) { m_narrow->setMouseWheelEnabled(on); });
        addSwitch(tr("Elide text"), true, [this](bool on) {
            m_narrow->setElideItemText(on);
            m_narrow->update();
        });
        auto* toolTip = new QLineEdit(m_narrow->tooltipTemplate());
        connect(toolTip, &QLineEdit::textChanged, this, [this](const QString& text) {
            m_narrow->setTooltipTemplate(text);
            m_narrow->update();
        });
        controls()->addRow(tr("Tool tip:"), toolTip);
        addSwitch(tr("Styled separators"), true, [this](bool on) { styleSeparators(on); });
        addSwitch(tr("Preset icon"), true, [this](bool on) {
            constexpr int extent = 16;
            m_presets->SetAdditionalIcon(on ? QIcon(style()->standardIcon(QStyle::SP_DialogApplyButton).pixmap(extent))
                                            : QIcon());
        });
    }

    void styleSeparators(bool on)
    {
        //! [code]
        m_separators->setStyleSheet(
            on ? QStringLiteral("Kestrel--Gui--SeparatorStyle { qproperty-height: 9; qproperty-color: #1464f6;"
                                " qproperty-lineWidth: 2; qproperty-marginLeft: 6; qproperty-marginRight: 6; }")
               : QString());
        // The look is read from the style sheet when the delegate is made; the box deletes the one before.
        m_separators->setItemDelegate(new SeparatorDelegate(m_separators));
        //! [code]
    }

    /// Narrower than the items, whatever the font.
    int narrow() const
    {
        constexpr int characters = 20;
        return characters * fontMetrics().averageCharWidth();
    }

    static QStringList longItems()
    {
        return {tr("Short"), tr("An item whose text is much longer than the box"), tr("Another one that does not fit")};
    }

    static QWidget* group(const QString& title, QWidget* content)
    {
        auto* box = new QGroupBox(title);
        auto* layout = new QHBoxLayout(box);
        layout->addWidget(content, 0, Qt::AlignVCenter);
        layout->addStretch(1);
        return box;
    }

    static QWidget* openList(QComboBox* box)
    {
        box->showPopup();
        return box->view()->window();
    }

    AdvancedComboBox* m_narrow = nullptr;
    AdvancedComboBox* m_separators = nullptr;
    PresetComboBox* m_presets = nullptr;
    QListWidget* m_panel = nullptr;
};

const PageRegistration registration(300, QT_TRANSLATE_NOOP("Gallery", "Combo boxes"),
                                    [](QWidget* parent) { return new ComboBoxesPage(parent); });

} // namespace

} // namespace Gallery
