#pragma once

#include <QString>

#include <functional>

/// Something to leave behind in each round, so that its counter can be seen to notice; none where @p kind is unknown.
std::function<void()> leakOf(const QString& kind);
