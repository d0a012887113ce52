#include "Page.h"

#include "CodeView.h"
#include "SignalLog.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFormLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

namespace Gallery {

namespace {

QWidget* tab(QWidget* content, QPushButton* button)
{
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->addWidget(content, 1);
    layout->addWidget(button, 0, Qt::AlignTop);
    return widget;
}

} // namespace

Page::Page(const QString& introduction, QWidget* parent)
    : QWidget(parent)
    , m_stageFrame(new QFrame)
    , m_stage(new QVBoxLayout)
    , m_controls(new QFormLayout)
    , m_log(new SignalLog)
    , m_code(new CodeView)
    , m_tabs(new QTabWidget)
{
    auto* text = new QLabel(introduction);
    text->setWordWrap(true);

    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(createUpperHalf());
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(createLogTab(), tr("Signals"));
    m_tabs->addTab(createCodeTab(), tr("Code"));
    m_tabs->setTabVisible(m_tabs->indexOf(m_code->parentWidget()), false);
    splitter->addWidget(m_tabs);
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

QWidget* Page::createLogTab()
{
    constexpr int fewestLines = 5;
    m_log->setMinimumHeight(m_log->fontMetrics().lineSpacing() * fewestLines);

    auto* clear = new QPushButton(tr("Clear"));
    connect(clear, &QPushButton::clicked, m_log, &SignalLog::clear);

    return tab(m_log, clear);
}

QWidget* Page::createCodeTab()
{
    auto* copy = new QPushButton(tr("Copy"));
    connect(copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(m_code->toPlainText() + QLatin1Char('\n')); });
    return tab(m_code, copy);
}

void Page::setCode(const QString& code)
{
    m_code->setPlainText(code);
    m_tabs->setTabVisible(m_tabs->indexOf(m_code->parentWidget()), !code.isEmpty());
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
