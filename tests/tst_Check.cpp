#include <KQt/Ui/Check.h>
#include <KQt/Ui/WidgetMouseHandler.h>

#include <boost/exception/all.hpp>

#include <QtTest>

#include <stdexcept>

class tst_Check : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thrownTypeCarriesMessageStackAndPlace();
};

void tst_Check::thrownTypeCarriesMessageStackAndPlace()
{
    using Thrown = boost::exception_detail::clone_impl<boost::exception_detail::error_info_injector<std::invalid_argument>>;
    try {
        Kestrel::Gui::WidgetMouseHandler handler(nullptr);
        QFAIL("no exception");
    } catch (const Thrown& e) {
        qInfo("%s", e.what());
        qInfo("%s", boost::diagnostic_information(e).c_str());
    }
    QBENCHMARK { try { Kestrel::Gui::WidgetMouseHandler handler(nullptr); } catch (const std::exception&) {} }
}

QTEST_MAIN(tst_Check)
#include "tst_Check.moc"
