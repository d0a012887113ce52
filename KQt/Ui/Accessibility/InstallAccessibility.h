#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// Tells Qt how assistive technology sees the library's widgets; to be called by the constructor of each class that has
/// an interface of its own. The first call in an application installs the factory, every
/// other one costs a comparison.
///
/// A call, and no registration before main(): a static library leaves out what nobody refers to.
void installAccessibility();

/// Has the interface of @p object made anew the next time that somebody asks. For an object that Qt may have announced
/// before it stood where it belongs, and with that got the interface of any other object of its class.
void forgetAccessibleInterface(QObject* object);

} // namespace Kestrel::Gui::Detail
