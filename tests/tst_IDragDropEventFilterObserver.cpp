#include <KQt/Ui/IDragDropEventFilterObserver.h>

#include <QtTest>

#include <memory>
#include <string>

using Kestrel::Gui::IDragDropEventFilterObserver;

namespace {

class Observer : public IDragDropEventFilterObserver
{
public:
    Observer() = default;
    Observer(const Observer& other) = default;
    Observer& operator=(const Observer& other) = default;
    ~Observer() override
    {
        if (destroyed)
            ++*destroyed;
    }

    bool CanDropUrl(const std::string& url) override { return url == welcome; }
    void DropUrl(const std::string& path) override { dropped += path; }

    std::string welcome;
    std::string dropped;
    int* destroyed = nullptr;
};

} // namespace

/// The filter's use of the interface is tested with the filter; this is what its implementers rely on.
class tst_IDragDropEventFilterObserver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isCalledThroughTheInterface();
    void isDeletedThroughTheInterface();
    void implementersCanBeCopied();
};

void tst_IDragDropEventFilterObserver::isCalledThroughTheInterface()
{
    Observer observer;
    observer.welcome = "file:///a";
    IDragDropEventFilterObserver& asked = observer;
    QVERIFY(asked.CanDropUrl("file:///a"));
    QVERIFY(!asked.CanDropUrl("file:///b"));
    asked.DropUrl("/a");
    QCOMPARE(observer.dropped, std::string("/a"));
}

void tst_IDragDropEventFilterObserver::isDeletedThroughTheInterface()
{
    int destroyed = 0;
    auto observer = std::make_unique<Observer>();
    observer->destroyed = &destroyed;
    std::unique_ptr<IDragDropEventFilterObserver> owner = std::move(observer);
    owner.reset();
    QCOMPARE(destroyed, 1);
}

void tst_IDragDropEventFilterObserver::implementersCanBeCopied()
{
    Observer first;
    first.welcome = "x";
    Observer copy(first);
    QVERIFY(copy.CanDropUrl("x"));
    Observer assigned;
    assigned = first;
    QVERIFY(assigned.CanDropUrl("x"));
}

QTEST_APPLESS_MAIN(tst_IDragDropEventFilterObserver)
#include "tst_IDragDropEventFilterObserver.moc"
