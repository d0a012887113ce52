#pragma once

#include <KQt/Ui/WalkthroughHint.h>

#include <QList>
#include <QPointer>
#include <QStackedWidget>
#include <QVariant>

#include <memory>

namespace TestSupport {

/// A walkthrough hint of nothing but pages, with a size hint to choose and a note of what it was asked to do.
///
/// Copies have copies of the pages, with the same properties, and the same size hint.
class TestHint : public Kestrel::Gui::WalkthroughHint
{
public:
    TestHint()
        : m_pages(new QStackedWidget(this))
    {
        ++alive();
    }
    ~TestHint() override { --alive(); }

    /// How many there are at the moment.
    static int& alive()
    {
        static int count = 0;
        return count;
    }
    /// The copies made of this and, through them, of theirs, oldest first. A copy that is deleted leaves a null entry.
    QList<QPointer<TestHint>>& clones() const { return *m_clones; }

    /// An empty @p alignment sets no such property.
    QWidget* addPage(const QString& name, const QString& widget, const QString& alignment = QString(),
                     const QStringList& conditions = QStringList())
    {
        auto* page = new QWidget;
        page->setProperty("walkthroughName", name);
        page->setProperty("walkthroughWidget", widget);
        if (!alignment.isEmpty())
            page->setProperty("walkthroughAlignment", alignment);
        if (!conditions.isEmpty())
            page->setProperty("walkthroughConditionList", conditions);
        m_pages->addWidget(page);
        return page;
    }

    void setSizeHint(const QSize& size) { m_sizeHint = size; }
    QSize sizeHint() const override { return m_sizeHint; }

    WalkthroughHint* clone() const override
    {
        auto* copy = new TestHint;
        copy->m_sizeHint = m_sizeHint;
        copy->m_clones = m_clones;
        for (int i = 0; i < m_pages->count(); ++i)
            copyPage(m_pages->widget(i), copy->m_pages);
        m_clones->append(copy);
        return copy;
    }
    QStackedWidget* stackedWidget() const override { return m_pages; }
    QLabel* textLabel() const override { return nullptr; }
    QAbstractButton* closeButton() const override { return nullptr; }
    QAbstractButton* disableForSessionButton() const override { return nullptr; }
    QAbstractButton* disableForeverButton() const override { return nullptr; }

    void start(QSet<QWidget*> targets) override
    {
        ++startCount;
        lastTargets = targets;
        WalkthroughHint::start(targets);
    }
    void finish() override
    {
        ++finishCount;
        WalkthroughHint::finish();
    }

    using WalkthroughHint::disableHintsForever;
    using WalkthroughHint::disableHintsForSession;
    using WalkthroughHint::enableHintsForever;
    using WalkthroughHint::enableHintsForSession;

    int startCount = 0;
    int finishCount = 0;
    QSet<QWidget*> lastTargets;
    QList<QSize> textLimits;

protected:
    void limitTextSize(QSize size) override
    {
        textLimits << size;
        WalkthroughHint::limitTextSize(size);
    }

private:
    static void copyPage(const QWidget* page, QStackedWidget* pages)
    {
        auto* copy = new QWidget;
        const QList<QByteArray> names = page->dynamicPropertyNames();
        for (const QByteArray& name : names)
            copy->setProperty(name.constData(), page->property(name.constData()));
        pages->addWidget(copy);
    }

    QStackedWidget* m_pages;
    QSize m_sizeHint = QSize(60, 40);
    std::shared_ptr<QList<QPointer<TestHint>>> m_clones = std::make_shared<QList<QPointer<TestHint>>>();
};

} // namespace TestSupport
