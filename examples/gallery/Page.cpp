#include "Page.h"

#include "SignalLog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include <utility>

namespace Gallery {

Page::Page(const QString& introduction, QWidget* parent)
    : QWidget(parent)
    , m_stage(new QVBoxLayout)
    , m_controls(new QFormLayout)
    , m_log(new SignalLog)
{
    auto* text = new QLabel(introduction);
    text->setWordWrap(true);

    auto* controlsBox = new QGroupBox(tr("Properties"));
    controlsBox->setLayout(m_controls);

    auto* upper = new QWidget;
    auto* upperLayout = new QHBoxLayout(upper);
    upperLayout->setContentsMargins({});
    upperLayout->addLayout(m_stage, 1);
    upperLayout->addWidget(controlsBox);

    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(upper);
    splitter->addWidget(m_log);
    splitter->setStretchFactor(0, 1);
    splitter->setCollapsible(0, false);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(splitter, 1);
}

std::vector<Page::Popup> Page::popups()
{
    return {};
}

void Page::log(const QString& line)
{
    m_log->add(line);
}

void Page::addSwitch(const QString& label, bool initial, std::function<void(bool)> apply)
{
    auto* box = new QCheckBox(label);
    box->setChecked(initial);
    m_controls->addRow(box);
    apply(initial);
    connect(box, &QCheckBox::toggled, this, std::move(apply));
}

} // namespace Gallery
