#include "Page.h"

#include "SignalLog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <utility>

namespace Gallery {

Page::Page(const QString& introduction, QWidget* parent)
    : QWidget(parent)
    , m_stageFrame(new QFrame)
    , m_stage(new QVBoxLayout)
    , m_controls(new QFormLayout)
    , m_log(new SignalLog)
{
    auto* text = new QLabel(introduction);
    text->setWordWrap(true);

    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(createUpperHalf());
    splitter->addWidget(createLogBox());
    splitter->setStretchFactor(0, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(text);
    layout->addWidget(splitter, 1);
}

QWidget* Page::createUpperHalf()
{
    constexpr int stageMargin = 16;
    m_stageFrame->setFrameShape(QFrame::StyledPanel);
    m_stageFrame->setBackgroundRole(QPalette::Base);
    m_stageFrame->setAutoFillBackground(true);
    m_stage->setContentsMargins(stageMargin, stageMargin, stageMargin, stageMargin);
    m_stageFrame->setLayout(m_stage);

    auto* controlsBox = new QGroupBox(tr("Properties"));
    controlsBox->setLayout(m_controls);

    auto* half = new QWidget;
    auto* layout = new QHBoxLayout(half);
    layout->setContentsMargins({});
    layout->addWidget(m_stageFrame, 1);
    layout->addWidget(controlsBox);
    return half;
}

QWidget* Page::createLogBox()
{
    constexpr int fewestLines = 5;
    m_log->setMinimumHeight(m_log->fontMetrics().lineSpacing() * fewestLines);

    auto* clear = new QPushButton(tr("Clear"));
    connect(clear, &QPushButton::clicked, m_log, &SignalLog::clear);

    auto* box = new QGroupBox(tr("Signals"));
    auto* layout = new QHBoxLayout(box);
    layout->addWidget(m_log, 1);
    layout->addWidget(clear, 0, Qt::AlignTop);
    return box;
}

std::vector<Page::Popup> Page::popups()
{
    return {};
}

void Page::log(const QString& line)
{
    m_log->add(line);
}

void Page::logCounted(const QString& line)
{
    m_log->addCounted(line);
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
