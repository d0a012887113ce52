// Names, alignments, condition lists and state paths that an application's forms may hold.
#include "FuzzApplication.h"
#include "FuzzText.h"

#include <KQt/Ui/WalkthroughController.h>

#include <support/TestHint.h>

#include <QAbstractState>
#include <QPushButton>

#include <array>
#include <cstdint>

using namespace Kestrel::Gui;
using Fuzz::require;

namespace {

// Short, and often one that was there before: conditions then meet.
QString nameFrom(FuzzedDataProvider& data)
{
    static const std::array<QString, 8> common = {
        QStringLiteral("a"),        QStringLiteral("b"),     QStringLiteral("a/ready"), QStringLiteral("b/finished"),
        QStringLiteral("a/active"), QStringLiteral("ready"), QStringLiteral("active"),  QStringLiteral("left"),
    };
    const auto choice = data.ConsumeIntegralInRange<std::size_t>(0, common.size());
    return choice < common.size() ? common[choice] : Fuzz::utf8Text(data, 12);
}

QVariant propertyFrom(FuzzedDataProvider& data)
{
    switch (data.ConsumeIntegralInRange(0, 4)) {
    case 0:
        return nameFrom(data);
    case 1:
        return QStringList{nameFrom(data), nameFrom(data)};
    case 2:
        return data.ConsumeIntegral<int>();
    case 3:
        return QVariant();
    default:
        return QVariantList{nameFrom(data), 7};
    }
}

void addPages(TestSupport::TestHint& hint, FuzzedDataProvider& data)
{
    for (int pages = data.ConsumeIntegralInRange(0, 3); pages > 0; --pages) {
        QWidget* page = hint.addPage(nameFrom(data), nameFrom(data), nameFrom(data), {nameFrom(data), nameFrom(data)});
        for (const char* property :
             {"walkthroughName", "walkthroughWidget", "walkthroughAlignment", "walkthroughConditionList"}) {
            if (data.ConsumeBool())
                page->setProperty(property, propertyFrom(data));
        }
    }
}

void act(WalkthroughController& controller, QWidget& window, QPushButton& target, FuzzedDataProvider& data)
{
    switch (data.ConsumeIntegralInRange(0, 7)) {
    case 0:
        target.setProperty("walkthroughWidget", propertyFrom(data));
        break;
    case 1:
        target.setVisible(data.ConsumeBool());
        break;
    case 2:
        controller.gotoState(nameFrom(data));
        break;
    case 3:
        require(controller.findOrCreateState(nameFrom(data)));
        break;
    case 4:
        controller.setEnabled(data.ConsumeBool());
        break;
    case 5:
        target.click();
        break;
    case 6:
        window.setVisible(data.ConsumeBool());
        break;
    default:
        controller.gotoState(nameFrom(data), nameFrom(data));
        break;
    }
    QCoreApplication::processEvents();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::application();
    FuzzedDataProvider provider(data, size);
    QWidget window;
    window.resize(300, 200);
    QPushButton target(&window);
    target.setGeometry(100, 80, 60, 24);
    {
        WalkthroughController controller;
        auto* prototype = new TestSupport::TestHint;
        addPages(*prototype, provider);
        controller.addHints(prototype);
        while (provider.remaining_bytes() > 0)
            act(controller, window, target, provider);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    require(TestSupport::TestHint::alive() == 0);
    return 0;
}
