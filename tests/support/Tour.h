#pragma once

#include <KQt/Ui/WalkthroughHint.h>

#include <QLabel>
#include <QPointer>
#include <QStackedWidget>
#include <QStringList>
#include <QVBoxLayout>
#include <QVariant>
#include <QVector>

#include <functional>
#include <memory>

namespace TestSupport {

/// What a page of a tour is made of.
struct TourPage
{
    QString name;
    QString target;
    QStringList conditions;
    QString alignment = QStringLiteral("bottom");
};

class TourHint;

/// What happened to a prototype and its copies.
struct TourRecord
{
    QVector<QPointer<TourHint>> copies; ///< in the order of their making
    QStringList log;                    ///< "start NAME" and "finish NAME", outermost calls only
    QVector<QSet<QWidget*>> targets;    ///< of each start
    std::function<void(TourHint*)> onStart;
    std::function<void(TourHint*)> onFinish;
};

/// A hint without any furniture that writes down what is asked of it.
class TourHint : public Kestrel::Gui::WalkthroughHint
{
public:
    TourHint(const QVector<TourPage>& pages, std::shared_ptr<TourRecord> record)
        : m_pages(pages)
        , m_record(std::move(record))
        , m_stack(new QStackedWidget(this))
    {
        for (const TourPage& page : pages) {
            auto* label = new QLabel(page.name);
            if (!page.name.isNull())
                label->setProperty("walkthroughName", page.name);
            if (!page.target.isNull())
                label->setProperty("walkthroughWidget", page.target);
            if (!page.conditions.isEmpty())
                label->setProperty("walkthroughConditionList", page.conditions);
            label->setProperty("walkthroughAlignment", page.alignment);
            m_stack->addWidget(label);
        }
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(m_stack);
    }

    WalkthroughHint* clone() const override
    {
        auto* copy = new TourHint(m_pages, m_record);
        m_record->copies.append(copy);
        return copy;
    }
    QStackedWidget* stackedWidget() const override { return m_stack; }
    QLabel* textLabel() const override { return nullptr; }
    QAbstractButton* closeButton() const override { return nullptr; }
    QAbstractButton* disableForSessionButton() const override { return nullptr; }
    QAbstractButton* disableForeverButton() const override { return nullptr; }

    void start(QSet<QWidget*> targets) override
    {
        m_record->log.append(QStringLiteral("start ") + hintName());
        m_record->targets.append(targets);
        const QPointer<TourHint> self(this);
        WalkthroughHint::start(targets);
        if (self && m_record->onStart)
            m_record->onStart(this);
    }

    void finish() override
    {
        if (m_finishing) {
            WalkthroughHint::finish();
            return;
        }
        m_finishing = true;
        m_record->log.append(QStringLiteral("finish ") + hintName());
        const std::shared_ptr<TourRecord> record = m_record;
        const QPointer<TourHint> self(this);
        WalkthroughHint::finish();
        if (!self)
            return;
        m_finishing = false;
        if (record->onFinish)
            record->onFinish(this);
    }

    void stopForSession()
    {
        disableHintsForSession();
        close();
    }
    void stopForever()
    {
        disableHintsForever();
        close();
    }

private:
    QVector<TourPage> m_pages;
    std::shared_ptr<TourRecord> m_record;
    QStackedWidget* m_stack;
    bool m_finishing = false;
};

/// Makes prototypes and finds their copies.
class Tour
{
public:
    std::shared_ptr<TourRecord> record = std::make_shared<TourRecord>();

    TourHint* prototype(const QVector<TourPage>& pages) const { return new TourHint(pages, record); }

    /// The copy for the page of that number, null when it was deleted.
    TourHint* hint(int page) const { return record->copies.value(page).data(); }
};

inline QString str(const char* text)
{
    return QString::fromLatin1(text);
}

/// A page whose hint shows once, while its target is there: the usual one.
inline TourPage simplePage(const char* name, const char* target, const QStringList& more = {})
{
    return {str(name), str(target), QStringList{str(name) + str("/ready"), str(target) + str("/active")} + more,
            QStringLiteral("bottom")};
}

} // namespace TestSupport
