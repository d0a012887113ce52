#pragma once

#include <QtGlobal>

#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QObject;
class QWidget;
QT_END_NAMESPACE

/// One component of the library and how an application makes it.
struct Kind
{
    const char* name;
    std::function<QObject*(QWidget* parent)> make;
};

/// Every component that can be put into a window.
const std::vector<Kind>& kinds();
