#pragma once

#include <QEvent>

#include <initializer_list>
#include <vector>

/// Every event type that Qt may send, and the first of those that applications register, less @p left.
inline std::vector<QEvent::Type> allEventTypesBut(std::initializer_list<QEvent::Type> left)
{
    constexpr int lastOfQt = 512; // Qt 5 numbers its own types well below this
    std::vector<QEvent::Type> types;
    for (int number = 0; number <= lastOfQt; ++number) {
        const auto type = static_cast<QEvent::Type>(number);
        bool isLeft = false;
        for (const QEvent::Type other : left)
            isLeft = isLeft || other == type;
        if (!isLeft)
            types.push_back(type);
    }
    types.push_back(QEvent::User);
    return types;
}
